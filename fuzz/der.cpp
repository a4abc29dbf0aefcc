// DER through all readers, and what they give written again.
#include "reading.h"

namespace {

using WriteNode = int32_t (*)(const Anybuf*, Anybuf**);
using WriteBytes = int32_t (*)(const uint8_t*, uint32_t, Anybuf**);

// The readers of one content differ in name alone, so what one gives is enough.
void ReadContent(Reading& reading) {
  for (WriteNode read : {ASN1_ReadBitString, ASN1_ReadBmpString, ASN1_ReadCharString,
                         ASN1_ReadEnumerated, ASN1_ReadIa5String, ASN1_ReadIntegerArray,
                         ASN1_ReadOctetString, ASN1_ReadPrintableString, ASN1_ReadUTF8String}) {
    reading.Accepts(read);
  }
  for (auto* read :
       {ASN1_ReadCharStringToBytes, ASN1_ReadIa5StringToBytes, ASN1_ReadIntegerArrayToBytes,
        ASN1_ReadOctetStringToBytes, ASN1_ReadPrintableStringToBytes, ASN1_ReadUTF8StringToBytes,
        ASN1_ReadBmpStringToBytes, ASN1_ReadObjectIdToBytes}) {
    reading.Accepts(read);
  }
  reading.Accepts(ASN1_ReadInteger);
  reading.Accepts(ASN1_ReadExplicit);
  reading.Accepts(ASN1_ReadExplicitToBytes);
  reading.Accepts(ASN1_ReadImplicit, Outs::kNumberFirst);
  for (WriteNode read :
       {ASN1_ReadDerName, ASN1_ReadExtensions, ASN1_ReadRelativeDistinguishedName}) {
    reading.Accepts(read);
  }
}

// A string that is written over a content and read has that content, in a header of shortest form.
void WriteContent(const Anybuf& source) {
  for (WriteNode write : {ASN1_WriteOctetString, ASN1_WriteBitString, ASN1_WriteCharString,
                          ASN1_WriteUTF8String, ASN1_WriteBmpString, ASN1_WriteIa5String,
                          ASN1_WriteEnumerated, ASN1_WritePrintableString}) {
    const NodePtr written = Made(write, &source);
    REQUIRE(Same(View(*Made(ASN1_ReadOctetString, written.get())), View(source)));
    REQUIRE(written->dataLen <= source.dataLen + 7);
  }
}

// A chain has the same elements however often it is written and split.
void WriteChain(Reading& reading, WriteNode read, WriteNode write, WriteBytes split) {
  REQUIRE(reading.Accepts(read) == reading.Accepts(split));
  const NodePtr chain = Made(read, &reading.Node());
  if (chain == nullptr) return;
  const NodePtr written = Made(write, chain.get());
  const NodePtr again = Made(split, written->data, written->dataLen);
  const Anybuf* other = again.get();
  for (const Anybuf* node = chain.get(); node != nullptr; node = node->next, other = other->next) {
    REQUIRE(Same(View(*node), View(*other)) && node->dataType == other->dataType);
  }
  REQUIRE(other == nullptr);
}

struct TimeForm {
  uint32_t type;
  int32_t (*read)(const Anybuf*, int32_t*);
  int32_t (*write)(const int32_t*, Anybuf**);
};

void WriteTime(Reading& reading) {
  for (const auto& [type, read, write] :
       {TimeForm{23, ASN1_ReadUtcTime, ASN1_WriteUtcTime},
        TimeForm{24, ASN1_ReadGeneralizedTime, ASN1_WriteGeneralizedTime}}) {
    reading.Node().dataType = type;
    if (!reading.Accepts(read)) continue;
    int32_t time = -1;
    int32_t again = -1;
    REQUIRE(read(&reading.Node(), &time) == 0 && time >= 0);
    const NodePtr written = Made(write, &time);
    REQUIRE(read(written.get(), &again) == 0 && again == time);
  }
}

// What a reader takes apart, put together again, is taken apart to the same parts.
template <size_t kParts, typename Get, typename Set>
void Rebuild(const Anybuf& source, Get get, Set set) {
  using Parts = std::array<Anybuf*, kParts>;
  const auto open = [&](const Anybuf* node, Parts& parts) {
    return std::apply([&](auto&... part) { return get(node, &part...); }, parts) == 0;
  };
  Parts parts{};
  if (!open(&source, parts)) return;
  Anybuf* whole = nullptr;
  REQUIRE(std::apply([&](auto*... part) { return set(part..., &whole); }, parts) == 0);
  Parts again{};
  REQUIRE(open(whole, again));
  ASN1_FreeAnybuf(whole);
  for (size_t at = 0; at < kParts; ++at) {
    REQUIRE((parts[at] == nullptr) == (again[at] == nullptr));
    REQUIRE(parts[at] == nullptr || Same(View(*parts[at]), View(*again[at])));
    ASN1_FreeAnybuf(parts[at]);
    ASN1_FreeAnybuf(again[at]);
  }
}

int32_t SetAttribute(Anybuf* type, Anybuf* value, Anybuf** out) {
  const AttributeTypeAndValue record = {type, value};
  return ASN1_GetDerAttributeTypeAndValue(&record, out);
}

void OpenStructures(Reading& reading) {
  reading.Accepts(ASN1_DecodeDerRelativeDistinguishedNameOne);
  reading.Accepts(ASN1_DecodeDerAttributeTypeAndValue);
  reading.Accepts(ASN1_GetValidity);
  reading.Accepts(ASN1_GetRSAPublicKey);
  reading.Accepts(ASN1_GetSubjectPublicKeyInfo);
  reading.Accepts(ASN1_GetAlgorithmIdentifier);
  reading.Accepts(ASN1_GetExtension, Outs::kPresentNodes);
  const Anybuf& node = reading.Node();
  Rebuild<2>(node, ASN1_DecodeDerAttributeTypeAndValue, SetAttribute);
  Rebuild<2>(node, ASN1_GetRSAPublicKey, ASN1_SetRSAPublicKey);
  Rebuild<3>(node, ASN1_GetExtension, ASN1_SetExtension);
}

void StoreBytes(Reading& reading) {
  for (WriteBytes store : {ASN1_WriteBitStringFromDERBytes, ASN1_WriteExplicitFromDERData,
                           ASN1_WriteBmpStringFromDERBytes, ASN1_WriteCharStringFromDERBytes,
                           ASN1_WriteIa5StringFromDERBytes, ASN1_WriteIntegerArrayFromDERBytes,
                           ASN1_WriteObjectIdFromDERBytes, ASN1_WriteOctetStringFromDERBytes,
                           ASN1_WritePrintableStringFromDERBytes, ASN1_WriteUTF8StringFromDERBytes,
                           ASN1_ReadRelativeDistinguishedNameFromByte}) {
    reading.Accepts(store);
  }
}

}  // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  Reading reading({data, size});
  ReadContent(reading);
  WriteContent(reading.Node());
  WriteChain(reading, ASN1_ReadSequence, ASN1_WriteSequence, ASN1_WriteSequenceFromDERBytes);
  WriteChain(reading, ASN1_ReadSet, ASN1_WriteSet, ASN1_WriteSetFromDERData);
  OpenStructures(reading);
  StoreBytes(reading);
  reading.Node().dataType = 3;
  ReadContent(reading);
  WriteTime(reading);
  return 0;
}
