// The signed PKCS#10 certification request.
#include "x509/signed_record.h"

using namespace velkord;

namespace {

using Shape = SignedRecord<PKCS10Request, &PKCS10Request::certificationRequestInfo,
                           &PKCS10Request::signatureAlgorithm, &PKCS10Request::signature>;

}  // namespace

int32_t ASN1_PKCS10RequestWriteData(const PKCS10Request* record, Anybuf** out) {
  return Shape::WriteData(record, out);
}
