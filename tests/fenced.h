// Memory from which each step out ends the program: masked and vector accesses too, of which a
// sanitizer sees only some.
#ifndef VELKORD_TESTS_FENCED_H_
#define VELKORD_TESTS_FENCED_H_

#if defined(_WIN32)
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
#else
#include <sys/mman.h>
#endif

#include <cstddef>
#include <cstring>
#include <new>
#include <string_view>

// At which end of the memory its content lies, next to the fence.
enum class Side { kFront, kBack };

class Fenced {
 public:
  Fenced() : all_(Map()) {
    if (all_ == nullptr) throw std::bad_alloc();
  }
  ~Fenced() {
#if defined(_WIN32)
    VirtualFree(all_, 0, MEM_RELEASE);
#else
    munmap(all_, kFence + kRoom + kFence);
#endif
  }
  Fenced(const Fenced&) = delete;
  Fenced& operator=(const Fenced&) = delete;

  // A place for `size` octets, which are zero.
  char* Clear(size_t size, Side side) {
    if (size > kRoom) throw std::bad_alloc();
    char* place = all_ + kFence + (side == Side::kFront ? 0 : kRoom - size);
    std::memset(place, 0, size);
    return place;
  }

  char* Put(std::string_view content, Side side) {
    char* place = Clear(content.size(), side);
    content.copy(place, content.size());
    return place;
  }

 private:
  static constexpr size_t kFence = 65536;  // Whole pages, whatever the size of a page is.
  static constexpr size_t kRoom = 4 * kFence;

  static char* Map() {
    constexpr size_t kAll = kFence + kRoom + kFence;
#if defined(_WIN32)
    auto* all = static_cast<char*>(VirtualAlloc(nullptr, kAll, MEM_RESERVE, PAGE_NOACCESS));
    const bool open =
        all != nullptr && VirtualAlloc(all + kFence, kRoom, MEM_COMMIT, PAGE_READWRITE) != nullptr;
    return open ? all : nullptr;
#else
    void* all = mmap(nullptr, kAll, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (all == MAP_FAILED) return nullptr;
    const int closed = mprotect(static_cast<char*>(all) + kFence, kRoom, PROT_READ | PROT_WRITE);
    return closed == 0 ? static_cast<char*>(all) : nullptr;
#endif
  }

  char* all_;
};

#endif  // VELKORD_TESTS_FENCED_H_
