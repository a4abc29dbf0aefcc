// Memory for what may hold private values: each block is wiped before it is given back.
#ifndef VELKORD_TOOLS_INSPECT_SECRET_H_
#define VELKORD_TOOLS_INSPECT_SECRET_H_

#include <string.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "velkord.hpp"

// A container grows by moving to a larger block, so the wiping has to sit where blocks are
// released.
struct WipingAllocator : std::allocator<uint8_t> {
  template <typename Value>
  struct rebind {
    using other = WipingAllocator;
  };
  void deallocate(uint8_t* block, size_t size) {
    explicit_bzero(block, size);
    std::allocator<uint8_t>::deallocate(block, size);
  }
};

using SecretBytes = std::vector<uint8_t, WipingAllocator>;

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

// The elements of a SEQUENCE, null when there is none.
inline SecretNodePtr SplitSecret(velkord::Bytes sequence, const char* step) {
  SecretNodePtr elements;
  velkord::Check(ASN1_WriteSequenceFromDERBytes(sequence.data(), velkord::Length(sequence),
                                                velkord::Out(elements)),
                 step);
  return elements;
}

#endif  // VELKORD_TOOLS_INSPECT_SECRET_H_
