// The alphabet of RFC 4648, and the value of each character.
#ifndef VELKORD_TEXT_BASE64_ALPHABET_H_
#define VELKORD_TEXT_BASE64_ALPHABET_H_

#include <array>
#include <cstdint>

namespace velkord::internal {

inline constexpr char kBase64Alphabet[] =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

// The value of a character: below 64 its index in the alphabet.
inline constexpr uint8_t kBase64Padding = 64;
inline constexpr uint8_t kNotBase64 = 128;

inline constexpr std::array<uint8_t, 256> kBase64Values = [] {
  std::array<uint8_t, 256> values{};
  values.fill(kNotBase64);
  for (uint8_t index = 0; index < 64; ++index) {
    values[static_cast<uint8_t>(kBase64Alphabet[index])] = index;
  }
  values['='] = kBase64Padding;
  return values;
}();

inline uint8_t Base64Value(char c) { return kBase64Values[static_cast<uint8_t>(c)]; }

}  // namespace velkord::internal

#endif  // VELKORD_TEXT_BASE64_ALPHABET_H_
