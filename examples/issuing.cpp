#include "issuing.h"

#include <stdexcept>
#include <string>
#include <utility>

#include "result_codes.h"

namespace {

// "Example organisation" in GB2312.
constexpr uint8_t kOrganization[] = {0xCA, 0xBE, 0xC0, 0xFD, 0xBB, 0xFA, 0xB9, 0xB9};

constexpr size_t kLongestCommonName = 64;
constexpr size_t kKeyIdentifierSize = 20;
constexpr uint8_t kOctetStringType = 4;

Bytes AsBytes(std::string_view text) {
  return Bytes(reinterpret_cast<const uint8_t*>(text.data()), text.size());
}

void CheckCommonName(Bytes name) {
  size_t count = 0;
  while (!name.empty()) {
    uint32_t code = 0;
    const size_t size = ReadCharacter(name, code);
    if (size == 0) throw std::runtime_error("the common name is not UTF-8");
    name = name.subspan(size);
    ++count;
  }
  if (count == 0 || count > kLongestCommonName) {
    throw std::runtime_error("the common name has " + std::to_string(count) +
                             " characters, not 1 to " + std::to_string(kLongestCommonName));
  }
}

std::vector<uint8_t> ObjectIdOctets(std::string_view dotted) {
  std::vector<uint8_t> octets(dotted.size());
  uint32_t length = 0;
  if (ASN1_OBJECT_a2d(octets.data(), &length, dotted.data(), SignedLength(dotted.size())) == 0) {
    throw std::runtime_error("encode an object identifier: " + std::string(dotted) + " is none");
  }
  octets.resize(length);
  return octets;
}

using BytesWriter = int32_t (*)(const uint8_t*, uint32_t, Anybuf**);

NodePtr Write(BytesWriter write, Bytes bytes, const char* step) {
  NodePtr node;
  Check(write(bytes.data(), Length32(bytes.size()), Out(node)), step);
  return node;
}

NodePtr Utf8String(Bytes text) {
  return Write(ASN1_WriteUTF8StringFromBytes, text, "write a UTF8String");
}

NodePtr Integer(Bytes magnitude) {
  return Write(ASN1_WriteIntegerArrayFromBytes, magnitude, "write a number of the key");
}

NodePtr OrganizationName() {
  uint8_t text[sizeof kOrganization / 2 * 3];
  uint32_t length = 0;
  zhsToUtf8s(kOrganization, sizeof kOrganization, text, &length);
  return Utf8String(Bytes(text, length));
}

NodePtr CountryName() {
  return Write(ASN1_WriteCharStringFromBytes, AsBytes("CN"), "write the country");
}

NodePtr RelativeName(const NodePtr& value, std::string_view id) {
  NodePtr node;
  Check(ASN1_GetDerRelativeDistinguishedNameOne(value.get(), 0, id.data(), SignedLength(id.size()),
                                                Out(node)),
        "write a relative name");
  return node;
}

}  // namespace

int32_t Seconds(int64_t time) {
  if (!std::in_range<int32_t>(time)) throw std::runtime_error("the clock is beyond 2038");
  return static_cast<int32_t>(time);
}

NodePtr UtcTime(int64_t time) {
  const int32_t seconds = Seconds(time);
  NodePtr node;
  Check(ASN1_WriteUtcTime(&seconds, Out(node)), "write a time");
  return node;
}

NodePtr ObjectIdentifier(std::string_view id) {
  const std::vector<uint8_t> octets = ObjectIdOctets(id);
  NodePtr node;
  Check(ASN1_WriteObjectIdFromData(0, octets.data(), Length32(octets.size()), Out(node)),
        "write an object identifier");
  return node;
}

NodePtr Name(std::string_view commonName) {
  CheckCommonName(AsBytes(commonName));
  NodeChain chain;
  chain.Append(RelativeName(CountryName(), kCountryNameId));
  chain.Append(RelativeName(OrganizationName(), kOrganizationNameId));
  chain.Append(RelativeName(Utf8String(AsBytes(commonName)), kCommonNameId));
  NodePtr name;
  Check(ASN1_GetDerName(chain.Head(), Out(name)), "write the name");
  return name;
}

// When the library writes NULL, the OID node stays with the caller.
NodePtr Algorithm(std::string_view id) {
  const NodePtr oid = ObjectIdentifier(id);
  NodePtr algorithm;
  Check(ASN1_SetAlgorithmIdentifier(1, oid.get(), nullptr, nullptr, Out(algorithm)),
        "write an algorithm");
  return algorithm;
}

NodePtr Sequence(const NodeChain& chain) {
  NodePtr node;
  Check(ASN1_WriteSequence(chain.Head(), Out(node)), "write a SEQUENCE");
  return node;
}

// ASN1_WriteBitStringFromBytes would derive the unused bits from the last byte, which is right for
// neither a signature nor flags.
NodePtr BitString(Bytes bits, uint32_t unusedBits) {
  NodePtr content;
  NodePtr node;
  Check(ASN1_CreateAnybuf(bits.data(), Length32(bits.size()), kOctetStringType, Out(content)),
        "hold the bits");
  content->unusedBits = unusedBits;
  Check(ASN1_WriteBitString(content.get(), Out(node)), "write a BIT STRING");
  return node;
}

NodePtr OctetString(Bytes bytes) {
  return Write(ASN1_WriteOctetStringFromBytes, bytes, "write an OCTET STRING");
}

NodePtr RsaPublicKey(const SigningKey& key) {
  NodePtr node;
  Check(
      ASN1_SetRSAPublicKey(Integer(key.Modulus()).get(), Integer(key.Exponent()).get(), Out(node)),
      "write the public key");
  return node;
}

// The library derives the unused bits of this BIT STRING from the key's last byte. The key ends
// with the exponent 65537, 01 00 01 in bytes, and a last byte 01 gives 0 unused bits, as it must.
NodePtr KeyInfo(const Anybuf& publicKey) {
  NodePtr node;
  Check(ASN1_SetSubjectPublicKeyInfo(Algorithm(kRsaEncryptionId).get(), &publicKey, Out(node)),
        "write the key info");
  return node;
}

std::vector<uint8_t> KeyIdentifier(const Anybuf& publicKey) {
  const auto digest = Sha256(NodeBytes(publicKey));
  return std::vector<uint8_t>(digest.begin(), digest.begin() + kKeyIdentifierSize);
}

NodePtr Extension(std::string_view id, uint32_t critical, const Anybuf& value) {
  const std::vector<uint8_t> octets = ObjectIdOctets(id);
  NodePtr node;
  Check(ASN1_GetExtensionOne(0, octets.data(), Length32(octets.size()), critical, value.data,
                             value.dataLen, Out(node)),
        "write an extension");
  return node;
}
