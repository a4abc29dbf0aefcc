// Base64 of plain buffers.
#include <cstring>
#include <memory>

#if defined(VELKORD_BENCH_OPENSSL)
#include <openssl/evp.h>
#endif

#include "Velkord.h"
#include "cases.h"
#include "contender.h"
#include "inputs.h"

namespace bench {

namespace {

// The bytes, their text, and the buffers that a contender writes.
struct Sample {
  explicit Sample(size_t bytes)
      : size(static_cast<uint32_t>(bytes)),
        characters((bytes + 2) / 3 * 4),
        in(bytes, PageBuffer::kSource),
        text(characters + 1, PageBuffer::kSource),
        encoded(characters + 1, PageBuffer::kDestination),
        decoded(bytes + 3, PageBuffer::kDestination) {
    std::memcpy(in.Bytes(), RandomBytes(bytes).data(), bytes);
    base64_encode(in.Bytes(), size, text.Text());
  }

  uint32_t size;
  size_t characters;
  PageBuffer in;
  PageBuffer text;
  PageBuffer encoded;
  PageBuffer decoded;
};

void AddSize(const std::string& name, size_t bytes) {
  const auto sample = std::make_shared<Sample>(bytes);
  const auto items = static_cast<double>(bytes);
  const std::string encode = "base64_encode_" + name;
  const std::string decode = "base64_decode_" + name;

  Add(encode, "velkord", items, [sample] {
    base64_encode(sample->in.Bytes(), sample->size, sample->encoded.Text());
    benchmark::ClobberMemory();
  });
  Add(encode, "limit", items, [sample] {
    std::memcpy(sample->encoded.Bytes(), sample->text.Bytes(), sample->characters);
    benchmark::ClobberMemory();
  });
  Add(decode, "velkord", items, [sample] {
    uint32_t length;
    base64_decode(sample->text.Text(), sample->decoded.Bytes(), &length);
    benchmark::DoNotOptimize(length);
    benchmark::ClobberMemory();
  });
  Add(decode, "limit", items, [sample] {
    std::memcpy(sample->decoded.Bytes(), sample->in.Bytes(), sample->size);
    benchmark::ClobberMemory();
  });

#if defined(VELKORD_BENCH_OPENSSL)
  const auto size = static_cast<int>(bytes);
  const auto characters = static_cast<int>(sample->characters);
  EVP_EncodeBlock(sample->encoded.Bytes(), sample->in.Bytes(), size);
  Require(std::strcmp(sample->encoded.Text(), sample->text.Text()) == 0,
          "OpenSSL encodes the same");
  Add(encode, "openssl", items, [sample, size] {
    EVP_EncodeBlock(sample->encoded.Bytes(), sample->in.Bytes(), size);
    benchmark::ClobberMemory();
  });
  Add(decode, "openssl", items, [sample, characters] {
    EVP_DecodeBlock(sample->decoded.Bytes(), sample->text.Bytes(), characters);
    benchmark::ClobberMemory();
  });
#endif
}

}  // namespace

void AddBase64() {
  AddSize("1536", 1536);
  AddSize("1m", size_t{1} << 20);
}

}  // namespace bench
