// Bytes, nodes and results of calls as text, the form that all tests write their cases in.
#ifndef VELKORD_TESTS_HEX_H_
#define VELKORD_TESTS_HEX_H_

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "Velkord.h"

using ByteVector = std::vector<uint8_t>;

struct FreeNode {
  void operator()(Anybuf* node) const { ASN1_FreeAnybuf(node); }
};
using NodePtr = std::unique_ptr<Anybuf, FreeNode>;

// Hexadecimal octets with blanks between them, "05 00", to bytes and back. `FF*200` is 200 octets,
// and
// `"CN"` the octets of a text without blanks.
ByteVector FromHex(const std::string& hex);
std::string ToHex(const uint8_t* bytes, size_t size);

inline uint32_t Size(const ByteVector& bytes) { return static_cast<uint32_t>(bytes.size()); }

// A node from its text: `05 00` with the reduced tag of its first octet as type, `16: 05 00` with a
// type, `3/4: F0` with a type and unused bits, or `none`. Its block has exactly the bytes' size.
NodePtr ToNode(const std::string& text);

// A chain as text, its nodes as above with " | " between them.
std::string Describe(const Anybuf* chain);

// What a call that makes nodes gives: the nodes as text, " ; " between them and `kept` for an out
// pointer that it left alone; or its code. A failing call must leave all out pointers alone.
template <size_t kCount = 1, typename Call>
std::string Made(Call call) {
  Anybuf untouched{};
  std::array<Anybuf*, kCount> out;
  out.fill(&untouched);
  const int32_t code = call(out.data());
  std::string text;
  for (Anybuf* node : out) {
    EXPECT_TRUE(code == 0 || node == &untouched);
    if (!text.empty()) text += " ; ";
    text += node == &untouched ? "kept" : Describe(NodePtr(node).get());
  }
  return code != 0 ? std::to_string(code) : text;
}

// A caller's buffer, larger than any case fills it.
struct Buffer {
  static constexpr uint8_t kUntouched = 0xEE;
  static constexpr uint32_t kNoSize = 0xEEEE;
  ByteVector bytes = ByteVector(600, kUntouched);
  uint32_t size = kNoSize;

  uint8_t* Data() { return bytes.data(); }
  // Its content, `kept` when no size was set. Nothing may be written behind that.
  std::string Text() const;
};

// What a call that fills buffers gives: their contents, " ; " between them, or its code. A failing
// call must leave them alone.
template <size_t kCount = 1, typename Call>
std::string Copied(Call call) {
  std::array<Buffer, kCount> out;
  const int32_t code = call(out.data());
  std::string text;
  for (const Buffer& buffer : out) {
    EXPECT_TRUE(code == 0 || buffer.Text() == "kept");
    if (&buffer != out.data()) text += " ; ";
    text += buffer.Text();
  }
  return code != 0 ? std::to_string(code) : text;
}

#endif  // VELKORD_TESTS_HEX_H_
