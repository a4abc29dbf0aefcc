// Keys and signatures from any bytes, and any numbers to keys and signatures and back.
#include "call.h"

namespace {

// The DER of a key decodes to a key that is encoded and decoded to itself: for a key in the input,
// and for the input as a key.
template <auto kDecode, auto kEncode>
void Rsa(const Values& in, size_t keySize) {
  for (const Values& key : {Call<kDecode>(in), Values{Repeat(in[0], keySize)}}) {
    Rebuild<kDecode, kEncode>(Call<kEncode>(key));
  }
}

// A zero in front of an octet of 0x80 or more is taken for the one that keeps a number positive.
bool ReadsAsWritten(const ByteVector& number) {
  return number.size() < 2 || number[0] != 0 || number[1] < 0x80;
}

// What is encoded is decoded to the same, both what the input holds and the input cut into numbers.
// Only long numbers are refused.
template <auto kDecode, auto kEncode>
void Sm2(const Values& in, const Values& numbers) {
  for (const Values& values : {Call<kDecode>(in), numbers}) {
    if (values.empty()) continue;
    const Values der = Call<kEncode>(values);
    EXPECT_TRUE(!der.empty() || in[0].size() > 200);
    if (der.empty() || !std::all_of(values.begin(), values.end(), ReadsAsWritten)) continue;
    EXPECT_EQ(Call<kDecode>(der), values);
  }
}

Values Cut(ByteView in, size_t size) { return {Copy(in.first(size)), Copy(in.subspan(size))}; }

}  // namespace

void TestInput(const Values& in) {
  Rsa<ZantDecodePublicKey, ZantEncodePublicKey>(in, sizeof(ZantPublicKey));
  Rsa<ZantDecodePrivateKey, ZantEncodePrivateKey>(in, sizeof(ZantPrivateKey));
  Rebuild<ASN1_Der2EccPubkey, ASN1_EccPubkey2Der>(in);
  const ByteView bytes = in[0];
  const size_t half = bytes.size() / 2;
  Sm2<ASN1_SM2_SM2SignatureDecode, ASN1_SM2_SM2SignatureEncode>(in, Cut(bytes, bytes.size() / 3));
  Sm2<ASN1_SM2_PubkeyDecode, ASN1_SM2_PubkeyEncode>(in, Cut(bytes.first(2 * half), half));
  Sm2<ASN1_SM2_PrikeyDecode, ASN1_SM2_PrikeyEncode>(in, in);
}
