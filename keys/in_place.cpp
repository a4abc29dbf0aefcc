#include "keys/in_place.h"

#include "platform/memory.h"

namespace velkord::internal {

uint8_t* Scratch::Allocate(size_t size) {
  bytes_ = AllocateBytes(size);
  size_ = size;
  return bytes_;
}

int32_t Scratch::Hold(Bytes& in) {
  uint8_t* copy = Allocate(in.size());
  if (copy == nullptr) return VELKORD_FAILURE;
  CopyOut(in, copy);
  in = Bytes(copy, in.size());
  return VELKORD_OK;
}

void Scratch::WipeAndRelease() {
  // Through a volatile pointer, or the compiler would drop writes that nothing reads.
  volatile uint8_t* bytes = bytes_;
  std::fill_n(bytes, size_, uint8_t{0});
  Release(bytes_);
}

}  // namespace velkord::internal
