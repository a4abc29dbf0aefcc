// AlgorithmIdentifier: an object identifier and one parameter element.
//
// AlgorithmIdentifier ::= SEQUENCE {
//   algorithm   OBJECT IDENTIFIER,
//   parameters  ANY DEFINED BY algorithm OPTIONAL }
#include "der/forward.h"
#include "der/node.h"
#include "platform/memory.h"

using namespace velkord::internal;

namespace {

constexpr uint32_t kNullParameterMode = 1;
constexpr uint8_t kNullElement[] = {kNull, 0x00};

struct AlgorithmView {
  Bytes oid;
  uint8_t parameterType = kNull;  // kNull, for no parameter too; else kSequence or kObjectId.
  Bytes parameter;
};

// Unlike the standard's, the parameters may be several, of which each is checked and the last
// counts.
int32_t OpenAlgorithm(Bytes in, AlgorithmView& algorithm) {
  return DerElements::Read(in, kSequenceType, [&](DerElements& elements) -> int32_t {
    VELKORD_TRY(DerNextContent(elements, algorithm.oid));
    while (!elements.AtEnd()) {
      DerElement element;
      VELKORD_TRY(elements.Next(element));
      if (element.whole[0] == kNull) {
        algorithm.parameterType = kNull;
      } else if (element.whole[0] == kSequence) {
        VELKORD_TRY(DerCheckChildren(element.Content()));
        algorithm.parameterType = kSequence;
        algorithm.parameter = element.Content();
      } else {
        VELKORD_TRY(DerOpenContent(element, algorithm.parameter));
        algorithm.parameterType = kObjectId;
      }
    }
    return VELKORD_OK;
  });
}

}  // namespace

int32_t ASN1_SetAlgorithmIdentifier(uint32_t mode, Anybuf* oid, const Anybuf* alternative,
                                    const Anybuf* parameter, Anybuf** out) {
  if (oid == nullptr || out == nullptr) return VELKORD_NULL_ARGUMENT;
  if (parameter == nullptr && mode == kNullParameterMode) {
    return DerJoin(kSequence, {NodeBytes(*oid), kNullElement}, out);
  }
  const Anybuf* second = parameter != nullptr ? parameter : alternative;
  if (second == nullptr) return VELKORD_NULL_ARGUMENT;
  VELKORD_TRY(DerJoin(kSequence, {NodeBytes(*oid), NodeBytes(*second)}, out));
  // Not its chain: the parameter may be the next node in it.
  Release(oid->data);
  Release(oid);
  return VELKORD_OK;
}

int32_t ASN1_GetAlgorithmIdentifier(const Anybuf* source, Anybuf** outOid, Anybuf** outSequence,
                                    Anybuf** outParameterOid) {
  if (source == nullptr) return VELKORD_NULL_ARGUMENT;
  AlgorithmView algorithm;
  VELKORD_TRY(OpenAlgorithm(NodeBytes(*source), algorithm));
  NodePtr oidNode;
  NodePtr sequence;
  NodePtr parameterOid;
  if (outOid != nullptr) VELKORD_TRY(DerBuild(kObjectId, algorithm.oid, oidNode.Out()));
  if (outSequence != nullptr && algorithm.parameterType == kSequence) {
    VELKORD_TRY(DerBuild(kSequence, algorithm.parameter, sequence.Out()));
  }
  if (outParameterOid != nullptr && algorithm.parameterType == kObjectId) {
    VELKORD_TRY(DerBuild(kObjectId, algorithm.parameter, parameterOid.Out()));
  }
  if (outOid != nullptr) *outOid = oidNode.release();
  if (outSequence != nullptr) *outSequence = sequence.release();
  if (outParameterOid != nullptr) *outParameterOid = parameterOid.release();
  return VELKORD_OK;
}

VELKORD_FORWARD_FREE(ASN1_FreeAlgorithmIdentifier, ASN1_FreeAnybuf)
