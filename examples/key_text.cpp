#include "key_text.h"

#include <algorithm>
#include <bit>
#include <string_view>
#include <system_error>
#include <vector>

#include "node_bytes.h"
#include "object_ids.h"
#include "secret.h"
#include "structure_text.h"
#include "velkord.hpp"

using velkord::Bytes, velkord::Check, velkord::Errc, velkord::Length, velkord::NodePtr,
    velkord::Out;

namespace {

constexpr uint8_t kUncompressed = 4;
constexpr size_t kPointSize = 1 + sizeof(EccPubkey::x) + sizeof(EccPubkey::y);

// The decoder of RSA private keys tells a PrivateKeyInfo by this size of the algorithm's content.
constexpr size_t kRsaAlgorithmSize = 13;

std::string RsaNumbersText(Bytes modulus, Bytes exponent) {
  const auto first = std::ranges::find_if(modulus, [](uint8_t byte) { return byte != 0; });
  const Bytes significant(first, modulus.end());
  if (significant.empty()) throw std::system_error(Errc::kFailure, "read the modulus, which is 0");
  const size_t bits =
      (significant.size() - 1) * 8 + static_cast<size_t>(std::bit_width(significant.front()));
  return "  bits: " + std::to_string(bits) + "\n  modulus: " + HexText(significant) +
         "\n  public exponent: " + HexText(exponent) + '\n';
}

// The decoder puts a number at its field's start. Both numbers of a key are odd, so that the zero
// bytes behind are no part of it.
Bytes FieldNumber(Bytes field) {
  while (!field.empty() && field.back() == 0) field = field.first(field.size() - 1);
  return field;
}

struct KeyAlgorithm {
  std::string id;     // Dotted text, as that of the curve is.
  std::string curve;  // Empty when the parameter is no identifier.
  std::string text;
};

KeyAlgorithm ReadKeyAlgorithm(const Anybuf& algorithm) {
  NodePtr id;
  NodePtr explicitCurve;
  NodePtr curve;
  Check(ASN1_GetAlgorithmIdentifier(&algorithm, Out(id), Out(explicitCurve), Out(curve)),
        "open the key algorithm");
  KeyAlgorithm read;
  read.id = DottedText(NodeContent(*id, "read the key algorithm"));
  read.text = "  key algorithm: " + NodeObjectId(*id, "read the key algorithm") + '\n';
  if (curve != nullptr) {
    read.curve = DottedText(NodeContent(*curve, "read the curve"));
    read.text += "  curve: " + NodeObjectId(*curve, "read the curve") + '\n';
  }
  return read;
}

// The private keys that the library reads are those of curves of 256 bits.
bool IsReadCurve(const KeyAlgorithm& algorithm) {
  return algorithm.id == kEcPublicKeyId &&
         (algorithm.curve == kSm2Id || algorithm.curve == kPrime256v1Id ||
          algorithm.curve == kSecp256k1Id);
}

std::string PointText(Bytes der, Bytes point) {
  // The library's reader takes the coordinates by their places, whatever the size and the form.
  if (point.size() != kPointSize || point.front() != kUncompressed) {
    return "  public key: " + HexText(point) + '\n';
  }
  EccPubkey key{};
  Check(ASN1_Der2EccPubkey(der.data(), Length(der), &key), "read the public point");
  return "  bits: " + std::to_string(key.bits) + "\n  public point: x " + HexText(key.x) +
         "\n                y " + HexText(key.y) + '\n';
}

}  // namespace

std::string RsaPublicKeyText(Bytes der) {
  NodePtr modulus;
  NodePtr exponent;
  Check(ASN1_GetRSAPublicKey(ElementNode(der, "open the public key").get(), Out(modulus),
                             Out(exponent)),
        "read the public key");
  return RsaNumbersText(NodeContent(*modulus, "read the modulus"),
                        NodeContent(*exponent, "read the public exponent"));
}

std::string RsaPrivateKeyText(Bytes der) {
  Secret<ZantPrivateKey> key{};
  Check(ZantDecodePrivateKey(&key, der.data(), Length<int32_t>(der)),
        "read the private key of at most 2048 bits");
  return RsaNumbersText(FieldNumber(key.modulus), FieldNumber(key.publicExponent)) +
         "  private values: not shown\n";
}

std::string PublicKeyInfoText(Bytes der) {
  NodePtr algorithm;
  NodePtr key;
  Check(ASN1_GetSubjectPublicKeyInfo(ElementNode(der, "open the key info").get(), Out(algorithm),
                                     Out(key)),
        "split the key info");
  const std::vector<uint8_t> bits = NodeContent(*key, "read the public key");
  const KeyAlgorithm read = ReadKeyAlgorithm(*algorithm);
  return read.text + (read.id == kRsaEncryptionId ? RsaPublicKeyText(bits) : PointText(der, bits));
}

std::string PrivateKeyInfoText(Bytes der) {
  SecretNodePtr elements;
  Check(ASN1_WriteSequenceFromDERBytes(der.data(), Length(der), Out(elements)),
        "split the key info");
  if (elements == nullptr || elements->next == nullptr) {
    throw std::system_error(Errc::kFailure, "split the key info");
  }
  const Anybuf& algorithm = *elements->next;
  const KeyAlgorithm read = ReadKeyAlgorithm(algorithm);
  if (read.id == kRsaEncryptionId) {
    if (NodeContent(algorithm, "read the key algorithm").size() != kRsaAlgorithmSize) {
      throw std::system_error(Errc::kFailure, "read the private key, whose algorithm has no NULL");
    }
    return read.text + RsaPrivateKeyText(der);
  }
  if (!IsReadCurve(read)) return read.text + "  private value: not read\n";
  Secret<EccPrikey> key{};
  Check(ASN1_Der2EccPrikey(der.data(), Length(der), &key), "read the private key");
  return read.text + "  bits: " + std::to_string(key.bits) + "\n  private value: not shown\n";
}
