// EXPLICIT and IMPLICIT tags, and DER bytes stored as they are.
#include "der/tagging.h"

#include "der/forward.h"

namespace velkord::internal {

int32_t DerOpenImplicit(const DerElement& element, Bytes& content) {
  Bytes bytes = element.Content();
  if ((element.tag & 1) != 0) {
    if (bytes.empty()) return VELKORD_SIZE_MISMATCH;
    bytes = bytes.subspan(1);
  }
  content = bytes;
  return VELKORD_OK;
}

}  // namespace velkord::internal

using namespace velkord::internal;

int32_t ASN1_WriteExplicit(const Anybuf* source, uint8_t tagNumber, Anybuf** out) {
  return DerBuildFromNode(ExplicitTag(tagNumber), source, out);
}

int32_t ASN1_WriteExplicitFromData(uint32_t tagNumber, const uint8_t* bytes, uint32_t length,
                                   Anybuf** out) {
  return DerBuildFromBytes(ExplicitTag(tagNumber), bytes, length, out);
}

int32_t ASN1_ReadExplicit(const Anybuf* source, Anybuf** out, uint32_t* outTag) {
  if (outTag == nullptr) return VELKORD_NULL_ARGUMENT;
  VELKORD_TRY(ASN1_ReadBitString(source, out));
  *outTag = (*out)->dataType;
  return VELKORD_OK;
}

int32_t ASN1_ReadExplicitToBytes(const Anybuf* source, uint8_t* out, uint32_t* outLength,
                                 uint32_t* outTag) {
  if (source == nullptr || out == nullptr || outLength == nullptr || outTag == nullptr) {
    return VELKORD_NULL_ARGUMENT;
  }
  DerContent content;
  VELKORD_TRY(DerOpenContent(*source, content));
  *outLength = CopyOut(content.bytes, out);
  *outTag = content.tag;
  return VELKORD_OK;
}

int32_t ASN1_WriteImplicit(const Anybuf* source, uint32_t tagNumber, Anybuf** out) {
  if (source == nullptr || out == nullptr) return VELKORD_NULL_ARGUMENT;
  Bytes content;
  VELKORD_TRY(DerOpenRaw(*source, content));
  const bool constructed = source->dataType == kSequenceType || source->dataType == kSetType;
  const uint32_t form = constructed ? kContextConstructed : kContextPrimitive;
  return DerBuild(static_cast<uint8_t>(tagNumber | form), content, out);
}

int32_t ASN1_ReadImplicit(const Anybuf* source, Anybuf** out, uint32_t* outTagNumber) {
  if (source == nullptr || out == nullptr || outTagNumber == nullptr) return VELKORD_NULL_ARGUMENT;
  Bytes afterTag = NodeBytes(*source);
  uint32_t tag;
  VELKORD_TRY(DerParseTag(afterTag, tag));
  // The tag number is stored even when the rest is refused.
  *outTagNumber = tag & kTagNumberMask;

  DerElement element;
  VELKORD_TRY(DerParseElement(NodeBytes(*source), element));
  if (IsImplicitConstructed(tag)) return DerSplit(element.Content(), out);
  Bytes content;
  VELKORD_TRY(DerOpenImplicit(element, content));
  return DerCopyBytes(content, tag, 0, out);
}

int32_t ASN1_WriteExplicitFromDERData(const uint8_t* bytes, uint32_t length, Anybuf** out) {
  if (out == nullptr) return VELKORD_NULL_ARGUMENT;
  Bytes in;
  VELKORD_TRY(CallerBytes(bytes, length, in));
  return DerCopyElement(in, out);
}

VELKORD_FORWARD_BYTES(ASN1_WriteBmpStringFromDERBytes, ASN1_WriteExplicitFromDERData)
VELKORD_FORWARD_BYTES(ASN1_WriteCharStringFromDERBytes, ASN1_WriteExplicitFromDERData)
VELKORD_FORWARD_BYTES(ASN1_WriteIa5StringFromDERBytes, ASN1_WriteExplicitFromDERData)
VELKORD_FORWARD_BYTES(ASN1_WriteIntegerArrayFromDERBytes, ASN1_WriteExplicitFromDERData)
VELKORD_FORWARD_BYTES(ASN1_WriteObjectIdFromDERBytes, ASN1_WriteExplicitFromDERData)
VELKORD_FORWARD_BYTES(ASN1_WriteOctetStringFromDERBytes, ASN1_WriteExplicitFromDERData)
VELKORD_FORWARD_BYTES(ASN1_WritePrintableStringFromDERBytes, ASN1_WriteExplicitFromDERData)
VELKORD_FORWARD_BYTES(ASN1_WriteUTF8StringFromDERBytes, ASN1_WriteExplicitFromDERData)
