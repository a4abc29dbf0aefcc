// PEM and Base64 text.
#include "tools.h"

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
    Anybuf* node = DecodeBlock(block, length);
    uint32_t number = 0;
    CHECK(ASN1_ReadInteger(node, &number));
    sum += number;
    ASN1_FreeAnybuf(node);
    block = FindBlock(block + length, &length);
  }
  // [/read_blocks]
  REQUIRE(sum == 11);
}

static void ShowBase64(void) {
  printf("Base64\n");
  // [base64]
  const uint8_t bytes[] = {0x02, 0x01, 0x05, 0xFF};
  char text[(sizeof bytes + 2) / 3 * 4 + 1];
  CHECK(base64_encode(bytes, sizeof bytes, text));
  REQUIRE(strcmp(text, "AgEF/w==") == 0);

  uint8_t again[sizeof text / 4 * 3];
  uint32_t length = 0;
  CHECK(base64_decode(text, again, &length));
  ExpectBytes(again, length, "02 01 05 FF");
  // [/base64]
}

int main(void) {
  ShowBlocks();
  ShowBase64();
  return 0;
}
