#include "call.h"

#include <cstdlib>

int64_t ByteInputs::Number() {
  int64_t number = 0;
  const ByteView value = Next();
  std::copy_n(value.begin(), std::min(value.size(), sizeof number),
              reinterpret_cast<uint8_t*>(&number));
  return number;
}

Anybuf* ByteInputs::Node() {
  NodePtr& node = nodes_[std::min(at_, nodes_.size() - 1)];
  const ByteView value = Next();
  if (value.data() == nullptr) return nullptr;
  const auto size = static_cast<uint32_t>(value.size());
  if (node == nullptr) node = Make(ASN1_CreateAnybuf, value.data(), size, uint8_t{0});
  node->dataType = type == kOwnType ? ReducedTag(value) : type;
  return node.get();
}

Inputs::Block ByteInputs::Bytes(size_t size) {
  const ByteView value = Next();
  if (size == 0 || size == value.size()) return {value.data(), value.size()};
  return {(made_.at(at_ - 1) = Repeat(value, size)).data(), size};
}

Inputs::Block ByteInputs::Text(bool isTerminated) {
  const ByteView value = Next();
  if (!isTerminated && !value.empty()) return {value.data(), value.size()};
  ByteVector& text = made_.at(at_ - 1) = ByteVector(value.size() + 1);
  std::copy(value.begin(), value.end(), text.begin());
  return {text.data(), value.size()};
}

void ByteInputs::ExpectUnchanged() {
  at_ = 0;
  for (size_t at = 0; at < nodes_.size(); ++at) {
    if (nodes_[at] == nullptr) continue;
    EXPECT_TRUE(std::equal(values_[at].begin(), values_[at].end(), nodes_[at]->data));
  }
}

ByteVector Repeat(ByteView in, size_t size) {
  ByteVector repeated(size);
  for (size_t at = 0; at < size && !in.empty(); ++at) {
    repeated[at] = at < in.size() ? in[at] : repeated[at - in.size()];
  }
  return repeated;
}

Values Call(const Function& function, ByteInputs& in) {
  Invocation call(function, in);
  return call.Run() < 0 ? Values() : call.Bytes();
}

std::vector<const Function*> Select(bool (*isMeant)(const Function&)) {
  std::vector<const Function*> selected;
  for (const Function& function : Functions()) {
    if (function.run && isMeant(function)) selected.push_back(&function);
  }
  return selected;
}

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  // A time and its text are one in a zone without daylight saving.
  static const int kZone = (GTEST_FLAG_SET(throw_on_failure, true), setenv("TZ", "UTC0", 1));
  TestInput({data, size});
  return kZone;
}
