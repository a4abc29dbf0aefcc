// Carries an RSA private key of libcrypto's through the record of the library, from both of its
// forms, and writes the same bytes again. No private value is shown or kept.
#include <algorithm>

#include "command_line.h"
#include "libcrypto.h"

using velkord::Bytes, velkord::Check, velkord::Errc, velkord::Length, velkord::Out;

namespace {

constexpr std::string_view kUsage =
    "usage: rsa_key\n"
    "Reads a new RSA private key in the forms of PKCS#1 and PKCS#8 and writes it again as "
    "PKCS#1.\n";
constexpr size_t kLongestPrivateKey = 1450;

// The decoder puts each number at its field's start, and the encoder takes it from the end. How
// long a number is shows in the DER alone: the last byte of the coefficient may be a zero byte.
void MoveNumbersToEnds(ZantPrivateKey& key, Bytes pkcs1) {
  const SecretNodePtr version = SplitSecret(pkcs1, "split the private key");
  const Anybuf* element = version.get();
  for (const std::span<uint8_t> field : std::initializer_list<std::span<uint8_t>>{
           key.modulus, key.publicExponent, key.privateExponent, key.prime1, key.prime2,
           key.exponent1, key.exponent2, key.coefficient}) {
    element = element == nullptr ? nullptr : element->next;
    SecretNodePtr number;
    Check(ASN1_ReadIntegerArray(element, Out(number)), "read a number");
    if (number->dataLen > field.size()) throw std::system_error(Errc::kFailure, "place a number");
    std::rotate(field.begin(), field.begin() + number->dataLen, field.end());
  }
}

void CheckRoundTrip(std::string_view form, Bytes der, Bytes pkcs1) {
  Secret<ZantPrivateKey> key{};
  Check(ZantDecodePrivateKey(&key, der.data(), Length<int32_t>(der)), "read the private key");
  MoveNumbersToEnds(key, pkcs1);
  SecretBytes written(kLongestPrivateKey);
  // That a number is missing in the record is no failure: the length stays 0.
  uint32_t length = 0;
  Check(ZantEncodePrivateKey(&key, written.data(), &length), "write the private key");
  written.resize(length);
  if (!std::ranges::equal(written, pkcs1)) {
    throw std::runtime_error("the key was written with other bytes");
  }
  std::cout << "read from the form of " << form << ", " << der.size()
            << " bytes: written again as PKCS#1 with the same bytes\n";
}

int Run(std::span<char*> /*arguments*/) {
  const KeyPtr key = NewRsaKey();
  const SecretBytes pkcs1 = Encode(i2d_PrivateKey, key.get());
  CheckRoundTrip("PKCS#1", pkcs1, pkcs1);
  CheckRoundTrip("PKCS#8", PrivateKeyInfo(key), pkcs1);
  return 0;
}

}  // namespace

int main(int argc, char** argv) { return RunCommand(argc, argv, kUsage, 0, 0, Run); }
