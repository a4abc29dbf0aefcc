// Shows the certificates in the PEM files that it is given. Without any it issues one, whose
// signature is a fixed block, and reads that.
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

static void PrintVersion(const TBSCertificate* tbs) {
  // [read_version]
  Anybuf* version = NULL;
  uint32_t tag = 0;
  uint32_t number = 0;
  CHECK(ASN1_ReadExplicit(tbs->versionNode, &version, &tag));
  CHECK(ASN1_ReadInteger(version, &number));
  REQUIRE(tag == 0xA0);
  printf("version: %u\n", (unsigned)number + 1);

  Anybuf* serialNumber = NULL;
  CHECK(ASN1_ReadIntegerArray(tbs->serialNumber, &serialNumber));
  printf("serial number: ");
  for (uint32_t at = 0; at < serialNumber->dataLen; ++at) printf("%02X", serialNumber->data[at]);
  printf("\n");
  // [/read_version]
  ASN1_FreeAnybuf(serialNumber);
  ASN1_FreeAnybuf(version);
}

// [read_name]
static void PrintAttribute(const Anybuf* type, const Anybuf* value) {
  uint8_t* text = (uint8_t*)malloc(2 * (size_t)value->dataLen);
  REQUIRE(text != NULL);
  const uint32_t length = TextOf(value, text);
  printf("  %s: %.*s\n", IsObjectId(type, "2.5.4.3") ? "common name" : "attribute", (int)length,
         (const char*)text);
  free(text);
}

static void PrintName(const Anybuf* name) {
  Anybuf* relativeNames = NULL;
  CHECK(ASN1_ReadDerName(name, &relativeNames));
  for (const Anybuf* relative = relativeNames; relative != NULL; relative = relative->next) {
    Anybuf* attributes = NULL;
    CHECK(ASN1_ReadRelativeDistinguishedName(relative, &attributes));
    for (const Anybuf* one = attributes; one != NULL; one = one->next) {
      Anybuf* type = NULL;  // And its value after it.
      CHECK(ASN1_ReadSequence(one, &type));
      REQUIRE(type != NULL && type->next != NULL);
      PrintAttribute(type, type->next);
      ASN1_FreeAnybuf(type);
    }
    ASN1_FreeAnybuf(attributes);
  }
  ASN1_FreeAnybuf(relativeNames);
}
// [/read_name]

// [read_time]
static void PrintTime(const char* label, const Anybuf* time) {
  const bool isUtcTime = time->dataType == 23;
  const int yearDigits = isUtcTime ? 2 : 4;
  Anybuf* text = NULL;
  REQUIRE(isUtcTime || time->dataType == 24);
  CHECK(ASN1_ReadCharString(time, &text));
  // Such as "260101000000Z", or "20260101000000Z" in a GeneralizedTime.
  REQUIRE(text->dataLen == (uint32_t)yearDigits + 11 && text->data[text->dataLen - 1] == 'Z');
  for (uint32_t at = 0; at + 1 < text->dataLen; ++at) {
    REQUIRE(text->data[at] >= '0' && text->data[at] <= '9');
  }
  const char* year = (const char*)text->data;
  const char* rest = year + yearDigits;
  // Two digits stand for 1950 to 2049.
  const char* century = !isUtcTime ? "" : *year < '5' ? "20" : "19";
  printf("%s: %s%.*s-%.2s-%.2s %.2s:%.2s:%.2s UTC\n", label, century, yearDigits, year, rest,
         rest + 2, rest + 4, rest + 6, rest + 8);
  ASN1_FreeAnybuf(text);
}

static void PrintValidity(const TBSCertificate* tbs) {
  Anybuf* times = NULL;
  CHECK(ASN1_ReadSequence(tbs->validity, &times));
  REQUIRE(times != NULL && times->next != NULL);
  PrintTime("not before", times);
  PrintTime("not after", times->next);
  ASN1_FreeAnybuf(times);
}
// [/read_time]

static void PrintKey(const TBSCertificate* tbs) {
  // [read_key]
  Anybuf* algorithm = NULL;
  Anybuf* bits = NULL;
  CHECK(ASN1_GetSubjectPublicKeyInfo(tbs->subjectPublicKeyInfo, &algorithm, &bits));

  Anybuf* oid = NULL;
  Anybuf* curve = NULL;
  Anybuf* key = NULL;
  CHECK(ASN1_GetAlgorithmIdentifier(algorithm, &oid, NULL, &curve));
  CHECK(ASN1_ReadBitString(bits, &key));
  if (IsObjectId(oid, "1.2.840.113549.1.1.1")) {
    Anybuf* modulus = RsaModulus(key);
    printf("key: RSA, a modulus of %u bytes\n", (unsigned)modulus->dataLen);
    ASN1_FreeAnybuf(modulus);
  } else if (IsObjectId(oid, "1.2.840.10045.2.1")) {
    const bool isSm2 = curve != NULL && IsObjectId(curve, "1.2.156.10197.1.301");
    printf("key: %s, a point of %u bytes\n", isSm2 ? "SM2" : "another curve",
           (unsigned)key->dataLen);
  } else {
    printf("key: another algorithm, %u bytes\n", (unsigned)key->dataLen);
  }
  // [/read_key]
  ASN1_FreeAnybuf(key);
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

// Shows any certificate. One that was issued here has more that is looked at.
static void Show(const Anybuf* der, bool wasIssuedHere) {
  // [decode]
  Certificate* certificate = NULL;
  CHECK(ASN1_CertificateDecode(der->data, der->dataLen, &certificate));
  TBSCertificate* tbs = DecodeSignedPart(certificate->tbsCertificate);
  // [/decode]
  PrintVersion(tbs);
  printf("issuer:\n");
  PrintName(tbs->issuer);
  printf("subject:\n");
  PrintName(tbs->subject);
  PrintValidity(tbs);
  PrintKey(tbs);
  if (wasIssuedHere) {
    ReadKeyUsage(tbs);
    ReadSignature(certificate, der->data, der->dataLen);
    WriteAgain(tbs, certificate->tbsCertificate);
  }
  ASN1_FreeTBSCertificate(tbs);
  ASN1_FreeCertificate(certificate);
}

static void ShowFile(const char* name) {
  static char text[1 << 20];  // Files are smaller than this.
  const char* const kBegin = "-----BEGIN CERTIFICATE-----";
  FILE* file = fopen(name, "rb");
  REQUIRE(file != NULL);
  const size_t size = fread(text, 1, sizeof text, file);
  REQUIRE(size < sizeof text && fclose(file) == 0);
  text[size] = '\0';

  uint32_t length = 0;
  const char* block = FindBlock(text, &length);
  while (block != NULL) {
    if (strncmp(block, kBegin, strlen(kBegin)) == 0) {
      Anybuf* certificate = DecodeBlock(block, length);
      Show(certificate, false);
      ASN1_FreeAnybuf(certificate);
    }
    block = FindBlock(block + length, &length);
  }
}

int main(int count, char** arguments) {
  UseUtc();
  for (int at = 1; at < count; ++at) ShowFile(arguments[at]);
  if (count > 1) return 0;

  Anybuf* certificate = Issue();
  PrintPem("-----BEGIN CERTIFICATE-----", "-----END CERTIFICATE-----", certificate);
  Show(certificate, true);
  ASN1_FreeAnybuf(certificate);
  return 0;
}
