// What the examples need of libcrypto beside a signing key. Every failure throws std::runtime_error
// naming the step.
#ifndef VELKORD_EXAMPLES_LIBCRYPTO_H_
#define VELKORD_EXAMPLES_LIBCRYPTO_H_

#include <openssl/evp.h>

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "readable_text.h"
#include "secret.h"
#include "velkord.hpp"

// The deleter of an object of libcrypto's that goes back through `kFree`.
template <auto kFree>
struct FreeWith {
  template <typename Object>
  void operator()(Object* object) const {
    kFree(object);
  }
};
using KeyPtr = std::unique_ptr<EVP_PKEY, FreeWith<EVP_PKEY_free>>;
using DigestContextPtr = std::unique_ptr<EVP_MD_CTX, FreeWith<EVP_MD_CTX_free>>;

void CheckCrypto(bool succeeded, const std::string& step);

DigestContextPtr DigestContext();

// Signs in one call with a context that is set up for it.
std::vector<uint8_t> SignWith(const DigestContextPtr& context, velkord::Bytes message);

void FillWithRandom(std::span<uint8_t> bytes);

std::array<uint8_t, 32> Sha256(velkord::Bytes message);

// The DER of an object, by the function that writes its kind.
template <typename Container, typename Object>
Container Encode(int (*write)(const Object*, unsigned char**), Object* object, const char* step) {
  const int size = write(object, nullptr);
  CheckCrypto(size > 0, step);
  Container der(static_cast<size_t>(size));
  unsigned char* end = der.data();
  CheckCrypto(write(object, &end) == size, step);
  return der;
}

// The PrivateKeyInfo of PKCS#8.
SecretBytes PrivateKeyInfo(const KeyPtr& key);

#endif  // VELKORD_EXAMPLES_LIBCRYPTO_H_
