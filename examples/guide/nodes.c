// Nodes: their two forms, who releases them, reduced tags, and chains.
#include "tools.h"

static void ShowForms(void) {
  printf("Two forms of a node\n");
  // [forms]
  // A TLV node is made from content bytes: tag 0C, length 03, content.
  Anybuf* element = NULL;
  CHECK(ASN1_WriteUTF8StringFromBytes((const uint8_t*)"abc", 3, &element));
  Expect(element, 12, "0C 03 61 62 63");

  // A content node is read from it. Its `dataType` is the tag that came off.
  Anybuf* content = NULL;
  CHECK(ASN1_ReadUTF8String(element, &content));
  Expect(content, 12, "61 62 63");

  // A TLV node is made from a content node, here of another type.
  Anybuf* octets = NULL;
  CHECK(ASN1_WriteOctetString(content, &octets));
  Expect(octets, 4, "04 03 61 62 63");

  // A TLV node where a content node is wanted puts an element inside an element.
  Anybuf* nested = NULL;
  CHECK(ASN1_WriteOctetString(element, &nested));
  Expect(nested, 4, "04 05 0C 03 61 62 63");

  ASN1_FreeAnybuf(nested);
  ASN1_FreeAnybuf(octets);
  ASN1_FreeAnybuf(content);
  ASN1_FreeAnybuf(element);
  // [/forms]
}

// [failure]
// Makes the SEQUENCE of two numbers. After a failure `out` is as it was.
static int32_t WritePair(uint32_t first, uint32_t second, Anybuf** out) {
  Anybuf* chain = NULL;
  int32_t code = ASN1_WriteInteger(first, &chain);
  if (code == VELKORD_OK) code = ASN1_WriteInteger(second, &chain->next);
  if (code == VELKORD_OK) code = ASN1_WriteSequence(chain, out);
  ASN1_FreeAnybuf(chain);
  return code;
}
// [/failure]

static void ShowTags(void) {
  printf("Reduced tags\n");
  // [tags]
  Anybuf* pair = NULL;
  CHECK(WritePair(5, 300, &pair));
  Expect(pair, 16, "30 07 02 01 05 02 02 01 2C");

  Anybuf* tagged = NULL;
  CHECK(ASN1_WriteExplicit(pair, 3, &tagged));
  Expect(tagged, 0xA3, "A3 09 30 07 02 01 05 02 02 01 2C");

  // The content is an element, but the node keeps the tag that came off.
  Anybuf* inner = NULL;
  uint32_t tag = 0;
  CHECK(ASN1_ReadExplicit(tagged, &inner, &tag));
  Expect(inner, 0xA3, "30 07 02 01 05 02 02 01 2C");
  REQUIRE(tag == 0xA3);

  // This reads the tag from the bytes and makes a TLV node of them.
  Anybuf* again = NULL;
  CHECK(ASN1_WriteExplicitFromDERData(inner->data, inner->dataLen, &again));
  Expect(again, 16, "30 07 02 01 05 02 02 01 2C");
  // [/tags]
  ASN1_FreeAnybuf(again);
  ASN1_FreeAnybuf(inner);
  ASN1_FreeAnybuf(tagged);
  ASN1_FreeAnybuf(pair);
}

static void ShowChains(void) {
  printf("Chains\n");
  // [build_chain]
  Anybuf* chain = NULL;
  Anybuf** end = &chain;  // Where the next node goes.
  for (uint32_t number = 1; number <= 3; ++number) {
    CHECK(ASN1_WriteInteger(number, end));
    end = &(*end)->next;
  }
  Anybuf* sequence = NULL;
  CHECK(ASN1_WriteSequence(chain, &sequence));
  ASN1_FreeAnybuf(chain);  // The head: this releases all three.
  Expect(sequence, 16, "30 09 02 01 01 02 01 02 02 01 03");
  // [/build_chain]

  // [walk_chain]
  Anybuf* elements = NULL;
  uint32_t sum = 0;
  CHECK(ASN1_ReadSequence(sequence, &elements));
  for (const Anybuf* element = elements; element != NULL; element = element->next) {
    uint32_t number = 0;
    CHECK(ASN1_ReadInteger(element, &number));
    sum += number;
  }
  ASN1_FreeAnybuf(elements);
  REQUIRE(sum == 6);
  // [/walk_chain]
  ASN1_FreeAnybuf(sequence);
}

int main(void) {
  ShowForms();
  ShowTags();
  ShowChains();
  return 0;
}
