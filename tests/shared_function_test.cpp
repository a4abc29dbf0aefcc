// Functions that carry several names: each is called by every name on every record that it serves,
// whoever made the record.
#include "hex.h"

namespace {

// A record by its pointers, in the order of its fields; a number in front counts as one.
using Fields = Anybuf**;
using Setter = std::function<int32_t(Fields, const Anybuf*)>;
using Writer = std::function<int32_t(Fields, Anybuf**)>;

struct Kind {
  std::function<Fields()> create;
  std::function<void(Fields)> release;
};

template <typename Made, typename Record>
Kind Make(int32_t (*create)(Made**), void (*release)(Record*)) {
  const auto make = [create] {
    Made* record = nullptr;
    DirtyHeap(sizeof *record);
    EXPECT_EQ(create(&record), 0);
    ExpectZeros(*record);
    return reinterpret_cast<Fields>(record);
  };
  return {make, [release](Fields fields) { release(reinterpret_cast<Record*>(fields)); }};
}

template <typename Record, typename Value>
auto Named(int32_t (*function)(Record*, Value*)) {
  return [function](Fields fields, Value* value) {
    return function(reinterpret_cast<Record*>(fields), value);
  };
}

const Kind kCertificate = Make(ASN1_CreateCertificate, ASN1_FreeCertificate);
const Kind kList = Make(ASN1_CRL_CreateCertificateList, ASN1_CRL_FreeCertificateList);
const Kind kRequestInfo = Make(ASN1_CreatePKCS10, ASN1_FreePKCS10);
const Kind kRequest = Make(ASN1_CreatePKCS10Request, ASN1_FreePKCS10Request);
const Kind kOtherRequest = Make(ASN1_PKCS6_CreateExtendedCertificateInfo, ASN1_FreePKCS10Request);
const Kind kInfo =
    Make(ASN1_PKCS6_CreateExtendedCertificateInfo, ASN1_PKCS6_FreeExtendedCertificateInfo);
const Kind kOtherInfo = Make(ASN1_CreatePKCS10Request, ASN1_PKCS6_FreeExtendedCertificateInfo);
const Kind kExtended =
    Make(ASN1_PKCS6_CreateExtendedCertificate, ASN1_PKCS6_FreeExtendedCertificate);

void ExpectSet(size_t field, const std::string& value, const std::vector<Setter>& setters,
               const std::vector<Kind>& kinds) {
  const NodePtr node = ToNode(value);
  for (const Kind& kind : kinds) {
    Fields record = kind.create();
    for (const Setter& set : setters) EXPECT_EQ(set(record, node.get()), 0);
    EXPECT_EQ(ToHex(record[field]->data, record[field]->dataLen), value);
    kind.release(record);
  }
}

TEST(SharedFunctions, SetTheFieldOfEveryRecord) {
  ExpectSet(
      0, "30 00",
      {Named(ASN1_CertificateSetTbsCertificate), Named(ASN1_CRL_SetCertificateListTBSCertList)},
      {kCertificate, kList});
  ExpectSet(1, "30 00",
            {Named(ASN1_CertificateSetSignatureAlgorithm),
             Named(ASN1_CRL_SetCertificateListAlgorithmIdentifier)},
            {kCertificate, kList});
  ExpectSet(1, "30 00",
            {Named(ASN1_PKCS10SetSubject), Named(ASN1_PKCS10RequestSetAlgorithmIdentifier)},
            {kRequestInfo, kRequest, kOtherRequest});
  ExpectSet(1, "30 00",
            {Named(ASN1_PKCS6_SetCertificateInfoX509),
             Named(ASN1_PKCS6_SetCertificateSignatureAlgorithmIdentifier)},
            {kInfo, kOtherInfo, kExtended});
  ExpectSet(
      2, "03 02 04 F0",
      {Named(ASN1_CertificateSetSignatureValue), Named(ASN1_CRL_SetCertificateListSignatureValue)},
      {kCertificate, kList});
  ExpectSet(2, "03 02 04 F0",
            {Named(ASN1_PKCS10RequestSetSignature), Named(ASN1_PKCS6_SetCertificateSignature)},
            {kRequest, kOtherRequest, kExtended});
}

TEST(SharedFunctions, WriteEveryRecord) {
  const std::vector<Writer> writers = {Named(ASN1_CertificateWriteData),
                                       Named(ASN1_CRL_CertificateListWriteData),
                                       Named(ASN1_PKCS10RequestWriteData)};
  for (const Kind& kind : {kCertificate, kList, kRequest, kOtherRequest}) {
    Fields record = kind.create();
    for (size_t field = 0; field < 3; ++field) record[field] = ToNode("30 00").release();
    for (const Writer& write : writers) {
      Anybuf* node = nullptr;
      EXPECT_EQ(write(record, &node), 0);
      EXPECT_EQ(Describe(NodePtr(node).get()), "16: 30 06 30 00 30 00 30 00");
    }
    kind.release(record);
  }
}

}  // namespace
