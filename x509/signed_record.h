// The record that certificates, revocation lists and certification requests are at their outermost
// level: a signed SEQUENCE, the AlgorithmIdentifier and the signature, a BIT STRING.
#ifndef VELKORD_X509_SIGNED_RECORD_H_
#define VELKORD_X509_SIGNED_RECORD_H_

#include "x509/record.h"

namespace velkord {

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
    if (record == nullptr || value == nullptr) return VELKORD_NULL_ARGUMENT;
    NodePtr node;
    VELKORD_TRY(DerCopyBitString(NodeBytes(*value), node.Out()));
    ReplaceField(record->*kSignature, node);
    return VELKORD_OK;
  }

  static int32_t WriteData(const Record* record, Anybuf** out) {
    if (record == nullptr || out == nullptr) return VELKORD_NULL_ARGUMENT;
    return JoinFields({record->*kSigned, record->*kAlgorithm, record->*kSignature}, out);
  }

  static void Free(Record* record) { FreeRecord<kSigned, kAlgorithm, kSignature>(record); }

  // Fills an empty record from the bytes of the whole; elements behind the third are passed over.
  // `makeSignature` makes the signature's node of the third element.
  template <typename MakeSignature>
  static int32_t Fill(Record& record, Bytes in, MakeSignature makeSignature) {
    DerElements elements;
    VELKORD_TRY(elements.Open(in, kSequenceType));
    DerElement element;
    VELKORD_TRY(elements.Next(element));
    VELKORD_TRY(DerRewrap(kSequence, element.whole, &(record.*kSigned)));
    VELKORD_TRY(elements.Next(element));
    VELKORD_TRY(DerRewrap(kSequence, element.whole, &(record.*kAlgorithm)));
    VELKORD_TRY(elements.Next(element));
    return makeSignature(element, &(record.*kSignature));
  }
};

}  // namespace velkord

#endif  // VELKORD_X509_SIGNED_RECORD_H_
