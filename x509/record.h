// What all records share: they hold finished elements, one node a field, and own them.
#ifndef VELKORD_X509_RECORD_H_
#define VELKORD_X509_RECORD_H_

#include <initializer_list>

#include "der/node.h"
#include "platform/memory.h"

namespace velkord {

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

// Puts a new node in a field and releases what stood there.
inline void ReplaceField(Anybuf*& field, NodePtr& node) {
  Anybuf* earlier = field;
  field = node.release();
  ASN1_FreeAnybuf(earlier);
}

// Sets a field to a finished SEQUENCE, its length rewritten in shortest form. 0, -1, -2, -7 or -8.
template <typename Record>
int32_t SetSequence(Record* record, Anybuf* Record::*field, const Anybuf* value) {
  if (record == nullptr || value == nullptr) return VELKORD_NULL_ARGUMENT;
  NodePtr node;
  VELKORD_TRY(DerRewrap(kSequence, NodeBytes(*value), node.Out()));
  ReplaceField(record->*field, node);
  return VELKORD_OK;
}

// Stands in a writer's list for an optional field that is not written.
inline constexpr Anybuf kAbsentField{};

// Makes the SEQUENCE of a record's fields. 0, -1, or -8 when a field is not set.
inline int32_t JoinFields(std::initializer_list<const Anybuf*> fields, Anybuf** out) {
  for (const Anybuf* field : fields) {
    if (field == nullptr) return VELKORD_NULL_ARGUMENT;
  }
  return DerJoinEach(
      kSequence,
      [&](auto visit) {
        for (const Anybuf* field : fields) visit(NodeBytes(*field));
      },
      out);
}

}  // namespace velkord

#endif  // VELKORD_X509_RECORD_H_
