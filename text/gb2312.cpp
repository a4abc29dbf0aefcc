// GB2312 codes, code points and UTF-8, of one character and of texts.
#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>

#include "Velkord.h"
#include "text/gb2312_index.h"
#include "text/utf8.h"

using namespace velkord::internal;

namespace {

// ASCII is copied in words of this size. What is written past the end of a run is overwritten by
// what follows, which is long enough: six bytes of input become at least one.
using Word = uint64_t;
constexpr uint32_t kEnoughAfterRun = 6 * sizeof(Word);

// Copies the ASCII that a word of the input begins with, and returns its size.
uint32_t CopyAscii(const uint8_t* in, uint8_t* out) {
  Word word;
  std::memcpy(&word, in, sizeof word);
  std::memcpy(out, &word, sizeof word);
  const Word others = word & 0x8080808080808080U;
  const int bits = std::endian::native == std::endian::little ? std::countr_zero(others)
                                                              : std::countl_zero(others);
  return static_cast<uint32_t>(bits) / 8;
}

// The code of a form of three bytes, all zero when these are no such form.
Gb2312Code ThreeByteCode(const uint8_t* in) {
  const uint32_t first = in[0] ^ 0xE0U;
  const uint32_t second = in[1] ^ 0x80U;
  const uint32_t third = in[2] ^ 0x80U;
  if ((first & 0xF0) != 0 || ((second | third) & 0xC0) != 0) return {};
  return kGb2312Index.InThreeBytes(first << 6 | second, third);
}

// Writes the form of a code point of the table, two or three bytes, and returns the place after it.
uint8_t* PutUtf8(uint8_t* place, uint32_t code) {
  const auto last = static_cast<uint8_t>(0x80 | (code & 0x3F));
  if (code < 0x800) {
    place[0] = static_cast<uint8_t>(0xC0 | code >> 6);
    place[1] = last;
    return place + 2;
  }
  place[0] = static_cast<uint8_t>(0xE0 | code >> 12);
  place[1] = static_cast<uint8_t>(0x80 | (code >> 6 & 0x3F));
  place[2] = last;
  return place + 3;
}

}  // namespace

uint32_t ctouni(uint32_t gb) {
  gb = std::min(gb, 0xFFFFU);
  return kGb2312CodePoints.Find(gb >> 8, gb & 0xFF);
}

uint32_t unitoc(uint32_t code) {
  const Gb2312Code gb = kGb2312Index.Find(code);
  return uint32_t{gb.high} << 8 | gb.low;
}

uint32_t zhToWc(const uint8_t* in, uint32_t n) {
  const uint32_t high = n > 0 ? in[0] : 0;
  const uint32_t low = n > 1 ? in[1] : 0;
  return high << 8 | low;
}

void wcToZh(uint8_t* out, uint32_t* outLen, int32_t code) {
  out[0] = static_cast<uint8_t>(code >> 8);
  out[1] = static_cast<uint8_t>(code);
  *outLen = 2;
}

void zhsToUtf8s(const uint8_t* in, int32_t inLen, uint8_t* out, uint32_t* outLen) {
  uint8_t* place = out;
  for (int32_t pairs = inLen / 2; pairs > 0; --pairs, in += 2) {
    place = PutUtf8(place, kGb2312CodePoints.Find(in[0], in[1]));
  }
  *outLen = static_cast<uint32_t>(place - out);
}

void utf8sToZhs(const uint8_t* in, uint32_t inLen, uint8_t* out, uint32_t* outLen) {
  uint8_t* place = out;
  uint32_t left = in == nullptr ? 0 : inLen;
  while (left != 0) {
    if (in[0] < 0x80 && left >= sizeof(Word) + kEnoughAfterRun) {
      const uint32_t size = CopyAscii(in, place);
      in += size;
      place += size;
      left -= size;
      continue;
    }
    Gb2312Code gb = {};
    uint32_t length = 3;
    if (left >= 3) gb = ThreeByteCode(in);
    if (gb.high == 0) {
      length = std::min(std::max(Utf8Length(in[0]), 1U), left);
      uint32_t code = 0;
      if (utf8ToUni(in, static_cast<int32_t>(length), &code) > 0) gb = kGb2312Index.Find(code);
    }
    if (gb.high != 0) {
      *place++ = gb.high;
      *place++ = gb.low;
    } else {
      *place++ = in[0];
    }
    in += length;
    left -= length;
  }
  *outLen = static_cast<uint32_t>(place - out);
}
