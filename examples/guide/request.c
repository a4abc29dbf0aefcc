// Makes a certification request and reads it. The signature is a fixed block.
#include "parts.h"

// [attributes]
// A host's name: an IA5String under [2] IMPLICIT.
static Anybuf* HostName(const char* text) {
  Anybuf* string = NULL;
  Anybuf* name = NULL;
  CHECK(ASN1_WriteIa5StringFromBytes((const uint8_t*)text, (uint32_t)strlen(text), &string));
  CHECK(ASN1_WriteImplicit(string, 2, &name));
  ASN1_FreeAnybuf(string);
  return name;
}

// One attribute, the extensions that the certificate is to have.
static Anybuf* Attributes(void) {
  Anybuf* names = Sequence(HostName("guide.example"));
  Anybuf* attribute = ObjectId("1.2.840.113549.1.9.14");
  attribute->next = Set(Sequence(Extension("2.5.29.17", false, names)));
  return Set(Sequence(attribute));
}
// [/attributes]

// [signed_part]
static Anybuf* SignedPart(void) {
  Anybuf* subject = Name("guide.example");
  Anybuf* keyInfo = KeyInfo(Sm2KeyAlgorithm(), kPoint, sizeof kPoint);
  Anybuf* attributes = Attributes();

  PKCS10* info = NULL;
  CHECK(ASN1_CreatePKCS10(&info));
  CHECK(ASN1_PKCS10SetVersion(info, 0));  // 0 stands for version 1.
  CHECK(ASN1_PKCS10SetSubject(info, subject));
  CHECK(ASN1_PKCS10SetSubjectPublicKeyInfo(info, keyInfo));
  CHECK(ASN1_PKCS10SetAttributes(info, attributes));

  Anybuf* der = NULL;
  CHECK(ASN1_PKCS10WriteData(info, &der));
  ASN1_FreePKCS10(info);
  ASN1_FreeAnybuf(attributes);
  ASN1_FreeAnybuf(keyInfo);
  ASN1_FreeAnybuf(subject);
  return der;
}
// [/signed_part]

static Anybuf* Issue(void) {
  Anybuf* signedPart = SignedPart();
  Anybuf* algorithm = SignatureAlgorithm();
  Anybuf* signature = Sign(signedPart);

  PKCS10Request* request = NULL;
  CHECK(ASN1_CreatePKCS10Request(&request));
  CHECK(ASN1_PKCS10RequestSetCertificationRequestInfo(request, signedPart));
  CHECK(ASN1_PKCS10RequestSetAlgorithmIdentifier(request, algorithm));
  CHECK(ASN1_PKCS10RequestSetSignature(request, signature));

  Anybuf* der = NULL;
  CHECK(ASN1_PKCS10RequestWriteData(request, &der));
  ASN1_FreePKCS10Request(request);
  ASN1_FreeAnybuf(signature);
  ASN1_FreeAnybuf(algorithm);
  ASN1_FreeAnybuf(signedPart);
  return der;
}

// [read_attributes]
// Returns the list of extensions that a request asks for, or null.
static Anybuf* WantedExtensions(const PKCS10* info) {
  Anybuf* found = NULL;
  Anybuf* attributes = NULL;  // Stays null when the list is empty.
  uint32_t tagNumber = 0;
  if (info->attributes == NULL) return NULL;
  CHECK(ASN1_ReadImplicit(info->attributes, &attributes, &tagNumber));
  for (const Anybuf* one = attributes; one != NULL && found == NULL; one = one->next) {
    Anybuf* parts = NULL;
    CHECK(ASN1_ReadSequence(one, &parts));
    REQUIRE(parts != NULL && parts->next != NULL);  // The type, and the SET of values.
    if (IsObjectId(parts, "1.2.840.113549.1.9.14")) CHECK(ASN1_ReadSet(parts->next, &found));
    ASN1_FreeAnybuf(parts);
  }
  ASN1_FreeAnybuf(attributes);
  return found;
}
// [/read_attributes]

static void ReadHostName(const PKCS10* info) {
  Anybuf* extensions = WantedExtensions(info);
  bool isCritical = false;
  REQUIRE(extensions != NULL);
  Anybuf* value = FindExtension(extensions, "2.5.29.17", &isCritical);
  REQUIRE(value != NULL && !isCritical);
  Expect(value, 4, "30 0F 82 0D 67 75 69 64 65 2E 65 78 61 6D 70 6C 65");
  ASN1_FreeAnybuf(value);
  ASN1_FreeAnybuf(extensions);
}

static void Read(const uint8_t* der, uint32_t length) {
  // [decode]
  PKCS10Request* request = NULL;
  PKCS10* info = NULL;
  uint32_t version = 0;
  CHECK(ASN1_PKCS10RequestDecode(der, length, &request));
  const Anybuf* signedPart = request->certificationRequestInfo;
  CHECK(ASN1_PKCS10Decode(signedPart->data, signedPart->dataLen, &info));
  CHECK(ASN1_ReadInteger(info->version, &version));
  REQUIRE(version == 0);
  // [/decode]
  ReadHostName(info);
  ASN1_FreePKCS10(info);
  ASN1_FreePKCS10Request(request);
}

static void ShowNoAttributes(void) {
  // [no_attributes]
  Anybuf* empty = Set(NULL);
  PKCS10* info = NULL;
  CHECK(ASN1_CreatePKCS10(&info));
  CHECK(ASN1_PKCS10SetAttributes(info, empty));
  Expect(info->attributes, 0xA0, "A0 00");
  // [/no_attributes]
  ASN1_FreePKCS10(info);
  ASN1_FreeAnybuf(empty);
}

int main(void) {
  Anybuf* request = Issue();
  PrintPem("-----BEGIN CERTIFICATE REQUEST-----", "-----END CERTIFICATE REQUEST-----", request);
  Read(request->data, request->dataLen);
  ASN1_FreeAnybuf(request);
  ShowNoAttributes();
  return 0;
}
