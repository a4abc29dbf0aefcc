// The C allocator, and tzset, as the objects of a program see them that is linked with --wrap for
// these functions.
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
  std::map<void*, size_t> blocks;
  std::vector<uint8_t> released;  // What the last block that was released held.
  size_t zoneReads = 0;           // How often the C library was told to read the zone.
};
extern AllocatorWatch watch;

// Runs `work` watched, with nothing noted before.
template <typename Work>
auto Watched(size_t failing, Work work) {
  watch = {
      .on = true, .failing = failing, .requests = 0, .blocks = {}, .released = {}, .zoneReads = 0};
  const auto result = work();
  watch.on = false;
  return result;
}

#endif  // VELKORD_TESTS_WATCHED_ALLOCATOR_H_
