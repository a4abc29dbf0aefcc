// Bytes through every function that works on no record, and what readers return written again.
#include "call.h"

namespace {

// A node and bytes split to the same chain, and that is written as what splits to it again.
template <auto kRead, auto kSplit, auto kWrite>
void TakeApart(const ByteVector& in) {
  const NodePtr chain = Make(kRead, MakeNode(in).get());
  const std::string text = Describe(chain.get());
  EXPECT_EQ(Describe(Make(kSplit, in.data(), Size(in)).get()), text);
  if (chain == nullptr) return;
  EXPECT_EQ(Describe(Make(kRead, Make(kWrite, chain.get()).get()).get()), text);
}

template <auto... kWrite>
void WriteContent(const Values& in) {
  (ComesBack<kWrite, ASN1_ReadOctetString>(in), ...);
}

}  // namespace

void TestInput(const Values& in) {
  ByteInputs inputs(in);
  for (const Function& function : Functions()) {
    if (!function.run || function.subject) continue;
    // Readers go by the type that a node states too: BIT STRING and both times.
    const bool isReader = function.name.starts_with("ASN1_Read");
    for (const uint32_t type : {3U, 23U, 24U, ByteInputs::kOwnType}) {
      if (!isReader && type != ByteInputs::kOwnType) continue;
      inputs.type = type;
      Invocation(function, inputs).Run();
    }
  }
  TakeApart<ASN1_ReadSequence, ASN1_WriteSequenceFromDERBytes, ASN1_WriteSequence>(in[0]);
  TakeApart<ASN1_ReadSet, ASN1_WriteSetFromDERData, ASN1_WriteSet>(in[0]);
  Rebuild<ASN1_DecodeDerAttributeTypeAndValue, ASN1_SetAttributeTypeAndValue>(in);
  Rebuild<ASN1_GetRSAPublicKey, ASN1_SetRSAPublicKey>(in);
  Rebuild<ASN1_GetExtension, ASN1_SetExtension>(in);
  Rebuild<ASN1_ReadUtcTime, ASN1_WriteUtcTime>(in);
  Rebuild<ASN1_ReadGeneralizedTime, ASN1_WriteGeneralizedTime>(in);
  if (in[0].empty()) return;
  WriteContent<ASN1_WriteOctetString, ASN1_WriteBitString, ASN1_WriteCharString,
               ASN1_WriteUTF8String, ASN1_WriteBmpString, ASN1_WriteIa5String, ASN1_WriteEnumerated,
               ASN1_WritePrintableString>(in);
}
