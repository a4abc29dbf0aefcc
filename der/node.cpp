#include "der/node.h"

#include <bit>

#include "platform/memory.h"

namespace velkord::internal {

namespace {

// The content of an element without its unused-bits octet, if that is to be dropped, and without
// the zero octet that keeps an INTEGER positive.
int32_t OpenElement(const DerElement& element, bool dropUnusedBitsOctet, Bytes& content) {
  Bytes bytes = element.Content();
  if (dropUnusedBitsOctet) {
    if (bytes.empty()) return VELKORD_SIZE_MISMATCH;
    bytes = bytes.subspan(1);
  }
  if (element.tag == kInteger && bytes.size() >= 2 && bytes[0] == 0 && bytes[1] >= 0x80) {
    bytes = bytes.subspan(1);
  }
  content = bytes;
  return VELKORD_OK;
}

}  // namespace

uint32_t ImpliedUnusedBits(Bytes bits) {
  if (bits.empty()) return 0;
  const uint32_t last = bits.back();
  return last < 2 || last > 0x80 ? 0 : static_cast<uint32_t>(std::bit_width(last - 1));
}

Anybuf* DerNewNode(uint64_t size, uint32_t dataType) {
  if (size > UINT32_MAX) return nullptr;
  auto* node = Allocate<Anybuf>();
  uint8_t* data = AllocateBytes(static_cast<size_t>(size));
  if (node == nullptr || data == nullptr) {
    Release(data);
    Release(node);
    return nullptr;
  }
  *node = {.data = data,
           .dataLen = static_cast<uint32_t>(size),
           .unusedBits = 0,
           .memKind = kMemKind,
           .dataType = dataType,
           .next = nullptr,
           .prev = nullptr};
  return node;
}

int32_t DerCopyBytes(Bytes bytes, uint32_t dataType, uint32_t unusedBits, Anybuf** out) {
  Anybuf* node = DerNewNode(bytes.size(), dataType);
  if (node == nullptr) return VELKORD_FAILURE;
  CopyOut(bytes, node->data);
  node->unusedBits = unusedBits;
  *out = node;
  return VELKORD_OK;
}

int32_t DerCopyBitString(Bytes in, Anybuf** out) {
  Bytes rest = in;
  uint32_t tag;
  uint32_t length;
  VELKORD_TRY(DerParseTag(rest, tag));
  VELKORD_TRY(DerParseLength(rest, length));
  if (rest.empty()) return VELKORD_SIZE_MISMATCH;
  return DerCopyBytes(in, tag, rest[0], out);
}

int32_t DerCopyElement(Bytes in, Anybuf** out) {
  Bytes afterTag = in;
  uint32_t tag;
  VELKORD_TRY(DerParseTag(afterTag, tag));
  return DerCopyBytes(in, tag, 0, out);
}

Anybuf* DerCopyNode(const Anybuf& node) {
  Anybuf* copy = nullptr;
  if (DerCopyBytes(NodeBytes(node), node.dataType, node.unusedBits, &copy) != VELKORD_OK) {
    return nullptr;
  }
  copy->memKind = node.memKind;
  return copy;
}

Anybuf* DerNewElement(const DerHeader& header) {
  Anybuf* node = DerNewNode(header.Total(), ReduceTag(header.Tag()));
  if (node != nullptr) DerWriter({node->data, header.Size()}).Put(header);
  return node;
}

int32_t DerBuild(uint8_t tag, Bytes content, Anybuf** out, uint32_t unusedBits) {
  VELKORD_TRY(DerBuildWith(DerHeader::For(tag, content, unusedBits), out,
                           [&](DerWriter& writer) { writer.Put(content); }));
  if (tag == kBitString) (*out)->unusedBits = unusedBits;
  return VELKORD_OK;
}

int32_t DerBuildFromNode(uint8_t tag, const Anybuf* source, Anybuf** out) {
  if (source == nullptr || out == nullptr) return VELKORD_NULL_ARGUMENT;
  return DerBuild(tag, NodeBytes(*source), out, source->unusedBits);
}

int32_t DerBuildFromBytes(uint8_t tag, const uint8_t* bytes, uint32_t length, Anybuf** out) {
  if (out == nullptr) return VELKORD_NULL_ARGUMENT;
  Bytes content;
  VELKORD_TRY(CallerBytes(bytes, length, content));
  return DerBuild(tag, content, out, ImpliedUnusedBits(content));
}

int32_t DerJoin(uint8_t tag, std::initializer_list<Bytes> parts, Anybuf** out) {
  return DerJoinEach(
      tag,
      [&](auto visit) {
        for (const Bytes part : parts) visit(part);
      },
      out);
}

int32_t DerRetag(uint8_t tag, const DerElement& element, Anybuf** out) {
  const Bytes content = element.Content();
  if (element.headerSize != 1 + DerLengthSize(static_cast<uint32_t>(content.size()))) {
    return DerJoin(tag, {content}, out);
  }
  VELKORD_TRY(DerCopyBytes(element.whole, ReduceTag(tag), 0, out));
  (*out)->data[0] = tag;
  return VELKORD_OK;
}

int32_t DerRewrite(uint8_t tag, const DerElement& element, Anybuf** out) {
  // Unchanged content: neither type has an octet in front of it, or the INTEGER needs none.
  const Bytes raw = element.Content();
  const auto hasOctet = [](uint32_t type) { return type == kBitString || type == kInteger; };
  const bool isPlain = !hasOctet(tag) && !hasOctet(element.tag);
  const bool isInteger = tag == kInteger && element.tag == tag && !raw.empty() && raw[0] < 0x80;
  if (isPlain || isInteger) return DerRetag(tag, element, out);
  Bytes content;
  VELKORD_TRY(DerOpenContent(element, content));
  return DerBuild(tag, content, out);
}

int32_t DerRewrap(uint8_t tag, const DerElement& element, Anybuf** out) {
  if (element.tag != ReduceTag(tag)) return VELKORD_WRONG_TAG;
  VELKORD_TRY(DerCheckChildren(element.Content()));
  return DerRetag(tag, element, out);
}

int32_t DerRewrap(uint8_t tag, Bytes in, Anybuf** out) {
  DerElement element;
  VELKORD_TRY(DerParseElementOf(ReduceTag(tag), in, element));
  return DerRewrap(tag, element, out);
}

int32_t DerRewrapNext(DerElements& children, Anybuf** out) {
  DerElement child;
  VELKORD_TRY(children.Next(child));
  return DerRewrap(kSequence, child, out);
}

int32_t DerSplit(Bytes content, Anybuf** out) {
  NodePtr head;
  Anybuf** next = head.Out();
  Anybuf* last = nullptr;
  while (!content.empty()) {
    DerElement child;
    if (DerTakeElement(content, child) != VELKORD_OK) return VELKORD_FAILURE;
    VELKORD_TRY(DerCopyBytes(child.whole, child.tag, 0, next));
    (*next)->prev = last;
    last = *next;
    next = &last->next;
  }
  *out = head.release();
  return VELKORD_OK;
}

int32_t DerOpenContent(const Anybuf& source, DerContent& content) {
  const bool isBitString = source.dataType == kBitString;
  DerElement element;
  VELKORD_TRY(DerParseElement(NodeBytes(source), element));
  VELKORD_TRY(OpenElement(element, isBitString, content.bytes));
  content.tag = element.tag;
  content.unusedBits = isBitString ? source.unusedBits : 0;
  return VELKORD_OK;
}

int32_t DerOpenContent(const DerElement& child, Bytes& content) {
  return OpenElement(child, child.tag == kBitString, content);
}

int32_t DerNextContent(DerElements& children, Bytes& content, uint32_t skipped) {
  DerElement child;
  VELKORD_TRY(children.Next(child));
  for (; skipped != 0; --skipped) VELKORD_TRY(children.Next(child));
  return DerOpenContent(child, content);
}

int32_t DerCopyContent(const DerElement& child, Anybuf** out) {
  Bytes content;
  VELKORD_TRY(DerOpenContent(child, content));
  return DerCopyBytes(content, child.tag, 0, out);
}

int32_t DerOpenRaw(const Anybuf& source, Bytes& content) {
  DerElement element;
  VELKORD_TRY(DerParseElement(NodeBytes(source), element));
  return OpenElement(element, false, content);
}

}  // namespace velkord::internal
