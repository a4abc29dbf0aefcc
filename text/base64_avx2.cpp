// Base64 in registers of 32 octets. For AVX2, after Muła and Lemire, "Faster
// Base64 Encoding and Decoding Using AVX2 Instructions" (2018).
#include "text/base64_kernel.h"

#if defined(VELKORD_X86)

#include <emmintrin.h>
#include <immintrin.h>

#include <cstring>
#include <utility>

#include "text/base64_alphabet.h"

// Functions from here on, those of the next header too, are compiled for it.
#if defined(__clang__)
#pragma clang attribute push(__attribute__((target("avx2"))), apply_to = function)
#elif defined(__GNUC__)
#pragma GCC target("avx2")
#endif

#include "text/base64_blocks.h"

namespace velkord::internal {

namespace {

struct Avx2 : LaneAccess<Avx2> {
  using Block = __m256i;

  static Block Load(const void* low, const void* high) {
    return _mm256_set_m128i(LoadLane(high), LoadLane(low));
  }
  static Block LoadBlock(const void* in) {
    Block block;
    std::memcpy(&block, in, sizeof(block));
    return block;
  }
  static void Store(Block block, char* out) { std::memcpy(out, &block, sizeof(block)); }
  template <bool kLast>
  static void StoreGathered(Block block, uint8_t* out) {
    if constexpr (kLast) {
      // In two stores that overlap.
      const Block joined =
          _mm256_permutevar8x32_epi32(block, _mm256_setr_epi32(0, 1, 2, 4, 2, 4, 5, 6));
      StoreLane(_mm256_castsi256_si128(joined), out);
      StoreLane(_mm256_extracti128_si256(joined, 1), out + 8);
    } else {
      StoreLane(_mm256_castsi256_si128(block), out);
      StoreLane(_mm256_extracti128_si256(block, 1), out + 12);
    }
  }

  static Block Words(int32_t word) { return _mm256_set1_epi32(word); }
  static Block TwoTables(const LaneTable& low, const LaneTable& high) {
    return Load(low.octets, high.octets);
  }
  static Block Table(const LaneTable& table) { return TwoTables(table, table); }

  static Block And(Block a, Block b) { return _mm256_and_si256(a, b); }
  static Block Or(Block a, Block b) { return _mm256_or_si256(a, b); }
  static Block Add(Block a, Block b) { return _mm256_add_epi8(a, b); }
  static Block Subtract(Block a, Block b) { return _mm256_sub_epi8(a, b); }
  static Block SubtractToZero(Block a, Block b) { return _mm256_subs_epu8(a, b); }
  static Block Equal(Block a, Block b) { return _mm256_cmpeq_epi8(a, b); }
  static Block Greater(Block a, Block b) { return _mm256_cmpgt_epi8(a, b); }
  static Block Shuffle(Block table, Block places) { return _mm256_shuffle_epi8(table, places); }
  static Block ShiftRight4(Block a) { return _mm256_srli_epi16(a, 4); }
  static Block MultiplyHigh(Block a, Block b) { return _mm256_mulhi_epu16(a, b); }
  static Block MultiplyLow(Block a, Block b) { return _mm256_mullo_epi16(a, b); }
  static Block MultiplyAddOctets(Block a, Block b) { return _mm256_maddubs_epi16(a, b); }
  static Block MultiplyAddPairs(Block a, Block b) { return _mm256_madd_epi16(a, b); }
  static Block Least(Block a, Block b) { return _mm256_min_epu8(a, b); }
  static bool AnyZero(Block a) {
    return _mm256_movemask_epi8(_mm256_cmpeq_epi8(a, _mm256_setzero_si256())) != 0;
  }
};

}  // namespace

size_t EncodeBase64Avx2(const uint8_t* in, size_t size, char* out) {
  return EncodeBlocks<Avx2>(in, size, out);
}

void EncodeBase64LinesAvx2(const uint8_t* in, size_t lines, char* out) {
  EncodeLinesOfBlocks<Avx2>(in, lines, out);
}

size_t DecodeBase64Avx2(const char* in, size_t size, uint8_t* out) {
  return DecodeBlocks<Avx2>(in, size, out);
}

size_t DecodeBase64LinesAvx2(const char* in, size_t lines, size_t lineEnd, uint8_t* out) {
  return DecodeLinesOfBlocks<Avx2>(in, lines, lineEnd, out);
}

}  // namespace velkord::internal

#if defined(__clang__)
#pragma clang attribute pop
#endif

#endif
