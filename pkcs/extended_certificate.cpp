// The signed PKCS#6 extended certificate.
#include "x509/signed_record.h"

using namespace velkord::internal;

namespace {

// ExtendedCertificate ::= SEQUENCE {
//   extendedCertificateInfo  ExtendedCertificateInfo,
//   signatureAlgorithm       AlgorithmIdentifier,
//   signature                BIT STRING }
using Shape =
    SignedRecord<ExtendedCertificate, &ExtendedCertificate::extendedCertificateInfo,
                 &ExtendedCertificate::signatureAlgorithm, &ExtendedCertificate::signature>;

}  // namespace

int32_t ASN1_PKCS6_CreateExtendedCertificate(ExtendedCertificate** out) {
  return CreateRecord(out);
}

void ASN1_PKCS6_FreeExtendedCertificate(ExtendedCertificate* record) { Shape::Free(record); }

int32_t ASN1_PKCS6_SetCertificateCertificateInfo(ExtendedCertificate* record, const Anybuf* value) {
  return Shape::SetSigned(record, value);
}

int32_t ASN1_PKCS6_SetCertificateSignatureAlgorithmIdentifier(ExtendedCertificate* record,
                                                              const Anybuf* value) {
  return Shape::SetAlgorithm(record, value);
}

int32_t ASN1_PKCS6_SetCertificateSignature(ExtendedCertificate* record, const Anybuf* value) {
  return Shape::SetSignature(record, value);
}

int32_t ASN1_PKCS6_CertificateWriteData(const ExtendedCertificate* record, Anybuf** out) {
  return Shape::WriteData(record, out);
}

int32_t ASN1_PKCS6_CertificateDecode(const uint8_t* bytes, uint32_t length,
                                     ExtendedCertificate** out) {
  return Shape::Decode(bytes, length, out);
}
