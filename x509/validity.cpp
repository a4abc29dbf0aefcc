// Validity: two times.
#include "der/forward.h"
#include "der/time.h"
#include "x509/record.h"

using namespace velkord;

int32_t ASN1_SetValidity(const Anybuf* notBefore, const Anybuf* notAfter, Anybuf** out) {
  if (out == nullptr) return VELKORD_NULL_ARGUMENT;
  return JoinFields({notBefore, notAfter}, out);
}

int32_t ASN1_GetValidity(const Anybuf* source, int32_t* notBefore, int32_t* notAfter) {
  if (source == nullptr || notBefore == nullptr || notAfter == nullptr) {
    return VELKORD_NULL_ARGUMENT;
  }
  DerElements elements;
  VELKORD_TRY(elements.Open(NodeBytes(*source), kSequenceType));
  // The first time, and the last of those behind it.
  int32_t times[2] = {};
  for (uint32_t at = 0; at < 2 || !elements.AtEnd(); ++at) {
    DerElement element;
    VELKORD_TRY(elements.Next(element));
    if (element.tag != ReduceTag(kUtcTime) && element.tag != ReduceTag(kGeneralizedTime)) {
      return VELKORD_WRONG_TAG;
    }
    VELKORD_TRY(TimeRead(element.whole, times[at == 0 ? 0 : 1]));
  }
  *notBefore = times[0];
  *notAfter = times[1];
  return VELKORD_OK;
}

VELKORD_FORWARD_FREE(ASN1_FreeValidity, ASN1_FreeAnybuf)
