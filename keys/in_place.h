// A caller's buffers that overlap: keys are encoded and decoded in place as if they did not. Only
// then does a block of the library hold a value, and it is wiped.
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

  // Returns the block, or null when there is no memory for it.
  uint8_t* Allocate(size_t size);
  // Makes `in` a view of a copy of it. 0, or -1 when there is no memory for that.
  int32_t Hold(Bytes& in);

 private:
  void WipeAndRelease();

  uint8_t* bytes_ = nullptr;
  size_t size_ = 0;
};

// Whether two views have a byte in common.
inline bool Overlap(Bytes one, Bytes other) {
  // Only this orders pointers into different blocks.
  const std::less<const uint8_t*> isBelow;
  return !one.empty() && !other.empty() && isBelow(one.data(), other.data() + other.size()) &&
         isBelow(other.data(), one.data() + one.size());
}

// Keeps an input readable while `outs` are written: where one of them overlaps it, `in` becomes a
// view of a copy in `scratch`. 0, or -1 when there is no memory for that.
template <typename... Outs>
int32_t KeepInput(Bytes& in, Scratch& scratch, Outs... outs) {
  return (Overlap(in, outs) || ...) ? scratch.Hold(in) : VELKORD_OK;
}

// Writes `size` bytes to `out` by `write`, which reads `inputs`; where `out` overlaps one of them,
// through a block of its own. 0, or -1 when there is no memory for that.
template <typename Inputs, typename Write>
int32_t WriteInPlace(const Inputs& inputs, uint8_t* out, size_t size, Write write) {
  Scratch scratch;
  uint8_t* place = out;
  const auto isOverwritten = [=](Bytes in) { return Overlap(in, Bytes(out, size)); };
  if (std::any_of(inputs.begin(), inputs.end(), isOverwritten)) place = scratch.Allocate(size);
  if (place == nullptr) return VELKORD_FAILURE;
  DerWriter writer({place, size});
  write(writer);
  if (place != out) CopyOut(Bytes(place, size), out);
  return VELKORD_OK;
}

}  // namespace velkord::internal

#endif  // VELKORD_KEYS_IN_PLACE_H_
