// The signed PKCS#10 certification request.
#include "x509/signed_record.h"

using namespace velkord::internal;

namespace {

// CertificationRequest ::= SEQUENCE {
//   certificationRequestInfo  CertificationRequestInfo,
//   signatureAlgorithm        AlgorithmIdentifier,
//   signature                 BIT STRING }
using Shape = SignedRecord<PKCS10Request, &PKCS10Request::certificationRequestInfo,
                           &PKCS10Request::signatureAlgorithm, &PKCS10Request::signature>;

}  // namespace

int32_t ASN1_CreatePKCS10Request(PKCS10Request** out) { return CreateRecord(out); }

void ASN1_FreePKCS10Request(PKCS10Request* record) { Shape::Free(record); }

int32_t ASN1_PKCS10RequestSetCertificationRequestInfo(PKCS10Request* record, const Anybuf* value) {
  return Shape::SetSigned(record, value);
}

int32_t ASN1_PKCS10RequestSetAlgorithmIdentifier(PKCS10Request* record, const Anybuf* value) {
  return Shape::SetAlgorithm(record, value);
}

int32_t ASN1_PKCS10RequestSetSignature(PKCS10Request* record, const Anybuf* value) {
  return Shape::SetSignature(record, value);
}

int32_t ASN1_PKCS10RequestWriteData(const PKCS10Request* record, Anybuf** out) {
  return Shape::WriteData(record, out);
}

int32_t ASN1_PKCS10RequestDecode(const uint8_t* bytes, uint32_t length, PKCS10Request** out) {
  return Shape::Decode(bytes, length, out);
}
