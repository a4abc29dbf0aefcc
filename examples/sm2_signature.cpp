// Carries an SM2 signature and its key through the library. libcrypto makes the key, signs, and
// verifies what the library took apart and put together again; the library knows the forms alone.
#include <openssl/evp.h>
#include <openssl/x509.h>

#include <algorithm>
#include <iostream>
#include <span>
#include <stdexcept>
#include <string_view>
#include <utility>
#include <vector>

#include "command_line.h"
#include "issuing.h"
#include "libcrypto.h"
#include "secret.h"
#include "velkord.hpp"

using velkord::Bytes, velkord::ChainBuilder, velkord::Check, velkord::Length, velkord::NodePtr,
    velkord::Out, velkord::View;

namespace {

constexpr std::string_view kUsage =
    "usage: sm2_signature\n"
    "Signs a message with a new SM2 key, takes the signature and the key apart and puts them\n"
    "together again, and verifies the result.\n";
constexpr std::string_view kMessage = "A message to be signed.";
constexpr std::string_view kSignerId = "1234567812345678";

constexpr uint8_t kUncompressed = 4;
constexpr size_t kNumberSize = sizeof(EccPrikey::d);
// Room for one number of that size as DER: its header, a zero octet and the number.
constexpr size_t kIntegerRoom = 6 + 1 + kNumberSize;
constexpr size_t kSignatureRoom = 6 + 2 * kIntegerRoom;
// Room for a point as DER: its header with the unused-bits octet, the form and both coordinates.
constexpr size_t kPointRoom = 5 + 1 + 2 * kNumberSize;

void Require(bool holds, const char* what) {
  if (!holds) throw std::runtime_error(what);
}

// The signer's identity goes into the digest in front of the message.
void SetIdentity(EVP_PKEY_CTX* context) {
  CheckCrypto(EVP_PKEY_CTX_set1_id(context, kSignerId.data(), kSignerId.size()) == 1,
              "set the signer's identity");
}

std::vector<uint8_t> SignMessage(const KeyPtr& key) {
  const DigestContextPtr context = DigestContext();
  EVP_PKEY_CTX* keyContext = nullptr;
  CheckCrypto(EVP_DigestSignInit(context.get(), &keyContext, EVP_sm3(), nullptr, key.get()) == 1,
              "start the signature");
  SetIdentity(keyContext);
  return SignWith(context, View(kMessage));
}

void VerifyMessage(const KeyPtr& key, Bytes signature) {
  const DigestContextPtr context = DigestContext();
  EVP_PKEY_CTX* keyContext = nullptr;
  CheckCrypto(EVP_DigestVerifyInit(context.get(), &keyContext, EVP_sm3(), nullptr, key.get()) == 1,
              "start the verification");
  SetIdentity(keyContext);
  CheckCrypto(EVP_DigestVerify(context.get(), signature.data(), signature.size(),
                               View(kMessage).data(), kMessage.size()) == 1,
              "verify the signature");
}

// The library's SM2 functions report nothing, so each length is preset to 0 and tells by that
// whether anything was written.
std::vector<uint8_t> ThroughNumbers(Bytes signature) {
  std::vector<uint8_t> r(signature.size());
  std::vector<uint8_t> s(signature.size());
  uint32_t rLength = 0;
  uint32_t sLength = 0;
  ASN1_SM2_SM2SignatureDecode(r.data(), &rLength, s.data(), &sLength, signature.data(),
                              Length(signature));
  Require(rLength != 0 && rLength <= kNumberSize && sLength != 0 && sLength <= kNumberSize,
          "the signature was not taken apart");
  std::cout << "r: " << HexText(Bytes(r).first(rLength))
            << "\ns: " << HexText(Bytes(s).first(sLength)) << '\n';

  std::vector<uint8_t> der(kSignatureRoom);
  uint32_t length = 0;
  ASN1_SM2_SM2SignatureEncode(r.data(), rLength, s.data(), sLength, der.data(), &length);
  Require(length != 0, "the signature was not put together");
  der.resize(length);
  return der;
}

KeyPtr ReadPublicKeyInfo(const Anybuf& info) {
  const unsigned char* place = info.data;
  KeyPtr key(d2i_PUBKEY(nullptr, &place, static_cast<long>(info.dataLen)));
  CheckCrypto(key != nullptr, "read the public key");
  return key;
}

// The bare point as a BIT STRING, and back.
EccPubkey ThroughBareForm(const EccPubkey& point) {
  std::vector<uint8_t> der(kPointRoom);
  uint32_t length = 0;
  ASN1_SM2_PubkeyEncode(point.x, sizeof point.x, point.y, sizeof point.y, der.data(), &length);
  Require(length != 0, "the point was not written");

  // The decoder gives half of the content to each coordinate, and needs half of the DER for it.
  std::vector<uint8_t> x(length / 2);
  std::vector<uint8_t> y(length / 2);
  uint32_t xLength = 0;
  uint32_t yLength = 0;
  ASN1_SM2_PubkeyDecode(x.data(), &xLength, y.data(), &yLength, der.data(), length);
  EccPubkey back{};
  Require(xLength == sizeof back.x && yLength == sizeof back.y, "the point was not read");
  std::copy_n(x.begin(), xLength, back.x);
  std::copy_n(y.begin(), yLength, back.y);
  return back;
}

// A key info with the algorithm of another. Its BIT STRING is built from a node with 0 unused bits:
// ASN1_SetSubjectPublicKeyInfo would derive their number from the point's last byte.
NodePtr KeyInfoOf(const EccPubkey& point, const Anybuf& other) {
  NodePtr algorithm;
  NodePtr otherKey;
  Check(ASN1_GetSubjectPublicKeyInfo(&other, Out(algorithm), Out(otherKey)), "split the key info");
  std::vector<uint8_t> content = {kUncompressed};
  content.insert(content.end(), std::begin(point.x), std::end(point.x));
  content.insert(content.end(), std::begin(point.y), std::end(point.y));
  return Sequence(ChainBuilder(std::move(algorithm), BitString(content, 0)));
}

KeyPtr ThroughPoint(const KeyPtr& key) {
  const auto info = Encode<std::vector<uint8_t>>(i2d_PUBKEY, key.get(), "write the public key");
  EccPubkey point{};
  Check(ASN1_Der2EccPubkey(info.data(), Length(info), &point), "read the public point");
  std::cout << "x: " << HexText(point.x) << "\ny: " << HexText(point.y) << '\n';
  const EccPubkey back = ThroughBareForm(point);
  return ReadPublicKeyInfo(*KeyInfoOf(back, *ElementNode(info, "hold the key info")));
}

// A private value as an INTEGER, and back. The decoder drops the zero octet that keeps a number
// positive and so may give fewer bytes than went in: the value is set at the end of its width.
void CheckPrivateValue(const KeyPtr& key) {
  const SecretBytes info = PrivateKeyInfo(key);
  Secret<EccPrikey> value{};
  Check(ASN1_Der2EccPrikey(info.data(), Length(info), &value), "read the private key");

  SecretBytes der(kIntegerRoom);
  uint32_t length = 0;
  ASN1_SM2_PrikeyEncode(value.d, sizeof value.d, der.data(), &length);
  Require(length != 0, "the private value was not written");
  SecretBytes back(length);
  uint32_t backLength = 0;
  ASN1_SM2_PrikeyDecode(back.data(), &backLength, der.data(), length);
  Require(backLength != 0 && backLength <= kNumberSize, "the private value was not read");
  SecretBytes full(kNumberSize);
  std::copy_n(back.begin(), backLength, full.end() - backLength);
  Require(std::ranges::equal(full, value.d), "the private value came back changed");
}

int Run(std::span<char*> /*arguments*/) {
  const KeyPtr key(EVP_PKEY_Q_keygen(nullptr, nullptr, "SM2"));
  CheckCrypto(key != nullptr, "make the key");
  const std::vector<uint8_t> signature = SignMessage(key);
  std::cout << "signature of " << signature.size() << " bytes over \"" << kMessage << "\"\n";
  const std::vector<uint8_t> rebuilt = ThroughNumbers(signature);
  VerifyMessage(key, rebuilt);
  std::cout << "put together from r and s again: libcrypto verifies it\n";
  VerifyMessage(ThroughPoint(key), rebuilt);
  std::cout << "public key put together from x and y again: libcrypto verifies with it\n";
  CheckPrivateValue(key);
  std::cout << "private value written as an INTEGER and read again: the same value\n";
  return 0;
}

}  // namespace

int main(int argc, char** argv) { return RunCommand(argc, argv, kUsage, 0, 0, Run); }
