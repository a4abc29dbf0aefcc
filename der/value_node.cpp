// Value nodes: ASN1_CreateAnybuf and the Free functions of nodes and object identifiers.
#include "der/node.h"
#include "platform/memory.h"

using namespace velkord::internal;

int32_t ASN1_CreateAnybuf(const uint8_t* bytes, uint32_t length, uint8_t type, Anybuf** out) {
  if (out == nullptr) return VELKORD_NULL_ARGUMENT;
  Bytes content;
  VELKORD_TRY(CallerBytes(bytes, length, content));
  return DerCopyBytes(content, type, type == kBitString ? ImpliedUnusedBits(content) : 0, out);
}

void ASN1_FreeAnybuf(Anybuf* node) {
  while (node != nullptr) {
    Anybuf* next = node->next;
    Release(node->data);
    Release(node);
    node = next;
  }
}

void ASN1_FreeObjectID(ObjectID* record) {
  if (record == nullptr) return;
  Release(record->data);
  Release(record);
}
