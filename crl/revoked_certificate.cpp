// One entry of a revocation list.
#include "der/time.h"
#include "x509/record.h"

using namespace velkord::internal;

namespace {

// RevokedCertificate ::= SEQUENCE {
//   userCertificate     INTEGER,
//   revocationDate      Time,
//   crlEntryExtensions  Extensions OPTIONAL }
// Unlike the standard's, the serial number may have any tag, and further elements are skipped.
int32_t Fill(RevokedCertificate& record, DerElements& elements) {
  DerElement element;
  VELKORD_TRY(elements.Next(element));
  VELKORD_TRY(DerCopyElement(element, &record.certificateSerialNumber));
  VELKORD_TRY(elements.Next(element));
  VELKORD_TRY(TimeRewrite(element, &record.revocationDate));
  if (elements.AtEnd()) return VELKORD_OK;
  VELKORD_TRY(DerRewrapNext(elements, &record.crlEntryExtensions));
  record.hasCrlEntryExtensions = 1;
  return VELKORD_OK;
}

}  // namespace

int32_t ASN1_CRL_CreateRevokedCertificate(RevokedCertificate** out) { return CreateRecord(out); }

void ASN1_CRL_FreeRevokedCertificate(RevokedCertificate* record) {
  FreeRecord<&RevokedCertificate::certificateSerialNumber, &RevokedCertificate::revocationDate,
             &RevokedCertificate::crlEntryExtensions>(record);
}

int32_t ASN1_CRL_SetRevokedCertificateCertificateSerialNumber(RevokedCertificate* record,
                                                              const Anybuf* value) {
  return SetField(record, &RevokedCertificate::certificateSerialNumber, value, CopyElement);
}

int32_t ASN1_CRL_SetRevokedCertificateRevocationDate(RevokedCertificate* record,
                                                     const Anybuf* value) {
  return SetField(record, &RevokedCertificate::revocationDate, value,
                  [](const Anybuf& node, Anybuf** out) { return TimeRewrite(node, out); });
}

int32_t ASN1_CRL_SetRevokedCertificateCrlEntryExtensions(RevokedCertificate* record,
                                                         const Anybuf* value) {
  return SetOptional(record, &RevokedCertificate::crlEntryExtensions,
                     &RevokedCertificate::hasCrlEntryExtensions, value, CopySequence);
}

int32_t ASN1_CRL_RevokedCertificateWriteData(const RevokedCertificate* record, Anybuf** out) {
  if (record == nullptr) return VELKORD_NULL_ARGUMENT;
  return JoinFields({record->certificateSerialNumber, record->revocationDate,
                     OptionalField(record->hasCrlEntryExtensions, record->crlEntryExtensions)},
                    out);
}

int32_t ASN1_CRL_RevokedCertificateDecode(const uint8_t* bytes, uint32_t length,
                                          RevokedCertificate** out) {
  return DecodeRecord<ASN1_CRL_FreeRevokedCertificate>(bytes, length, out, Fill);
}
