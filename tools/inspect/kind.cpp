#include "kind.h"

#include <algorithm>
#include <stdexcept>
#include <string>
#include <utility>

#include "secret.h"

using velkord::Bytes, velkord::Chain, velkord::View;

namespace {

// A public exponent of 64 bits: header, zero octet and number. The numbers of a signature are
// longer.
constexpr uint32_t kLongestExponent = 2 + 1 + 8;

consteval const Kind& Named(std::string_view name) {
  return *std::ranges::find(kKinds, name, &Kind::name);
}

[[noreturn]] void RefuseKind() {
  throw std::runtime_error("a SEQUENCE, but of no kind that is known here");
}

// A letter for each type of element, told by its reduced tag.
using Letter = std::pair<uint32_t, char>;
constexpr Letter kLetters[] = {
    {2, 'i'},     // INTEGER
    {3, 'b'},     // BIT STRING
    {4, 'o'},     // OCTET STRING
    {6, 'd'},     // OBJECT IDENTIFIER
    {10, 'e'},    // ENUMERATED
    {16, 's'},    // SEQUENCE
    {23, 't'},    // UTCTime
    {24, 't'},    // GeneralizedTime
    {0xA0, 'c'},  // [0], constructed
};

// The letters of all elements; "?" for other types.
std::string ShapeOf(const SecretNodePtr& elements) {
  std::string shape;
  for (const Anybuf& element : Chain(elements.get())) {
    const auto* known = std::ranges::find(kLetters, element.dataType, &Letter::first);
    shape += known == std::end(kLetters) ? '?' : known->second;
  }
  return shape;
}

// A certificate's version may be missing, and then its serial number comes first. A list may begin
// with a version, and a request does.
const Kind& KindOfSigned(const Anybuf& signedPart) {
  const std::string shape = ShapeOf(SplitSecret(View(signedPart), "split the signed part"));
  if (shape.starts_with("cis") || shape.starts_with("isss")) return Named("certificate");
  if (shape == "iss" || shape.starts_with("issc")) return Named("certification request");
  if (shape.starts_with("sst") || shape.starts_with("isst")) return Named("revocation list");
  RefuseKind();
}

const Kind& KindByShape(Bytes der) {
  const SecretNodePtr elements = SplitSecret(der, "split the structure");
  const std::string shape = ShapeOf(elements);
  if (shape.starts_with("ssb")) return KindOfSigned(*elements);
  if (shape == "sb") return Named("public key");
  if (shape == "d" || shape == "dc") return Named("PKCS#7 message");
  if (shape.starts_with("iso")) return Named("private key");
  if (shape == "iiiiiiiii") return Named("RSA private key");
  if (shape == "so") return Named("encrypted private key of PKCS#8");
  if (shape.starts_with("io")) return Named("private key of a curve as SEC 1 has it");
  if (shape == "is" || shape == "iss") return Named("PKCS#12 file");
  if (shape == "e" || shape == "ec") return Named("OCSP response");
  if (shape != "ii") RefuseKind();
  const bool isExponent = elements->next->dataLen <= kLongestExponent;
  return isExponent ? Named("RSA public key") : Named("signature");
}

}  // namespace

const Kind& KindOf(Bytes der, std::string_view label) {
  try {
    return KindByShape(der);
  } catch (const std::exception&) {
    const auto* named = std::ranges::find(kKinds, label, [](const Kind& kind) {
      return kind.show == nullptr ? kind.labels[0] : std::string_view();
    });
    if (label.empty() || named == std::end(kKinds)) throw;
    return *named;
  }
}
