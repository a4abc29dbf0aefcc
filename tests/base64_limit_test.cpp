// base64_decode of a text whose bytes do not fit the 32 bits of their length. Text and result are a
// few MiB of memory, mapped over and over.
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "Velkord.h"
#include "text/base64_alphabet.h"

namespace {

constexpr size_t kMiB = size_t{1} << 20;

// `size` octets of memory again and again, then `rest` octets of its own, which are zero, and then
// a fence. Null where there is no memory for it.
class Repeated {
 public:
  Repeated(size_t size, size_t times, size_t rest) : all_(size * times + rest + kFence) {
    void* start = mmap(nullptr, all_, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (start == MAP_FAILED) return;
    place_ = static_cast<char*>(start);
    const int file = memfd_create("repeated", MFD_CLOEXEC);
    complete_ = file >= 0 && ftruncate(file, static_cast<off_t>(size)) == 0;
    for (size_t at = 0; complete_ && at != times; ++at) {
      complete_ = mmap(place_ + at * size, size, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_FIXED,
                       file, 0) != MAP_FAILED;
    }
    complete_ = complete_ && mprotect(place_ + size * times, rest, PROT_READ | PROT_WRITE) == 0;
    close(file);
  }
  ~Repeated() {
    if (place_ != nullptr) munmap(place_, all_);
  }
  Repeated(const Repeated&) = delete;
  Repeated& operator=(const Repeated&) = delete;

  char* Place() const { return complete_ ? place_ : nullptr; }

 private:
  static constexpr size_t kFence = 65536;

  size_t all_;
  char* place_ = nullptr;
  bool complete_ = false;
};

TEST(Base64Limit, DecodingStopsWhereTheLengthDoesNotFit) {
  constexpr size_t kCharacters = 4 * kMiB;
  constexpr size_t kBytes = 3 * kMiB;
  // 2^32 - 1 bytes are whole groups, and the room for them is one longer.
  constexpr size_t kTimes = UINT32_MAX / kBytes;
  constexpr size_t kRest = UINT32_MAX % kBytes + 1;
  const Repeated text(kCharacters, kTimes + 11, kMiB);
  const Repeated result(kBytes, kTimes, kRest);
  if (text.Place() == nullptr || result.Place() == nullptr) {
    GTEST_SKIP() << "There is no memory of 9 GiB, even if most of it is the same";
  }

  std::string once(kCharacters, 0);
  for (uint32_t at = 0; at != kCharacters; ++at) {
    once[at] = velkord::internal::kBase64Alphabet[at * 0x9E3779B1 >> 26];
  }
  std::vector<uint8_t> bytes(kBytes);
  uint32_t length = 0;
  ASSERT_EQ(base64_decode(once.c_str(), bytes.data(), &length), VELKORD_OK);
  ASSERT_EQ(length, kBytes);

  once.copy(text.Place(), once.size());
  auto* out = reinterpret_cast<uint8_t*>(result.Place());
  ASSERT_EQ(base64_decode(text.Place(), out, &length), VELKORD_OK);
  EXPECT_EQ(length, UINT32_MAX);
  EXPECT_EQ(std::memcmp(out, bytes.data(), kBytes), 0);
  EXPECT_EQ(std::memcmp(out + kTimes * kBytes, bytes.data(), kRest - 1), 0);
  EXPECT_EQ(out[UINT32_MAX], 0);
}

}  // namespace
