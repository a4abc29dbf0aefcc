// What all programs of the guide share: checks, small elements, object identifiers and PEM text. A
// program ends at the first step that fails, and then the system takes its memory back.
#ifndef VELKORD_EXAMPLES_GUIDE_TOOLS_H_
#define VELKORD_EXAMPLES_GUIDE_TOOLS_H_

// For setenv.
#define _POSIX_C_SOURCE 200112L  // NOLINT(bugprone-reserved-identifier)

#include <stdbool.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "Velkord.h"

// [check]
// Ends the program, with the text of the call, unless a call of the library succeeded.
#define CHECK(call) CheckCode(call, #call)

static inline void CheckCode(int32_t code, const char* call) {
  if (code == VELKORD_OK) return;
  (void)fprintf(stderr, "%s returned %d\n", call, (int)code);
  exit(1);
}

// Ends the program, with the text of the condition, unless it holds.
#define REQUIRE(condition) RequireTrue(condition, #condition)

static inline void RequireTrue(bool holds, const char* condition) {
  if (holds) return;
  (void)fprintf(stderr, "%s does not hold\n", condition);
  exit(1);
}
// [/check]

// [expect]
// Prints bytes, and ends the program when they are not those of `hex`, such as "02 01 05".
static inline void ExpectBytes(const uint8_t* bytes, uint32_t length, const char* hex) {
  char text[3 * 60 + 1] = "";
  REQUIRE(length <= 60);
  for (size_t at = 0; at < length; ++at) (void)snprintf(text + 3 * at, 4, " %02X", bytes[at]);
  printf(" %s\n", text);
  REQUIRE(strcmp(text + 1, hex) == 0);
}

// The same of a node's bytes and of its reduced tag.
static inline void Expect(const Anybuf* node, uint32_t dataType, const char* hex) {
  ExpectBytes(node->data, node->dataLen, hex);
  REQUIRE(node->dataType == dataType);
}
// [/expect]

static inline bool SameBytes(const Anybuf* one, const Anybuf* other) {
  return one->dataLen == other->dataLen && memcmp(one->data, other->data, one->dataLen) == 0;
}

// [utc]
// The library writes and reads local time. This makes UTC of it.
static inline void UseUtc(void) { REQUIRE(setenv("TZ", "UTC0", 1) == 0); }
// [/utc]

// [elements]
// Makes the TLV node of an element.
static inline Anybuf* Element(const uint8_t* der, uint32_t length) {
  Anybuf* node = NULL;
  CHECK(ASN1_WriteExplicitFromDERData(der, length, &node));
  return node;
}

static inline Anybuf* Integer(uint32_t number) {
  Anybuf* node = NULL;
  CHECK(ASN1_WriteInteger(number, &node));
  return node;
}

// Makes the SEQUENCE of a chain and releases the chain.
static inline Anybuf* Sequence(Anybuf* chain) {
  Anybuf* sequence = NULL;
  CHECK(ASN1_WriteSequence(chain, &sequence));
  ASN1_FreeAnybuf(chain);
  return sequence;
}

// Makes the SET of a chain and releases the chain.
static inline Anybuf* Set(Anybuf* chain) {
  Anybuf* set = NULL;
  CHECK(ASN1_WriteSet(chain, &set));
  ASN1_FreeAnybuf(chain);
  return set;
}
// [/elements]

// [bit_string]
// Makes a BIT STRING TLV node with a stated number of unused bits.
static inline Anybuf* BitString(const uint8_t* bytes, uint32_t length, uint32_t unusedBits) {
  Anybuf* content = NULL;
  Anybuf* node = NULL;
  CHECK(ASN1_CreateAnybuf(bytes, length, 3, &content));
  content->unusedBits = unusedBits;
  CHECK(ASN1_WriteBitString(content, &node));
  ASN1_FreeAnybuf(content);
  return node;
}
// [/bit_string]

// [object_id]
// Writes the content octets of "2.5.4.3" and the like, and returns their number.
static inline uint32_t ObjectIdOctets(const char* text, uint8_t octets[64]) {
  uint32_t length = 0;
  REQUIRE(strlen(text) <= 64);
  REQUIRE(ASN1_OBJECT_a2d(octets, &length, text, (int32_t)strlen(text)) != 0);
  return length;
}

static inline Anybuf* ObjectId(const char* text) {
  uint8_t octets[64];
  const uint32_t length = ObjectIdOctets(text, octets);
  Anybuf* node = NULL;
  CHECK(ASN1_WriteObjectIdFromData(0, octets, length, &node));
  return node;
}

// Whether an OBJECT IDENTIFIER TLV node is that of the text.
static inline bool IsObjectId(const Anybuf* node, const char* text) {
  Anybuf* other = ObjectId(text);
  const bool same = SameBytes(node, other);
  ASN1_FreeAnybuf(other);
  return same;
}
// [/object_id]

// [print_pem]
// Prints DER as PEM text. Header and footer are whole lines without their ends.
static inline void PrintPem(const char* header, const char* footer, const Anybuf* der) {
  // Base64, two bytes of line end to each 64 characters of it or part of them, both lines with
  // their ends, and the terminating zero.
  const size_t base64 = ((size_t)der->dataLen + 2) / 3 * 4;
  const size_t room = base64 + (base64 + 63) / 64 * 2 + strlen(header) + 2 + strlen(footer) + 2 + 1;
  char* text = (char*)malloc(room);
  uint32_t length = 0;
  REQUIRE(text != NULL);
  CHECK(DER2PEM_data_format(der->data, der->dataLen, text, &length, header, footer));
  REQUIRE(length == room - 1 && fwrite(text, 1, length, stdout) == length);
  free(text);
}
// [/print_pem]

// [find_block]
// Finds the first PEM block in a zero-terminated text and stores its size. Returns null for none.
static inline const char* FindBlock(const char* text, uint32_t* length) {
  const char* begin = strstr(text, "-----BEGIN ");
  if (begin == NULL) return NULL;
  const char* footer = strstr(begin, "-----END ");
  if (footer == NULL) return NULL;
  const char* dashes = strstr(footer + strlen("-----END "), "-----");
  if (dashes == NULL) return NULL;
  *length = (uint32_t)(dashes + strlen("-----") - begin);
  return begin;
}
// [/find_block]

// [decode_block]
// Makes the TLV node of what a PEM block holds.
static inline Anybuf* DecodeBlock(const char* block, uint32_t length) {
  uint8_t* der = (uint8_t*)malloc((size_t)length / 4 * 3 + 1);
  uint32_t derLength = 0;
  REQUIRE(der != NULL && memchr(block, ':', length) == NULL);  // No header lines.
  CHECK(PEM2DER_data_format(block, length, der, &derLength));
  Anybuf* node = Element(der, derLength);
  free(der);
  return node;
}
// [/decode_block]

#endif  // VELKORD_EXAMPLES_GUIDE_TOOLS_H_
