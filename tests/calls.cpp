#include "calls.h"

#include <algorithm>
#include <cstdlib>
#include <deque>

#include "invocation.h"

namespace {

// The arguments of a call as text: none and null are null pointers.
class TextInputs : public Inputs {
 public:
  explicit TextInputs(const Arguments& in) : in_(in) {}

  int64_t Number() override { return std::stoll(Next(), nullptr, 0); }
  Anybuf* Node() override { return Take(ToNode(Next()), {}).node.get(); }
  Block Bytes(size_t size) override {
    const std::string text = Next();
    if (text == "null") return {nullptr, 1};
    const ByteVector& bytes = Take(nullptr, FromHex(text)).bytes;
    EXPECT_TRUE(size == 0 || size == bytes.size());
    return {bytes.data(), bytes.size()};
  }
  // A line end is written as `|`.
  Block Text(bool isTerminated) override {
    ByteVector bytes;
    for (const char c : Next()) {
      if (c == '|') bytes.push_back('\r');
      bytes.push_back(c == '|' ? '\n' : static_cast<uint8_t>(c));
    }
    const size_t size = bytes.size();
    if (isTerminated || bytes.empty()) bytes.push_back(0);
    return {Take(nullptr, bytes).bytes.data(), size};
  }
  size_t Room(const Function&) override { return 1500; }
  void ExpectUnchanged() override {
    for (const Taken& taken : taken_) EXPECT_EQ(taken.Text(), taken.before);
  }
  void BeforeRecord(size_t size) override { DirtyHeap(size); }

 private:
  struct Taken {
    std::string Text() const { return Describe(node.get()) + ToHex(bytes.data(), bytes.size()); }

    NodePtr node;
    ByteVector bytes;
    std::string before;
  };

  const Taken& Take(NodePtr node, ByteVector bytes) {
    Taken& taken = taken_.emplace_back(Taken{std::move(node), std::move(bytes), ""});
    taken.before = taken.Text();
    return taken;
  }

  std::string Next() { return at_ < in_.size() ? in_[at_++] : ""; }

  const Arguments& in_;
  size_t at_ = 0;
  std::deque<Taken> taken_;
};

// With each out argument in turn a null pointer, which is refused or goes without that result.
void CallWithNulls(const Function& function, const Arguments& arguments, void* subject,
                   int32_t plainCode, uint32_t plainSize) {
  const Rule& rule = *function.rule;
  size_t outs = 1;
  for (size_t nulled = 0; nulled < outs; ++nulled) {
    TextInputs in(arguments);
    Invocation call(function, in, subject, nulled);
    const int32_t code = call.Run();
    outs = call.OutCount();
    const std::string& out = call.OutName(nulled);
    if (std::string(rule.mayBeNull).find(out) != std::string::npos) {
      EXPECT_TRUE(code == plainCode || (code > 0 && plainCode == VELKORD_FAILURE)) << out;
      EXPECT_EQ(call.SizeOfFirst(), plainSize);
    } else {
      EXPECT_EQ(code, rule.refusal) << out;
      EXPECT_FALSE(call.HasResults()) << out;
    }
  }
}

// The code of a setter that fails, which must leave the record as it was.
std::string Set(const RecordType& type, void* record, const std::string& name,
                const std::string& value) {
  for (const RecordType::Field& field : type.fields) {
    if (name != field.name) continue;
    auto* place = static_cast<uint8_t*>(record) + field.offset;
    if (field.isNode) {
      ASN1_FreeAnybuf(std::exchange(*reinterpret_cast<Anybuf**>(place), nullptr));
    } else {
      *reinterpret_cast<uint32_t*>(place) = static_cast<uint32_t>(std::stoul(value));
    }
    return "";
  }
  const auto isMeant = [&](const Function* setter) { return setter->name.ends_with(name); };
  EXPECT_EQ(std::count_if(type.setters.begin(), type.setters.end(), isMeant), 1) << name;
  const Function& setter = **std::find_if(type.setters.begin(), type.setters.end(), isMeant);
  const Arguments arguments = Split(value, ", ");
  EXPECT_EQ(Call(setter, arguments, nullptr), "-8");
  const std::string before = type.Describe(record);
  const std::string code = Call(setter, arguments, record);
  if (code == "0") return "";
  EXPECT_EQ(type.Describe(record), before);
  return code + " ; ";
}

std::string Build(const RecordType& type, const Arguments& steps) {
  void* record = nullptr;
  EXPECT_EQ(type.create(&record), 0);
  std::string text;
  for (const std::string& step : steps) {
    const size_t equals = step.find('=');
    text += Set(type, record, step.substr(0, equals), step.substr(equals + 1));
  }
  EXPECT_EQ(Call(*type.write, {}, nullptr), "-8");
  const std::string written = Call(*type.write, {}, record);
  EXPECT_EQ(Written(type, record), written);
  type.release(record);
  type.release(nullptr);
  return text + written;
}

// Whatever is not released shows under the sanitizers.
std::string Release(void (*release)(Anybuf*), const Arguments& in) {
  release(ToNode(in[0]).release());
  return "released";
}

size_t NodeCount(const Anybuf* chain) {
  size_t count = 0;
  for (; chain != nullptr; chain = chain->next) ++count;
  return count;
}

// Appends an element twice. An appended node carries `memKind` over and has no `prev`.
std::string Append(void (*add)(const Anybuf*, Anybuf*), const Arguments& in) {
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
  return Describe(chain.get(), true);
}

std::string LowIntToChar(const Arguments& in) {
  uint8_t* octets = nullptr;
  uint32_t* count = nullptr;
  const auto value = static_cast<uint32_t>(std::stoul(in[0], nullptr, 0));
  const auto isUntouched = [&] { EXPECT_TRUE(octets == nullptr && count == nullptr); };
  EXPECT_EQ(Asn1LowIntToChar(1, &octets, nullptr), VELKORD_NULL_ARGUMENT);
  EXPECT_EQ(Asn1LowIntToChar(1, nullptr, &count), VELKORD_NULL_ARGUMENT);
  isUntouched();
  const auto call = [&] { return Asn1LowIntToChar(value, &octets, &count); };
  EXPECT_EQ(CallLibrary(Asn1LowIntToChar, call, isUntouched), 0);
  const std::string text = ToHex(octets, *count);
  std::free(octets);
  std::free(count);
  return text;
}

// What becomes of the OID node is seen by whether freeing it here is right.
std::string SetAlgorithm(const Arguments& in) {
  Anybuf* oid = ToNode(in[1]).release();
  const NodePtr algorithm = ToNode(in[2]);
  const NodePtr parameter = ToNode(in[3]);
  const auto mode = static_cast<uint32_t>(std::stoul(in[0]));
  EXPECT_EQ(ASN1_SetAlgorithmIdentifier(mode, oid, nullptr, nullptr, nullptr), -8);
  Anybuf* out = nullptr;
  const auto call = [&] {
    return ASN1_SetAlgorithmIdentifier(mode, oid, algorithm.get(), parameter.get(), &out);
  };
  const int32_t code =
      CallLibrary(ASN1_SetAlgorithmIdentifier, call, [&] { EXPECT_EQ(out, nullptr); });
  const std::string made = code == 0 ? Describe(NodePtr(out).get(), true) : std::to_string(code);
  if (in[4] == "released") return made;
  const NodePtr stillOurs(oid);
  return made + " ; " + Describe(oid, true);
}

// The functions of a type that no invocation calls.
template <typename Type>
Callers::mapped_type Special(Type*) {
  return nullptr;
}
Callers::mapped_type Special(void (*release)(Anybuf*)) { return std::bind_front(Release, release); }
Callers::mapped_type Special(void (*add)(const Anybuf*, Anybuf*)) {
  return std::bind_front(Append, add);
}
Callers::mapped_type Special(decltype(Asn1LowIntToChar)*) { return LowIntToChar; }
Callers::mapped_type Special(decltype(ASN1_SetAlgorithmIdentifier)*) { return SetAlgorithm; }

#define RECORD(name)
#define FIELD(record, name)
#define FUNCTION(name, parameters) {#name, Special(name)},
const Callers kSpecialCallers = {
#include "functions.inc"
};

}  // namespace

std::string Call(const Function& function, const Arguments& arguments, void* subject) {
  TextInputs in(arguments);
  Invocation call(function, in, subject);
  const int32_t code = call.Run();
  if (call.OutCount() == 0) return std::to_string(code);
  const bool takesNull =
      function.rule->refusal != Rule::kTakesNoNull || *function.rule->mayBeNull != 0;
  if (takesNull && (function.subject == nullptr || subject != nullptr)) {
    CallWithNulls(function, arguments, subject, code, call.SizeOfFirst());
  }
  if (!call.HasResults()) return code == 0 ? "kept" : std::to_string(code);
  return (code == 0 ? "" : std::to_string(code) + " ; ") + call.Results();
}

std::string Call(const std::string& name, const Arguments& arguments) {
  for (const Callers* callers : {&kInspectionCallers, &kSpecialCallers}) {
    const auto caller = callers->find(name);
    if (caller != callers->end() && caller->second) return caller->second(arguments);
  }
  if (const RecordType* type = FindRecordType(name)) return Build(*type, arguments);
  const Function* function = FindFunction(name);
  return function ? Call(*function, arguments, nullptr) : "no such function";
}
