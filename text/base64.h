// Base64 of RFC 4648: what the plain functions and PEM share.
#ifndef VELKORD_TEXT_BASE64_H_
#define VELKORD_TEXT_BASE64_H_

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "text/base64_kernel.h"

namespace velkord::internal {

// Writes the characters of `size` bytes, padding included, and gives the place behind them.
char* PutBase64(const Base64Kernel& kernel, const uint8_t* in, size_t size, char* place);

// What becomes of a character that is neither of the alphabet nor padding.
enum class Strangers {
  kSkipped,
  // It takes a place in its group, which keeps the index that the group before had there, 0 in the
  // first.
  kTakePlaces,
};

// Decodes the whole groups of `text` to the one with padding or the end, and gives the number of
// bytes written.
uint32_t DecodeBase64(const Base64Kernel& kernel, std::string_view text, Strangers strangers,
                      uint8_t* out);

}  // namespace velkord::internal

#endif  // VELKORD_TEXT_BASE64_H_
