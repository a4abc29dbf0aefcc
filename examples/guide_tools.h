// What the programs of the guide share: checks, chains, identifiers and PEM text. A program ends at
// the first step that fails, and then the system takes its memory back.
#ifndef VELKORD_EXAMPLES_GUIDE_TOOLS_H_
#define VELKORD_EXAMPLES_GUIDE_TOOLS_H_

// For setenv.
#define _POSIX_C_SOURCE 200112L  // NOLINT(bugprone-reserved-identifier)

#include <stdbool.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>

#include "Velkord.h"

// [check]
// Ends the program unless a step of it succeeded.
static inline void Check(int32_t code, const char* step) {
  if (code == VELKORD_OK) return;
  (void)fprintf(stderr, "%s: failed with code %d\n", step, (int)code);
  exit(1);
}

// Ends the program unless what it found is as it should be.
static inline void Require(bool holds, const char* what) {
  if (holds) return;
  (void)fprintf(stderr, "%s: not as it should be\n", what);
  exit(1);
}
// [/check]

// Writes up to 60 bytes as "02 01 05".
static inline void HexText(const uint8_t* bytes, uint32_t length, char text[180]) {
  const char digits[] = "0123456789ABCDEF";
  Require(length <= 60, "length of the hexadecimal text");
  for (uint32_t at = 0; at < length; ++at) {
    if (at != 0) *text++ = ' ';
    *text++ = digits[bytes[at] >> 4];
    *text++ = digits[bytes[at] & 0x0F];
  }
  *text = '\0';
}

// [expect]
// Prints bytes, and ends the program when they are not those of `hex`, such as "02 01 05".
static inline void ExpectBytes(const uint8_t* bytes, uint32_t length, const char* hex) {
  char text[180];
  HexText(bytes, length, text);
  printf("  %s\n", text);
  Require(strcmp(text, hex) == 0, hex);
}

// The same of a node's bytes and of its reduced tag.
static inline void Expect(const Anybuf* node, uint32_t dataType, const char* hex) {
  ExpectBytes(node->data, node->dataLen, hex);
  Require(node->dataType == dataType, "reduced tag");
}
// [/expect]

// [utc]
// The library writes and reads local time. This makes UTC of it.
static inline void UseUtc(void) {
  Require(setenv("TZ", "UTC0", 1) == 0, "time zone");
  tzset();
}
// [/utc]

// [chain]
// A chain that knows its last node.
typedef struct Chain {
  Anybuf* head;
  Anybuf* last;
} Chain;

// Appends a node. The chain then holds the node itself, not a copy.
static inline void Append(Chain* chain, Anybuf* node) {
  if (chain->last == NULL) {
    chain->head = node;
  } else {
    chain->last->next = node;
  }
  chain->last = node;
}

// Makes the SEQUENCE of a chain and releases the chain.
static inline Anybuf* Sequence(Chain* chain) {
  Anybuf* sequence = NULL;
  Check(ASN1_WriteSequence(chain->head, &sequence), "write a SEQUENCE");
  ASN1_FreeAnybuf(chain->head);
  *chain = (Chain){NULL, NULL};
  return sequence;
}
// [/chain]

// Makes the SEQUENCE of one node and releases the node.
static inline Anybuf* SequenceOf(Anybuf* node) {
  Chain chain = {node, node};
  return Sequence(&chain);
}

// [object_id]
// Writes the content octets of "2.5.4.3" and the like, and gives their number.
static inline uint32_t ObjectIdOctets(const char* text, uint8_t octets[64]) {
  const size_t size = strlen(text);
  uint32_t length = 0;
  Require(size <= 64, "length of an object identifier");
  Require(ASN1_OBJECT_a2d(octets, &length, text, (int32_t)size) != 0, "object identifier");
  return length;
}

static inline Anybuf* ObjectId(const char* text) {
  uint8_t octets[64];
  const uint32_t length = ObjectIdOctets(text, octets);
  Anybuf* node = NULL;
  Check(ASN1_WriteObjectIdFromData(0, octets, length, &node), "write an object identifier");
  return node;
}

// Whether an OBJECT IDENTIFIER TLV node is that of the text.
static inline bool IsObjectId(const Anybuf* node, const char* text) {
  Anybuf* other = ObjectId(text);
  const bool same =
      node->dataLen == other->dataLen && memcmp(node->data, other->data, node->dataLen) == 0;
  ASN1_FreeAnybuf(other);
  return same;
}
// [/object_id]

// [bit_string]
// Makes a BIT STRING TLV node with a stated number of unused bits.
static inline Anybuf* BitString(const uint8_t* bytes, uint32_t length, uint32_t unusedBits) {
  Anybuf* content = NULL;
  Anybuf* node = NULL;
  Check(ASN1_CreateAnybuf(bytes, length, 3, &content), "hold the bits");
  content->unusedBits = unusedBits;
  Check(ASN1_WriteBitString(content, &node), "write a BIT STRING");
  ASN1_FreeAnybuf(content);
  return node;
}
// [/bit_string]

// [print_pem]
// Prints DER as PEM text. Header and footer are whole lines without their ends.
static inline void PrintPem(const char* header, const char* footer, const Anybuf* der) {
  // Base64, a line end to each 64 characters of it or part of them, both lines with their ends,
  // and the terminating zero.
  const size_t base64 = ((size_t)der->dataLen + 2) / 3 * 4;
  const size_t room = base64 + (base64 + 63) / 64 * 2 + strlen(header) + 2 + strlen(footer) + 2 + 1;
  char* text = (char*)malloc(room);
  uint32_t length = 0;
  Require(text != NULL, "memory for the text");
  Check(DER2PEM_data_format(der->data, der->dataLen, text, &length, header, footer), "write PEM");
  Require(length == room - 1 && fwrite(text, 1, length, stdout) == length, "PEM text");
  free(text);
}
// [/print_pem]

#endif  // VELKORD_EXAMPLES_GUIDE_TOOLS_H_
