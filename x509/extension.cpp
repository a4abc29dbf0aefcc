// Extensions, single and as a list.
#include "x509/extension.h"

#include "der/forward.h"
#include "x509/record.h"

namespace velkord::internal {

int32_t OpenExtension(Bytes in, ExtensionView& extension) {
  return DerElements::Read(in, kSequenceType, [&](DerElements& elements) -> int32_t {
    VELKORD_TRY(DerNextContent(elements, extension.oid));
    extension.critical = Bytes();
    DerElement second;
    VELKORD_TRY(elements.Next(second));
    DerElement third;
    if (elements.Next(third) != VELKORD_OK || !elements.AtEnd()) {
      return DerOpenContent(second, extension.value);
    }
    if (second.Content().empty()) return VELKORD_SIZE_MISMATCH;
    extension.critical = second.Content().first(1);
    return DerOpenContent(third, extension.value);
  });
}

}  // namespace velkord::internal

using namespace velkord::internal;

// Unlike the standard's, `critical` is written when it is set, also as FALSE.
int32_t ASN1_SetExtension(const Anybuf* oid, const Anybuf* critical, const Anybuf* value,
                          Anybuf** out) {
  return JoinFields({oid, FieldIfSet(critical), value}, out);
}

int32_t ASN1_GetExtensionOne(int32_t /*id*/, const uint8_t* oid, uint32_t oidLength,
                             uint32_t critical, const uint8_t* value, uint32_t valueLength,
                             Anybuf** out) {
  if (out == nullptr) return VELKORD_NULL_ARGUMENT;
  Bytes oidBytes;
  Bytes valueBytes;
  VELKORD_TRY(CallerBytes(oid, oidLength, oidBytes));
  VELKORD_TRY(CallerBytes(value, valueLength, valueBytes));
  const uint8_t boolean[] = {kBoolean, 1, static_cast<uint8_t>(critical)};
  const DerHeaderOctets oidHeader(DerHeader(kObjectId, oidLength));
  const DerHeaderOctets valueHeader(DerHeader(kOctetString, valueLength));
  return DerJoin(kSequence,
                 {oidHeader.View(), oidBytes, boolean[2] != 0 ? Bytes(boolean) : Bytes(),
                  valueHeader.View(), valueBytes},
                 out);
}

int32_t ASN1_GetExtension(const Anybuf* source, Anybuf** outOid, Anybuf** outCritical,
                          Anybuf** outValue) {
  if (source == nullptr || outOid == nullptr || outCritical == nullptr || outValue == nullptr) {
    return VELKORD_NULL_ARGUMENT;
  }
  ExtensionView extension;
  VELKORD_TRY(OpenExtension(NodeBytes(*source), extension));
  NodePtr oid;
  NodePtr critical;
  VELKORD_TRY(DerBuild(kObjectId, extension.oid, oid.Out()));
  if (!extension.critical.empty()) {
    VELKORD_TRY(DerBuild(kBoolean, extension.critical, critical.Out()));
  }
  VELKORD_TRY(DerBuild(kOctetString, extension.value, outValue));
  if (!extension.critical.empty()) *outCritical = critical.release();
  *outOid = oid.release();
  return VELKORD_OK;
}

VELKORD_FORWARD_NODE(ASN1_CreateExtensions, ASN1_CreateSet)
VELKORD_FORWARD_ADD(ASN1_AddExtensions, ASN1_AddSet)
VELKORD_FORWARD_NODE(ASN1_WriteExtensions, ASN1_WriteSequence)
VELKORD_FORWARD_NODE(ASN1_ReadExtensions, ASN1_ReadSequence)
VELKORD_FORWARD_FREE(ASN1_FreeExtension, ASN1_FreeAnybuf)
VELKORD_FORWARD_FREE(ASN1_FreeExtensions, ASN1_FreeAnybuf)
