// What the cases are run on.
#ifndef VELKORD_BENCH_INPUTS_H_
#define VELKORD_BENCH_INPUTS_H_

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace bench {

using Der = std::vector<uint8_t>;

// The certificates of the machine's bundle of authorities.
const std::vector<Der>& BundledCertificates();

// The one of median size.
const Der& MedianCertificate();

// The SEQUENCE of so many entries of a revocation list: every serial number 16 octets long, every
// tenth entry with a reason code.
Der RevokedCertificates(size_t entries);

// A revocation list with these entries. Signed with zeros: nobody here verifies it.
Der RevocationList(size_t entries);

// Numbers of a fixed sequence.
class Random {
 public:
  explicit Random(uint32_t seed) : state_(seed) {}
  // Below `bound`.
  uint32_t Next(uint32_t bound) {
    state_ = state_ * 6364136223846793005U + 1442695040888963407U;
    return static_cast<uint32_t>((state_ >> 32) % bound);
  }
  std::string Bytes(size_t size);

 private:
  uint64_t state_;
};

// A buffer that its copies share. Its place in its page is chosen, so that no copy between two of
// them is slowed down by the distance of their addresses: sources lie at the front of a page,
// destinations in its middle. Zeros follow.
class PageBuffer {
 public:
  // A source.
  explicit PageBuffer(const std::string& content);
  // A destination.
  explicit PageBuffer(size_t room);

  uint8_t* Data() const { return data_; }
  char* Text() const { return reinterpret_cast<char*>(data_); }
  uint32_t Size() const { return size_; }

 private:
  PageBuffer(size_t size, size_t place);

  std::shared_ptr<uint8_t[]> block_;
  uint8_t* data_;
  uint32_t size_;
};

// Adds the limit of a case that fills `out` with `result`: a copy.
void AddCopy(const std::string& name, size_t items, const PageBuffer& result,
             const PageBuffer& out);

}  // namespace bench

#endif  // VELKORD_BENCH_INPUTS_H_
