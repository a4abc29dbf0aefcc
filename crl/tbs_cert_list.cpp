// The signed part of a revocation list: made field by field, written and decoded.
#include "der/integer.h"
#include "der/tagging.h"
#include "der/time.h"
#include "x509/record.h"

using namespace velkord::internal;

namespace {

// The one version number that is written, as an INTEGER of the same value.
constexpr uint32_t kWrittenVersion = 2;
constexpr uint32_t kUtcTimeForm = 1;
constexpr uint32_t kExtensionsTag = 0;

// Only the first octet of an optional element decides which it is, in this order; the last element
// may have any tag.
int32_t FillOptionals(TbsCertList& record, DerElements& elements) {
  DerElement element;
  if (elements.StartsWith(kUtcTime) || elements.StartsWith(kGeneralizedTime)) {
    VELKORD_TRY(elements.Next(element));
    VELKORD_TRY(TimeRead(element, record.nextUpdate));
    record.hasNextUpdate = 1;
  }
  if (elements.StartsWith(kSequence)) {
    VELKORD_TRY(DerRewrapNext(elements, &record.revokedCertificates));
    record.hasRevokedCertificates = 1;
  }
  if (elements.AtEnd()) return VELKORD_OK;
  VELKORD_TRY(elements.Next(element));
  VELKORD_TRY(DerCopyContent(element, &record.crlExtensions));
  record.hasCrlExtensions = 1;
  return VELKORD_OK;
}

// TBSCertList ::= SEQUENCE {
//   version              Version OPTIONAL,
//   signature            AlgorithmIdentifier,
//   issuer               Name,
//   thisUpdate           Time,
//   nextUpdate           Time OPTIONAL,
//   revokedCertificates  SEQUENCE OF RevokedCertificate OPTIONAL,
//   crlExtensions        [0] EXPLICIT Extensions OPTIONAL }
// Unlike the standard's, the version is written only when it is 2, then as INTEGER 2, and both
// times have one form; what is read may have any version, and further elements are skipped.
int32_t Fill(TbsCertList& record, DerElements& elements) {
  DerElement element;
  if (elements.StartsWith(kInteger)) {
    VELKORD_TRY(elements.Next(element));
    record.version = DerBytesToUint(element.Content());
  }
  VELKORD_TRY(DerRewrapNext(elements, &record.signature));
  VELKORD_TRY(DerRewrapNext(elements, &record.issuer));
  VELKORD_TRY(elements.Next(element));
  uint8_t form;
  VELKORD_TRY(TimeReadByFirstOctet(element, form, record.thisUpdate));
  record.timeForm = form == kUtcTime ? kUtcTimeForm : 0;
  return FillOptionals(record, elements);
}

}  // namespace

int32_t ASN1_CRL_CreateTbsCertList(TbsCertList** out) { return CreateRecord(out); }

void ASN1_CRL_FreeTbsCertList(TbsCertList* record) {
  FreeRecord<&TbsCertList::signature, &TbsCertList::issuer, &TbsCertList::revokedCertificates,
             &TbsCertList::crlExtensions>(record);
}

int32_t ASN1_CRL_TbsCertListSetVersion(TbsCertList* record, uint32_t version) {
  if (record == nullptr) return VELKORD_NULL_ARGUMENT;
  record->version = version;
  return VELKORD_OK;
}

int32_t ASN1_CRL_TbsCertListSetSignatureAlgorithmIdentifier(TbsCertList* record,
                                                            const Anybuf* value) {
  return SetSequence(record, &TbsCertList::signature, value);
}

int32_t ASN1_CRL_TbsCertListSetIssuer(TbsCertList* record, const Anybuf* value) {
  return SetSequence(record, &TbsCertList::issuer, value);
}

int32_t ASN1_CRL_TbsCertListSetThisUpdate(TbsCertList* record, int32_t time, uint32_t form) {
  if (record == nullptr) return VELKORD_NULL_ARGUMENT;
  record->thisUpdate = time;
  record->timeForm = form;
  return VELKORD_OK;
}

int32_t ASN1_CRL_TbsCertListSetNextUpdate(TbsCertList* record, int32_t time) {
  if (record == nullptr) return VELKORD_NULL_ARGUMENT;
  record->nextUpdate = time;
  record->hasNextUpdate = 1;
  return VELKORD_OK;
}

int32_t ASN1_CRL_TbsCertListSetRevokedCertificates(TbsCertList* record, const Anybuf* value) {
  return SetOptional(record, &TbsCertList::revokedCertificates,
                     &TbsCertList::hasRevokedCertificates, value, CopySequence);
}

int32_t ASN1_CRL_TbsCertListSetCrlExtensions(TbsCertList* record, const Anybuf* value) {
  return SetOptional(record, &TbsCertList::crlExtensions, &TbsCertList::hasCrlExtensions, value,
                     CopySequence);
}

int32_t ASN1_CRL_TbsCertListWriteData(const TbsCertList* record, Anybuf** out) {
  if (record == nullptr || out == nullptr) return VELKORD_NULL_ARGUMENT;
  // A missing field before the times is reported before an error in them.
  if (record->signature == nullptr || record->issuer == nullptr) return VELKORD_NULL_ARGUMENT;
  const uint8_t form = record->timeForm == kUtcTimeForm ? kUtcTime : kGeneralizedTime;
  TimeElement thisUpdate;
  TimeElement nextUpdate;
  VELKORD_TRY(thisUpdate.Set(record->thisUpdate, form));
  if (record->hasNextUpdate == 1) VELKORD_TRY(nextUpdate.Set(record->nextUpdate, form));

  const IntegerElement version(kWrittenVersion);
  const Field extensions = OptionalField(record->hasCrlExtensions, record->crlExtensions);
  const DerHeaderOctets explicitTag(
      DerHeader(ExplicitTag(kExtensionsTag), extensions.bytes.size()));
  return JoinFields({record->version == kWrittenVersion ? version.Whole() : Bytes(),
                     record->signature, record->issuer, thisUpdate.Whole(), nextUpdate.Whole(),
                     OptionalField(record->hasRevokedCertificates, record->revokedCertificates),
                     record->hasCrlExtensions == 1 ? explicitTag.View() : Bytes(), extensions},
                    out);
}

int32_t ASN1_CRL_TbsCertListDecode(const uint8_t* bytes, uint32_t length, TbsCertList** out) {
  return DecodeRecord<ASN1_CRL_FreeTbsCertList>(bytes, length, out, Fill);
}
