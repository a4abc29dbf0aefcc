// Bytes as text that is safe to show.
#ifndef VELKORD_TOOLS_INSPECT_TEXT_H_
#define VELKORD_TOOLS_INSPECT_TEXT_H_

#include <cstdint>
#include <string>

#include "velkord.hpp"

// Reads the character at the front of UTF-8 text. Returns the number of its bytes, or 0 when there
// is none or the bytes are no Unicode character.
size_t ReadCharacter(velkord::Bytes text, uint32_t& code);

// The text with each control or invisible character, each byte that is no UTF-8, and the backslash
// as "\xNN".
std::string EscapedText(velkord::Bytes text);

std::string HexText(velkord::Bytes bytes);

// The dotted form of an object identifier's content octets, followed by the name of a well-known
// one: "2.5.4.3 commonName". Octets that have no dotted form come in hex.
std::string ObjectIdText(velkord::Bytes octets);

#endif  // VELKORD_TOOLS_INSPECT_TEXT_H_
