// Calls of certificate inspection, on a record over parts of a certificate.
#include "calls.h"
#include "invocation.h"

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
  EXPECT_EQ(X509CertGetSubject(InspectionPtr(X509CertCreate(nullptr)).get()),
            VELKORD_NULL_ARGUMENT);
  EXPECT_EQ(X509CertGetSubject(Inspect(nullptr, nullptr).get()), VELKORD_NULL_ARGUMENT);
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
  EXPECT_EQ(X509CertGetOIDValue(record.get(), nullptr, 1, out.Data(), &out.size),
            in[1] == "none" ? -1 : -8);
  const InspectionPtr empty(X509CertCreate(nullptr));
  EXPECT_EQ(X509CertGetOIDValue(empty.get(), "", 0, out.Data(), &out.size), -8);
  const Function& function = *FindFunction("X509CertGetOIDValue");
  EXPECT_EQ(Call(function, {in[0]}, nullptr), "-8");
  return Call(function, {in[0]}, record.get());
}

// The same for the items in the value of the extension 1.2.3.4, the second of two.
std::string LookUpItem(const Arguments& in) {
  const std::string value = Hex(Sequence(in[0]));
  const std::string extension = Call("ASN1_GetExtensionOne", {"0", "2A 03 04", "1", value});
  const std::string list = Hex(Sequence("30 00 " + extension));
  EXPECT_EQ(LookUp({"1.2.3.5", list}), "kept");
  return LookUp({"1.2.3.4", list});
}

}  // namespace

const Callers kInspectionCallers = {
    {"X509CertGetSubject", ListSubject},
    {"X509CertGetOIDValue", LookUp},
    {"X509CertGetOIDValue-items", LookUpItem},
};
