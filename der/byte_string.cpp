// OCTET STRING, BIT STRING, the character strings, ENUMERATED, BOOLEAN and NULL. Writing differs
// only by the tag; reading is one function for all.
#include "der/byte_string.h"

#include "der/forward.h"

namespace velkord::internal {

uint32_t CopyBmpText(Bytes text, uint8_t* out) {
  uint32_t size = 0;
  for (size_t at = 0; at + 1 < text.size(); at += 2) {
    if (text[at] != 0) out[size++] = text[at];
    out[size++] = text[at + 1];
  }
  return size;
}

}  // namespace velkord::internal

using namespace velkord::internal;

VELKORD_WRITE_NODE(ASN1_WriteOctetString, kOctetString)
VELKORD_WRITE_NODE(ASN1_WriteBitString, kBitString)
VELKORD_WRITE_NODE(ASN1_WriteCharString, kPrintableString)
VELKORD_WRITE_NODE(ASN1_WriteUTF8String, kUtf8String)
VELKORD_WRITE_NODE(ASN1_WriteBmpString, kBmpString)
VELKORD_WRITE_NODE(ASN1_WriteIa5String, kIa5String)
VELKORD_WRITE_NODE(ASN1_WriteEnumerated, kEnumerated)

int32_t ASN1_WritePrintableString(const Anybuf* source, Anybuf** out) {
  const bool isBmp = source != nullptr && source->dataType == kBmpString;
  return isBmp ? ASN1_WriteBmpString(source, out) : ASN1_WriteCharString(source, out);
}

VELKORD_WRITE_BYTES(ASN1_WriteOctetStringFromBytes, kOctetString)
VELKORD_WRITE_BYTES(ASN1_WriteBitStringFromBytes, kBitString)
VELKORD_WRITE_BYTES(ASN1_WriteCharStringFromBytes, kPrintableString)
VELKORD_WRITE_BYTES(ASN1_WriteUTF8StringFromBytes, kUtf8String)
VELKORD_WRITE_BYTES(ASN1_WriteBmpStringFromBytes, kBmpString)
VELKORD_WRITE_BYTES(ASN1_WriteIa5StringFromBytes, kIa5String)

int32_t ASN1_WritePrintableStringFromBytes(int32_t selector, const uint8_t* bytes, uint32_t length,
                                           Anybuf** out) {
  return selector != 0 ? ASN1_WriteCharStringFromBytes(bytes, length, out)
                       : ASN1_WriteBmpStringFromBytes(bytes, length, out);
}

int32_t ASN1_WriteBitStringFromDERBytes(const uint8_t* bytes, uint32_t length, Anybuf** out) {
  if (out == nullptr) return VELKORD_NULL_ARGUMENT;
  Bytes in;
  VELKORD_TRY(CallerBytes(bytes, length, in));
  return DerCopyBitString(in, out);
}

int32_t ASN1_WriteBoolean(const uint8_t* value, Anybuf** out) {
  if (value == nullptr || out == nullptr) return VELKORD_NULL_ARGUMENT;
  return DerBuild(kBoolean, Bytes(value, 1), out);
}

int32_t ASN1_ReadBoolean(const Anybuf* source, uint8_t* value) {
  if (source == nullptr || value == nullptr) return VELKORD_NULL_ARGUMENT;
  DerElement element;
  VELKORD_TRY(DerParseElement(NodeBytes(*source), element));
  if (element.Content().empty()) return VELKORD_SIZE_MISMATCH;
  // Unlike the readers of a content, this drops no octet of a BIT STRING or INTEGER.
  *value = element.Content()[0];
  return VELKORD_OK;
}

int32_t ASN1_WriteNull(Anybuf** out) {
  if (out == nullptr) return VELKORD_NULL_ARGUMENT;
  return DerBuild(kNull, {}, out);
}

int32_t ASN1_ReadBitString(const Anybuf* source, Anybuf** out) {
  if (source == nullptr || out == nullptr) return VELKORD_NULL_ARGUMENT;
  DerContent content;
  VELKORD_TRY(DerOpenContent(*source, content));
  return DerCopyBytes(content.bytes, content.tag, content.unusedBits, out);
}

VELKORD_FORWARD_NODE(ASN1_ReadBmpString, ASN1_ReadBitString)
VELKORD_FORWARD_NODE(ASN1_ReadCharString, ASN1_ReadBitString)
VELKORD_FORWARD_NODE(ASN1_ReadEnumerated, ASN1_ReadBitString)
VELKORD_FORWARD_NODE(ASN1_ReadIa5String, ASN1_ReadBitString)
VELKORD_FORWARD_NODE(ASN1_ReadIntegerArray, ASN1_ReadBitString)
VELKORD_FORWARD_NODE(ASN1_ReadOctetString, ASN1_ReadBitString)
VELKORD_FORWARD_NODE(ASN1_ReadPrintableString, ASN1_ReadBitString)
VELKORD_FORWARD_NODE(ASN1_ReadUTF8String, ASN1_ReadBitString)

int32_t ASN1_ReadOctetStringToBytes(const Anybuf* source, uint8_t* out, uint32_t* outLength) {
  if (source == nullptr || out == nullptr || outLength == nullptr) return VELKORD_NULL_ARGUMENT;
  DerContent content;
  VELKORD_TRY(DerOpenContent(*source, content));
  *outLength = CopyOut(content.bytes, out);
  return VELKORD_OK;
}

VELKORD_FORWARD_TO_BYTES(ASN1_ReadCharStringToBytes, ASN1_ReadOctetStringToBytes)
VELKORD_FORWARD_TO_BYTES(ASN1_ReadIa5StringToBytes, ASN1_ReadOctetStringToBytes)
VELKORD_FORWARD_TO_BYTES(ASN1_ReadIntegerArrayToBytes, ASN1_ReadOctetStringToBytes)
VELKORD_FORWARD_TO_BYTES(ASN1_ReadPrintableStringToBytes, ASN1_ReadOctetStringToBytes)
VELKORD_FORWARD_TO_BYTES(ASN1_ReadUTF8StringToBytes, ASN1_ReadOctetStringToBytes)

int32_t ASN1_ReadBmpStringToBytes(const Anybuf* source, uint8_t* out, uint32_t* outLength) {
  if (source == nullptr || out == nullptr || outLength == nullptr) return VELKORD_NULL_ARGUMENT;
  DerContent content;
  VELKORD_TRY(DerOpenContent(*source, content));
  *outLength = CopyBmpText(content.bytes, out);
  return VELKORD_OK;
}
