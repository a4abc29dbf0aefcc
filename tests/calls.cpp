#include "calls.h"

#include <algorithm>

#include "invocation.h"

namespace {

// The arguments of a call as text: none and null are null pointers, and so is a text without bytes;
// `empty` is a pointer to none. Of a node that the function may release it does not release what
// follows `kept`, the node itself or its neighbour.
class TextInputs : public Inputs {
 public:
  explicit TextInputs(const Arguments& in) : in_(in) {}

  int64_t Number() override { return std::stoll(Next(), nullptr, 0); }
  Anybuf* Node() override { return Keep(ToNode(Next())); }
  // What the function does not release shows under the sanitizers.
  Anybuf* GivenNode() override {
    const std::vector<std::string> parts = Split(Next(), "kept ");
    Anybuf* kept = parts.size() == 1 ? nullptr : Keep(ToNode(parts[1]));
    if (parts[0].empty()) return kept;
    given_ = ToNode(parts[0]);
    if (kept != nullptr) given_->next = kept;
    return given_.get();
  }
  void LetGo() override { std::ignore = given_.release(); }
  Block Bytes(size_t size) override {
    const std::string text = Next();
    if (text == "null") return {nullptr, 1};
    // The end of a block, where any read shows under the sanitizers.
    if (text == "empty") return {Keep(MakeNode({0}))->data + 1, 0};
    const Anybuf* node = Keep(MakeNode(FromHex(text)));
    EXPECT_TRUE(size == 0 || size == node->dataLen);
    return {node->dataLen == 0 ? nullptr : node->data, node->dataLen};
  }
  // A line end is written as `|`.
  Block Text(bool isTerminated) override {
    std::string text = Next();
    if (text == "null") return {nullptr, 1};
    for (size_t at; (at = text.find('|')) != std::string::npos;) text.replace(at, 1, "\r\n");
    ByteVector bytes(text.begin(), text.end());
    const size_t size = bytes.size();
    if (isTerminated || bytes.empty()) bytes.push_back(0);
    return {Keep(MakeNode(bytes))->data, size};
  }
  size_t Room(const Function&) override { return 1500; }
  void ExpectUnchanged() override {
    for (const auto& [node, text] : kept_) EXPECT_EQ(Describe(node.get()), text);
    if (given_ != nullptr && !kept_.empty()) given_->next = nullptr;
  }
  void BeforeObject(size_t size) override { DirtyHeap(size); }

 private:
  Anybuf* Keep(NodePtr node) {
    kept_.emplace_back(std::move(node), "");
    kept_.back().second = Describe(kept_.back().first.get());
    return kept_.back().first.get();
  }

  std::string Next() { return at_ < in_.size() ? in_[at_++] : ""; }

  const Arguments& in_;
  size_t at_ = 0;
  std::vector<std::pair<NodePtr, std::string>> kept_;  // Nodes or bytes, as they shall stay.
  NodePtr given_;
};

// With each out argument in turn a null pointer, which is refused or goes without that result.
void CallWithNulls(const Function& function, const Arguments& arguments, void* subject,
                   int32_t plainCode, uint32_t plainSize) {
  const Rule& rule = *function.rule;
  for (size_t nulled = 0, outs = 1; nulled < outs; ++nulled) {
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

// The code of a setter that fails, which must leave the record as it was. The step `show` gives the
// fields of the record.
std::string Set(const RecordType& type, void* record, const std::string& step) {
  if (step == "show") return type.Describe(record) + "; ";
  const std::string name = step.substr(0, step.find('='));
  const std::string value = step.substr(name.size() + 1);
  for (const RecordType::Field& field : type.fields) {
    if (name != field.name) continue;
    void* place = static_cast<uint8_t*>(record) + field.offset;
    if (field.isNode) {
      ASN1_FreeAnybuf(std::exchange(*static_cast<Anybuf**>(place), nullptr));
    } else {
      *static_cast<uint32_t*>(place) = static_cast<uint32_t>(std::stoul(value));
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
  for (const std::string& step : steps) text += Set(type, record, step);
  EXPECT_EQ(Call(*type.write, {}, nullptr), "-8");
  const std::string written = Call(*type.write, {}, record);
  EXPECT_EQ(Call(*type.write, {}, record), written);
  type.release(record);
  type.release(nullptr);
  return text + written;
}

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
  if (name == "X509CertGetSubject") return ListSubject(arguments);
  if (name == "X509CertGetOIDValue") return LookUp(arguments);
  if (const RecordType* type = FindRecordType(name)) return Build(*type, arguments);
  const Function* function = FindFunction(name);
  if (function == nullptr) return "no such function";
  if (name.starts_with("ASN1_Add")) return Append(*function, arguments);
  return Call(*function, arguments, nullptr);
}
