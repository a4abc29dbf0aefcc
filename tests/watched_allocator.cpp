#include "watched_allocator.h"

#include <utility>

AllocatorWatch watch;

// NOLINTBEGIN(bugprone-reserved-identifier): the linker's names for a wrapped function.
extern "C" {

void* __real_malloc(size_t size);
void* __real_calloc(size_t count, size_t size);
void __real_free(void* block);

static bool Refused() { return watch.on && ++watch.requests == watch.failing; }

// The map may request memory by the same functions.
static void* Noted(void* block, size_t size) {
  if (std::exchange(watch.on, false)) {
    watch.blocks[block] = size;
    watch.on = true;
  }
  return block;
}

void* __wrap_malloc(size_t size) { return Refused() ? nullptr : Noted(__real_malloc(size), size); }

void* __wrap_calloc(size_t count, size_t size) {
  return Refused() ? nullptr : Noted(__real_calloc(count, size), count * size);
}

void __wrap_free(void* block) {
  if (std::exchange(watch.on, false)) {
    const auto noted = watch.blocks.find(block);
    if (noted != watch.blocks.end()) {
      const auto* bytes = static_cast<const uint8_t*>(block);
      watch.released.assign(bytes, bytes + noted->second);
      watch.blocks.erase(noted);
    }
    watch.on = true;
  }
  __real_free(block);
}

}  // extern "C"
// NOLINTEND(bugprone-reserved-identifier)
