// EXPLICIT and IMPLICIT tags: what the records share with the exports.
#ifndef VELKORD_DER_TAGGING_H_
#define VELKORD_DER_TAGGING_H_

#include "der/node.h"

namespace velkord::internal {

// Tag octet of an EXPLICIT tag, from its number or from the octet itself.
constexpr uint8_t ExplicitTag(uint32_t number) {
  return static_cast<uint8_t>(number | kContextConstructed);
}

// Whether an element under an IMPLICIT tag counts as constructed: context and private tags with the
// constructed bit, never universal and application ones.
constexpr bool IsImplicitConstructed(uint32_t tag) {
  return (tag & kContextConstructed) == kContextConstructed;
}

// The content of any other element under an IMPLICIT tag: an odd tag drops its first octet.
// 0, or -2 when there is none to drop.
int32_t DerOpenImplicit(const DerElement& element, Bytes& content);

}  // namespace velkord::internal

#endif  // VELKORD_DER_TAGGING_H_
