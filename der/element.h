// Reading of DER: views that own nothing, and the tag and length rules. Every tag and length
// octet is read here, each step after one bounds check.
#ifndef VELKORD_DER_ELEMENT_H_
#define VELKORD_DER_ELEMENT_H_

#include <cstddef>
#include <cstdint>
#include <span>

#include "der/result.h"

// Seldom called, so that its code is kept apart.
#if __has_cpp_attribute(gnu::cold)
#define VELKORD_COLD [[gnu::cold]]
#else
#define VELKORD_COLD
#endif

namespace velkord::internal {

using Bytes = std::span<const uint8_t>;

// Tag octets as they are written.
inline constexpr uint8_t kBoolean = 0x01;
inline constexpr uint8_t kInteger = 0x02;
inline constexpr uint8_t kBitString = 0x03;
inline constexpr uint8_t kOctetString = 0x04;
inline constexpr uint8_t kNull = 0x05;
inline constexpr uint8_t kObjectId = 0x06;
inline constexpr uint8_t kEnumerated = 0x0A;
inline constexpr uint8_t kUtf8String = 0x0C;
inline constexpr uint8_t kPrintableString = 0x13;
inline constexpr uint8_t kIa5String = 0x16;
inline constexpr uint8_t kUtcTime = 0x17;
inline constexpr uint8_t kGeneralizedTime = 0x18;
inline constexpr uint8_t kBmpString = 0x1E;
inline constexpr uint8_t kSequence = 0x30;
inline constexpr uint8_t kSet = 0x31;
inline constexpr uint8_t kContextPrimitive = 0x80;
inline constexpr uint8_t kContextConstructed = 0xA0;

// The low five bits: the number of a one-octet tag, and all set in the first octet of a longer one.
inline constexpr uint8_t kTagNumberMask = 0x1F;

// A context or private tag keeps all its bits; a universal or application tag is its number.
constexpr uint32_t ReduceTag(uint8_t octet) {
  return octet >= 0x80 ? octet : octet & kTagNumberMask;
}

inline constexpr uint32_t kSequenceType = ReduceTag(kSequence);
inline constexpr uint32_t kSetType = ReduceTag(kSet);

constexpr bool IsLongTag(uint8_t first) { return (first & kTagNumberMask) == kTagNumberMask; }

// Reads the tag octets at the front of `in`, which moves past them. A tag of several octets is
// `(number << 8) | first octet`, the number cut to 24 bits.
// 0, or -2 when the tag does not end inside `in`.
int32_t DerParseTag(Bytes& in, uint32_t& tag);

// Reads the length octets at the front of `in`, which moves past them. Lengths need not be
// minimal. 0; -1 for more than 4 subsequent octets; -2 for the indefinite form and for octets cut
// off.
int32_t DerParseLength(Bytes& in, uint32_t& length);

// Number of length octets of a content of `length` bytes in shortest form, 1 to 5.
constexpr uint32_t DerLengthSize(uint32_t length) {
  if (length < 0x80) return 1;
  if (length < 0x100) return 2;
  if (length < 0x10000) return 3;
  return length < 0x1000000 ? 4 : 5;
}

// One element: its reduced tag, a view of its TLV, and where in that the content begins.
struct DerElement {
  uint32_t tag = 0;
  size_t headerSize = 0;
  Bytes whole;

  Bytes Content() const { return whole.subspan(headerSize); }
};

// Opens the element at the front of `in`, whatever its header. 0, -1 or -2 as the parsers above.
// It is kept out of the loops that read short headers.
VELKORD_COLD int32_t DerOpenAnyElement(Bytes in, DerElement& element);

// Opens the element at the front of `in` if its header is short, as nearly all are: a tag of one
// octet, and one length octet, or one or two after the octet that counts them. False for any other
// header, and for an element that does not fit.
inline bool DerOpenShortElement(Bytes in, DerElement& element) {
  const size_t size = in.size();
  if (size < 2 || IsLongTag(in[0])) return false;
  size_t header = 2;
  size_t length = in[1];
  if (length >= 0x80) {
    if (length == 0x82 && size >= 4) {
      header = 4;
      length = size_t{in[2]} << 8 | in[3];
    } else if (length == 0x81 && size >= 3) {
      header = 3;
      length = in[2];
    } else {
      return false;
    }
  }
  if (length > size - header) return false;
  element = {ReduceTag(in[0]), header, in.first(header + length)};
  return true;
}

// Opens the element at the front of `in`. 0, -1 or -2 as the parsers above.
inline int32_t DerOpenElement(Bytes in, DerElement& element) {
  if (DerOpenShortElement(in, element)) return VELKORD_OK;
  // Into a second element, so that the first can stay in registers.
  DerElement any;
  VELKORD_TRY(DerOpenAnyElement(in, any));
  element = any;
  return VELKORD_OK;
}

// Takes the element at the front of `in`, which moves past it. 0, -1 or -2 as the parsers above.
inline int32_t DerTakeElement(Bytes& in, DerElement& element) {
  VELKORD_TRY(DerOpenElement(in, element));
  in = in.subspan(element.whole.size());
  return VELKORD_OK;
}

// Takes an element that must fill `in` exactly; -2 when it does not.
int32_t DerParseElement(Bytes in, DerElement& element);
// The same for a SEQUENCE or SET of reduced tag `type`; -7 for another tag, before other codes.
int32_t DerParseElementOf(uint32_t type, Bytes in, DerElement& element);

// Whether the children of an element fit its content. 0, or -1.
int32_t DerCheckChildren(Bytes content);

// The direct children of a SEQUENCE or SET. Whichever of them are looked at, all are checked.
class DerElements {
 public:
  // Reads the SEQUENCE or SET of reduced tag `type` that fills `in`: `read` takes the children that
  // it needs, and the others are checked after it. Use what it stored only when this returns 0.
  // -7 for another tag; -1 or -2 from the header; -1 when a child does not fit, whatever `read`
  // returns; otherwise the code of `read`.
  template <typename Reader>
  static int32_t Read(Bytes in, uint32_t type, Reader read) {
    DerElements elements;
    VELKORD_TRY(elements.OpenUnchecked(in, type));
    return elements.Finish(read(elements));
  }

  // Reads a SEQUENCE of two: calls `read` with each child and its place, 0 for the first and 1 for
  // all after it, so that of more than two the last counts. As `Read`; -1 for fewer than two.
  template <typename Reader>
  static int32_t ReadPair(Bytes in, Reader read) {
    return Read(in, kSequenceType, [&](DerElements& elements) -> int32_t {
      for (uint32_t at = 0; at < 2 || !elements.AtEnd(); ++at) {
        DerElement child;
        VELKORD_TRY(elements.Next(child));
        VELKORD_TRY(read(child, at == 0 ? 0 : 1));
      }
      return VELKORD_OK;
    });
  }

  // Opens the same and checks all children first, for a caller that stores something for good
  // while it takes them. 0, -7, -1 or -2 as above.
  int32_t Open(Bytes in, uint32_t type);

  bool AtEnd() const { return rest_.empty(); }
  // Whether there is a next child, whose first octet is `octet`.
  bool StartsWith(uint8_t octet) const { return !rest_.empty() && rest_[0] == octet; }

  // The first octet of the next child, which there must be.
  uint8_t NextOctet() const { return rest_[0]; }

  // Takes the next child. 0, or -1 at the end and for one that does not fit.
  int32_t Next(DerElement& child);

 private:
  int32_t OpenUnchecked(Bytes in, uint32_t type);
  // `code`, or -1 when a child that was not taken does not fit.
  int32_t Finish(int32_t code) const;
  int32_t Advance(const DerElement& child) {
    rest_ = rest_.subspan(child.whole.size());
    return VELKORD_OK;
  }
  VELKORD_COLD int32_t NextOfAnyHeader(DerElement& child);

  Bytes rest_;
};

}  // namespace velkord::internal

#endif  // VELKORD_DER_ELEMENT_H_
