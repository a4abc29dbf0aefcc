// RSA keys between the fixed fields of a record and DER.
#include <algorithm>
#include <array>

#include "keys/in_place.h"
#include "keys/integer_sequence.h"

using namespace velkord::internal;

namespace {

constexpr uint8_t kPrivateKeyVersion[] = {0};

// Size of the content of an AlgorithmIdentifier for RSA: a second element of this size marks a
// PrivateKeyInfo.
constexpr size_t kAlgorithmSize = 13;

// The significant bytes of a field.
Bytes KeyFieldTrim(Bytes field) {
  const auto first =
      std::find_if(field.begin(), field.end(), [](uint8_t byte) { return byte != 0; });
  return {first, field.end()};
}

// Puts a number at the start of its field. 0, or -1 when it is too long.
int32_t FillField(Bytes number, std::span<uint8_t> field) {
  if (number.size() > field.size()) return VELKORD_FAILURE;
  CopyOut(number, field.data());
  return VELKORD_OK;
}

// Fills fields, one from each next element.
int32_t FillFields(DerElements& elements, std::initializer_list<std::span<uint8_t>> fields) {
  for (const std::span<uint8_t> field : fields) {
    Bytes number;
    VELKORD_TRY(DerNextContent(elements, number));
    VELKORD_TRY(FillField(number, field));
  }
  return VELKORD_OK;
}

// Clears a record and opens the DER that fills it, which is kept in `scratch` if the record
// overlaps it.
template <typename Key>
int32_t ClearAndOpen(Key* key, const uint8_t* der, int32_t derLen, Scratch& scratch,
                     DerElements& elements) {
  if (key == nullptr || der == nullptr || derLen <= 0) return VELKORD_FAILURE;
  Bytes in(der, static_cast<size_t>(derLen));
  VELKORD_TRY(KeepInput(in, scratch, Bytes(key->modulus, sizeof *key)));
  *key = Key{};
  return elements.Open(in, kSequenceType);
}

// PrivateKeyInfo ::= SEQUENCE {
//   version              Version,
//   privateKeyAlgorithm  AlgorithmIdentifier,
//   privateKey           OCTET STRING }  -- an RSAPrivateKey
// Opens the modulus in the RSAPrivateKey of this, or in a bare one; `elements` continues after it.
int32_t OpenModulus(DerElements& elements, Bytes& modulus) {
  VELKORD_TRY(DerNextContent(elements, modulus, 1));
  if (modulus.size() != kAlgorithmSize) return VELKORD_OK;
  Bytes privateKey;
  VELKORD_TRY(DerNextContent(elements, privateKey));
  VELKORD_TRY(elements.Open(privateKey, kSequenceType));
  return DerNextContent(elements, modulus, 1);
}

}  // namespace

// RSAPublicKey ::= SEQUENCE {
//   modulus         INTEGER,
//   publicExponent  INTEGER }
// Unlike the standard's, elements of any tag are read, and further ones are skipped; the same holds
// for RSAPrivateKey.
int32_t ZantEncodePublicKey(const ZantPublicKey* key, uint8_t* der, uint32_t* derLen) {
  if (key == nullptr || derLen == nullptr) return VELKORD_FAILURE;
  const std::array numbers = {KeyFieldTrim(key->modulus), KeyFieldTrim(key->publicExponent)};
  if (numbers[0].empty() || numbers[1].empty()) return VELKORD_FAILURE;
  return WriteIntegerSequence(numbers, der, derLen);
}

int32_t ZantDecodePublicKey(ZantPublicKey* key, const uint8_t* der, int32_t derLen) {
  Scratch scratch;
  DerElements elements;
  VELKORD_TRY(ClearAndOpen(key, der, derLen, scratch, elements));
  return FillFields(elements, {key->modulus, key->publicExponent});
}

// RSAPrivateKey ::= SEQUENCE {
//   version          Version,
//   modulus          INTEGER,
//   publicExponent   INTEGER,
//   privateExponent  INTEGER,
//   prime1           INTEGER,
//   prime2           INTEGER,
//   exponent1        INTEGER,
//   exponent2        INTEGER,
//   coefficient      INTEGER }
int32_t ZantEncodePrivateKey(const ZantPrivateKey* key, uint8_t* der, uint32_t* derLen) {
  if (key == nullptr || derLen == nullptr) return VELKORD_FAILURE;
  const std::array numbers = {Bytes(kPrivateKeyVersion),         KeyFieldTrim(key->modulus),
                              KeyFieldTrim(key->publicExponent), KeyFieldTrim(key->privateExponent),
                              KeyFieldTrim(key->prime1),         KeyFieldTrim(key->prime2),
                              KeyFieldTrim(key->exponent1),      KeyFieldTrim(key->exponent2),
                              KeyFieldTrim(key->coefficient)};
  if (numbers[1].empty() || numbers[2].empty() || numbers[3].empty()) return VELKORD_FAILURE;
  // A key that lacks one of the other numbers is no failure, but nothing is written of it.
  const bool complete =
      std::none_of(numbers.begin(), numbers.end(), [](Bytes number) { return number.empty(); });
  return complete ? WriteIntegerSequence(numbers, der, derLen) : VELKORD_OK;
}

int32_t ZantDecodePrivateKey(ZantPrivateKey* key, const uint8_t* der, int32_t derLen) {
  Scratch scratch;
  DerElements elements;
  Bytes modulus;
  VELKORD_TRY(ClearAndOpen(key, der, derLen, scratch, elements));
  VELKORD_TRY(OpenModulus(elements, modulus));
  VELKORD_TRY(FillField(modulus, key->modulus));
  return FillFields(elements, {key->publicExponent, key->privateExponent, key->prime1, key->prime2,
                               key->exponent1, key->exponent2, key->coefficient});
}
