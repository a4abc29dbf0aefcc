// Base64 in blocks of 24 bytes and 32 characters, over the vector operations of one instruction
// set, after Muła and Lemire, "Faster Base64 Encoding and Decoding Using AVX2 Instructions" (2018).
//
// `Vector` has the type `Block`, 32 octets in two lanes of 16, and the operations on it. It has
// internal linkage, and so has each function that is made of it here: the code of an instruction
// set stays in the file that is compiled for it.
#ifndef VELKORD_TEXT_BASE64_BLOCKS_H_
#define VELKORD_TEXT_BASE64_BLOCKS_H_

#include <emmintrin.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <utility>

#include "text/base64_alphabet.h"
#include "text/base64_kernel.h"

// The constants of a block stay in registers only where its code is part of the loop.
#if defined(_MSC_VER)
#define VELKORD_ALWAYS_INLINE __forceinline
#else
#define VELKORD_ALWAYS_INLINE inline __attribute__((always_inline))
#endif

namespace velkord::internal {

inline constexpr size_t kBlockBytes = 24;
inline constexpr size_t kBlockCharacters = 32;

// A table of 16 octets, in which each lane looks its own octets up.
struct LaneTable {
  uint8_t octets[16];
};

// The same octet in all places.
template <uint8_t kOctet>
inline constexpr LaneTable kFilled = [] {
  LaneTable table{};
  for (uint8_t& octet : table.octets) octet = kOctet;
  return table;
}();

// Where the bytes 1, 0, 2, 1 of each group stand in a lane whose first group begins at `first`.
constexpr LaneTable SpreadGroups(uint8_t first) {
  LaneTable table{};
  for (size_t at = 0; at < 16; at += 4) {
    const auto group = static_cast<uint8_t>(first + at / 4 * 3);
    table.octets[at + 1] = group;
    table.octets[at] = table.octets[at + 3] = static_cast<uint8_t>(group + 1);
    table.octets[at + 2] = static_cast<uint8_t>(group + 2);
  }
  return table;
}

// A lane is loaded with 16 bytes, of which it uses 12: the low lane the first, the high lane the
// last, so that nothing outside the block is read.
inline constexpr LaneTable kSpreadLow = SpreadGroups(0);
inline constexpr LaneTable kSpreadHigh = SpreadGroups(4);

// The three low octets of each group, the highest first, at the front of the lane.
inline constexpr LaneTable kGather = {
    {2, 1, 0, 6, 5, 4, 10, 9, 8, 14, 13, 12, 0x80, 0x80, 0x80, 0x80}};

// The place of an index in the table of offsets: 0 is for upper case, 1 for lower case, 2 to 11 for
// digits, then '+' and '/'. It is the index minus this, at least 0, and one more from 26 on.
inline constexpr uint8_t kBeforeDigits = 51;
inline constexpr uint8_t kLastUpperCase = 25;

// What is added to an index to make it its character.
inline constexpr LaneTable kCharacterOffsets = [] {
  LaneTable table{};
  table.octets[0] = 'A';
  table.octets[1] = 'a' - 26;
  for (uint8_t index = kBeforeDigits + 1; index < 64; ++index) {
    table.octets[index - kBeforeDigits + 1] = static_cast<uint8_t>(kBase64Alphabet[index] - index);
  }
  return table;
}();

// What is added to a character to make it its index, by its high nibble; '/' takes the place one
// lower than its own.
inline constexpr LaneTable kIndexOffsets = [] {
  LaneTable table{};
  const auto set = [&](size_t place, uint8_t character) {
    table.octets[place] = static_cast<uint8_t>(kBase64Values[character] - character);
  };
  set(1, '/');
  set(2, '+');
  for (uint8_t high = 3; high < 8; ++high) set(high, static_cast<uint8_t>(high << 4 | 1));
  return table;
}();

// A character is valid when the bits of its high nibble and of its low nibble have one in common:
// there is a bit for each high nibble in the alphabet. Of an octet from 0x80 on, a lookup by the
// octet itself finds no bit.
inline constexpr LaneTable kHighBits = [] {
  LaneTable table{};
  for (uint8_t high = 2; high < 8; ++high) {
    table.octets[high] = static_cast<uint8_t>(1U << high);
  }
  return table;
}();
inline constexpr LaneTable kLowBits = [] {
  LaneTable table{};
  for (uint8_t character = 0x20; character < 0x80; ++character) {
    if (kBase64Values[character] < kBase64Padding) {
      table.octets[character & 0x0F] |= kHighBits.octets[character >> 4];
    }
  }
  return table;
}();

// Access to one lane in memory, which `Vector` makes its own by deriving from it.
template <typename Vector>
struct LaneAccess {
  static __m128i LoadLane(const void* in) {
    __m128i lane;
    std::memcpy(&lane, in, sizeof(lane));
    return lane;
  }
  static void StoreLane(__m128i lane, void* out) { std::memcpy(out, &lane, sizeof(lane)); }
  static void StoreHalfLane(__m128i lane, void* out) {
    _mm_storel_epi64(static_cast<__m128i*>(out), lane);
  }
};

template <typename Vector>
VELKORD_ALWAYS_INLINE typename Vector::Block EncodeGroups(typename Vector::Block groups) {
  // 32 bits hold one byte of a group twice. With the bits of its indexes as letters, the highest
  // bit first, a multiplication of either half moves one index down to its octet, and another one
  // up:
  //
  //              b1       b2       b0       b1
  //   groups     bbbbcccc ccdddddd aaaaaabb bbbbcccc
  //   0FC0 FC00  ....cccc cc...... aaaaaa.. ........   down by 6, as 2^10, and by 10, as 2^6
  //   003F 03F0  ........ ..dddddd ......bb bbbb....   up by 8, as 2^8, and by 4, as 2^4
  //   indexes    00dddddd 00cccccc 00bbbbbb 00aaaaaa
  const auto firstAndThird = Vector::MultiplyHigh(Vector::And(groups, Vector::Words(0x0FC0FC00)),
                                                  Vector::Words(0x04000040));
  const auto secondAndFourth = Vector::MultiplyLow(Vector::And(groups, Vector::Words(0x003F03F0)),
                                                   Vector::Words(0x01000010));
  const auto indexes = Vector::Or(firstAndThird, secondAndFourth);

  // What is greater has all its bits set, which is -1.
  const auto places =
      Vector::Subtract(Vector::SubtractToZero(indexes, Vector::Table(kFilled<kBeforeDigits>)),
                       Vector::Greater(indexes, Vector::Table(kFilled<kLastUpperCase>)));
  return Vector::Add(indexes, Vector::Shuffle(Vector::Table(kCharacterOffsets), places));
}

template <typename Vector>
VELKORD_ALWAYS_INLINE typename Vector::Block EncodeBlock(const uint8_t* in) {
  return EncodeGroups<Vector>(
      Vector::Shuffle(Vector::Load(in, in + 8), Vector::TwoTables(kSpreadLow, kSpreadHigh)));
}

// With one load, for a block that has 4 bytes of the input in front of it and 4 after it: now the
// low lane uses its last 12 bytes, and the high lane its first. 7 % faster.
template <typename Vector>
VELKORD_ALWAYS_INLINE typename Vector::Block EncodeInnerBlock(const uint8_t* in) {
  return EncodeGroups<Vector>(
      Vector::Shuffle(Vector::LoadBlock(in - 4), Vector::TwoTables(kSpreadHigh, kSpreadLow)));
}

// The groups of a block of characters. When one of those is invalid, an octet of `marks` gets 0.
template <typename Vector>
VELKORD_ALWAYS_INLINE typename Vector::Block DecodeBlock(const char* in,
                                                         typename Vector::Block& marks) {
  const auto characters = Vector::LoadBlock(in);
  const auto high = Vector::And(Vector::ShiftRight4(characters), Vector::Table(kFilled<0x0F>));
  marks = Vector::Least(marks, Vector::And(Vector::Shuffle(Vector::Table(kHighBits), high),
                                           Vector::Shuffle(Vector::Table(kLowBits), characters)));
  const auto places = Vector::Add(high, Vector::Equal(characters, Vector::Table(kFilled<'/'>)));
  const auto indexes =
      Vector::Add(characters, Vector::Shuffle(Vector::Table(kIndexOffsets), places));
  // Two indexes to 12 bits, the first times 2^6, and two of those to 24, the first times 2^12.
  const auto pairs = Vector::MultiplyAddOctets(indexes, Vector::Words(0x01400140));
  return Vector::Shuffle(Vector::MultiplyAddPairs(pairs, Vector::Words(0x00011000)),
                         Vector::Table(kGather));
}

// Decodes a block for each of the places, which are 0, 1 and so on. False when one of them holds an
// invalid character; then nothing is written. It is no loop, so that all stays in registers. Of the
// lanes, 12 octets each, those of the last block are stored exactly; a block in front of it may
// write 4 octets more, over which the next one is stored.
template <typename Vector, size_t... kPlaces>
VELKORD_ALWAYS_INLINE bool DecodeRun(const char* in, uint8_t* out,
                                     std::index_sequence<kPlaces...> /*places*/) {
  auto marks = Vector::Words(-1);
  const typename Vector::Block blocks[] = {
      DecodeBlock<Vector>(in + kPlaces * kBlockCharacters, marks)...};
  if (Vector::AnyZero(marks)) return false;
  constexpr size_t kLast = sizeof...(kPlaces) - 1;
  (Vector::template StoreGathered<kPlaces == kLast>(blocks[kPlaces], out + kPlaces * kBlockBytes),
   ...);
  return true;
}

template <typename Vector>
size_t EncodeBlocks(const uint8_t* in, size_t size, char* out) {
  size_t taken = 0;
  for (; size - taken >= kBlockBytes; taken += kBlockBytes, out += kBlockCharacters) {
    const bool inner = taken != 0 && size - taken >= kBlockBytes + 4;
    const uint8_t* place = in + taken;
    Vector::Store(inner ? EncodeInnerBlock<Vector>(place) : EncodeBlock<Vector>(place), out);
  }
  return taken;
}

template <typename Vector>
void EncodeLinesOfBlocks(const uint8_t* in, size_t lines, char* out) {
  for (; lines != 0; --lines, in += kLineBytes) {
    const auto front = EncodeBlock<Vector>(in);
    const auto back = EncodeBlock<Vector>(in + kBlockBytes);
    Vector::Store(front, out);
    Vector::Store(back, out + kBlockCharacters);
    out = PutLineEnd(out + kLineCharacters);
  }
}

template <typename Vector>
size_t DecodeBlocks(const char* in, size_t size, uint8_t* out) {
  constexpr size_t kAtOnce = 4;
  size_t taken = 0;
  while (size - taken >= kAtOnce * kBlockCharacters &&
         DecodeRun<Vector>(in + taken, out, std::make_index_sequence<kAtOnce>())) {
    taken += kAtOnce * kBlockCharacters;
    out += kAtOnce * kBlockBytes;
  }
  while (size - taken >= kBlockCharacters &&
         DecodeRun<Vector>(in + taken, out, std::index_sequence<0>())) {
    taken += kBlockCharacters;
    out += kBlockBytes;
  }
  return taken;
}

template <typename Vector>
size_t DecodeLinesOfBlocks(const char* in, size_t lines, size_t lineEnd, uint8_t* out) {
  constexpr size_t kOfLine = kLineCharacters / kBlockCharacters;
  size_t taken = 0;
  while (taken < lines && IsLineEnd(in + kLineCharacters, lineEnd) &&
         DecodeRun<Vector>(in, out, std::make_index_sequence<kOfLine>())) {
    ++taken;
    in += kLineCharacters + lineEnd;
    out += kLineBytes;
  }
  return taken;
}

}  // namespace velkord::internal

#endif  // VELKORD_TEXT_BASE64_BLOCKS_H_
