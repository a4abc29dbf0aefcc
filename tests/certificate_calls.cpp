// Calls of certificate inspection, and of the decoder of what it looks into.
#include "calls.h"
#include "sample.h"

namespace {

// A SEQUENCE of a version and a serial number, five sample elements, and more elements.
std::string DecodeTbs(const Arguments& in) {
  const NodePtr source = Sequence(in[0] == "none" ? in[1] : SampleElements(in[0]) + " " + in[1]);
  TBSCertificate untouched{};
  TBSCertificate* record = &untouched;
  const int32_t code = ASN1_TBSCertificateDecode(source.get(), &record);
  EXPECT_EQ(code != 0, record == &untouched);
  if (code != 0) return std::to_string(code);
  EXPECT_EQ(record->version, 0U);
  EXPECT_EQ(Describe(record->subjectPublicKeyInfo), "16: " + std::string(kKeyInfo));
  EXPECT_EQ(record->hasIssuerUniqueID, record->issuerUniqueID != nullptr ? 1U : 0U);
  EXPECT_EQ(record->hasSubjectUniqueID, record->subjectUniqueID != nullptr ? 1U : 0U);
  EXPECT_EQ(record->hasExtensions, record->extensions != nullptr ? 1U : 0U);
  std::string text = Describe(record->versionNode) + " ; " + Describe(record->serialNumber);
  for (const Anybuf* node : {record->issuerUniqueID, record->subjectUniqueID, record->extensions}) {
    text += " ; " + Describe(node);
  }
  ASN1_FreeTBSCertificate(record);
  return text;
}

using InspectionPtr = std::unique_ptr<X509Cert, FreeWith<X509CertFree>>;

// An inspection record over a subject and extensions.
InspectionPtr Inspect(NodePtr subject, NodePtr extensions) {
  InspectionPtr record(X509CertCreate(nullptr));
  EXPECT_EQ(ASN1_CreateTBSCertificate(&record->tbs), 0);
  record->tbs->subject = subject.release();
  record->tbs->extensions = extensions.release();
  return record;
}

// The entries after a second call, which appends them all once more.
std::string ListSubject(const Arguments& in) {
  const auto record = Inspect(ToNode(in[0]), nullptr);
  EXPECT_EQ(X509CertGetSubject(record.get()), 0);
  EXPECT_EQ(X509CertGetSubject(record.get()), 0);
  std::string text;
  for (const CertEntry* entry = record->subjectEntries; entry; entry = entry->next) {
    text += ToHex(entry->oid, entry->oidLen) + " = ";
    text += entry->value == nullptr ? "null" : ToHex(entry->value, entry->valueLen);
    text += entry->next == nullptr ? "" : " ; ";
  }
  return text;
}

// An OID as text, and the content of an `extensions` field.
std::string LookUp(const Arguments& in) {
  const auto record = Inspect(nullptr, in[1] == "none" ? nullptr : Sequence(in[1]));
  Buffer out;
  const int32_t code = X509CertGetOIDValue(
      record.get(), in[0].data(), static_cast<int32_t>(in[0].size()), out.Data(), &out.size);
  EXPECT_TRUE(code == 0 || out.Text() == "kept");
  EXPECT_EQ(X509CertGetOIDValue(record.get(), in[0].data(), 0, nullptr, &out.size), -1);
  EXPECT_EQ(X509CertGetOIDValue(record.get(), in[0].data(), 0, out.Data(), nullptr), -1);
  return code == 0 ? out.Text() : std::to_string(code);
}

// The same for the items in the value of the extension 1.2.3.4, the second of two.
std::string LookUpItem(const Arguments& in) {
  const ByteVector oid = FromHex("2A 03 04");
  const NodePtr value = Sequence(in[0]);
  Anybuf* extension = nullptr;
  EXPECT_EQ(
      ASN1_GetExtensionOne(0, oid.data(), Size(oid), 1, value->data, value->dataLen, &extension),
      0);
  const NodePtr list = Sequence("30 00 " + Hex(NodePtr(extension)));
  EXPECT_EQ(LookUp({"1.2.3.5", Hex(list)}), "kept");
  return LookUp({"1.2.3.4", Hex(list)});
}

}  // namespace

const Callers kCertificateCallers = {
    {"ASN1_TBSCertificateDecode", DecodeTbs},
    {"X509CertGetSubject", ListSubject},
    {"X509CertGetOIDValue", LookUp},
    {"X509CertGetOIDValue-items", LookUpItem},
};
