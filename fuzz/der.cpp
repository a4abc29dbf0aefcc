// Bytes through every function that works on no record, and what readers return written again.
#include "call.h"

namespace {

// A node and bytes split to the same, which is written as what splits to it again.
template <auto kRead, auto kSplit, auto kWrite>
void TakeApart(const Values& in) {
  EXPECT_EQ(Call<kRead>(in), Call<kSplit>(in));
  Rebuild<kRead, kWrite>(in);
}

template <auto... kWrite>
void WriteContent(const Values& in) {
  (ComesBack<kWrite, ASN1_ReadOctetString>(in), ...);
}

}  // namespace

void TestInput(ByteView bytes) {
  ByteInputs inputs(bytes);
  for (const Function& function : Functions()) {
    if (!function.run || function.subject) continue;
    // A reader too of a node that says it is a BIT STRING.
    if (function.name.starts_with("ASN1_Read")) {
      inputs.type = 3;
      Invocation(function, inputs).Run();
      inputs.type = ByteInputs::kOwnType;
    }
    Invocation(function, inputs).Run();
  }
  const Values in{Copy(bytes)};
  TakeApart<ASN1_ReadSequence, ASN1_WriteSequenceFromDERBytes, ASN1_WriteSequence>(in);
  TakeApart<ASN1_ReadSet, ASN1_WriteSetFromDERData, ASN1_WriteSet>(in);
  Rebuild<ASN1_DecodeDerAttributeTypeAndValue, ASN1_SetAttributeTypeAndValue>(in);
  Rebuild<ASN1_GetRSAPublicKey, ASN1_SetRSAPublicKey>(in);
  Rebuild<ASN1_GetExtension, ASN1_SetExtension>(in);
  Rebuild<ASN1_ReadUtcTime, ASN1_WriteUtcTime>(in);
  Rebuild<ASN1_ReadGeneralizedTime, ASN1_WriteGeneralizedTime>(in);
  if (bytes.empty()) return;
  WriteContent<ASN1_WriteOctetString, ASN1_WriteBitString, ASN1_WriteCharString,
               ASN1_WriteUTF8String, ASN1_WriteBmpString, ASN1_WriteIa5String, ASN1_WriteEnumerated,
               ASN1_WritePrintableString>(in);
}
