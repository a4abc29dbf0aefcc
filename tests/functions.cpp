#include "functions.h"

#include <map>

#include "invocation.h"

namespace {

// The first whose prefix fits counts.
constexpr Rule kRules[] = {
    {"ASN1_SM2_", 0, Writes::kAllOrNone},
    {"ASN1_OBJECT_a2d", 0, Writes::kAllOrNone, "", true},
    {"ASN1_EccPubkey2Der", VELKORD_FAILURE},
    {"ASN1_Der2Ecc", VELKORD_FAILURE},
    {"ZantEncode", VELKORD_FAILURE, Writes::kAllOrNone, "der"},
    {"ZantDecode", VELKORD_FAILURE, Writes::kAll, "", true},
    {"X509CertGetOIDValue", VELKORD_FAILURE, Writes::kAllOrNone},
    {"ASN1_ReadImplicit", VELKORD_NULL_ARGUMENT, Writes::kAll, "", true},
    {"ASN1_GetExtension", VELKORD_NULL_ARGUMENT, Writes::kSome},
    {"ASN1_GetAlgorithmIdentifier", VELKORD_NULL_ARGUMENT, Writes::kAll,
     "outOid outSequence outParameterOid"},
    {"ASN1_", VELKORD_NULL_ARGUMENT},
    {"Asn1", VELKORD_NULL_ARGUMENT},
    {"uniToUTF8", Rule::kTakesNoNull, Writes::kAll, "out"},
    {"", Rule::kTakesNoNull, Writes::kAllOrNone},
};

template <typename Result, typename First, typename... Rest>
void Classify(Function& entry, Result (*function)(First, Rest...)) {
  using Pointee = std::remove_pointer_t<First>;
  using Object = std::remove_const_t<Pointee>;
  if constexpr (kOwnsNodes<Object>) {
    RecordType& type = TypeOf<Object>();
    if constexpr (std::is_void_v<Result>) {
      type.release = [=](void* record) { function(static_cast<Object*>(record)); };
      return;
    } else {
      entry.subject = &type;
      if (!std::is_const_v<Pointee>) type.setters.push_back(&entry);
      if (std::is_same_v<std::tuple<Rest...>, std::tuple<Anybuf**>>) type.write = &entry;
    }
  } else if constexpr (std::is_pointer_v<Object> && std::is_same_v<Result, int32_t>) {
    if constexpr (kOwnsNodes<std::remove_pointer_t<Object>>) {
      TypeOf<std::remove_pointer_t<Object>>().create = [=](void** out) {
        return function(reinterpret_cast<Object*>(out));
      };
    }
  }
  if constexpr (!std::is_pointer_v<Result>) {
    entry.run = [=](Invocation& call) { return call.Apply(function); };
  }
}

struct Lists {
  Lists() {
    functions.reserve(1000);  // Records point to their functions, which must not move.
#define RECORD(record)                \
  types[#record] = &TypeOf<record>(); \
  types[#record]->size = sizeof(record);
#define FIELD(record, field)                                                                \
  types[#record]->fields.push_back({#field, offsetof(record, field), sizeof(record::field), \
                                    std::is_same_v<decltype(record::field), Anybuf*>,       \
                                    std::is_integral_v<decltype(record::field)>});
#define FUNCTION(name, parameters) Add(#name, Split(parameters, " "), name);
#include "functions.inc"
  }

  template <typename Type>
  void Add(const std::string& name, std::vector<std::string> parameters, Type* function) {
    const Rule* rule = kRules;
    while (!name.starts_with(rule->prefix)) ++rule;
    functions.push_back(
        {name, std::move(parameters), reinterpret_cast<AnyFunction>(function), rule, nullptr, {}});
    Classify(functions.back(), function);
  }

  std::vector<Function> functions;
  std::map<std::string, RecordType*> types;
};

const Lists kLists;

}  // namespace

const std::vector<Function>& Functions() { return kLists.functions; }

const Function* FindFunction(const std::string& name) {
  for (const Function& function : kLists.functions) {
    if (function.name == name) return &function;
  }
  return nullptr;
}

const RecordType* FindRecordType(const std::string& name) {
  const auto found = kLists.types.find(name);
  return found == kLists.types.end() ? nullptr : found->second;
}

int32_t CallLibrary(const Function& function, const LibraryCall& call, const Check& isAsBefore) {
  const int32_t code = callHook ? callHook(function, call, isAsBefore) : call();
  if (code < 0) isAsBefore();
  return code;
}

std::string RecordType::Describe(const void* record) const {
  std::string text;
  ByteVector between(static_cast<const uint8_t*>(record),
                     static_cast<const uint8_t*>(record) + size);
  for (const Field& field : fields) {
    const void* place = static_cast<const uint8_t*>(record) + field.offset;
    std::fill_n(&between[field.offset], field.size, uint8_t{0});
    std::string value = "0";
    if (field.isNode) value = ::Describe(*static_cast<Anybuf* const*>(place));
    if (field.isNumber) value = std::to_string(*static_cast<const int32_t*>(place));
    if (value != "none" && value != "0") text += field.name + "=" + value + " ";
  }
  EXPECT_EQ(between, ByteVector(size));
  return text;
}
