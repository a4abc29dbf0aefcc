// Keys and signatures from any bytes, and any numbers to keys and signatures and back.
#include <array>
#include <cstring>

#include "blocks.h"

namespace {

using Input = std::span<const uint8_t>;
using Field = std::span<uint8_t>;

uint32_t Size(Input in) { return static_cast<uint32_t>(in.size()); }

// The fields of a record in turn.
template <typename Call>
void ForEachField(ZantPublicKey& key, Call call) {
  for (auto* field : {&key.modulus, &key.publicExponent}) call(Field(*field));
}

template <typename Call>
void ForEachField(ZantPrivateKey& key, Call call) {
  for (auto* field : {&key.modulus, &key.publicExponent, &key.privateExponent}) {
    call(Field(*field));
  }
  for (auto* field : {&key.prime1, &key.prime2, &key.exponent1, &key.exponent2, &key.coefficient}) {
    call(Field(*field));
  }
}

auto FirstOctet(Field field) {
  return std::find_if(field.begin(), field.end(), [](uint8_t octet) { return octet != 0; });
}

// A private key whose second element, the modulus, has 13 octets is taken for one of PKCS#8.
bool IsTakenForWrapped(const ZantPublicKey&) { return false; }
bool IsTakenForWrapped(ZantPrivateKey key) {
  const Field modulus(key.modulus);
  return modulus.end() - FirstOctet(modulus) == 13;
}

template <typename Key>
struct RsaKind {
  int32_t (*encode)(const Key*, uint8_t*, uint32_t*);
  int32_t (*decode)(Key*, const uint8_t*, int32_t);
  size_t room;
};

// A key whose numbers stand at their fields' ends is decoded with them at the fields' starts.
template <typename Key>
void Encode(const RsaKind<Key>& kind, Key key) {
  Buffer der(kind.room);
  const int32_t code = kind.encode(&key, der.bytes.get(), &der.size);
  REQUIRE(code == 0 || code == -1);
  uint32_t size = kNoSize;
  REQUIRE(kind.encode(&key, nullptr, &size) == code && size == der.size);
  REQUIRE(der.IsUntouched(der.size == kNoSize ? 0 : der.size));
  if (der.size == kNoSize || IsTakenForWrapped(key)) return;

  Key again{};
  REQUIRE(kind.decode(&again, der.bytes.get(), static_cast<int32_t>(der.size)) == 0);
  ForEachField(key,
               [](Field field) { std::rotate(field.begin(), FirstOctet(field), field.end()); });
  REQUIRE(std::memcmp(&again, &key, sizeof key) == 0);
}

template <typename Key>
void Rsa(const RsaKind<Key>& kind, Input in) {
  Key key;
  std::memset(&key, kUntouched, sizeof key);
  const int32_t code = kind.decode(&key, in.data(), static_cast<int32_t>(in.size()));
  REQUIRE(code <= 0);
  if (code == 0) Encode(kind, key);

  // The input itself as the numbers.
  auto* bytes = reinterpret_cast<uint8_t*>(&key);
  for (size_t at = 0; at < sizeof key; ++at) bytes[at] = in.empty() ? 0 : in[at % in.size()];
  Encode(kind, key);
}

// Calls a decoder of elliptic curves, which leaves its record alone when it refuses.
template <typename Key>
bool Decode(int32_t (*decode)(const uint8_t*, uint32_t, Key*), Input in, Key& key) {
  std::memset(&key, kUntouched, sizeof key);
  const Key before = key;
  const int32_t code = decode(in.data(), Size(in), &key);
  REQUIRE(code == 0 ? key.bits == 256 : code == -1 && std::memcmp(&key, &before, sizeof key) == 0);
  return code == 0;
}

void EllipticCurve(Input in) {
  EccPrikey privateKey;
  Decode(ASN1_Der2EccPrikey, in, privateKey);
  EccPubkey key;
  if (!Decode(ASN1_Der2EccPubkey, in, key)) return;
  Buffer der(312);
  REQUIRE(ASN1_EccPubkey2Der(&key, der.bytes.get(), &der.size) == 0 && der.size == 312);
  EccPubkey again;
  REQUIRE(Decode(ASN1_Der2EccPubkey, der.View(), again));
  REQUIRE(std::memcmp(&again, &key, sizeof key) == 0);
}

// Two numbers or halves: both are given or neither is.
struct Pair {
  Pair(size_t firstRoom, size_t secondRoom) : first(firstRoom), second(secondRoom) {}

  bool IsGiven() const {
    REQUIRE((first.size == kNoSize) == (second.size == kNoSize));
    for (const Buffer* part : {&first, &second}) {
      REQUIRE(part->size == kNoSize || part->size <= part->room);
      REQUIRE(part->IsUntouched(part->size == kNoSize ? 0 : part->size));
    }
    return first.size != kNoSize;
  }

  bool Holds(Input one, Input other) const {
    return IsGiven() && Same(first.View(), one) && Same(second.View(), other);
  }

  Buffer first;
  Buffer second;
};

using DecodePair = int32_t (*)(uint8_t*, uint32_t*, uint8_t*, uint32_t*, const uint8_t*, uint32_t);

void Decode(DecodePair decode, Input in, Pair& out) {
  REQUIRE(decode(out.first.bytes.get(), &out.first.size, out.second.bytes.get(), &out.second.size,
                 in.data(), Size(in)) == 0);
}

// A zero in front of an octet of 0x80 or more is taken for the one that keeps a number positive.
bool ComesBack(Input number) { return number.size() < 2 || number[0] != 0 || number[1] < 0x80; }

void EncodeSignature(Input r, Input s) {
  Buffer der(r.size() + s.size() + 20);
  REQUIRE(ASN1_SM2_SM2SignatureEncode(r.data(), Size(r), s.data(), Size(s), der.bytes.get(),
                                      &der.size) == 0);
  REQUIRE(der.IsUntouched(der.size == kNoSize ? 0 : der.size));
  REQUIRE(der.size != kNoSize || r.size() + s.size() > 200);
  if (der.size == kNoSize || !ComesBack(r) || !ComesBack(s)) return;
  Pair again(der.size, der.size);
  Decode(ASN1_SM2_SM2SignatureDecode, der.View(), again);
  REQUIRE(again.Holds(r, s));
}

void Signature(Input in) {
  Pair numbers(in.size(), in.size());
  Decode(ASN1_SM2_SM2SignatureDecode, in, numbers);
  if (numbers.IsGiven()) EncodeSignature(numbers.first.View(), numbers.second.View());
  EncodeSignature(in.first(in.size() / 3), in.subspan(in.size() / 3));
}

void EncodePoint(Input x, Input y) {
  Buffer der(5 + 1 + x.size() + y.size());
  REQUIRE(ASN1_SM2_PubkeyEncode(x.data(), Size(x), y.data(), Size(y), der.bytes.get(), &der.size) ==
          0);
  REQUIRE(der.IsUntouched(der.size == kNoSize ? 0 : der.size));
  REQUIRE(der.size != kNoSize || x.size() + y.size() > 200);
  if (der.size == kNoSize || x.size() != y.size()) return;
  Pair again(x.size(), y.size());
  Decode(ASN1_SM2_PubkeyDecode, der.View(), again);
  REQUIRE(again.Holds(x, y));
}

void Point(Input in) {
  const size_t room = std::min<size_t>(in.size() / 2, 127);
  Pair halves(room, room);
  Decode(ASN1_SM2_PubkeyDecode, in, halves);
  if (halves.IsGiven()) EncodePoint(halves.first.View(), halves.second.View());
  EncodePoint(in.first(in.size() / 2), in.subspan(in.size() / 2));
}

void EncodePrivateValue(Input value) {
  Buffer der(value.size() + 7);
  REQUIRE(ASN1_SM2_PrikeyEncode(value.data(), Size(value), der.bytes.get(), &der.size) == 0);
  REQUIRE(der.IsUntouched(der.size == kNoSize ? 0 : der.size));
  REQUIRE(der.size != kNoSize || value.size() > 200);
  if (der.size == kNoSize || !ComesBack(value)) return;
  Buffer again(der.size);
  REQUIRE(ASN1_SM2_PrikeyDecode(again.bytes.get(), &again.size, der.bytes.get(), der.size) == 0);
  REQUIRE(again.size != kNoSize && Same(again.View(), value));
}

void PrivateValue(Input in) {
  Buffer value(in.size());
  REQUIRE(ASN1_SM2_PrikeyDecode(value.bytes.get(), &value.size, in.data(), Size(in)) == 0);
  REQUIRE(value.IsUntouched(value.size == kNoSize ? 0 : value.size));
  if (value.size != kNoSize) EncodePrivateValue(value.View());
  EncodePrivateValue(in);
}

}  // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const Input in(data, size);
  Rsa(RsaKind<ZantPublicKey>{ZantEncodePublicKey, ZantDecodePublicKey, 526}, in);
  Rsa(RsaKind<ZantPrivateKey>{ZantEncodePrivateKey, ZantDecodePrivateKey, 1450}, in);
  EllipticCurve(in);
  Signature(in);
  Point(in);
  PrivateValue(in);
  return 0;
}
