// Every input of up to a number of bytes through a target.
// Usage: exhaust_TARGET LENGTH [SLICE OF]
#include <cstdio>
#include <cstdlib>

#include "call.h"

namespace {

struct Slice {
  size_t number;
  size_t of;
};

// Runs the inputs of one length whose first byte is of the slice, and gives their number.
size_t RunLength(size_t length, Slice slice) {
  size_t count = 0;
  ByteVector bytes(length);
  for (size_t input = 0; input < size_t{1} << 8 * length; ++input) {
    if ((input & 0xFF) % slice.of != slice.number) continue;
    for (size_t at = 0; at < length; ++at) bytes[at] = static_cast<uint8_t>(input >> 8 * at);
    LLVMFuzzerTestOneInput(bytes.data(), length);
    if (++count % (1 << 20) == 0) {
      std::printf("length %zu, slice %zu: %zu inputs\n", length, slice.number, count);
      std::fflush(stdout);
    }
  }
  return count;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2 && argc != 4) return 2;
  const auto number = [argv](int at) { return std::strtoul(argv[at], nullptr, 10); };
  const Slice slice = argc == 4 ? Slice{number(2), number(3)} : Slice{0, 1};
  size_t count = 0;
  for (size_t length = 0; length <= number(1); ++length) count += RunLength(length, slice);
  std::printf("%zu inputs of up to %lu bytes, none misread\n", count, number(1));
  return 0;
}
