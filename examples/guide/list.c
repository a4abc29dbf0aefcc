// Issues a revocation list, reads it and looks a certificate up. The signature is a fixed block.
#include "parts.h"

static const uint32_t kFirstNumber = 1000;
static const uint32_t kEntries = 3;

// [entry]
// An entry, with the reason "superseded".
static Anybuf* Entry(uint32_t serialNumber, int32_t revokedAt) {
  const uint8_t superseded[] = {0x0A, 0x01, 0x04};  // ENUMERATED 4.
  Anybuf* reason = Extension("2.5.29.21", false, Element(superseded, sizeof superseded));
  Anybuf* extensions = Sequence(reason);
  Anybuf* number = Integer(serialNumber);
  Anybuf* date = NULL;
  CHECK(ASN1_WriteUtcTime(&revokedAt, &date));

  RevokedCertificate* entry = NULL;
  CHECK(ASN1_CRL_CreateRevokedCertificate(&entry));
  CHECK(ASN1_CRL_SetRevokedCertificateCertificateSerialNumber(entry, number));
  CHECK(ASN1_CRL_SetRevokedCertificateRevocationDate(entry, date));
  CHECK(ASN1_CRL_SetRevokedCertificateCrlEntryExtensions(entry, extensions));

  Anybuf* der = NULL;
  CHECK(ASN1_CRL_RevokedCertificateWriteData(entry, &der));
  ASN1_CRL_FreeRevokedCertificate(entry);
  ASN1_FreeAnybuf(date);
  ASN1_FreeAnybuf(number);
  ASN1_FreeAnybuf(extensions);
  return der;
}
// [/entry]

// [entries]
static Anybuf* Entries(void) {
  Anybuf* chain = NULL;
  Anybuf** end = &chain;
  for (uint32_t at = 0; at < kEntries; ++at) {
    *end = Entry(kFirstNumber + at, kTime2026);
    end = &(*end)->next;
  }
  return Sequence(chain);
}
// [/entries]

// [signed_part]
static Anybuf* SignedPart(void) {
  Anybuf* algorithm = SignatureAlgorithm();
  Anybuf* issuer = Name("Guide Authority");
  Anybuf* entries = Entries();
  Anybuf* extensions = Sequence(Extension("2.5.29.20", false, Integer(7)));  // The list's number.

  TbsCertList* tbs = NULL;
  CHECK(ASN1_CRL_CreateTbsCertList(&tbs));
  CHECK(ASN1_CRL_TbsCertListSetSignatureAlgorithmIdentifier(tbs, algorithm));
  CHECK(ASN1_CRL_TbsCertListSetIssuer(tbs, issuer));
  CHECK(ASN1_CRL_TbsCertListSetThisUpdate(tbs, kTime2026, 1));  // 1: UTCTime.
  CHECK(ASN1_CRL_TbsCertListSetNextUpdate(tbs, kTime2027));
  CHECK(ASN1_CRL_TbsCertListSetRevokedCertificates(tbs, entries));
  CHECK(ASN1_CRL_TbsCertListSetCrlExtensions(tbs, extensions));

  Anybuf* withoutVersion = NULL;
  CHECK(ASN1_CRL_TbsCertListWriteData(tbs, &withoutVersion));
  Anybuf* der = Prepend(Integer(1), withoutVersion);  // 1 stands for version 2.
  ASN1_FreeAnybuf(withoutVersion);
  ASN1_CRL_FreeTbsCertList(tbs);
  ASN1_FreeAnybuf(extensions);
  ASN1_FreeAnybuf(entries);
  ASN1_FreeAnybuf(issuer);
  ASN1_FreeAnybuf(algorithm);
  return der;
}
// [/signed_part]

static Anybuf* Issue(void) {
  Anybuf* signedPart = SignedPart();
  Anybuf* algorithm = SignatureAlgorithm();
  Anybuf* signature = Sign(signedPart);

  CertificateList* list = NULL;
  CHECK(ASN1_CRL_CreateCertificateList(&list));
  CHECK(ASN1_CRL_SetCertificateListTBSCertList(list, signedPart));
  CHECK(ASN1_CRL_SetCertificateListAlgorithmIdentifier(list, algorithm));
  CHECK(ASN1_CRL_SetCertificateListSignatureValue(list, signature));

  Anybuf* der = NULL;
  CHECK(ASN1_CRL_CertificateListWriteData(list, &der));
  ASN1_CRL_FreeCertificateList(list);
  ASN1_FreeAnybuf(signature);
  ASN1_FreeAnybuf(algorithm);
  ASN1_FreeAnybuf(signedPart);
  return der;
}

// [is_revoked]
// Looks for the INTEGER TLV node of a serial number among the entries of a list.
static bool IsRevoked(const TbsCertList* tbs, const Anybuf* serialNumber, int32_t* revokedAt) {
  bool found = false;
  Anybuf* entries = NULL;
  if (tbs->hasRevokedCertificates != 1) return false;
  CHECK(ASN1_ReadSequence(tbs->revokedCertificates, &entries));
  for (const Anybuf* one = entries; one != NULL && !found; one = one->next) {
    RevokedCertificate* entry = NULL;
    CHECK(ASN1_CRL_RevokedCertificateDecode(one->data, one->dataLen, &entry));
    found = SameBytes(entry->certificateSerialNumber, serialNumber);
    const Anybuf* date = entry->revocationDate;
    if (found && date->dataType == 23) CHECK(ASN1_ReadUtcTime(date, revokedAt));
    if (found && date->dataType == 24) CHECK(ASN1_ReadGeneralizedTime(date, revokedAt));
    ASN1_CRL_FreeRevokedCertificate(entry);
  }
  ASN1_FreeAnybuf(entries);
  return found;
}
// [/is_revoked]

static void LookUp(const TbsCertList* tbs) {
  int32_t revokedAt = 0;
  Anybuf* listed = Integer(kFirstNumber + 2);
  Anybuf* other = Integer(kFirstNumber + kEntries);
  REQUIRE(IsRevoked(tbs, listed, &revokedAt) && revokedAt == kTime2026);
  REQUIRE(!IsRevoked(tbs, other, &revokedAt));
  ASN1_FreeAnybuf(other);
  ASN1_FreeAnybuf(listed);
}

static void ReadListNumber(const TbsCertList* tbs) {
  // [list_extensions]
  bool isCritical = false;
  REQUIRE(tbs->hasCrlExtensions == 1);
  Anybuf* value = FindExtension(tbs->crlExtensions, "2.5.29.20", &isCritical);
  REQUIRE(value != NULL && !isCritical);
  Expect(value, 4, "02 01 07");
  // [/list_extensions]
  ASN1_FreeAnybuf(value);
}

static void Read(const uint8_t* der, uint32_t length) {
  // [decode]
  CertificateList* list = NULL;
  TbsCertList* tbs = NULL;
  CHECK(ASN1_CRL_CertificateListDecode(der, length, &list));
  const Anybuf* signedPart = list->tbsCertList;
  CHECK(ASN1_CRL_TbsCertListDecode(signedPart->data, signedPart->dataLen, &tbs));
  REQUIRE(tbs->version == 1);  // The number of the INTEGER; 0 when there is none.
  REQUIRE(tbs->thisUpdate == kTime2026 && tbs->timeForm == 1);
  REQUIRE(tbs->hasNextUpdate == 1);
  // [/decode]
  LookUp(tbs);
  ReadListNumber(tbs);
  ASN1_CRL_FreeTbsCertList(tbs);
  ASN1_CRL_FreeCertificateList(list);
}

int main(void) {
  UseUtc();
  Anybuf* list = Issue();
  PrintPem("-----BEGIN X509 CRL-----", "-----END X509 CRL-----", list);
  Read(list->data, list->dataLen);
  ASN1_FreeAnybuf(list);
  return 0;
}
