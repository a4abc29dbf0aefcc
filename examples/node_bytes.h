// The bytes of nodes.
#ifndef VELKORD_EXAMPLES_NODE_BYTES_H_
#define VELKORD_EXAMPLES_NODE_BYTES_H_

#include <algorithm>
#include <vector>

#include "handles.h"
#include "readable_text.h"
#include "result_codes.h"

inline Bytes NodeBytes(const Anybuf& node) { return Bytes(node.data, node.dataLen); }

inline bool SameBytes(const Anybuf& node, const Anybuf& other) {
  return std::ranges::equal(NodeBytes(node), NodeBytes(other));
}

// The content of a TLV node: of a BIT STRING without its unused-bits octet, of an INTEGER without
// the zero octet that only keeps it positive.
inline std::vector<uint8_t> NodeContent(const Anybuf& node, const char* step) {
  std::vector<uint8_t> content(node.dataLen);
  uint32_t length = 0;
  Check(ASN1_ReadOctetStringToBytes(&node, content.data(), &length), step);
  content.resize(length);
  return content;
}

// A TLV node over a whole element.
inline NodePtr ElementNode(Bytes der, const char* step) {
  NodePtr node;
  Check(ASN1_WriteExplicitFromDERData(der.data(), Length32(der.size()), Out(node)), step);
  return node;
}

#endif  // VELKORD_EXAMPLES_NODE_BYTES_H_
