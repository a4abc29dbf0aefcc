// The PKCS#7 ContentInfo. The setter puts the `[0]` around the content and the decoder takes it
// off; the writer writes the field unchanged.
#include "der/tagging.h"
#include "x509/record.h"

using namespace velkord::internal;

namespace {

constexpr uint32_t kContentTag = 0;

// ContentInfo ::= SEQUENCE {
//   contentType  OBJECT IDENTIFIER,
//   content      [0] EXPLICIT ANY DEFINED BY contentType OPTIONAL }
// Unlike the standard's, both may have any tag, and further elements are skipped.
int32_t Fill(PKCS7Context& record, DerElements& elements) {
  DerElement element;
  VELKORD_TRY(elements.Next(element));
  VELKORD_TRY(DerCopyElement(element, &record.contentType));
  if (elements.AtEnd()) return VELKORD_OK;
  VELKORD_TRY(elements.Next(element));
  return DerCopyContent(element, &record.content);
}

}  // namespace

int32_t ASN1_PKCS7_CreateContext(PKCS7Context** out) { return CreateRecord(out); }

void ASN1_PKCS7_FreeContext(PKCS7Context* record) {
  FreeRecord<&PKCS7Context::contentType, &PKCS7Context::content>(record);
}

int32_t ASN1_PKCS7_SetContentType(PKCS7Context* record, const Anybuf* value) {
  return SetField(record, &PKCS7Context::contentType, value, CopyElement);
}

int32_t ASN1_PKCS7_SetContent(PKCS7Context* record, const Anybuf* value) {
  return SetField(record, &PKCS7Context::content, value, [](const Anybuf& node, Anybuf** out) {
    return DerBuild(ExplicitTag(kContentTag), NodeBytes(node), out);
  });
}

int32_t ASN1_PKCS7_WriteData(const PKCS7Context* record, Anybuf** out) {
  if (record == nullptr) return VELKORD_NULL_ARGUMENT;
  return JoinFields({record->contentType, FieldIfSet(record->content)}, out);
}

int32_t ASN1_PKCS7_Decode(const uint8_t* bytes, uint32_t length, PKCS7Context** out) {
  return DecodeRecord<ASN1_PKCS7_FreeContext>(bytes, length, out, Fill);
}
