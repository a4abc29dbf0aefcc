// Chinese text between GB2312, UTF-8 and the strings of a name.
#include "parts.h"

// The same word in GB2312 and in UTF-8. In Unicode its characters are 793A 4F8B.
static const uint8_t kGbText[] = {0xCA, 0xBE, 0xC0, 0xFD};
static const uint8_t kUtf8Text[] = {0xE7, 0xA4, 0xBA, 0xE4, 0xBE, 0x8B};

// [mixed]
// Turns GB2312 text with ASCII in it into UTF-8 and returns the number of bytes. `out` needs 3
// bytes for each pair and 1 for each ASCII character, so twice `length` is enough.
static uint32_t MixedToUtf8(const uint8_t* text, uint32_t length, uint8_t* out) {
  uint32_t written = 0;
  for (uint32_t at = 0; at < length;) {
    if (text[at] < 0x80) {
      out[written++] = text[at++];
      continue;
    }
    REQUIRE(at + 1 < length);
    written += (uint32_t)uniToUTF8(out + written, 3, ctouni(zhToWc(text + at, 2)));
    at += 2;
  }
  return written;
}
// [/mixed]

// [is_gb]
// Whether all characters of a UTF-8 text are ASCII or in GB2312, so that utf8sToZhs turns them all.
static bool IsGb2312(const uint8_t* text, uint32_t length) {
  uint32_t at = 0;
  while (at < length) {
    uint32_t code = 0;
    const int32_t size = utf8ToUni(text + at, (int32_t)(length - at), &code);
    if (size <= 0 || (code >= 0x80 && unitoc(code) == 0)) return false;
    at += (uint32_t)size;
  }
  return true;
}
// [/is_gb]

static void ShowGbToUtf8(void) {
  printf("GB2312 to UTF-8\n");
  // [gb_to_utf8]
  uint8_t utf8[sizeof kGbText / 2 * 3];
  uint32_t utf8Length = 0;
  zhsToUtf8s(kGbText, sizeof kGbText, utf8, &utf8Length);
  ExpectBytes(utf8, utf8Length, "E7 A4 BA E4 BE 8B");

  const uint8_t mixed[] = {'C', 'A', 0xCA, 0xBE};
  uint8_t text[2 * sizeof mixed];
  const uint32_t textLength = MixedToUtf8(mixed, sizeof mixed, text);
  ExpectBytes(text, textLength, "43 41 E7 A4 BA");
  // [/gb_to_utf8]
}

static void ShowUtf8ToGb(void) {
  printf("UTF-8 to GB2312\n");
  // [utf8_to_gb]
  uint8_t gb[sizeof kUtf8Text];
  uint32_t gbLength = 0;
  REQUIRE(IsGb2312(kUtf8Text, sizeof kUtf8Text));
  utf8sToZhs(kUtf8Text, sizeof kUtf8Text, gb, &gbLength);
  ExpectBytes(gb, gbLength, "CA BE C0 FD");

  // GB2312 lacks the sign of the euro: its first byte is left, which is no GB2312.
  const uint8_t euro[] = {0xE2, 0x82, 0xAC};
  REQUIRE(!IsGb2312(euro, sizeof euro));
  utf8sToZhs(euro, sizeof euro, gb, &gbLength);
  ExpectBytes(gb, gbLength, "E2");
  // [/utf8_to_gb]
}

static void ShowUtf8Name(void) {
  printf("A UTF8String in a name\n");
  // [utf8_name]
  Anybuf* value = NULL;
  CHECK(ASN1_WriteUTF8StringFromBytes(kUtf8Text, sizeof kUtf8Text, &value));
  Anybuf* name = RelativeName("2.5.4.10", value);
  Expect(name, 17, "31 0F 30 0D 06 03 55 04 0A 0C 06 E7 A4 BA E4 BE 8B");

  // Reading turns it into GB2312.
  uint8_t text[64];
  uint8_t oid[64];
  uint32_t textLength = 0;
  uint32_t oidLength = 0;
  REQUIRE(name->dataLen <= sizeof text);  // Enough room for each of the two.
  CHECK(ASN1_DecodeDerRelativeDistinguishedNameOne(name, text, &textLength, oid, &oidLength));
  ExpectBytes(text, textLength, "CA BE C0 FD");
  ExpectBytes(oid, oidLength, "55 04 0A");
  // [/utf8_name]
  ASN1_FreeAnybuf(name);
}

// [bmp_string]
// Makes the BMPString TLV node of a UTF-8 text: two bytes a character, the high one first.
static Anybuf* BmpString(const uint8_t* text, uint32_t length) {
  uint8_t pairs[128];
  uint32_t size = 0;
  uint32_t at = 0;
  while (at < length) {
    uint32_t code = 0;
    const int32_t read = utf8ToUni(text + at, (int32_t)(length - at), &code);
    REQUIRE(read > 0 && code <= 0xFFFF && size + 2 <= sizeof pairs);
    pairs[size++] = (uint8_t)(code >> 8);
    pairs[size++] = (uint8_t)code;
    at += (uint32_t)read;
  }
  Anybuf* node = NULL;
  CHECK(ASN1_WriteBmpStringFromBytes(pairs, size, &node));
  return node;
}

// Makes a relative name of one attribute whose value may be of any type. Takes over the value.
static Anybuf* AnyRelativeName(const char* oidText, Anybuf* value) {
  Anybuf* type = ObjectId(oidText);
  type->next = value;
  return Set(Sequence(type));
}
// [/bmp_string]

static void ShowBmpName(void) {
  printf("A BMPString in a name\n");
  // [bmp_name]
  Anybuf* name = AnyRelativeName("2.5.4.10", BmpString(kUtf8Text, sizeof kUtf8Text));
  Expect(name, 17, "31 0D 30 0B 06 03 55 04 0A 1E 04 79 3A 4F 8B");

  // Of an attribute the type is the first node, the value the second.
  Anybuf* attributes = NULL;
  Anybuf* parts = NULL;
  uint8_t text[128];
  CHECK(ASN1_ReadRelativeDistinguishedName(name, &attributes));
  CHECK(ASN1_ReadSequence(attributes, &parts));
  REQUIRE(parts != NULL && parts->next != NULL);
  REQUIRE(2 * (size_t)parts->next->dataLen <= sizeof text);
  const uint32_t length = TextOf(parts->next, text);
  ExpectBytes(text, length, "E7 A4 BA E4 BE 8B");
  // [/bmp_name]
  ASN1_FreeAnybuf(parts);
  ASN1_FreeAnybuf(attributes);
  ASN1_FreeAnybuf(name);
}

int main(void) {
  ShowGbToUtf8();
  ShowUtf8ToGb();
  ShowUtf8Name();
  ShowBmpName();
  return 0;
}
