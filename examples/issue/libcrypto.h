// What the examples need of libcrypto: keys and signatures. Every failure throws std::runtime_error
// naming the step.
#ifndef VELKORD_EXAMPLES_ISSUE_LIBCRYPTO_H_
#define VELKORD_EXAMPLES_ISSUE_LIBCRYPTO_H_

#include <openssl/evp.h>

#include <string>

#include "secret.h"

// The deleter of an object of libcrypto's that goes back through `kFree`.
template <auto kFree>
struct FreeWith {
  template <typename Object>
  void operator()(Object* object) const {
    kFree(object);
  }
};
using KeyPtr = std::unique_ptr<EVP_PKEY, FreeWith<EVP_PKEY_free>>;

void CheckCrypto(bool succeeded, const std::string& step);

// A key of 2048 bits with the exponent 65537.
KeyPtr NewRsaKey();

// RSA keys sign with SHA-256 and PKCS#1 padding, SM2 keys with SM3 and the usual identity.
std::vector<uint8_t> Signature(const KeyPtr& key, velkord::Bytes message);
void Verify(const KeyPtr& key, velkord::Bytes message, velkord::Bytes signature);

// The DER of an object, by the function that writes it.
template <typename Object>
SecretBytes Encode(int (*write)(const Object*, unsigned char**), Object* object) {
  const int size = write(object, nullptr);
  CheckCrypto(size > 0, "write DER");
  SecretBytes der(static_cast<size_t>(size));
  unsigned char* end = der.data();
  CheckCrypto(write(object, &end) == size, "write DER");
  return der;
}

// The PrivateKeyInfo of PKCS#8.
SecretBytes PrivateKeyInfo(const KeyPtr& key);

#endif  // VELKORD_EXAMPLES_ISSUE_LIBCRYPTO_H_
