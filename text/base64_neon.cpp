// Base64 in registers of 16 octets, for NEON on AArch64, after Muła, "Base64 encoding with SIMD
// instructions" and "Base64 decoding with SIMD instructions" (2016): loads and stores deal the
// bytes or characters of each group out to registers of their own. Both alphabets are looked up in
// registers, as Muła and Lemire do it in "Base64 encoding and decoding at almost the speed of a
// memory copy" (2019); four of them are a table of 64 octets.
#include "text/base64_kernel.h"

#if defined(VELKORD_NEON)

#include <arm_neon.h>

#include "text/base64_alphabet.h"

namespace velkord::internal {

namespace {

// A block is 16 groups, a line of PEM: three registers of bytes, four of characters. With the bits
// of the indexes as letters, the octets of a group stand in the same place of them so:
//
//   bytes    aaaaaabb bbbbcccc ccdddddd
//   indexes  00aaaaaa 00bbbbbb 00cccccc 00dddddd
constexpr size_t kBlockBytes = kLineBytes;
constexpr size_t kBlockCharacters = kLineCharacters;

// The intrinsics take characters as octets.
inline const uint8_t* Octets(const char* in) {
  return static_cast<const uint8_t*>(static_cast<const void*>(in));
}
inline uint8_t* Octets(char* out) { return static_cast<uint8_t*>(static_cast<void*>(out)); }

// The low `count` bits of `low`, and above them those of `high`.
template <int count>
inline uint8x16_t Join(uint8x16_t high, uint8x16_t low) {
  return vsliq_n_u8(low, high, count);
}

inline void EncodeBlock(const uint8_t* in, char* out) {
  const uint8x16x4_t characters = vld1q_u8_x4(Octets(kBase64Alphabet));
  const uint8x16_t indexBits = vdupq_n_u8(0x3F);
  const uint8x16x3_t bytes = vld3q_u8(in);
  const uint8x16_t second = Join<4>(bytes.val[0], vshrq_n_u8(bytes.val[1], 4));
  const uint8x16_t third = Join<2>(bytes.val[1], vshrq_n_u8(bytes.val[2], 6));
  const uint8x16x4_t found = {{
      vqtbl4q_u8(characters, vshrq_n_u8(bytes.val[0], 2)),
      vqtbl4q_u8(characters, vandq_u8(second, indexBits)),
      vqtbl4q_u8(characters, vandq_u8(third, indexBits)),
      vqtbl4q_u8(characters, vandq_u8(bytes.val[2], indexBits)),
  }};
  vst4q_u8(Octets(out), found);
}

// The values of characters. A lookup leaves alone what lies beyond its table of 64, and characters
// from 0x80 on lie beyond both.
inline uint8x16_t LookUp(uint8x16_t characters) {
  const uint8x16x4_t low = vld1q_u8_x4(kBase64Values.data());
  const uint8x16x4_t high = vld1q_u8_x4(kBase64Values.data() + 64);
  const uint8x16_t values = vqtbx4q_u8(vdupq_n_u8(kNotBase64), low, characters);
  return vqtbx4q_u8(values, high, vsubq_u8(characters, vdupq_n_u8(64)));
}

// False when a character is none of the alphabet; then nothing is written.
inline bool DecodeBlock(const char* in, uint8_t* out) {
  const uint8x16x4_t characters = vld4q_u8(Octets(in));
  const uint8x16_t first = LookUp(characters.val[0]);
  const uint8x16_t second = LookUp(characters.val[1]);
  const uint8x16_t third = LookUp(characters.val[2]);
  const uint8x16_t fourth = LookUp(characters.val[3]);
  const uint8x16_t all = vorrq_u8(vorrq_u8(first, second), vorrq_u8(third, fourth));
  // Values that are no index have bits that no index has.
  if (vmaxvq_u8(all) >= kBase64Padding) return false;
  const uint8x16x3_t bytes = {{
      Join<2>(first, vshrq_n_u8(second, 4)),
      Join<4>(second, vshrq_n_u8(third, 2)),
      Join<6>(third, fourth),
  }};
  vst3q_u8(out, bytes);
  return true;
}

}  // namespace

size_t EncodeBase64Neon(const uint8_t* in, size_t size, char* out) {
  size_t taken = 0;
  for (; size - taken >= kBlockBytes; taken += kBlockBytes, out += kBlockCharacters) {
    EncodeBlock(in + taken, out);
  }
  return taken;
}

void EncodeBase64LinesNeon(const uint8_t* in, size_t lines, char* out) {
  for (; lines != 0; --lines, in += kLineBytes) {
    EncodeBlock(in, out);
    out = PutLineEnd(out + kLineCharacters);
  }
}

size_t DecodeBase64Neon(const char* in, size_t size, uint8_t* out) {
  size_t taken = 0;
  while (size - taken >= kBlockCharacters && DecodeBlock(in + taken, out)) {
    taken += kBlockCharacters;
    out += kBlockBytes;
  }
  return taken;
}

size_t DecodeBase64LinesNeon(const char* in, size_t lines, size_t lineEnd, uint8_t* out) {
  size_t taken = 0;
  for (; taken < lines; ++taken, in += kLineCharacters + lineEnd, out += kLineBytes) {
    if (!IsLineEnd(in + kLineCharacters, lineEnd) || !DecodeBlock(in, out)) break;
  }
  return taken;
}

}  // namespace velkord::internal

#endif
