// The characters of GB 2312-80 by their code and by their code point, made from the table of them.
#ifndef VELKORD_TEXT_GB2312_INDEX_H_
#define VELKORD_TEXT_GB2312_INDEX_H_

#include <array>
#include <cstddef>
#include <cstdint>

#include "text/gb2312_table.h"

namespace velkord::internal {

// A code in the order of its bytes; both are 0 where there is none.
struct Gb2312Code {
  uint8_t high;
  uint8_t low;
};

inline constexpr uint32_t kFirstByte = 0xA1;
inline constexpr char16_t kLowestCodePoint = 0xA4;
inline constexpr size_t kAssignedCodes = 7445;

struct Gb2312Pair {
  uint16_t gb;
  uint16_t code;
};

// The assigned codes, rising. It serves to make the other tables and is in no program.
inline constexpr std::array<Gb2312Pair, kAssignedCodes> kGb2312Pairs = [] {
  std::array<Gb2312Pair, kAssignedCodes> pairs{};
  size_t at = 0;
  for (uint32_t row = 0; row < kGb2312Rows; ++row) {
    for (uint32_t cell = 0; cell < kGb2312Cells; ++cell) {
      const char16_t code = kGb2312Characters[row][cell];
      if (code < kLowestCodePoint) continue;
      pairs[at++] = {static_cast<uint16_t>((kFirstByte + row) << 8 | (kFirstByte + cell)), code};
    }
  }
  return pairs;
}();

// The code point of the pair that a binary search for `gb` compares last. Where the code has none,
// that is its result.
constexpr uint32_t SearchGb2312(uint32_t gb) {
  size_t low = 0;
  size_t high = kAssignedCodes;
  uint32_t code = 0;
  while (low < high) {
    const size_t middle = (low + high - 1) / 2;
    const Gb2312Pair& pair = kGb2312Pairs[middle];
    code = pair.code;
    if (gb == pair.gb) break;
    if (gb < pair.gb) {
      high = middle;
    } else {
      low = middle + 1;
    }
  }
  return code;
}

// The result of the search for every code of two bytes. All codes between two assigned neighbours
// have one result, so each row has a cell in front for the codes between it and the row before. An
// empty row at each end serves all codes beyond.
class Gb2312CodePoints {
 public:
  constexpr Gb2312CodePoints() {
    for (uint32_t byte = 0; byte < 256; ++byte) {
      const uint32_t row = byte < kFirstRow ? 0 : (byte < kLastRow ? byte : kLastRow) - kFirstRow;
      rowStart_[byte] = static_cast<uint16_t>(row * kColumns);
      column_[byte] = static_cast<uint8_t>(byte < kFirstByte ? 0 : byte - kFirstByte + 1);
    }
    for (const Gb2312Pair& pair : kGb2312Pairs) {
      codes_[rowStart_[pair.gb >> 8] + size_t{column_[pair.gb & 0xFF]}] = pair.code;
    }
    for (uint32_t at = 0; at < codes_.size(); ++at) {
      const uint32_t gb = (kFirstRow + at / kColumns) << 8 | (kFirstByte - 1 + at % kColumns);
      if (codes_[at] == 0) codes_[at] = static_cast<uint16_t>(SearchGb2312(gb));
    }
  }

  constexpr uint32_t Find(uint32_t high, uint32_t low) const {
    return codes_[size_t{rowStart_[high]} + column_[low]];
  }

 private:
  static constexpr uint32_t kFirstRow = kFirstByte - 1;
  static constexpr uint32_t kLastRow = kFirstByte + kGb2312Rows;
  static constexpr uint32_t kColumns = kGb2312Cells + 1;

  std::array<uint16_t, 256> rowStart_{};
  std::array<uint8_t, 256> column_{};
  // The low byte FF is the first column of the next row, so that there is one column after the last
  // row.
  std::array<uint16_t, (kLastRow - kFirstRow + 1) * kColumns + 1> codes_{};
};

inline constexpr size_t kPageSize = 64;
inline constexpr size_t kPlanePages = 0x10000 / kPageSize;

// Pages of code points that have characters, and one that has none.
constexpr size_t CountGb2312Pages() {
  std::array<bool, kPlanePages> used{};
  size_t pages = 1;
  for (const Gb2312Pair& pair : kGb2312Pairs) {
    bool& isUsed = used[pair.code / kPageSize];
    if (!isUsed) ++pages;
    isUsed = true;
  }
  return pages;
}

// Codes by code point, in pages of 64, those without characters sharing page 0. The code points
// below 800, whose UTF-8 has two bytes, have pages of their own, so that an overlong form of three
// bytes finds nothing.
class Gb2312Index {
 public:
  constexpr Gb2312Index() {
    uint16_t pages = 1;
    for (const Gb2312Pair& pair : kGb2312Pairs) {
      uint16_t& start = pageStart_[Page(pair.code)];
      if (start == 0) start = static_cast<uint16_t>(kPageSize * pages++);
      codes_[start + pair.code % kPageSize] = {static_cast<uint8_t>(pair.gb >> 8),
                                               static_cast<uint8_t>(pair.gb)};
    }
  }

  constexpr Gb2312Code Find(uint32_t code) const {
    if (code > 0xFFFF) return {};
    return codes_[pageStart_[Page(code)] + code % kPageSize];
  }

  // By the bits that each byte of the form has, the first two together.
  constexpr Gb2312Code InThreeBytes(uint32_t front, uint32_t last) const {
    return codes_[pageStart_[front] + last];
  }

 private:
  static constexpr size_t kShortPages = 0x800 / kPageSize;

  static constexpr size_t Page(uint32_t code) {
    return code / kPageSize + (code < 0x800 ? kPlanePages : 0);
  }

  std::array<uint16_t, kPlanePages + kShortPages> pageStart_{};
  std::array<Gb2312Code, CountGb2312Pages() * kPageSize> codes_{};
};

inline constexpr Gb2312CodePoints kGb2312CodePoints;
inline constexpr Gb2312Index kGb2312Index;

}  // namespace velkord::internal

#endif  // VELKORD_TEXT_GB2312_INDEX_H_
