// What all records share: each field is a finished element, a node that the record owns.
#ifndef VELKORD_X509_RECORD_H_
#define VELKORD_X509_RECORD_H_

#include <initializer_list>

#include "der/node.h"
#include "platform/memory.h"

namespace velkord::internal {

// Makes a record with all fields 0 or null. 0, -7000 or -8.
template <typename Record>
int32_t CreateRecord(Record** out) {
  if (out == nullptr) return VELKORD_NULL_ARGUMENT;
  auto* record = AllocateZeroed<Record>();
  if (record == nullptr) return VELKORD_OUT_OF_MEMORY;
  *out = record;
  return VELKORD_OK;
}

// Releases a record and the nodes in the fields listed.
template <auto... kFields, typename Record>
void FreeRecord(Record* record) {
  if (record == nullptr) return;
  (ASN1_FreeAnybuf(record->*kFields), ...);
  Release(record);
}

// Sets a field to the node that `make` makes, and releases the one that it had. 0, the code of
// `make`, or -8.
template <typename Record, typename Make>
int32_t SetField(Record* record, Anybuf* Record::*field, Make make) {
  if (record == nullptr) return VELKORD_NULL_ARGUMENT;
  Anybuf* node;
  VELKORD_TRY(make(&node));
  ASN1_FreeAnybuf(record->*field);
  record->*field = node;
  return VELKORD_OK;
}

// The same with the node that `make` makes of a value.
template <typename Record, typename Make>
int32_t SetField(Record* record, Anybuf* Record::*field, const Anybuf* value, Make make) {
  if (value == nullptr) return VELKORD_NULL_ARGUMENT;
  return SetField(record, field, [&](Anybuf** out) { return make(*value, out); });
}

// The same for an optional field with its flag.
template <typename Record, typename Make>
int32_t SetOptional(Record* record, Anybuf* Record::*field, uint32_t Record::*flag,
                    const Anybuf* value, Make make) {
  VELKORD_TRY(SetField(record, field, value, make));
  record->*flag = 1;
  return VELKORD_OK;
}

// How most fields are made: by a copy of an element of any type, or of a finished SEQUENCE, its
// length in shortest form.
inline int32_t CopyElement(const Anybuf& value, Anybuf** out) {
  return DerCopyElement(NodeBytes(value), out);
}
inline int32_t CopySequence(const Anybuf& value, Anybuf** out) {
  return DerRewrap(kSequence, NodeBytes(value), out);
}

template <typename Record>
int32_t SetSequence(Record* record, Anybuf* Record::*field, const Anybuf* value) {
  return SetField(record, field, value, CopySequence);
}

// An element of a record to write: a field, or bytes, none of them for an absent element.
struct Field {
  // NOLINTNEXTLINE(google-explicit-constructor): a writer lists just the fields.
  Field(const Anybuf* node) : set(node != nullptr), bytes(set ? NodeBytes(*node) : Bytes()) {}
  // NOLINTNEXTLINE(google-explicit-constructor)
  Field(Bytes element) : set(true), bytes(element) {}

  bool set;
  Bytes bytes;
};

// A field that is written when it is set.
inline Field FieldIfSet(const Anybuf* node) {
  return node != nullptr ? Field(node) : Field(Bytes());
}

// An optional field, which is written when its flag is 1.
inline Field OptionalField(uint32_t flag, const Anybuf* node) {
  return flag == 1 ? Field(node) : Field(Bytes());
}

// Makes the SEQUENCE of a record's fields. 0, -1, or -8 when a field is not set or `out` is null.
int32_t JoinFields(std::initializer_list<Field> fields, Anybuf** out);
// The same of two elements, both required.
int32_t JoinPair(const Anybuf* first, const Anybuf* second, Anybuf** out);

// Makes a record of the bytes of a SEQUENCE, filled from its elements. 0, -1, -2, -7, -7000, -8, or
// the code of `fill`.
template <auto kFree, typename Record, typename Fill>
int32_t DecodeRecord(const uint8_t* bytes, uint32_t length, Record** out, Fill fill) {
  if (bytes == nullptr || out == nullptr) return VELKORD_NULL_ARGUMENT;
  Owned<Record, kFree> record;
  VELKORD_TRY(CreateRecord(record.Out()));
  VELKORD_TRY(DerElements::Read(Bytes(bytes, length), kSequenceType,
                                [&](DerElements& elements) { return fill(*record, elements); }));
  *out = record.release();
  return VELKORD_OK;
}

}  // namespace velkord::internal

#endif  // VELKORD_X509_RECORD_H_
