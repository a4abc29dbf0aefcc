// Base64 in registers of 64 octets, for AVX-512 VBMI, after Muła and Lemire, "Base64 encoding and
// decoding at almost the speed of a memory copy" (2019): both alphabets are looked up in registers,
// and masks take what is less than a block.
#include "text/base64_kernel.h"

#if defined(VELKORD_X86)

#if defined(__GNUC__) && !defined(__clang__)
// g++ 12 finds registers in its own header that are left undefined, which is meant there.
#pragma GCC diagnostic ignored "-Wuninitialized"
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#endif

#include <immintrin.h>

#include <algorithm>
#include <array>
#include <bit>
#include <utility>

#include "text/base64_alphabet.h"

#if defined(__clang__)
#pragma clang attribute push(__attribute__((target("avx512f,avx512bw,avx512vbmi"))), \
                             apply_to = function)
#elif defined(__GNUC__)
#pragma GCC target("avx512f,avx512bw,avx512vbmi")
#endif

namespace velkord::internal {

namespace {

// A block is a line of PEM.
constexpr size_t kBlockBytes = kLineBytes;
constexpr size_t kBlockCharacters = kLineCharacters;

using Octets = std::array<uint8_t, 64>;

// The bytes b0 b1 b2 of each group as b1 b0 b2 b1.
constexpr Octets kSpread = [] {
  Octets places{};
  for (size_t at = 0; at != places.size(); at += 4) {
    const auto first = static_cast<uint8_t>(at / 4 * 3);
    places[at + 1] = first;
    places[at] = places[at + 3] = static_cast<uint8_t>(first + 1);
    places[at + 2] = static_cast<uint8_t>(first + 2);
  }
  return places;
}();

// Where in 64 bits each index begins. Of one group they are, the highest bit first:
//
//   b1       b2       b0       b1
//   ....cccc ccdddddd aaaaaabb bbbb....
//
// a is the first index, at bit 10, b the second, at bit 4, c the third, at bit 22, d the fourth, at
// bit 16. What stands above an index in its octet does not count in a table of 64 octets.
constexpr Octets kShifts = [] {
  Octets shifts{};
  constexpr uint8_t kOfGroup[] = {10, 4, 22, 16};
  for (size_t at = 0; at != shifts.size(); ++at) {
    shifts[at] = static_cast<uint8_t>(kOfGroup[at % 4] + at / 4 % 2 * 32);
  }
  return shifts;
}();

constexpr Octets kCharacters = [] {
  Octets characters{};
  for (size_t at = 0; at != characters.size(); ++at) {
    characters[at] = static_cast<uint8_t>(kBase64Alphabet[at]);
  }
  return characters;
}();

// The indexes of 64 characters from `first` on; 0x80 for what is none of the alphabet.
constexpr Octets Indexes(size_t first) {
  Octets indexes{};
  for (size_t at = 0; at != indexes.size(); ++at) {
    const uint8_t value = kBase64Values[first + at];
    indexes[at] = value < kBase64Padding ? value : kNotBase64;
  }
  return indexes;
}
constexpr Octets kLowIndexes = Indexes(0);
constexpr Octets kHighIndexes = Indexes(64);

// The three low octets of each 32 bits, the highest first.
constexpr Octets kGather = [] {
  Octets places{};
  for (size_t at = 0; at < kBlockBytes; ++at) {
    places[at] = static_cast<uint8_t>(at / 3 * 4 + 2 - at % 3);
  }
  return places;
}();

inline __m512i Load(const Octets& octets) { return _mm512_loadu_si512(octets.data()); }

constexpr __mmask64 FirstOctets(size_t count) {
  return count == 64 ? ~uint64_t{0} : (uint64_t{1} << count) - 1;
}

// Loads and stores touch the first `count` octets alone.
inline __m512i LoadFirst(size_t count, const void* in) {
  return _mm512_maskz_loadu_epi8(FirstOctets(count), in);
}
inline void StoreFirst(size_t count, __m512i octets, void* out) {
  _mm512_mask_storeu_epi8(out, FirstOctets(count), octets);
}

inline __m512i EncodeBlock(__m512i bytes) {
  const __m512i groups = _mm512_permutexvar_epi8(Load(kSpread), bytes);
  const __m512i indexes = _mm512_multishift_epi64_epi8(Load(kShifts), groups);
  return _mm512_permutexvar_epi8(indexes, Load(kCharacters));
}

// The indexes of characters. For one that is none of the alphabet its octet of `marks` gets the
// high bit.
inline __m512i LookUp(__m512i characters, __m512i& marks) {
  const __m512i indexes =
      _mm512_permutex2var_epi8(Load(kLowIndexes), characters, Load(kHighIndexes));
  // The lookup takes 7 bits of a character, so that its eighth is looked at here: this is the OR of
  // all three.
  marks = _mm512_ternarylogic_epi32(marks, indexes, characters, 0xFE);
  return indexes;
}

inline __m512i Gather(__m512i indexes) {
  // Two indexes to 12 bits, the first times 2^6, and two of those to 24, the first times 2^12.
  const __m512i pairs = _mm512_maddubs_epi16(indexes, _mm512_set1_epi32(0x01400140));
  const __m512i groups = _mm512_madd_epi16(pairs, _mm512_set1_epi32(0x00011000));
  return _mm512_permutexvar_epi8(Load(kGather), groups);
}

// Decodes a block for each of the places, which are 0, 1 and so on. False when one of them holds an
// invalid character; then nothing is written.
template <size_t... kPlaces>
inline bool DecodeRun(const char* in, uint8_t* out, std::index_sequence<kPlaces...> /*places*/) {
  __m512i marks = _mm512_setzero_si512();
  const __m512i blocks[] = {LookUp(_mm512_loadu_si512(in + kPlaces * kBlockCharacters), marks)...};
  if (_mm512_movepi8_mask(marks) != 0) return false;
  (StoreFirst(kBlockBytes, Gather(blocks[kPlaces]), out + kPlaces * kBlockBytes), ...);
  return true;
}

}  // namespace

size_t EncodeBase64Vbmi(const uint8_t* in, size_t size, char* out) {
  size_t taken = 0;
  for (; size - taken >= kBlockBytes; taken += kBlockBytes, out += kBlockCharacters) {
    _mm512_storeu_si512(out, EncodeBlock(LoadFirst(kBlockBytes, in + taken)));
  }
  const size_t groups = (size - taken) / 3;
  if (groups == 0) return taken;
  StoreFirst(4 * groups, EncodeBlock(LoadFirst(3 * groups, in + taken)), out);
  return taken + 3 * groups;
}

void EncodeBase64LinesVbmi(const uint8_t* in, size_t lines, char* out) {
  for (; lines != 0; --lines, in += kLineBytes) {
    _mm512_storeu_si512(out, EncodeBlock(LoadFirst(kLineBytes, in)));
    out = PutLineEnd(out + kLineCharacters);
  }
}

size_t DecodeBase64Vbmi(const char* in, size_t size, uint8_t* out) {
  constexpr size_t kAtOnce = 4;
  size_t taken = 0;
  while (size - taken >= kAtOnce * kBlockCharacters &&
         DecodeRun(in + taken, out, std::make_index_sequence<kAtOnce>())) {
    taken += kAtOnce * kBlockCharacters;
    out += kAtOnce * kBlockBytes;
  }
  while (size - taken >= kBlockCharacters && DecodeRun(in + taken, out, std::index_sequence<0>())) {
    taken += kBlockCharacters;
    out += kBlockBytes;
  }
  // The groups of the last block in front of what is invalid or beyond the end.
  const size_t rest = std::min(size - taken, kBlockCharacters);
  if (rest == 0) return taken;
  __m512i marks = _mm512_setzero_si512();
  const __m512i indexes = LookUp(LoadFirst(rest, in + taken), marks);
  const uint64_t invalid = _mm512_movepi8_mask(marks) | ~FirstOctets(rest);
  const size_t groups = static_cast<size_t>(std::countr_zero(invalid)) / 4;
  StoreFirst(3 * groups, Gather(indexes), out);
  return taken + 4 * groups;
}

size_t DecodeBase64LinesVbmi(const char* in, size_t lines, size_t lineEnd, uint8_t* out) {
  size_t taken = 0;
  while (taken < lines && IsLineEnd(in + kLineCharacters, lineEnd) &&
         DecodeRun(in, out, std::index_sequence<0>())) {
    ++taken;
    in += kLineCharacters + lineEnd;
    out += kLineBytes;
  }
  return taken;
}

}  // namespace velkord::internal

#if defined(__clang__)
#pragma clang attribute pop
#endif

#endif
