// Bytes through all decoders of records; what is decoded written and decoded again; and the setters
// with the input as their node.
#include <cstring>

#include "reading.h"

namespace {

template <typename Record>
using Setter = int32_t (*)(Record*, const Anybuf*);

template <typename Record>
struct RecordKind {
  int32_t (*create)(Record**);
  int32_t (*decode)(const uint8_t*, uint32_t, Record**);
  int32_t (*write)(const Record*, Anybuf**);
  void (*release)(Record*);
  std::initializer_list<Setter<Record>> setters;
  // Makes of a decoded record one that is written as it was read.
  void (*restore)(Record*) = [](Record*) {};
};

// A refusal leaves a record as it was; a field that is set can be set again.
template <typename Record>
void Set(const RecordKind<Record>& kind, const Anybuf& value) {
  Record* record = nullptr;
  REQUIRE(kind.create(&record) == 0);
  for (const Setter<Record> set : kind.setters) {
    const Record before = *record;
    const int32_t code = set(record, &value);
    REQUIRE(code == 0 || std::memcmp(record, &before, sizeof before) == 0);
    REQUIRE(set(record, &value) == code);
  }
  kind.release(record);
}

// The bytes of a decoded record written again; null when it cannot be decoded, or lacks a field.
template <typename Record>
NodePtr Rewrite(const RecordKind<Record>& kind, std::span<const uint8_t> bytes) {
  Record untouched{};
  Record* record = &untouched;
  if (kind.decode(bytes.data(), static_cast<uint32_t>(bytes.size()), &record) != 0) {
    REQUIRE(record == &untouched);
    return nullptr;
  }
  kind.restore(record);
  NodePtr written = Made(kind.write, record);
  kind.release(record);
  return written;
}

template <typename Record>
void Check(const RecordKind<Record>& kind, std::span<const uint8_t> bytes, const Anybuf& node) {
  Set(kind, node);
  const NodePtr once = Rewrite(kind, bytes);
  if (once == nullptr) return;
  const NodePtr twice = Rewrite(kind, View(*once));
  REQUIRE(twice != nullptr && Same(View(*once), View(*twice)));
}

int32_t DecodeTbsCertificate(const uint8_t* bytes, uint32_t length, TBSCertificate** out) {
  return ASN1_TBSCertificateDecode(MakeNode({bytes, length}).get(), out);
}

// Of a tag of several octets the first alone is written, and what follows it then reads otherwise.
bool HasLongTag(const Anybuf& node) { return (node.data[0] & 0x1F) == 0x1F; }

// The version may have any tag; the extensions stand in a SEQUENCE for their `[3]`; a unique
// identifier gains an octet with each pass.
void RestoreTbsCertificate(TBSCertificate* record) {
  if (HasLongTag(*record->versionNode)) REQUIRE(ASN1_TBSCertificateSetVersion(record, 2) == 0);
  record->hasIssuerUniqueID = 0;
  record->hasSubjectUniqueID = 0;
  if (record->hasExtensions == 0) return;
  const NodePtr list = Made(ASN1_ReadOctetString, record->extensions);
  REQUIRE(ASN1_TBSCertificateSetExtensions(record, list.get()) == 0);
}

// Attributes of a primitive tag are written under a constructed one, whatever they hold.
void RestoreRequestInfo(PKCS10* record) {
  if (record->attributes == nullptr) return;
  Anybuf* attributes = nullptr;
  uint32_t tag = 0;
  if (HasLongTag(*record->attributes) ||
      ASN1_ReadImplicit(record->attributes, &attributes, &tag) != 0) {
    ASN1_FreeAnybuf(std::exchange(record->attributes, nullptr));
  }
  ASN1_FreeAnybuf(attributes);
}

// A decoded content has lost its tag.
void RestoreMessage(PKCS7Context* record) {
  if (record->content == nullptr) return;
  REQUIRE(ASN1_PKCS7_SetContent(record, record->content) == 0);
}

const RecordKind<TBSCertificate> kTbsCertificate = {
    ASN1_CreateTBSCertificate,
    DecodeTbsCertificate,
    ASN1_TBSCertificateWriteData,
    ASN1_FreeTBSCertificate,
    {ASN1_TBSCertificateSetSignatureAlg, ASN1_TBSCertificateSetIssuer,
     ASN1_TBSCertificateSetValidity, ASN1_TBSCertificateSetSubject,
     ASN1_TBSCertificateSetSubjectPublicKeyInfo, ASN1_TBSCertificateSetIssuerUniqueID,
     ASN1_TBSCertificateSetSubjectUniqueID, ASN1_TBSCertificateSetExtensions},
    RestoreTbsCertificate};
const RecordKind<Certificate> kCertificate = {
    ASN1_CreateCertificate,
    ASN1_CertificateDecode,
    ASN1_CertificateWriteData,
    ASN1_FreeCertificate,
    {ASN1_CertificateSetTbsCertificate, ASN1_CertificateSetSignatureAlgorithm,
     ASN1_CertificateSetSignatureValue}};
const RecordKind<RevokedCertificate> kRevokedCertificate = {
    ASN1_CRL_CreateRevokedCertificate,
    ASN1_CRL_RevokedCertificateDecode,
    ASN1_CRL_RevokedCertificateWriteData,
    ASN1_CRL_FreeRevokedCertificate,
    {ASN1_CRL_SetRevokedCertificateCertificateSerialNumber,
     ASN1_CRL_SetRevokedCertificateRevocationDate,
     ASN1_CRL_SetRevokedCertificateCrlEntryExtensions}};
const RecordKind<TbsCertList> kTbsCertList = {
    ASN1_CRL_CreateTbsCertList,
    ASN1_CRL_TbsCertListDecode,
    ASN1_CRL_TbsCertListWriteData,
    ASN1_CRL_FreeTbsCertList,
    {ASN1_CRL_TbsCertListSetSignatureAlgorithmIdentifier, ASN1_CRL_TbsCertListSetIssuer,
     ASN1_CRL_TbsCertListSetRevokedCertificates, ASN1_CRL_TbsCertListSetCrlExtensions}};
const RecordKind<CertificateList> kCertificateList = {
    ASN1_CRL_CreateCertificateList,
    ASN1_CRL_CertificateListDecode,
    ASN1_CRL_CertificateListWriteData,
    ASN1_CRL_FreeCertificateList,
    {ASN1_CRL_SetCertificateListTBSCertList, ASN1_CRL_SetCertificateListAlgorithmIdentifier,
     ASN1_CRL_SetCertificateListSignatureValue}};
const RecordKind<PKCS10> kPkcs10 = {
    ASN1_CreatePKCS10,
    ASN1_PKCS10Decode,
    ASN1_PKCS10WriteData,
    ASN1_FreePKCS10,
    {ASN1_PKCS10SetSubject, ASN1_PKCS10SetSubjectPublicKeyInfo, ASN1_PKCS10SetAttributes},
    RestoreRequestInfo};
const RecordKind<PKCS10Request> kPkcs10Request = {
    ASN1_CreatePKCS10Request,
    ASN1_PKCS10RequestDecode,
    ASN1_PKCS10RequestWriteData,
    ASN1_FreePKCS10Request,
    {ASN1_PKCS10RequestSetCertificationRequestInfo, ASN1_PKCS10RequestSetAlgorithmIdentifier,
     ASN1_PKCS10RequestSetSignature}};
const RecordKind<ExtendedCertificateInfo> kExtendedCertificateInfo = {
    ASN1_PKCS6_CreateExtendedCertificateInfo,
    ASN1_PKCS6_CertificateInfoDecode,
    ASN1_PKCS6_CertificateInfoWriteData,
    ASN1_PKCS6_FreeExtendedCertificateInfo,
    {ASN1_PKCS6_SetCertificateInfoX509, ASN1_PKCS6_SetCertificateInfoAttributes}};
const RecordKind<ExtendedCertificate> kExtendedCertificate = {
    ASN1_PKCS6_CreateExtendedCertificate,
    ASN1_PKCS6_CertificateDecode,
    ASN1_PKCS6_CertificateWriteData,
    ASN1_PKCS6_FreeExtendedCertificate,
    {ASN1_PKCS6_SetCertificateCertificateInfo,
     ASN1_PKCS6_SetCertificateSignatureAlgorithmIdentifier, ASN1_PKCS6_SetCertificateSignature}};
const RecordKind<PKCS7Context> kPkcs7Context = {ASN1_PKCS7_CreateContext,
                                                ASN1_PKCS7_Decode,
                                                ASN1_PKCS7_WriteData,
                                                ASN1_PKCS7_FreeContext,
                                                {ASN1_PKCS7_SetContentType, ASN1_PKCS7_SetContent},
                                                RestoreMessage};

// A certificate inspected, and the input itself as its subject and as its extensions.
void Inspect(const Anybuf& node) {
  X509Cert* record = X509CertCreate(nullptr);
  REQUIRE(record != nullptr);
  if (ASN1_TBSCertificateDecode(&node, &record->tbs) != 0) {
    REQUIRE(record->tbs == nullptr && ASN1_CreateTBSCertificate(&record->tbs) == 0);
    record->tbs->subject = MakeNode(View(node)).release();
    record->tbs->extensions = MakeNode(View(node)).release();
  }
  for (int pass = 0; pass < 2; ++pass) REQUIRE(X509CertGetSubject(record) == 0);
  for (const CertEntry* entry = record->subjectEntries; entry != nullptr; entry = entry->next) {
    REQUIRE(entry->oid != nullptr && (entry->value != nullptr || entry->valueLen == 0));
  }
  constexpr char kOid[] = "2.5.29.17";
  Buffer value(record->tbs->extensions == nullptr ? 0 : record->tbs->extensions->dataLen);
  const int32_t code =
      X509CertGetOIDValue(record, kOid, sizeof kOid - 1, value.bytes.get(), &value.size);
  REQUIRE(code == (record->tbs->extensions == nullptr ? -1 : 0));
  REQUIRE(value.size == kNoSize || value.size <= value.room);
  REQUIRE(value.IsUntouched(value.size == kNoSize ? 0 : value.size));
  X509CertFree(record);
}

}  // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::span bytes(data, size);
  const NodePtr node = MakeNode(bytes);
  Inspect(*node);
  Check(kTbsCertificate, bytes, *node);
  Check(kCertificate, bytes, *node);
  Check(kRevokedCertificate, bytes, *node);
  Check(kTbsCertList, bytes, *node);
  Check(kCertificateList, bytes, *node);
  Check(kPkcs10, bytes, *node);
  Check(kPkcs10Request, bytes, *node);
  Check(kExtendedCertificateInfo, bytes, *node);
  Check(kExtendedCertificate, bytes, *node);
  Check(kPkcs7Context, bytes, *node);
  REQUIRE(Same(View(*node), bytes));
  return 0;
}
