// Memory for what may hold private values: each block is wiped before it is given back.
#ifndef VELKORD_EXAMPLES_SECRET_H_
#define VELKORD_EXAMPLES_SECRET_H_

#include <string.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "velkord.hpp"

// A container grows by moving to a larger block, so the wiping has to sit where blocks are
// released.
template <typename Value>
struct WipingAllocator {
  using value_type = Value;

  WipingAllocator() = default;
  template <typename Other>
  explicit WipingAllocator(const WipingAllocator<Other>& /*other*/) {}

  Value* allocate(size_t count) { return std::allocator<Value>().allocate(count); }
  void deallocate(Value* block, size_t count) {
    explicit_bzero(block, count * sizeof(Value));
    std::allocator<Value>().deallocate(block, count);
  }
  bool operator==(const WipingAllocator& /*other*/) const { return true; }
};

using SecretBytes = std::vector<uint8_t, WipingAllocator<uint8_t>>;

// A record of the library's that holds no pointers.
template <typename Record>
struct Secret : Record {
  // cppcheck-suppress uninitDerivedMemberVar ; the library fills it.
  Secret() = default;
  ~Secret() { explicit_bzero(static_cast<Record*>(this), sizeof(Record)); }
  Secret(const Secret&) = delete;
  Secret& operator=(const Secret&) = delete;
};

struct WipeAndFree {
  void operator()(Anybuf* chain) const {
    for (const Anybuf& node : velkord::Chain(chain)) {
      if (node.data != nullptr) explicit_bzero(node.data, node.dataLen);
    }
    ASN1_FreeAnybuf(chain);
  }
};

// A node, or the head of a chain.
using SecretNodePtr = std::unique_ptr<Anybuf, WipeAndFree>;

#endif  // VELKORD_EXAMPLES_SECRET_H_
