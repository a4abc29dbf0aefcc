// What no implementation can leave out: each header is read once, nodes and their blocks come from
// malloc, bytes are copied once, and all of it is released.
#ifndef VELKORD_BENCH_LIMIT_H_
#define VELKORD_BENCH_LIMIT_H_

#include <array>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <span>

#include "Velkord.h"
#include "contender.h"

namespace bench {

inline constexpr uint8_t kSequence = 0x30;

using Bytes = std::span<const uint8_t>;

struct Element {
  Bytes whole;
  Bytes content;
};

// Takes the element at the front of `in`, which moves behind it. Tags have one octet.
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

// The time of a UTCTime of this century, as if it were UTC.
inline std::time_t ReadUtcTime(Bytes text) {
  namespace chrono = std::chrono;
  const auto digits = [&](size_t at) { return (text[at] - '0') * 10 + text[at + 1] - '0'; };
  const chrono::sys_days day = chrono::year(2000 + digits(0)) / digits(2) / digits(4);
  return day.time_since_epoch() / chrono::seconds(1) + digits(6) * 3600 + digits(8) * 60 +
         digits(10);
}

// One look at the zone.
inline void LookUpLocalTime(std::time_t time) {
  std::tm fields;
  benchmark::DoNotOptimize(localtime_r(&time, &fields));
}

// A node with a block to fill.
inline Anybuf* MakeNode(size_t size, uint8_t tag) {
  auto* node = Allocate<Anybuf>();
  *node = {.data = Allocate<uint8_t>(size),
           .dataLen = static_cast<uint32_t>(size),
           .unusedBits = 0,
           .memKind = 2,
           .dataType = tag >= 0x80U ? tag : tag & 0x1FU,
           .next = nullptr,
           .prev = nullptr};
  return node;
}

inline Anybuf* CopyElement(const Element& element) {
  Anybuf* node = MakeNode(element.whole.size(), element.whole[0]);
  std::memcpy(node->data, element.whole.data(), element.whole.size());
  return node;
}

// The node of a SEQUENCE of the nodes that `forEach` visits, for a content whose length takes so
// many octets behind the one that counts them; none when it is less than 0x80.
template <size_t kLengthOctets, typename ForEach>
Anybuf* JoinSequence(ForEach forEach) {
  size_t length = 0;
  forEach([&](const Anybuf& part) { length += part.dataLen; });
  Anybuf* node = MakeNode(2 + kLengthOctets + length, kSequence);
  uint8_t* place = node->data;
  *place++ = kSequence;
  *place++ = static_cast<uint8_t>(kLengthOctets == 0 ? length : 0x80 | kLengthOctets);
  for (size_t left = kLengthOctets; left != 0; --left) {
    *place++ = static_cast<uint8_t>(length >> 8 * (left - 1));
  }
  forEach([&](const Anybuf& part) {
    std::memcpy(place, part.data, part.dataLen);
    place += part.dataLen;
  });
  return node;
}

// A chain whose end is held.
struct Chain {
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

// Whether two chains are equal in all fields and bytes.
inline bool SameChains(const Anybuf* chain, const Anybuf* other) {
  const Anybuf* last = nullptr;
  const Anybuf* otherLast = nullptr;
  for (; chain != nullptr && other != nullptr; chain = chain->next, other = other->next) {
    if (chain->dataLen != other->dataLen || chain->unusedBits != other->unusedBits ||
        chain->memKind != other->memKind || chain->dataType != other->dataType ||
        chain->prev != last || other->prev != otherLast ||
        std::memcmp(chain->data, other->data, chain->dataLen) != 0) {
      return false;
    }
    last = chain;
    otherLast = other;
  }
  return chain == nullptr && other == nullptr;
}

// A record by its nodes.
template <typename Record, Anybuf* Record::*... kNodes>
struct Shape {
  static void Release(Record* record) {
    if (record == nullptr) return;
    (ReleaseChain(record->*kNodes), ...);
    std::free(record);
  }

  static bool Same(const Record& record, const Record& other) {
    return (SameChains(record.*kNodes, other.*kNodes) && ...);
  }
};

}  // namespace bench

#endif  // VELKORD_BENCH_LIMIT_H_
