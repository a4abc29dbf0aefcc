// The signed part of a PKCS#10 certification request.
#include "der/integer.h"
#include "der/tagging.h"
#include "x509/record.h"

using namespace velkord::internal;

namespace {

constexpr uint32_t kAttributesTag = 0;

// The attributes keep the tag number of their element and their order, and come back constructed.
int32_t FillAttributes(const DerElement& element, Anybuf*& field) {
  Bytes content = element.Content();
  if (IsImplicitConstructed(element.tag)) {
    // They are unchanged, and only checked.
    VELKORD_TRY(DerCheckChildren(content));
  } else {
    VELKORD_TRY(DerOpenImplicit(element, content));
  }
  return DerBuild(ExplicitTag(element.tag & kTagNumberMask), content, &field);
}

// CertificationRequestInfo ::= SEQUENCE {
//   version        Version,
//   subject        Name,
//   subjectPKInfo  SubjectPublicKeyInfo,
//   attributes     [0] IMPLICIT SET OF Attribute }
// Unlike the standard's, the version may have any tag, the attributes too and may be missing, and
// further elements are skipped.
int32_t Fill(PKCS10& record, DerElements& elements) {
  DerElement element;
  VELKORD_TRY(elements.Next(element));
  VELKORD_TRY(ASN1_WriteInteger(DerBytesToUint(element.Content()), &record.version));
  VELKORD_TRY(DerRewrapNext(elements, &record.subject));
  VELKORD_TRY(DerRewrapNext(elements, &record.subjectPublicKeyInfo));
  if (elements.AtEnd()) return VELKORD_OK;
  VELKORD_TRY(elements.Next(element));
  return FillAttributes(element, record.attributes);
}

}  // namespace

int32_t ASN1_CreatePKCS10(PKCS10** out) { return CreateRecord(out); }

void ASN1_FreePKCS10(PKCS10* record) {
  FreeRecord<&PKCS10::version, &PKCS10::subject, &PKCS10::subjectPublicKeyInfo,
             &PKCS10::attributes>(record);
}

int32_t ASN1_PKCS10SetVersion(PKCS10* record, uint32_t version) {
  return SetField(record, &PKCS10::version,
                  [version](Anybuf** out) { return ASN1_WriteInteger(version, out); });
}

int32_t ASN1_PKCS10SetSubject(PKCS10* record, const Anybuf* value) {
  return SetSequence(record, &PKCS10::subject, value);
}

int32_t ASN1_PKCS10SetSubjectPublicKeyInfo(PKCS10* record, const Anybuf* value) {
  return SetSequence(record, &PKCS10::subjectPublicKeyInfo, value);
}

int32_t ASN1_PKCS10SetAttributes(PKCS10* record, const Anybuf* value) {
  return SetField(record, &PKCS10::attributes, value, [](const Anybuf& node, Anybuf** out) {
    return ASN1_WriteImplicit(&node, kAttributesTag, out);
  });
}

int32_t ASN1_PKCS10WriteData(const PKCS10* record, Anybuf** out) {
  if (record == nullptr) return VELKORD_NULL_ARGUMENT;
  return JoinFields(
      {record->version, record->subject, record->subjectPublicKeyInfo, record->attributes}, out);
}

int32_t ASN1_PKCS10Decode(const uint8_t* bytes, uint32_t length, PKCS10** out) {
  return DecodeRecord<ASN1_FreePKCS10>(bytes, length, out, Fill);
}
