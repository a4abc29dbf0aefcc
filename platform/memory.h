// The allocator of every node, block and record: the C run-time's, since callers may build and take
// apart nodes themselves.
#ifndef VELKORD_PLATFORM_MEMORY_H_
#define VELKORD_PLATFORM_MEMORY_H_

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace velkord::internal {

// NOLINTBEGIN(cppcoreguidelines-no-malloc,cppcoreguidelines-owning-memory): here, and nowhere else.

// A request for no bytes returns a usable block.
inline uint8_t* AllocateBytes(size_t size) {
  return static_cast<uint8_t*>(std::malloc(size == 0 ? 1 : size));
}

// A record, node or number for the caller to fill.
template <typename Record>
Record* Allocate() {
  return static_cast<Record*>(std::malloc(sizeof(Record)));
}

// One with all bytes 0, those between its fields too, since one Create may serve two types. The
// zeros are copied, because g++ turns malloc and memset into calloc, which in glibc does not reuse
// the blocks that were released last and costs 4 ns more. clang does so with the copy too, unless
// -fno-builtin-calloc forbids it.
template <typename Record>
Record* AllocateZeroed() {
  static constexpr uint8_t kZeros[sizeof(Record)] = {};
  auto* record = Allocate<Record>();
  if (record != nullptr) std::memcpy(record, kZeros, sizeof(Record));
  return record;
}

inline void Release(void* block) { std::free(block); }

// NOLINTEND(cppcoreguidelines-no-malloc,cppcoreguidelines-owning-memory)

}  // namespace velkord::internal

#endif  // VELKORD_PLATFORM_MEMORY_H_
