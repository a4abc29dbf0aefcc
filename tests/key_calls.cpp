// Calls of the key functions. An RSA record is its numbers with "; " between them.
#include <algorithm>
#include <span>

#include "calls.h"

namespace {

constexpr uint8_t kFill = 0xEE;

using Fields = std::vector<std::span<uint8_t>>;

Fields FieldsOf(ZantPublicKey& key) { return {key.modulus, key.publicExponent}; }

Fields FieldsOf(ZantPrivateKey& key) {
  return {key.modulus, key.publicExponent, key.privateExponent, key.prime1,
          key.prime2,  key.exponent1,      key.exponent2,       key.coefficient};
}

// Every number at its field's end. The size is asked for first and must be the same.
template <typename Key>
Callers::mapped_type Encoder(int32_t (*encode)(const Key*, uint8_t*, uint32_t*)) {
  return [encode](const Arguments& in) {
    Key key{};
    const Fields fields = FieldsOf(key);
    for (size_t at = 0; at < in.size(); ++at) {
      const ByteVector number = FromHex(in[at]);
      std::copy(number.begin(), number.end(), fields[at].end() - Size(number));
    }
    Buffer out;
    uint32_t size = Buffer::kNoSize;
    EXPECT_EQ(encode(nullptr, out.Data(), &size), -1);
    EXPECT_EQ(encode(&key, out.Data(), nullptr), -1);
    const int32_t code = encode(&key, nullptr, &size);
    out.bytes.resize(size == Buffer::kNoSize ? 1 : size, kFill);
    EXPECT_EQ(encode(&key, out.Data(), &out.size), code);
    EXPECT_EQ(out.size, size);
    const std::string text = out.Text();
    return code == 0 ? text : std::to_string(code) + " ; " + text;
  };
}

// The code, then every field up to the zero bytes behind its number.
template <typename Key>
Callers::mapped_type Decoder(int32_t (*decode)(Key*, const uint8_t*, int32_t)) {
  return [decode](const Arguments& in) {
    const ByteVector der = FromHex(in[0]);
    Key key;
    std::fill_n(reinterpret_cast<uint8_t*>(&key), sizeof key, kFill);
    const auto size = static_cast<int32_t>(der.size());
    EXPECT_EQ(decode(nullptr, der.data(), size), -1);
    EXPECT_EQ(decode(&key, nullptr, size), -1);
    EXPECT_EQ(decode(&key, der.data(), 0), -1);
    EXPECT_EQ(decode(&key, der.data(), -size), -1);
    EXPECT_EQ(key.modulus[0], kFill);
    std::string text = std::to_string(decode(&key, der.data(), size));
    for (const std::span<uint8_t> field : FieldsOf(key)) {
      size_t used = field.size();
      while (used != 0 && field[used - 1] == 0) --used;
      text += " ; " + ToHex(field.data(), used);
    }
    return text;
  };
}

std::string EncodePoint(const Arguments& in) {
  EccPubkey key{7, {}, {}};
  const ByteVector x = FromHex(in[0]);
  const ByteVector y = FromHex(in[1]);
  std::copy(x.begin(), x.end(), key.x);
  std::copy(y.begin(), y.end(), key.y);
  Buffer out;
  EXPECT_EQ(ASN1_EccPubkey2Der(nullptr, out.Data(), &out.size), -1);
  EXPECT_EQ(ASN1_EccPubkey2Der(&key, nullptr, &out.size), -1);
  EXPECT_EQ(ASN1_EccPubkey2Der(&key, out.Data(), nullptr), -1);
  EXPECT_EQ(out.Text(), "kept");
  EXPECT_EQ(ASN1_EccPubkey2Der(&key, out.Data(), &out.size), 0);
  EccPubkey back{};
  EXPECT_EQ(ASN1_Der2EccPubkey(out.Data(), out.size, &back), 0);
  EXPECT_EQ(ToHex(back.x, 32) + ToHex(back.y, 32), ToHex(key.x, 32) + ToHex(key.y, 32));
  return out.Text();
}

std::string DecodePoint(const Arguments& in) {
  const ByteVector der = FromHex(in[0]);
  EccPubkey key{7, {kFill}, {kFill}};
  EXPECT_EQ(ASN1_Der2EccPubkey(nullptr, Size(der), &key), -1);
  EXPECT_EQ(ASN1_Der2EccPubkey(der.data(), Size(der), nullptr), -1);
  const int32_t code = ASN1_Der2EccPubkey(der.data(), Size(der), &key);
  if (code == 0) {
    return std::to_string(key.bits) + " ; " + ToHex(key.x, 32) + " ; " + ToHex(key.y, 32);
  }
  EXPECT_TRUE(key.bits == 7 && key.x[0] == kFill && key.y[0] == kFill);
  return std::to_string(code);
}

// The private value up to the bytes that were left alone.
std::string DecodePrivateValue(const Arguments& in) {
  const ByteVector der = FromHex(in[0]);
  EccPrikey key{7, {}};
  std::fill_n(key.d, sizeof key.d, kFill);
  EXPECT_EQ(ASN1_Der2EccPrikey(nullptr, Size(der), &key), -1);
  EXPECT_EQ(ASN1_Der2EccPrikey(der.data(), Size(der), nullptr), -1);
  const int32_t code = ASN1_Der2EccPrikey(der.data(), Size(der), &key);
  size_t used = sizeof key.d;
  while (used != 0 && key.d[used - 1] == kFill) --used;
  EXPECT_EQ(code == 0 ? 256U : 7U, key.bits);
  return code == 0 ? ToHex(key.d, used) : std::to_string(code) + " " + std::to_string(used);
}

// A function that reports nothing: with a null out argument it leaves the others alone.
template <typename Function>
Callers::mapped_type Silent(Function function) {
  return [=](const Arguments& in) {
    size_t outs = 1;
    for (size_t nulled = 0; nulled < outs; ++nulled) {
      Invocation call(in, nulled);
      EXPECT_EQ(call.Run(function), 0);
      EXPECT_EQ(call.Results().find_first_not_of("kept ;"), std::string::npos) << nulled;
      outs = call.OutCount();
    }
    Invocation call(in);
    EXPECT_EQ(call.Run(function), 0);
    return call.Results();
  };
}

}  // namespace

const Callers kKeyCallers = {
    {"ZantEncodePublicKey", Encoder(ZantEncodePublicKey)},
    {"ZantEncodePrivateKey", Encoder(ZantEncodePrivateKey)},
    {"ZantDecodePublicKey", Decoder(ZantDecodePublicKey)},
    {"ZantDecodePrivateKey", Decoder(ZantDecodePrivateKey)},
    {"ASN1_EccPubkey2Der", EncodePoint},
    {"ASN1_Der2EccPubkey", DecodePoint},
    {"ASN1_Der2EccPrikey", DecodePrivateValue},
    {"ASN1_SM2_SM2SignatureEncode", Silent(ASN1_SM2_SM2SignatureEncode)},
    {"ASN1_SM2_SM2SignatureDecode", Silent(ASN1_SM2_SM2SignatureDecode)},
    {"ASN1_SM2_PrikeyEncode", Silent(ASN1_SM2_PrikeyEncode)},
    {"ASN1_SM2_PrikeyDecode", Silent(ASN1_SM2_PrikeyDecode)},
    {"ASN1_SM2_PubkeyEncode", Silent(ASN1_SM2_PubkeyEncode)},
    {"ASN1_SM2_PubkeyDecode", Silent(ASN1_SM2_PubkeyDecode)},
};
