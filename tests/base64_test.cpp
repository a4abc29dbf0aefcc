// Every Base64 kernel of the processor against the rules of decoding, written out plainly.
#include "text/base64.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "Velkord.h"
#include "text/base64_alphabet.h"

namespace {

using namespace velkord::internal;

std::span<const Base64Kernel> Kernels() { return Base64Kernels(SIZE_MAX); }

constexpr size_t kAlignments = 32;

// A block of its own with the content at its end, so that a sanitizer sees each step past it.
struct Block {
  Block(size_t front, std::string_view content)
      : all(front + content.size()), text(all.data() + front) {
    content.copy(text, content.size());
  }
  uint8_t* Bytes() const { return reinterpret_cast<uint8_t*>(text); }

  std::vector<char> all;
  char* text;
};

std::string Sample(uint32_t size) {
  std::string all;
  for (uint32_t at = 0; at < size; ++at) all += static_cast<char>(at * 0x9E3779B1 >> 24);
  return all;
}

std::string Encode(const Base64Kernel& kernel, std::string_view bytes, size_t alignment) {
  const Block in(alignment, bytes);
  const Block out(alignment, std::string((bytes.size() + 2) / 3 * 4, 0));
  return {out.text, PutBase64(kernel, in.Bytes(), bytes.size(), out.text)};
}

std::string PlainDecode(const std::string& text, Invalid invalid) {
  std::string bytes;
  size_t indexes[4] = {};
  size_t places = 0;
  size_t padding = 0;
  for (const char c : text) {
    const size_t index = std::string_view(kBase64Alphabet).find(c);
    if (index == std::string_view::npos && c != '=' && invalid == Invalid::kSkipped) continue;
    if (index != std::string_view::npos) indexes[places % 4] = index;
    if (c == '=') ++padding;
    if (++places % 4 != 0) continue;
    const size_t group = indexes[0] << 18 | indexes[1] << 12 | indexes[2] << 6 | indexes[3];
    for (size_t at = 0; at + padding < 3; ++at) bytes += static_cast<char>(group >> (16 - 8 * at));
    if (padding != 0) break;
  }
  return bytes;
}

void ExpectDecoded(const std::string& text, size_t alignment) {
  const Block in(alignment, text);
  for (const Invalid invalid : {Invalid::kSkipped, Invalid::kTakePlaces}) {
    const std::string bytes = PlainDecode(text, invalid);
    for (const Base64Kernel& kernel : Kernels()) {
      const Block out(alignment, std::string(text.size() / 4 * 3, 0));
      Base64Decoder decoder(kernel, invalid, out.Bytes());
      // In two parts, of which the second begins anywhere in a group.
      const size_t half = text.size() / 2;
      if (decoder.Decode({in.text, half})) decoder.Decode({in.text + half, text.size() - half});
      ASSERT_EQ(std::string_view(out.text, decoder.Written()), bytes) << text;
    }
  }
}

TEST(Base64, EveryKernelAgreesAtEveryLengthAndAlignment) {
  for (uint32_t size = 0; size <= 240; ++size) {
    const std::string bytes = Sample(size);
    const std::string text = Encode(Kernels().back(), bytes, 0);
    ASSERT_EQ(PlainDecode(text, Invalid::kSkipped), bytes);
    std::string lines;
    for (size_t at = 0; at < size / kLineBytes; ++at) {
      lines += text.substr(at * kLineCharacters, kLineCharacters) + "\r\n";
    }
    for (size_t alignment = 0; alignment < kAlignments; ++alignment) {
      const Block in(alignment, bytes);
      for (const Base64Kernel& kernel : Kernels()) {
        ASSERT_EQ(Encode(kernel, bytes, alignment), text);
        const Block out(alignment, std::string(lines.size(), 0));
        kernel.encodeLines(in.Bytes(), size / kLineBytes, out.text);
        ASSERT_EQ(std::string_view(out.text, lines.size()), lines);
      }
      ExpectDecoded(text, alignment);
    }
  }
}

// Two characters may leave a group by one and enter the next by the other.
TEST(Base64, EveryKernelAgreesOnAnyCharacterAtEveryPlace) {
  std::vector<std::string> others = {"==", "=A", "A=", "\r\n", "*A", "A*", "=*", "*=", "==="};
  for (int c = 0; c < 256; ++c) others.emplace_back(1, static_cast<char>(c));
  const std::string text = Encode(Kernels().back(), Sample(150), 0);
  // Alone it is more than four blocks of 32 characters, and the last block is not whole.
  std::vector<std::string> texts = {text};
  for (const std::string end : {"\n", "\r\n"}) {
    std::string lines = text;
    lines.append(end).insert(128, end).insert(64, end);
    texts.push_back(lines);
  }
  for (const std::string& clean : texts) {
    ExpectDecoded(clean, 0);
    for (size_t at = 0; at < clean.size(); ++at) {
      for (const std::string& other : others) {
        ExpectDecoded(std::string(clean).replace(at, other.size(), other), at % kAlignments);
      }
    }
  }
}

TEST(Base64, LongTextsAreDecodedInParts) {
  const std::string clean = Encode(Kernels().front(), Sample(100000), 0);
  for (const std::string& text : {clean, "*" + clean, clean.substr(0, 70001) + "=" + clean}) {
    const Block out(0, std::string(text.size() / 4 * 3, 0));
    uint32_t size = 0;
    ASSERT_EQ(base64_decode(text.c_str(), out.Bytes(), &size), 0);
    ASSERT_TRUE(std::string_view(out.text, size) == PlainDecode(text, Invalid::kTakePlaces));
  }
}

#if defined(VELKORD_X86) && defined(__GLIBC__)
TEST(Processor, PlatformAndProcessorTellTheSame) {
  EXPECT_EQ(AskForX86Set(1), AskX86Processor(1 << 20));
  EXPECT_EQ(AskX86Processor(1), X86Set::kBase);
}
#endif

}  // namespace
