// PEM and Base64 text.
#include "guide_tools.h"

// [find_block]
// Finds the first PEM block in a zero-terminated text and gives its size, or null.
static const char* FindBlock(const char* text, uint32_t* length) {
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

static const char kText[] =
    "Two numbers - the first is 5:\r\n"
    "-----BEGIN NUMBER-----\r\n"
    "AgEF\r\n"
    "-----END NUMBER-----\r\n"
    "-----BEGIN NUMBER-----\r\n"
    "AgEG\r\n"
    "-----END NUMBER-----\r\n";

static void ShowBlocks(void) {
  printf("All blocks of a text\n");
  uint32_t sum = 0;
  // [read_blocks]
  uint32_t length = 0;
  const char* block = FindBlock(kText, &length);
  while (block != NULL) {
    uint8_t* der = (uint8_t*)malloc((size_t)length / 4 * 3 + 1);
    uint32_t derLength = 0;
    Require(der != NULL, "memory for a block");
    Check(PEM2DER_data_format(block, length, der, &derLength), "decode a block");

    Anybuf* node = NULL;
    uint32_t number = 0;
    Check(ASN1_WriteExplicitFromDERData(der, derLength, &node), "hold the element");
    Check(ASN1_ReadInteger(node, &number), "read the number");
    sum += number;
    ASN1_FreeAnybuf(node);
    free(der);
    block = FindBlock(block + length, &length);
  }
  // [/read_blocks]
  printf("  the numbers add up to %u\n", (unsigned)sum);
  Require(sum == 11, "sum");
}

static void ShowBase64(void) {
  printf("Base64\n");
  // [base64]
  const uint8_t bytes[] = {0x02, 0x01, 0x05, 0xFF};
  char text[(sizeof bytes + 2) / 3 * 4 + 1];
  base64_encode(bytes, sizeof bytes, text);
  Require(strcmp(text, "AgEF/w==") == 0, "Base64");

  uint8_t again[sizeof text / 4 * 3];
  uint32_t length = 0;
  base64_decode(text, again, &length);
  ExpectBytes(again, length, "02 01 05 FF");
  // [/base64]
}

int main(void) {
  ShowBlocks();
  ShowBase64();
  return 0;
}
