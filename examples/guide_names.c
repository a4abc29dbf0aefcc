// Chinese text between GB2312, UTF-8 and the strings of a name.
#include "guide_tools.h"

// The same word in GB2312 and in UTF-8. In Unicode its characters are 793A 4F8B.
static const uint8_t kGbText[] = {0xCA, 0xBE, 0xC0, 0xFD};
static const uint8_t kUtf8Text[] = {0xE7, 0xA4, 0xBA, 0xE4, 0xBE, 0x8B};

static void ShowWholeTexts(void) {
  printf("Whole texts\n");
  // [gb_to_utf8]
  uint8_t utf8[sizeof kGbText / 2 * 3];
  uint32_t utf8Length = 0;
  zhsToUtf8s(kGbText, sizeof kGbText, utf8, &utf8Length);
  ExpectBytes(utf8, utf8Length, "E7 A4 BA E4 BE 8B");
  // [/gb_to_utf8]

  // [utf8_to_gb]
  uint8_t gb[sizeof kUtf8Text];
  uint32_t gbLength = 0;
  utf8sToZhs(kUtf8Text, sizeof kUtf8Text, gb, &gbLength);
  ExpectBytes(gb, gbLength, "CA BE C0 FD");
  // [/utf8_to_gb]
}

// [mixed]
// Turns GB2312 text with ASCII in it into UTF-8 and gives the number of bytes. `out` needs 3 bytes
// for each pair and 1 for each ASCII character, so twice `length` is enough.
static uint32_t MixedToUtf8(const uint8_t* text, uint32_t length, uint8_t* out) {
  uint32_t written = 0;
  for (uint32_t at = 0; at < length;) {
    if (text[at] < 0x80) {
      out[written++] = text[at++];
      continue;
    }
    Require(at + 1 < length, "pair of bytes");
    written += (uint32_t)uniToUTF8(out + written, 3, ctouni(zhToWc(text + at, 2)));
    at += 2;
  }
  return written;
}
// [/mixed]

static void ShowMixedText(void) {
  printf("GB2312 with ASCII\n");
  // [use_mixed]
  const uint8_t text[] = {'C', 'A', 0xCA, 0xBE};
  uint8_t utf8[2 * sizeof text];
  ExpectBytes(utf8, MixedToUtf8(text, sizeof text, utf8), "43 41 E7 A4 BA");

  // zhsToUtf8s takes "CA" for a pair and makes an ideographic space of it.
  uint32_t length = 0;
  zhsToUtf8s(text, sizeof text, utf8, &length);
  ExpectBytes(utf8, length, "E3 80 80 E7 A4 BA");
  // [/use_mixed]
}

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

static void ShowMissingCharacter(void) {
  printf("A character that GB2312 lacks\n");
  // [missing]
  const uint8_t euro[] = {0xE2, 0x82, 0xAC};
  uint8_t gb[sizeof euro];
  uint32_t length = 0;
  utf8sToZhs(euro, sizeof euro, gb, &length);
  ExpectBytes(gb, length, "E2");  // The first byte of the character, which is no GB2312.
  Require(!IsGb2312(euro, sizeof euro) && IsGb2312(kUtf8Text, sizeof kUtf8Text), "test of a text");
  // [/missing]
}

static void ShowUtf8Name(void) {
  printf("A UTF8String in a name\n");
  // [utf8_name]
  Anybuf* value = NULL;
  Anybuf* name = NULL;
  Check(ASN1_WriteUTF8StringFromBytes(kUtf8Text, sizeof kUtf8Text, &value), "write the text");
  Check(ASN1_GetDerRelativeDistinguishedNameOne(value, 0, "2.5.4.10", 8, &name), "write the name");
  Expect(name, 17, "31 0F 30 0D 06 03 55 04 0A 0C 06 E7 A4 BA E4 BE 8B");

  // Reading turns it into GB2312.
  uint8_t text[64];
  uint8_t oid[64];
  uint32_t textLength = 0;
  uint32_t oidLength = 0;
  Require(name->dataLen <= sizeof text, "room");  // Enough for each of the two.
  Check(ASN1_DecodeDerRelativeDistinguishedNameOne(name, text, &textLength, oid, &oidLength),
        "read the name");
  ExpectBytes(text, textLength, "CA BE C0 FD");
  ExpectBytes(oid, oidLength, "55 04 0A");
  // [/utf8_name]
  ASN1_FreeAnybuf(name);
  ASN1_FreeAnybuf(value);
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
    Require(read > 0 && code <= 0xFFFF && size + 2 <= sizeof pairs, "text for a BMPString");
    pairs[size++] = (uint8_t)(code >> 8);
    pairs[size++] = (uint8_t)code;
    at += (uint32_t)read;
  }
  Anybuf* node = NULL;
  Check(ASN1_WriteBmpStringFromBytes(pairs, size, &node), "write a BMPString");
  return node;
}
// [/bmp_string]

// [bmp_name]
// Makes a relative name of one attribute whose value may be of any type.
static Anybuf* AnyRelativeName(const char* oidText, const Anybuf* value) {
  Anybuf* type = ObjectId(oidText);
  AttributeTypeAndValue* record = NULL;
  Anybuf* attribute = NULL;
  Anybuf* name = NULL;
  Check(ASN1_SetAttributeTypeAndValue(type, value, &record), "make the attribute");
  Check(ASN1_GetDerAttributeTypeAndValue(record, &attribute), "write the attribute");
  Check(ASN1_GetDerRelativeDistinguishedName(attribute, &name), "write the relative name");
  ASN1_FreeAnybuf(attribute);
  ASN1_FreeAttributeTypeAndValue(record);
  ASN1_FreeAnybuf(type);
  return name;
}
// [/bmp_name]

// [any_string]
// Writes the text of a string TLV node to `out` as UTF-8 and gives the number of bytes. Twice the
// size of the node is enough room.
static uint32_t TextOf(const Anybuf* value, uint8_t* out) {
  Anybuf* content = NULL;
  uint32_t written = 0;
  Check(ASN1_ReadBmpString(value, &content), "read the string");
  if (value->dataType == 30) {
    for (uint32_t at = 0; at + 1 < content->dataLen; at += 2) {
      const uint32_t code = (uint32_t)content->data[at] << 8 | content->data[at + 1];
      written += (uint32_t)uniToUTF8(out + written, 3, code);
    }
  } else {
    // UTF8String, PrintableString and IA5String are UTF-8 as they stand.
    memcpy(out, content->data, content->dataLen);
    written = content->dataLen;
  }
  ASN1_FreeAnybuf(content);
  return written;
}
// [/any_string]

static void ShowBmpName(void) {
  printf("A BMPString in a name\n");
  Anybuf* value = BmpString(kUtf8Text, sizeof kUtf8Text);
  Expect(value, 30, "1E 04 79 3A 4F 8B");
  Anybuf* name = AnyRelativeName("2.5.4.10", value);
  Expect(name, 17, "31 0D 30 0B 06 03 55 04 0A 1E 04 79 3A 4F 8B");

  // [read_any_name]
  // Splits SET and SEQUENCE by hand: the type is the first node, the value the second.
  Anybuf* attributes = NULL;
  Anybuf* parts = NULL;
  uint8_t text[128];
  Check(ASN1_ReadRelativeDistinguishedName(name, &attributes), "split the relative name");
  Check(ASN1_ReadSequence(attributes, &parts), "split the attribute");
  Require(parts != NULL && parts->next != NULL, "type and value");
  Require(2 * (size_t)parts->next->dataLen <= sizeof text, "room");
  ExpectBytes(text, TextOf(parts->next, text), "E7 A4 BA E4 BE 8B");
  // [/read_any_name]
  ASN1_FreeAnybuf(parts);
  ASN1_FreeAnybuf(attributes);
  ASN1_FreeAnybuf(name);
  ASN1_FreeAnybuf(value);
}

int main(void) {
  ShowWholeTexts();
  ShowMixedText();
  ShowMissingCharacter();
  ShowUtf8Name();
  ShowBmpName();
  return 0;
}
