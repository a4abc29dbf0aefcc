// What surprises callers, and what to do about it.
#include "guide_parts.h"

static Anybuf* Integer(uint32_t number) {
  Anybuf* node = NULL;
  Check(ASN1_WriteInteger(number, &node), "write a number");
  return node;
}

// Makes the TLV node of an element.
static Anybuf* Element(const uint8_t* der, uint32_t length) {
  Anybuf* node = NULL;
  Check(ASN1_WriteExplicitFromDERData(der, length, &node), "hold an element");
  return node;
}

static bool SameBytes(const Anybuf* one, const Anybuf* other) {
  return one->dataLen == other->dataLen && memcmp(one->data, other->data, one->dataLen) == 0;
}

static void ShowReducedTags(void) {
  printf("Reduced tags\n");
  // [reduced_tags]
  const uint8_t der[] = {0x30, 0x03, 0x02, 0x01, 0x05};
  Anybuf* wrong = NULL;
  Anybuf* right = NULL;
  Anybuf* tagged = NULL;
  Check(ASN1_CreateAnybuf(der, sizeof der, 0x30, &wrong), "hold the SEQUENCE");
  Check(ASN1_WriteImplicit(wrong, 1, &tagged), "write [1] IMPLICIT");
  Expect(tagged, 0x81, "81 03 02 01 05");  // Taken for a primitive element.
  ASN1_FreeAnybuf(tagged);

  Check(ASN1_WriteExplicitFromDERData(der, sizeof der, &right), "hold the SEQUENCE");
  Require(right->dataType == 16, "reduced tag");  // The tag 30 was read and reduced.
  Check(ASN1_WriteImplicit(right, 1, &tagged), "write [1] IMPLICIT");
  Expect(tagged, 0xA1, "A1 03 02 01 05");
  // [/reduced_tags]
  ASN1_FreeAnybuf(tagged);
  ASN1_FreeAnybuf(right);
  ASN1_FreeAnybuf(wrong);
}

static void ShowExtensions(void) {
  printf("Extensions of a decoded record\n");
  Anybuf* algorithm = SignatureAlgorithm();
  Anybuf* name = Name("x");
  Anybuf* keyInfo = KeyInfo(kPoint);
  Chain times = {NULL, NULL};
  const uint8_t value[] = {0x04, 0x01, 0x07};
  TBSCertificate* tbs = NULL;
  Check(ASN1_CreateTBSCertificate(&tbs), "create the signed part");
  Check(ASN1_TBSCertificateSetVersion(tbs, 2), "set the version");
  Check(ASN1_TBSCertificateSetSerialNumber(tbs, value, 1), "set the serial number");
  Check(ASN1_TBSCertificateSetSignatureAlg(tbs, algorithm), "set the algorithm");
  Check(ASN1_TBSCertificateSetIssuer(tbs, name), "set the issuer");
  Anybuf* validity = Sequence(&times);
  Check(ASN1_TBSCertificateSetValidity(tbs, validity), "set the validity");
  Check(ASN1_TBSCertificateSetSubject(tbs, name), "set the subject");
  Check(ASN1_TBSCertificateSetSubjectPublicKeyInfo(tbs, keyInfo), "set the key");
  Anybuf* extensions =
      SequenceOf(Extension("2.5.29.14", false, Element(value, (uint32_t)sizeof value)));

  // [extensions]
  Check(ASN1_TBSCertificateSetExtensions(tbs, extensions), "set the extensions");
  Expect(tbs->extensions, 0xA3, "A3 0E 30 0C 30 0A 06 03 55 1D 0E 04 03 04 01 07");

  Anybuf* der = NULL;
  TBSCertificate* decoded = NULL;
  Check(ASN1_TBSCertificateWriteData(tbs, &der), "write the record");
  Check(ASN1_TBSCertificateDecode(der, &decoded), "decode it");
  Expect(decoded->extensions, 16, "30 0E 30 0C 30 0A 06 03 55 1D 0E 04 03 04 01 07");

  Anybuf* wrong = NULL;
  Check(ASN1_TBSCertificateWriteData(decoded, &wrong), "write the decoded record");
  Require(!SameBytes(wrong, der), "30 in place of A3");

  // Take the list out and set it again.
  Anybuf* list = NULL;
  Anybuf* right = NULL;
  Check(ASN1_ReadSequence(decoded->extensions, &list), "open the outer SEQUENCE");
  Check(ASN1_TBSCertificateSetExtensions(decoded, list), "set the list");
  Check(ASN1_TBSCertificateWriteData(decoded, &right), "write the record");
  Require(SameBytes(right, der), "the same bytes");
  // [/extensions]
  ASN1_FreeAnybuf(right);
  ASN1_FreeAnybuf(list);
  ASN1_FreeAnybuf(wrong);
  ASN1_FreeTBSCertificate(decoded);
  ASN1_FreeAnybuf(der);
  ASN1_FreeAnybuf(extensions);
  ASN1_FreeAnybuf(validity);
  ASN1_FreeTBSCertificate(tbs);
  ASN1_FreeAnybuf(keyInfo);
  ASN1_FreeAnybuf(name);
  ASN1_FreeAnybuf(algorithm);
}

static void ShowUnusedBits(void) {
  printf("Unused bits\n");
  // [unused_bits]
  const uint8_t signature[] = {0x30, 0x05};
  Anybuf* derived = NULL;
  Check(ASN1_WriteBitStringFromBytes(signature, sizeof signature, &derived), "write the bits");
  Expect(derived, 3, "03 03 03 30 05");  // 3 unused bits: 05 - 1 is 04, a number of 3 bits.

  Anybuf* stated = BitString(signature, sizeof signature, 0);
  Expect(stated, 3, "03 03 00 30 05");
  // [/unused_bits]
  ASN1_FreeAnybuf(stated);
  ASN1_FreeAnybuf(derived);

  // [split_bits]
  const uint8_t der[] = {0x30, 0x04, 0x03, 0x02, 0x03, 0x08};
  Anybuf* child = NULL;
  Anybuf* again = NULL;
  Anybuf* content = NULL;
  Check(ASN1_WriteSequenceFromDERBytes(der, sizeof der, &child), "split the SEQUENCE");
  Require(child != NULL && child->dataType == 3 && child->unusedBits == 0, "number not read");

  Check(ASN1_WriteBitStringFromDERBytes(child->data, child->dataLen, &again), "hold it again");
  Check(ASN1_ReadBitString(again, &content), "read the bits");
  Expect(content, 3, "08");
  Require(content->unusedBits == 3, "unused bits");
  // [/split_bits]
  ASN1_FreeAnybuf(content);
  ASN1_FreeAnybuf(again);
  ASN1_FreeAnybuf(child);
}

// [algorithm]
// An algorithm with an object identifier as its parameter: the call releases `oid`.
static Anybuf* WithParameter(const char* oidText, const char* parameterText) {
  Anybuf* oid = ObjectId(oidText);
  Anybuf* parameter = ObjectId(parameterText);
  Anybuf* algorithm = NULL;
  const int32_t code = ASN1_SetAlgorithmIdentifier(0, oid, NULL, parameter, &algorithm);
  if (code != VELKORD_OK) ASN1_FreeAnybuf(oid);  // After a failure it is still the caller's.
  ASN1_FreeAnybuf(parameter);
  Check(code, "write the algorithm");
  return algorithm;
}

// An algorithm with NULL: `oid` stays the caller's in any case.
static Anybuf* WithNull(const char* oidText) {
  Anybuf* oid = ObjectId(oidText);
  Anybuf* algorithm = NULL;
  const int32_t code = ASN1_SetAlgorithmIdentifier(1, oid, NULL, NULL, &algorithm);
  ASN1_FreeAnybuf(oid);
  Check(code, "write the algorithm");
  return algorithm;
}

// An algorithm without any parameter is a SEQUENCE of one element.
static Anybuf* WithoutParameter(const char* oidText) { return SequenceOf(ObjectId(oidText)); }
// [/algorithm]

static void ShowAlgorithms(void) {
  printf("Algorithms\n");
  Anybuf* withParameter = WithParameter("1.2.840.10045.2.1", "1.2.156.10197.1.301");
  Anybuf* withNull = WithNull("1.2.840.113549.1.1.1");
  Anybuf* without = WithoutParameter("1.2.156.10197.1.501");
  Expect(withParameter, 16, "30 13 06 07 2A 86 48 CE 3D 02 01 06 08 2A 81 1C CF 55 01 82 2D");
  Expect(withNull, 16, "30 0D 06 09 2A 86 48 86 F7 0D 01 01 01 05 00");
  Expect(without, 16, "30 0A 06 08 2A 81 1C CF 55 01 83 75");

  // [parameter_type]
  // The parameter here is an OCTET STRING; it comes back under the tag of an OBJECT IDENTIFIER.
  const uint8_t der[] = {0x30, 0x07, 0x06, 0x02, 0x2A, 0x03, 0x04, 0x01, 0x09};
  Anybuf* algorithm = Element(der, sizeof der);
  Anybuf* parameter = NULL;
  Check(ASN1_GetAlgorithmIdentifier(algorithm, NULL, NULL, &parameter), "open the algorithm");
  Expect(parameter, 6, "06 01 09");

  Anybuf* parts = NULL;
  Check(ASN1_ReadSequence(algorithm, &parts), "split the algorithm");
  Require(parts != NULL && parts->next != NULL, "two elements");
  Expect(parts->next, 4, "04 01 09");
  // [/parameter_type]
  ASN1_FreeAnybuf(parts);
  ASN1_FreeAnybuf(parameter);
  ASN1_FreeAnybuf(algorithm);
  ASN1_FreeAnybuf(without);
  ASN1_FreeAnybuf(withNull);
  ASN1_FreeAnybuf(withParameter);
}

static void ShowLongChain(void) {
  printf("A long chain\n");
  Anybuf* element = Integer(5);
  // [long_chain]
  // Each element stays the caller's: a chain of one copy is made, and linked behind the last node.
  Chain chain = {NULL, NULL};
  for (uint32_t count = 0; count < 100000; ++count) {
    Anybuf* copy = NULL;
    Check(ASN1_CreateSequence(element, &copy), "copy an element");
    Append(&chain, copy);
  }
  // [/long_chain]
  Anybuf* sequence = Sequence(&chain);
  Require(sequence->dataLen == 5 + 300000, "size of the SEQUENCE");
  printf("  %u bytes\n", (unsigned)sequence->dataLen);
  ASN1_FreeAnybuf(sequence);
  ASN1_FreeAnybuf(element);
}

static void ShowLocalTime(void) {
  printf("Times\n");
  // [local_time]
  const int32_t time = 1767225600;  // 1 January 2026, 00:00:00 UTC.
  Anybuf* node = NULL;
  Require(setenv("TZ", "CST-8", 1) == 0, "time zone of eight hours ahead");
  Check(ASN1_WriteUtcTime(&time, &node), "write the time");
  Require(memcmp(node->data + 2, "260101080000Z", 13) == 0, "local time");
  ASN1_FreeAnybuf(node);

  Require(setenv("TZ", "UTC0", 1) == 0, "time zone of UTC");
  Check(ASN1_WriteUtcTime(&time, &node), "write the time");
  Require(memcmp(node->data + 2, "260101000000Z", 13) == 0, "UTC");
  // [/local_time]
  ASN1_FreeAnybuf(node);
}

static void ShowSummerTime(void) {
  // [summer_time]
  // In this zone the clocks skip from 02:00 to 03:00 on 8 March 2026.
  const uint8_t der[] = {0x30, 0x12, 0x02, 0x01, 0x01, 0x17, 0x0D, '2', '6', '0',
                         '3',  '0',  '8',  '0',  '2',  '3',  '0',  '0', '0', 'Z'};
  RevokedCertificate* entry = NULL;
  Require(setenv("TZ", "EST5EDT,M3.2.0,M11.1.0", 1) == 0, "time zone with summer time");
  Check(ASN1_CRL_RevokedCertificateDecode(der, sizeof der, &entry), "decode an entry");
  Require(memcmp(entry->revocationDate->data + 2, "260308033000Z", 13) == 0, "changed date");
  // [/summer_time]
  ASN1_CRL_FreeRevokedCertificate(entry);
  UseUtc();
}

// [time_text]
// Makes the GeneralizedTime TLV node of a text such as "20500101000000Z", in any time zone.
static Anybuf* GeneralizedTime(const char* text) {
  uint8_t der[2 + 15] = {0x18, 15};
  Anybuf* node = NULL;
  Require(strlen(text) == 15, "length of a time");
  memcpy(der + 2, text, 15);
  Check(ASN1_WriteExplicitFromDERData(der, sizeof der, &node), "hold the time");
  return node;
}

// Copies the text of a time out of its TLV node.
static void TimeText(const Anybuf* node, char text[16]) {
  uint8_t content[16];
  uint32_t length = 0;
  Require(node->dataLen <= sizeof content + 2, "length of a time");
  Check(ASN1_ReadOctetStringToBytes(node, content, &length), "read the text");
  Require(length < sizeof content, "length of a time");
  memcpy(text, content, length);
  text[length] = '\0';
}
// [/time_text]

static void ShowTimeText(void) {
  // [use_time_text]
  Anybuf* notAfter = GeneralizedTime("20500101000000Z");
  char text[16];
  int32_t time = 0;
  TimeText(notAfter, text);
  Require(strcmp(text, "20500101000000Z") == 0, "text of the time");
  Require(ASN1_ReadGeneralizedTime(notAfter, &time) == VELKORD_OUT_OF_MEMORY, "beyond 2038");
  // [/use_time_text]
  printf("  %s\n", text);
  ASN1_FreeAnybuf(notAfter);
}

// [version_1]
// Puts the version that a certificate of version 1 leaves out in front of its signed part.
static Anybuf* WithVersion(const Anybuf* signedPart) {
  const uint8_t version[] = {0xA0, 0x03, 0x02, 0x01, 0x00};
  Anybuf* elements = NULL;
  Anybuf* der = NULL;
  Check(ASN1_ReadSequence(signedPart, &elements), "split the signed part");
  Require(elements != NULL, "first element");
  if (elements->dataType != 0xA0) {
    Anybuf* first = NULL;
    Check(ASN1_WriteExplicitFromDERData(version, sizeof version, &first), "hold the version");
    first->next = elements;
    elements = first;
  }
  Check(ASN1_WriteSequence(elements, &der), "write the signed part");
  ASN1_FreeAnybuf(elements);
  return der;
}
// [/version_1]

static void ShowVersion1(void) {
  printf("A certificate of version 1\n");
  Chain chain = {NULL, NULL};
  Chain empty = {NULL, NULL};
  Append(&chain, Integer(9));
  for (uint32_t count = 0; count < 5; ++count) Append(&chain, Sequence(&empty));
  Anybuf* signedPart = Sequence(&chain);
  TBSCertificate* tbs = NULL;
  Require(ASN1_TBSCertificateDecode(signedPart, &tbs) == VELKORD_FAILURE, "no version");

  Anybuf* changed = WithVersion(signedPart);
  Check(ASN1_TBSCertificateDecode(changed, &tbs), "decode the changed part");
  Expect(tbs->serialNumber, 2, "02 01 09");
  ASN1_FreeTBSCertificate(tbs);
  ASN1_FreeAnybuf(changed);
  ASN1_FreeAnybuf(signedPart);
}

static void ShowSignedBytes(void) {
  printf("Lengths that are not in shortest form\n");
  // [signed_bytes]
  // Its first element has the length 81 00 where 00 would do.
  const uint8_t der[] = {0x30, 0x08, 0x30, 0x81, 0x00, 0x30, 0x00, 0x03, 0x01, 0x00};
  Certificate* certificate = NULL;
  Check(ASN1_CertificateDecode(der, sizeof der, &certificate), "decode the certificate");
  Expect(certificate->tbsCertificate, 16, "30 00");  // Not what was signed.

  Anybuf* parts = NULL;
  Check(ASN1_WriteSequenceFromDERBytes(der, sizeof der, &parts), "split the certificate");
  Expect(parts, 16, "30 81 00");  // What was signed.
  // [/signed_bytes]
  ASN1_FreeAnybuf(parts);
  ASN1_FreeCertificate(certificate);
}

static void ShowImplicit(void) {
  printf("IMPLICIT tags\n");
  // [implicit_integer]
  // A zero octet keeps this number positive, and is lost under an IMPLICIT tag.
  Anybuf* number = Integer(128);
  Anybuf* tagged = NULL;
  Check(ASN1_WriteImplicit(number, 2, &tagged), "write [2] IMPLICIT");
  Expect(tagged, 0x82, "82 01 80");  // This is -128.
  ASN1_FreeAnybuf(tagged);

  // An OCTET STRING over the same content keeps all octets.
  const uint8_t content[] = {0x00, 0x80};
  Anybuf* octets = NULL;
  Check(ASN1_WriteOctetStringFromBytes(content, sizeof content, &octets), "hold the content");
  Check(ASN1_WriteImplicit(octets, 2, &tagged), "write [2] IMPLICIT");
  Expect(tagged, 0x82, "82 02 00 80");
  // [/implicit_integer]
  ASN1_FreeAnybuf(tagged);
  ASN1_FreeAnybuf(octets);
  ASN1_FreeAnybuf(number);

  // [read_implicit]
  // Under an odd tag the first octet of the content is dropped, as if it stated unused bits.
  const uint8_t der[] = {0x81, 0x03, 0x61, 0x62, 0x63};
  Anybuf* element = Element(der, sizeof der);
  Anybuf* text = NULL;
  uint32_t tagNumber = 0;
  Check(ASN1_ReadImplicit(element, &text, &tagNumber), "open [1] IMPLICIT");
  Expect(text, 0x81, "62 63");
  ASN1_FreeAnybuf(text);

  // The readers of strings take any tag and drop nothing.
  Check(ASN1_ReadIa5String(element, &text), "read [1] IMPLICIT");
  Expect(text, 0x81, "61 62 63");
  // [/read_implicit]
  ASN1_FreeAnybuf(text);
  ASN1_FreeAnybuf(element);
}

static void ShowLongNumbers(void) {
  printf("Numbers of more than 32 bits\n");
  // [long_number]
  const uint8_t bytes[] = {0x01, 0x00, 0x00, 0x00, 0x05};
  Anybuf* node = NULL;
  uint32_t number = 0;
  Check(ASN1_WriteIntegerArrayFromBytes(bytes, sizeof bytes, &node), "write the number");
  Check(ASN1_ReadInteger(node, &number), "read its low 32 bits");
  Require(number == 5, "low 32 bits");

  Anybuf* content = NULL;
  Check(ASN1_ReadIntegerArray(node, &content), "read the whole number");
  Expect(content, 2, "01 00 00 00 05");
  // [/long_number]
  ASN1_FreeAnybuf(content);
  ASN1_FreeAnybuf(node);
}

static void ShowMessageContent(void) {
  printf("The content of a message\n");
  const uint8_t type[] = {0x06, 0x02, 0x2A, 0x03};
  const uint8_t content[] = {0x04, 0x01, 0x41};
  Anybuf* typeNode = Element(type, sizeof type);
  Anybuf* contentNode = Element(content, sizeof content);
  PKCS7Context* message = NULL;
  Check(ASN1_PKCS7_CreateContext(&message), "create the message");
  // [message_content]
  Anybuf* der = NULL;
  Check(ASN1_PKCS7_SetContentType(message, typeNode), "set the type");
  Check(ASN1_PKCS7_SetContent(message, contentNode), "set the content");
  Check(ASN1_PKCS7_WriteData(message, &der), "write the message");
  Expect(der, 16, "30 09 06 02 2A 03 A0 03 04 01 41");

  // [0] came off: set the content again before the record is written.
  PKCS7Context* decoded = NULL;
  Anybuf* again = NULL;
  Check(ASN1_PKCS7_Decode(der->data, der->dataLen, &decoded), "decode the message");
  ExpectBytes(decoded->content->data, decoded->content->dataLen, "04 01 41");
  Check(ASN1_PKCS7_SetContent(decoded, decoded->content), "set the content again");
  Check(ASN1_PKCS7_WriteData(decoded, &again), "write the message");
  Require(SameBytes(again, der), "the same bytes");
  // [/message_content]
  ASN1_FreeAnybuf(again);
  ASN1_PKCS7_FreeContext(decoded);
  ASN1_FreeAnybuf(der);
  ASN1_PKCS7_FreeContext(message);
  ASN1_FreeAnybuf(contentNode);
  ASN1_FreeAnybuf(typeNode);
}

static void ShowNothingReported(void) {
  printf("Functions that report nothing\n");
  // [nothing_reported]
  const uint8_t notASignature[] = {0x04, 0x00};
  uint8_t r[sizeof notASignature];
  uint8_t s[sizeof notASignature];
  uint32_t rLength = 0;
  uint32_t sLength = 0;
  const int32_t code =
      ASN1_SM2_SM2SignatureDecode(r, &rLength, s, &sLength, notASignature, sizeof notASignature);
  Require(code == 0 && rLength == 0 && sLength == 0, "lengths that stay as they were");
  // [/nothing_reported]
  printf("  code %d, lengths %u and %u\n", (int)code, (unsigned)rLength, (unsigned)sLength);
}

static void ShowFirstBlock(void) {
  printf("PEM\n");
  // [first_block]
  const char text[] =
      "-----BEGIN NUMBER-----\nAgEF\n-----END NUMBER-----\n"
      "-----BEGIN NUMBER-----\nAgEG\n-----END NUMBER-----\n";
  uint8_t der[sizeof text / 4 * 3 + 3];
  uint32_t length = 0;
  Check(PEM2DER_data_format(text, (uint32_t)strlen(text), der, &length), "decode the text");
  ExpectBytes(der, length, "02 01 05");  // The second block is passed over.

  // The first "-" counts, wherever it stands: start at "-----BEGIN".
  const char withText[] = "See the number-\n-----BEGIN NUMBER-----\nAgEF\n-----END NUMBER-----\n";
  const char* block = strstr(withText, "-----BEGIN ");
  Require(block != NULL, "block");
  Check(PEM2DER_data_format(withText, (uint32_t)strlen(withText), der, &length), "decode it all");
  Require(length != 3, "bytes of another text");
  Check(PEM2DER_data_format(block, (uint32_t)strlen(block), der, &length), "decode the block");
  ExpectBytes(der, length, "02 01 05");
  // [/first_block]
}

int main(void) {
  ShowReducedTags();
  ShowExtensions();
  ShowUnusedBits();
  ShowAlgorithms();
  ShowLongChain();
  ShowLocalTime();
  ShowSummerTime();
  ShowTimeText();
  ShowVersion1();
  ShowSignedBytes();
  ShowImplicit();
  ShowLongNumbers();
  ShowMessageContent();
  ShowNothingReported();
  ShowFirstBlock();
  return 0;
}
