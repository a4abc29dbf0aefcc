// One character between code point and UTF-8: uniToUTF8 and utf8ToUni.
#include "text/utf8.h"

#include "Velkord.h"

namespace {

constexpr int32_t kLongestForm = 6;

// The smallest code point whose form has more than one byte, more than two, and so on.
constexpr uint32_t kFloors[] = {0x80, 0x800, 0x10000, 0x200000, 0x4000000};

constexpr int32_t kTooSmall = -1;
constexpr int32_t kCutOff = -1;
constexpr int32_t kNoFirstByte = -2;
constexpr int32_t kNoContinuation = -3;
constexpr int32_t kOverlong = -4;

}  // namespace

int32_t uniToUTF8(uint8_t* out, int32_t outSize, uint32_t code) {
  int32_t length = 1;
  for (const uint32_t floor : kFloors) length += code >= floor ? 1 : 0;
  if (length > (out == nullptr ? kLongestForm : outSize)) return kTooSmall;
  if (out == nullptr) return length;

  if (length == 1) {
    out[0] = static_cast<uint8_t>(code);
    return length;
  }
  for (int32_t at = length - 1; at > 0; --at, code >>= 6) {
    out[at] = static_cast<uint8_t>(0x80 | (code & 0x3F));
  }
  // As many ones as the form has bytes, then a zero; bit 31 of a code point has no place.
  const uint32_t ones = 0xFF00U >> length & 0xFF;
  out[0] = static_cast<uint8_t>(ones | (code & (0x7FU >> length)));
  return length;
}

int32_t utf8ToUni(const uint8_t* in, int32_t inLen, uint32_t* code) {
  if (inLen < 1) return 0;
  const auto length = static_cast<int32_t>(velkord::internal::Utf8Length(in[0]));
  if (length == 0) return kNoFirstByte;
  if (inLen < length) return kCutOff;
  uint32_t value = length == 1 ? in[0] : in[0] & (0x7FU >> length);
  for (int32_t at = 1; at < length; ++at) {
    if ((in[at] & 0xC0) != 0x80) return kNoContinuation;
    value = value << 6 | (in[at] & 0x3F);
  }
  if (length > 1 && value < kFloors[length - 2]) return kOverlong;
  *code = value;
  return length;
}
