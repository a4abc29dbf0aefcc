// Callers' buffers and nodes: outputs that lie over their input, sizes that none can have, and a
// node that the library did not make.
#include <cstdlib>

#include "hex.h"

namespace {

// Bytes after a start that tell their places.
ByteVector Numbered(const std::string& start, size_t count) {
  ByteVector bytes = FromHex(start);
  for (size_t at = 0; at < count; ++at) bytes.push_back(static_cast<uint8_t>(0x81 + at));
  return bytes;
}

// Calls a function on an input and says how many bytes it put at `out`.
using Call = std::function<void(uint8_t* in, uint32_t size, uint8_t* out, uint32_t* written)>;

// The call must write the same wherever `out`, which has `room` bytes, lies over the input.
void ExpectSameInPlace(const ByteVector& input, size_t room, size_t step, const Call& call) {
  std::string apart;
  for (size_t at = 0; at <= room + input.size(); at += step) {
    ByteVector both(2 * room + input.size());
    std::copy(input.begin(), input.end(), both.data() + room);
    uint32_t written = 0;
    call(&both[room], Size(input), &both[at], &written);
    if (at == 0) apart = ToHex(both.data(), written);
    ASSERT_EQ(ToHex(&both[at], written), apart) << at;
  }
  EXPECT_NE(apart, "");
}

// What is at a place that is aligned for it.
template <typename Object>
Object* At(void* place) {
  return static_cast<Object*>(place);
}

template <typename Key>
void EncodeInPlace(int32_t (*encode)(const Key*, uint8_t*, uint32_t*), size_t room) {
  ExpectSameInPlace(Numbered("", sizeof(Key)), room, 4,
                    [=](auto* in, auto, auto* out, auto* size) { encode(At<Key>(in), out, size); });
}

// `decode` has a key as its last argument.
template <typename Key, typename Decode>
void DecodeInPlace(const ByteVector& der, Decode decode) {
  ExpectSameInPlace(der, sizeof(Key), 4, [=](auto* in, auto size, auto* out, auto* written) {
    decode(in, size, At<Key>(out));
    *written = sizeof(Key);
  });
}

TEST(InPlace, KeysAreAsApart) {
  EncodeInPlace(ZantEncodePublicKey, 528);
  EncodeInPlace(ZantEncodePrivateKey, 1452);
  EncodeInPlace(ASN1_EccPubkey2Der, 312);
  const auto rsa = [](const auto& decode) {
    return [=](auto* der, auto size, auto* key) { decode(key, der, static_cast<int32_t>(size)); };
  };
  DecodeInPlace<ZantPublicKey>(FromHex("@rsa2048_public.der"), rsa(ZantDecodePublicKey));
  DecodeInPlace<ZantPrivateKey>(FromHex("@rsa2048_pkcs1.der"), rsa(ZantDecodePrivateKey));
  DecodeInPlace<EccPubkey>(Numbered("30 46 30 00 03 42 00 04", 64), ASN1_Der2EccPubkey);
  DecodeInPlace<EccPrikey>(Numbered("30 2D 05 00 05 00 04 27 30 25 02 01 01 04 20", 32),
                           ASN1_Der2EccPrikey);
}

TEST(InPlace, ValuesAreAsApart) {
  const ByteVector number = FromHex("02 05 00 81 82 83 84");
  ExpectSameInPlace(number, 8, 1, [](auto* in, auto size, auto* out, auto* written) {
    const Anybuf node = {in, size, 0, 2, 2, nullptr, nullptr};
    ASN1_ReadOctetStringToBytes(&node, out, written);
  });
  ExpectSameInPlace(number, 8, 1, [](auto* in, auto size, auto* out, auto* written) {
    ASN1_SM2_PrikeyDecode(out, written, in, size);
  });
  ExpectSameInPlace(number, 8, 1, [](auto* in, auto size, auto* out, auto* written) {
    const Anybuf node = {in, size, 0, 2, 2, nullptr, nullptr};
    uint32_t tag = 0;
    ASN1_ReadExplicitToBytes(&node, out, written, &tag);
  });
  ExpectSameInPlace(Numbered("", 32), 40, 1, ASN1_SM2_PrikeyEncode);
  ByteVector text = FromHex("1E 06 4E 2D 00 41 56 FD");
  const Anybuf node = {text.data(), Size(text), 0, 2, 30, nullptr, nullptr};
  uint32_t size = 0;
  ASN1_ReadBmpStringToBytes(&node, text.data(), &size);
  EXPECT_EQ(ToHex(text.data(), size), "4E 2D 41 56 FD");
}

// Two numbers from one buffer to one.
TEST(InPlace, PairsAreAsApart) {
  for (auto* encode : {ASN1_SM2_SM2SignatureEncode, ASN1_SM2_PubkeyEncode}) {
    ExpectSameInPlace(Numbered("", 40), 60, 1, [=](auto* in, auto, auto* out, auto* written) {
      encode(in + 20, 16, in, 17, out, written);
    });
  }
  for (const auto& [decode, der] :
       {std::pair(&ASN1_SM2_SM2SignatureDecode, "30 0C 02 04 81 82 83 84 02 04 11 22 33 44"),
        std::pair(&ASN1_SM2_PubkeyDecode, "03 0A 00 04 81 82 83 84 11 22 33 44")}) {
    // The length of the first number too may lie over the second one.
    ExpectSameInPlace(FromHex(der), 12, 4,
                      [read = decode](auto* in, auto size, auto* out, auto* written) {
                        read(out + 4, At<uint32_t>(out), out + 8, written, in, size);
                        *written += 8;
                      });
    ExpectSameInPlace(FromHex(der), 8, 1,
                      [read = decode](auto* in, auto size, auto* out, auto* written) {
                        uint32_t firstSize = 0;
                        read(out + 4, &firstSize, out, written, in, size);
                        *written += firstSize;
                      });
  }
}

// A size beyond 32 bits is refused before a byte is read or written.
TEST(Sizes, BeyondTheirWidthAreRefused) {
  uint8_t byte = 0;
  uint32_t size = 7;
  const Anybuf huge = {&byte, 0xFFFFFFFF, 0, 2, 4, nullptr, nullptr};
  EXPECT_EQ(Make(ASN1_WriteSequence, &huge), nullptr);
  ASN1_SM2_SM2SignatureEncode(&byte, 0xFFFFFFFF, &byte, 1, &byte, &size);
  ASN1_SM2_PrikeyEncode(&byte, 0xFFFFFFFF, &byte, &size);
  ASN1_SM2_PubkeyEncode(&byte, 0xFFFFFFFF, &byte, 1, &byte, &size);
  EXPECT_EQ(size, 7U);
}

template <typename Key>
void ExpectRefused(int32_t (*decode)(Key*, const uint8_t*, int32_t), int32_t length) {
  const ByteVector der = FromHex("30 06 02 01 05 02 01 03");
  Buffer key(sizeof(Key));
  EXPECT_EQ(decode(reinterpret_cast<Key*>(key.Data()), der.data(), length), -1);
  EXPECT_TRUE(key.IsUntouched(0));
}

// So is a length of 2^31 or more where it is signed. A key is refused, and a text is empty.
TEST(Sizes, BelowZeroStandForNothing) {
  for (const int32_t length : {-1, -2, INT32_MIN}) {
    ExpectRefused(ZantDecodePublicKey, length);
    ExpectRefused(ZantDecodePrivateKey, length);
    Buffer out(16);
    EXPECT_EQ(ASN1_OBJECT_a2d(out.Data(), &out.size, "1.2.3", length), 0);
    EXPECT_EQ(utf8ToUni(FromHex("41").data(), length, &out.size), 0);
    EXPECT_EQ(uniToUTF8(out.Data(), length, 0x41), -1);
    EXPECT_EQ(out.size, Buffer::kNoSize);
    zhsToUtf8s(FromHex("B0 A1").data(), length, out.Data(), &out.size);
    EXPECT_EQ(out.size, 0U);
    EXPECT_TRUE(out.IsUntouched(0));
    const NodePtr value = ToNode("13 01 41");
    const NodePtr name =
        Make(ASN1_GetDerRelativeDistinguishedNameOne, value.get(), 7, "1.2.3", length);
    EXPECT_EQ(Describe(name.get()), "31 07 30 05 06 00 13 01 41");
  }
}

// A caller may build nodes. One without a block has no bytes, and a copy does not take the links.
TEST(Nodes, MayBeTheCallers) {
  auto* node = static_cast<Anybuf*>(std::malloc(sizeof(Anybuf)));
  *node = {nullptr, 5, 0, 2, 4, nullptr, nullptr};
  uint8_t octet = 0;
  EXPECT_EQ(ASN1_ReadBoolean(node, &octet), -2);
  EXPECT_EQ(Describe(Make(ASN1_WriteSequence, node).get()), "30 00");
  Anybuf other = {&octet, 1, 0, 2, 4, node, node};
  EXPECT_EQ(Describe(Make(ASN1_CreateSequence, &other).get()), "4: 00");
  ASN1_FreeAnybuf(node);
}

}  // namespace
