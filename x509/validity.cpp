// Validity ::= SEQUENCE {
//   notBefore  Time,
//   notAfter   Time }
// Unlike the standard's, elements of any tag are written; of more than two times that are read the
// last is notAfter.
#include "der/forward.h"
#include "der/time.h"
#include "x509/record.h"

using namespace velkord::internal;

int32_t ASN1_SetValidity(const Anybuf* notBefore, const Anybuf* notAfter, Anybuf** out) {
  return JoinPair(notBefore, notAfter, out);
}

int32_t ASN1_GetValidity(const Anybuf* source, int32_t* notBefore, int32_t* notAfter) {
  if (source == nullptr || notBefore == nullptr || notAfter == nullptr) {
    return VELKORD_NULL_ARGUMENT;
  }
  int32_t times[2] = {};
  const auto read = [&](const DerElement& element, size_t place) -> int32_t {
    if (element.tag != ReduceTag(kUtcTime) && element.tag != ReduceTag(kGeneralizedTime)) {
      return VELKORD_WRONG_TAG;
    }
    return TimeRead(element, times[place]);
  };
  VELKORD_TRY(DerElements::ReadPair(NodeBytes(*source), read));
  *notBefore = times[0];
  *notAfter = times[1];
  return VELKORD_OK;
}

VELKORD_FORWARD_FREE(ASN1_FreeValidity, ASN1_FreeAnybuf)
