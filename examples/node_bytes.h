// The bytes of nodes.
#ifndef VELKORD_EXAMPLES_NODE_BYTES_H_
#define VELKORD_EXAMPLES_NODE_BYTES_H_

#include <algorithm>
#include <vector>

#include "velkord.hpp"

inline bool SameBytes(const Anybuf& node, const Anybuf& other) {
  return std::ranges::equal(velkord::View(node), velkord::View(other));
}

// The content of a TLV node: of a BIT STRING without its unused-bits octet, of an INTEGER without
// the zero octet that only keeps it positive.
inline std::vector<uint8_t> NodeContent(const Anybuf& node, const char* step) {
  std::vector<uint8_t> content(node.dataLen);
  uint32_t length = 0;
  velkord::Check(ASN1_ReadOctetStringToBytes(&node, content.data(), &length), step);
  content.resize(length);
  return content;
}

// A TLV node over a whole element.
inline velkord::NodePtr ElementNode(velkord::Bytes der, const char* step) {
  return velkord::Make(step, ASN1_WriteExplicitFromDERData, der.data(), velkord::Length(der));
}

#endif  // VELKORD_EXAMPLES_NODE_BYTES_H_
