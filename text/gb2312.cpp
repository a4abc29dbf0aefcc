// GB2312 codes, code points and UTF-8: one character and whole texts.
#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include "Velkord.h"
#include "text/gb2312_table.h"
#include "text/utf8.h"

namespace velkord {
namespace {

constexpr uint32_t kFirstByte = 0xA1;
constexpr size_t kRows = 7445;
constexpr char16_t kLowestCodePoint = 0xA4;

struct Gb2312Row {
  uint16_t gb;
  uint16_t code;
};

// Calls `visit` with the GB code and the code point of each assigned character, GB codes rising.
template <typename Visit>
constexpr void ForEachCharacter(Visit visit) {
  for (uint32_t row = 0; row < kGb2312Rows; ++row) {
    for (uint32_t cell = 0; cell < kGb2312Cells; ++cell) {
      const char16_t code = kGb2312Characters[row][cell];
      if (code < kLowestCodePoint) continue;
      visit(static_cast<uint16_t>((kFirstByte + row) << 8 | (kFirstByte + cell)), code);
    }
  }
}

constexpr std::array<Gb2312Row, kRows> kGb2312Table = [] {
  std::array<Gb2312Row, kRows> table{};
  size_t at = 0;
  ForEachCharacter([&](uint16_t gb, char16_t code) { table[at++] = {gb, code}; });
  return table;
}();

// GB codes by code point: pages of 256, those without characters sharing page 0.
constexpr size_t PageCount() {
  std::array<bool, 256> used{};
  size_t pages = 1;
  for (const Gb2312Row& row : kGb2312Table) {
    if (!used[row.code >> 8]) ++pages;
    used[row.code >> 8] = true;
  }
  return pages;
}

struct CodePointIndex {
  std::array<uint8_t, 256> pageOf{};
  std::array<std::array<uint16_t, 256>, PageCount()> pages{};
};

constexpr CodePointIndex kCodePointIndex = [] {
  CodePointIndex index;
  uint8_t pages = 1;
  for (const Gb2312Row& row : kGb2312Table) {
    uint8_t& page = index.pageOf[row.code >> 8];
    if (page == 0) page = pages++;
    index.pages[page][row.code & 0xFF] = row.gb;
  }
  return index;
}();

// The code point of the row that a binary search for `gb` compares last.
uint32_t SearchTable(uint32_t gb) {
  int32_t low = 0;
  int32_t high = kRows - 1;
  uint32_t code = 0;
  while (low <= high) {
    const int32_t middle = (low + high) / 2;
    const Gb2312Row& row = kGb2312Table[static_cast<size_t>(middle)];
    code = row.code;
    if (gb == row.gb) break;
    if (gb < row.gb) {
      high = middle - 1;
    } else {
      low = middle + 1;
    }
  }
  return code;
}

}  // namespace
}  // namespace velkord

using namespace velkord;

uint32_t ctouni(uint32_t gb) {
  const uint32_t row = (gb >> 8) - kFirstByte;
  const uint32_t cell = (gb & 0xFF) - kFirstByte;
  if (row < kGb2312Rows && cell < kGb2312Cells) {
    const char16_t code = kGb2312Characters[row][cell];
    if (code >= kLowestCodePoint) return code;
  }
  return SearchTable(gb);
}

uint32_t unitoc(uint32_t code) {
  if (code > 0xFFFF) return 0;
  return kCodePointIndex.pages[kCodePointIndex.pageOf[code >> 8]][code & 0xFF];
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
  for (int32_t left = inLen; left >= 2; left -= 2, in += 2) {
    // Every code point of the table takes three bytes at most, and the caller gives that room.
    place += uniToUTF8(place, 3, ctouni(zhToWc(in, 2)));
  }
  *outLen = static_cast<uint32_t>(place - out);
}

void utf8sToZhs(const uint8_t* in, uint32_t inLen, uint8_t* out, uint32_t* outLen) {
  uint32_t written = 0;
  for (uint32_t at = 0; in != nullptr && at < inLen;) {
    const uint32_t left = inLen - at;
    const uint32_t length = std::min(std::max(Utf8Length(in[at]), 1U), left);
    uint32_t code = 0;
    const bool decoded = utf8ToUni(in + at, static_cast<int32_t>(length), &code) > 0;
    const uint32_t gb = decoded ? unitoc(code) : 0;
    if (gb != 0) {
      uint32_t size;
      wcToZh(out + written, &size, static_cast<int32_t>(gb));
      written += size;
    } else {
      out[written++] = in[at];
    }
    at += length;
  }
  *outLen = written;
}
