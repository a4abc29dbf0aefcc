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

// A letter for each type of element, told by its reduced tag.
using Letter = std::pair<uint32_t, char>;
constexpr Letter kLetters[] = {
    {2, 'i'},     // INTEGER
    {3, 'b'},     // BIT STRING
    {4, 'o'},     // OCTET STRING
    {6, 'd'},     // OBJECT IDENTIFIER
    {10, 'n'},    // ENUMERATED
    {16, 's'},    // SEQUENCE
    {23, 't'},    // UTCTime
    {24, 't'},    // GeneralizedTime
    {0xA0, 'c'},  // [0], constructed
};

std::string Letters(const SecretNodePtr& elements) {
  std::string letters;
  for (const Anybuf& element : Chain(elements.get())) {
    const auto* known = std::ranges::find(kLetters, element.dataType, &Letter::first);
    letters += known == std::end(kLetters) ? '?' : known->second;
  }
  return letters + '.';
}

// The letters of all elements, "?" for other types, and "." for their end; of a signed structure
// those of its signed part, after "(". An "e" is a second INTEGER that can be an exponent.
std::string ShapeOf(Bytes der) {
  const SecretNodePtr elements = SplitSecret(der, "split the structure");
  const std::string letters = Letters(elements);
  if (letters.starts_with("ssb")) {
    return '(' + Letters(SplitSecret(View(*elements), "split the signed part"));
  }
  return letters == "ii." && elements->next->dataLen <= kLongestExponent ? "ie." : letters;
}

const Kind& KindByShape(Bytes der) {
  const std::string shape = ShapeOf(der);
  for (const Kind& kind : kKinds) {
    for (const std::string_view start : kind.shapes) {
      if (!start.empty() && shape.starts_with(start)) return kind;
    }
  }
  throw std::runtime_error("a SEQUENCE, but of no kind that is known here");
}

}  // namespace

const Kind& KindOf(Bytes der, std::string_view label) {
  try {
    return KindByShape(der);
  } catch (const std::exception&) {
    const auto* named = std::ranges::find_if(
        kKinds, [=](const Kind& kind) { return kind.show == nullptr && kind.labels[0] == label; });
    if (label.empty() || named == std::end(kKinds)) throw;
    return *named;
  }
}
