// The signed part of a certificate: made field by field, written and decoded.
#include <array>

#include "der/integer.h"
#include "der/tagging.h"
#include "x509/record.h"

using namespace velkord;

namespace {

using FieldPointer = Anybuf* TBSCertificate::*;

constexpr uint32_t kVersionTag = 0;
constexpr uint32_t kIssuerUniqueIdTag = 1;
constexpr uint32_t kSubjectUniqueIdTag = 2;
constexpr uint32_t kExtensionsTag = 3;

int32_t SetUniqueId(TBSCertificate* record, FieldPointer field, uint32_t TBSCertificate::*flag,
                    const Anybuf* value, uint32_t tagNumber) {
  return SetOptional(record, field, flag, value, [tagNumber](const Anybuf& node, Anybuf** out) {
    return ASN1_WriteImplicit(&node, tagNumber, out);
  });
}

// An optional element as it is read.
struct Optional {
  bool present = false;
  Bytes bytes;
};

// The optional elements by their tag numbers.
constexpr size_t kTagNumbers = kExtensionsTag + 1;
using Optionals = std::array<Optional, kTagNumbers>;

// The bits of a unique identifier: of a constructed element its first inner element as it stands.
int32_t OpenUniqueId(const DerElement& element, Bytes& bits) {
  if (!IsImplicitConstructed(element.tag)) return DerOpenImplicit(element, bits);
  DerElements inner;
  VELKORD_TRY(inner.OpenContent(element.Content()));
  if (inner.AtEnd()) return VELKORD_SIZE_MISMATCH;
  DerElement first;
  VELKORD_TRY(inner.Next(first));
  bits = first.whole;
  return VELKORD_OK;
}

// The low five bits of a tag alone tell which element it is; the last of its kind counts.
int32_t OpenOptional(const DerElement& element, Optionals& optionals) {
  const uint32_t number = element.tag & kTagNumberMask;
  if (number < kIssuerUniqueIdTag || number > kExtensionsTag) return VELKORD_OK;
  Optional& optional = optionals[number];
  optional.present = true;
  return number == kExtensionsTag ? DerOpenContent(element, optional.bytes)
                                  : OpenUniqueId(element, optional.bytes);
}

// Sets a unique identifier with the unused bits that its last byte implies.
int32_t FillUniqueId(uint32_t tagNumber, const Optional& optional, Anybuf*& field, uint32_t& flag) {
  if (!optional.present) return VELKORD_OK;
  const auto unusedBits = static_cast<uint8_t>(ImpliedUnusedBits(optional.bytes));
  const auto tag = static_cast<uint8_t>(kContextPrimitive | tagNumber);
  VELKORD_TRY(DerJoin(tag, {{&unusedBits, 1}, optional.bytes}, &field));
  flag = 1;
  return VELKORD_OK;
}

int32_t FillOptionals(const Optionals& optionals, TBSCertificate& record) {
  VELKORD_TRY(FillUniqueId(kIssuerUniqueIdTag, optionals[kIssuerUniqueIdTag], record.issuerUniqueID,
                           record.hasIssuerUniqueID));
  VELKORD_TRY(FillUniqueId(kSubjectUniqueIdTag, optionals[kSubjectUniqueIdTag],
                           record.subjectUniqueID, record.hasSubjectUniqueID));
  const Optional& extensions = optionals[kExtensionsTag];
  if (!extensions.present) return VELKORD_OK;
  VELKORD_TRY(DerBuild(kSequence, extensions.bytes, &record.extensions));
  record.hasExtensions = 1;
  return VELKORD_OK;
}

int32_t Fill(TBSCertificate& record, DerElements& elements) {
  DerElement element;
  Bytes content;
  // The first element is the version whatever its tag, which stays.
  VELKORD_TRY(elements.Next(element));
  VELKORD_TRY(DerOpenContent(element, content));
  VELKORD_TRY(DerBuild(ExplicitTag(element.tag), content, &record.versionNode));
  VELKORD_TRY(DerNextContent(elements, content));
  VELKORD_TRY(DerBuild(kInteger, content, &record.serialNumber));
  for (const FieldPointer field :
       {&TBSCertificate::signature, &TBSCertificate::issuer, &TBSCertificate::validity,
        &TBSCertificate::subject, &TBSCertificate::subjectPublicKeyInfo}) {
    VELKORD_TRY(NextSequence(elements, record.*field));
  }
  Optionals optionals;
  while (!elements.AtEnd()) {
    VELKORD_TRY(elements.Next(element));
    VELKORD_TRY(OpenOptional(element, optionals));
  }
  return FillOptionals(optionals, record);
}

}  // namespace

int32_t ASN1_CreateTBSCertificate(TBSCertificate** out) { return CreateRecord(out); }

void ASN1_FreeTBSCertificate(TBSCertificate* record) {
  FreeRecord<&TBSCertificate::versionNode, &TBSCertificate::serialNumber,
             &TBSCertificate::signature, &TBSCertificate::issuer, &TBSCertificate::validity,
             &TBSCertificate::subject, &TBSCertificate::subjectPublicKeyInfo,
             &TBSCertificate::issuerUniqueID, &TBSCertificate::subjectUniqueID,
             &TBSCertificate::extensions>(record);
}

int32_t ASN1_TBSCertificateSetVersion(TBSCertificate* record, uint32_t version) {
  VELKORD_TRY(SetField(record, &TBSCertificate::versionNode, [version](Anybuf** out) {
    return DerBuild(ExplicitTag(kVersionTag), IntegerElement(version).Whole(), out);
  }));
  record->version = version;
  return VELKORD_OK;
}

int32_t ASN1_TBSCertificateSetSerialNumber(TBSCertificate* record, const uint8_t* bytes,
                                           uint32_t length) {
  return SetField(record, &TBSCertificate::serialNumber, [=](Anybuf** out) {
    return ASN1_WriteIntegerArrayFromBytes(bytes, length, out);
  });
}

int32_t ASN1_TBSCertificateSetSignatureAlg(TBSCertificate* record, const Anybuf* value) {
  return SetSequence(record, &TBSCertificate::signature, value);
}

int32_t ASN1_TBSCertificateSetIssuer(TBSCertificate* record, const Anybuf* value) {
  return SetSequence(record, &TBSCertificate::issuer, value);
}

int32_t ASN1_TBSCertificateSetValidity(TBSCertificate* record, const Anybuf* value) {
  return SetSequence(record, &TBSCertificate::validity, value);
}

int32_t ASN1_TBSCertificateSetSubject(TBSCertificate* record, const Anybuf* value) {
  return SetSequence(record, &TBSCertificate::subject, value);
}

int32_t ASN1_TBSCertificateSetSubjectPublicKeyInfo(TBSCertificate* record, const Anybuf* value) {
  return SetSequence(record, &TBSCertificate::subjectPublicKeyInfo, value);
}

int32_t ASN1_TBSCertificateSetIssuerUniqueID(TBSCertificate* record, const Anybuf* value) {
  return SetUniqueId(record, &TBSCertificate::issuerUniqueID, &TBSCertificate::hasIssuerUniqueID,
                     value, kIssuerUniqueIdTag);
}

int32_t ASN1_TBSCertificateSetSubjectUniqueID(TBSCertificate* record, const Anybuf* value) {
  return SetUniqueId(record, &TBSCertificate::subjectUniqueID, &TBSCertificate::hasSubjectUniqueID,
                     value, kSubjectUniqueIdTag);
}

int32_t ASN1_TBSCertificateSetExtensions(TBSCertificate* record, const Anybuf* value) {
  return SetOptional(record, &TBSCertificate::extensions, &TBSCertificate::hasExtensions, value,
                     [](const Anybuf& node, Anybuf** out) {
                       return ASN1_WriteExplicit(&node, kExtensionsTag, out);
                     });
}

int32_t ASN1_TBSCertificateWriteData(const TBSCertificate* record, Anybuf** out) {
  if (record == nullptr || out == nullptr) return VELKORD_NULL_ARGUMENT;
  return JoinFields({record->versionNode, record->serialNumber, record->signature, record->issuer,
                     record->validity, record->subject, record->subjectPublicKeyInfo,
                     OptionalField(record->hasIssuerUniqueID, record->issuerUniqueID),
                     OptionalField(record->hasSubjectUniqueID, record->subjectUniqueID),
                     OptionalField(record->hasExtensions, record->extensions)},
                    out);
}

int32_t ASN1_TBSCertificateDecode(const Anybuf* source, TBSCertificate** out) {
  if (source == nullptr || out == nullptr) return VELKORD_NULL_ARGUMENT;
  DerElements elements;
  VELKORD_TRY(elements.OpenUnchecked(NodeBytes(*source), kSequenceType));
  const int32_t code = MakeRecord<ASN1_FreeTBSCertificate>(
      out, [&](TBSCertificate& record) { return Fill(record, elements); });
  // A child that does not fit goes before all else, a lack of memory too. Success has read them all.
  return elements.Finish(code);
}
