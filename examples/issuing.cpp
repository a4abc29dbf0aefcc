#include "issuing.h"

#include <stdexcept>
#include <string>
#include <utility>

#include "velkord.hpp"

using velkord::Bytes, velkord::ChainBuilder, velkord::Length, velkord::Make, velkord::NodePtr,
    velkord::View;

namespace {

// "Example organisation" in GB2312.
constexpr uint8_t kOrganization[] = {0xCA, 0xBE, 0xC0, 0xFD, 0xBB, 0xFA, 0xB9, 0xB9};

constexpr size_t kLongestCommonName = 64;
constexpr size_t kKeyIdentifierSize = 20;
constexpr uint8_t kOctetStringType = 4;

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
  if (ASN1_OBJECT_a2d(octets.data(), &length, dotted.data(), Length<int32_t>(dotted)) == 0) {
    throw std::runtime_error("encode an object identifier: " + std::string(dotted) + " is none");
  }
  octets.resize(length);
  return octets;
}

using BytesWriter = int32_t (*)(const uint8_t*, uint32_t, Anybuf**);

NodePtr Write(BytesWriter write, Bytes bytes, const char* step) {
  return Make(step, write, bytes.data(), Length(bytes));
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
  return Write(ASN1_WriteCharStringFromBytes, View("CN"), "write the country");
}

NodePtr RelativeName(const NodePtr& value, std::string_view id) {
  return Make("write a relative name", ASN1_GetDerRelativeDistinguishedNameOne, value.get(), 0,
              id.data(), Length<int32_t>(id));
}

}  // namespace

int32_t Seconds(int64_t time) {
  if (!std::in_range<int32_t>(time)) throw std::runtime_error("the clock is beyond 2038");
  return static_cast<int32_t>(time);
}

NodePtr UtcTime(int64_t time) {
  const int32_t seconds = Seconds(time);
  return Make("write a time", ASN1_WriteUtcTime, &seconds);
}

NodePtr ObjectIdentifier(std::string_view id) {
  const std::vector<uint8_t> octets = ObjectIdOctets(id);
  return Make("write an object identifier", ASN1_WriteObjectIdFromData, 0, octets.data(),
              Length(octets));
}

NodePtr Name(std::string_view commonName) {
  CheckCommonName(View(commonName));
  const ChainBuilder chain(RelativeName(CountryName(), kCountryNameId),
                           RelativeName(OrganizationName(), kOrganizationNameId),
                           RelativeName(Utf8String(View(commonName)), kCommonNameId));
  return Make("write the name", ASN1_GetDerName, chain.Head());
}

// When the library writes NULL, the OID node stays with the caller.
NodePtr Algorithm(std::string_view id) {
  const NodePtr oid = ObjectIdentifier(id);
  return Make("write an algorithm", ASN1_SetAlgorithmIdentifier, 1U, oid.get(), nullptr, nullptr);
}

NodePtr Sequence(const ChainBuilder& chain) {
  return Make("write a SEQUENCE", ASN1_WriteSequence, chain.Head());
}

// ASN1_WriteBitStringFromBytes would derive the unused bits from the last byte, which is right for
// neither a signature nor flags.
NodePtr BitString(Bytes bits, uint32_t unusedBits) {
  const NodePtr content =
      Make("hold the bits", ASN1_CreateAnybuf, bits.data(), Length(bits), kOctetStringType);
  content->unusedBits = unusedBits;
  return Make("write a BIT STRING", ASN1_WriteBitString, content.get());
}

NodePtr OctetString(Bytes bytes) {
  return Write(ASN1_WriteOctetStringFromBytes, bytes, "write an OCTET STRING");
}

NodePtr RsaPublicKey(const SigningKey& key) {
  return Make("write the public key", ASN1_SetRSAPublicKey, Integer(key.Modulus()).get(),
              Integer(key.Exponent()).get());
}

// The library derives the unused bits of this BIT STRING from the key's last byte. The key ends
// with the exponent 65537, 01 00 01 in bytes, and a last byte 01 gives 0 unused bits, as it must.
NodePtr KeyInfo(const Anybuf& publicKey) {
  return Make("write the key info", ASN1_SetSubjectPublicKeyInfo, Algorithm(kRsaEncryptionId).get(),
              &publicKey);
}

std::vector<uint8_t> KeyIdentifier(const Anybuf& publicKey) {
  const auto digest = Sha256(View(publicKey));
  return std::vector<uint8_t>(digest.begin(), digest.begin() + kKeyIdentifierSize);
}

NodePtr Extension(std::string_view id, uint32_t critical, const Anybuf& value) {
  const std::vector<uint8_t> octets = ObjectIdOctets(id);
  return Make("write an extension", ASN1_GetExtensionOne, 0, octets.data(), Length(octets),
              critical, value.data, value.dataLen);
}
