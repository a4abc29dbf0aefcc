// Bytes through all decoders of records, what is decoded written and decoded again, the setters
// with the input as their value, and certificate inspection.
#include "call.h"

namespace {

// Of a tag of several octets the first alone is written, and what follows it then reads otherwise.
bool HasLongTag(const Anybuf& node) { return (node.data[0] & 0x1F) == 0x1F; }

// The version may have any tag; the extensions stand in a SEQUENCE for their `[3]`; a unique
// identifier gains an octet with each pass.
void Restore(TBSCertificate& record) {
  if (HasLongTag(*record.versionNode)) {
    EXPECT_EQ(ASN1_TBSCertificateSetVersion(&record, 2), 0);
  }
  record.hasIssuerUniqueID = 0;
  record.hasSubjectUniqueID = 0;
  if (record.hasExtensions == 0) return;
  const NodePtr list = Make(ASN1_ReadOctetString, record.extensions);
  EXPECT_EQ(ASN1_TBSCertificateSetExtensions(&record, list.get()), 0);
}

// Attributes of a primitive tag are written under a constructed one, whatever they hold.
void Restore(PKCS10& record) {
  Anybuf* attributes = nullptr;
  uint32_t tag = 0;
  if (record.attributes != nullptr &&
      (HasLongTag(*record.attributes) ||
       ASN1_ReadImplicit(record.attributes, &attributes, &tag) != 0)) {
    ASN1_FreeAnybuf(std::exchange(record.attributes, nullptr));
  }
  ASN1_FreeAnybuf(attributes);
}

// A decoded content has lost its tag.
void Restore(PKCS7Context& record) {
  if (record.content != nullptr) {
    EXPECT_EQ(ASN1_PKCS7_SetContent(&record, record.content), 0);
  }
}

template <typename... Record>
bool AreRestored() {
  ((TypeOf<Record>().restore = [](void* record) { Restore(*static_cast<Record*>(record)); }), ...);
  return true;
}
const bool kAreRestored = AreRestored<TBSCertificate, PKCS10, PKCS7Context>();

// A field that is set can be set again.
void Set(const RecordType& type, ByteInputs& in) {
  void* record = nullptr;
  EXPECT_EQ(type.create(&record), 0);
  for (const Function* setter : type.setters) {
    const int32_t code = Invocation(*setter, in, record).Run();
    EXPECT_EQ(Invocation(*setter, in, record).Run(), code);
  }
  Invocation(*type.write, in, record).Run();
  type.release(record);
}

// The input as a certificate, or else as its subject and its extensions.
void Inspect(const ByteVector& in) {
  X509Cert* record = X509CertCreate(nullptr);
  if (ASN1_TBSCertificateDecode(MakeNode(in).get(), &record->tbs) != 0) {
    EXPECT_EQ(ASN1_CreateTBSCertificate(&record->tbs), 0);
    record->tbs->subject = MakeNode(in).release();
    record->tbs->extensions = MakeNode(in).release();
  }
  for (int pass = 0; pass < 2; ++pass) EXPECT_EQ(X509CertGetSubject(record), 0);
  for (const CertEntry* entry = record->subjectEntries; entry != nullptr; entry = entry->next) {
    EXPECT_TRUE(entry->oid != nullptr && (entry->value != nullptr || entry->valueLen == 0));
  }
  const Anybuf* extensions = record->tbs->extensions;
  const Values oid{FromHex("\"2.5.29.17\""), ByteVector(extensions ? extensions->dataLen : 0), {}};
  ByteInputs inputs(oid);
  EXPECT_EQ(Invocation(*FindFunction("X509CertGetOIDValue"), inputs, record).Run(),
            extensions ? 0 : -1);
  X509CertFree(record);
}

}  // namespace

void TestInput(const Values& values) {
  Inspect(values[0]);
  ByteInputs in(values);
  for (const Function& function : Functions()) {
    if (function.name.ends_with("Decode") && function.parameters.back() == "out") {
      const Values once = Call(function, in);
      if (once.empty() || once[0].empty()) continue;
      ByteInputs again(once);
      EXPECT_EQ(Call(function, again), once);
    } else if (function.subject && function.subject->write == &function &&
               function.subject->create) {
      Set(*function.subject, in);
    }
  }
}
