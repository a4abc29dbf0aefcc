// Base64 in pairs of registers of 16 octets, for SSSE3, by the method that text/base64_blocks.h
// tells.
#include "text/base64_kernel.h"

#if defined(VELKORD_X86)

#include <emmintrin.h>
#include <immintrin.h>

#include <cstring>
#include <utility>

#include "text/base64_alphabet.h"

// Functions from here on, those of the next header too, are compiled for it.
#if defined(__clang__)
#pragma clang attribute push(__attribute__((target("ssse3"))), apply_to = function)
#elif defined(__GNUC__)
#pragma GCC target("ssse3")
#endif

#include "text/base64_blocks.h"

namespace velkord::internal {

namespace {

struct Ssse3 : LaneAccess<Ssse3> {
  struct Block {
    __m128i low;
    __m128i high;
  };

  static Block Load(const void* low, const void* high) { return {LoadLane(low), LoadLane(high)}; }
  static Block LoadBlock(const char* in) { return Load(in, in + 16); }
  static Block LoadBlock(const uint8_t* in) { return Load(in, in + 16); }
  static void Store(Block block, char* out) {
    StoreLane(block.low, out);
    StoreLane(block.high, out + 16);
  }
  template <bool kLast>
  static void StoreGathered(Block block, uint8_t* out) {
    if constexpr (kLast) {
      StoreLane(_mm_or_si128(block.low, _mm_slli_si128(block.high, 12)), out);
      StoreHalfLane(_mm_srli_si128(block.high, 4), out + 16);
    } else {
      StoreLane(block.low, out);
      StoreLane(block.high, out + 12);
    }
  }

  static Block Words(int32_t word) { return {_mm_set1_epi32(word), _mm_set1_epi32(word)}; }
  static Block TwoTables(const LaneTable& low, const LaneTable& high) {
    return Load(low.octets, high.octets);
  }
  static Block Table(const LaneTable& table) { return TwoTables(table, table); }

  static Block And(Block a, Block b) {
    return {_mm_and_si128(a.low, b.low), _mm_and_si128(a.high, b.high)};
  }
  static Block Or(Block a, Block b) {
    return {_mm_or_si128(a.low, b.low), _mm_or_si128(a.high, b.high)};
  }
  static Block Add(Block a, Block b) {
    return {_mm_add_epi8(a.low, b.low), _mm_add_epi8(a.high, b.high)};
  }
  static Block Subtract(Block a, Block b) {
    return {_mm_sub_epi8(a.low, b.low), _mm_sub_epi8(a.high, b.high)};
  }
  static Block SubtractToZero(Block a, Block b) {
    return {_mm_subs_epu8(a.low, b.low), _mm_subs_epu8(a.high, b.high)};
  }
  static Block Equal(Block a, Block b) {
    return {_mm_cmpeq_epi8(a.low, b.low), _mm_cmpeq_epi8(a.high, b.high)};
  }
  static Block Greater(Block a, Block b) {
    return {_mm_cmpgt_epi8(a.low, b.low), _mm_cmpgt_epi8(a.high, b.high)};
  }
  static Block Shuffle(Block table, Block places) {
    return {_mm_shuffle_epi8(table.low, places.low), _mm_shuffle_epi8(table.high, places.high)};
  }
  static Block ShiftRight4(Block a) {
    return {_mm_srli_epi16(a.low, 4), _mm_srli_epi16(a.high, 4)};
  }
  static Block MultiplyHigh(Block a, Block b) {
    return {_mm_mulhi_epu16(a.low, b.low), _mm_mulhi_epu16(a.high, b.high)};
  }
  static Block MultiplyLow(Block a, Block b) {
    return {_mm_mullo_epi16(a.low, b.low), _mm_mullo_epi16(a.high, b.high)};
  }
  static Block MultiplyAddOctets(Block a, Block b) {
    return {_mm_maddubs_epi16(a.low, b.low), _mm_maddubs_epi16(a.high, b.high)};
  }
  static Block MultiplyAddPairs(Block a, Block b) {
    return {_mm_madd_epi16(a.low, b.low), _mm_madd_epi16(a.high, b.high)};
  }
  static Block Least(Block a, Block b) {
    return {_mm_min_epu8(a.low, b.low), _mm_min_epu8(a.high, b.high)};
  }
  static bool AnyZero(Block a) {
    const __m128i least = _mm_min_epu8(a.low, a.high);
    return _mm_movemask_epi8(_mm_cmpeq_epi8(least, _mm_setzero_si128())) != 0;
  }
};

}  // namespace

size_t EncodeBase64Ssse3(const uint8_t* in, size_t size, char* out) {
  return EncodeBlocks<Ssse3>(in, size, out);
}

void EncodeBase64LinesSsse3(const uint8_t* in, size_t lines, char* out) {
  EncodeLinesOfBlocks<Ssse3>(in, lines, out);
}

size_t DecodeBase64Ssse3(const char* in, size_t size, uint8_t* out) {
  return DecodeBlocks<Ssse3>(in, size, out);
}

size_t DecodeBase64LinesSsse3(const char* in, size_t lines, size_t lineEnd, uint8_t* out) {
  return DecodeLinesOfBlocks<Ssse3>(in, lines, lineEnd, out);
}

}  // namespace velkord::internal

#if defined(__clang__)
#pragma clang attribute pop
#endif

#endif
