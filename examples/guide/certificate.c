// Issues a certificate and reads it. The signature is a fixed block.
#include "parts.h"

// A number of the issuer's choice: no zero in front, and the first byte below 0x80.
static const uint8_t kSerialNumber[] = {0x4D, 0x01, 0xF2, 0x83, 0x9C, 0x5E, 0x20, 0xB7};

// [validity]
static Anybuf* Validity(int32_t notBefore, int32_t notAfter) {
  Anybuf* first = NULL;
  CHECK(ASN1_WriteUtcTime(&notBefore, &first));
  CHECK(ASN1_WriteUtcTime(&notAfter, &first->next));
  return Sequence(first);
}
// [/validity]

// [extensions]
static Anybuf* BasicConstraints(void) {
  const uint8_t isAuthority = 0xFF;
  Anybuf* flag = NULL;
  CHECK(ASN1_WriteBoolean(&isAuthority, &flag));
  return Sequence(flag);
}

// keyCertSign and cRLSign are bits 5 and 6, counted from the highest. Bit 7 is unused.
static Anybuf* KeyUsage(void) {
  const uint8_t uses = 0x04 | 0x02;
  return BitString(&uses, 1, 1);
}

static Anybuf* Extensions(void) {
  Anybuf* list = Extension("2.5.29.19", true, BasicConstraints());
  list->next = Extension("2.5.29.15", true, KeyUsage());
  return Sequence(list);
}
// [/extensions]

// [signed_part]
static Anybuf* SignedPart(void) {
  Anybuf* algorithm = SignatureAlgorithm();
  Anybuf* name = Name("Guide Authority");
  Anybuf* validity = Validity(kTime2026, kTime2027);
  Anybuf* keyInfo = KeyInfo(Sm2KeyAlgorithm(), kPoint, sizeof kPoint);
  Anybuf* extensions = Extensions();

  TBSCertificate* tbs = NULL;
  CHECK(ASN1_CreateTBSCertificate(&tbs));
  CHECK(ASN1_TBSCertificateSetVersion(tbs, 2));  // 2 stands for version 3.
  CHECK(ASN1_TBSCertificateSetSerialNumber(tbs, kSerialNumber, sizeof kSerialNumber));
  CHECK(ASN1_TBSCertificateSetSignatureAlg(tbs, algorithm));
  CHECK(ASN1_TBSCertificateSetIssuer(tbs, name));
  CHECK(ASN1_TBSCertificateSetValidity(tbs, validity));
  CHECK(ASN1_TBSCertificateSetSubject(tbs, name));
  CHECK(ASN1_TBSCertificateSetSubjectPublicKeyInfo(tbs, keyInfo));
  CHECK(ASN1_TBSCertificateSetExtensions(tbs, extensions));

  Anybuf* der = NULL;
  CHECK(ASN1_TBSCertificateWriteData(tbs, &der));
  ASN1_FreeTBSCertificate(tbs);
  ASN1_FreeAnybuf(extensions);
  ASN1_FreeAnybuf(keyInfo);
  ASN1_FreeAnybuf(validity);
  ASN1_FreeAnybuf(name);
  ASN1_FreeAnybuf(algorithm);
  return der;
}
// [/signed_part]

// [issue]
static Anybuf* Issue(void) {
  Anybuf* signedPart = SignedPart();
  Anybuf* algorithm = SignatureAlgorithm();
  Anybuf* signature = Sign(signedPart);

  Certificate* certificate = NULL;
  CHECK(ASN1_CreateCertificate(&certificate));
  CHECK(ASN1_CertificateSetTbsCertificate(certificate, signedPart));
  CHECK(ASN1_CertificateSetSignatureAlgorithm(certificate, algorithm));
  CHECK(ASN1_CertificateSetSignatureValue(certificate, signature));

  Anybuf* der = NULL;
  CHECK(ASN1_CertificateWriteData(certificate, &der));
  ASN1_FreeCertificate(certificate);
  ASN1_FreeAnybuf(signature);
  ASN1_FreeAnybuf(algorithm);
  ASN1_FreeAnybuf(signedPart);
  return der;
}
// [/issue]

static void ReadVersionAndNumber(const TBSCertificate* tbs) {
  // [read_number]
  Anybuf* version = NULL;
  uint32_t tag = 0;
  uint32_t number = 0;
  CHECK(ASN1_ReadExplicit(tbs->versionNode, &version, &tag));
  CHECK(ASN1_ReadInteger(version, &number));
  REQUIRE(tag == 0xA0 && number == 2);

  Anybuf* serialNumber = NULL;
  CHECK(ASN1_ReadIntegerArray(tbs->serialNumber, &serialNumber));
  Expect(serialNumber, 2, "4D 01 F2 83 9C 5E 20 B7");
  // [/read_number]
  ASN1_FreeAnybuf(serialNumber);
  ASN1_FreeAnybuf(version);
}

static void ReadValidity(const TBSCertificate* tbs) {
  int32_t notBefore = 0;
  int32_t notAfter = 0;
  CHECK(ASN1_GetValidity(tbs->validity, &notBefore, &notAfter));
  REQUIRE(notBefore == kTime2026 && notAfter == kTime2027);
}

// [read_name]
// Finds the common name in a name and returns it as a content node, or null.
static Anybuf* CommonName(const Anybuf* name) {
  Anybuf* found = NULL;
  Anybuf* relativeNames = NULL;
  CHECK(ASN1_ReadDerName(name, &relativeNames));
  for (const Anybuf* one = relativeNames; one != NULL && found == NULL; one = one->next) {
    Anybuf* attributes = NULL;
    Anybuf* type = NULL;
    Anybuf* value = NULL;
    CHECK(ASN1_ReadRelativeDistinguishedName(one, &attributes));
    // The first attribute; nearly all relative names have one alone.
    CHECK(ASN1_DecodeDerAttributeTypeAndValue(attributes, &type, &value));
    if (IsObjectId(type, "2.5.4.3")) CHECK(ASN1_ReadUTF8String(value, &found));
    ASN1_FreeAnybuf(value);
    ASN1_FreeAnybuf(type);
    ASN1_FreeAnybuf(attributes);
  }
  ASN1_FreeAnybuf(relativeNames);
  return found;
}
// [/read_name]

static void ReadSubject(const TBSCertificate* tbs) {
  Anybuf* name = CommonName(tbs->subject);
  REQUIRE(name != NULL);
  Expect(name, 12, "47 75 69 64 65 20 41 75 74 68 6F 72 69 74 79");
  ASN1_FreeAnybuf(name);
}

static void ReadKey(const TBSCertificate* tbs) {
  // [read_key]
  Anybuf* algorithm = NULL;
  Anybuf* bits = NULL;
  CHECK(ASN1_GetSubjectPublicKeyInfo(tbs->subjectPublicKeyInfo, &algorithm, &bits));

  Anybuf* oid = NULL;
  Anybuf* curve = NULL;
  CHECK(ASN1_GetAlgorithmIdentifier(algorithm, &oid, NULL, &curve));
  REQUIRE(curve != NULL && IsObjectId(curve, "1.2.156.10197.1.301"));

  Anybuf* point = NULL;
  CHECK(ASN1_ReadBitString(bits, &point));
  REQUIRE(point->dataLen == sizeof kPoint && memcmp(point->data, kPoint, sizeof kPoint) == 0);
  // [/read_key]
  ASN1_FreeAnybuf(point);
  ASN1_FreeAnybuf(curve);
  ASN1_FreeAnybuf(oid);
  ASN1_FreeAnybuf(bits);
  ASN1_FreeAnybuf(algorithm);
}

static void ReadKeyUsage(const TBSCertificate* tbs) {
  // [read_key_usage]
  Anybuf* list = NULL;
  bool isCritical = false;
  REQUIRE(tbs->hasExtensions == 1);
  CHECK(ASN1_ReadSequence(tbs->extensions, &list));
  Anybuf* value = FindExtension(list, "2.5.29.15", &isCritical);
  REQUIRE(value != NULL && isCritical);

  // The value is the DER of a BIT STRING.
  Anybuf* bits = NULL;
  Anybuf* uses = NULL;
  CHECK(ASN1_WriteBitStringFromDERBytes(value->data, value->dataLen, &bits));
  CHECK(ASN1_ReadBitString(bits, &uses));
  Expect(uses, 3, "06");
  REQUIRE(uses->unusedBits == 1);
  // [/read_key_usage]
  ASN1_FreeAnybuf(uses);
  ASN1_FreeAnybuf(bits);
  ASN1_FreeAnybuf(value);
  ASN1_FreeAnybuf(list);
}

static void ReadSignature(const Certificate* certificate, const uint8_t* der, uint32_t length) {
  // [read_signature]
  Anybuf* signature = NULL;
  Anybuf* parts = NULL;
  CHECK(ASN1_ReadBitString(certificate->signatureValue, &signature));
  CHECK(ASN1_WriteSequenceFromDERBytes(der, length, &parts));
  // The toolkit verifies `signature` over the bytes of the first node of `parts`.
  REQUIRE(parts != NULL && SameBytes(parts, certificate->tbsCertificate));
  // [/read_signature]
  ASN1_FreeAnybuf(parts);
  ASN1_FreeAnybuf(signature);
}

static void WriteAgain(TBSCertificate* tbs, const Anybuf* signedPart) {
  // [write_again]
  // The record now has a SEQUENCE around the list where a certificate has [3].
  Anybuf* list = NULL;
  Anybuf* der = NULL;
  REQUIRE(tbs->extensions->dataType == 16);
  CHECK(ASN1_ReadSequence(tbs->extensions, &list));
  CHECK(ASN1_TBSCertificateSetExtensions(tbs, list));
  REQUIRE(tbs->extensions->dataType == 0xA3);
  CHECK(ASN1_TBSCertificateWriteData(tbs, &der));
  REQUIRE(SameBytes(der, signedPart));
  // [/write_again]
  ASN1_FreeAnybuf(der);
  ASN1_FreeAnybuf(list);
}

// Takes over the record.
static void ListSubject(TBSCertificate* tbs) {
  // [subject]
  X509Cert* view = X509CertCreate(NULL);
  REQUIRE(view != NULL);
  view->tbs = tbs;  // From here on the view owns it.
  CHECK(X509CertGetSubject(view));
  for (const CertEntry* entry = view->subjectEntries; entry != NULL; entry = entry->next) {
    if (entry->value == NULL) continue;
    printf("  \"%.*s\" in the subject\n", (int)entry->valueLen, (const char*)entry->value);
  }
  X509CertFree(view);
  // [/subject]
}

static void Read(const uint8_t* der, uint32_t length) {
  // [decode]
  Certificate* certificate = NULL;
  TBSCertificate* tbs = NULL;
  CHECK(ASN1_CertificateDecode(der, length, &certificate));
  CHECK(ASN1_TBSCertificateDecode(certificate->tbsCertificate, &tbs));
  // [/decode]
  ReadVersionAndNumber(tbs);
  ReadValidity(tbs);
  ReadSubject(tbs);
  ReadKey(tbs);
  ReadKeyUsage(tbs);
  ReadSignature(certificate, der, length);
  WriteAgain(tbs, certificate->tbsCertificate);
  ListSubject(tbs);
  ASN1_FreeCertificate(certificate);
}

int main(void) {
  UseUtc();
  Anybuf* certificate = Issue();
  PrintPem("-----BEGIN CERTIFICATE-----", "-----END CERTIFICATE-----", certificate);
  Read(certificate->data, certificate->dataLen);
  ASN1_FreeAnybuf(certificate);
  return 0;
}
