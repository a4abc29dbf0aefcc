// Calls that add to a chain, or work on an inspection record.
#include <algorithm>

#include "calls.h"

InspectionPtr Inspect(NodePtr subject, NodePtr extensions) {
  DirtyHeap(sizeof(X509Cert));
  InspectionPtr record(X509CertCreate(nullptr));
  const std::span bytes(reinterpret_cast<const uint8_t*>(record.get()), sizeof(X509Cert));
  EXPECT_EQ(std::count(bytes.begin(), bytes.end(), 0), sizeof(X509Cert));
  EXPECT_EQ(ASN1_CreateTBSCertificate(&record->tbs), 0);
  record->tbs->subject = subject.release();
  record->tbs->extensions = extensions.release();
  return record;
}

// Appends an element twice. An appended node carries `memKind` over and has no `prev`.
std::string Append(const Function& function, const Arguments& in) {
  auto* add = reinterpret_cast<decltype(ASN1_AddSequence)*>(function.address);
  constexpr uint32_t kMemKind = 9;
  const NodePtr element = ToNode(in[0]);
  const NodePtr chain = ToNode(in[1]);
  if (element != nullptr) element->memKind = kMemKind;
  const std::string before = Describe(chain.get());
  const auto append = [&] {
    add(element.get(), chain.get());
    return 0;
  };
  CallLibrary(function, append, [&] { EXPECT_EQ(Describe(chain.get()), before); });
  append();
  for (Anybuf* last = chain.get(); last != nullptr && last->next != nullptr; last = last->next) {
    if (last->next->prev != nullptr) continue;
    EXPECT_EQ(last->next->memKind, kMemKind);
    last->next->memKind = 2;
    last->next->prev = last;
  }
  return Describe(chain.get());
}

std::string SubjectEntries(const X509Cert& record) {
  std::string text;
  for (const CertEntry* entry = record.subjectEntries; entry; entry = entry->next) {
    text += ToHex(entry->oid, entry->oidLen) + " = ";
    text += entry->value == nullptr ? "null" : ToHex(entry->value, entry->valueLen);
    text += entry->next == nullptr ? "" : " ; ";
  }
  return text;
}

// The entries after a second call, which appends them all once more.
std::string ListSubject(const Arguments& in) {
  const auto record = Inspect(ToNode(in[0]), nullptr);
  const InspectionPtr empty(X509CertCreate(nullptr));
  EXPECT_EQ(X509CertGetSubject(nullptr), VELKORD_NULL_ARGUMENT);
  EXPECT_EQ(X509CertGetSubject(empty.get()), VELKORD_NULL_ARGUMENT);
  EXPECT_EQ(X509CertGetSubject(Inspect(nullptr, nullptr).get()), VELKORD_NULL_ARGUMENT);
  EXPECT_EQ(X509CertGetSubject(record.get()), 0);
  EXPECT_EQ(X509CertGetSubject(record.get()), 0);
  return SubjectEntries(*record);
}

// An OID as text, and the content of an `extensions` field, or the field itself under [3].
std::string LookUp(const Arguments& in) {
  const Function& function = *FindFunction("X509CertGetOIDValue");
  const bool isField = in[1] == "none" || in[1].starts_with("A3 ");
  const auto record = Inspect(nullptr, isField ? ToNode(in[1]) : Sequence(in[1]));
  const InspectionPtr empty(X509CertCreate(nullptr));
  EXPECT_EQ(Call(function, {in[0]}, nullptr), "-8");
  EXPECT_EQ(X509CertGetOIDValue(empty.get(), "", 0, nullptr, nullptr), -8);
  return Call(function, {in[0]}, record.get());
}
