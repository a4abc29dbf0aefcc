#include "signing_key.h"

#include <openssl/bn.h>
#include <openssl/core_names.h>
#include <openssl/err.h>
#include <openssl/rand.h>
#include <openssl/rsa.h>

#include <stdexcept>
#include <string>

namespace {

constexpr unsigned kKeyBits = 2048;

void CheckCrypto(bool succeeded, const std::string& step) {
  if (succeeded) return;
  const char* reason = ERR_reason_error_string(ERR_get_error());
  throw std::runtime_error(step + ": " + (reason == nullptr ? "libcrypto failed" : reason));
}

}  // namespace

SigningKey::SigningKey() : key_(EVP_RSA_gen(kKeyBits)) {
  CheckCrypto(key_ != nullptr, "make the key");
}

std::vector<uint8_t> SigningKey::Modulus() const { return Number(OSSL_PKEY_PARAM_RSA_N); }

std::vector<uint8_t> SigningKey::Exponent() const { return Number(OSSL_PKEY_PARAM_RSA_E); }

std::vector<uint8_t> SigningKey::Sign(Bytes message) const {
  const std::unique_ptr<EVP_MD_CTX, FreeWith<EVP_MD_CTX_free>> context(EVP_MD_CTX_new());
  CheckCrypto(context != nullptr, "make a signature context");
  CheckCrypto(EVP_DigestSignInit(context.get(), nullptr, EVP_sha256(), nullptr, key_.get()) == 1,
              "start the signature");
  size_t size = 0;
  CheckCrypto(EVP_DigestSign(context.get(), nullptr, &size, message.data(), message.size()) == 1,
              "size the signature");
  std::vector<uint8_t> signature(size);
  CheckCrypto(
      EVP_DigestSign(context.get(), signature.data(), &size, message.data(), message.size()) == 1,
      "sign");
  signature.resize(size);
  return signature;
}

std::vector<uint8_t> SigningKey::Number(const char* parameter) const {
  BIGNUM* raw = nullptr;
  CheckCrypto(EVP_PKEY_get_bn_param(key_.get(), parameter, &raw) == 1, "read the key");
  const std::unique_ptr<BIGNUM, FreeWith<BN_free>> number(raw);
  std::vector<uint8_t> bytes(static_cast<size_t>(BN_num_bytes(number.get())));
  BN_bn2bin(number.get(), bytes.data());
  return bytes;
}

void FillWithRandom(std::span<uint8_t> bytes) {
  CheckCrypto(RAND_bytes(bytes.data(), static_cast<int>(bytes.size())) == 1, "draw random bytes");
}

std::array<uint8_t, 32> Sha256(Bytes message) {
  std::array<uint8_t, 32> digest{};
  CheckCrypto(EVP_Digest(message.data(), message.size(), digest.data(), nullptr, EVP_sha256(),
                         nullptr) == 1,
              "digest");
  return digest;
}
