// Every Base64 kernel of the processor against the rules, written out plainly.
#include "text/base64.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "text/base64_alphabet.h"

namespace {

using namespace velkord::internal;
using Octets = std::vector<uint8_t>;

constexpr size_t kLongest = 400;
constexpr size_t kAlignments = 32;

// A block of its own whose bytes end where it ends, so that a sanitizer sees each step behind them.
class EndOfBlock {
 public:
  EndOfBlock(size_t front, size_t size)
      : block_(new uint8_t[front + size]), bytes_(&block_[front]) {}
  EndOfBlock(size_t front, const void* bytes, size_t size) : EndOfBlock(front, size) {
    std::copy_n(static_cast<const uint8_t*>(bytes), size, bytes_);
  }
  uint8_t* Bytes() const { return bytes_; }
  char* Text() const { return reinterpret_cast<char*>(bytes_); }

 private:
  std::unique_ptr<uint8_t[]> block_;
  uint8_t* bytes_;
};

Octets Sample(size_t size) {
  Octets bytes(size);
  uint32_t state = 1;
  for (uint8_t& byte : bytes)
    byte = static_cast<uint8_t>((state = state * 1103515245 + 12345) >> 16);
  return bytes;
}

std::string PlainEncode(const Octets& bytes) {
  std::string text;
  for (size_t at = 0; at < bytes.size(); at += 3) {
    uint32_t group = 0;
    for (size_t next = at; next < at + 3; ++next) {
      group = group << 8 | (next < bytes.size() ? bytes[next] : 0U);
    }
    for (int shift = 18; shift >= 0; shift -= 6) text += kBase64Alphabet[group >> shift & 63];
  }
  const size_t missing = (3 - bytes.size() % 3) % 3;
  return text.replace(text.size() - missing, missing, missing, '=');
}

Octets PlainDecode(const std::string& text, Strangers strangers) {
  Octets bytes;
  uint32_t indexes[4] = {};
  size_t filled = 0;
  size_t padding = 0;
  for (const char c : text) {
    const std::string_view alphabet(kBase64Alphabet);
    const size_t index = c == '\0' ? std::string_view::npos : alphabet.find(c);
    if (index == std::string_view::npos && c != '=' && strangers == Strangers::kSkipped) continue;
    if (index != std::string_view::npos) indexes[filled] = static_cast<uint32_t>(index);
    if (c == '=') ++padding;
    if (++filled != 4) continue;
    filled = 0;
    const uint32_t group = indexes[0] << 18 | indexes[1] << 12 | indexes[2] << 6 | indexes[3];
    for (size_t at = 0; at + padding < 3; ++at) {
      bytes.push_back(static_cast<uint8_t>(group >> (16 - 8 * at)));
    }
    if (padding != 0) break;
  }
  return bytes;
}

Octets Decode(const Base64Kernel& kernel, const std::string& text, Strangers strangers,
              size_t alignment) {
  const EndOfBlock in(alignment, text.data(), text.size());
  const EndOfBlock out(alignment, text.size() / 4 * 3);
  const uint32_t size = DecodeBase64(kernel, {in.Text(), text.size()}, strangers, out.Bytes());
  return {out.Bytes(), out.Bytes() + size};
}

TEST(Base64, EveryKernelAgreesAtEveryLengthAndAlignment) {
  const Octets all = Sample(kLongest);
  for (size_t size = 0; size <= kLongest; ++size) {
    const Octets bytes(all.begin(), all.begin() + static_cast<ptrdiff_t>(size));
    const std::string text = PlainEncode(bytes);
    for (const Base64Kernel& kernel : Base64Kernels()) {
      for (size_t alignment = 0; alignment < kAlignments; ++alignment) {
        const EndOfBlock in(alignment, bytes.data(), size);
        const EndOfBlock out(alignment, text.size());
        const char* end = PutBase64(kernel, in.Bytes(), size, out.Text());
        ASSERT_EQ(std::string(out.Text(), static_cast<size_t>(end - out.Text())), text);
        ASSERT_EQ(Decode(kernel, text, Strangers::kTakePlaces, alignment), bytes);
      }
    }
  }
}

TEST(Base64, EveryKernelWritesFullLines) {
  const Octets bytes = Sample(8 * kLineBytes);
  std::string text;
  for (size_t lines = 0; lines <= 8; ++lines) {
    for (const Base64Kernel& kernel : Base64Kernels()) {
      const EndOfBlock in(lines, bytes.data(), lines * kLineBytes);
      const EndOfBlock out(lines, text.size());
      kernel.encodeLines(in.Bytes(), lines, out.Text());
      ASSERT_EQ(std::string(out.Text(), text.size()), text);
    }
    const auto line = bytes.begin() + static_cast<ptrdiff_t>(lines * kLineBytes);
    if (lines < 8) text += PlainEncode(Octets(line, line + kLineBytes)) + "\r\n";
  }
}

TEST(Base64, EveryKernelAgreesOnEveryCharacterAtEveryPlace) {
  // Two blocks and a half of the widest kernel.
  const std::string clean = PlainEncode(Sample(63));
  for (size_t at = 0; at < clean.size(); ++at) {
    std::string text = clean;
    for (int c = 0; c < 256; ++c) {
      text[at] = static_cast<char>(c);
      for (const Strangers strangers : {Strangers::kSkipped, Strangers::kTakePlaces}) {
        const Octets bytes = PlainDecode(text, strangers);
        for (const Base64Kernel& kernel : Base64Kernels()) {
          ASSERT_EQ(Decode(kernel, text, strangers, at % kAlignments), bytes) << at << ": " << c;
        }
      }
    }
  }
}

// Two in a row may leave a group by one character and enter the next by another.
TEST(Base64, EveryKernelAgreesOnPairsOfStrangers) {
  const std::string clean = PlainEncode(Sample(63));
  for (size_t at = 0; at + 1 < clean.size(); ++at) {
    for (const char* pair : {"==", "=A", "A=", "\r\n", "*A", "A*", "=*", "*="}) {
      for (const Strangers strangers : {Strangers::kSkipped, Strangers::kTakePlaces}) {
        std::string text = clean;
        text.replace(at, 2, pair);
        const Octets bytes = PlainDecode(text, strangers);
        for (const Base64Kernel& kernel : Base64Kernels()) {
          ASSERT_EQ(Decode(kernel, text, strangers, 0), bytes) << at << ": " << pair;
        }
      }
    }
  }
}

}  // namespace
