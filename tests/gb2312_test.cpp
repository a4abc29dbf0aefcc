// The GB2312 table against the machine's own converter, where it has one.
#if !defined(_WIN32)
#include <iconv.h>
#endif

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

}  // namespace
