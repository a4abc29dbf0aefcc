// Carries an SM2 signature and its key through the library. libcrypto makes the key, signs, and
// verifies what the library took apart and put together again; the library knows the forms alone.
#include <openssl/x509.h>

#include <algorithm>
#include <stdexcept>

#include "command_line.h"
#include "issuing.h"
#include "text.h"

using velkord::Bytes, velkord::Check, velkord::Length, velkord::NodePtr, velkord::View;

namespace {

constexpr std::string_view kUsage =
    "usage: sm2_signature\n"
    "Signs a message with a new SM2 key, takes the signature and the key apart and puts them\n"
    "together again, and verifies the result.\n";
constexpr std::string_view kMessage = "A message to be signed.";

constexpr uint8_t kUncompressed = 4;
constexpr size_t kNumberSize = sizeof(EccPrikey::d);
// The encoders ask for the room of the numbers and at most 20 bytes more.
constexpr size_t kRoom = 2 * kNumberSize + 20;

void Require(bool holds, const char* what) {
  if (!holds) throw std::runtime_error(what);
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
  Require(rLength != 0 && sLength != 0, "the signature was not taken apart");
  std::cout << "r: " << HexText(Bytes(r).first(rLength))
            << "\ns: " << HexText(Bytes(s).first(sLength)) << '\n';
  std::vector<uint8_t> der(rLength + sLength + 20);
  uint32_t length = 0;
  ASN1_SM2_SM2SignatureEncode(r.data(), rLength, s.data(), sLength, der.data(), &length);
  Require(length != 0, "the signature was not put together");
  der.resize(length);
  return der;
}

// Both coordinates, from the bare point as a BIT STRING.
std::vector<uint8_t> ThroughBareForm(const EccPubkey& point) {
  uint8_t der[kRoom];
  uint32_t length = 0;
  ASN1_SM2_PubkeyEncode(point.x, kNumberSize, point.y, kNumberSize, der, &length);
  // The decoder takes half of the content for each coordinate, and needs half of the DER for it.
  std::vector<uint8_t> x(length / 2);
  std::vector<uint8_t> y(length / 2);
  uint32_t xLength = 0;
  uint32_t yLength = 0;
  ASN1_SM2_PubkeyDecode(x.data(), &xLength, y.data(), &yLength, der, length);
  Require(xLength == kNumberSize && yLength == kNumberSize, "the point was not written and read");
  x.resize(xLength);
  x.insert(x.end(), y.begin(), y.begin() + yLength);
  return x;
}

// The key info names ecPublicKey and the curve. Its BIT STRING is built from a node with 0 unused
// bits: ASN1_SetSubjectPublicKeyInfo would derive their number from the point's last byte.
KeyPtr ThroughPoint(const KeyPtr& key) {
  const SecretBytes der = Encode(i2d_PUBKEY, key.get());
  EccPubkey point{};
  Check(ASN1_Der2EccPubkey(der.data(), Length(der), &point), "read the public point");
  std::cout << "x: " << HexText(point.x) << "\ny: " << HexText(point.y) << '\n';
  std::vector<uint8_t> bits = ThroughBareForm(point);
  bits.insert(bits.begin(), kUncompressed);
  const NodePtr info = Sequence(
      Sequence(ObjectIdentifier("1.2.840.10045.2.1"), ObjectIdentifier("1.2.156.10197.1.301")),
      BitString(bits, 0));
  const unsigned char* place = info->data;
  KeyPtr back(d2i_PUBKEY(nullptr, &place, static_cast<long>(info->dataLen)));
  CheckCrypto(back != nullptr, "read the public key");
  return back;
}

// A private value as an INTEGER, and back. The decoder drops the zero octet that keeps a number
// positive and so may give fewer bytes than went in: the value is set at the end of its width.
void CheckPrivateValue(const KeyPtr& key) {
  const SecretBytes info = PrivateKeyInfo(key);
  Secret<EccPrikey> value{};
  Check(ASN1_Der2EccPrikey(info.data(), Length(info), &value), "read the private key");
  SecretBytes der(kRoom);
  uint32_t length = 0;
  ASN1_SM2_PrikeyEncode(value.d, kNumberSize, der.data(), &length);
  SecretBytes back(kRoom);
  uint32_t backLength = 0;
  ASN1_SM2_PrikeyDecode(back.data(), &backLength, der.data(), length);
  Require(backLength != 0 && backLength <= kNumberSize, "the private value was not read");
  back.resize(backLength);
  back.insert(back.begin(), kNumberSize - backLength, 0);
  Require(std::ranges::equal(back, value.d), "the private value came back changed");
}

int Run(std::span<char*> /*arguments*/) {
  const KeyPtr key(EVP_PKEY_Q_keygen(nullptr, nullptr, "SM2"));
  CheckCrypto(key != nullptr, "make the key");
  const std::vector<uint8_t> signature = Signature(key, View(kMessage));
  std::cout << "signature of " << signature.size() << " bytes over \"" << kMessage << "\"\n";
  const std::vector<uint8_t> rebuilt = ThroughNumbers(signature);
  Verify(key, View(kMessage), rebuilt);
  std::cout << "put together from r and s again: libcrypto verifies it\n";
  Verify(ThroughPoint(key), View(kMessage), rebuilt);
  std::cout << "public key put together from x and y again: libcrypto verifies with it\n";
  CheckPrivateValue(key);
  std::cout << "private value written as an INTEGER and read again: the same value\n";
  return 0;
}

}  // namespace

int main(int argc, char** argv) { return RunCommand(argc, argv, kUsage, 0, 0, Run); }
