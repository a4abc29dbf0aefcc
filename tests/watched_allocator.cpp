#include "watched_allocator.h"

#include <utility>

AllocatorWatch watch;

// NOLINTBEGIN(bugprone-reserved-identifier): the linker's names for a wrapped function.
extern "C" {

void* __real_malloc(size_t size);
void* __real_calloc(size_t count, size_t size);
void __real_free(void* block);

}  // extern "C"

namespace {

bool Refused() { return watch.on && ++watch.requests == watch.failing; }

// The set may request memory by the same functions.
void* Noted(void* block) {
  if (std::exchange(watch.on, false)) {
    watch.blocks.insert(block);
    watch.on = true;
  }
  return block;
}

}  // namespace

extern "C" {

void* __wrap_malloc(size_t size) { return Refused() ? nullptr : Noted(__real_malloc(size)); }

void* __wrap_calloc(size_t count, size_t size) {
  return Refused() ? nullptr : Noted(__real_calloc(count, size));
}

void __wrap_free(void* block) {
  if (std::exchange(watch.on, false)) {
    watch.blocks.erase(block);
    watch.on = true;
  }
  __real_free(block);
}

}  // extern "C"
// NOLINTEND(bugprone-reserved-identifier)
