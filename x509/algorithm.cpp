// AlgorithmIdentifier: an object identifier and one parameter element.
#include "der/forward.h"
#include "der/node.h"
#include "platform/memory.h"

using namespace velkord;

namespace {

constexpr uint32_t kNullParameterMode = 1;
constexpr uint8_t kNullElement[] = {kNull, 0x00};

enum class ParameterKind { kNone, kSequence, kObjectId };

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
  // The node alone: the parameter may be the one behind it in the caller's chain.
  Release(oid->data);
  Release(oid);
  return VELKORD_OK;
}

int32_t ASN1_GetAlgorithmIdentifier(const Anybuf* source, Anybuf** outOid, Anybuf** outSequence,
                                    Anybuf** outParameterOid) {
  if (source == nullptr) return VELKORD_NULL_ARGUMENT;
  DerElements elements;
  Bytes oid;
  VELKORD_TRY(elements.Open(NodeBytes(*source), kSequenceType));
  VELKORD_TRY(DerNextContent(elements, oid));

  // Each parameter is read, and the last one counts.
  ParameterKind kind = ParameterKind::kNone;
  Bytes parameter;
  while (!elements.AtEnd()) {
    DerElement element;
    VELKORD_TRY(elements.Next(element));
    if (element.whole[0] == kNull) {
      kind = ParameterKind::kNone;
    } else if (element.whole[0] == kSequence) {
      DerElements inner;
      VELKORD_TRY(inner.OpenContent(element.Content()));
      kind = ParameterKind::kSequence;
      parameter = element.Content();
    } else {
      VELKORD_TRY(DerOpenContent(element, parameter));
      kind = ParameterKind::kObjectId;
    }
  }

  NodePtr oidNode;
  NodePtr sequence;
  NodePtr parameterOid;
  if (outOid != nullptr) VELKORD_TRY(DerBuild(kObjectId, oid, oidNode.Out()));
  if (outSequence != nullptr && kind == ParameterKind::kSequence) {
    VELKORD_TRY(DerBuild(kSequence, parameter, sequence.Out()));
  }
  if (outParameterOid != nullptr && kind == ParameterKind::kObjectId) {
    VELKORD_TRY(DerBuild(kObjectId, parameter, parameterOid.Out()));
  }
  if (outOid != nullptr) *outOid = oidNode.release();
  if (outSequence != nullptr) *outSequence = sequence.release();
  if (outParameterOid != nullptr) *outParameterOid = parameterOid.release();
  return VELKORD_OK;
}

VELKORD_FORWARD_FREE(ASN1_FreeAlgorithmIdentifier, ASN1_FreeAnybuf)
