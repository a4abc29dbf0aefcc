// Keys of elliptic curves of 256 bits between a record and DER.
#include <array>
#include <cstddef>

#include "der/node.h"

using namespace velkord::internal;

namespace {

constexpr uint32_t kBits = 256;

// The coordinates are next to each other in the record as in a point, so that one move copies both,
// even where the buffers overlap.
constexpr size_t kCoordinates = offsetof(EccPubkey, x);
constexpr size_t kCoordinatesSize = sizeof(EccPubkey) - kCoordinates;

constexpr uint8_t Digit(char digit) {
  return static_cast<uint8_t>(digit <= '9' ? digit - '0' : digit - 'A' + 10);
}

template <size_t kSize>
constexpr auto Octets(const char (&hex)[kSize]) {
  std::array<uint8_t, kSize / 2> octets{};
  for (size_t at = 0; at < octets.size(); ++at) {
    octets[at] = static_cast<uint8_t>(Digit(hex[2 * at]) << 4 | Digit(hex[2 * at + 1]));
  }
  return octets;
}

// SubjectPublicKeyInfo ::= SEQUENCE {
//   algorithm         SEQUENCE { algorithm OBJECT IDENTIFIER, parameters ECParameters },
//   subjectPublicKey  BIT STRING  -- 04, X, Y
// }
// This is all of it but the coordinates: the curve is always the same. The identifiers of the key
// and of its field are not those of the standard.
constexpr auto kPublicKeyStart = Octets(
    "30820134"                  // SubjectPublicKeyInfo
    "3081ED"                    // AlgorithmIdentifier
    "06072A8648CE3D0101"        // 1.2.840.10045.1.1
    "3081E1020101"              // The curve's parameters, version 1
    "302D06082A811C814501822D"  // The field: 1.2.156.197.1.301
    "0221008542D69E4C044F18E8B92435BF6FF7DE457283915C45517D722EDB8B08F1DFC3"  // p
    "3044"                                                                    // The curve
    "0420787968B4FA32C3FD2417842E73BBFEFF2F3C848B6831D7E0EC65228B3937E498"    // a
    "042063E4C6D3B23B0C849CF84241484BFE48F61D59A5B16BA06E6E12D1DA27C5249A"    // b
    "044104421DEBD61B62EAB6746434EBC3CC315E32220B3BADD50BDC4C4E6C147FEDD43D"  // The base point: x
    "0680512BCBB42C07D47349D2153B70C4E5D7FDFCBFA36EA1A85841B9E46E09A2"        // y
    "0221008542D69E4C044F18E8B92435BF6FF7DD297720630485628D5AE74EE7C32E79B7"  // n
    "020101"                                                                  // The cofactor
    "03420004"                                                                // The public point
);

// The content of element number `place`, the first being 0, of a SEQUENCE.
int32_t OpenChild(Bytes in, uint32_t place, Bytes& content) {
  return DerElements::Read(in, kSequenceType, [&](DerElements& elements) {
    return DerNextContent(elements, content, place);
  });
}

}  // namespace

int32_t ASN1_EccPubkey2Der(const EccPubkey* key, uint8_t* der, uint32_t* derLen) {
  if (key == nullptr || der == nullptr || derLen == nullptr) return VELKORD_FAILURE;
  const auto* record = static_cast<const uint8_t*>(static_cast<const void*>(key));
  const Bytes coordinates(record + kCoordinates, kCoordinatesSize);
  CopyOut(coordinates, der + kPublicKeyStart.size());
  CopyOut(kPublicKeyStart, der);
  *derLen = kPublicKeyStart.size() + kCoordinatesSize;
  return VELKORD_OK;
}

int32_t ASN1_Der2EccPubkey(const uint8_t* der, uint32_t derLen, EccPubkey* key) {
  Bytes point;
  if (der == nullptr || key == nullptr || OpenChild(Bytes(der, derLen), 1, point) != VELKORD_OK ||
      point.size() < 1 + kCoordinatesSize) {
    return VELKORD_FAILURE;
  }
  auto* record = static_cast<uint8_t*>(static_cast<void*>(key));
  CopyOut(point.subspan(1, kCoordinatesSize), record + kCoordinates);
  key->bits = kBits;
  return VELKORD_OK;
}

// PrivateKeyInfo ::= SEQUENCE {
//   version              Version,
//   privateKeyAlgorithm  AlgorithmIdentifier,
//   privateKey           OCTET STRING }  -- an ECPrivateKey
// ECPrivateKey ::= SEQUENCE {
//   version     INTEGER,
//   privateKey  OCTET STRING,
//   parameters  [0] EXPLICIT ECParameters OPTIONAL,
//   publicKey   [1] EXPLICIT BIT STRING OPTIONAL }
// Unlike the standard's, elements of any tag are read, and only the two private keys are.
int32_t ASN1_Der2EccPrikey(const uint8_t* der, uint32_t derLen, EccPrikey* key) {
  Bytes privateKey;
  Bytes value;
  if (der == nullptr || key == nullptr ||
      OpenChild(Bytes(der, derLen), 2, privateKey) != VELKORD_OK ||
      OpenChild(privateKey, 1, value) != VELKORD_OK || value.size() > sizeof key->d) {
    return VELKORD_FAILURE;
  }
  CopyOut(value, key->d);
  key->bits = kBits;
  return VELKORD_OK;
}
