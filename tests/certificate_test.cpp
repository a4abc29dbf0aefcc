// Certificates: records set, written and decoded, and the inspection of decoded ones.
#include <cstdlib>

#include "sample.h"

namespace {

std::string Written(const TbsPtr& record) {
  return Made([&](Anybuf** out) { return ASN1_TBSCertificateWriteData(record.get(), out); });
}

TbsPtr BuildRecord() {
  TBSCertificate* out = nullptr;
  EXPECT_EQ(ASN1_CreateTBSCertificate(&out), 0);
  TbsPtr record(out);
  const uint8_t serial[] = {1};
  const NodePtr bits = ToNode("3: 03 03 00 AB CD");
  EXPECT_EQ(ASN1_TBSCertificateSetVersion(out, 2), 0);
  EXPECT_EQ(ASN1_TBSCertificateSetSerialNumber(out, serial, 1), 0);
  EXPECT_EQ(ASN1_TBSCertificateSetSignatureAlg(out, ToNode(kAlgorithm).get()), 0);
  EXPECT_EQ(ASN1_TBSCertificateSetIssuer(out, ToNode(kName).get()), 0);
  EXPECT_EQ(ASN1_TBSCertificateSetValidity(out, ToNode(kValidity).get()), 0);
  EXPECT_EQ(ASN1_TBSCertificateSetSubject(out, ToNode(kName).get()), 0);
  EXPECT_EQ(ASN1_TBSCertificateSetSubjectPublicKeyInfo(out, ToNode(kKeyInfo).get()), 0);
  EXPECT_EQ(ASN1_TBSCertificateSetIssuerUniqueID(out, bits.get()), 0);
  EXPECT_EQ(ASN1_TBSCertificateSetExtensions(out, ToNode(kExtensions).get()), 0);
  return record;
}

TEST(TbsCertificate, IsBuiltFieldByField) {
  const TbsPtr record = BuildRecord();
  const std::string whole = Describe(
      Sequence(SampleElements() + " 81 03 00 AB CD A3 10 " + std::string(kExtensions)).get());
  EXPECT_EQ(whole.substr(0, 14), "16: 30 81 8D A");
  EXPECT_EQ(Written(record), whole);
  EXPECT_EQ(Written(record), whole);
  EXPECT_EQ(record->version, 2U);

  // Setting a field again replaces it; a setter that fails changes nothing.
  EXPECT_EQ(ASN1_TBSCertificateSetIssuer(record.get(), ToNode("31 00").get()), -7);
  EXPECT_EQ(ASN1_TBSCertificateSetIssuer(record.get(), ToNode("30 03 02 01 05 00").get()), -2);
  EXPECT_EQ(ASN1_TBSCertificateSetSubject(record.get(), ToNode("30 02 02 01").get()), -1);
  EXPECT_EQ(ASN1_TBSCertificateSetSubjectUniqueID(record.get(), ToNode("03 03 00").get()), -2);
  EXPECT_EQ(ASN1_TBSCertificateSetSerialNumber(record.get(), nullptr, 1), -8);
  EXPECT_EQ(ASN1_TBSCertificateSetExtensions(record.get(), nullptr), -8);
  EXPECT_EQ(Written(record), whole);
  const uint8_t serial[] = {0x80};
  EXPECT_EQ(ASN1_TBSCertificateSetIssuer(record.get(), ToNode("30 81 00").get()), 0);
  EXPECT_EQ(ASN1_TBSCertificateSetVersion(record.get(), 128), 0);
  EXPECT_EQ(ASN1_TBSCertificateSetSerialNumber(record.get(), serial, 1), 0);
  EXPECT_EQ(ASN1_TBSCertificateSetSubjectUniqueID(record.get(), ToNode("03 02 04 F0").get()), 0);
  EXPECT_EQ(Describe(record->issuer), "16: 30 00");
  EXPECT_EQ(Describe(record->versionNode), "160: A0 04 02 02 00 80");
  EXPECT_EQ(Describe(record->serialNumber), "2: 02 02 00 80");
  EXPECT_EQ(Describe(record->subjectUniqueID), "130: 82 02 04 F0");
  EXPECT_EQ(record->hasSubjectUniqueID, 1U);
  // An optional field is written when its flag is exactly 1.
  record->hasIssuerUniqueID = 2;
  EXPECT_EQ(Written(record).find("81 03 00 AB CD"), std::string::npos);
  ASN1_FreeAnybuf(record->validity);
  record->validity = nullptr;
  EXPECT_EQ(Written(record), "-8");
}

TEST(Certificate, IsBuiltAndDecoded) {
  Certificate* out = nullptr;
  ASSERT_EQ(ASN1_CreateCertificate(&out), 0);
  const CertificatePtr record(out);
  const auto write = [&] {
    return Made([&](Anybuf** node) { return ASN1_CertificateWriteData(out, node); });
  };
  EXPECT_EQ(write(), "-8");
  const NodePtr tbs = Sequence(SampleElements());
  EXPECT_EQ(ASN1_CertificateSetTbsCertificate(out, tbs.get()), 0);
  EXPECT_EQ(ASN1_CertificateSetSignatureAlgorithm(out, ToNode(kAlgorithm).get()), 0);
  EXPECT_EQ(ASN1_CertificateSetSignatureValue(out, ToNode("04 00 05").get()), 0);
  EXPECT_EQ(ASN1_CertificateSetSignatureValue(out, ToNode("03 03 04 11 20").get()), 0);
  EXPECT_EQ(Describe(out->signatureValue), "3/4: 03 03 04 11 20");
  EXPECT_EQ(ASN1_CertificateSetTbsCertificate(out, ToNode("31 00").get()), -7);
  EXPECT_EQ(ASN1_CertificateSetSignatureAlgorithm(out, ToNode("30 00 00").get()), -2);
  EXPECT_EQ(ASN1_CertificateSetSignatureValue(out, ToNode("03 00").get()), -2);
  const std::string whole = write();
  EXPECT_EQ(write(), whole);

  // The lists and requests of the same shape are written by the same code.
  CertificateList list{};
  EXPECT_EQ(ASN1_CRL_SetCertificateListTBSCertList(&list, tbs.get()), 0);
  EXPECT_EQ(ASN1_CRL_SetCertificateListAlgorithmIdentifier(&list, ToNode(kAlgorithm).get()), 0);
  EXPECT_EQ(ASN1_CRL_SetCertificateListSignatureValue(&list, ToNode("03 03 04 11 20").get()), 0);
  EXPECT_EQ(Made([&](Anybuf** node) { return ASN1_CRL_CertificateListWriteData(&list, node); }),
            whole);
  const PKCS10Request request = {list.tbsCertList, list.signatureAlgorithm, list.signatureValue};
  EXPECT_EQ(Made([&](Anybuf** node) { return ASN1_PKCS10RequestWriteData(&request, node); }),
            whole);
  for (Anybuf* node : {list.tbsCertList, list.signatureAlgorithm, list.signatureValue}) {
    ASN1_FreeAnybuf(node);
  }

  const ByteVector der = FromHex(whole.substr(4));
  Certificate* decoded = nullptr;
  ASSERT_EQ(ASN1_CertificateDecode(der.data(), Size(der), &decoded), 0);
  const CertificatePtr owned(decoded);
  EXPECT_EQ(Describe(decoded->tbsCertificate), Describe(tbs.get()));
  EXPECT_EQ(Describe(decoded->signatureAlgorithm), "16: " + std::string(kAlgorithm));
  EXPECT_EQ(Describe(decoded->signatureValue), "3: 03 03 00 11 20");
}

TEST(Records, RefuseNullArgumentsAndKeepTheirState) {
  TBSCertificate record{};
  Certificate certificate{};
  Anybuf* out = nullptr;
  TBSCertificate* decoded = nullptr;
  EXPECT_EQ(ASN1_TBSCertificateSetExtensions(&record, nullptr), -8);
  EXPECT_EQ(record.hasExtensions, 0U);
  EXPECT_EQ(ASN1_TBSCertificateWriteData(&record, nullptr), -8);
  EXPECT_EQ(ASN1_TBSCertificateWriteData(nullptr, &out), -8);
  EXPECT_EQ(ASN1_TBSCertificateDecode(nullptr, &decoded), -8);
  EXPECT_EQ(ASN1_CertificateWriteData(nullptr, &out), -8);
  EXPECT_EQ(ASN1_CertificateSetSignatureValue(&certificate, nullptr), -8);
  EXPECT_EQ(ASN1_CreateTBSCertificate(nullptr), -8);
  EXPECT_EQ(ASN1_CertificateDecode(nullptr, 5, nullptr), -8);
}

TEST(Nodes, MayBeReadInPlaceAndKeepTheirNeighbours) {
  const NodePtr text = ToNode("04 05 \"ABCDE\"");
  uint32_t size = 0;
  EXPECT_EQ(ASN1_ReadOctetStringToBytes(text.get(), text->data, &size), 0);
  EXPECT_EQ(ToHex(text->data, size), "41 42 43 44 45");

  Anybuf* oid = ToNode("06 01 2A | 30 00").release();
  const NodePtr parameter(oid->next);
  EXPECT_EQ(Made([&](Anybuf** out) {
              return ASN1_SetAlgorithmIdentifier(0, oid, nullptr, parameter.get(), out);
            }),
            "16: 30 05 06 01 2A 30 00");
  EXPECT_EQ(ToHex(parameter->data, parameter->dataLen), "30 00");
  // A size beyond 32 bits is refused before a byte is read.
  uint8_t byte = 0;
  const Anybuf huge = {&byte, 0xFFFFFFFF, 0, 2, 4, nullptr, nullptr};
  EXPECT_EQ(Made([&](Anybuf** out) { return ASN1_WriteSequence(&huge, out); }), "-1");
}

TEST(Inspection, RecordOwnsWhatItsFieldsHold) {
  X509Cert* record = nullptr;
  EXPECT_EQ(X509CertCreate(&record), record);
  for (uint8_t** block :
       {&record->block1, &record->block2, &record->block3, &record->block4, &record->block5}) {
    *block = static_cast<uint8_t*>(std::malloc(1));
  }
  record->entriesA = static_cast<CertEntry*>(std::calloc(1, sizeof(CertEntry)));
  record->entriesA->next = static_cast<CertEntry*>(std::calloc(1, sizeof(CertEntry)));
  record->entriesA->next->oid = static_cast<uint8_t*>(std::malloc(1));
  record->entriesB = static_cast<CertWideEntry*>(std::calloc(1, sizeof(CertWideEntry)));
  record->entriesB->block3 = static_cast<uint8_t*>(std::malloc(1));
  record->entriesB->next = static_cast<CertWideEntry*>(std::calloc(1, sizeof(CertWideEntry)));
  record->entriesB->next->block1 = static_cast<uint8_t*>(std::malloc(1));
  X509CertFree(record);
  X509CertFree(nullptr);
}

}  // namespace
