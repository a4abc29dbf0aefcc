// What the issuer needs of libcrypto: an RSA key, random bytes and a digest. Every failure throws
// std::runtime_error naming the step.
#ifndef VELKORD_EXAMPLES_SIGNING_KEY_H_
#define VELKORD_EXAMPLES_SIGNING_KEY_H_

#include <openssl/evp.h>

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "handles.h"
#include "readable_text.h"

// An RSA key of 2048 bits with the exponent 65537.
class SigningKey {
 public:
  SigningKey();

  // The numbers of the public key, big-endian.
  std::vector<uint8_t> Modulus() const;
  std::vector<uint8_t> Exponent() const;

  // Signs with SHA-256 and PKCS #1 padding.
  std::vector<uint8_t> Sign(Bytes message) const;

 private:
  std::vector<uint8_t> Number(const char* parameter) const;

  std::unique_ptr<EVP_PKEY, FreeWith<EVP_PKEY_free>> key_;
};

void FillWithRandom(std::span<uint8_t> bytes);

std::array<uint8_t, 32> Sha256(Bytes message);

#endif  // VELKORD_EXAMPLES_SIGNING_KEY_H_
