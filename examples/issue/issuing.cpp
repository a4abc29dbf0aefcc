#include "issuing.h"

#include <cerrno>
#include <fstream>
#include <stdexcept>

#include "text.h"

using velkord::Bytes, velkord::Check, velkord::Length, velkord::Make, velkord::NodePtr,
    velkord::View;

namespace {

// "Example organisation" in GB2312.
constexpr uint8_t kOrganization[] = {0xCA, 0xBE, 0xC0, 0xFD, 0xBB, 0xFA, 0xB9, 0xB9};

constexpr size_t kLongestCommonName = 64;
constexpr size_t kKeyIdentifierSize = 20;
constexpr uint8_t kBitStringType = 3;

void CheckCommonName(std::string_view name) {
  size_t count = 0;
  for (Bytes rest = View(name); !rest.empty(); ++count) {
    uint32_t code = 0;
    const size_t size = ReadCharacter(rest, code);
    if (size == 0) throw std::runtime_error("the common name is not UTF-8");
    rest = rest.subspan(size);
  }
  if (count == 0 || count > kLongestCommonName) {
    throw std::runtime_error("the common name has " + std::to_string(count) +
                             " characters, not 1 to " + std::to_string(kLongestCommonName));
  }
}

NodePtr RelativeName(std::string_view id, const NodePtr& value) {
  return Make("write a relative name", ASN1_GetDerRelativeDistinguishedNameOne, value.get(), 0,
              id.data(), Length<int32_t>(id));
}

// When the library writes NULL, the OID node stays with the caller.
NodePtr Algorithm(std::string_view id) {
  return Make("write an algorithm", ASN1_SetAlgorithmIdentifier, 1U, ObjectIdentifier(id).get(),
              nullptr, nullptr);
}

}  // namespace

// [write]
NodePtr Write(int32_t (*write)(const uint8_t*, uint32_t, Anybuf**), Bytes content) {
  return Make("write a value", write, content.data(), Length(content));
}
// [/write]

NodePtr Set(const NodePtr& element) { return Make("write a SET", ASN1_WriteSet, element.get()); }

NodePtr Explicit(uint8_t tagNumber, const NodePtr& element) {
  return Make("write a tagged value", ASN1_WriteExplicit, element.get(), tagNumber);
}

NodePtr Implicit(uint32_t tagNumber, const NodePtr& element) {
  return Make("write a tagged value", ASN1_WriteImplicit, element.get(), tagNumber);
}

NodePtr OctetString(Bytes bytes) { return Write(ASN1_WriteOctetStringFromBytes, bytes); }

NodePtr True() {
  constexpr uint8_t kTrue = 0xFF;
  return Make("write TRUE", ASN1_WriteBoolean, &kTrue);
}

NodePtr Integer(uint32_t value) { return Make("write a number", ASN1_WriteInteger, value); }

// ASN1_WriteBitStringFromBytes would derive the unused bits from the last byte, which is right for
// neither a signature nor flags.
// [bit_string]
NodePtr BitString(Bytes bits, uint32_t unusedBits) {
  const NodePtr content =
      Make("hold the bits", ASN1_CreateAnybuf, bits.data(), Length(bits), kBitStringType);
  content->unusedBits = unusedBits;
  return Make("write a BIT STRING", ASN1_WriteBitString, content.get());
}
// [/bit_string]

NodePtr UtcTime(int64_t time) {
  if (!std::in_range<int32_t>(time)) throw std::runtime_error("the clock is beyond 2038");
  const auto seconds = static_cast<int32_t>(time);
  return Make("write a time", ASN1_WriteUtcTime, &seconds);
}

// [object_identifier]
NodePtr ObjectIdentifier(std::string_view id) {
  std::vector<uint8_t> octets(id.size());
  uint32_t length = 0;
  if (ASN1_OBJECT_a2d(octets.data(), &length, id.data(), Length<int32_t>(id)) == 0) {
    throw std::runtime_error("encode an object identifier: " + std::string(id) + " is none");
  }
  return Make("write an object identifier", ASN1_WriteObjectIdFromData, 0, octets.data(), length);
}
// [/object_identifier]

NodePtr Name(std::string_view commonName) {
  CheckCommonName(commonName);
  uint8_t organization[sizeof kOrganization / 2 * 3];
  uint32_t length = 0;
  zhsToUtf8s(kOrganization, sizeof kOrganization, organization, &length);
  return Sequence(
      RelativeName("2.5.4.6", Write(ASN1_WriteCharStringFromBytes, View("CN"))),
      RelativeName("2.5.4.10", Write(ASN1_WriteUTF8StringFromBytes, {organization, length})),
      RelativeName("2.5.4.3", Write(ASN1_WriteUTF8StringFromBytes, View(commonName))));
}

NodePtr Extension(std::string_view id, Criticality criticality, const NodePtr& value) {
  return Sequence(ObjectIdentifier(id), criticality == kCritical ? True() : nullptr,
                  OctetString(View(*value)));
}

// The library derives the unused bits of this BIT STRING from the key's last byte. The key ends
// with the exponent 65537, 01 00 01 in bytes, and a last byte 01 gives 0 unused bits, as it must.
NodePtr KeyInfo(const KeyPtr& key) {
  return Make("write the key info", ASN1_SetSubjectPublicKeyInfo,
              Algorithm("1.2.840.113549.1.1.1").get(),
              Write(ASN1_WriteExplicitFromDERData, Encode(i2d_PublicKey, key.get())).get());
}

NodePtr KeyIdentifier(const KeyPtr& key) {
  const SecretBytes publicKey = Encode(i2d_PublicKey, key.get());
  uint8_t digest[EVP_MAX_MD_SIZE];
  CheckCrypto(
      EVP_Digest(publicKey.data(), publicKey.size(), digest, nullptr, EVP_sha256(), nullptr) == 1,
      "digest the public key");
  return OctetString(Bytes(digest, kKeyIdentifierSize));
}

NodePtr SignatureAlgorithm() { return Algorithm("1.2.840.113549.1.1.11"); }

NodePtr Sign(NodePtr signedPart, const KeyPtr& key) {
  const std::vector<uint8_t> signature = Signature(key, View(*signedPart));
  return Sequence(std::move(signedPart), SignatureAlgorithm(), BitString(signature, 0));
}

void WritePemFile(const std::string& path, const std::string& label, const Anybuf& der) {
  const std::string header = "-----BEGIN " + label + "-----";
  const std::string footer = "-----END " + label + "-----";
  // Base64 and its line ends take less than twice the bytes.
  std::string text(size_t{2} * der.dataLen + header.size() + footer.size() + 16, '\0');
  uint32_t length = 0;
  Check(DER2PEM_data_format(der.data, der.dataLen, text.data(), &length, header.c_str(),
                            footer.c_str()),
        "write the PEM text");
  std::ofstream file(path, std::ios::binary);
  file << std::string_view(text).substr(0, length);
  file.close();
  if (!file) {
    throw std::runtime_error(path +
                             ": cannot be written: " + std::generic_category().message(errno));
  }
}
