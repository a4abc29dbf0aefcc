// The signed certificate: made, written and decoded.
#include "x509/signed_record.h"

using namespace velkord::internal;

namespace {

// Certificate ::= SEQUENCE {
//   tbsCertificate      TBSCertificate,
//   signatureAlgorithm  AlgorithmIdentifier,
//   signatureValue      BIT STRING }
using Shape = SignedRecord<Certificate, &Certificate::tbsCertificate,
                           &Certificate::signatureAlgorithm, &Certificate::signatureValue>;

// A decoded certificate's signature has no unused bits, whatever the input says.
int32_t MakeSignature(const DerElement& element, Anybuf** out) {
  return DerRewrite(kBitString, element, out);
}

}  // namespace

int32_t ASN1_CreateCertificate(Certificate** out) { return CreateRecord(out); }

void ASN1_FreeCertificate(Certificate* record) { Shape::Free(record); }

int32_t ASN1_CertificateSetTbsCertificate(Certificate* record, const Anybuf* value) {
  return Shape::SetSigned(record, value);
}

int32_t ASN1_CertificateSetSignatureAlgorithm(Certificate* record, const Anybuf* value) {
  return Shape::SetAlgorithm(record, value);
}

int32_t ASN1_CertificateSetSignatureValue(Certificate* record, const Anybuf* value) {
  return Shape::SetSignature(record, value);
}

int32_t ASN1_CertificateWriteData(const Certificate* record, Anybuf** out) {
  return Shape::WriteData(record, out);
}

int32_t ASN1_CertificateDecode(const uint8_t* bytes, uint32_t length, Certificate** out) {
  return Shape::Decode(bytes, length, out, MakeSignature);
}
