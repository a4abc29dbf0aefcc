// The bulk work of Base64, once for each instruction set.
#ifndef VELKORD_TEXT_BASE64_KERNEL_H_
#define VELKORD_TEXT_BASE64_KERNEL_H_

#include <cstddef>
#include <cstdint>
#include <span>

#include "platform/processor.h"

// Every AArch64 processor has NEON, so that there is nothing to ask.
#if (defined(__AARCH64EL__) && defined(__ARM_NEON)) || defined(_M_ARM64)
#define VELKORD_NEON
#endif

namespace velkord::internal {

// A full line of PEM text, which ends with CR LF.
inline constexpr size_t kLineBytes = 48;
inline constexpr size_t kLineCharacters = 64;

// It has internal linkage, so that no other file uses a copy compiled for an instruction set.
static inline char* PutLineEnd(char* place) {
  *place++ = '\r';
  *place++ = '\n';
  return place;
}

// Whether a line end of one octet, LF, or of two, CR LF, is at a place.
static inline bool IsLineEnd(const char* place, size_t size) {
  return place[size - 1] == '\n' && (size == 1 || place[0] == '\r');
}

// `encode` and `decode` take complete groups from the front of `in`, as many as suit them, and
// return the number of bytes or characters taken. They read nothing but `in`, and write nothing
// but the result of those groups.
struct Base64Kernel {
  // Groups of three bytes.
  size_t (*encode)(const uint8_t* in, size_t size, char* out);
  // That many full lines with their ends.
  void (*encodeLines)(const uint8_t* in, size_t lines, char* out);
  // Groups of four characters of the alphabet, up to the first group that holds any other.
  size_t (*decode)(const char* in, size_t size, uint8_t* out);
  // At most that many full lines of such groups, each with a line end of `lineEnd` octets. Returns
  // the number of lines taken, in front of the first that is different.
  size_t (*decodeLines)(const char* in, size_t lines, size_t lineEnd, uint8_t* out);
};

// The kernels that may be run on that many octets, the fastest first. The last is the portable one,
// which takes every complete group. It is alone where the platform does not tell what the processor
// can do and the text is too short to ask.
std::span<const Base64Kernel> Base64Kernels(size_t octets);

#if defined(VELKORD_X86)
size_t EncodeBase64Vbmi(const uint8_t* in, size_t size, char* out);
void EncodeBase64LinesVbmi(const uint8_t* in, size_t lines, char* out);
size_t DecodeBase64Vbmi(const char* in, size_t size, uint8_t* out);
size_t DecodeBase64LinesVbmi(const char* in, size_t lines, size_t lineEnd, uint8_t* out);
size_t EncodeBase64Avx2(const uint8_t* in, size_t size, char* out);
void EncodeBase64LinesAvx2(const uint8_t* in, size_t lines, char* out);
size_t DecodeBase64Avx2(const char* in, size_t size, uint8_t* out);
size_t DecodeBase64LinesAvx2(const char* in, size_t lines, size_t lineEnd, uint8_t* out);
size_t EncodeBase64Ssse3(const uint8_t* in, size_t size, char* out);
void EncodeBase64LinesSsse3(const uint8_t* in, size_t lines, char* out);
size_t DecodeBase64Ssse3(const char* in, size_t size, uint8_t* out);
size_t DecodeBase64LinesSsse3(const char* in, size_t lines, size_t lineEnd, uint8_t* out);
#endif
#if defined(VELKORD_NEON)
size_t EncodeBase64Neon(const uint8_t* in, size_t size, char* out);
void EncodeBase64LinesNeon(const uint8_t* in, size_t lines, char* out);
size_t DecodeBase64Neon(const char* in, size_t size, uint8_t* out);
size_t DecodeBase64LinesNeon(const char* in, size_t lines, size_t lineEnd, uint8_t* out);
#endif

}  // namespace velkord::internal

#endif  // VELKORD_TEXT_BASE64_KERNEL_H_
