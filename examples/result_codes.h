// The library's return codes by name, and the exception that a failed step becomes.
#ifndef VELKORD_EXAMPLES_RESULT_CODES_H_
#define VELKORD_EXAMPLES_RESULT_CODES_H_

#include <cstdint>
#include <limits>
#include <stdexcept>
#include <string>

#include "Velkord.h"

inline const char* CodeName(int32_t code) {
  switch (code) {
    case VELKORD_OK:
      return "VELKORD_OK";
    case VELKORD_FAILURE:
      return "VELKORD_FAILURE";
    case VELKORD_SIZE_MISMATCH:
      return "VELKORD_SIZE_MISMATCH";
    case VELKORD_NEGATIVE_TIME:
      return "VELKORD_NEGATIVE_TIME";
    case VELKORD_BAD_TIME:
      return "VELKORD_BAD_TIME";
    case VELKORD_WRONG_TAG:
      return "VELKORD_WRONG_TAG";
    case VELKORD_NULL_ARGUMENT:
      return "VELKORD_NULL_ARGUMENT";
    case VELKORD_OUT_OF_MEMORY:
      return "VELKORD_OUT_OF_MEMORY";
    default:
      return "unknown code";
  }
}

[[noreturn]] inline void Fail(const std::string& step, int32_t code) {
  throw std::runtime_error(step + ": " + CodeName(code) + " (" + std::to_string(code) + ")");
}

inline void Check(int32_t code, const char* step) {
  if (code != VELKORD_OK) Fail(step, code);
}

// The library counts bytes in 32 bits.
inline uint32_t Length32(size_t size) {
  if (size > std::numeric_limits<uint32_t>::max()) {
    throw std::runtime_error("more bytes than a 32-bit length counts");
  }
  return static_cast<uint32_t>(size);
}

// Some functions count in signed numbers.
inline int32_t SignedLength(size_t size) {
  if (size > size_t{std::numeric_limits<int32_t>::max()}) {
    throw std::runtime_error("more bytes than a signed 32-bit length counts");
  }
  return static_cast<int32_t>(size);
}

#endif  // VELKORD_EXAMPLES_RESULT_CODES_H_
