// The signed part of a certificate: made field by field, written and decoded.
#include <array>

#include "der/integer.h"
#include "der/tagging.h"
#include "x509/record.h"

using namespace velkord::internal;

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

// The optional elements by their tag numbers, empty where there is none. Number 0 is for those of
// any other tag, which are not used.
constexpr size_t kTagNumbers = kExtensionsTag + 1;
using Optionals = std::array<DerElement, kTagNumbers>;

// UniqueIdentifier ::= BIT STRING
// Its bits; unlike the standard's, a constructed element's are its first inner element.
int32_t OpenUniqueId(const DerElement& element, Bytes& bits) {
  if (!IsImplicitConstructed(element.tag)) return DerOpenImplicit(element, bits);
  VELKORD_TRY(DerCheckChildren(element.Content()));
  DerElement first;
  VELKORD_TRY(DerOpenElement(element.Content(), first));
  bits = first.whole;
  return VELKORD_OK;
}

// Reads the next element. The low five bits of its first octet decide which it is; of two with one
// number the last counts, but each must open.
int32_t NextOptional(DerElements& elements, Optionals& optionals) {
  const uint32_t number = elements.NextOctet() & kTagNumberMask;
  DerElement& element = optionals[number < kTagNumbers ? number : 0];
  VELKORD_TRY(elements.Next(element));
  Bytes content;
  switch (number) {
    case kIssuerUniqueIdTag:
    case kSubjectUniqueIdTag:
      return OpenUniqueId(element, content);
    case kExtensionsTag:
      return DerOpenContent(element, content);
    default:
      return VELKORD_OK;
  }
}

// Sets a unique identifier with the unused bits that its last byte implies.
int32_t FillUniqueId(uint32_t tagNumber, const DerElement& element, Anybuf*& field,
                     uint32_t& flag) {
  if (element.whole.empty()) return VELKORD_OK;
  Bytes bits;
  VELKORD_TRY(OpenUniqueId(element, bits));
  const auto unusedBits = static_cast<uint8_t>(ImpliedUnusedBits(bits));
  const auto tag = static_cast<uint8_t>(kContextPrimitive | tagNumber);
  VELKORD_TRY(DerJoin(tag, {{&unusedBits, 1}, bits}, &field));
  flag = 1;
  return VELKORD_OK;
}

int32_t FillOptionals(const Optionals& optionals, TBSCertificate& record) {
  VELKORD_TRY(FillUniqueId(kIssuerUniqueIdTag, optionals[kIssuerUniqueIdTag], record.issuerUniqueID,
                           record.hasIssuerUniqueID));
  VELKORD_TRY(FillUniqueId(kSubjectUniqueIdTag, optionals[kSubjectUniqueIdTag],
                           record.subjectUniqueID, record.hasSubjectUniqueID));
  const DerElement& extensions = optionals[kExtensionsTag];
  if (extensions.whole.empty()) return VELKORD_OK;
  VELKORD_TRY(DerRewrite(kSequence, extensions, &record.extensions));
  record.hasExtensions = 1;
  return VELKORD_OK;
}

// TBSCertificate ::= SEQUENCE {
//   version               [0] EXPLICIT Version DEFAULT v1,
//   serialNumber          INTEGER,
//   signature             AlgorithmIdentifier,
//   issuer                Name,
//   validity              Validity,
//   subject               Name,
//   subjectPublicKeyInfo  SubjectPublicKeyInfo,
//   issuerUniqueID        [1] IMPLICIT UniqueIdentifier OPTIONAL,
//   subjectUniqueID       [2] IMPLICIT UniqueIdentifier OPTIONAL,
//   extensions            [3] EXPLICIT Extensions OPTIONAL }
// Unlike the standard's, the version is required, the optional elements may come in any order and
// form, those of other numbers are skipped, and the extensions come back under SEQUENCE, not [3].
int32_t Fill(TBSCertificate& record, DerElements& elements) {
  DerElement element;
  // The first element is the version whatever its tag, and comes back with the bits of [n] EXPLICIT
  // set in that.
  VELKORD_TRY(elements.Next(element));
  VELKORD_TRY(DerRewrite(ExplicitTag(element.tag), element, &record.versionNode));
  VELKORD_TRY(elements.Next(element));
  VELKORD_TRY(DerRewrite(kInteger, element, &record.serialNumber));
  for (const FieldPointer field :
       {&TBSCertificate::signature, &TBSCertificate::issuer, &TBSCertificate::validity,
        &TBSCertificate::subject, &TBSCertificate::subjectPublicKeyInfo}) {
    VELKORD_TRY(DerRewrapNext(elements, &(record.*field)));
  }
  Optionals optionals;
  while (!elements.AtEnd()) VELKORD_TRY(NextOptional(elements, optionals));
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
  if (record == nullptr) return VELKORD_NULL_ARGUMENT;
  return JoinFields({record->versionNode, record->serialNumber, record->signature, record->issuer,
                     record->validity, record->subject, record->subjectPublicKeyInfo,
                     OptionalField(record->hasIssuerUniqueID, record->issuerUniqueID),
                     OptionalField(record->hasSubjectUniqueID, record->subjectUniqueID),
                     OptionalField(record->hasExtensions, record->extensions)},
                    out);
}

int32_t ASN1_TBSCertificateDecode(const Anybuf* source, TBSCertificate** out) {
  if (source == nullptr || out == nullptr) return VELKORD_NULL_ARGUMENT;
  Owned<TBSCertificate, ASN1_FreeTBSCertificate> record;
  const auto read = [&](DerElements& elements) -> int32_t {
    // The record is made here, so that malformed bytes are reported before a lack of memory.
    VELKORD_TRY(CreateRecord(record.Out()));
    return Fill(*record, elements);
  };
  VELKORD_TRY(DerElements::Read(NodeBytes(*source), kSequenceType, read));
  *out = record.release();
  return VELKORD_OK;
}
