// Issues a revocation list and reads it. The signature is a fixed block.
#include "guide_parts.h"

static const uint32_t kFirstNumber = 1000;
static const uint32_t kEntries = 3;
static const int32_t kSecondsOfDay = 24 * 60 * 60;

// [entry]
// An entry, with the reason "superseded".
static Anybuf* Entry(uint32_t serialNumber, int32_t revokedAt) {
  const uint8_t reason = 4;
  Anybuf* number = NULL;
  Anybuf* date = NULL;
  Anybuf* content = NULL;
  Anybuf* code = NULL;
  Check(ASN1_WriteInteger(serialNumber, &number), "write the serial number");
  Check(ASN1_WriteUtcTime(&revokedAt, &date), "write the date");
  Check(ASN1_CreateAnybuf(&reason, 1, 0, &content), "hold the reason");
  Check(ASN1_WriteEnumerated(content, &code), "write the reason");
  Anybuf* extensions = SequenceOf(Extension("2.5.29.21", false, code));

  RevokedCertificate* entry = NULL;
  Check(ASN1_CRL_CreateRevokedCertificate(&entry), "create an entry");
  Check(ASN1_CRL_SetRevokedCertificateCertificateSerialNumber(entry, number), "set the number");
  Check(ASN1_CRL_SetRevokedCertificateRevocationDate(entry, date), "set the date");
  Check(ASN1_CRL_SetRevokedCertificateCrlEntryExtensions(entry, extensions), "set the reason");

  Anybuf* der = NULL;
  Check(ASN1_CRL_RevokedCertificateWriteData(entry, &der), "write an entry");
  ASN1_CRL_FreeRevokedCertificate(entry);
  ASN1_FreeAnybuf(extensions);
  ASN1_FreeAnybuf(content);
  ASN1_FreeAnybuf(date);
  ASN1_FreeAnybuf(number);
  return der;
}
// [/entry]

// [entries]
static Anybuf* Entries(void) {
  Chain chain = {NULL, NULL};
  for (uint32_t at = 0; at < kEntries; ++at) Append(&chain, Entry(kFirstNumber + at, kTime2026));
  return Sequence(&chain);
}
// [/entries]

static Anybuf* ListExtensions(void) {
  Anybuf* number = NULL;
  Check(ASN1_WriteInteger(7, &number), "write the list's number");
  return SequenceOf(Extension("2.5.29.20", false, number));
}

// [version]
// Puts INTEGER 1, which stands for version 2, in front of the other elements.
static Anybuf* WithVersion2(const Anybuf* signedPart) {
  Anybuf* elements = NULL;
  Anybuf* der = NULL;
  Check(ASN1_WriteInteger(1, &elements), "write the version");
  Check(ASN1_ReadSequence(signedPart, &elements->next), "split the signed part");
  Check(ASN1_WriteSequence(elements, &der), "write the signed part");
  ASN1_FreeAnybuf(elements);
  return der;
}
// [/version]

// [signed_part]
static Anybuf* SignedPart(void) {
  Anybuf* algorithm = SignatureAlgorithm();
  Anybuf* issuer = Name("Guide Authority");
  Anybuf* entries = Entries();
  Anybuf* extensions = ListExtensions();

  TbsCertList* tbs = NULL;
  Check(ASN1_CRL_CreateTbsCertList(&tbs), "create the signed part");
  Check(ASN1_CRL_TbsCertListSetSignatureAlgorithmIdentifier(tbs, algorithm), "set the algorithm");
  Check(ASN1_CRL_TbsCertListSetIssuer(tbs, issuer), "set the issuer");
  Check(ASN1_CRL_TbsCertListSetThisUpdate(tbs, kTime2026, 1), "set thisUpdate");  // 1: UTCTime.
  Check(ASN1_CRL_TbsCertListSetNextUpdate(tbs, kTime2026 + 7 * kSecondsOfDay), "set nextUpdate");
  Check(ASN1_CRL_TbsCertListSetRevokedCertificates(tbs, entries), "set the entries");
  Check(ASN1_CRL_TbsCertListSetCrlExtensions(tbs, extensions), "set the extensions");

  Anybuf* withoutVersion = NULL;
  Check(ASN1_CRL_TbsCertListWriteData(tbs, &withoutVersion), "write the signed part");
  Anybuf* der = WithVersion2(withoutVersion);
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
  // [issue]
  Anybuf* signedPart = SignedPart();
  Anybuf* algorithm = SignatureAlgorithm();
  Anybuf* signature = Sign(signedPart);

  CertificateList* list = NULL;
  Check(ASN1_CRL_CreateCertificateList(&list), "create the list");
  Check(ASN1_CRL_SetCertificateListTBSCertList(list, signedPart), "set the signed part");
  Check(ASN1_CRL_SetCertificateListAlgorithmIdentifier(list, algorithm), "set the algorithm");
  Check(ASN1_CRL_SetCertificateListSignatureValue(list, signature), "set the signature");

  Anybuf* der = NULL;
  Check(ASN1_CRL_CertificateListWriteData(list, &der), "write the list");
  // [/issue]
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
  Check(ASN1_ReadSequence(tbs->revokedCertificates, &entries), "split the entries");
  for (const Anybuf* one = entries; one != NULL && !found; one = one->next) {
    RevokedCertificate* entry = NULL;
    Check(ASN1_CRL_RevokedCertificateDecode(one->data, one->dataLen, &entry), "decode an entry");
    const Anybuf* number = entry->certificateSerialNumber;
    const Anybuf* date = entry->revocationDate;
    if (number->dataLen == serialNumber->dataLen &&
        memcmp(number->data, serialNumber->data, number->dataLen) == 0) {
      found = true;
      Check(date->dataType == 23 ? ASN1_ReadUtcTime(date, revokedAt)
                                 : ASN1_ReadGeneralizedTime(date, revokedAt),
            "read the date");
    }
    ASN1_CRL_FreeRevokedCertificate(entry);
  }
  ASN1_FreeAnybuf(entries);
  return found;
}
// [/is_revoked]

static void LookUp(const TbsCertList* tbs) {
  int32_t revokedAt = 0;
  Anybuf* listed = NULL;
  Anybuf* other = NULL;
  Check(ASN1_WriteInteger(kFirstNumber + 2, &listed), "write a serial number");
  Check(ASN1_WriteInteger(kFirstNumber + kEntries, &other), "write a serial number");
  Require(IsRevoked(tbs, listed, &revokedAt) && revokedAt == kTime2026, "revoked certificate");
  Require(!IsRevoked(tbs, other, &revokedAt), "certificate not revoked");
  printf("  number %u was revoked at %d\n", (unsigned)kFirstNumber + 2, (int)revokedAt);
  ASN1_FreeAnybuf(other);
  ASN1_FreeAnybuf(listed);
}

static void Read(const uint8_t* der, uint32_t length) {
  // [decode]
  CertificateList* list = NULL;
  TbsCertList* tbs = NULL;
  Check(ASN1_CRL_CertificateListDecode(der, length, &list), "decode the list");
  const Anybuf* signedPart = list->tbsCertList;
  Check(ASN1_CRL_TbsCertListDecode(signedPart->data, signedPart->dataLen, &tbs),
        "decode the signed part");
  Require(tbs->version == 1, "version");  // The number of the INTEGER; 0 when there is none.
  Require(tbs->thisUpdate == kTime2026 && tbs->timeForm == 1, "thisUpdate");
  Require(tbs->hasNextUpdate == 1, "nextUpdate");
  // [/decode]

  LookUp(tbs);

  // [list_extensions]
  Anybuf* extensions = NULL;
  Require(tbs->hasCrlExtensions == 1, "extensions");
  Check(ASN1_ReadExtensions(tbs->crlExtensions, &extensions), "split the extensions");
  Expect(extensions, 16, "30 0A 06 03 55 1D 14 04 03 02 01 07");
  ASN1_FreeExtensions(extensions);
  // [/list_extensions]

  // [write_again]
  // Of a decoded record, all is written as it was read but the version.
  Anybuf* written = NULL;
  Check(ASN1_CRL_TbsCertListWriteData(tbs, &written), "write the signed part");
  Anybuf* again = WithVersion2(written);
  Require(again->dataLen == signedPart->dataLen &&
              memcmp(again->data, signedPart->data, again->dataLen) == 0,
          "bytes of the signed part");
  // [/write_again]
  Require(written->dataLen + 3 == again->dataLen, "version left out");
  printf("  written again with the same %u bytes\n", (unsigned)again->dataLen);
  ASN1_FreeAnybuf(again);
  ASN1_FreeAnybuf(written);
  ASN1_CRL_FreeTbsCertList(tbs);
  ASN1_CRL_FreeCertificateList(list);
}

int main(void) {
  UseUtc();
  Anybuf* list = Issue();
  PrintPem("-----BEGIN X509 CRL-----", "-----END X509 CRL-----", list);
  printf("The list as it is read\n");
  Read(list->data, list->dataLen);
  ASN1_FreeAnybuf(list);
  return 0;
}
