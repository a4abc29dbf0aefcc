// The RSA key of libcrypto's with which the issuers sign. Every failure throws std::runtime_error
// naming the step.
#ifndef VELKORD_EXAMPLES_SIGNING_KEY_H_
#define VELKORD_EXAMPLES_SIGNING_KEY_H_

#include <cstdint>
#include <vector>

#include "libcrypto.h"
#include "readable_text.h"

// An RSA key of 2048 bits with the exponent 65537.
class SigningKey {
 public:
  SigningKey();

  // The numbers of the public key, big-endian.
  std::vector<uint8_t> Modulus() const;
  std::vector<uint8_t> Exponent() const;

  // Signs with SHA-256 and PKCS #1 padding.
  std::vector<uint8_t> Sign(velkord::Bytes message) const;

 private:
  std::vector<uint8_t> Number(const char* parameter) const;

  KeyPtr key_;
};

#endif  // VELKORD_EXAMPLES_SIGNING_KEY_H_
