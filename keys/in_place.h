// Buffers of a caller that lie over each other: keys are encoded and decoded in place as they are
// apart. A block of the library's own holds a value only then, and is wiped.
#ifndef VELKORD_KEYS_IN_PLACE_H_
#define VELKORD_KEYS_IN_PLACE_H_

#include <algorithm>
#include <functional>

#include "der/node.h"

namespace velkord::internal {

// A block that is wiped before it is released.
class Scratch {
 public:
  Scratch() = default;
  ~Scratch() {
    if (bytes_ != nullptr) WipeAndRelease();
  }
  Scratch(const Scratch&) = delete;
  Scratch& operator=(const Scratch&) = delete;

  // Gives the block, or null when there is no memory for it.
  uint8_t* Allocate(size_t size);
  // Makes `in` a view of a copy of it. 0, or -1 when there is no memory for that.
  int32_t Hold(Bytes& in);

 private:
  void WipeAndRelease();

  uint8_t* bytes_ = nullptr;
  size_t size_ = 0;
};

// Whether two runs of bytes have a byte in common.
inline bool Overlap(Bytes one, Bytes other) {
  // Of pointers into different blocks only this tells which is the lower one.
  const std::less<const uint8_t*> isBelow;
  return !one.empty() && !other.empty() && isBelow(one.data(), other.data() + other.size()) &&
         isBelow(other.data(), one.data() + one.size());
}

// Keeps an input readable while `outs` are written: where one of them lies over it, `in` becomes a
// copy in `scratch`. 0, or -1 when there is no memory for that.
template <typename... Outs>
int32_t KeepInput(Bytes& in, Scratch& scratch, Outs... outs) {
  return (Overlap(in, outs) || ...) ? scratch.Hold(in) : VELKORD_OK;
}

// Has `write` write `size` bytes, made of `inputs`, to `out`, or to a block that is copied there
// where `out` lies over an input. 0, or -1 when there is no memory for that.
template <typename Inputs, typename Write>
int32_t WriteInPlace(const Inputs& inputs, uint8_t* out, size_t size, Write write) {
  Scratch scratch;
  uint8_t* place = out;
  const auto isWrittenOver = [=](Bytes in) { return Overlap(in, Bytes(out, size)); };
  if (std::any_of(inputs.begin(), inputs.end(), isWrittenOver)) place = scratch.Allocate(size);
  if (place == nullptr) return VELKORD_FAILURE;
  DerWriter writer({place, size});
  write(writer);
  if (place != out) CopyOut(Bytes(place, size), out);
  return VELKORD_OK;
}

}  // namespace velkord::internal

#endif  // VELKORD_KEYS_IN_PLACE_H_
