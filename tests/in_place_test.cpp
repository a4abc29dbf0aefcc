// Keys encoded and decoded in buffers that lie over their input.
#include "hex.h"

namespace {

// Calls a function on an input of a fixed size and gives what it gave.
using Call = ByteVector (*)(uint8_t* in, uint8_t* out);

// The call must give the same wherever `out`, which has `room` bytes, lies over the input.
void ExpectSameInPlace(const ByteVector& input, size_t room, size_t step, Call call) {
  ByteVector in = input;
  ByteVector out(room);
  const ByteVector apart = call(in.data(), out.data());
  EXPECT_GT(apart.size(), 1U);
  for (size_t at = 0; at <= room + input.size(); at += step) {
    ByteVector both(2 * room + input.size());
    std::copy(input.begin(), input.end(), both.begin() + static_cast<ptrdiff_t>(room));
    EXPECT_EQ(call(both.data() + room, both.data() + at), apart) << at;
  }
}

// Bytes that tell their places, behind a start.
ByteVector Numbered(size_t size, const std::string& start = "") {
  ByteVector bytes = FromHex(start);
  for (size_t at = 0; at < size; ++at) bytes.push_back(static_cast<uint8_t>(0x81 + at));
  return bytes;
}

// A code and what stands in a buffer.
ByteVector Given(int32_t code, const uint8_t* out, size_t size) {
  ByteVector bytes(out, out + size);
  bytes.push_back(static_cast<uint8_t>(code));
  return bytes;
}

// What was given to two buffers that stand `kApart` bytes apart.
constexpr size_t kApart = 20;
ByteVector Both(const uint8_t* first, uint32_t firstSize, const uint8_t* second, uint32_t size) {
  ByteVector bytes = Given(0, first, firstSize);
  bytes.insert(bytes.end(), second, second + size);
  return bytes;
}

template <typename Key, int32_t (*kEncode)(const Key*, uint8_t*, uint32_t*), size_t kRoom>
void EncodeKey() {
  ExpectSameInPlace(Numbered(sizeof(Key)), kRoom, 4, [](uint8_t* in, uint8_t* out) {
    uint32_t size = 0;
    const int32_t code = kEncode(reinterpret_cast<Key*>(in), out, &size);
    return Given(code, out, size);
  });
}

template <typename Key, typename Length, int32_t (*kDecode)(Key*, const uint8_t*, Length),
          uint32_t kSize>
void DecodeKey(const ByteVector& der) {
  EXPECT_EQ(der.size(), kSize);
  ExpectSameInPlace(der, sizeof(Key), 4, [](uint8_t* in, uint8_t* out) {
    return Given(kDecode(reinterpret_cast<Key*>(out), in, kSize), out, sizeof(Key));
  });
}

template <typename Key, int32_t (*kDecode)(const uint8_t*, uint32_t, Key*)>
int32_t KeyFirst(Key* key, const uint8_t* der, uint32_t length) {
  return kDecode(der, length, key);
}

TEST(InPlace, RsaKeys) {
  EncodeKey<ZantPublicKey, ZantEncodePublicKey, 528>();
  EncodeKey<ZantPrivateKey, ZantEncodePrivateKey, 1452>();
  DecodeKey<ZantPublicKey, int32_t, ZantDecodePublicKey, 12>(
      FromHex("30 0A 02 03 00 80 01 02 03 01 00 01"));
  ByteVector key = Numbered(sizeof(ZantPrivateKey));
  ByteVector der(1450);
  uint32_t size = 0;
  EXPECT_EQ(ZantEncodePrivateKey(reinterpret_cast<ZantPrivateKey*>(key.data()), der.data(), &size),
            0);
  DecodeKey<ZantPrivateKey, int32_t, ZantDecodePrivateKey, 1448>({der.begin(), der.begin() + size});
}

TEST(InPlace, KeysOfEllipticCurves) {
  EncodeKey<EccPubkey, ASN1_EccPubkey2Der, 312>();
  DecodeKey<EccPubkey, uint32_t, KeyFirst<EccPubkey, ASN1_Der2EccPubkey>, 72>(
      Numbered(64, "30 46 30 00 03 42 00 04"));
  DecodeKey<EccPrikey, uint32_t, KeyFirst<EccPrikey, ASN1_Der2EccPrikey>, 47>(
      Numbered(32, "30 2D 05 00 05 00 04 27 30 25 02 01 01 04 20"));
}

TEST(InPlace, Sm2Values) {
  ExpectSameInPlace(Numbered(32), 40, 1, [](uint8_t* in, uint8_t* out) {
    uint32_t size = 0;
    ASN1_SM2_PrikeyEncode(in, 32, out, &size);
    return Given(0, out, size);
  });
  ExpectSameInPlace(FromHex("02 05 00 81 82 83 84"), 8, 1, [](uint8_t* in, uint8_t* out) {
    uint32_t size = 0;
    ASN1_SM2_PrikeyDecode(out, &size, in, 7);
    return Given(0, out, size);
  });
}

// Two numbers from one buffer to one, in either order.
TEST(InPlace, Sm2SignaturesAndPoints) {
  const ByteVector numbers = Numbered(2 * kApart);
  ExpectSameInPlace(numbers, 60, 1, [](uint8_t* in, uint8_t* out) {
    uint32_t size = 0;
    ASN1_SM2_SM2SignatureEncode(in + kApart, 16, in, 17, out, &size);
    return Given(0, out, size);
  });
  ExpectSameInPlace(numbers, 60, 1, [](uint8_t* in, uint8_t* out) {
    uint32_t size = 0;
    ASN1_SM2_PubkeyEncode(in + kApart, 16, in, 16, out, &size);
    return Given(0, out, size);
  });
  const ByteVector signature = FromHex("30 0D 02 05 00 81 82 83 84 02 04 11 22 33 44");
  ExpectSameInPlace(signature, 40, 1, [](uint8_t* in, uint8_t* out) {
    uint32_t sizes[2] = {};
    ASN1_SM2_SM2SignatureDecode(out, sizes, out + kApart, sizes + 1, in, 15);
    return Both(out, sizes[0], out + kApart, sizes[1]);
  });
  ExpectSameInPlace(signature, 40, 1, [](uint8_t* in, uint8_t* out) {
    uint32_t sizes[2] = {};
    ASN1_SM2_SM2SignatureDecode(out + 4, sizes, out, sizes + 1, in, 15);
    return Both(out + 4, sizes[0], out, sizes[1]);
  });
  ExpectSameInPlace(FromHex("03 0A 00 04 81 82 83 84 11 22 33 44"), 40, 1,
                    [](uint8_t* in, uint8_t* out) {
                      uint32_t sizes[2] = {};
                      ASN1_SM2_PubkeyDecode(out + 4, sizes, out, sizes + 1, in, 12);
                      return Both(out + 4, sizes[0], out, sizes[1]);
                    });

  // The length of the first number may lie over the second one.
  alignas(uint32_t)
      uint8_t der[] = {0x30, 0x08, 0x02, 0x02, 0x11, 0x22, 0x02, 0x02, 0x33, 0x44, 0x00, 0x00};
  uint8_t read[4];
  uint32_t size = 0;
  ASN1_SM2_SM2SignatureDecode(read, reinterpret_cast<uint32_t*>(der + 8), read + 2, &size, der, 10);
  EXPECT_EQ(ToHex(read, sizeof read), "11 22 33 44");
}

}  // namespace
