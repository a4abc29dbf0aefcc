// Base64 of plain buffers: base64_encode and base64_decode.
#include "text/base64.h"

#include "Velkord.h"

namespace velkord {

char* PutBase64(char* place, const uint8_t* in, size_t size) {
  const auto put = [&](uint32_t index) { *place++ = kBase64Alphabet[index & 0x3F]; };
  for (; size >= 3; size -= 3, in += 3) {
    const uint32_t group = uint32_t{in[0]} << 16 | uint32_t{in[1]} << 8 | in[2];
    for (const uint32_t shift : {18U, 12U, 6U, 0U}) put(group >> shift);
  }
  if (size == 1) {
    put(in[0] >> 2U);
    put(uint32_t{in[0]} << 4);
    *place++ = '=';
    *place++ = '=';
  } else if (size == 2) {
    put(in[0] >> 2U);
    put(uint32_t{in[0]} << 4 | in[1] >> 4U);
    put(uint32_t{in[1]} << 2);
    *place++ = '=';
  }
  return place;
}

}  // namespace velkord

using namespace velkord;

int32_t base64_encode(const uint8_t* in, uint32_t length, char* out) {
  *PutBase64(out, in, length) = '\0';
  return VELKORD_OK;
}

int32_t base64_decode(const char* text, uint8_t* out, uint32_t* outLength) {
  Base64Decoder decoder(out);
  while (*text != '\0' && decoder.Take(Base64Value(*text))) ++text;
  *outLength = decoder.Written();
  return VELKORD_OK;
}
