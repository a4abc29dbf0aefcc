// Who owns what: nodes read in place, chains taken apart, and what an inspection record holds.
#include <cstdlib>

#include "hex.h"

namespace {

TEST(Nodes, MayBeReadInPlaceAndKeepTheirNeighbours) {
  const NodePtr text = ToNode("04 05 \"ABCDE\"");
  uint32_t size = 0;
  EXPECT_EQ(ASN1_ReadOctetStringToBytes(text.get(), text->data, &size), 0);
  EXPECT_EQ(ToHex(text->data, size), "41 42 43 44 45");

  Anybuf* oid = ToNode("06 01 2A | 30 00").release();
  const NodePtr parameter(oid->next);
  EXPECT_EQ(Made(ASN1_SetAlgorithmIdentifier, 0U, oid, nullptr, parameter.get()),
            "16: 30 05 06 01 2A 30 00");
  EXPECT_EQ(ToHex(parameter->data, parameter->dataLen), "30 00");
}

// A size beyond 32 bits is refused before a byte is read or written.
TEST(Sizes, BeyondTheirWidthAreRefused) {
  uint8_t byte = 0;
  uint32_t size = 7;
  const Anybuf huge = {&byte, 0xFFFFFFFF, 0, 2, 4, nullptr, nullptr};
  EXPECT_EQ(Made(ASN1_WriteSequence, &huge), "-1");
  EXPECT_EQ(ASN1_SM2_SM2SignatureEncode(&byte, 0xFFFFFFFF, &byte, 1, &byte, &size), 0);
  EXPECT_EQ(ASN1_SM2_PrikeyEncode(&byte, 0xFFFFFFFF, &byte, &size), 0);
  EXPECT_EQ(ASN1_SM2_PubkeyEncode(&byte, 0xFFFFFFFF, &byte, 1, &byte, &size), 0);
  EXPECT_EQ(size, 7U);
  ZantPublicKey publicKey = {{7}, {8}};
  ZantPrivateKey privateKey = {{7}, {}, {}, {}, {}, {}, {}, {8}};
  for (const int32_t none : {INT32_MIN, 0}) {
    EXPECT_EQ(ZantDecodePublicKey(&publicKey, &byte, none), -1);
    EXPECT_EQ(ZantDecodePrivateKey(&privateKey, &byte, none), -1);
  }
  EXPECT_EQ(publicKey.modulus[0] + publicKey.publicExponent[0], 15);
  EXPECT_EQ(privateKey.modulus[0] + privateKey.coefficient[0], 15);
}

TEST(Records, KeepTheVersionThatTheyWereGiven) {
  TBSCertificate* record = nullptr;
  EXPECT_EQ(ASN1_CreateTBSCertificate(&record), 0);
  EXPECT_EQ(ASN1_TBSCertificateSetVersion(record, 2), 0);
  EXPECT_EQ(record->version, 2U);
  ASN1_FreeTBSCertificate(record);
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
  ASN1_FreeObjectID(nullptr);
}

}  // namespace
