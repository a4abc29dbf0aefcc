// Writing of DER: the header of an element, and a writer for a block whose size was counted before.
#ifndef VELKORD_DER_WRITER_H_
#define VELKORD_DER_WRITER_H_

#include <cassert>
#include <cstring>

#include "der/element.h"

namespace velkord::internal {

// Copies `bytes` to a buffer, which may overlap them, and returns their number.
inline uint32_t CopyOut(Bytes bytes, uint8_t* out) {
  if (!bytes.empty()) std::memmove(out, bytes.data(), bytes.size());
  return static_cast<uint32_t>(bytes.size());
}

// The header of an element: tag and length octets, and the octet that precedes some contents.
class DerHeader {
 public:
  DerHeader(uint8_t tag, uint64_t contentLength) : DerHeader(tag, contentLength, false, 0) {}
  // With the unused-bits octet of a BIT STRING.
  static DerHeader ForBitString(uint32_t unusedBits, uint64_t bitsLength) {
    return {kBitString, bitsLength + 1, true, static_cast<uint8_t>(unusedBits)};
  }
  // With the octet that precedes the content of some types: in a BIT STRING it is the low byte of
  // `unusedBits`, which no other type looks at; in an INTEGER it is zero, and is there only when
  // the content begins with 0x80 or more.
  static DerHeader For(uint8_t tag, Bytes content, uint32_t unusedBits = 0) {
    if (tag == kBitString) return ForBitString(unusedBits, content.size());
    if (tag == kInteger && !content.empty() && content[0] >= 0x80) {
      return {tag, uint64_t{content.size()} + 1, true, 0};
    }
    return {tag, content.size()};
  }

  uint8_t Tag() const { return tag_; }
  // Size of the header, and of the element.
  uint32_t Size() const { return 1 + lengthSize_ + (hasOctet_ ? 1 : 0); }
  uint64_t Total() const { return 1 + lengthSize_ + contentLength_; }

 private:
  friend class DerWriter;

  // Whoever makes the element refuses one beyond 32 bits, and with it such a length.
  DerHeader(uint8_t tag, uint64_t contentLength, bool hasOctet, uint8_t octet)
      : tag_(tag),
        hasOctet_(hasOctet),
        octet_(octet),
        lengthSize_(DerLengthSize(static_cast<uint32_t>(contentLength))),
        contentLength_(contentLength) {}

  // Writes the header and returns the place after it.
  uint8_t* Write(uint8_t* place) const;

  uint8_t tag_;
  bool hasOctet_;
  uint8_t octet_;
  uint32_t lengthSize_;
  uint64_t contentLength_;
};

inline uint8_t* DerHeader::Write(uint8_t* place) const {
  const auto length = static_cast<uint32_t>(contentLength_);
  *place++ = tag_;
  if (lengthSize_ == 1) {
    *place++ = static_cast<uint8_t>(length);
  } else {
    *place++ = static_cast<uint8_t>(0x80 | (lengthSize_ - 1));
    for (uint32_t left = lengthSize_ - 1; left != 0; --left) {
      *place++ = static_cast<uint8_t>(length >> 8 * (left - 1));
    }
  }
  if (hasOctet_) *place++ = octet_;
  return place;
}

// Fills a block from front to end. That it stays inside the block and in the end has filled it is
// asserted.
class DerWriter {
 public:
  explicit DerWriter(std::span<uint8_t> room)
      : place_(room.data()), end_(room.data() + room.size()) {}
  ~DerWriter() { assert(place_ == end_); }
  DerWriter(const DerWriter&) = delete;
  DerWriter& operator=(const DerWriter&) = delete;

  void Put(uint8_t octet) { Take(1)[0] = octet; }
  void Put(Bytes bytes) { CopyOut(bytes, Take(bytes.size()).data()); }
  void Put(const DerHeader& header) {
    assert(header.Size() <= Left());
    place_ = header.Write(place_);
  }

  // The next `size` octets, for a caller that fills them itself.
  std::span<uint8_t> Take(size_t size) {
    assert(size <= Left());
    place_ += size;
    return {place_ - size, size};
  }

 private:
  size_t Left() const { return static_cast<size_t>(end_ - place_); }

  uint8_t* place_;
  const uint8_t* end_;
};

// The octets of a header, as one of the parts that are joined.
class DerHeaderOctets {
 public:
  explicit DerHeaderOctets(const DerHeader& header) : size_(header.Size()) {
    DerWriter({octets_, size_}).Put(header);
  }

  Bytes View() const { return {octets_, size_}; }

 private:
  uint8_t octets_[7] = {};
  size_t size_;
};

}  // namespace velkord::internal

#endif  // VELKORD_DER_WRITER_H_
