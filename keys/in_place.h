// Buffers of a caller that lie over each other: keys are encoded and decoded in place as they are
// apart. A block of the library's own holds a value only then, and is wiped.
#ifndef VELKORD_KEYS_IN_PLACE_H_
#define VELKORD_KEYS_IN_PLACE_H_

#include <initializer_list>
#include <span>

#include "der/node.h"

namespace velkord {

// A block that is wiped before it is released.
class Scratch {
 public:
  Scratch() = default;
  ~Scratch();
  Scratch(const Scratch&) = delete;
  Scratch& operator=(const Scratch&) = delete;

  // Gives the block, or null when there is no memory for it.
  uint8_t* Allocate(size_t size);

 private:
  uint8_t* bytes_ = nullptr;
  size_t size_ = 0;
};

bool Overlap(Bytes bytes, std::span<const Bytes> others);

// Keeps an input readable while `outs` are written: where one of them lies over it, `in` becomes a
// copy in `scratch`. 0, or -1 when there is no memory for that.
int32_t KeepInput(Bytes& in, std::initializer_list<Bytes> outs, Scratch& scratch);

// Has `write` write `size` bytes, made of `inputs`, to the place that it is given: `out`, or a
// block that is copied there where `out` lies over an input. 0, or -1 when there is no memory for
// that.
template <typename Write>
int32_t WriteInPlace(std::span<const Bytes> inputs, uint8_t* out, size_t size, Write write) {
  Scratch scratch;
  uint8_t* place = out;
  if (Overlap(Bytes(out, size), inputs)) place = scratch.Allocate(size);
  if (place == nullptr) return VELKORD_FAILURE;
  write(place);
  if (place != out) Put(out, Bytes(place, size));
  return VELKORD_OK;
}

}  // namespace velkord

#endif  // VELKORD_KEYS_IN_PLACE_H_
