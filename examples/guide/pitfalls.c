// What surprises callers, and what to do about it.
#include "parts.h"

static void ShowReducedTags(void) {
  printf("Reduced tags\n");
  // [reduced_tags]
  const uint8_t der[] = {0x30, 0x03, 0x02, 0x01, 0x05};
  Anybuf* wrong = NULL;
  Anybuf* taggedWrong = NULL;
  CHECK(ASN1_CreateAnybuf(der, sizeof der, 0x30, &wrong));
  CHECK(ASN1_WriteImplicit(wrong, 1, &taggedWrong));
  Expect(taggedWrong, 0x81, "81 03 02 01 05");  // Taken for a primitive element.

  Anybuf* right = NULL;
  Anybuf* tagged = NULL;
  CHECK(ASN1_WriteExplicitFromDERData(der, sizeof der, &right));
  REQUIRE(right->dataType == 16);  // The tag 30 was read and reduced.
  CHECK(ASN1_WriteImplicit(right, 1, &tagged));
  Expect(tagged, 0xA1, "A1 03 02 01 05");
  // [/reduced_tags]
  ASN1_FreeAnybuf(tagged);
  ASN1_FreeAnybuf(right);
  ASN1_FreeAnybuf(taggedWrong);
  ASN1_FreeAnybuf(wrong);
}

static void ShowUnusedBits(void) {
  printf("Unused bits\n");
  // [unused_bits]
  const uint8_t signature[] = {0x30, 0x05};
  Anybuf* derived = NULL;
  CHECK(ASN1_WriteBitStringFromBytes(signature, sizeof signature, &derived));
  Expect(derived, 3, "03 03 03 30 05");  // 3 unused bits: 05 - 1 is 04, a number of 3 bits.

  Anybuf* stated = BitString(signature, sizeof signature, 0);
  Expect(stated, 3, "03 03 00 30 05");
  // [/unused_bits]
  ASN1_FreeAnybuf(stated);
  ASN1_FreeAnybuf(derived);
}

// [time_text]
// Makes the TLV node of a time such as "20500101000000Z", in any time zone.
static Anybuf* GeneralizedTime(const char* text) {
  uint8_t der[2 + 15] = {0x18, 15};
  REQUIRE(strlen(text) == 15);
  memcpy(der + 2, text, 15);
  return Element(der, sizeof der);
}
// [/time_text]

static void ShowTimeText(void) {
  printf("Times\n");
  // [use_time_text]
  Anybuf* notAfter = GeneralizedTime("20500101000000Z");
  int32_t time = 0;
  REQUIRE(ASN1_ReadGeneralizedTime(notAfter, &time) == VELKORD_OUT_OF_MEMORY);  // After 2038.

  Anybuf* text = NULL;
  CHECK(ASN1_ReadOctetString(notAfter, &text));
  REQUIRE(text->dataLen == 15 && memcmp(text->data, "20500101000000Z", 15) == 0);
  // [/use_time_text]
  ASN1_FreeAnybuf(text);
  ASN1_FreeAnybuf(notAfter);
}

static void ShowVersion1(void) {
  printf("A certificate of version 1\n");
  // The number 9, then algorithm, issuer, validity, subject and key info, which are empty here.
  const uint8_t der[] = {0x30, 0x0D, 0x02, 0x01, 0x09, 0x30, 0x00, 0x30,
                         0x00, 0x30, 0x00, 0x30, 0x00, 0x30, 0x00};
  Anybuf* signedPart = Element(der, sizeof der);
  TBSCertificate* tbs = NULL;
  REQUIRE(ASN1_TBSCertificateDecode(signedPart, &tbs) == VELKORD_FAILURE);
  tbs = DecodeSignedPart(signedPart);
  Expect(tbs->serialNumber, 2, "02 01 09");
  ASN1_FreeTBSCertificate(tbs);
  ASN1_FreeAnybuf(signedPart);
}

static void ShowImplicitInteger(void) {
  printf("IMPLICIT tags\n");
  // [implicit_integer]
  // A zero octet keeps this number positive, and is lost under an IMPLICIT tag.
  Anybuf* number = Integer(128);
  Anybuf* wrong = NULL;
  CHECK(ASN1_WriteImplicit(number, 2, &wrong));
  Expect(wrong, 0x82, "82 01 80");  // This is -128.

  // An OCTET STRING over the same content keeps all octets.
  const uint8_t content[] = {0x00, 0x80};
  Anybuf* octets = NULL;
  Anybuf* right = NULL;
  CHECK(ASN1_WriteOctetStringFromBytes(content, sizeof content, &octets));
  CHECK(ASN1_WriteImplicit(octets, 2, &right));
  Expect(right, 0x82, "82 02 00 80");
  // [/implicit_integer]
  ASN1_FreeAnybuf(right);
  ASN1_FreeAnybuf(octets);
  ASN1_FreeAnybuf(wrong);
  ASN1_FreeAnybuf(number);
}

int main(void) {
  ShowReducedTags();
  ShowUnusedBits();
  ShowTimeText();
  ShowVersion1();
  ShowImplicitInteger();
  return 0;
}
