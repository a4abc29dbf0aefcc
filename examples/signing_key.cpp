#include "signing_key.h"

#include <openssl/bn.h>
#include <openssl/core_names.h>
#include <openssl/rsa.h>

#include <memory>

namespace {

constexpr unsigned kKeyBits = 2048;

}  // namespace

SigningKey::SigningKey() : key_(EVP_RSA_gen(kKeyBits)) {
  CheckCrypto(key_ != nullptr, "make the key");
}

std::vector<uint8_t> SigningKey::Modulus() const { return Number(OSSL_PKEY_PARAM_RSA_N); }

std::vector<uint8_t> SigningKey::Exponent() const { return Number(OSSL_PKEY_PARAM_RSA_E); }

std::vector<uint8_t> SigningKey::Sign(velkord::Bytes message) const {
  const DigestContextPtr context = DigestContext();
  CheckCrypto(EVP_DigestSignInit(context.get(), nullptr, EVP_sha256(), nullptr, key_.get()) == 1,
              "start the signature");
  return SignWith(context, message);
}

std::vector<uint8_t> SigningKey::Number(const char* parameter) const {
  BIGNUM* raw = nullptr;
  CheckCrypto(EVP_PKEY_get_bn_param(key_.get(), parameter, &raw) == 1, "read the key");
  const std::unique_ptr<BIGNUM, FreeWith<BN_free>> number(raw);
  std::vector<uint8_t> bytes(static_cast<size_t>(BN_num_bytes(number.get())));
  BN_bn2bin(number.get(), bytes.data());
  return bytes;
}
