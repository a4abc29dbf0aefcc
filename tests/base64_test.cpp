// Each Base64 kernel against the rules of decoding, written out plainly, and the choice of one.
#include "text/base64.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "Velkord.h"
#include "fenced.h"
#include "text/base64_alphabet.h"

namespace {

using namespace velkord::internal;

struct NamedKernel {
  const char* name;
  decltype(Base64Kernel::encode) encode;  // The portable one's has no name.
};

// GoogleTest calls it by this name.
void PrintTo(const NamedKernel& kernel, std::ostream* out) { *out << kernel.name; }

constexpr NamedKernel kNamedKernels[] = {
#if defined(VELKORD_X86)
    {"Vbmi", EncodeBase64Vbmi}, {"Avx2", EncodeBase64Avx2}, {"Ssse3", EncodeBase64Ssse3},
#endif
#if defined(VELKORD_NEON)
    {"Neon", EncodeBase64Neon},
#endif
    {"Portable", nullptr},
};

std::string NameOf(const Base64Kernel& kernel) {
  for (const NamedKernel& named : kNamedKernels) {
    if (named.encode == kernel.encode) return named.name;
  }
  return "Portable";
}

const Base64Kernel& PortableKernel() { return Base64Kernels(0).back(); }

std::string Sample(uint32_t size) {
  std::string all;
  for (uint32_t at = 0; at < size; ++at) all += static_cast<char>(at * 0x9E3779B1 >> 24);
  return all;
}

size_t EncodedSize(size_t bytes) { return (bytes + 2) / 3 * 4; }

std::string PlainEncode(std::string_view bytes) {
  std::string text(EncodedSize(bytes.size()), 0);
  PutBase64(PortableKernel(), reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size(),
            text.data());
  return text;
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

uint8_t* Bytes(char* place) { return reinterpret_cast<uint8_t*>(place); }

// Input and output lie between fences, and the output has room for the result alone.
class Base64 : public testing::TestWithParam<NamedKernel> {
 protected:
  void SetUp() override {
    for (const Base64Kernel& kernel : Base64Kernels(SIZE_MAX)) {
      if (NameOf(kernel) == GetParam().name) kernel_ = &kernel;
    }
    if (kernel_ == nullptr) GTEST_SKIP() << "This processor does not have " << GetParam().name;
  }

  void ExpectEncoded(const std::string& bytes, const std::string& text, Side side) {
    char* in = in_.Put(bytes, side);
    char* out = out_.Clear(text.size(), side);
    ASSERT_EQ(PutBase64(*kernel_, Bytes(in), bytes.size(), out), out + text.size());
    ASSERT_EQ(std::string_view(out, text.size()), text);
  }

  void ExpectLinesEncoded(const std::string& bytes, const std::string& lines, Side side) {
    char* in = in_.Put(bytes, side);
    char* out = out_.Clear(lines.size(), side);
    kernel_->encodeLines(Bytes(in), bytes.size() / kLineBytes, out);
    ASSERT_EQ(std::string_view(out, lines.size()), lines);
  }

  void ExpectDecoded(const std::string& text, Side side) {
    char* in = in_.Put(text, side);
    for (const Invalid invalid : {Invalid::kSkipped, Invalid::kTakePlaces}) {
      const std::string bytes = PlainDecode(text, invalid);
      char* out = out_.Clear(bytes.size(), side);
      Base64Decoder decoder(*kernel_, invalid, Bytes(out));
      // In two parts, of which the second begins anywhere in a group.
      const size_t half = text.size() / 2;
      if (decoder.Decode({in, half})) decoder.Decode({in + half, text.size() - half});
      ASSERT_EQ(std::string_view(out, decoder.Written()), bytes) << text;
    }
  }

 private:
  const Base64Kernel* kernel_ = nullptr;
  Fenced in_;
  Fenced out_;
};

INSTANTIATE_TEST_SUITE_P(Kernels, Base64, testing::ValuesIn(kNamedKernels),
                         testing::PrintToStringParamName());

TEST_P(Base64, AgreesAtEveryLength) {
  for (uint32_t size = 0; size <= 240; ++size) {
    const std::string bytes = Sample(size);
    const std::string text = PlainEncode(bytes);
    ASSERT_EQ(PlainDecode(text, Invalid::kSkipped), bytes);
    std::string lines;
    for (size_t at = 0; at < size / kLineBytes; ++at) {
      lines += text.substr(at * kLineCharacters, kLineCharacters) + "\r\n";
    }
    for (const Side side : {Side::kFront, Side::kBack}) {
      ExpectEncoded(bytes, text, side);
      ExpectLinesEncoded(bytes.substr(0, size / kLineBytes * kLineBytes), lines, side);
      ExpectDecoded(text, side);
      ExpectDecoded(lines, side);
    }
  }
}

// Two characters may leave a group by one and enter the next by the other.
TEST_P(Base64, AgreesOnAnyCharacterAtEveryPlace) {
  std::vector<std::string> others = {"==", "=A", "A=", "\r\n", "*A", "A*", "=*", "*=", "==="};
  for (int c = 0; c < 256; ++c) others.emplace_back(1, static_cast<char>(c));
  const std::string text = PlainEncode(Sample(150));
  // Alone it is more than four blocks of 32 characters, and the last block is not whole.
  std::vector<std::string> texts = {text};
  for (const std::string end : {"\n", "\r\n"}) {
    std::string lines = text;
    lines.append(end).insert(128, end).insert(64, end);
    texts.push_back(lines);
  }
  for (const std::string& clean : texts) {
    ExpectDecoded(clean, Side::kBack);
    for (size_t at = 0; at < clean.size(); ++at) {
      for (const std::string& other : others) {
        ExpectDecoded(std::string(clean).replace(at, other.size(), other), Side::kBack);
      }
    }
  }
}

TEST(Base64Text, LongOnesAreDecodedInParts) {
  const std::string clean = PlainEncode(Sample(100000));
  for (const std::string& text : {clean, "*" + clean, clean.substr(0, 70001) + "=" + clean}) {
    const std::string bytes = PlainDecode(text, Invalid::kTakePlaces);
    Fenced room;
    char* out = room.Clear(bytes.size(), Side::kBack);
    uint32_t size = 0;
    ASSERT_EQ(base64_decode(text.c_str(), Bytes(out), &size), 0);
    ASSERT_TRUE(std::string_view(out, size) == bytes);
  }
}

// The test program is run on several processors, each with the name of its kernel.
TEST(Dispatch, ChoosesTheFastestKernel) {
  const char* expected = std::getenv("EXPECTED_KERNEL");
  if (expected == nullptr) GTEST_SKIP() << "EXPECTED_KERNEL is not set";
  for (const size_t octets : {size_t{16}, size_t{1000}, size_t{1} << 20}) {
    EXPECT_EQ(NameOf(Base64Kernels(octets).front()), expected) << octets;
  }
}

TEST(Dispatch, IsRightForEveryCaller) {
  for (const uint32_t size : {10U, 100U, 1000U, 100000U}) {
    std::string bytes = Sample(size);
    std::string text(EncodedSize(size) + 1, 'x');
    ASSERT_EQ(base64_encode(Bytes(bytes.data()), size, text.data()), 0);
    ASSERT_EQ(text, PlainEncode(bytes) + '\0');
    std::string again(size + 2, 0);
    uint32_t length = 0;
    ASSERT_EQ(base64_decode(text.c_str(), Bytes(again.data()), &length), 0);
    ASSERT_EQ(again.substr(0, length), bytes);

    std::string pem(2 * text.size() + 100, 0);
    ASSERT_EQ(DER2PEM_data_format(Bytes(bytes.data()), size, pem.data(), &length, "-----BEGIN-----",
                                  "-----END-----"),
              0);
    pem.resize(length);
    ASSERT_EQ(PEM2DER_data_format(pem.data(), length, Bytes(again.data()), &length), 0);
    ASSERT_EQ(again.substr(0, length), bytes);
  }
}

#if defined(VELKORD_X86) && defined(__GLIBC__)
TEST(Processor, PlatformAndProcessorTellTheSame) {
  EXPECT_EQ(AskForX86Set(1), AskX86Processor(1 << 20));
  EXPECT_EQ(AskX86Processor(1), X86Set::kBase);
}
#endif

}  // namespace
