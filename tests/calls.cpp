#include "calls.h"

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
    if (code < 0) {
      EXPECT_EQ(results.find_first_not_of("kept ;"), std::string::npos) << results;
      return std::to_string(code);
    }
    return code == 0 ? results : std::to_string(code) + " ; " + results;
  };
}

// The same for a function that refuses a null pointer in place of any out argument.
template <typename Function>
Caller Strict(Function function) {
  return [=](const Arguments& in) {
    size_t outs = 1;
    for (size_t nulled = 0; nulled < outs; ++nulled) {
      Invocation call(in, nulled);
      EXPECT_EQ(call.Run(function), VELKORD_NULL_ARGUMENT) << nulled;
      outs = call.OutCount();
    }
    return Lenient(function)(in);
  };
}

// The same for a function whose out arguments may each be null.
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

// Appends an element twice. An appended node carries `memKind` over and has no `prev`.
Caller Adder(void (*add)(const Anybuf*, Anybuf*)) {
  return [=](const Arguments& in) {
    const NodePtr element = ToNode(in[0]);
    const NodePtr chain = ToNode(in[1]);
    if (element != nullptr) element->memKind = 9;
    size_t before = 0;
    size_t position = 1;
    for (const Anybuf* node = chain.get(); node != nullptr; node = node->next) ++before;
    add(element.get(), chain.get());
    add(element.get(), chain.get());
    for (Anybuf* node = chain.get(); node != nullptr && node->next != nullptr; node = node->next) {
      const bool appended = position++ >= before;
      EXPECT_EQ(node->next->memKind, appended ? 9U : 2U);
      EXPECT_EQ(node->next->prev, nullptr);
      node->next->memKind = 2;
      node->next->prev = node;
    }
    return Describe(chain.get());
  };
}

std::string LowIntToChar(const Arguments& in) {
  uint8_t* octets = nullptr;
  uint32_t* count = nullptr;
  EXPECT_EQ(Asn1LowIntToChar(Number(in[0]), &octets, &count), 0);
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
  const int32_t result =
      ASN1_OBJECT_a2d(out, &length, text.data(), static_cast<int32_t>(text.size()));
  return std::to_string(result) + " " + std::to_string(length) + ": " +
         ToHex(out, static_cast<size_t>(result));
}

// Reads a record, describes it as the node that it is but for its id, and writes it again.
std::string ReadAndWriteObjectId(const Arguments& in) {
  ObjectID untouched{};
  ObjectID* record = &untouched;
  const int32_t code = ASN1_ReadObjectId(ToNode(in[0]).get(), &record);
  if (code != 0) {
    EXPECT_EQ(record, &untouched);
    return std::to_string(code);
  }
  EXPECT_EQ(record->id, 0);
  const Anybuf node = {record->data,     record->dataLen, record->unusedBits, record->memKind,
                       record->dataType, record->next,    record->prev};
  const std::string written = Made([&](Anybuf** out) { return ASN1_WriteObjectId(record, out); });
  const std::string text = Describe(&node) + " ; " + written;
  ASN1_FreeObjectID(record);
  return text;
}

std::string ReadImplicit(const Arguments& in) {
  uint32_t number = 99;
  const std::string node =
      Made([&](Anybuf** out) { return ASN1_ReadImplicit(ToNode(in[0]).get(), out, &number); });
  return std::to_string(number) + " ; " + node;
}

std::string SetAttribute(const Arguments& in) {
  AttributeTypeAndValue* record = nullptr;
  EXPECT_EQ(ASN1_SetAttributeTypeAndValue(ToNode(in[0]).get(), ToNode(in[1]).get(), &record), 0);
  const std::string text =
      Describe(record->type) + " ; " + Describe(record->value) + " ; " +
      Made([&](Anybuf** out) { return ASN1_GetDerAttributeTypeAndValue(record, out); });
  ASN1_FreeAttributeTypeAndValue(record);
  return text;
}

// What becomes of the OID node is seen by whether freeing it here is right.
std::string SetAlgorithm(const Arguments& in) {
  Anybuf* oid = ToNode(in[1]).release();
  const std::string made = Made([&](Anybuf** out) {
    return ASN1_SetAlgorithmIdentifier(Number(in[0]), oid, ToNode(in[2]).get(), ToNode(in[3]).get(),
                                       out);
  });
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

#define LENIENT(name) \
  { #name, Lenient(name) }
#define STRICT(name) \
  { #name, Strict(name) }
#define OPTIONAL(name) \
  { #name, Optional(name) }
#define FREER(name) \
  { #name, Freer(name) }
#define ADDER(name) \
  { #name, Adder(name) }

// clang-format off
const Callers kCallers = {
    STRICT(ASN1_ReadInteger), STRICT(ASN1_WriteIntegerArray),
    STRICT(ASN1_WriteIntegerArrayFromBytes), STRICT(ASN1_CreateSequence), STRICT(ASN1_CreateSet),
    STRICT(ASN1_WriteSequence), STRICT(ASN1_WriteSet), STRICT(ASN1_ReadSequence),
    STRICT(ASN1_ReadSet), STRICT(ASN1_WriteSequenceFromDERBytes), STRICT(ASN1_WriteSetFromDERData),
    STRICT(ASN1_ReadObjectIdToBytes), STRICT(ASN1_WriteOctetString), STRICT(ASN1_WriteBitString),
    STRICT(ASN1_WriteCharString), STRICT(ASN1_WriteUTF8String), STRICT(ASN1_WriteBmpString),
    STRICT(ASN1_WriteIa5String), STRICT(ASN1_WriteEnumerated), STRICT(ASN1_WritePrintableString),
    STRICT(ASN1_WriteOctetStringFromBytes), STRICT(ASN1_WriteBitStringFromBytes),
    STRICT(ASN1_WriteCharStringFromBytes), STRICT(ASN1_WriteUTF8StringFromBytes),
    STRICT(ASN1_WriteBmpStringFromBytes), STRICT(ASN1_WriteIa5StringFromBytes),
    STRICT(ASN1_WriteBitStringFromDERBytes), STRICT(ASN1_ReadBoolean), STRICT(ASN1_ReadBitString),
    STRICT(ASN1_ReadBmpString), STRICT(ASN1_ReadCharString), STRICT(ASN1_ReadEnumerated),
    STRICT(ASN1_ReadIa5String), STRICT(ASN1_ReadIntegerArray), STRICT(ASN1_ReadOctetString),
    STRICT(ASN1_ReadPrintableString), STRICT(ASN1_ReadUTF8String),
    STRICT(ASN1_ReadCharStringToBytes), STRICT(ASN1_ReadIa5StringToBytes),
    STRICT(ASN1_ReadIntegerArrayToBytes), STRICT(ASN1_ReadOctetStringToBytes),
    STRICT(ASN1_ReadPrintableStringToBytes), STRICT(ASN1_ReadUTF8StringToBytes),
    STRICT(ASN1_ReadBmpStringToBytes), STRICT(ASN1_WriteExplicitFromDERData),
    STRICT(ASN1_WriteBmpStringFromDERBytes), STRICT(ASN1_WriteCharStringFromDERBytes),
    STRICT(ASN1_WriteIa5StringFromDERBytes), STRICT(ASN1_WriteIntegerArrayFromDERBytes),
    STRICT(ASN1_WriteObjectIdFromDERBytes), STRICT(ASN1_WriteOctetStringFromDERBytes),
    STRICT(ASN1_WritePrintableStringFromDERBytes), STRICT(ASN1_WriteUTF8StringFromDERBytes),
    STRICT(ASN1_WriteGeneralizedTime), STRICT(ASN1_WriteUtcTime), STRICT(ASN1_ReadGeneralizedTime),
    STRICT(ASN1_ReadUtcTime), STRICT(ASN1_DecodeDerAttributeTypeAndValue),
    STRICT(ASN1_GetDerRelativeDistinguishedName), STRICT(ASN1_ReadRelativeDistinguishedName),
    STRICT(ASN1_ReadRelativeDistinguishedNameFromByte), STRICT(ASN1_CreateName),
    STRICT(ASN1_CreateRelativeDistinguishedName), STRICT(ASN1_CreateExtensions),
    STRICT(ASN1_GetDerName), STRICT(ASN1_WriteExtensions), STRICT(ASN1_ReadDerName),
    STRICT(ASN1_ReadExtensions), STRICT(ASN1_SetValidity), STRICT(ASN1_SetRSAPublicKey),
    STRICT(ASN1_GetRSAPublicKey), STRICT(ASN1_SetSubjectPublicKeyInfo),
    STRICT(ASN1_GetSubjectPublicKeyInfo), STRICT(ASN1_CreateAnybuf), STRICT(ASN1_WriteInteger),
    STRICT(ASN1_WriteObjectIdFromData), STRICT(ASN1_WritePrintableStringFromBytes),
    STRICT(ASN1_WriteBoolean), STRICT(ASN1_WriteNull), STRICT(ASN1_WriteExplicit),
    STRICT(ASN1_WriteExplicitFromData), STRICT(ASN1_ReadExplicit), STRICT(ASN1_ReadExplicitToBytes),
    STRICT(ASN1_WriteImplicit), STRICT(ASN1_GetValidity),
    STRICT(ASN1_GetDerRelativeDistinguishedNameOne),
    STRICT(ASN1_DecodeDerRelativeDistinguishedNameOne), STRICT(ASN1_SetExtension),
    STRICT(ASN1_GetExtensionOne), STRICT(ASN1_GetExtension),
    OPTIONAL(ASN1_GetAlgorithmIdentifier), LENIENT(base64_encode), LENIENT(base64_decode),
    LENIENT(DER2PEM_data_format), LENIENT(PEM2DER_data_format), LENIENT(utf8ToUni),
    LENIENT(zhsToUtf8s), LENIENT(utf8sToZhs), LENIENT(zhToWc), LENIENT(wcToZh),
    FREER(ASN1_FreeAnybuf), FREER(ASN1_FreeSequence), FREER(ASN1_FreeSet), FREER(ASN1_FreeNames),
    FREER(ASN1_FreeRelativeDistinguishedName), FREER(ASN1_FreeExtension),
    FREER(ASN1_FreeExtensions), FREER(ASN1_FreeAlgorithmIdentifier),
    FREER(ASN1_FreeSubjectPublicKeyInfo), FREER(ASN1_FreeRSAPublicKey), FREER(ASN1_FreeValidity),
    ADDER(ASN1_AddSequence), ADDER(ASN1_AddSet), ADDER(ASN1_AddName),
    ADDER(ASN1_AddRelativeDistinguishedName), ADDER(ASN1_AddExtensions),
    {"Asn1LowIntToChar", LowIntToChar}, {"ASN1_OBJECT_a2d", TextToObjectId},
    {"ASN1_ReadObjectId", ReadAndWriteObjectId}, {"ASN1_ReadImplicit", ReadImplicit},
    {"ASN1_SetAttributeTypeAndValue", SetAttribute}, {"ASN1_SetAlgorithmIdentifier", SetAlgorithm},
    {"uniToUTF8", WriteUtf8}, {"ctouni", Mapping(ctouni)}, {"unitoc", Mapping(unitoc)},
};
// clang-format on

}  // namespace

std::string Call(const std::string& function, const Arguments& arguments) {
  for (const Callers* callers : {&kCallers, &kCertificateCallers}) {
    const auto caller = callers->find(function);
    if (caller != callers->end()) return caller->second(arguments);
  }
  return "no such function";
}
