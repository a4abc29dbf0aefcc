// Who owns what where a line of the cases cannot show it.
#include "hex.h"

namespace {

TEST(Nodes, KeepTheirNeighbours) {
  Anybuf* oid = ToNode("06 01 2A | 30 00").release();
  const NodePtr parameter(oid->next);
  EXPECT_EQ(Made(ASN1_SetAlgorithmIdentifier, 0U, oid, nullptr, parameter.get()),
            "30 05 06 01 2A 30 00");
  EXPECT_EQ(Hex(parameter), "30 00");
}

// What is a number and unused bytes of one type is a node of the other.
TEST(Records, MayBeUsedAsTheTypeThatSharesTheirFunctions) {
  ExtendedCertificateInfo* made = nullptr;
  DirtyHeap(sizeof *made);
  EXPECT_EQ(ASN1_PKCS6_CreateExtendedCertificateInfo(&made), 0);
  auto* request = reinterpret_cast<PKCS10Request*>(made);
  const NodePtr sequence = ToNode("30 00");
  EXPECT_EQ(ASN1_PKCS10RequestSetCertificationRequestInfo(request, sequence.get()), 0);
  EXPECT_EQ(ASN1_PKCS10RequestSetAlgorithmIdentifier(request, sequence.get()), 0);
  EXPECT_EQ(ASN1_PKCS10RequestSetSignature(request, ToNode("03 02 04 F0").get()), 0);
  EXPECT_EQ(Made(ASN1_PKCS10RequestWriteData, request), "30 08 30 00 30 00 03 02 04 F0");
  ASN1_FreePKCS10Request(request);
}

}  // namespace
