#include "readable_text.h"

#include <algorithm>

#include "velkord.hpp"

using velkord::Bytes;

namespace {

constexpr size_t kLongestForm = 6;

void AppendHex(std::string& text, uint8_t byte) {
  constexpr char kDigits[] = "0123456789abcdef";
  text += kDigits[byte >> 4];
  text += kDigits[byte & 0x0F];
}

bool IsBetween(uint32_t code, uint32_t first, uint32_t last) {
  return first <= code && code <= last;
}

// Characters that move the cursor, end the line or reorder the text around them would let a
// certificate forge what its reader sees.
bool IsShown(uint32_t code) {
  if (code < 0x20 || IsBetween(code, 0x7F, 0x9F) || code == '\\') return false;
  if (IsBetween(code, 0x200E, 0x200F) || IsBetween(code, 0x2028, 0x202E)) return false;
  return !IsBetween(code, 0x2066, 0x2069);
}

}  // namespace

size_t ReadCharacter(Bytes text, uint32_t& code) {
  const auto available = static_cast<int32_t>(std::min(text.size(), kLongestForm));
  uint32_t read = 0;
  const int32_t size = utf8ToUni(text.data(), available, &read);
  if (size <= 0 || read > 0x10FFFF || IsBetween(read, 0xD800, 0xDFFF)) return 0;
  code = read;
  return static_cast<size_t>(size);
}

std::string EscapedText(Bytes text) {
  std::string escaped;
  while (!text.empty()) {
    uint32_t code = 0;
    const size_t size = ReadCharacter(text, code);
    const Bytes form = text.first(std::max<size_t>(size, 1));
    if (size != 0 && IsShown(code)) {
      escaped.append(form.begin(), form.end());
    } else {
      for (const uint8_t byte : form) {
        escaped += "\\x";
        AppendHex(escaped, byte);
      }
    }
    text = text.subspan(form.size());
  }
  return escaped;
}

std::string HexText(Bytes bytes) {
  std::string text;
  for (const uint8_t byte : bytes) AppendHex(text, byte);
  return text;
}
