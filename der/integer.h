// INTEGER as a number of 32 bits.
#ifndef VELKORD_DER_INTEGER_H_
#define VELKORD_DER_INTEGER_H_

#include <array>

#include "der/node.h"

namespace velkord {

// The content octets of a number: a zero octet in front when bit 8 of the first would be set.
class IntegerOctets {
 public:
  explicit IntegerOctets(uint32_t value) {
    do {
      octets_[--first_] = static_cast<uint8_t>(value);
      value >>= 8;
    } while (value != 0);
    if (octets_[first_] >= 0x80) octets_[--first_] = 0;
  }

  Bytes View() const { return Bytes(octets_).subspan(first_); }

 private:
  std::array<uint8_t, 5> octets_{};
  size_t first_ = 5;
};

}  // namespace velkord

#endif  // VELKORD_DER_INTEGER_H_
