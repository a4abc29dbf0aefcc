// Reads files, and finds the PEM blocks of a text.
#ifndef VELKORD_TOOLS_INSPECT_READING_H_
#define VELKORD_TOOLS_INSPECT_READING_H_

#include <string>
#include <string_view>
#include <vector>

#include "secret.h"

// All throw std::runtime_error telling what failed.

// The name "-" is standard input.
SecretBytes ReadFile(const std::string& name);

// Views into the text that it was found in.
struct PemBlock {
  std::string_view text;   // From its opening line up to that of the next block.
  std::string_view label;  // What stands between the dashes of the opening line.
  size_t line = 0;         // Where the block starts, the first line being 1.
};

std::vector<PemBlock> FindPemBlocks(std::string_view text);

SecretBytes DecodePem(const PemBlock& block);

#endif  // VELKORD_TOOLS_INSPECT_READING_H_
