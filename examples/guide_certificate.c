// Issues a certificate and reads it. The signature is a fixed block.
#include "guide_parts.h"

// A number of the issuer's choice: no zero in front, and the first byte below 0x80.
static const uint8_t kSerialNumber[] = {0x4D, 0x01, 0xF2, 0x83, 0x9C, 0x5E, 0x20, 0xB7};

static const uint8_t kTrue = 0xFF;

// [validity]
static Anybuf* Validity(int32_t notBefore, int32_t notAfter) {
  Anybuf* first = NULL;
  Anybuf* last = NULL;
  Anybuf* validity = NULL;
  Check(ASN1_WriteUtcTime(&notBefore, &first), "write notBefore");
  Check(ASN1_WriteUtcTime(&notAfter, &last), "write notAfter");
  Check(ASN1_SetValidity(first, last, &validity), "write the validity");
  ASN1_FreeAnybuf(first);
  ASN1_FreeAnybuf(last);
  return validity;
}
// [/validity]

// [extensions]
static Anybuf* BasicConstraints(void) {
  Anybuf* isAuthority = NULL;
  Check(ASN1_WriteBoolean(&kTrue, &isAuthority), "write the flag of an authority");
  return SequenceOf(isAuthority);
}

// keyCertSign and cRLSign are bits 5 and 6, counted from the highest. Bit 7 is unused.
static Anybuf* KeyUsage(void) {
  const uint8_t uses = 0x04 | 0x02;
  return BitString(&uses, 1, 1);
}

static Anybuf* Extensions(void) {
  Chain chain = {NULL, NULL};
  Append(&chain, Extension("2.5.29.19", true, BasicConstraints()));
  Append(&chain, Extension("2.5.29.15", true, KeyUsage()));
  return Sequence(&chain);
}
// [/extensions]

// [signed_part]
static Anybuf* SignedPart(void) {
  Anybuf* algorithm = SignatureAlgorithm();
  Anybuf* name = Name("Guide Authority");
  Anybuf* validity = Validity(kTime2026, kTime2027);
  Anybuf* keyInfo = KeyInfo(kPoint);
  Anybuf* extensions = Extensions();

  TBSCertificate* tbs = NULL;
  Check(ASN1_CreateTBSCertificate(&tbs), "create the signed part");
  Check(ASN1_TBSCertificateSetVersion(tbs, 2), "set the version");  // 2 stands for version 3.
  Check(ASN1_TBSCertificateSetSerialNumber(tbs, kSerialNumber, sizeof kSerialNumber),
        "set the serial number");
  Check(ASN1_TBSCertificateSetSignatureAlg(tbs, algorithm), "set the algorithm");
  Check(ASN1_TBSCertificateSetIssuer(tbs, name), "set the issuer");
  Check(ASN1_TBSCertificateSetValidity(tbs, validity), "set the validity");
  Check(ASN1_TBSCertificateSetSubject(tbs, name), "set the subject");
  Check(ASN1_TBSCertificateSetSubjectPublicKeyInfo(tbs, keyInfo), "set the key");
  Check(ASN1_TBSCertificateSetExtensions(tbs, extensions), "set the extensions");

  Anybuf* der = NULL;
  Check(ASN1_TBSCertificateWriteData(tbs, &der), "write the signed part");
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
  Check(ASN1_CreateCertificate(&certificate), "create the certificate");
  Check(ASN1_CertificateSetTbsCertificate(certificate, signedPart), "set the signed part");
  Check(ASN1_CertificateSetSignatureAlgorithm(certificate, algorithm), "set the algorithm");
  Check(ASN1_CertificateSetSignatureValue(certificate, signature), "set the signature");

  Anybuf* der = NULL;
  Check(ASN1_CertificateWriteData(certificate, &der), "write the certificate");
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
  Check(ASN1_ReadExplicit(tbs->versionNode, &version, &tag), "open the version");
  Check(ASN1_ReadInteger(version, &number), "read the version");
  Require(tag == 0xA0 && number == 2, "version");

  Anybuf* serialNumber = NULL;
  Check(ASN1_ReadIntegerArray(tbs->serialNumber, &serialNumber), "read the serial number");
  Expect(serialNumber, 2, "4D 01 F2 83 9C 5E 20 B7");
  // [/read_number]
  ASN1_FreeAnybuf(serialNumber);
  ASN1_FreeAnybuf(version);
}

static void ReadValidity(const TBSCertificate* tbs) {
  // [read_validity]
  int32_t notBefore = 0;
  int32_t notAfter = 0;
  Check(ASN1_GetValidity(tbs->validity, &notBefore, &notAfter), "read the validity");
  Require(notBefore == kTime2026 && notAfter == kTime2027, "validity");
  // [/read_validity]
  printf("  valid from %d to %d\n", (int)notBefore, (int)notAfter);
}

// [read_name]
// Finds the common name in a name and gives it as a content node, or null.
static Anybuf* CommonName(const Anybuf* name) {
  Anybuf* found = NULL;
  Anybuf* relativeNames = NULL;
  Check(ASN1_ReadDerName(name, &relativeNames), "split the name");
  for (const Anybuf* one = relativeNames; one != NULL; one = one->next) {
    Anybuf* attributes = NULL;
    Anybuf* type = NULL;
    Anybuf* value = NULL;
    Check(ASN1_ReadRelativeDistinguishedName(one, &attributes), "split a relative name");
    // The first attribute; nearly all relative names have one alone.
    Check(ASN1_DecodeDerAttributeTypeAndValue(attributes, &type, &value), "open an attribute");
    if (found == NULL && IsObjectId(type, "2.5.4.3")) {
      Check(ASN1_ReadUTF8String(value, &found), "read the common name");
    }
    ASN1_FreeAnybuf(value);
    ASN1_FreeAnybuf(type);
    ASN1_FreeAnybuf(attributes);
  }
  ASN1_FreeNames(relativeNames);
  return found;
}
// [/read_name]

static void ReadSubject(const TBSCertificate* tbs) {
  Anybuf* name = CommonName(tbs->subject);
  Require(name != NULL, "common name");
  Expect(name, 12, "47 75 69 64 65 20 41 75 74 68 6F 72 69 74 79");
  ASN1_FreeAnybuf(name);
}

static void ReadKey(const TBSCertificate* tbs) {
  // [read_key]
  Anybuf* algorithm = NULL;
  Anybuf* bits = NULL;
  Check(ASN1_GetSubjectPublicKeyInfo(tbs->subjectPublicKeyInfo, &algorithm, &bits),
        "open the key info");

  Anybuf* oid = NULL;
  Anybuf* curve = NULL;
  Check(ASN1_GetAlgorithmIdentifier(algorithm, &oid, NULL, &curve), "open the algorithm");
  Require(curve != NULL && IsObjectId(curve, "1.2.156.10197.1.301"), "curve of SM2");

  Anybuf* point = NULL;
  Check(ASN1_ReadBitString(bits, &point), "read the point");
  Require(point->dataLen == 65 && memcmp(point->data, kPoint, 65) == 0, "point");
  // [/read_key]
  printf("  a point of %u bytes on the curve of SM2\n", (unsigned)point->dataLen);
  ASN1_FreeAnybuf(point);
  ASN1_FreeAnybuf(curve);
  ASN1_FreeAnybuf(oid);
  ASN1_FreeAnybuf(bits);
  ASN1_FreeAnybuf(algorithm);
}

// [read_extensions]
// Finds an extension in a decoded record and gives its value as a content node, or null.
static Anybuf* FindExtension(const TBSCertificate* tbs, const char* oidText, bool* isCritical) {
  Anybuf* found = NULL;
  Anybuf* list = NULL;
  Anybuf* extensions = NULL;
  if (tbs->hasExtensions != 1) return NULL;
  Check(ASN1_ReadSequence(tbs->extensions, &list), "open the outer SEQUENCE");
  Check(ASN1_ReadExtensions(list, &extensions), "split the extensions");
  for (const Anybuf* one = extensions; one != NULL; one = one->next) {
    Anybuf* oid = NULL;
    Anybuf* critical = NULL;  // Stays null when the extension has no BOOLEAN.
    Anybuf* value = NULL;
    Check(ASN1_GetExtension(one, &oid, &critical, &value), "open an extension");
    if (found == NULL && IsObjectId(oid, oidText)) {
      uint8_t flag = 0;
      if (critical != NULL) Check(ASN1_ReadBoolean(critical, &flag), "read the flag");
      *isCritical = flag != 0;
      Check(ASN1_ReadOctetString(value, &found), "read the value");
    }
    ASN1_FreeAnybuf(value);
    ASN1_FreeAnybuf(critical);
    ASN1_FreeAnybuf(oid);
  }
  ASN1_FreeExtensions(extensions);
  ASN1_FreeAnybuf(list);
  return found;
}
// [/read_extensions]

static void ReadKeyUsage(const TBSCertificate* tbs) {
  // [read_key_usage]
  bool isCritical = false;
  Anybuf* value = FindExtension(tbs, "2.5.29.15", &isCritical);
  Require(value != NULL && isCritical, "key usage");

  // The value is the DER of a BIT STRING.
  Anybuf* bits = NULL;
  Anybuf* uses = NULL;
  Check(ASN1_WriteBitStringFromDERBytes(value->data, value->dataLen, &bits), "hold the flags");
  Check(ASN1_ReadBitString(bits, &uses), "read the flags");
  Expect(uses, 3, "06");
  Require(uses->unusedBits == 1, "unused bits");
  // [/read_key_usage]
  ASN1_FreeAnybuf(uses);
  ASN1_FreeAnybuf(bits);
  ASN1_FreeAnybuf(value);
}

static void ReadSignature(const Certificate* certificate) {
  // [read_signature]
  Anybuf* signature = NULL;
  Check(ASN1_ReadBitString(certificate->signatureValue, &signature), "read the signature");
  // [/read_signature]
  Require(signature->dataLen == 71, "length of the signature");
  printf("  a signature of %u bytes\n", (unsigned)signature->dataLen);
  ASN1_FreeAnybuf(signature);
}

static void FindSignedBytes(const uint8_t* der, uint32_t length, const Certificate* certificate) {
  // [signed_bytes]
  Anybuf* parts = NULL;
  Check(ASN1_WriteSequenceFromDERBytes(der, length, &parts), "split the certificate");
  Require(parts != NULL, "signed part");
  // The first node, `parts->data` and `parts->dataLen`, is what was hashed and signed.
  // [/signed_bytes]
  Require(parts->dataLen == certificate->tbsCertificate->dataLen, "length of the signed part");
  printf("  the signature is over %u bytes\n", (unsigned)parts->dataLen);
  ASN1_FreeAnybuf(parts);
}

static void ListSubject(TBSCertificate* tbs) {
  // [subject]
  X509Cert* view = X509CertCreate(NULL);
  Require(view != NULL, "memory for the view");
  view->tbs = tbs;  // From here on the view owns it.
  Check(X509CertGetSubject(view), "list the subject");
  for (const CertEntry* entry = view->subjectEntries; entry != NULL; entry = entry->next) {
    if (entry->value != NULL) {
      printf("  \"%.*s\" in the subject\n", (int)entry->valueLen, (const char*)entry->value);
    }
  }
  X509CertFree(view);
  // [/subject]
}

static void Read(const uint8_t* der, uint32_t length) {
  // [decode]
  Certificate* certificate = NULL;
  TBSCertificate* tbs = NULL;
  Check(ASN1_CertificateDecode(der, length, &certificate), "decode the certificate");
  Check(ASN1_TBSCertificateDecode(certificate->tbsCertificate, &tbs), "decode the signed part");
  // [/decode]
  ReadVersionAndNumber(tbs);
  ReadValidity(tbs);
  ReadSubject(tbs);
  ReadKey(tbs);
  ReadKeyUsage(tbs);
  ReadSignature(certificate);
  FindSignedBytes(der, length, certificate);
  ListSubject(tbs);
  ASN1_FreeCertificate(certificate);
}

int main(void) {
  UseUtc();
  Anybuf* certificate = Issue();
  PrintPem("-----BEGIN CERTIFICATE-----", "-----END CERTIFICATE-----", certificate);
  printf("The certificate as it is read\n");
  Read(certificate->data, certificate->dataLen);
  ASN1_FreeAnybuf(certificate);
  return 0;
}
