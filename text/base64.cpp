// Base64 of plain buffers: base64_encode and base64_decode; and the portable kernel.
#include "text/base64.h"

#include <algorithm>
#include <cstring>
#include <iterator>

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

size_t DecodeLines(const char* in, size_t lines, size_t lineEnd, uint8_t* out) {
  size_t taken = 0;
  for (; taken < lines; ++taken, in += kLineCharacters + lineEnd, out += kLineBytes) {
    if (!IsLineEnd(in + kLineCharacters, lineEnd)) break;
    if (DecodeGroups(in, kLineCharacters, out) < kLineCharacters) break;
  }
  return taken;
}

// Shorter texts are not worth the choice of a kernel.
constexpr size_t kShortText = 16;

size_t EncodeWholeGroups(const Base64Kernel& kernel, const uint8_t* in, size_t size, char* out) {
  const size_t taken = kernel.encode(in, size, out);
  return taken + EncodeGroups(in + taken, size - taken, out + taken / 3 * 4);
}

// The size of the line end behind the first 64 characters, 0 where there is none.
size_t LineEndSize(std::string_view text) {
  if (text.size() < kLineCharacters + 2) return 0;
  const char* place = text.data() + kLineCharacters;
  return IsLineEnd(place, 2) ? 2 : IsLineEnd(place, 1) ? 1 : 0;
}

size_t DecodeCleanGroups(const Base64Kernel& kernel, std::string_view text, uint8_t* out) {
  const size_t taken = kernel.decode(text.data(), text.size(), out);
  if (text.size() - taken < 4) return taken;
  text.remove_prefix(taken);
  return taken + DecodeGroups(text.data(), text.size(), out + taken / 4 * 3);
}

}  // namespace

std::span<const Base64Kernel> Base64Kernels(size_t octets) {
  static constexpr Base64Kernel kKernels[] = {
#if defined(VELKORD_X86)
    {EncodeBase64Vbmi, EncodeBase64LinesVbmi, DecodeBase64Vbmi, DecodeBase64LinesVbmi},
    {EncodeBase64Avx2, EncodeBase64LinesAvx2, DecodeBase64Avx2, DecodeBase64LinesAvx2},
    {EncodeBase64Ssse3, EncodeBase64LinesSsse3, DecodeBase64Ssse3, DecodeBase64LinesSsse3},
#endif
#if defined(VELKORD_NEON)
    {EncodeBase64Neon, EncodeBase64LinesNeon, DecodeBase64Neon, DecodeBase64LinesNeon},
#endif
    {EncodeGroups, EncodeLines, DecodeGroups, DecodeLines}
  };
#if defined(VELKORD_X86)
  const X86Set set = octets < kShortText ? X86Set::kBase : AskForX86Set(octets);
  return std::span(kKernels).subspan(std::size(kKernels) - 1 - static_cast<size_t>(set));
#else
  static_cast<void>(octets);
  return kKernels;
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

// Moves past characters that the kernel took, of which the last group ends at `end`.
void Base64Decoder::MoveOn(std::string_view& text, size_t taken, size_t end, size_t bytes) {
  const char* last = text.data() + end - 4;
  const uint8_t indexes[] = {Base64Value(last[0]), Base64Value(last[1]), Base64Value(last[2]),
                             Base64Value(last[3])};
  std::memcpy(indexes_, indexes, sizeof(indexes));
  text.remove_prefix(taken);
  place_ += bytes;
}

void Base64Decoder::TakeByKernel(std::string_view& text) {
  const size_t lineEnd = invalid_ == Invalid::kSkipped ? LineEndSize(text) : 0;
  if (lineEnd != 0) {
    const size_t width = kLineCharacters + lineEnd;
    const size_t lines = kernel_.decodeLines(text.data(), text.size() / width, lineEnd, place_);
    if (lines != 0) MoveOn(text, lines * width, lines * width - lineEnd, lines * kLineBytes);
  }
  const size_t taken = DecodeCleanGroups(kernel_, text, place_);
  if (taken != 0) MoveOn(text, taken, taken, taken / 4 * 3);
}

bool Base64Decoder::Decode(std::string_view text) {
  // The kernel stops in front of a group that is not for it.
  bool forKernel = true;
  while (!text.empty()) {
    const uint8_t value = Base64Value(text.front());
    // At an invalid character the kernel would read a block for nothing.
    if (forKernel && filled_ == 0 && value < kBase64Padding) {
      TakeByKernel(text);
      forKernel = false;
      continue;
    }
    text.remove_prefix(1);
    if (value == kNotBase64 && invalid_ == Invalid::kSkipped) {
      forKernel = true;
      continue;
    }
    if (value < kBase64Padding) indexes_[filled_] = value;
    if (value == kBase64Padding) ++padding_;
    if (++filled_ < 4) continue;
    filled_ = 0;
    forKernel = true;
    place_ = PutGroup(place_, indexes_, padding_ < 3 ? 3 - padding_ : 0);
    if (padding_ != 0) return false;
  }
  return true;
}

}  // namespace velkord::internal

using namespace velkord::internal;

int32_t base64_encode(const uint8_t* in, uint32_t length, char* out) {
  *PutBase64(Base64Kernels(length).front(), in, length, out) = '\0';
  return VELKORD_OK;
}

int32_t base64_decode(const char* text, uint8_t* out, uint32_t* outLength) {
  // A part is still in the cache when it is decoded after the search for the end of the text.
  constexpr size_t kPart = 32768;
  // Characters beyond these would make more bytes than the length can tell.
  uint64_t left = uint64_t{UINT32_MAX} / 3 * 4;
  size_t size = strnlen(text, kPart);
  Base64Decoder decoder(Base64Kernels(size).front(), Invalid::kTakePlaces, out);
  while (decoder.Decode({text, size}) && size == kPart) {
    text += size;
    left -= size;
    size = strnlen(text, static_cast<size_t>(std::min<uint64_t>(kPart, left)));
  }
  *outLength = decoder.Written();
  return VELKORD_OK;
}
