// What the cases are run on. Made at the first call and kept.
#ifndef VELKORD_BENCH_INPUTS_H_
#define VELKORD_BENCH_INPUTS_H_

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace bench {

// The certificates of the machine's bundle of authorities, as DER.
const std::vector<std::vector<uint8_t>>& Certificates();

// The one of median size.
const std::vector<uint8_t>& Certificate();

// The same as PEM text.
const std::string& PemCertificate();

// A revocation list with that many entries: every serial number 16 octets long, every tenth entry
// with a reason code. Signed with zeros: nobody here verifies it.
std::vector<uint8_t> RevocationList(size_t entries);

// Bytes and choices of a fixed sequence.
class Random {
 public:
  explicit Random(uint32_t seed) : state_(seed) {}
  // Below `bound`.
  uint32_t Next(uint32_t bound) {
    state_ = state_ * 6364136223846793005U + 1442695040888963407U;
    return static_cast<uint32_t>((state_ >> 32) % bound);
  }

 private:
  uint64_t state_;
};

std::vector<uint8_t> RandomBytes(size_t size);

// A buffer whose place in its page is chosen, so that no copy between two of them is slowed down by
// the distance of their addresses: sources at the front of a page, destinations in its middle.
class PageBuffer {
 public:
  enum Place : size_t { kSource = 0, kDestination = 2048 };

  PageBuffer(size_t size, Place place);

  uint8_t* Bytes() const { return bytes_; }
  char* Text() const { return reinterpret_cast<char*>(bytes_); }

 private:
  std::unique_ptr<uint8_t[]> block_;
  uint8_t* bytes_;
};

}  // namespace bench

#endif  // VELKORD_BENCH_INPUTS_H_
