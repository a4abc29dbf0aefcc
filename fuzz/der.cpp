// Bytes through every function that reads DER, and what the readers return written again.
#include "call.h"

namespace {

using MakeFromNode = int32_t (*)(const Anybuf*, Anybuf**);
using MakeFromBytes = int32_t (*)(const uint8_t*, uint32_t, Anybuf**);

// What a function takes apart, put together again by another one, comes apart to the same.
template <typename Read, typename Write>
void Rebuild(ByteInputs& in, Read* read, Write* write) {
  const Values parts = Call(Find(read), in);
  if (parts.empty()) return;
  EXPECT_EQ(Call(read, Call(write, parts)), parts);
}

// A string that is written over a content and read has that content, in a header of shortest form.
void WriteContent(const Anybuf& in) {
  for (auto* write : {ASN1_WriteOctetString, ASN1_WriteBitString, ASN1_WriteCharString,
                      ASN1_WriteUTF8String, ASN1_WriteBmpString, ASN1_WriteIa5String,
                      ASN1_WriteEnumerated, ASN1_WritePrintableString}) {
    const NodePtr written = Make(write, &in);
    const NodePtr content = Make(ASN1_ReadOctetString, written.get());
    EXPECT_TRUE(
        std::equal(in.data, in.data + in.dataLen, content->data, content->data + content->dataLen));
    EXPECT_LE(written->dataLen, in.dataLen + 7);
  }
}

// A node and bytes split to the same chain, and one that is written splits to the same again.
void WriteChain(ByteInputs& in, MakeFromNode read, MakeFromNode write, MakeFromBytes split) {
  const Values elements = Call(Find(split), in);
  EXPECT_EQ(Call(Find(read), in), elements);
  if (elements.empty()) return;
  const NodePtr chain = Make(read, in.Node());
  in.ExpectUnchanged();
  const NodePtr written = Make(write, chain.get());
  const NodePtr again = Make(split, written->data, written->dataLen);
  EXPECT_EQ(Describe(again.get()), Describe(chain.get()));
}

// The functions that read, and those that write what bytes hold; the readers also on a node that
// says it is a BIT STRING.
void ReadAll(ByteInputs& in) {
  static const auto kTakers = Select([](const Function& function) {
    const std::string& name = function.name;
    return !function.subject &&
           (name.starts_with("ASN1_Get") || name.starts_with("ASN1_DecodeDer") ||
            name.find("FromDER") != std::string::npos);
  });
  static const auto kReaders =
      Select([](const Function& function) { return function.name.starts_with("ASN1_Read"); });
  for (const Function* function : kTakers) Invocation(*function, in).Run();
  for (const uint32_t type : {3U, ByteInputs::kOwnType}) {
    in.type = type;
    for (const Function* function : kReaders) Invocation(*function, in).Run();
  }
}

}  // namespace

void TestInput(ByteView bytes) {
  ByteInputs in{bytes};
  ReadAll(in);
  WriteContent(*in.Node());
  in.ExpectUnchanged();
  WriteChain(in, ASN1_ReadSequence, ASN1_WriteSequence, ASN1_WriteSequenceFromDERBytes);
  WriteChain(in, ASN1_ReadSet, ASN1_WriteSet, ASN1_WriteSetFromDERData);
  Rebuild(in, ASN1_DecodeDerAttributeTypeAndValue, ASN1_SetAttributeTypeAndValue);
  Rebuild(in, ASN1_GetRSAPublicKey, ASN1_SetRSAPublicKey);
  Rebuild(in, ASN1_GetExtension, ASN1_SetExtension);
  in.type = 23;
  Rebuild(in, ASN1_ReadUtcTime, ASN1_WriteUtcTime);
  in.type = 24;
  Rebuild(in, ASN1_ReadGeneralizedTime, ASN1_WriteGeneralizedTime);
}
