#include "libcrypto.h"

#include <openssl/err.h>
#include <openssl/rand.h>
#include <openssl/x509.h>

#include <stdexcept>

void CheckCrypto(bool succeeded, const std::string& step) {
  if (succeeded) return;
  const char* reason = ERR_reason_error_string(ERR_get_error());
  throw std::runtime_error(step + ": " + (reason == nullptr ? "libcrypto failed" : reason));
}

DigestContextPtr DigestContext() {
  DigestContextPtr context(EVP_MD_CTX_new());
  CheckCrypto(context != nullptr, "make a signature context");
  return context;
}

std::vector<uint8_t> SignWith(const DigestContextPtr& context, velkord::Bytes message) {
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

void FillWithRandom(std::span<uint8_t> bytes) {
  CheckCrypto(RAND_bytes(bytes.data(), static_cast<int>(bytes.size())) == 1, "draw random bytes");
}

std::array<uint8_t, 32> Sha256(velkord::Bytes message) {
  std::array<uint8_t, 32> digest{};
  CheckCrypto(EVP_Digest(message.data(), message.size(), digest.data(), nullptr, EVP_sha256(),
                         nullptr) == 1,
              "digest");
  return digest;
}

SecretBytes PrivateKeyInfo(const KeyPtr& key) {
  const std::unique_ptr<PKCS8_PRIV_KEY_INFO, FreeWith<PKCS8_PRIV_KEY_INFO_free>> info(
      EVP_PKEY2PKCS8(key.get()));
  CheckCrypto(info != nullptr, "make the private key info");
  return Encode<SecretBytes>(i2d_PKCS8_PRIV_KEY_INFO, info.get(), "write the private key info");
}
