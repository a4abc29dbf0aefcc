// Attributes, relative names and names.
#include "x509/name.h"

#include "der/forward.h"
#include "der/object_id.h"
#include "x509/record.h"

namespace velkord::internal {

int32_t OpenAttribute(Bytes in, AttributeView& attribute) {
  return DerElements::Read(in, kSequenceType, [&](DerElements& elements) -> int32_t {
    VELKORD_TRY(DerNextContent(elements, attribute.type));
    return elements.Next(attribute.value);
  });
}

int32_t OpenFirstAttribute(Bytes in, AttributeView& attribute) {
  return DerElements::Read(in, kSetType, [&](DerElements& attributes) -> int32_t {
    DerElement first;
    VELKORD_TRY(attributes.Next(first));
    return OpenAttribute(first.whole, attribute);
  });
}

}  // namespace velkord::internal

using namespace velkord::internal;

namespace {

// The string types that the values of attributes can have.
bool IsNameString(uint32_t type) {
  return type == kUtf8String || type == kPrintableString || type == kIa5String;
}

}  // namespace

int32_t ASN1_SetAttributeTypeAndValue(const Anybuf* type, const Anybuf* value,
                                      AttributeTypeAndValue** out) {
  if (type == nullptr || value == nullptr || out == nullptr) return VELKORD_NULL_ARGUMENT;
  Owned<AttributeTypeAndValue, ASN1_FreeAttributeTypeAndValue> record;
  VELKORD_TRY(CreateRecord(record.Out()));
  record->type = DerCopyNode(*type);
  record->value = DerCopyNode(*value);
  if (record->type == nullptr || record->value == nullptr) return VELKORD_OUT_OF_MEMORY;
  *out = record.release();
  return VELKORD_OK;
}

int32_t ASN1_GetDerAttributeTypeAndValue(const AttributeTypeAndValue* record, Anybuf** out) {
  if (record == nullptr) return VELKORD_NULL_ARGUMENT;
  return JoinPair(record->type, record->value, out);
}

int32_t ASN1_DecodeDerAttributeTypeAndValue(const Anybuf* source, Anybuf** outType,
                                            Anybuf** outValue) {
  if (source == nullptr || outType == nullptr || outValue == nullptr) return VELKORD_NULL_ARGUMENT;
  AttributeView attribute;
  VELKORD_TRY(OpenAttribute(NodeBytes(*source), attribute));
  const DerElement& value = attribute.value;
  if (!IsNameString(value.tag)) return VELKORD_WRONG_TAG;
  NodePtr type;
  VELKORD_TRY(DerBuild(kObjectId, attribute.type, type.Out()));
  VELKORD_TRY(DerBuild(static_cast<uint8_t>(value.tag), value.Content(), outValue));
  *outType = type.release();
  return VELKORD_OK;
}

void ASN1_FreeAttributeTypeAndValue(AttributeTypeAndValue* record) {
  FreeRecord<&AttributeTypeAndValue::type, &AttributeTypeAndValue::value>(record);
}

// RelativeDistinguishedName ::= SET { SEQUENCE { type OBJECT IDENTIFIER, value ANY } }
int32_t ASN1_GetDerRelativeDistinguishedNameOne(const Anybuf* value, int32_t /*id*/,
                                                const char* oidText, int32_t oidTextLength,
                                                Anybuf** out) {
  if (value == nullptr || out == nullptr) return VELKORD_NULL_ARGUMENT;
  std::string_view text;
  VELKORD_TRY(CallerText(oidText, oidTextLength, text));
  if (!IsNameString(value->dataType)) return VELKORD_WRONG_TAG;
  const Bytes valueBytes = NodeBytes(*value);
  Bytes afterTag = valueBytes;
  uint32_t tag;
  VELKORD_TRY(DerParseTag(afterTag, tag));

  const uint32_t oidSize = ObjectIdSize(text);
  const DerHeader oid(kObjectId, oidSize);
  const DerHeader attribute(kSequence, oid.Total() + valueBytes.size());
  return DerBuildWith(DerHeader(kSet, attribute.Total()), out, [&](DerWriter& writer) {
    writer.Put(attribute);
    writer.Put(oid);
    FillObjectId(writer.Take(oidSize), text);
    writer.Put(valueBytes);
  });
}

int32_t ASN1_DecodeDerRelativeDistinguishedNameOne(const Anybuf* source, uint8_t* value,
                                                   uint32_t* valueLength, uint8_t* oid,
                                                   uint32_t* oidLength) {
  if (source == nullptr || value == nullptr || valueLength == nullptr || oid == nullptr ||
      oidLength == nullptr) {
    return VELKORD_NULL_ARGUMENT;
  }
  AttributeView attribute;
  VELKORD_TRY(OpenFirstAttribute(NodeBytes(*source), attribute));
  if (!IsNameString(attribute.value.tag)) return VELKORD_WRONG_TAG;
  const Bytes content = attribute.value.Content();
  if (attribute.value.tag == kUtf8String) {
    utf8sToZhs(content.data(), static_cast<uint32_t>(content.size()), value, valueLength);
  } else {
    *valueLength = CopyOut(content, value);
  }
  *oidLength = CopyOut(attribute.type, oid);
  return VELKORD_OK;
}

VELKORD_FORWARD_NODE(ASN1_GetDerRelativeDistinguishedName, ASN1_WriteSet)
VELKORD_FORWARD_NODE(ASN1_ReadRelativeDistinguishedName, ASN1_ReadSet)
VELKORD_FORWARD_BYTES(ASN1_ReadRelativeDistinguishedNameFromByte, ASN1_WriteSetFromDERData)
VELKORD_FORWARD_NODE(ASN1_CreateName, ASN1_CreateSet)
VELKORD_FORWARD_NODE(ASN1_CreateRelativeDistinguishedName, ASN1_CreateSet)
VELKORD_FORWARD_ADD(ASN1_AddName, ASN1_AddSet)
VELKORD_FORWARD_ADD(ASN1_AddRelativeDistinguishedName, ASN1_AddSet)
VELKORD_FORWARD_NODE(ASN1_GetDerName, ASN1_WriteSequence)
VELKORD_FORWARD_NODE(ASN1_ReadDerName, ASN1_ReadSequence)
VELKORD_FORWARD_FREE(ASN1_FreeNames, ASN1_FreeAnybuf)
VELKORD_FORWARD_FREE(ASN1_FreeRelativeDistinguishedName, ASN1_FreeAnybuf)
