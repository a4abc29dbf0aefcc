// Object identifiers: dotted text to content octets.
#ifndef VELKORD_DER_OBJECT_ID_H_
#define VELKORD_DER_OBJECT_ID_H_

#include <string_view>

#include "der/node.h"

namespace velkord::internal {

// Calls `sink` with each content octet of the dotted text, blanks taken as points, in order.
// False for a text that is refused; the octets of the arcs before the bad one have then been seen.
template <typename Sink>
constexpr bool ForEachObjectIdOctet(std::string_view text, Sink sink) {
  if (text.size() < 2 || text[0] < '0' || text[0] > '2') return false;
  const auto firstArc = static_cast<uint32_t>(text[0] - '0');
  const auto isSeparator = [](char c) { return c == '.' || c == ' '; };
  size_t at = 1;
  // A separator that ends the text opens no arc. A single character after the first arc is not
  // looked at.
  for (bool second = true; at + 1 < text.size(); second = false) {
    if (!isSeparator(text[at++])) return false;
    uint32_t arc = 0;
    for (; at < text.size() && !isSeparator(text[at]); ++at) {
      if (text[at] < '0' || text[at] > '9') return false;
      arc = arc * 10 + static_cast<uint32_t>(text[at] - '0');
    }
    if (second) {
      if (firstArc < 2 && arc >= 40) return false;
      arc += 40 * firstArc;
    }
    uint32_t shift = 28;
    while (shift != 0 && arc >> shift == 0) shift -= 7;
    for (; shift != 0; shift -= 7) sink(static_cast<uint8_t>(0x80 | (arc >> shift & 0x7F)));
    sink(static_cast<uint8_t>(arc & 0x7F));
  }
  return true;
}

// Number of content octets of the dotted text; 0 for a text that is refused, which stands for an
// identifier without content.
uint32_t ObjectIdSize(std::string_view text);

// Fills a room of that size with the octets.
void FillObjectId(std::span<uint8_t> room, std::string_view text);

// A view of a caller's text, empty when the length is negative. 0, or -8 for a null pointer.
int32_t CallerText(const char* text, int32_t length, std::string_view& out);

}  // namespace velkord::internal

#endif  // VELKORD_DER_OBJECT_ID_H_
