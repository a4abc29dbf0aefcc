#include "calls.h"

#include <cstddef>
#include <cstdlib>

namespace {

using Caller = Callers::mapped_type;

uint32_t Number(const std::string& text) {
  return static_cast<uint32_t>(std::stoll(text, nullptr, 0));
}

// The code of a failure, which must leave all out arguments alone, or the results, after a code
// above 0 when there is one.
template <typename Function>
Caller Lenient(Function function) {
  return [=](const Arguments& in) {
    Invocation call(in);
    const int32_t code = call.Run(function);
    const std::string results = call.Results();
    if (call.OutCount() == 0) return std::to_string(code);
    if (code == 0) return results;
    if (code > 0) return std::to_string(code) + " ; " + results;
    ExpectKept(results);
    return std::to_string(code);
  };
}

// The same for a function that refuses a null pointer in place of any out argument, with
// `kRefusal` and the others left alone.
template <int32_t kRefusal = VELKORD_NULL_ARGUMENT, typename Function>
Caller Strict(Function function) {
  return [=](const Arguments& in) {
    size_t outs = 1;
    for (size_t nulled = 0; nulled < outs; ++nulled) {
      Invocation call(in, nulled);
      EXPECT_EQ(call.Run(function), kRefusal) << nulled;
      ExpectKept(call.Results());
      outs = call.OutCount();
    }
    return Lenient(function)(in);
  };
}

// A function of the SM2 family, whose result is always 0.
template <typename Function>
Caller Silent(Function function) {
  return Strict<VELKORD_OK>(function);
}

// A function of the EC family, which refuses everything with one code.
template <typename Function>
Caller Curt(Function function) {
  return Strict<VELKORD_FAILURE>(function);
}

// A function that fills a record as far as it comes: its code before the record.
template <typename Function>
Caller Filling(Function function) {
  return [=](const Arguments& in) {
    EXPECT_EQ(Invocation(in, 0).Run(function), VELKORD_FAILURE);
    Invocation call(in);
    const int32_t code = call.Run(function);
    return std::to_string(code) + " ; " + call.Results();
  };
}

// A function that needs no buffer to tell the size of its output.
template <typename Function>
Caller Sizing(Function function) {
  return [=](const Arguments& in) {
    EXPECT_EQ(Invocation(in, 1).Run(function), VELKORD_FAILURE);
    Invocation sizing(in, 0);
    Invocation call(in);
    EXPECT_EQ(sizing.Run(function), call.Run(function));
    EXPECT_EQ(sizing.Results().size(), call.Results().size());
    return Lenient(function)(in);
  };
}

// A function whose out arguments may each be null.
template <typename Function>
Caller Optional(Function function) {
  return [=](const Arguments& in) {
    Invocation first(in, 0);
    const int32_t code = first.Run(function);
    static_cast<void>(first.Results());
    for (const size_t nulled : {1U, 2U}) {
      Invocation call(in, nulled);
      EXPECT_EQ(call.Run(function), code);
      static_cast<void>(call.Results());
    }
    return Lenient(function)(in);
  };
}

// Whatever is not released shows under the sanitizers.
Caller Freer(void (*release)(Anybuf*)) {
  return [=](const Arguments& in) {
    release(ToNode(in[0]).release());
    return "released";
  };
}

// A function from number to number.
Caller Mapping(uint32_t (*function)(uint32_t)) {
  return [=](const Arguments& in) { return std::to_string(function(Number(in[0]))); };
}

size_t NodeCount(const Anybuf* chain) {
  size_t count = 0;
  for (; chain != nullptr; chain = chain->next) ++count;
  return count;
}

// Appends an element twice. An appended node carries `memKind` over and has no `prev`.
Caller Adder(void (*add)(const Anybuf*, Anybuf*)) {
  return [=](const Arguments& in) {
    const NodePtr element = ToNode(in[0]);
    const NodePtr chain = ToNode(in[1]);
    if (element != nullptr) element->memKind = 9;
    const size_t before = NodeCount(chain.get());
    size_t position = 1;
    const auto append = [&] {
      add(element.get(), chain.get());
      return 0;
    };
    CallLibrary(add, append, [&] { EXPECT_EQ(NodeCount(chain.get()), before); });
    append();
    for (Anybuf* node = chain.get(); node != nullptr && node->next != nullptr; node = node->next) {
      const bool appended = position++ >= before;
      EXPECT_EQ(node->next->memKind, appended ? 9U : 2U);
      EXPECT_EQ(node->next->prev, appended ? nullptr : node);
      node->next->memKind = 2;
      node->next->prev = node;
    }
    return Describe(chain.get());
  };
}

std::string LowIntToChar(const Arguments& in) {
  uint8_t* octets = nullptr;
  uint32_t* count = nullptr;
  const auto isUntouched = [&] { EXPECT_TRUE(octets == nullptr && count == nullptr); };
  const auto call = [&] { return Asn1LowIntToChar(Number(in[0]), &octets, &count); };
  EXPECT_EQ(Asn1LowIntToChar(1, &octets, nullptr), VELKORD_NULL_ARGUMENT);
  EXPECT_EQ(Asn1LowIntToChar(1, nullptr, &count), VELKORD_NULL_ARGUMENT);
  EXPECT_EQ(CallLibrary(Asn1LowIntToChar, call, isUntouched), 0);
  const std::string text = ToHex(octets, *count);
  std::free(octets);
  std::free(count);
  return text;
}

// The result, the out length, and the octets that stand in the buffer.
std::string TextToObjectId(const Arguments& in) {
  const std::string text = in.empty() ? "" : in[0];
  uint8_t out[32] = {};
  uint32_t length = 99;
  EXPECT_EQ(ASN1_OBJECT_a2d(nullptr, &length, "1.2", 3), 0);
  EXPECT_EQ(ASN1_OBJECT_a2d(out, nullptr, "1.2", 3), 0);
  EXPECT_EQ(ASN1_OBJECT_a2d(out, &length, nullptr, 3), 0);
  const int32_t result =
      ASN1_OBJECT_a2d(out, &length, text.data(), static_cast<int32_t>(text.size()));
  return std::to_string(result) + " " + std::to_string(length) + ": " +
         ToHex(out, static_cast<size_t>(result));
}

// Reads a record, describes it as the node that it is but for its id, and writes it again.
std::string ReadAndWriteObjectId(const Arguments& in) {
  ObjectID untouched{};
  ObjectID* record = &untouched;
  const NodePtr source = ToNode(in[0]);
  const auto isUntouched = [&] { EXPECT_EQ(record, &untouched); };
  const auto call = [&] { return ASN1_ReadObjectId(source.get(), &record); };
  EXPECT_EQ(ASN1_ReadObjectId(source.get(), nullptr), VELKORD_NULL_ARGUMENT);
  DirtyHeap(sizeof *record);
  const int32_t code = CallLibrary(ASN1_ReadObjectId, call, isUntouched);
  if (code != 0) return std::to_string(code);
  // The number, and what lies between it and the next field.
  const ByteVector zeros(offsetof(ObjectID, data));
  EXPECT_EQ(std::memcmp(record, zeros.data(), zeros.size()), 0);
  const Anybuf node = {record->data,     record->dataLen, record->unusedBits, record->memKind,
                       record->dataType, record->next,    record->prev};
  EXPECT_EQ(Made(ASN1_WriteObjectId, nullptr), "-8");
  const std::string written = Made(ASN1_WriteObjectId, record);
  const std::string text = Describe(&node) + " ; " + written;
  ASN1_FreeObjectID(record);
  return text;
}

int32_t ReadImplicitNode(const Anybuf* source, uint32_t* number, Anybuf** out) {
  return ASN1_ReadImplicit(source, out, number);
}

std::string ReadImplicit(const Arguments& in) {
  uint32_t number = 99;
  const NodePtr source = ToNode(in[0]);
  EXPECT_EQ(ASN1_ReadImplicit(source.get(), nullptr, &number), VELKORD_NULL_ARGUMENT);
  EXPECT_EQ(Made(ReadImplicitNode, source.get(), nullptr), "-8");
  const std::string node = Made(ReadImplicitNode, source.get(), &number);
  return std::to_string(number) + " ; " + node;
}

std::string SetAttribute(const Arguments& in) {
  AttributeTypeAndValue* record = nullptr;
  const NodePtr type = ToNode(in[0]);
  const NodePtr value = ToNode(in[1]);
  const auto call = [&] { return ASN1_SetAttributeTypeAndValue(type.get(), value.get(), &record); };
  const auto isUntouched = [&] { EXPECT_EQ(record, nullptr); };
  EXPECT_EQ(ASN1_SetAttributeTypeAndValue(type.get(), value.get(), nullptr), VELKORD_NULL_ARGUMENT);
  EXPECT_EQ(Made(ASN1_GetDerAttributeTypeAndValue, nullptr), "-8");
  const int32_t code = CallLibrary(ASN1_SetAttributeTypeAndValue, call, isUntouched);
  if (code != 0) return std::to_string(code);
  const std::string text = Describe(record->type) + " ; " + Describe(record->value) + " ; " +
                           Made(ASN1_GetDerAttributeTypeAndValue, record);
  ASN1_FreeAttributeTypeAndValue(record);
  return text;
}

// What becomes of the OID node is seen by whether freeing it here is right.
std::string SetAlgorithm(const Arguments& in) {
  Anybuf* oid = ToNode(in[1]).release();
  const NodePtr algorithm = ToNode(in[2]);
  const NodePtr parameter = ToNode(in[3]);
  EXPECT_EQ(ASN1_SetAlgorithmIdentifier(1, oid, nullptr, nullptr, nullptr), VELKORD_NULL_ARGUMENT);
  const std::string made =
      Made(ASN1_SetAlgorithmIdentifier, Number(in[0]), oid, algorithm.get(), parameter.get());
  if (in[4] == "released") return made;
  const NodePtr stillOurs(oid);
  return made + " ; " + Describe(oid);
}

std::string WriteUtf8(const Arguments& in) {
  Buffer out;
  const uint32_t code = Number(in[0]);
  const int32_t size = uniToUTF8(out.Data(), static_cast<int32_t>(Number(in[1])), code);
  if (size > 0) out.size = static_cast<uint32_t>(size);
  EXPECT_EQ(uniToUTF8(nullptr, 0, code), size > 0 ? size : uniToUTF8(out.Data(), 6, code));
  return size > 0 ? out.Text() : std::to_string(size);
}

#define NAMED(caller, name) \
  { #name, caller(name) }

// clang-format off
const Callers kCallers = {
    NAMED(Strict, ASN1_ReadInteger), NAMED(Strict, ASN1_WriteIntegerArray),
    NAMED(Strict, ASN1_WriteIntegerArrayFromBytes), NAMED(Strict, ASN1_CreateSequence),
    NAMED(Strict, ASN1_CreateSet), NAMED(Strict, ASN1_WriteSequence), NAMED(Strict, ASN1_WriteSet),
    NAMED(Strict, ASN1_ReadSequence), NAMED(Strict, ASN1_ReadSet),
    NAMED(Strict, ASN1_WriteSequenceFromDERBytes), NAMED(Strict, ASN1_WriteSetFromDERData),
    NAMED(Strict, ASN1_ReadObjectIdToBytes), NAMED(Strict, ASN1_WriteOctetString),
    NAMED(Strict, ASN1_WriteBitString), NAMED(Strict, ASN1_WriteCharString),
    NAMED(Strict, ASN1_WriteUTF8String), NAMED(Strict, ASN1_WriteBmpString),
    NAMED(Strict, ASN1_WriteIa5String), NAMED(Strict, ASN1_WriteEnumerated),
    NAMED(Strict, ASN1_WritePrintableString), NAMED(Strict, ASN1_WriteOctetStringFromBytes),
    NAMED(Strict, ASN1_WriteBitStringFromBytes), NAMED(Strict, ASN1_WriteCharStringFromBytes),
    NAMED(Strict, ASN1_WriteUTF8StringFromBytes), NAMED(Strict, ASN1_WriteBmpStringFromBytes),
    NAMED(Strict, ASN1_WriteIa5StringFromBytes), NAMED(Strict, ASN1_WriteBitStringFromDERBytes),
    NAMED(Strict, ASN1_ReadBoolean), NAMED(Strict, ASN1_ReadBitString),
    NAMED(Strict, ASN1_ReadBmpString), NAMED(Strict, ASN1_ReadCharString),
    NAMED(Strict, ASN1_ReadEnumerated), NAMED(Strict, ASN1_ReadIa5String),
    NAMED(Strict, ASN1_ReadIntegerArray), NAMED(Strict, ASN1_ReadOctetString),
    NAMED(Strict, ASN1_ReadPrintableString), NAMED(Strict, ASN1_ReadUTF8String),
    NAMED(Strict, ASN1_ReadCharStringToBytes), NAMED(Strict, ASN1_ReadIa5StringToBytes),
    NAMED(Strict, ASN1_ReadIntegerArrayToBytes), NAMED(Strict, ASN1_ReadOctetStringToBytes),
    NAMED(Strict, ASN1_ReadPrintableStringToBytes), NAMED(Strict, ASN1_ReadUTF8StringToBytes),
    NAMED(Strict, ASN1_ReadBmpStringToBytes), NAMED(Strict, ASN1_WriteExplicitFromDERData),
    NAMED(Strict, ASN1_WriteBmpStringFromDERBytes), NAMED(Strict, ASN1_WriteCharStringFromDERBytes),
    NAMED(Strict, ASN1_WriteIa5StringFromDERBytes),
    NAMED(Strict, ASN1_WriteIntegerArrayFromDERBytes),
    NAMED(Strict, ASN1_WriteObjectIdFromDERBytes), NAMED(Strict, ASN1_WriteOctetStringFromDERBytes),
    NAMED(Strict, ASN1_WritePrintableStringFromDERBytes),
    NAMED(Strict, ASN1_WriteUTF8StringFromDERBytes), NAMED(Strict, ASN1_WriteGeneralizedTime),
    NAMED(Strict, ASN1_WriteUtcTime), NAMED(Strict, ASN1_ReadGeneralizedTime),
    NAMED(Strict, ASN1_ReadUtcTime), NAMED(Strict, ASN1_DecodeDerAttributeTypeAndValue),
    NAMED(Strict, ASN1_GetDerRelativeDistinguishedName),
    NAMED(Strict, ASN1_ReadRelativeDistinguishedName),
    NAMED(Strict, ASN1_ReadRelativeDistinguishedNameFromByte), NAMED(Strict, ASN1_CreateName),
    NAMED(Strict, ASN1_CreateRelativeDistinguishedName), NAMED(Strict, ASN1_CreateExtensions),
    NAMED(Strict, ASN1_GetDerName), NAMED(Strict, ASN1_WriteExtensions),
    NAMED(Strict, ASN1_ReadDerName), NAMED(Strict, ASN1_ReadExtensions),
    NAMED(Strict, ASN1_SetValidity), NAMED(Strict, ASN1_SetRSAPublicKey),
    NAMED(Strict, ASN1_GetRSAPublicKey), NAMED(Strict, ASN1_SetSubjectPublicKeyInfo),
    NAMED(Strict, ASN1_GetSubjectPublicKeyInfo), NAMED(Strict, ASN1_CreateAnybuf),
    NAMED(Strict, ASN1_WriteInteger), NAMED(Strict, ASN1_WriteObjectIdFromData),
    NAMED(Strict, ASN1_WritePrintableStringFromBytes), NAMED(Strict, ASN1_WriteBoolean),
    NAMED(Strict, ASN1_WriteNull), NAMED(Strict, ASN1_WriteExplicit),
    NAMED(Strict, ASN1_WriteExplicitFromData), NAMED(Strict, ASN1_ReadExplicit),
    NAMED(Strict, ASN1_ReadExplicitToBytes), NAMED(Strict, ASN1_WriteImplicit),
    NAMED(Strict, ASN1_GetValidity), NAMED(Strict, ASN1_GetDerRelativeDistinguishedNameOne),
    NAMED(Strict, ASN1_DecodeDerRelativeDistinguishedNameOne), NAMED(Strict, ASN1_SetExtension),
    NAMED(Strict, ASN1_GetExtensionOne), NAMED(Strict, ASN1_GetExtension),
    NAMED(Sizing, ZantEncodePublicKey), NAMED(Sizing, ZantEncodePrivateKey),
    NAMED(Filling, ZantDecodePublicKey), NAMED(Filling, ZantDecodePrivateKey),
    NAMED(Curt, ASN1_EccPubkey2Der), NAMED(Curt, ASN1_Der2EccPubkey),
    NAMED(Curt, ASN1_Der2EccPrikey), NAMED(Silent, ASN1_SM2_SM2SignatureEncode),
    NAMED(Silent, ASN1_SM2_SM2SignatureDecode), NAMED(Silent, ASN1_SM2_PrikeyEncode),
    NAMED(Silent, ASN1_SM2_PrikeyDecode), NAMED(Silent, ASN1_SM2_PubkeyEncode),
    NAMED(Silent, ASN1_SM2_PubkeyDecode), NAMED(Optional, ASN1_GetAlgorithmIdentifier),
    NAMED(Lenient, base64_encode), NAMED(Lenient, base64_decode),
    NAMED(Lenient, DER2PEM_data_format), NAMED(Lenient, PEM2DER_data_format),
    NAMED(Lenient, utf8ToUni), NAMED(Lenient, zhsToUtf8s), NAMED(Lenient, utf8sToZhs),
    NAMED(Lenient, zhToWc), NAMED(Lenient, wcToZh),
    NAMED(Freer, ASN1_FreeAnybuf), NAMED(Freer, ASN1_FreeSequence), NAMED(Freer, ASN1_FreeSet),
    NAMED(Freer, ASN1_FreeNames), NAMED(Freer, ASN1_FreeRelativeDistinguishedName),
    NAMED(Freer, ASN1_FreeExtension), NAMED(Freer, ASN1_FreeExtensions),
    NAMED(Freer, ASN1_FreeAlgorithmIdentifier), NAMED(Freer, ASN1_FreeSubjectPublicKeyInfo),
    NAMED(Freer, ASN1_FreeRSAPublicKey), NAMED(Freer, ASN1_FreeValidity),
    NAMED(Adder, ASN1_AddSequence), NAMED(Adder, ASN1_AddSet), NAMED(Adder, ASN1_AddName),
    NAMED(Adder, ASN1_AddRelativeDistinguishedName), NAMED(Adder, ASN1_AddExtensions),
    {"Asn1LowIntToChar", LowIntToChar}, {"ASN1_OBJECT_a2d", TextToObjectId},
    {"ASN1_ReadObjectId", ReadAndWriteObjectId}, {"ASN1_ReadImplicit", ReadImplicit},
    {"ASN1_SetAttributeTypeAndValue", SetAttribute}, {"ASN1_SetAlgorithmIdentifier", SetAlgorithm},
    {"uniToUTF8", WriteUtf8}, {"ctouni", Mapping(ctouni)}, {"unitoc", Mapping(unitoc)},
};
// clang-format on

}  // namespace

std::string Call(const std::string& function, const Arguments& arguments) {
  for (const Callers* callers : {&kCallers, &kInspectionCallers, &kRecordCallers}) {
    const auto caller = callers->find(function);
    if (caller != callers->end()) return caller->second(arguments);
  }
  return "no such function";
}
