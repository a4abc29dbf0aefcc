// The demands of the fuzz targets. One that is not met ends the program, and the fuzzer keeps the
// input.
#ifndef VELKORD_FUZZ_REQUIRE_H_
#define VELKORD_FUZZ_REQUIRE_H_

#include <cstdint>
#include <cstdio>
#include <cstdlib>

#define REQUIRE(condition)                                                          \
  do {                                                                              \
    if (!(condition)) {                                                             \
      std::fprintf(stderr, "%s:%d: not met: %s\n", __FILE__, __LINE__, #condition); \
      std::abort();                                                                 \
    }                                                                               \
  } while (false)

// What every target defines. `data` has exactly `size` bytes.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

#endif  // VELKORD_FUZZ_REQUIRE_H_
