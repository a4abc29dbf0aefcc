// Base64 of RFC 4648: what the plain functions and PEM share.
#ifndef VELKORD_TEXT_BASE64_H_
#define VELKORD_TEXT_BASE64_H_

#include <array>
#include <cstddef>
#include <cstdint>

namespace velkord {

inline constexpr char kBase64Alphabet[] =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

// What a character stands for: below 64 its index in the alphabet.
inline constexpr uint8_t kBase64Padding = 64;
inline constexpr uint8_t kNotBase64 = 65;

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

// Writes the characters of `size` bytes, padding included, and gives the place behind them.
char* PutBase64(char* place, const uint8_t* in, size_t size);

// Decodes character by character in groups of four.
class Base64Decoder {
 public:
  explicit Base64Decoder(uint8_t* out) : out_(out) {}

  // Takes the value of one character; writes the bytes of a group with its fourth. A value outside
  // the alphabet leaves the index of its place as the group before had it. False once a group with
  // padding has ended the text.
  bool Take(uint8_t value) {
    if (value < kBase64Padding) indexes_[place_] = value;
    if (value == kBase64Padding) ++padding_;
    if (++place_ < 4) return true;
    place_ = 0;
    const uint8_t bytes[] = {static_cast<uint8_t>(indexes_[0] << 2 | indexes_[1] >> 4),
                             static_cast<uint8_t>(indexes_[1] << 4 | indexes_[2] >> 2),
                             static_cast<uint8_t>(indexes_[2] << 6 | indexes_[3])};
    for (size_t at = 0; at + padding_ < 3; ++at) out_[written_++] = bytes[at];
    return padding_ == 0;
  }

  uint32_t Written() const { return written_; }

 private:
  uint8_t* out_;
  uint32_t written_ = 0;
  size_t place_ = 0;
  size_t padding_ = 0;
  std::array<uint8_t, 4> indexes_{};
};

}  // namespace velkord

#endif  // VELKORD_TEXT_BASE64_H_
