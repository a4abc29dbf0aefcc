// Blocks and nodes that own their memory, of exactly their size, so that the sanitizers see each
// byte that is touched outside.
#ifndef VELKORD_FUZZ_BLOCKS_H_
#define VELKORD_FUZZ_BLOCKS_H_

#include <algorithm>
#include <memory>
#include <span>

#include "Velkord.h"
#include "require.h"

inline constexpr uint8_t kUntouched = 0xEE;
inline constexpr uint32_t kNoSize = 0xEEEEEEEE;

// A caller's buffer and its size, both untouched at first.
struct Buffer {
  explicit Buffer(size_t roomNeeded) : room(roomNeeded), bytes(new uint8_t[roomNeeded]) { Reset(); }

  void Reset() {
    std::fill_n(bytes.get(), room, kUntouched);
    size = kNoSize;
  }

  // Whether nothing is written from `at` on.
  bool IsUntouched(size_t at = 0) const {
    return std::all_of(bytes.get() + at, bytes.get() + room,
                       [](uint8_t byte) { return byte == kUntouched; });
  }

  std::span<const uint8_t> View() const { return {bytes.get(), size}; }

  size_t room;
  std::unique_ptr<uint8_t[]> bytes;
  uint32_t size;
};

struct FreeNode {
  void operator()(Anybuf* node) const { ASN1_FreeAnybuf(node); }
};
using NodePtr = std::unique_ptr<Anybuf, FreeNode>;

inline std::span<const uint8_t> View(const Anybuf& node) { return {node.data, node.dataLen}; }

inline bool Same(std::span<const uint8_t> one, std::span<const uint8_t> other) {
  return std::equal(one.begin(), one.end(), other.begin(), other.end());
}

// A node over a copy of bytes. A first octet below 0x80 is reduced to its low five bits.
inline NodePtr MakeNode(std::span<const uint8_t> bytes) {
  Anybuf* node = nullptr;
  REQUIRE(ASN1_CreateAnybuf(bytes.data(), static_cast<uint32_t>(bytes.size()), 0, &node) == 0);
  const uint8_t octet = bytes.empty() ? 0 : bytes[0];
  node->dataType = octet < 0x80 ? octet & 0x1F : octet;
  return NodePtr(node);
}

// The node that a call makes, or null.
template <typename... Parameters, typename... In>
NodePtr Made(int32_t (*function)(Parameters...), In... in) {
  Anybuf* node = nullptr;
  return function(in..., &node) == 0 ? NodePtr(node) : nullptr;
}

#endif  // VELKORD_FUZZ_BLOCKS_H_
