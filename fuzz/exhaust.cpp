// Every input of up to a number of bytes through a target, or those of a slice of the first bytes.
// Usage: exhaust_TARGET LENGTH [SLICE OF]
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "call.h"

// Freed blocks are used again soon, and where one was requested is hardly traced: both save time.
// The variable ASAN_OPTIONS comes first.
extern "C" const char* __asan_default_options() {
  return "quarantine_size_mb=1:malloc_context_size=1";
}

int main(int argc, char** argv) {
  if (argc != 2 && argc != 4) return 2;
  const auto number = [=](int at) { return std::strtoul(argv[at], nullptr, 10); };
  size_t count = 0;
  for (size_t length = 0; length <= number(1); ++length) {
    ByteVector bytes(length);
    for (size_t input = 0; input < size_t{1} << 8 * length; ++input) {
      if (argc == 4 && (input & 0xFF) % number(3) != number(2)) continue;
      for (size_t at = 0; at < length; ++at) bytes[at] = static_cast<uint8_t>(input >> 8 * at);
      TestInput({bytes});
      ++count;
    }
  }
  std::printf("%zu inputs of up to %lu bytes, none misread\n", count, number(1));
  return 0;
}
