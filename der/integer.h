// INTEGER as a number of 32 bits.
#ifndef VELKORD_DER_INTEGER_H_
#define VELKORD_DER_INTEGER_H_

#include <array>

#include "der/node.h"

namespace velkord::internal {

// The element of a number.
class IntegerElement {
 public:
  explicit IntegerElement(uint32_t value) {
    do {
      octets_[--first_] = static_cast<uint8_t>(value);
      value >>= 8;
    } while (value != 0);
    if (octets_[first_] >= 0x80) octets_[--first_] = 0;
    octets_[first_ - 1] = static_cast<uint8_t>(octets_.size() - first_);
    octets_[first_ - 2] = kInteger;
  }

  Bytes Whole() const { return Bytes(octets_).subspan(first_ - 2); }
  Bytes Content() const { return Bytes(octets_).subspan(first_); }

 private:
  std::array<uint8_t, 7> octets_{};
  size_t first_ = 7;
};

// The low 32 bits of the number in the content of an element.
uint32_t DerBytesToUint(Bytes content);

}  // namespace velkord::internal

#endif  // VELKORD_DER_INTEGER_H_
