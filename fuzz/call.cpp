#include "call.h"

#include <cstdlib>
#include <map>

namespace {

// The sizes of the first value and of all.
using RoomOf = size_t (*)(size_t first, size_t all);
size_t Base64(size_t size) { return (size + 2) / 3 * 4; }
size_t Bytes(size_t text, size_t /*all*/) { return text / 4 * 3; }

// What the contract of a function asks of its out buffers; the size of the first value where it is
// not here.
const std::map<std::string_view, RoomOf> kRooms = {
    {"X509CertGetOIDValue", [](size_t oid, size_t all) { return all - oid; }},
    {"base64_encode", [](size_t in, size_t) { return Base64(in) + 1; }},
    {"base64_decode", Bytes},
    {"PEM2DER_data_format", Bytes},
    {"DER2PEM_data_format",
     [](size_t in, size_t all) { return Base64(in) + (Base64(in) + 63) / 64 * 2 + all - in + 5; }},
    {"uniToUTF8", [](size_t, size_t) -> size_t { return 6; }},
    {"wcToZh", [](size_t, size_t) -> size_t { return 2; }},
    {"zhsToUtf8s", [](size_t in, size_t) { return in / 2 * 3; }},
    {"ZantEncodePublicKey", [](size_t, size_t) -> size_t { return 526; }},
    {"ZantEncodePrivateKey", [](size_t, size_t) -> size_t { return 1450; }},
    {"ASN1_EccPubkey2Der", [](size_t, size_t) -> size_t { return 312; }},
    {"ASN1_SM2_SM2SignatureEncode", [](size_t, size_t all) { return all + 20; }},
    {"ASN1_SM2_PubkeyEncode", [](size_t, size_t all) { return all + 6; }},
    {"ASN1_SM2_PubkeyDecode", [](size_t in, size_t) { return std::min<size_t>(in / 2, 127); }},
    {"ASN1_SM2_PrikeyEncode", [](size_t in, size_t) { return in + 7; }},
};

}  // namespace

size_t ByteInputs::Room(const Function& function) {
  const size_t first = values_[0].size();
  const auto room = kRooms.find(function.name);
  return room == kRooms.end() ? first
                              : room->second(first, first + values_[1].size() + values_[2].size());
}

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
  for (size_t at = 0; at < size && !in.empty(); ++at) repeated[at] = in[at % in.size()];
  return repeated;
}

Values Call(const Function& function, ByteInputs& in) {
  Invocation call(function, in);
  return call.Run() < 0 ? Values() : call.Bytes();
}

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  // A time and its text are one in a zone without daylight saving.
  static const int kZone = (GTEST_FLAG_SET(throw_on_failure, true), setenv("TZ", "UTC0", 1));
  TestInput({{data, data + size}});
  return kZone;
}
