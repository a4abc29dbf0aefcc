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
  ZantPublicKey publicKey{};
  ZantPrivateKey privateKey{};
  EXPECT_EQ(ZantDecodePublicKey(&publicKey, &byte, INT32_MIN), -1);
  EXPECT_EQ(ZantDecodePrivateKey(&privateKey, &byte, INT32_MIN), -1);
}

// The functions that no case can call with a null pointer in each place.
TEST(Nulls, AreRefused) {
  const NodePtr node = ToNode("06 01 2A");
  Anybuf* source = node.get();
  Anybuf* made = nullptr;
  uint8_t* bytes = nullptr;
  uint8_t byte = 0;
  uint32_t number = 7;
  AttributeTypeAndValue* attribute = nullptr;
  std::vector<int32_t> codes = {
      Asn1LowIntToChar(1, nullptr, nullptr),
      Asn1LowIntToChar(1, &bytes, nullptr),
      ASN1_ReadObjectId(nullptr, nullptr),
      ASN1_ReadObjectId(source, nullptr),
      ASN1_WriteObjectId(nullptr, &made),
      ASN1_ReadImplicit(nullptr, &made, &number),
      ASN1_ReadImplicit(source, nullptr, &number),
      ASN1_ReadImplicit(source, &made, nullptr),
      ASN1_SetAttributeTypeAndValue(nullptr, source, &attribute),
      ASN1_SetAttributeTypeAndValue(source, nullptr, &attribute),
      ASN1_SetAttributeTypeAndValue(source, source, nullptr),
      ASN1_GetDerAttributeTypeAndValue(nullptr, &made),
      ASN1_SetAlgorithmIdentifier(1, nullptr, nullptr, nullptr, &made),
      ASN1_SetAlgorithmIdentifier(1, source, nullptr, nullptr, nullptr),
      ASN1_GetDerRelativeDistinguishedNameOne(source, 0, nullptr, 1, &made),
      X509CertGetSubject(nullptr),
      X509CertGetOIDValue(nullptr, "1", 1, &byte, &number)};
  X509Cert empty{};
  TBSCertificate tbs{};
  codes.push_back(X509CertGetSubject(&empty));
  codes.push_back(X509CertGetOIDValue(&empty, "1", 1, &byte, &number));
  empty.tbs = &tbs;
  codes.push_back(X509CertGetSubject(&empty));
  tbs.extensions = source;
  codes.push_back(X509CertGetOIDValue(&empty, nullptr, 1, &byte, &number));
  EXPECT_EQ(codes, std::vector<int32_t>(codes.size(), VELKORD_NULL_ARGUMENT));
  EXPECT_EQ(ASN1_OBJECT_a2d(nullptr, &number, "1.2", 3), 0);
  EXPECT_EQ(ASN1_OBJECT_a2d(&byte, nullptr, "1.2", 3), 0);
  EXPECT_EQ(ASN1_OBJECT_a2d(&byte, &number, nullptr, 3), 0);
  EXPECT_TRUE(made == nullptr && bytes == nullptr && attribute == nullptr && number == 7);
  ASN1_FreeObjectID(nullptr);
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
