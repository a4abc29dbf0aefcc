// Bytes through every function that takes a node or bytes, and what the readers of DER give written
// again.
#include "call.h"

namespace {

// What a function takes apart, put together again by another one, comes apart to the same.
template <typename Read, typename Write>
void Rebuild(const ByteVector& in, Read* read, Write* write) {
  const Values parts = Call(read, {in});
  if (!parts.empty()) {
    EXPECT_EQ(Call(read, Call(write, parts)), parts);
  }
}

// A string that is written over a content and read has that content, in a header of shortest form.
void WriteContent(const ByteVector& in) {
  for (auto* write : {ASN1_WriteOctetString, ASN1_WriteBitString, ASN1_WriteCharString,
                      ASN1_WriteUTF8String, ASN1_WriteBmpString, ASN1_WriteIa5String,
                      ASN1_WriteEnumerated, ASN1_WritePrintableString}) {
    const Values written = Call(write, {in});
    EXPECT_EQ(Call(ASN1_ReadOctetString, written), Values{in});
    EXPECT_LE(written[0].size(), in.size() + 7);
  }
}

using ReadNode = int32_t (*)(const Anybuf*, Anybuf**);
using ReadBytes = int32_t (*)(const uint8_t*, uint32_t, Anybuf**);

// A chain has the same elements however often it is written and split, and from a node or bytes.
void WriteChain(const ByteVector& in, ReadNode read, ReadNode write, ReadBytes split) {
  Anybuf* chain = nullptr;
  const int32_t code = split(in.data(), Size(in), &chain);
  const NodePtr owner(chain);
  EXPECT_EQ(Call(read, {in}).empty(), code != 0);
  if (code != 0) return;
  Anybuf* written = nullptr;
  EXPECT_EQ(write(chain, &written), 0);
  const NodePtr writtenOwner(written);
  Anybuf* again = nullptr;
  EXPECT_EQ(split(written->data, written->dataLen, &again), 0);
  const NodePtr againOwner(again);
  for (; chain && again; chain = chain->next, again = again->next) {
    EXPECT_EQ(chain->dataType, again->dataType);
    EXPECT_TRUE(std::equal(chain->data, chain->data + chain->dataLen, again->data,
                           again->data + again->dataLen));
  }
  EXPECT_EQ(chain, again);
}

// All functions but those of records and RSA keys, and readers on a node that says it is something
// else.
struct Job {
  const Function* function;
  uint32_t type;
};

std::vector<Job> ListJobs() {
  std::vector<Job> jobs;
  for (const Function& function : Functions()) {
    const std::string& name = function.name;
    if (!function.run || function.subject || function.parameters.size() < 2) continue;
    if (name.ends_with("Decode") || name.starts_with("Zant")) continue;
    jobs.push_back({&function, ByteInputs::kOwnType});
    if (name.starts_with("ASN1_Read")) jobs.push_back({&function, 3});
    if (name == "ASN1_ReadUtcTime") jobs.push_back({&function, 23});
    if (name == "ASN1_ReadGeneralizedTime") jobs.push_back({&function, 24});
  }
  return jobs;
}

void CallAll(const Values& in) {
  static const std::vector<Job> kJobs = ListJobs();
  ByteInputs inputs(in);
  for (const auto& [function, type] : kJobs) {
    inputs.Restart(type);
    Invocation(*function, inputs).Run();
  }
}

}  // namespace

void TestInput(const ByteVector& in) {
  CallAll({in});
  WriteChain(in, ASN1_ReadSequence, ASN1_WriteSequence, ASN1_WriteSequenceFromDERBytes);
  WriteChain(in, ASN1_ReadSet, ASN1_WriteSet, ASN1_WriteSetFromDERData);
  Rebuild(in, ASN1_ReadUtcTime, ASN1_WriteUtcTime);
  Rebuild(in, ASN1_ReadGeneralizedTime, ASN1_WriteGeneralizedTime);
  Rebuild(in, ASN1_DecodeDerAttributeTypeAndValue, ASN1_SetAttributeTypeAndValue);
  Rebuild(in, ASN1_GetRSAPublicKey, ASN1_SetRSAPublicKey);
  Rebuild(in, ASN1_GetExtension, ASN1_SetExtension);
  if (!in.empty()) WriteContent(in);
}
