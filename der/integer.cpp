// INTEGER as a number of 32 bits and as a magnitude of any size.
#include "der/integer.h"

#include "der/forward.h"
#include "platform/memory.h"

namespace velkord::internal {

uint32_t DerBytesToUint(Bytes content) {
  uint32_t value = 0;
  for (const uint8_t octet : content) value = value << 8 | octet;
  return value;
}

}  // namespace velkord::internal

using namespace velkord::internal;

int32_t Asn1LowIntToChar(uint32_t value, uint8_t** outBytes, uint32_t** outLength) {
  if (outBytes == nullptr || outLength == nullptr) return VELKORD_NULL_ARGUMENT;
  const IntegerElement integer(value);
  const Bytes octets = integer.Content();
  uint8_t* block = AllocateBytes(octets.size());
  auto* length = Allocate<uint32_t>();
  if (block == nullptr || length == nullptr) {
    Release(block);
    Release(length);
    return VELKORD_FAILURE;
  }
  CopyOut(octets, block);
  *length = static_cast<uint32_t>(octets.size());
  *outBytes = block;
  *outLength = length;
  return VELKORD_OK;
}

int32_t ASN1_WriteInteger(uint32_t value, Anybuf** out) {
  if (out == nullptr) return VELKORD_NULL_ARGUMENT;
  return DerCopyBytes(IntegerElement(value).Whole(), kInteger, 0, out);
}

int32_t ASN1_ReadInteger(const Anybuf* source, uint32_t* value) {
  if (source == nullptr || value == nullptr) return VELKORD_NULL_ARGUMENT;
  Bytes in = NodeBytes(*source);
  DerElement element;
  VELKORD_TRY(DerTakeElement(in, element));
  *value = DerBytesToUint(element.Content());
  return VELKORD_OK;
}

VELKORD_WRITE_NODE(ASN1_WriteIntegerArray, kInteger)
VELKORD_WRITE_BYTES(ASN1_WriteIntegerArrayFromBytes, kInteger)
