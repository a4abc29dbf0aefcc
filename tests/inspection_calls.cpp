// Calls of certificate inspection.
#include "calls.h"

InspectionPtr Inspect(NodePtr subject, NodePtr extensions) {
  DirtyHeap(sizeof(X509Cert));
  InspectionPtr record(X509CertCreate(nullptr));
  ExpectZeros(*record);
  EXPECT_EQ(ASN1_CreateTBSCertificate(&record->tbs), 0);
  record->tbs->subject = subject.release();
  record->tbs->extensions = extensions.release();
  return record;
}

namespace {

// The entries after a second call, which appends them all once more.
std::string ListSubject(const Arguments& in) {
  const auto record = Inspect(ToNode(in[0]), nullptr);
  EXPECT_EQ(X509CertGetSubject(nullptr), VELKORD_NULL_ARGUMENT);
  EXPECT_EQ(X509CertGetSubject(Inspect(nullptr, nullptr).get()), VELKORD_NULL_ARGUMENT);
  EXPECT_EQ(X509CertGetSubject(InspectionPtr(X509CertCreate(nullptr)).get()),
            VELKORD_NULL_ARGUMENT);
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
  EXPECT_EQ(X509CertGetOIDValue(nullptr, in[0].data(), 0, out.Data(), &out.size), -8);
  EXPECT_EQ(X509CertGetOIDValue(InspectionPtr(X509CertCreate(nullptr)).get(), in[0].data(), 0,
                                out.Data(), &out.size),
            -8);
  EXPECT_EQ(X509CertGetOIDValue(record.get(), nullptr, 1, out.Data(), &out.size),
            in[1] == "none" ? -1 : -8);
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

const Callers kInspectionCallers = {
    {"X509CertGetSubject", ListSubject},
    {"X509CertGetOIDValue", LookUp},
    {"X509CertGetOIDValue-items", LookUpItem},
};
