// SubjectPublicKeyInfo and the RSA public key that it can contain.
#include "der/forward.h"
#include "x509/record.h"

using namespace velkord::internal;

// RSAPublicKey ::= SEQUENCE {
//   modulus         INTEGER,
//   publicExponent  INTEGER }
// Unlike the standard's, elements of any tag are taken; of more than two the last is the exponent.
int32_t ASN1_SetRSAPublicKey(const Anybuf* modulus, const Anybuf* exponent, Anybuf** out) {
  return JoinPair(modulus, exponent, out);
}

int32_t ASN1_GetRSAPublicKey(const Anybuf* source, Anybuf** outModulus, Anybuf** outExponent) {
  if (source == nullptr || outModulus == nullptr || outExponent == nullptr) {
    return VELKORD_NULL_ARGUMENT;
  }
  Bytes numbers[2];
  const auto read = [&](const DerElement& element, size_t place) {
    return DerOpenContent(element, numbers[place]);
  };
  VELKORD_TRY(DerElements::ReadPair(NodeBytes(*source), read));
  NodePtr modulus;
  VELKORD_TRY(DerBuild(kInteger, numbers[0], modulus.Out()));
  VELKORD_TRY(DerBuild(kInteger, numbers[1], outExponent));
  *outModulus = modulus.release();
  return VELKORD_OK;
}

// SubjectPublicKeyInfo ::= SEQUENCE {
//   algorithm         AlgorithmIdentifier,
//   subjectPublicKey  BIT STRING }
// Unlike the standard's, a key of any tag is read, and further elements are skipped.
int32_t ASN1_SetSubjectPublicKeyInfo(const Anybuf* algorithm, const Anybuf* key, Anybuf** out) {
  if (algorithm == nullptr || key == nullptr || out == nullptr) return VELKORD_NULL_ARGUMENT;
  const Bytes bits = NodeBytes(*key);
  const DerHeaderOctets header(DerHeader::For(kBitString, bits, ImpliedUnusedBits(bits)));
  return DerJoin(kSequence, {NodeBytes(*algorithm), header.View(), bits}, out);
}

int32_t ASN1_GetSubjectPublicKeyInfo(const Anybuf* source, Anybuf** outAlgorithm, Anybuf** outKey) {
  if (source == nullptr || outAlgorithm == nullptr || outKey == nullptr) {
    return VELKORD_NULL_ARGUMENT;
  }
  NodePtr algorithm;
  Bytes bits;
  const auto read = [&](DerElements& elements) -> int32_t {
    VELKORD_TRY(DerRewrapNext(elements, algorithm.Out()));
    return DerNextContent(elements, bits);
  };
  VELKORD_TRY(DerElements::Read(NodeBytes(*source), kSequenceType, read));
  VELKORD_TRY(DerBuild(kBitString, bits, outKey));
  *outAlgorithm = algorithm.release();
  return VELKORD_OK;
}

VELKORD_FORWARD_FREE(ASN1_FreeSubjectPublicKeyInfo, ASN1_FreeAnybuf)
VELKORD_FORWARD_FREE(ASN1_FreeRSAPublicKey, ASN1_FreeAnybuf)
