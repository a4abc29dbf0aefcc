// Keys and signatures from any bytes, and any numbers to keys and signatures and back.
#include <numeric>

#include "call.h"

namespace {

// A key whose numbers stand at their fields' ends is decoded with them at the fields' starts. A
// private key whose second element, the modulus, has 13 octets is taken for one of PKCS#8.
template <typename Encode, typename Decode>
void EncodeRsa(const std::vector<size_t>& fields, ByteVector key, Encode* encode, Decode* decode) {
  const Values der = Call(encode, {key});
  if (der.empty()) return;
  auto field = key.begin();
  for (const size_t width : fields) {
    const auto end = field + static_cast<ptrdiff_t>(width);
    const auto first = std::find_if(field, end, [](uint8_t octet) { return octet != 0; });
    if (fields.size() > 2 && field == key.begin() && end - first == 13) return;
    std::rotate(field, first, end);
    field = end;
  }
  EXPECT_EQ(Call(decode, der), Values{key});
}

template <typename Encode, typename Decode>
void Rsa(const std::vector<size_t>& fields, const ByteVector& in, Encode* encode, Decode* decode) {
  const Values read = Call(decode, {in});
  if (!read.empty()) EncodeRsa(fields, read[0], encode, decode);
  ByteVector key(std::accumulate(fields.begin(), fields.end(), size_t{0}));
  for (size_t at = 0; at < key.size() && !in.empty(); ++at) key[at] = in[at % in.size()];
  EncodeRsa(fields, key, encode, decode);
}

// A zero in front of an octet of 0x80 or more is taken for the one that keeps a number positive.
bool ComesBack(const ByteVector& number) {
  return number.size() < 2 || number[0] != 0 || number[1] < 0x80;
}
bool NumbersComeBack(const Values& values) {
  return std::all_of(values.begin(), values.end(), ComesBack);
}
bool HalvesComeBack(const Values& values) { return values[0].size() == values[1].size(); }

// What is encoded is decoded to the same. Only much is refused.
template <typename Encode, typename Decode, typename Test>
void EncodeSm2(const Values& values, Encode* encode, Decode* decode, Test comeBack) {
  const Values der = Call(encode, values);
  size_t size = 0;
  for (const ByteVector& value : values) size += value.size();
  EXPECT_TRUE(!der.empty() || size > 200);
  if (!der.empty() && comeBack(values)) {
    EXPECT_EQ(Call(decode, der), values);
  }
}

template <typename Encode, typename Decode, typename Test>
void Sm2(const Values& in, const Values& numbers, Encode* encode, Decode* decode, Test comeBack) {
  const Values read = Call(decode, in);
  if (!read.empty()) EncodeSm2(read, encode, decode, comeBack);
  EncodeSm2(numbers, encode, decode, comeBack);
}

Values Cut(const ByteVector& in, size_t size) {
  const auto middle = in.begin() + static_cast<ptrdiff_t>(size);
  return {{in.begin(), middle}, {middle, in.end()}};
}

}  // namespace

void TestInput(const ByteVector& in) {
  Rsa({256, 256}, in, ZantEncodePublicKey, ZantDecodePublicKey);
  Rsa({256, 256, 256, 128, 128, 128, 128, 128}, in, ZantEncodePrivateKey, ZantDecodePrivateKey);
  const Values key = Call(ASN1_Der2EccPubkey, {in});
  if (!key.empty()) {
    EXPECT_EQ(Call(ASN1_Der2EccPubkey, Call(ASN1_EccPubkey2Der, key)), key);
  }
  Sm2({in}, Cut(in, in.size() / 3), ASN1_SM2_SM2SignatureEncode, ASN1_SM2_SM2SignatureDecode,
      NumbersComeBack);
  Sm2({in}, Cut(in, in.size() / 2), ASN1_SM2_PubkeyEncode, ASN1_SM2_PubkeyDecode, HalvesComeBack);
  Sm2({in}, {in}, ASN1_SM2_PrikeyEncode, ASN1_SM2_PrikeyDecode, NumbersComeBack);
}
