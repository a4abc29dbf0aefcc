// The PEM blocks of a text.
#ifndef VELKORD_EXAMPLES_PEM_BLOCKS_H_
#define VELKORD_EXAMPLES_PEM_BLOCKS_H_

#include <cstddef>
#include <string_view>
#include <vector>

#include "secret.h"

// Views into the text that it was found in.
struct PemBlock {
  std::string_view text;   // From its opening line up to that of the next block.
  std::string_view label;  // What stands between the dashes of the opening line.
  size_t line = 0;         // Where the block starts, the first line being 1.
};

std::vector<PemBlock> FindPemBlocks(std::string_view text);

// Throws std::runtime_error naming the step that failed and its code.
SecretBytes DecodePem(const PemBlock& block);

#endif  // VELKORD_EXAMPLES_PEM_BLOCKS_H_
