// Bytes as text that is safe to show.
#ifndef VELKORD_EXAMPLES_READABLE_TEXT_H_
#define VELKORD_EXAMPLES_READABLE_TEXT_H_

#include <cstdint>
#include <string>

#include "velkord.hpp"

// Reads the character at the front of UTF-8 text. Returns the number of its bytes, or 0 when there
// is none or the bytes are no Unicode character.
size_t ReadCharacter(velkord::Bytes text, uint32_t& code);

// The text with each control character, each byte that is no UTF-8, and the backslash as "\xNN".
std::string EscapedText(velkord::Bytes text);

std::string HexText(velkord::Bytes bytes);

#endif  // VELKORD_EXAMPLES_READABLE_TEXT_H_
