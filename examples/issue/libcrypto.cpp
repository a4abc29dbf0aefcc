#include "libcrypto.h"

#include <openssl/err.h>
#include <openssl/rsa.h>
#include <openssl/x509.h>

#include <stdexcept>

namespace {

using ContextPtr = std::unique_ptr<EVP_MD_CTX, FreeWith<EVP_MD_CTX_free>>;

// Of SM2 the signer's identity goes into the digest in front of the message.
ContextPtr Start(decltype(EVP_DigestSignInit)* start, const KeyPtr& key) {
  constexpr std::string_view kSignerId = "1234567812345678";
  const bool isSm2 = EVP_PKEY_is_a(key.get(), "SM2") == 1;
  const EVP_MD* digest = isSm2 ? EVP_sm3() : EVP_sha256();
  ContextPtr context(EVP_MD_CTX_new());
  EVP_PKEY_CTX* keyContext = nullptr;
  CheckCrypto(
      context != nullptr && start(context.get(), &keyContext, digest, nullptr, key.get()) == 1,
      "start with a signature");
  CheckCrypto(!isSm2 || EVP_PKEY_CTX_set1_id(keyContext, kSignerId.data(), kSignerId.size()) == 1,
              "set the signer's identity");
  return context;
}

}  // namespace

void CheckCrypto(bool succeeded, const std::string& step) {
  if (succeeded) return;
  const char* reason = ERR_reason_error_string(ERR_get_error());
  throw std::runtime_error(step + ": " + (reason == nullptr ? "libcrypto failed" : reason));
}

KeyPtr NewRsaKey() {
  KeyPtr key(EVP_RSA_gen(2048U));
  CheckCrypto(key != nullptr, "make the key");
  return key;
}

std::vector<uint8_t> Signature(const KeyPtr& key, velkord::Bytes message) {
  const ContextPtr context = Start(EVP_DigestSignInit, key);
  std::vector<uint8_t> signature(static_cast<size_t>(EVP_PKEY_get_size(key.get())));
  size_t size = signature.size();
  CheckCrypto(
      EVP_DigestSign(context.get(), signature.data(), &size, message.data(), message.size()) == 1,
      "sign");
  signature.resize(size);
  return signature;
}

void Verify(const KeyPtr& key, velkord::Bytes message, velkord::Bytes signature) {
  CheckCrypto(EVP_DigestVerify(Start(EVP_DigestVerifyInit, key).get(), signature.data(),
                               signature.size(), message.data(), message.size()) == 1,
              "verify the signature");
}

SecretBytes PrivateKeyInfo(const KeyPtr& key) {
  const std::unique_ptr<PKCS8_PRIV_KEY_INFO, FreeWith<PKCS8_PRIV_KEY_INFO_free>> info(
      EVP_PKEY2PKCS8(key.get()));
  CheckCrypto(info != nullptr, "make the private key info");
  return Encode(i2d_PKCS8_PRIV_KEY_INFO, info.get());
}
