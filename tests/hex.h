// Bytes, nodes and results of calls as text, the form that all tests write their cases in.
#ifndef VELKORD_TESTS_HEX_H_
#define VELKORD_TESTS_HEX_H_

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "Velkord.h"

using ByteVector = std::vector<uint8_t>;

// The deleter of an object that goes back through `kFree`.
template <auto kFree>
struct FreeWith {
  template <typename Object>
  void operator()(Object* object) const {
    kFree(object);
  }
};
using NodePtr = std::unique_ptr<Anybuf, FreeWith<ASN1_FreeAnybuf>>;

// Hexadecimal octets with blanks between them, "05 00", to bytes and back. `FF*200` is 200 octets,
// `"CN"` the octets of a text without blanks, `#256` those of a number of 32 bits in the order of
// the processor, and `@name:4:20` 20 bytes of a sample file from offset 4 on, or the whole file
// without the numbers.
ByteVector FromHex(const std::string& hex);
std::string ToHex(const uint8_t* bytes, size_t size);

inline uint32_t Size(const ByteVector& bytes) { return static_cast<uint32_t>(bytes.size()); }

// A node from its text: `05 00` with the reduced tag of its first octet as type, `16: 05 00` with a
// type, `3/4: F0` with a type and unused bits, or `none`; several with " | " between them are a
// chain. Its block has exactly the bytes' size.
NodePtr ToNode(const std::string& text);

// A node over bytes, with the reduced tag of the first octet as type.
NodePtr MakeNode(const ByteVector& bytes);
uint32_t ReducedTag(std::span<const uint8_t> bytes);

// One SEQUENCE over elements.
NodePtr Sequence(const std::string& elements);

// A chain as text, in the shortest of the forms above.
std::string Describe(const Anybuf* chain);

// Expects the links and the `memKind` of a chain that the library made.
void ExpectWhole(const Anybuf* chain);

std::vector<std::string> Split(std::string text, const std::string& separator);

// Leaves blocks behind that hold no zero, for the next requests of their size.
inline void DirtyHeap(size_t size) {
  const std::vector<ByteVector> blocks(8, ByteVector(size, 0xA5));
}

// What a function makes whose last argument is the out pointer of a node; null after a failure.
template <typename... Parameters, typename... In>
NodePtr Make(int32_t (*function)(Parameters...), In... in) {
  Anybuf* node = nullptr;
  return function(in..., &node) == 0 ? NodePtr(node) : nullptr;
}

// A caller's buffer, filled with a byte that shows what was not written.
struct Buffer {
  static constexpr uint8_t kUntouched = 0xEE;
  static constexpr uint32_t kNoSize = 0xEEEE;
  explicit Buffer(size_t room) : bytes(room, kUntouched) {}

  // No null pointer, even without any room.
  uint8_t* Data() {
    bytes.reserve(1);
    return bytes.data();
  }
  bool IsUntouched(size_t from) const;

  ByteVector bytes;
  uint32_t size = kNoSize;
};

#endif  // VELKORD_TESTS_HEX_H_
