// Keys of RSA and elliptic curves, and signatures.
#include <algorithm>
#include <bit>
#include <system_error>
#include <utility>

#include "kind.h"
#include "secret.h"
#include "structures.h"
#include "text.h"

using velkord::Bytes, velkord::Chain, velkord::Check, velkord::Errc, velkord::Length,
    velkord::NodePtr, velkord::Out, velkord::View;

namespace {

constexpr std::string_view kRsaEncryption = "1.2.840.113549.1.1.1 rsaEncryption";

// The private keys of curves that the library reads have 256 bits.
constexpr std::string_view kCurvesOf256Bits[] = {
    "1.2.156.10197.1.301 sm2",
    "1.2.840.10045.3.1.7 prime256v1",
    "1.3.132.0.10 secp256k1",
};

constexpr uint8_t kUncompressed = 4;
constexpr size_t kPointSize = 1 + sizeof(EccPubkey::x) + sizeof(EccPubkey::y);

void PutRsaNumbers(std::ostream& out, Bytes modulus, Bytes exponent) {
  while (!modulus.empty() && modulus.front() == 0) modulus = modulus.subspan(1);
  if (modulus.empty()) throw std::system_error(Errc::kFailure, "read the modulus, which is 0");
  out << "  bits: " << modulus.size() * 8 - static_cast<size_t>(std::countl_zero(modulus.front()))
      << "\n  modulus: " << HexText(modulus) << "\n  public exponent: " << HexText(exponent)
      << '\n';
}

// Returns the algorithm and the curve, which is empty when the parameter is missing, NULL or a
// SEQUENCE.
std::pair<std::string, std::string> ShowKeyAlgorithm(const Anybuf& algorithm, std::ostream& out) {
  NodePtr id;
  NodePtr curve;
  Check(ASN1_GetAlgorithmIdentifier(&algorithm, Out(id), nullptr, Out(curve)),
        "open the key algorithm");
  std::pair<std::string, std::string> shown(IdText(*id, "read the key algorithm"), "");
  out << "  key algorithm: " << shown.first << '\n';
  if (curve != nullptr) {
    shown.second = IdText(*curve, "read the curve");
    out << "  curve: " << shown.second << '\n';
  }
  return shown;
}

}  // namespace

NodePtr ShowRsaPublicKey(Bytes der, std::ostream& out) {
  NodePtr modulus;
  NodePtr exponent;
  Check(
      ASN1_GetRSAPublicKey(Element(der, "open the public key").get(), Out(modulus), Out(exponent)),
      "read the public key");
  PutRsaNumbers(out, Content(*modulus, "read the modulus"),
                Content(*exponent, "read the public exponent"));
  return nullptr;
}

NodePtr ShowRsaPrivateKey(Bytes der, std::ostream& out) {
  // By its elements: the library's record holds keys of at most 2048 bits.
  const SecretNodePtr version = SplitSecret(der, "split the private key");
  if (std::ranges::distance(Chain(version.get())) < 3) {
    throw std::system_error(Errc::kFailure, "split the private key");
  }
  const Anybuf& modulus = *version->next;
  PutRsaNumbers(out, Content(modulus, "read the modulus"),
                Content(*modulus.next, "read the public exponent"));
  out << "  private values: not shown\n";
  return nullptr;
}

NodePtr ShowPublicKeyInfo(Bytes der, std::ostream& out) {
  NodePtr algorithm;
  NodePtr key;
  Check(ASN1_GetSubjectPublicKeyInfo(Element(der, "open the key info").get(), Out(algorithm),
                                     Out(key)),
        "split the key info");
  const std::vector<uint8_t> bits = Content(*key, "read the public key");
  if (ShowKeyAlgorithm(*algorithm, out).first == kRsaEncryption) {
    return ShowRsaPublicKey(bits, out);
  }
  // The library's reader takes the coordinates by their places, whatever the size and the form.
  if (bits.size() != kPointSize || bits.front() != kUncompressed) {
    out << "  public key: " << HexText(bits) << '\n';
    return nullptr;
  }
  EccPubkey point{};
  Check(ASN1_Der2EccPubkey(der.data(), Length(der), &point), "read the public point");
  out << "  bits: " << point.bits << "\n  public point: x " << HexText(point.x)
      << "\n                y " << HexText(point.y) << '\n';
  return nullptr;
}

NodePtr ShowPrivateKeyInfo(Bytes der, std::ostream& out) {
  // KindOf found a version, an algorithm and an OCTET STRING here.
  const SecretNodePtr version = SplitSecret(der, "split the key info");
  const Anybuf& algorithm = *version->next;
  const auto [id, curve] = ShowKeyAlgorithm(algorithm, out);
  if (id == kRsaEncryption) return ShowRsaPrivateKey(velkord::Content(View(*algorithm.next)), out);
  if (id != "1.2.840.10045.2.1 ecPublicKey" ||
      std::ranges::find(kCurvesOf256Bits, curve) == std::end(kCurvesOf256Bits)) {
    out << "  private value: not read\n";
    return nullptr;
  }
  Secret<EccPrikey> key{};
  Check(ASN1_Der2EccPrikey(der.data(), Length(der), &key), "read the private key");
  out << "  bits: " << key.bits << "\n  private value: not shown\n";
  return nullptr;
}

NodePtr ShowSignature(Bytes der, std::ostream& out) {
  // The decoder reports nothing: a length that stays 0 tells that there was no signature to read.
  uint32_t rLength = 0;
  uint32_t sLength = 0;
  std::vector<uint8_t> r(der.size());
  std::vector<uint8_t> s(der.size());
  ASN1_SM2_SM2SignatureDecode(r.data(), &rLength, s.data(), &sLength, der.data(), Length(der));
  if (rLength == 0 || sLength == 0) throw std::system_error(Errc::kFailure, "read the signature");
  out << "  r: " << HexText(Bytes(r).first(rLength))
      << "\n  s: " << HexText(Bytes(s).first(sLength)) << '\n';
  return nullptr;
}
