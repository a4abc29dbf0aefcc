// The GB2312 table against the machine's own converter, where it has one.
#if !defined(_WIN32)
#include <iconv.h>
#endif

#include <algorithm>
#include <iterator>

#include "hex.h"

namespace {

#if !defined(_WIN32)

// The code point that the converter gives for two bytes, or 0.
uint32_t Converted(iconv_t converter, uint32_t gb) {
  char in[] = {static_cast<char>(gb >> 8), static_cast<char>(gb)};
  uint8_t out[8] = {};
  char* from = in;
  char* to = reinterpret_cast<char*>(out);
  size_t left = sizeof in;
  size_t room = sizeof out;
  const size_t result = iconv(converter, &from, &left, &to, &room);
  iconv(converter, nullptr, nullptr, nullptr, nullptr);
  if (result != 0 || left != 0 || room != sizeof out - 4) return 0;
  return uint32_t{out[0]} << 24 | uint32_t{out[1]} << 16 | uint32_t{out[2]} << 8 | out[3];
}

TEST(Gb2312, HasTheRowsOfThePublishedMappingAndNoOther) {
  iconv_t converter = iconv_open("UCS-4BE", "GB2312");
  ASSERT_NE(reinterpret_cast<intptr_t>(converter), -1);
  std::vector<uint32_t> gbOf(0x10000, 0);
  size_t rows = 0;
  for (uint32_t gb = 0; gb <= 0xFFFF; ++gb) {
    const uint32_t code = Converted(converter, gb);
    if (code == 0) continue;
    ++rows;
    gbOf.at(code) = gb;
    EXPECT_EQ(ctouni(gb), code);
  }
  iconv_close(converter);
  EXPECT_EQ(rows, 7445U);
  for (uint32_t code = 0; code < gbOf.size(); ++code) EXPECT_EQ(unitoc(code), gbOf[code]);
}
#endif

// A code without a row gives the row at which the search ends. The sum over all codes was computed
// apart from this code, from the published mapping and the search by halves.
TEST(Gb2312, MissesEndWhereTheSearchEnds) {
  uint32_t sum = 0;
  for (uint32_t gb = 0; gb <= 0xFFFF; ++gb) sum = sum * 31 + ctouni(gb);
  EXPECT_EQ(sum, 0xEFFB95C2U);
}

constexpr uint8_t kUntouched = 0x5A;

ByteVector FromUtf8(const ByteVector& text) {
  ByteVector out;
  for (size_t at = 0; at < text.size();) {
    constexpr uint8_t kFloors[] = {0xC0, 0xE0, 0xF0, 0xF8, 0xFC, 0xFE};
    const auto* floor = std::upper_bound(std::begin(kFloors), std::end(kFloors), text[at]);
    const auto longer = static_cast<size_t>(floor - std::begin(kFloors));
    const size_t length = longer == 6 ? 1 : std::min(longer + 1, text.size() - at);
    uint32_t code = 0;
    const int32_t read = utf8ToUni(&text[at], static_cast<int32_t>(length), &code);
    const uint32_t gb = read > 0 ? unitoc(code) : 0;
    if (gb != 0) out.push_back(static_cast<uint8_t>(gb >> 8));
    out.push_back(gb != 0 ? static_cast<uint8_t>(gb) : text[at]);
    at += length;
  }
  return out;
}

ByteVector ToUtf8(const ByteVector& text) {
  ByteVector out;
  for (size_t at = 0; at + 1 < text.size(); at += 2) {
    uint8_t form[6];
    const int32_t size = uniToUTF8(form, 6, ctouni(zhToWc(&text[at], 2)));
    out.insert(out.end(), form, form + size);
  }
  return out;
}

// Both conversions of a whole text are those of its characters, well formed or not, and leave what
// lies behind their result alone.
TEST(Gb2312, TextsAreConvertedAsTheirCharactersAre) {
  const std::vector<std::string> pieces = {
      "A", "plain ASCII", "\xE5\x95\x8A", "\xE2\x82\xAC", "\xC3\xA9", "\xF0\x9F\x98\x80",
      "\xFC\x80\x80\x80\x80\x80",
      // Longer than need be, of a character that the table has.
      "\xE0\x82\xA4", "\xC1\x81", "\xE5\x41\x8A", "\xE5\x95", "\xE5", "\xFF", "\x80"};
  uint32_t state = 1;
  const auto next = [&] { return (state = state * 1103515245 + 12345) >> 16; };
  for (int round = 0; round < 3000; ++round) {
    ByteVector text;
    for (uint32_t left = next() % 40; left != 0; --left) {
      const std::string& piece = pieces[next() % (1 + next() % pieces.size())];
      text.insert(text.end(), piece.begin(), piece.end());
    }
    ByteVector out(text.size(), kUntouched);
    uint32_t size = 0;
    utf8sToZhs(text.data(), static_cast<uint32_t>(text.size()), out.data(), &size);
    ByteVector wanted = FromUtf8(text);
    ASSERT_EQ(size, wanted.size());
    wanted.resize(out.size(), kUntouched);
    ASSERT_EQ(out, wanted) << round;

    out.assign(text.size() / 2 * 3, kUntouched);
    zhsToUtf8s(text.data(), static_cast<int32_t>(text.size()), out.data(), &size);
    wanted = ToUtf8(text);
    ASSERT_EQ(size, wanted.size());
    wanted.resize(out.size(), kUntouched);
    ASSERT_EQ(out, wanted) << round;
  }
}

}  // namespace
