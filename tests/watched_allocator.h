// The C allocator as a program's objects see it when it is linked with --wrap for malloc, calloc
// and free.
#ifndef VELKORD_TESTS_WATCHED_ALLOCATOR_H_
#define VELKORD_TESTS_WATCHED_ALLOCATOR_H_

#include <cstddef>
#include <cstdint>
#include <map>
#include <vector>

// While it is `on`, the request of number `failing` fails, none when that is 0, and the blocks of
// the others are noted with their sizes until they are released.
struct AllocatorWatch {
  bool on = false;
  size_t failing = 0;
  size_t requests = 0;
  std::map<void*, size_t> blocks{};
  std::vector<uint8_t> released{};  // What the last block that was released held.
};
extern AllocatorWatch watch;

// Runs `work` watched, with nothing noted before.
template <typename Work>
auto Watched(size_t failing, Work work) {
  watch = {false, failing};
  watch.on = true;
  const auto result = work();
  watch.on = false;
  return result;
}

#endif  // VELKORD_TESTS_WATCHED_ALLOCATOR_H_
