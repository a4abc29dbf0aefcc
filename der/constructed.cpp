// SEQUENCE and SET: chains of TLV nodes made, joined and split.
#include "der/forward.h"
#include "der/node.h"

using namespace velkord::internal;

namespace {

int32_t JoinChain(uint8_t tag, const Anybuf* chain, Anybuf** out) {
  if (out == nullptr) return VELKORD_NULL_ARGUMENT;
  return DerJoinEach(
      tag,
      [&](auto visit) {
        for (const Anybuf* node = chain; node != nullptr; node = node->next) {
          visit(NodeBytes(*node));
        }
      },
      out);
}

int32_t SplitBytes(Bytes in, uint32_t type, Anybuf** out) {
  DerElement parent;
  VELKORD_TRY(DerParseElementOf(type, in, parent));
  return DerSplit(parent.Content(), out);
}

int32_t SplitNode(const Anybuf* source, uint32_t type, Anybuf** out) {
  if (source == nullptr || out == nullptr) return VELKORD_NULL_ARGUMENT;
  return SplitBytes(NodeBytes(*source), type, out);
}

int32_t SplitCallerBytes(const uint8_t* bytes, uint32_t length, uint32_t type, Anybuf** out) {
  if (out == nullptr) return VELKORD_NULL_ARGUMENT;
  Bytes in;
  VELKORD_TRY(CallerBytes(bytes, length, in));
  return SplitBytes(in, type, out);
}

}  // namespace

int32_t ASN1_CreateSequence(const Anybuf* element, Anybuf** out) {
  if (element == nullptr || out == nullptr) return VELKORD_NULL_ARGUMENT;
  Anybuf* copy = DerCopyNode(*element);
  if (copy == nullptr) return VELKORD_FAILURE;
  *out = copy;
  return VELKORD_OK;
}

void ASN1_AddSequence(const Anybuf* element, Anybuf* chain) {
  if (element == nullptr || chain == nullptr) return;
  while (chain->next != nullptr) chain = chain->next;
  chain->next = DerCopyNode(*element);
}

int32_t ASN1_WriteSequence(const Anybuf* chain, Anybuf** out) {
  return JoinChain(kSequence, chain, out);
}

int32_t ASN1_WriteSet(const Anybuf* chain, Anybuf** out) { return JoinChain(kSet, chain, out); }

int32_t ASN1_ReadSequence(const Anybuf* source, Anybuf** out) {
  return SplitNode(source, kSequenceType, out);
}

int32_t ASN1_ReadSet(const Anybuf* source, Anybuf** out) {
  return SplitNode(source, kSetType, out);
}

int32_t ASN1_WriteSequenceFromDERBytes(const uint8_t* bytes, uint32_t length, Anybuf** out) {
  return SplitCallerBytes(bytes, length, kSequenceType, out);
}

int32_t ASN1_WriteSetFromDERData(const uint8_t* bytes, uint32_t length, Anybuf** out) {
  return SplitCallerBytes(bytes, length, kSetType, out);
}

VELKORD_FORWARD_NODE(ASN1_CreateSet, ASN1_CreateSequence)
VELKORD_FORWARD_ADD(ASN1_AddSet, ASN1_AddSequence)
VELKORD_FORWARD_FREE(ASN1_FreeSequence, ASN1_FreeAnybuf)
VELKORD_FORWARD_FREE(ASN1_FreeSet, ASN1_FreeAnybuf)
