#include "der/element.h"

namespace velkord::internal {

// Contents of such lengths are too long for a test to make.
static_assert(DerLengthSize(0xFFFFFF) == 4 && DerLengthSize(0x1000000) == 5);

int32_t DerParseTag(Bytes& in, uint32_t& tag) {
  if (in.empty()) return VELKORD_SIZE_MISMATCH;
  const uint8_t first = in[0];
  size_t used = 1;
  if (!IsLongTag(first)) {
    tag = ReduceTag(first);
  } else {
    uint32_t number = 0;
    uint8_t octet;
    do {
      if (used == in.size()) return VELKORD_SIZE_MISMATCH;
      octet = in[used++];
      number = number << 7 | (octet & 0x7F);
    } while ((octet & 0x80) != 0);
    tag = number << 8 | first;
  }
  in = in.subspan(used);
  return VELKORD_OK;
}

int32_t DerParseLength(Bytes& in, uint32_t& length) {
  if (in.empty()) return VELKORD_SIZE_MISMATCH;
  const uint8_t first = in[0];
  if (first < 0x80) {
    length = first;
    in = in.subspan(1);
    return VELKORD_OK;
  }
  const size_t octets = first & 0x7F;
  if (octets > 4) return VELKORD_FAILURE;
  if (octets == 0 || octets >= in.size()) return VELKORD_SIZE_MISMATCH;
  uint32_t value = 0;
  for (const uint8_t octet : in.subspan(1, octets)) value = value << 8 | octet;
  length = value;
  in = in.subspan(1 + octets);
  return VELKORD_OK;
}

int32_t DerOpenAnyElement(Bytes in, DerElement& element) {
  Bytes rest = in;
  uint32_t tag;
  uint32_t length;
  VELKORD_TRY(DerParseTag(rest, tag));
  VELKORD_TRY(DerParseLength(rest, length));
  if (length > rest.size()) return VELKORD_SIZE_MISMATCH;
  element.tag = tag;
  element.headerSize = in.size() - rest.size();
  element.whole = in.first(element.headerSize + length);
  return VELKORD_OK;
}

int32_t DerParseElement(Bytes in, DerElement& element) {
  VELKORD_TRY(DerTakeElement(in, element));
  return in.empty() ? VELKORD_OK : VELKORD_SIZE_MISMATCH;
}

int32_t DerParseElementOf(uint32_t type, Bytes in, DerElement& element) {
  // No tag of several octets is a type's.
  if (in.empty() || ReduceTag(in[0]) != type) {
    uint32_t tag;
    VELKORD_TRY(DerParseTag(in, tag));
    return VELKORD_WRONG_TAG;
  }
  return DerParseElement(in, element);
}

int32_t DerCheckChildren(Bytes content) {
  DerElement child;
  while (!content.empty()) {
    if (DerTakeElement(content, child) != VELKORD_OK) return VELKORD_FAILURE;
  }
  return VELKORD_OK;
}

int32_t DerElements::Open(Bytes in, uint32_t type) {
  VELKORD_TRY(OpenUnchecked(in, type));
  return DerCheckChildren(rest_);
}

int32_t DerElements::Finish(int32_t code) const {
  return DerCheckChildren(rest_) == VELKORD_OK ? code : VELKORD_FAILURE;
}

int32_t DerElements::Next(DerElement& child) {
  return DerOpenShortElement(rest_, child) ? Advance(child) : NextOfAnyHeader(child);
}

int32_t DerElements::NextOfAnyHeader(DerElement& child) {
  return DerOpenAnyElement(rest_, child) == VELKORD_OK ? Advance(child) : VELKORD_FAILURE;
}

int32_t DerElements::OpenUnchecked(Bytes in, uint32_t type) {
  DerElement parent;
  VELKORD_TRY(DerParseElementOf(type, in, parent));
  rest_ = parent.Content();
  return VELKORD_OK;
}

}  // namespace velkord::internal
