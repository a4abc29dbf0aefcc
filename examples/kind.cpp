#include "kind.h"

#include <algorithm>
#include <stdexcept>
#include <vector>

#include "secret.h"
#include "velkord.hpp"

using velkord::Bytes, velkord::Chain, velkord::Check, velkord::Length, velkord::Out, velkord::View;

namespace {

using Types = std::vector<uint32_t>;

// Reduced tags.
constexpr uint32_t kInteger = 2;
constexpr uint32_t kBitString = 3;
constexpr uint32_t kOctetString = 4;
constexpr uint32_t kObjectId = 6;
constexpr uint32_t kSequence = 16;
constexpr uint32_t kUtcTime = 23;
constexpr uint32_t kGeneralizedTime = 24;
constexpr uint32_t kContext0 = 0xA0;

// A public exponent of 64 bits: header, zero octet and number. The numbers of a signature are
// longer.
constexpr uint32_t kLongestExponent = 2 + 1 + 8;

constexpr size_t kRsaPrivateKeyNumbers = 9;

struct UsualLabel {
  Kind kind;
  std::string_view label;
};

constexpr UsualLabel kUsualLabels[] = {
    {Kind::kCertificate, "CERTIFICATE"},
    {Kind::kCertificate, "X509 CERTIFICATE"},
    {Kind::kRevocationList, "X509 CRL"},
    {Kind::kRequest, "CERTIFICATE REQUEST"},
    {Kind::kRequest, "NEW CERTIFICATE REQUEST"},
    {Kind::kMessage, "PKCS7"},
    {Kind::kMessage, "CMS"},
    {Kind::kRsaPublicKey, "RSA PUBLIC KEY"},
    {Kind::kRsaPrivateKey, "RSA PRIVATE KEY"},
    {Kind::kPublicKeyInfo, "PUBLIC KEY"},
    {Kind::kPrivateKeyInfo, "PRIVATE KEY"},
};

[[noreturn]] void RefuseKind() {
  throw std::runtime_error("a SEQUENCE, but of no kind that is known here");
}

// A private value may be among the elements.
SecretNodePtr Split(Bytes sequence, const char* step) {
  SecretNodePtr elements;
  Check(ASN1_WriteSequenceFromDERBytes(sequence.data(), Length(sequence), Out(elements)), step);
  return elements;
}

Types TypesOf(const SecretNodePtr& elements) {
  Types types;
  for (const Anybuf& element : Chain(elements.get())) {
    types.push_back(element.dataType);
  }
  return types;
}

bool StartsWith(const Types& types, const Types& first) {
  return types.size() >= first.size() && std::equal(first.begin(), first.end(), types.begin());
}

bool IsTime(uint32_t type) { return type == kUtcTime || type == kGeneralizedTime; }

// A certificate's version may be missing, and then its serial number comes first. A list may begin
// with a version, and a request does.
Kind KindOfSigned(const Anybuf& signedPart) {
  Types types = TypesOf(Split(View(signedPart), "split the signed part"));
  if (StartsWith(types, {kContext0, kInteger, kSequence})) return Kind::kCertificate;
  if (StartsWith(types, {kInteger, kSequence, kSequence, kSequence})) return Kind::kCertificate;
  if (types == Types{kInteger, kSequence, kSequence}) return Kind::kRequest;
  if (StartsWith(types, {kInteger, kSequence, kSequence, kContext0})) return Kind::kRequest;
  if (StartsWith(types, {kInteger})) types.erase(types.begin());
  if (StartsWith(types, {kSequence, kSequence}) && types.size() > 2 && IsTime(types[2])) {
    return Kind::kRevocationList;
  }
  RefuseKind();
}

}  // namespace

Kind KindOf(Bytes der) {
  const SecretNodePtr elements = Split(der, "split the structure");
  const Types types = TypesOf(elements);
  if (StartsWith(types, {kSequence, kSequence, kBitString})) return KindOfSigned(*elements);
  if (types == Types{kSequence, kBitString}) return Kind::kPublicKeyInfo;
  if (types == Types{kObjectId} || types == Types{kObjectId, kContext0}) return Kind::kMessage;
  if (StartsWith(types, {kInteger, kSequence, kOctetString})) return Kind::kPrivateKeyInfo;
  if (types == Types(kRsaPrivateKeyNumbers, kInteger)) return Kind::kRsaPrivateKey;
  if (types == Types{kInteger, kInteger}) {
    const bool isExponent = elements->next->dataLen <= kLongestExponent;
    return isExponent ? Kind::kRsaPublicKey : Kind::kSignature;
  }
  RefuseKind();
}

bool IsUsualLabel(Kind kind, std::string_view label) {
  return std::ranges::any_of(kUsualLabels, [kind, label](const UsualLabel& usual) {
    return usual.kind == kind && usual.label == label;
  });
}
