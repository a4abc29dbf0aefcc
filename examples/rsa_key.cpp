// Carries an RSA private key of libcrypto's through the record of the library, from both of its
// forms, and writes the same bytes again. No private value is shown or kept.
#include <openssl/rsa.h>

#include <algorithm>
#include <iostream>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>

#include "command_line.h"
#include "libcrypto.h"
#include "secret.h"
#include "velkord.hpp"

using velkord::Bytes, velkord::Check, velkord::Errc, velkord::Length, velkord::Out;

namespace {

constexpr std::string_view kUsage =
    "usage: rsa_key\n"
    "Reads a new RSA private key in the forms of PKCS#1 and PKCS#8 and writes it again as "
    "PKCS#1.\n";
constexpr unsigned kKeyBits = 2048;
constexpr size_t kLongestPrivateKey = 1450;

// Moves a number of `size` bytes from the start of its field to the end.
void MoveToEnd(std::span<uint8_t> field, size_t size) {
  if (size > field.size()) throw std::system_error(Errc::kFailure, "place a number");
  std::rotate(field.begin(), field.begin() + static_cast<std::ptrdiff_t>(size), field.end());
}

// The decoder puts each number at its field's start, and the encoder takes it from the end. How
// long a number is shows in the DER alone: the last byte of the coefficient may be a zero byte.
void MoveNumbersToEnds(ZantPrivateKey& key, Bytes pkcs1) {
  SecretNodePtr elements;
  Check(ASN1_WriteSequenceFromDERBytes(pkcs1.data(), Length(pkcs1), Out(elements)),
        "split the private key");
  const Anybuf* element = elements.get();
  for (const std::span<uint8_t> field :
       {std::span<uint8_t>(key.modulus), std::span<uint8_t>(key.publicExponent),
        std::span<uint8_t>(key.privateExponent), std::span<uint8_t>(key.prime1),
        std::span<uint8_t>(key.prime2), std::span<uint8_t>(key.exponent1),
        std::span<uint8_t>(key.exponent2), std::span<uint8_t>(key.coefficient)}) {
    // The first element is the version.
    if (element == nullptr || element->next == nullptr) {
      throw std::system_error(Errc::kFailure, "find a number");
    }
    element = element->next;
    SecretNodePtr number;
    Check(ASN1_ReadIntegerArray(element, Out(number)), "read a number");
    MoveToEnd(field, number->dataLen);
  }
}

SecretBytes WritePrivateKey(const ZantPrivateKey& key) {
  SecretBytes der(kLongestPrivateKey);
  uint32_t length = 0;
  Check(ZantEncodePrivateKey(&key, der.data(), &length), "write the private key");
  // A record that lacks a number is no failure; that nothing was written tells it.
  if (length == 0) {
    throw std::system_error(Errc::kFailure, "write the private key, which is not complete");
  }
  der.resize(length);
  return der;
}

void CheckRoundTrip(std::string_view form, Bytes der, Bytes pkcs1) {
  Secret<ZantPrivateKey> key{};
  Check(ZantDecodePrivateKey(&key, der.data(), Length<int32_t>(der)), "read the private key");
  MoveNumbersToEnds(key, pkcs1);
  if (!std::ranges::equal(WritePrivateKey(key), pkcs1)) {
    throw std::runtime_error("the key was written with other bytes");
  }
  std::cout << "read from the form of " << form << ", " << der.size()
            << " bytes: written again as PKCS#1 with the same bytes\n";
}

int Run(std::span<char*> /*arguments*/) {
  const KeyPtr key(EVP_RSA_gen(kKeyBits));
  CheckCrypto(key != nullptr, "make the key");
  const auto pkcs1 = Encode<SecretBytes>(i2d_PrivateKey, key.get(), "write the private key");
  CheckRoundTrip("PKCS#1", pkcs1, pkcs1);
  CheckRoundTrip("PKCS#8", PrivateKeyInfo(key), pkcs1);
  return 0;
}

}  // namespace

int main(int argc, char** argv) { return RunCommand(argc, argv, kUsage, 0, 0, Run); }
