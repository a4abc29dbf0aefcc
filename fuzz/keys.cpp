// Keys and signatures from any bytes, and any numbers to keys and signatures and back.
#include "call.h"

namespace {

using Widths = std::initializer_list<ptrdiff_t>;

// A key whose numbers stand at their fields' ends is decoded with them at the fields' starts. A
// private key whose second element, the modulus, has 13 octets is taken for one of PKCS#8.
template <typename Encode, typename Decode>
void EncodeRsa(Widths fields, ByteVector key, size_t room, Encode* encode, Decode* decode) {
  const Function& function = Find(encode);
  ByteInputs in{key};
  in.room = room;
  Invocation call(function, in);
  Invocation sizing(function, in, nullptr, 0);  // Without a buffer.
  EXPECT_EQ(call.Run(), sizing.Run());
  EXPECT_EQ(call.SizeOfFirst(), sizing.SizeOfFirst());
  if (!call.HasResults()) return;
  auto field = key.begin();
  for (const ptrdiff_t width : fields) {
    const auto end = field + width;
    const auto first = std::find_if(field, end, [](uint8_t octet) { return octet != 0; });
    if (fields.size() > 2 && field == key.begin() && end - first == 13) return;
    std::rotate(field, first, end);
    field = end;
  }
  EXPECT_EQ(Call(decode, call.Bytes()).at(0), key);
}

template <typename Key, typename Decode>
void Rsa(Widths fields, ByteView in, size_t room,
         int32_t (*encode)(const Key*, uint8_t*, uint32_t*), Decode* decode) {
  const Values read = Call(decode, {in});
  if (!read.empty()) EncodeRsa(fields, read[0], room, encode, decode);
  EncodeRsa(fields, Repeat(in, sizeof(Key)), room, encode, decode);
}

// A zero in front of an octet of 0x80 or more is taken for the one that keeps a number positive.
bool ComesBack(const ByteVector& number) {
  return number.size() < 2 || number[0] != 0 || number[1] < 0x80;
}
bool NumbersComeBack(const Values& values) {
  return std::all_of(values.begin(), values.end(), ComesBack);
}
bool HalvesComeBack(const Values& values) { return values[0].size() == values[1].size(); }

size_t Same(size_t size) { return size; }
size_t Half(size_t size) { return std::min<size_t>(size / 2, 127); }

// What is encoded is decoded to the same, both what the input holds and the input cut into numbers.
// Only much is refused. A code needs `frame` octets more than its numbers.
template <typename Encode, typename Decode>
void Sm2(ByteView in, const Values& numbers, size_t frame, Encode* encode, Decode* decode,
         size_t (*decodedRoom)(size_t), bool (*comeBack)(const Values&)) {
  const Values read = Call(decode, {in}, decodedRoom(in.size()));
  for (const Values* values : {&read, &numbers}) {
    if (values->empty()) continue;
    size_t size = 0;
    for (const ByteVector& value : *values) size += value.size();
    const Values der = Call(encode, *values, size + frame);
    EXPECT_TRUE(!der.empty() || size > 200);
    if (der.empty() || !comeBack(*values)) continue;
    EXPECT_EQ(Call(decode, der, decodedRoom(der[0].size())), *values);
  }
}

Values Cut(ByteView in, size_t size) {
  const auto middle = in.begin() + static_cast<ptrdiff_t>(size);
  return {{in.begin(), middle}, {middle, in.end()}};
}

}  // namespace

void TestInput(ByteView in) {
  Rsa({256, 256}, in, 526, ZantEncodePublicKey, ZantDecodePublicKey);
  Rsa({256, 256, 256, 128, 128, 128, 128, 128}, in, 1450, ZantEncodePrivateKey,
      ZantDecodePrivateKey);
  Call(ASN1_Der2EccPrikey, {in});
  const Values key = Call(ASN1_Der2EccPubkey, {in});
  if (!key.empty()) {
    EXPECT_EQ(Call(ASN1_Der2EccPubkey, Call(ASN1_EccPubkey2Der, key, 312)), key);
  }
  Sm2(in, Cut(in, in.size() / 3), 20, ASN1_SM2_SM2SignatureEncode, ASN1_SM2_SM2SignatureDecode,
      Same, NumbersComeBack);
  Sm2(in, Cut(in, in.size() / 2), 6, ASN1_SM2_PubkeyEncode, ASN1_SM2_PubkeyDecode, Half,
      HalvesComeBack);
  Sm2(in, {{in.begin(), in.end()}}, 7, ASN1_SM2_PrikeyEncode, ASN1_SM2_PrikeyDecode, Same,
      NumbersComeBack);
}
