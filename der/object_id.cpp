// OBJECT IDENTIFIER: from dotted text, written, and read as a record or as bytes.
#include "der/object_id.h"

#include "der/forward.h"
#include "platform/memory.h"

namespace velkord::internal {

uint32_t ObjectIdSize(std::string_view text) {
  uint32_t size = 0;
  return ForEachObjectIdOctet(text, [&](uint8_t) { ++size; }) ? size : 0;
}

void FillObjectId(std::span<uint8_t> room, std::string_view text) {
  // A refused text has no octets, but would write those of its first arcs.
  if (room.empty()) return;
  DerWriter writer(room);
  ForEachObjectIdOctet(text, [&](uint8_t octet) { writer.Put(octet); });
}

int32_t CallerText(const char* text, int32_t length, std::string_view& out) {
  if (text == nullptr) return VELKORD_NULL_ARGUMENT;
  out = std::string_view(text, length < 0 ? 0 : static_cast<size_t>(length));
  return VELKORD_OK;
}

}  // namespace velkord::internal

using namespace velkord::internal;

int32_t ASN1_OBJECT_a2d(uint8_t* out, uint32_t* outLength, const char* text, int32_t textLength) {
  std::string_view view;
  if (out == nullptr || outLength == nullptr) return 0;
  if (CallerText(text, textLength, view) != VELKORD_OK) return 0;
  uint32_t size = 0;
  if (!ForEachObjectIdOctet(view, [&](uint8_t octet) { out[size++] = octet; })) return 0;
  *outLength = size;
  return static_cast<int32_t>(size);
}

int32_t ASN1_WriteObjectId(const ObjectID* record, Anybuf** out) {
  if (record == nullptr) return VELKORD_NULL_ARGUMENT;
  return DerBuildFromBytes(kObjectId, record->data, record->data == nullptr ? 0 : record->dataLen,
                           out);
}

int32_t ASN1_WriteObjectIdFromData(int32_t /*id*/, const uint8_t* bytes, uint32_t length,
                                   Anybuf** out) {
  return DerBuildFromBytes(kObjectId, bytes, length, out);
}

int32_t ASN1_ReadObjectId(const Anybuf* source, ObjectID** out) {
  if (source == nullptr || out == nullptr) return VELKORD_NULL_ARGUMENT;
  DerContent content;
  VELKORD_TRY(DerOpenContent(*source, content));
  auto* record = AllocateZeroed<ObjectID>();
  uint8_t* data = AllocateBytes(content.bytes.size());
  if (record == nullptr || data == nullptr) {
    Release(record);
    Release(data);
    return VELKORD_OUT_OF_MEMORY;
  }
  CopyOut(content.bytes, data);
  record->data = data;
  record->dataLen = static_cast<uint32_t>(content.bytes.size());
  record->unusedBits = content.unusedBits;
  record->memKind = kMemKind;
  record->dataType = content.tag;
  *out = record;
  return VELKORD_OK;
}

VELKORD_FORWARD_TO_BYTES(ASN1_ReadObjectIdToBytes, ASN1_ReadOctetStringToBytes)
