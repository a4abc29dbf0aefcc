// Base64 of plain buffers: base64_encode and base64_decode; and the portable kernel.
#include "text/base64.h"

#include "Velkord.h"
#include "text/base64_alphabet.h"

namespace velkord::internal {

namespace {

size_t EncodeGroups(const uint8_t* in, size_t size, char* out) {
  size_t taken = 0;
  for (; size - taken >= 3; taken += 3) {
    const uint32_t group = uint32_t{in[taken]} << 16 | uint32_t{in[taken + 1]} << 8 | in[taken + 2];
    for (const uint32_t shift : {18U, 12U, 6U, 0U}) {
      *out++ = kBase64Alphabet[group >> shift & 0x3F];
    }
  }
  return taken;
}

void EncodeLines(const uint8_t* in, size_t lines, char* out) {
  for (; lines != 0; --lines, in += kLineBytes) {
    EncodeGroups(in, kLineBytes, out);
    out = PutLineEnd(out + kLineCharacters);
  }
}

// Puts the bytes of a group of four indexes, three or as many as padding leaves, and returns the
// place after them.
uint8_t* PutGroup(uint8_t* place, const uint8_t* indexes, size_t bytes = 3) {
  const uint32_t group = uint32_t{indexes[0]} << 18 | uint32_t{indexes[1]} << 12 |
                         uint32_t{indexes[2]} << 6 | indexes[3];
  for (size_t at = 0; at < bytes; ++at) *place++ = static_cast<uint8_t>(group >> (16 - 8 * at));
  return place;
}

size_t DecodeGroups(const char* in, size_t size, uint8_t* out) {
  size_t taken = 0;
  for (; size - taken >= 4; taken += 4) {
    uint8_t indexes[4];
    for (size_t at = 0; at < 4; ++at) indexes[at] = Base64Value(in[taken + at]);
    if ((indexes[0] | indexes[1] | indexes[2] | indexes[3]) >= kBase64Padding) break;
    out = PutGroup(out, indexes);
  }
  return taken;
}

constexpr Base64Kernel kPortable = {EncodeGroups, EncodeLines, DecodeGroups};

size_t EncodeWholeGroups(const Base64Kernel& kernel, const uint8_t* in, size_t size, char* out) {
  const size_t taken = kernel.encode(in, size, out);
  return taken + EncodeGroups(in + taken, size - taken, out + taken / 3 * 4);
}

size_t DecodeCleanGroups(const Base64Kernel& kernel, std::string_view text, uint8_t* out) {
  const size_t taken = kernel.decode(text.data(), text.size(), out);
  text.remove_prefix(taken);
  return taken + DecodeGroups(text.data(), text.size(), out + taken / 4 * 3);
}

}  // namespace

std::span<const Base64Kernel> Base64Kernels() {
#if defined(VELKORD_BASE64_X86)
  static constexpr Base64Kernel kKernels[] = {
      {EncodeBase64Avx2, EncodeBase64LinesAvx2, DecodeBase64Avx2},
      {EncodeBase64Ssse3, EncodeBase64LinesSsse3, DecodeBase64Ssse3},
      kPortable};
  const size_t missing =
      __builtin_cpu_supports("avx2") ? 0 : (__builtin_cpu_supports("ssse3") ? 1 : 2);
  return std::span(kKernels).subspan(missing);
#else
  return {&kPortable, 1};
#endif
}

char* PutBase64(const Base64Kernel& kernel, const uint8_t* in, size_t size, char* place) {
  const size_t taken = EncodeWholeGroups(kernel, in, size, place);
  place += taken / 3 * 4;
  in += taken;
  const auto put = [&](uint32_t index) { *place++ = kBase64Alphabet[index & 0x3F]; };
  if (size - taken == 1) {
    put(in[0] >> 2U);
    put(uint32_t{in[0]} << 4);
    *place++ = '=';
    *place++ = '=';
  } else if (size - taken == 2) {
    put(in[0] >> 2U);
    put(uint32_t{in[0]} << 4 | in[1] >> 4U);
    put(uint32_t{in[1]} << 2);
    *place++ = '=';
  }
  return place;
}

uint32_t DecodeBase64(const Base64Kernel& kernel, std::string_view text, Invalid invalid,
                      uint8_t* out) {
  uint8_t* place = out;
  uint8_t indexes[4] = {};
  size_t filled = 0;
  size_t padding = 0;
  while (!text.empty()) {
    const uint8_t value = Base64Value(text.front());
    // At an invalid character the kernel would read a block for nothing.
    if (filled == 0 && value < kBase64Padding) {
      const size_t taken = DecodeCleanGroups(kernel, text, place);
      if (taken != 0) {
        place += taken / 4 * 3;
        for (size_t at = 0; at < 4; ++at) indexes[at] = Base64Value(text[taken - 4 + at]);
        text.remove_prefix(taken);
        continue;
      }
    }
    text.remove_prefix(1);
    if (value == kNotBase64 && invalid == Invalid::kSkipped) continue;
    if (value < kBase64Padding) indexes[filled] = value;
    if (value == kBase64Padding) ++padding;
    if (++filled < 4) continue;
    filled = 0;
    place = PutGroup(place, indexes, padding < 3 ? 3 - padding : 0);
    if (padding != 0) break;
  }
  return static_cast<uint32_t>(place - out);
}

}  // namespace velkord::internal

using namespace velkord::internal;

int32_t base64_encode(const uint8_t* in, uint32_t length, char* out) {
  *PutBase64(Base64Kernels().front(), in, length, out) = '\0';
  return VELKORD_OK;
}

int32_t base64_decode(const char* text, uint8_t* out, uint32_t* outLength) {
  *outLength = DecodeBase64(Base64Kernels().front(), text, Invalid::kTakePlaces, out);
  return VELKORD_OK;
}
