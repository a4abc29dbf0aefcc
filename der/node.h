// Nodes are made here, each in one allocation for the node and one for its bytes at their final
// size, and TLV nodes are opened as views.
//
// Whatever takes an `Anybuf**` stores there last, and only on success. Out of memory, and an
// element whose size does not fit 32 bits, is -1.
#ifndef VELKORD_DER_NODE_H_
#define VELKORD_DER_NODE_H_

#include <cstdint>
#include <initializer_list>

#include "der/writer.h"
#include "platform/owned.h"

namespace velkord::internal {

// `memKind` of every node that is made here.
inline constexpr uint32_t kMemKind = 2;

// Owns a node or chain.
using NodePtr = Owned<Anybuf, ASN1_FreeAnybuf>;

// The bytes of a node; none when `data` is null.
inline Bytes NodeBytes(const Anybuf& node) {
  return node.data == nullptr ? Bytes() : Bytes(node.data, node.dataLen);
}

// A view of a caller's bytes. 0, or -8 for a null pointer with a length.
inline int32_t CallerBytes(const uint8_t* bytes, uint32_t length, Bytes& out) {
  if (bytes == nullptr && length != 0) return VELKORD_NULL_ARGUMENT;
  out = Bytes(bytes, length);
  return VELKORD_OK;
}

// Number of unused bits that the last byte implies: 0 below 2 and above 128, otherwise the number
// of bits of one less than the byte.
uint32_t ImpliedUnusedBits(Bytes bits);

// A node with a block of `size` bytes for the caller to fill; null when it cannot be made.
Anybuf* DerNewNode(uint64_t size, uint32_t dataType);

// A content or TLV node with a copy of `bytes`.
int32_t DerCopyBytes(Bytes bytes, uint32_t dataType, uint32_t unusedBits, Anybuf** out);

// A TLV node with a copy of the DER bytes of a BIT STRING; its unused bits are the octet after the
// header. Neither the tag nor the size is tested. -1 or -2 from the header, -2 without that octet.
int32_t DerCopyBitString(Bytes in, Anybuf** out);

// A TLV node with a copy of DER bytes, of which only the tag is read. 0, -1, or -2 without a tag.
int32_t DerCopyElement(Bytes in, Anybuf** out);
inline int32_t DerCopyElement(const DerElement& element, Anybuf** out) {
  return DerCopyBytes(element.whole, element.tag, 0, out);
}

// A copy of one node with all its fields but `next` and `prev`; null when it cannot be made.
Anybuf* DerCopyNode(const Anybuf& node);

// A TLV node whose header is written; null when it cannot be made.
Anybuf* DerNewElement(const DerHeader& header);

// A TLV node of a header and the content that `write` writes.
template <typename Write>
int32_t DerBuildWith(const DerHeader& header, Anybuf** out, Write write) {
  Anybuf* node = DerNewElement(header);
  if (node == nullptr) return VELKORD_FAILURE;
  DerWriter writer(std::span(node->data, node->dataLen).subspan(header.Size()));
  write(writer);
  *out = node;
  return VELKORD_OK;
}

// One element from one content, with the octet before it that `DerHeader::For` adds.
int32_t DerBuild(uint8_t tag, Bytes content, Anybuf** out, uint32_t unusedBits = 0);

// The same from a caller's node with its unused bits, or from bytes with those that the last one
// implies. -8 for a required argument that is null.
int32_t DerBuildFromNode(uint8_t tag, const Anybuf* source, Anybuf** out);
int32_t DerBuildFromBytes(uint8_t tag, const uint8_t* bytes, uint32_t length, Anybuf** out);

// One element from the parts that `forEach` visits, the same each time it is called.
template <typename ForEach>
int32_t DerJoinEach(uint8_t tag, ForEach forEach, Anybuf** out) {
  uint64_t length = 0;
  forEach([&](Bytes part) { length += part.size(); });
  return DerBuildWith(DerHeader(tag, length), out,
                      [&](DerWriter& writer) { forEach([&](Bytes part) { writer.Put(part); }); });
}

// One element from the bytes of all `parts`; an absent part is an empty view.
int32_t DerJoin(uint8_t tag, std::initializer_list<Bytes> parts, Anybuf** out);

// A copy of an opened element with the tag octet `tag` and its length in shortest form.
int32_t DerRetag(uint8_t tag, const DerElement& element, Anybuf** out);

// The same as an element of another type: the octet that precedes the content of a BIT STRING or a
// positive INTEGER is dropped where the one is read and added where the other is written, without
// unused bits. 0, -1, or -2 for a BIT STRING without its octet.
int32_t DerRewrite(uint8_t tag, const DerElement& element, Anybuf** out);

// A copy of a finished SEQUENCE or SET, its children checked and its length in shortest form.
// 0, -1, -2 or -7.
int32_t DerRewrap(uint8_t tag, Bytes in, Anybuf** out);
int32_t DerRewrap(uint8_t tag, const DerElement& element, Anybuf** out);

// The same of the next child, a SEQUENCE. 0, -1 (also when there is none) or -7.
int32_t DerRewrapNext(DerElements& children, Anybuf** out);

// The children in a content as a chain of TLV nodes, null when there are none.
int32_t DerSplit(Bytes content, Anybuf** out);

// The content of a TLV node, its reduced tag, and the unused bits that the node knows of.
struct DerContent {
  uint32_t tag = 0;
  Bytes bytes;
  uint32_t unusedBits = 0;
};

// The content without the octet that precedes it in a BIT STRING or a positive INTEGER. Whether it
// is a BIT STRING is decided by the node's `dataType`, whether an INTEGER by the tag in the bytes.
// 0; -1 or -2 from the header; -2 for a BIT STRING without its octet.
int32_t DerOpenContent(const Anybuf& source, DerContent& content);
// The same, but a BIT STRING's octet stays.
int32_t DerOpenRaw(const Anybuf& source, Bytes& content);

// The content of an element that was split from its parent, without that octet: its tag decides
// both. 0, or -2 for a BIT STRING without its octet.
int32_t DerOpenContent(const DerElement& child, Bytes& content);
// A content node of it. 0, -1 or -2.
int32_t DerCopyContent(const DerElement& child, Anybuf** out);
// The same content of the next child after `skipped` others. 0, -1 when there is none, or -2.
int32_t DerNextContent(DerElements& children, Bytes& content, uint32_t skipped = 0);

}  // namespace velkord::internal

#endif  // VELKORD_DER_NODE_H_
