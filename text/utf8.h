// UTF-8 in its early form of up to six bytes.
#ifndef VELKORD_TEXT_UTF8_H_
#define VELKORD_TEXT_UTF8_H_

#include <bit>
#include <cstdint>

namespace velkord::internal {

// Number of bytes of the form that a first byte opens; 0 for a byte that opens none.
constexpr uint32_t Utf8Length(uint8_t first) {
  const int ones = std::countl_one(first);
  if (ones == 0) return 1;
  return ones == 1 || ones > 6 ? 0 : static_cast<uint32_t>(ones);
}

}  // namespace velkord::internal

#endif  // VELKORD_TEXT_UTF8_H_
