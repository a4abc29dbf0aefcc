#include "call.h"

#include <algorithm>
#include <cstdlib>

namespace {

using RoomFor = size_t (*)(size_t first, size_t second);

// The room of out buffers by the sizes of the first two values, where it is not the first one's.
const std::pair<AnyFunction, RoomFor> kRooms[] = {
#define ROOM(function, formula)                                                                \
  {                                                                                            \
    reinterpret_cast<AnyFunction>(function),                                                   \
        []([[maybe_unused]] size_t a, [[maybe_unused]] size_t b) -> size_t { return formula; } \
  }
    ROOM(ZantEncodePublicKey, 526),
    ROOM(ZantEncodePrivateKey, 1450),
    ROOM(ASN1_EccPubkey2Der, 312),
    ROOM(ASN1_SM2_SM2SignatureEncode, a + b + 20),
    ROOM(ASN1_SM2_PrikeyEncode, a + 7),
    ROOM(ASN1_SM2_PubkeyEncode, a + b + 6),
    ROOM(ASN1_SM2_PubkeyDecode, std::min<size_t>(a / 2, 127)),
    ROOM(base64_encode, (a + 2) / 3 * 4 + 1),
    ROOM(base64_decode, a / 4 * 3),
    ROOM(DER2PEM_data_format, (a + 2) / 3 * 4 + (a + 47) / 48 * 2 + 2 * (b + 2) + 1),
    ROOM(PEM2DER_data_format, a / 4 * 3),
    ROOM(uniToUTF8, 6),
    ROOM(wcToZh, 2),
    ROOM(zhsToUtf8s, a / 2 * 3),
};

}  // namespace

void ByteInputs::Restart(uint32_t type) {
  at_ = 0;
  type_ = type;
  made_.clear();
}

int64_t ByteInputs::Number() {
  int64_t number = 0;
  const ByteVector& value = Next();
  std::copy_n(value.begin(), std::min(value.size(), sizeof number),
              reinterpret_cast<uint8_t*>(&number));
  return number;
}

Anybuf* ByteInputs::Node() {
  NodePtr& node = nodes_[std::min(at_, nodes_.size() - 1)];
  const ByteVector& value = Next();
  if (value.data() == nullptr) return nullptr;
  if (node == nullptr) node = MakeNode(value);
  node->dataType = type_ == kOwnType ? ReducedTag(value) : type_;
  return node.get();
}

Inputs::Block ByteInputs::Bytes(size_t size) {
  const ByteVector& value = Next();
  if (size == 0) return {value.data(), value.size()};
  ByteVector& filled = made_.emplace_back(size);
  for (size_t at = 0; at < size && !value.empty(); ++at) filled[at] = value[at % value.size()];
  return {filled.data(), size};
}

Inputs::Block ByteInputs::Text(bool isTerminated) {
  const ByteVector& value = Next();
  if (!isTerminated && !value.empty()) return {value.data(), value.size()};
  ByteVector& text = made_.emplace_back(value);
  text.push_back(0);
  return {text.data(), value.size()};
}

size_t ByteInputs::Room(const Function& function) {
  const auto* found = std::find_if(std::begin(kRooms), std::end(kRooms), [&](const auto& room) {
    return room.first == function.address;
  });
  return found == std::end(kRooms) ? Value(0).size()
                                   : found->second(Value(0).size(), Value(1).size());
}

void ByteInputs::ExpectUnchanged() {
  for (size_t at = 0; at < nodes_.size(); ++at) {
    EXPECT_TRUE(nodes_[at] == nullptr ||
                std::equal(values_[at].begin(), values_[at].end(), nodes_[at]->data));
  }
}

Values Call(const Function& function, const Values& in) {
  ByteInputs inputs(in);
  Invocation call(function, inputs);
  return call.Run() < 0 ? Values() : call.Bytes();
}

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  // A time and its text are one in a zone without daylight saving.
  static const bool kIsPrepared = [] {
    GTEST_FLAG_SET(break_on_failure, true);
    return setenv("TZ", "UTC0", 1) == 0;
  }();
  ByteVector in(data, data + size);
  if (size == 0) in.reserve(1);  // No null pointer.
  TestInput(in);
  return kIsPrepared ? 0 : 1;
}
