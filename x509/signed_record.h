// The four signed structures: certificate, revocation list, certification request and extended
// certificate.
//
// SIGNED ::= SEQUENCE {
//   toBeSigned  SEQUENCE,
//   algorithm   AlgorithmIdentifier,
//   signature   BIT STRING }
#ifndef VELKORD_X509_SIGNED_RECORD_H_
#define VELKORD_X509_SIGNED_RECORD_H_

#include "x509/record.h"

namespace velkord::internal {

template <typename Record, Anybuf* Record::*kSigned, Anybuf* Record::*kAlgorithm,
          Anybuf* Record::*kSignature>
struct SignedRecord {
  static int32_t SetSigned(Record* record, const Anybuf* value) {
    return SetSequence(record, kSigned, value);
  }

  static int32_t SetAlgorithm(Record* record, const Anybuf* value) {
    return SetSequence(record, kAlgorithm, value);
  }

  static int32_t SetSignature(Record* record, const Anybuf* value) {
    return SetField(record, kSignature, value, [](const Anybuf& node, Anybuf** out) {
      return DerCopyBitString(NodeBytes(node), out);
    });
  }

  static int32_t WriteData(const Record* record, Anybuf** out) {
    if (record == nullptr) return VELKORD_NULL_ARGUMENT;
    return JoinFields({record->*kSigned, record->*kAlgorithm, record->*kSignature}, out);
  }

  static void Free(Record* record) { FreeRecord<kSigned, kAlgorithm, kSignature>(record); }

  // Unlike the standard's type, elements after the third are skipped, and the third may have any
  // tag. `makeSignature` makes the signature's node of it.
  static int32_t Decode(const uint8_t* bytes, uint32_t length, Record** out,
                        int32_t (*makeSignature)(const DerElement&, Anybuf**) = CopySignature) {
    return DecodeRecord<Free>(bytes, length, out, [=](Record& record, DerElements& elements) {
      VELKORD_TRY(DerRewrapNext(elements, &(record.*kSigned)));
      VELKORD_TRY(DerRewrapNext(elements, &(record.*kAlgorithm)));
      DerElement element;
      VELKORD_TRY(elements.Next(element));
      return makeSignature(element, &(record.*kSignature));
    });
  }

 private:
  static int32_t CopySignature(const DerElement& element, Anybuf** out) {
    return DerCopyBitString(element.whole, out);
  }
};

}  // namespace velkord::internal

#endif  // VELKORD_X509_SIGNED_RECORD_H_
