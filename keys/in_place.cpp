#include "keys/in_place.h"

#include <algorithm>
#include <functional>

#include "platform/memory.h"

namespace velkord {

Scratch::~Scratch() {
  // Through a volatile pointer, or the compiler would leave out what nobody reads any more.
  volatile uint8_t* bytes = bytes_;
  std::fill_n(bytes, size_, uint8_t{0});
  Release(bytes_);
}

uint8_t* Scratch::Allocate(size_t size) {
  bytes_ = AllocateBytes(size);
  size_ = bytes_ == nullptr ? 0 : size;
  return bytes_;
}

bool Overlap(Bytes bytes, std::span<const Bytes> others) {
  // Of pointers into different blocks only this tells which is the lower one.
  const std::less<const uint8_t*> isBelow;
  return std::any_of(others.begin(), others.end(), [&](Bytes other) {
    return !bytes.empty() && !other.empty() && isBelow(bytes.data(), other.data() + other.size()) &&
           isBelow(other.data(), bytes.data() + bytes.size());
  });
}

int32_t KeepInput(Bytes& in, std::initializer_list<Bytes> outs, Scratch& scratch) {
  if (!Overlap(in, {outs.begin(), outs.size()})) return VELKORD_OK;
  uint8_t* copy = scratch.Allocate(in.size());
  if (copy == nullptr) return VELKORD_FAILURE;
  Put(copy, in);
  in = Bytes(copy, in.size());
  return VELKORD_OK;
}

}  // namespace velkord
