// The GB2312 table against the published mapping, and whole texts against single characters.
#include <algorithm>
#include <bit>

#include "calls.h"

namespace {

// A sum of what a function returns for each number below `end`, which every single result changes.
uint32_t Sum(uint32_t (*function)(uint32_t), uint32_t end) {
  uint32_t sum = 0;
  for (uint32_t number = 0; number < end; ++number) sum = sum * 31 + function(number);
  return sum;
}

// Both sums were computed apart from this code, from the published mapping as Python's codec gb2312
// has it. A GB code without a row has the code point of the row at which a binary search ends, a
// code point without one the code 0.
TEST(Gb2312, HasTheRowsOfThePublishedMappingAndNoOther) {
  EXPECT_EQ(Sum(ctouni, 0x10000), 0xEFFB95C2U);
  EXPECT_EQ(Sum(unitoc, 0x20000), 0xD8A860EFU);
}

// The conversions of a text, character by character.
std::string FromUtf8(const ByteVector& text) {
  ByteVector out;
  for (size_t at = 0; at < text.size();) {
    const auto ones = static_cast<size_t>(std::countl_one(text[at]));
    const size_t length = ones < 2 || ones > 6 ? 1 : std::min(ones, text.size() - at);
    uint32_t code = 0;
    const int32_t read = utf8ToUni(&text[at], static_cast<int32_t>(length), &code);
    const uint32_t gb = read > 0 ? unitoc(code) : 0;
    if (gb != 0) out.push_back(static_cast<uint8_t>(gb >> 8));
    out.push_back(gb != 0 ? static_cast<uint8_t>(gb) : text[at]);
    at += length;
  }
  return ToHex(out.data(), out.size());
}

std::string ToUtf8(const ByteVector& text) {
  ByteVector out;
  for (size_t at = 0; at + 1 < text.size(); at += 2) {
    uint8_t form[6];
    const int32_t size = uniToUTF8(form, 6, ctouni(zhToWc(&text[at], 2)));
    out.insert(out.end(), form, form + size);
  }
  return ToHex(out.data(), out.size());
}

// Both conversions of a whole text are those of its characters, well formed or not.
TEST(Gb2312, TextsAreConvertedAsTheirCharactersAre) {
  const std::vector<std::string> pieces = {"41", "\"PlainASCII\"", "E5 95 8A", "E2 82 AC", "C3 A9",
                                           "A7 A1", "F0 9F 98 80", "FC 80 80 80 80 80",
                                           // Longer than need be, of characters that the table has.
                                           "E0 82 A4", "E0 90 90", "C1 81", "E5 41 8A", "E5 95",
                                           "E5", "FF", "80"};
  uint32_t state = 1;
  const auto next = [&] { return (state = state * 1103515245 + 12345) >> 16; };
  for (int round = 0; round < 3000; ++round) {
    std::string hex;
    for (uint32_t left = next() % 40; left != 0; --left) {
      hex += pieces[next() % (1 + next() % pieces.size())] + ' ';
    }
    const ByteVector text = FromHex(hex);
    ASSERT_EQ(Call("utf8sToZhs", {hex}), FromUtf8(text));
    ASSERT_EQ(Call("zhsToUtf8s", {hex}), ToUtf8(text));
  }
}

}  // namespace
