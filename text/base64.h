// Base64 of RFC 4648: what the plain functions and PEM share.
#ifndef VELKORD_TEXT_BASE64_H_
#define VELKORD_TEXT_BASE64_H_

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "text/base64_kernel.h"

namespace velkord::internal {

// Writes the characters of `size` bytes with padding, and returns the place after them.
char* PutBase64(const Base64Kernel& kernel, const uint8_t* in, size_t size, char* place);

// How a character is treated that is neither in the alphabet nor padding.
enum class Invalid {
  kSkipped,
  // It takes a place in its group, with the index that the group before had in that place, 0 in the
  // first group.
  kTakePlaces,
};

// Decodes the complete groups of `text`, up to the first with padding, and returns the number of
// bytes written.
uint32_t DecodeBase64(const Base64Kernel& kernel, std::string_view text, Invalid invalid,
                      uint8_t* out);

}  // namespace velkord::internal

#endif  // VELKORD_TEXT_BASE64_H_
