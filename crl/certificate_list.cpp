// The signed revocation list.
#include "x509/signed_record.h"

using namespace velkord::internal;

namespace {

// CertificateList ::= SEQUENCE {
//   tbsCertList         TBSCertList,
//   signatureAlgorithm  AlgorithmIdentifier,
//   signatureValue      BIT STRING }
using Shape = SignedRecord<CertificateList, &CertificateList::tbsCertList,
                           &CertificateList::signatureAlgorithm, &CertificateList::signatureValue>;

}  // namespace

int32_t ASN1_CRL_CreateCertificateList(CertificateList** out) { return CreateRecord(out); }

void ASN1_CRL_FreeCertificateList(CertificateList* record) { Shape::Free(record); }

int32_t ASN1_CRL_SetCertificateListTBSCertList(CertificateList* record, const Anybuf* value) {
  return Shape::SetSigned(record, value);
}

int32_t ASN1_CRL_SetCertificateListAlgorithmIdentifier(CertificateList* record,
                                                       const Anybuf* value) {
  return Shape::SetAlgorithm(record, value);
}

int32_t ASN1_CRL_SetCertificateListSignatureValue(CertificateList* record, const Anybuf* value) {
  return Shape::SetSignature(record, value);
}

int32_t ASN1_CRL_CertificateListWriteData(const CertificateList* record, Anybuf** out) {
  return Shape::WriteData(record, out);
}

int32_t ASN1_CRL_CertificateListDecode(const uint8_t* bytes, uint32_t length,
                                       CertificateList** out) {
  return Shape::Decode(bytes, length, out);
}
