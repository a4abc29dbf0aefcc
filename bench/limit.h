// What no implementation can leave out: each header is read once, nodes and their blocks come from
// malloc, bytes are copied once, and all of it is released.
#ifndef VELKORD_BENCH_LIMIT_H_
#define VELKORD_BENCH_LIMIT_H_

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <tuple>

#include "cases.h"
#include "velkord.hpp"

namespace bench {

using velkord::Bytes;

inline constexpr uint8_t kSequence = 0x30;

struct Element {
  Bytes whole;
  Bytes content;
};

// Takes the element at the front of `in`, which moves to the one after it. Tags have one octet.
inline bool TakeElement(Bytes& in, Element& element) {
  if (in.size() < 2) return false;
  size_t header = 2;
  size_t length = in[1];
  if (length >= 0x80) {
    const size_t octets = length - 0x80;
    if (octets == 0 || octets > 4 || octets > in.size() - header) return false;
    length = 0;
    for (const size_t end = header + octets; header != end; ++header) {
      length = length << 8 | in[header];
    }
  }
  if (length > in.size() - header) return false;
  element = {.whole = in.first(header + length), .content = in.subspan(header, length)};
  in = in.subspan(header + length);
  return true;
}

// Takes all elements of `content`, of which there must be `kCount`.
template <size_t kCount>
bool TakeElements(Bytes content, std::array<Element, kCount>& elements) {
  for (Element& element : elements) {
    if (!TakeElement(content, element)) return false;
  }
  return content.empty();
}

// Whether an element is a SEQUENCE that its elements fill.
inline bool IsFilledSequence(const Element& element) {
  if (element.whole[0] != kSequence) return false;
  Element child;
  for (Bytes rest = element.content; !rest.empty();) {
    if (!TakeElement(rest, child)) return false;
  }
  return true;
}

template <typename Object>
Object* Allocate(size_t size = sizeof(Object)) {
  auto* object = static_cast<Object*>(std::malloc(size));
  Require(object != nullptr, "there is no memory left");
  // Without this a compiler may leave out the pair of malloc and free.
  benchmark::DoNotOptimize(object);
  return object;
}

inline Anybuf* CopyElement(const Element& element) {
  const size_t size = element.whole.size();
  const uint8_t tag = element.whole[0];
  auto* node = Allocate<Anybuf>();
  *node = {.data = Allocate<uint8_t>(size),
           .dataLen = static_cast<uint32_t>(size),
           .unusedBits = 0,
           .memKind = 2,
           .dataType = tag >= 0x80U ? tag : tag & 0x1FU,
           .next = nullptr,
           .prev = nullptr};
  std::memcpy(node->data, element.whole.data(), size);
  return node;
}

// A chain whose end is held.
struct GrowingChain {
  void Append(Anybuf* node) {
    node->prev = last;
    (last == nullptr ? first : last->next) = node;
    last = node;
  }

  Anybuf* first = nullptr;
  Anybuf* last = nullptr;
};

inline void ReleaseChain(Anybuf* node) {
  while (node != nullptr) {
    Anybuf* next = node->next;
    std::free(node->data);
    std::free(node);
    node = next;
  }
}

// Whether two chains are equal in their fields and bytes.
inline bool SameChains(const Anybuf* chain, const Anybuf* other) {
  const auto fields = [](const Anybuf& node) {
    return std::tuple(node.unusedBits, node.memKind, node.dataType, node.prev == nullptr);
  };
  return std::ranges::equal(velkord::Chain(chain), velkord::Chain(other),
                            [&](const Anybuf& node, const Anybuf& its) {
                              return fields(node) == fields(its) &&
                                     std::ranges::equal(velkord::View(node), velkord::View(its));
                            });
}

}  // namespace bench

#endif  // VELKORD_BENCH_LIMIT_H_
