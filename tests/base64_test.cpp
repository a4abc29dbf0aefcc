// Every Base64 kernel of the processor against the rules, written out plainly.
#include "text/base64.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "text/base64_alphabet.h"

namespace {

using namespace velkord::internal;
using Octets = std::vector<uint8_t>;

constexpr std::string_view kAlphabet(kBase64Alphabet);
constexpr size_t kAlignments = 32;

// A block of its own with the content at its end, so that a sanitizer sees each step past it.
struct Block {
  template <typename Content>
  Block(size_t front, const Content& content)
      : octets(front + content.size()), bytes(octets.data() + front) {
    std::copy(content.begin(), content.end(), bytes);
  }
  char* Text() const { return reinterpret_cast<char*>(bytes); }

  Octets octets;
  uint8_t* bytes;
};

Octets Sample(uint32_t size) {
  Octets all;
  for (uint32_t at = 0; at < size; ++at) all.push_back(static_cast<uint8_t>(at * 0x9E3779B1 >> 24));
  return all;
}

// Six bits a character, those past the end zero.
std::string PlainEncode(const Octets& bytes) {
  const auto bit = [&](size_t at) {
    return at / 8 < bytes.size() ? bytes[at / 8] >> (7 - at % 8) & 1U : 0U;
  };
  std::string text;
  for (size_t at = 0; at < 8 * bytes.size(); at += 6) {
    uint32_t index = 0;
    for (size_t next = at; next < at + 6; ++next) index = index << 1 | bit(next);
    text += kAlphabet[index];
  }
  return text.append((4 - text.size() % 4) % 4, '=');
}

Octets PlainDecode(const std::string& text, bool skipsInvalid) {
  Octets bytes;
  size_t indexes[4] = {};
  size_t filled = 0;
  size_t padding = 0;
  for (const char c : text) {
    const size_t index = kAlphabet.find(c);
    if (index < 64) {
      indexes[filled] = index;
    } else if (c == '=') {
      ++padding;
    } else if (skipsInvalid) {
      continue;
    }
    filled = (filled + 1) % 4;
    if (filled != 0) continue;
    const size_t group = indexes[0] << 18 | indexes[1] << 12 | indexes[2] << 6 | indexes[3];
    for (size_t at = 0; at + padding < 3; ++at) {
      bytes.push_back(static_cast<uint8_t>(group >> (16 - 8 * at)));
    }
    if (padding != 0) break;
  }
  return bytes;
}

void ExpectDecoded(const std::string& text, size_t alignment) {
  const Block in(alignment, text);
  for (const Invalid invalid : {Invalid::kSkipped, Invalid::kTakePlaces}) {
    const Octets bytes = PlainDecode(text, invalid == Invalid::kSkipped);
    for (const Base64Kernel& kernel : Base64Kernels()) {
      const Block out(alignment, Octets(text.size() / 4 * 3));
      const uint32_t size = DecodeBase64(kernel, {in.Text(), text.size()}, invalid, out.bytes);
      ASSERT_EQ(Octets(out.bytes, out.bytes + size), bytes) << text;
    }
  }
}

TEST(Base64, EveryKernelAgreesAtEveryLengthAndAlignment) {
  for (uint32_t size = 0; size <= 240; ++size) {
    const Octets bytes = Sample(size);
    const std::string text = PlainEncode(bytes);
    std::string lines;
    for (size_t at = 0; at < size / kLineBytes; ++at) {
      lines += text.substr(at * kLineCharacters, kLineCharacters) + "\r\n";
    }
    ASSERT_EQ(PlainDecode(text, true), bytes);
    for (size_t alignment = 0; alignment < kAlignments; ++alignment) {
      const Block in(alignment, bytes);
      for (const Base64Kernel& kernel : Base64Kernels()) {
        const Block out(alignment, Octets(text.size()));
        ASSERT_EQ(PutBase64(kernel, in.bytes, size, out.Text()), out.Text() + text.size());
        ASSERT_EQ(std::string_view(out.Text(), text.size()), text);
        const Block outLines(alignment, Octets(lines.size()));
        kernel.encodeLines(in.bytes, size / kLineBytes, outLines.Text());
        ASSERT_EQ(std::string_view(outLines.Text(), lines.size()), lines);
      }
      ExpectDecoded(text, alignment);
    }
  }
}

// Two characters may leave a group by one and enter the next by the other.
TEST(Base64, EveryKernelAgreesOnAnyCharacterAtEveryPlace) {
  std::vector<std::string> others = {"==", "=A", "A=", "\r\n", "*A", "A*", "=*", "*=", "==="};
  for (int c = 0; c < 256; ++c) others.emplace_back(1, static_cast<char>(c));
  // Two blocks and a half of the widest kernel.
  const std::string clean = PlainEncode(Sample(63));
  for (size_t at = 0; at < clean.size(); ++at) {
    for (const std::string& other : others) {
      ExpectDecoded(std::string(clean).replace(at, other.size(), other), at % kAlignments);
    }
  }
}

}  // namespace
