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

// Decodes a text that comes in parts, each group when it is complete, up to the first with padding.
class Base64Decoder {
 public:
  Base64Decoder(const Base64Kernel& kernel, Invalid invalid, uint8_t* out)
      : kernel_(kernel), invalid_(invalid), out_(out), place_(out) {}

  // Decodes the next part. False when nothing that follows counts any more.
  bool Decode(std::string_view text);

  // The number of bytes written.
  uint32_t Written() const { return static_cast<uint32_t>(place_ - out_); }

 private:
  // Takes lines and groups of valid characters off the front.
  void TakeByKernel(std::string_view& text);
  void MoveOn(std::string_view& text, size_t taken, size_t end, size_t bytes);

  const Base64Kernel& kernel_;
  Invalid invalid_;
  uint8_t* out_;
  uint8_t* place_;
  // The group that is not complete yet, over the indexes of the one before.
  uint8_t indexes_[4] = {};
  size_t filled_ = 0;
  size_t padding_ = 0;
};

}  // namespace velkord::internal

#endif  // VELKORD_TEXT_BASE64_H_
