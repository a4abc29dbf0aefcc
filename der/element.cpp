#include "der/element.h"

namespace velkord {

// Contents too long for a test to make.
static_assert(DerLengthSize(0xFFFFFF) == 4 && DerLengthSize(0x1000000) == 5);

int32_t DerParseTag(Bytes& in, uint32_t& tag) {
  if (in.empty()) return VELKORD_SIZE_MISMATCH;
  const uint8_t first = in[0];
  size_t used = 1;
  if ((first & kTagNumberMask) != kTagNumberMask) {
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

namespace {

// The length and content behind a tag; `start` is the place of the tag.
int32_t TakeContent(Bytes start, Bytes& in, DerElement& element) {
  uint32_t length;
  VELKORD_TRY(DerParseLength(in, length));
  if (length > in.size()) return VELKORD_SIZE_MISMATCH;
  element.content = in.first(length);
  in = in.subspan(length);
  element.whole = start.first(start.size() - in.size());
  return VELKORD_OK;
}

}  // namespace

int32_t DerTakeElement(Bytes& in, DerElement& element) {
  Bytes rest = in;
  VELKORD_TRY(DerParseTag(rest, element.tag));
  VELKORD_TRY(TakeContent(in, rest, element));
  in = rest;
  return VELKORD_OK;
}

int32_t DerParseElement(Bytes in, DerElement& element) {
  VELKORD_TRY(DerTakeElement(in, element));
  return in.empty() ? VELKORD_OK : VELKORD_SIZE_MISMATCH;
}

int32_t DerElements::Open(Bytes in, uint32_t type) {
  DerElement parent;
  Bytes rest = in;
  VELKORD_TRY(DerParseTag(rest, parent.tag));
  if (parent.tag != type) return VELKORD_WRONG_TAG;
  VELKORD_TRY(TakeContent(in, rest, parent));
  if (!rest.empty()) return VELKORD_SIZE_MISMATCH;
  return OpenContent(parent.content);
}

int32_t DerElements::OpenContent(Bytes content) {
  content_ = content;
  rest_ = content;
  count_ = 0;
  DerElement child;
  for (Bytes rest = content; !rest.empty(); ++count_) {
    if (DerTakeElement(rest, child) != VELKORD_OK) return VELKORD_FAILURE;
  }
  return VELKORD_OK;
}

int32_t DerElements::Next(DerElement& child) {
  return AtEnd() ? VELKORD_FAILURE : DerTakeElement(rest_, child);
}

}  // namespace velkord
