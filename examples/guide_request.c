// Makes a certification request and reads it. The signature is a fixed block.
#include "guide_parts.h"

// [attributes]
// Makes the SET of one element and releases the element.
static Anybuf* SetOf(Anybuf* element) {
  Anybuf* set = NULL;
  Check(ASN1_WriteSet(element, &set), "write a SET");
  ASN1_FreeAnybuf(element);
  return set;
}

// A host's name: an IA5String under [2] IMPLICIT.
static Anybuf* HostName(const char* text) {
  Anybuf* string = NULL;
  Anybuf* name = NULL;
  Check(ASN1_WriteIa5StringFromBytes((const uint8_t*)text, (uint32_t)strlen(text), &string),
        "write the host's name");
  Check(ASN1_WriteImplicit(string, 2, &name), "tag the host's name");
  ASN1_FreeAnybuf(string);
  return SequenceOf(name);
}

// One attribute, the extensions that the certificate is to have.
static Anybuf* Attributes(void) {
  Anybuf* extensions = SequenceOf(Extension("2.5.29.17", false, HostName("guide.example")));
  Chain attribute = {NULL, NULL};
  Append(&attribute, ObjectId("1.2.840.113549.1.9.14"));
  Append(&attribute, SetOf(extensions));
  return SetOf(Sequence(&attribute));
}
// [/attributes]

// [signed_part]
static Anybuf* SignedPart(void) {
  Anybuf* subject = Name("guide.example");
  Anybuf* keyInfo = KeyInfo(kPoint);
  Anybuf* attributes = Attributes();

  PKCS10* info = NULL;
  Check(ASN1_CreatePKCS10(&info), "create the signed part");
  Check(ASN1_PKCS10SetVersion(info, 0), "set the version");  // 0 stands for version 1.
  Check(ASN1_PKCS10SetSubject(info, subject), "set the subject");
  Check(ASN1_PKCS10SetSubjectPublicKeyInfo(info, keyInfo), "set the key");
  Check(ASN1_PKCS10SetAttributes(info, attributes), "set the attributes");

  Anybuf* der = NULL;
  Check(ASN1_PKCS10WriteData(info, &der), "write the signed part");
  ASN1_FreePKCS10(info);
  ASN1_FreeAnybuf(attributes);
  ASN1_FreeAnybuf(keyInfo);
  ASN1_FreeAnybuf(subject);
  return der;
}
// [/signed_part]

static Anybuf* Issue(void) {
  // [issue]
  Anybuf* signedPart = SignedPart();
  Anybuf* algorithm = SignatureAlgorithm();
  Anybuf* signature = Sign(signedPart);

  PKCS10Request* request = NULL;
  Check(ASN1_CreatePKCS10Request(&request), "create the request");
  Check(ASN1_PKCS10RequestSetCertificationRequestInfo(request, signedPart), "set the signed part");
  Check(ASN1_PKCS10RequestSetAlgorithmIdentifier(request, algorithm), "set the algorithm");
  Check(ASN1_PKCS10RequestSetSignature(request, signature), "set the signature");

  Anybuf* der = NULL;
  Check(ASN1_PKCS10RequestWriteData(request, &der), "write the request");
  // [/issue]
  ASN1_FreePKCS10Request(request);
  ASN1_FreeAnybuf(signature);
  ASN1_FreeAnybuf(algorithm);
  ASN1_FreeAnybuf(signedPart);
  return der;
}

static Anybuf* OpenOnlyElement(const Anybuf* set) {
  Anybuf* element = NULL;
  Check(ASN1_ReadSet(set, &element), "split a SET");
  Require(element != NULL && element->next == NULL, "SET of one element");
  return element;
}

static void ReadExtensions(const Anybuf* list) {
  Anybuf* extension = NULL;
  Anybuf* oid = NULL;
  Anybuf* critical = NULL;
  Anybuf* value = NULL;
  Check(ASN1_ReadExtensions(list, &extension), "split the extensions");
  Require(extension != NULL, "extension");
  Check(ASN1_GetExtension(extension, &oid, &critical, &value), "open the extension");
  Require(IsObjectId(oid, "2.5.29.17") && critical == NULL, "extension");
  Expect(value, 4, "04 11 30 0F 82 0D 67 75 69 64 65 2E 65 78 61 6D 70 6C 65");
  ASN1_FreeAnybuf(value);
  ASN1_FreeAnybuf(oid);
  ASN1_FreeExtensions(extension);
}

static void ReadAttributes(const PKCS10* info) {
  // [read_attributes]
  Anybuf* attributes = NULL;  // Stays null when the list is empty.
  uint32_t tagNumber = 0;
  Require(info->attributes != NULL, "attributes");  // Null in a request that has none.
  Check(ASN1_ReadImplicit(info->attributes, &attributes, &tagNumber), "split the attributes");
  for (const Anybuf* one = attributes; one != NULL; one = one->next) {
    Anybuf* parts = NULL;
    Check(ASN1_ReadSequence(one, &parts), "open an attribute");
    Require(parts != NULL && parts->next != NULL, "attribute of two elements");
    if (IsObjectId(parts, "1.2.840.113549.1.9.14")) {
      Anybuf* extensions = OpenOnlyElement(parts->next);
      ReadExtensions(extensions);
      ASN1_FreeAnybuf(extensions);
    }
    ASN1_FreeAnybuf(parts);
  }
  ASN1_FreeAnybuf(attributes);
  // [/read_attributes]
  Require(tagNumber == 0, "tag number");
}

static void Read(const uint8_t* der, uint32_t length) {
  // [decode]
  PKCS10Request* request = NULL;
  PKCS10* info = NULL;
  uint32_t version = 0;
  Check(ASN1_PKCS10RequestDecode(der, length, &request), "decode the request");
  const Anybuf* signedPart = request->certificationRequestInfo;
  Check(ASN1_PKCS10Decode(signedPart->data, signedPart->dataLen, &info), "decode the signed part");
  Check(ASN1_ReadInteger(info->version, &version), "read the version");
  // [/decode]
  Require(version == 0, "version");
  ReadAttributes(info);

  // [write_again]
  // A decoded record has the form that the setters give, and is written as it was read.
  Anybuf* again = NULL;
  Check(ASN1_PKCS10WriteData(info, &again), "write the signed part");
  Require(again->dataLen == signedPart->dataLen &&
              memcmp(again->data, signedPart->data, again->dataLen) == 0,
          "bytes of the signed part");
  // [/write_again]
  printf("  written again with the same %u bytes\n", (unsigned)again->dataLen);
  ASN1_FreeAnybuf(again);
  ASN1_FreePKCS10(info);
  ASN1_FreePKCS10Request(request);
}

static void ShowNoAttributes(void) {
  printf("A request without attributes\n");
  // [no_attributes]
  Anybuf* empty = NULL;
  PKCS10* info = NULL;
  Check(ASN1_WriteSet(NULL, &empty), "write an empty SET");
  Check(ASN1_CreatePKCS10(&info), "create the signed part");
  Check(ASN1_PKCS10SetAttributes(info, empty), "set no attributes");
  Expect(info->attributes, 0xA0, "A0 00");
  // [/no_attributes]
  ASN1_FreePKCS10(info);
  ASN1_FreeAnybuf(empty);
}

int main(void) {
  Anybuf* request = Issue();
  PrintPem("-----BEGIN CERTIFICATE REQUEST-----", "-----END CERTIFICATE REQUEST-----", request);
  printf("The request as it is read\n");
  Read(request->data, request->dataLen);
  ASN1_FreeAnybuf(request);
  ShowNoAttributes();
  return 0;
}
