// Issues a self-signed certificate authority certificate of version 3 with a new RSA key. The
// library builds every structure; libcrypto makes the key, the random numbers and the signature.
#include <stdlib.h>
#include <time.h>

#include <array>
#include <cerrno>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "handles.h"
#include "readable_text.h"
#include "result_codes.h"
#include "signing_key.h"

namespace {

using Octets = std::vector<uint8_t>;

constexpr std::string_view kUsage =
    "usage: issue_certificate OUT.pem [COMMON-NAME]\n"
    "Writes a self-signed certificate with a new RSA key, which is not kept. COMMON-NAME is UTF-8\n"
    "text of 1 to 64 characters.\n";
constexpr std::string_view kDefaultCommonName = "Velkord Example";
constexpr size_t kLongestCommonName = 64;

// "Example organisation" in GB2312.
constexpr uint8_t kOrganization[] = {0xCA, 0xBE, 0xC0, 0xFD, 0xBB, 0xFA, 0xB9, 0xB9};

constexpr std::string_view kCountryNameId = "2.5.4.6";
constexpr std::string_view kOrganizationNameId = "2.5.4.10";
constexpr std::string_view kCommonNameId = "2.5.4.3";
constexpr std::string_view kRsaEncryptionId = "1.2.840.113549.1.1.1";
constexpr std::string_view kSha256WithRsaEncryptionId = "1.2.840.113549.1.1.11";
constexpr std::string_view kSubjectKeyIdentifierId = "2.5.29.14";
constexpr std::string_view kKeyUsageId = "2.5.29.15";
constexpr std::string_view kBasicConstraintsId = "2.5.29.19";

constexpr uint32_t kKeyIdentifierSize = 20;
constexpr uint32_t kVersion3 = 2;
constexpr int64_t kSecondsOfYear = int64_t{365} * 24 * 60 * 60;
constexpr uint8_t kTrue = 0xFF;
constexpr uint8_t kOctetStringType = 4;

void CheckCommonName(std::string_view name) {
  Bytes rest(reinterpret_cast<const uint8_t*>(name.data()), name.size());
  size_t count = 0;
  while (!rest.empty()) {
    uint32_t code = 0;
    const size_t size = ReadCharacter(rest, code);
    if (size == 0) throw std::runtime_error("the common name is not UTF-8");
    rest = rest.subspan(size);
    ++count;
  }
  if (count == 0 || count > kLongestCommonName) {
    throw std::runtime_error("the common name has " + std::to_string(count) +
                             " characters, not 1 to " + std::to_string(kLongestCommonName));
  }
}

// The library's appending functions report nothing, so a node that is missing afterwards is the
// only sign that memory ran out.
void Append(Anybuf* chain, const Anybuf& element, void (*append)(const Anybuf*, Anybuf*)) {
  while (chain->next != nullptr) chain = chain->next;
  append(&element, chain);
  if (chain->next == nullptr) Fail("append an element", VELKORD_FAILURE);
}

Octets ObjectIdOctets(std::string_view dotted) {
  Octets octets(dotted.size());
  uint32_t length = 0;
  if (ASN1_OBJECT_a2d(octets.data(), &length, dotted.data(), static_cast<int32_t>(dotted.size())) ==
      0) {
    throw std::runtime_error("encode an object identifier: " + std::string(dotted) + " is none");
  }
  octets.resize(length);
  return octets;
}

NodePtr Utf8String(Bytes text) {
  NodePtr node;
  Check(ASN1_WriteUTF8StringFromBytes(text.data(), Length32(text.size()), Out(node)),
        "write a UTF8String");
  return node;
}

NodePtr OrganizationName() {
  uint8_t text[sizeof kOrganization / 2 * 3];
  uint32_t length = 0;
  zhsToUtf8s(kOrganization, sizeof kOrganization, text, &length);
  return Utf8String(Bytes(text, length));
}

NodePtr CountryName() {
  constexpr uint8_t kCountry[] = {'C', 'N'};
  NodePtr node;
  Check(ASN1_WriteCharStringFromBytes(kCountry, sizeof kCountry, Out(node)), "write the country");
  return node;
}

NodePtr RelativeName(const NodePtr& value, std::string_view id) {
  NodePtr node;
  Check(ASN1_GetDerRelativeDistinguishedNameOne(value.get(), 0, id.data(),
                                                static_cast<int32_t>(id.size()), Out(node)),
        "write a relative name");
  return node;
}

NodePtr Name(std::string_view commonName) {
  const Bytes text(reinterpret_cast<const uint8_t*>(commonName.data()), commonName.size());
  NodePtr chain;
  Check(ASN1_CreateName(RelativeName(CountryName(), kCountryNameId).get(), Out(chain)),
        "start the name");
  Append(chain.get(), *RelativeName(OrganizationName(), kOrganizationNameId), ASN1_AddName);
  Append(chain.get(), *RelativeName(Utf8String(text), kCommonNameId), ASN1_AddName);
  NodePtr name;
  Check(ASN1_GetDerName(chain.get(), Out(name)), "write the name");
  return name;
}

// The top bit is cleared so that the number needs no zero octet in front, and the first byte is not
// 0 so that its encoding is the shortest.
std::array<uint8_t, 16> SerialNumber() {
  std::array<uint8_t, 16> bytes{};
  do {
    FillWithRandom(bytes);
    bytes[0] &= 0x7F;
  } while (bytes[0] == 0);
  return bytes;
}

NodePtr UtcTime(int64_t seconds) {
  if (!std::in_range<int32_t>(seconds)) throw std::runtime_error("the clock is beyond 2038");
  const auto moment = static_cast<int32_t>(seconds);
  NodePtr node;
  Check(ASN1_WriteUtcTime(&moment, Out(node)), "write a time");
  return node;
}

NodePtr Validity() {
  // The library writes the local time, and a certificate needs UTC.
  if (setenv("TZ", "UTC0", 1) != 0) throw std::runtime_error("the time zone cannot be set");
  tzset();
  const int64_t now = time(nullptr);
  NodePtr validity;
  Check(ASN1_SetValidity(UtcTime(now).get(), UtcTime(now + kSecondsOfYear).get(), Out(validity)),
        "write the validity");
  return validity;
}

// An AlgorithmIdentifier whose parameter is NULL. In that form the OID node stays with the caller.
NodePtr Algorithm(std::string_view id) {
  const Octets octets = ObjectIdOctets(id);
  NodePtr oid;
  NodePtr algorithm;
  Check(ASN1_WriteObjectIdFromData(0, octets.data(), Length32(octets.size()), Out(oid)),
        "write an algorithm's identifier");
  Check(ASN1_SetAlgorithmIdentifier(1, oid.get(), nullptr, nullptr, Out(algorithm)),
        "write an algorithm");
  return algorithm;
}

NodePtr Integer(const Octets& magnitude) {
  NodePtr node;
  Check(ASN1_WriteIntegerArrayFromBytes(magnitude.data(), Length32(magnitude.size()), Out(node)),
        "write a number of the key");
  return node;
}

NodePtr PublicKey(const SigningKey& key) {
  NodePtr node;
  Check(
      ASN1_SetRSAPublicKey(Integer(key.Modulus()).get(), Integer(key.Exponent()).get(), Out(node)),
      "write the public key");
  return node;
}

// The library derives the unused bits of this BIT STRING from the key's last byte. The key ends
// with the exponent 65537, 01 00 01 in bytes, and a last byte 01 gives 0 unused bits, as it must.
NodePtr KeyInfo(const NodePtr& publicKey) {
  NodePtr node;
  Check(ASN1_SetSubjectPublicKeyInfo(Algorithm(kRsaEncryptionId).get(), publicKey.get(), Out(node)),
        "write the key info");
  return node;
}

// A BIT STRING whose unused bits are known. ASN1_WriteBitStringFromBytes would derive them from the
// last byte instead, which is right for neither a signature nor flags.
NodePtr BitString(Bytes bits, uint32_t unusedBits) {
  NodePtr content;
  NodePtr node;
  Check(ASN1_CreateAnybuf(bits.data(), Length32(bits.size()), kOctetStringType, Out(content)),
        "hold the bits");
  content->unusedBits = unusedBits;
  Check(ASN1_WriteBitString(content.get(), Out(node)), "write a BIT STRING");
  return node;
}

NodePtr Extension(std::string_view id, uint32_t critical, const NodePtr& value) {
  const Octets octets = ObjectIdOctets(id);
  NodePtr node;
  Check(ASN1_GetExtensionOne(0, octets.data(), Length32(octets.size()), critical, value->data,
                             value->dataLen, Out(node)),
        "write an extension");
  return node;
}

NodePtr BasicConstraints() {
  NodePtr isAuthority;
  NodePtr chain;
  NodePtr value;
  Check(ASN1_WriteBoolean(&kTrue, Out(isAuthority)), "write the authority flag");
  Check(ASN1_CreateSequence(isAuthority.get(), Out(chain)), "start basicConstraints");
  Check(ASN1_WriteSequence(chain.get(), Out(value)), "write basicConstraints");
  return value;
}

// digitalSignature is bit 0, counted from the highest; keyCertSign and cRLSign are bits 5 and 6.
NodePtr KeyUsage() {
  constexpr uint8_t kUses[] = {0x80 | 0x04 | 0x02};
  return BitString(kUses, 1);
}

// The first 160 bits of the key's SHA-256.
NodePtr KeyIdentifier(const NodePtr& publicKey) {
  const auto digest = Sha256(Bytes(publicKey->data, publicKey->dataLen));
  NodePtr node;
  Check(ASN1_WriteOctetStringFromBytes(digest.data(), kKeyIdentifierSize, Out(node)),
        "write the key identifier");
  return node;
}

NodePtr Extensions(const NodePtr& publicKey) {
  NodePtr chain;
  Check(ASN1_CreateExtensions(Extension(kBasicConstraintsId, kTrue, BasicConstraints()).get(),
                              Out(chain)),
        "start the extensions");
  Append(chain.get(), *Extension(kKeyUsageId, kTrue, KeyUsage()), ASN1_AddExtensions);
  Append(chain.get(), *Extension(kSubjectKeyIdentifierId, 0, KeyIdentifier(publicKey)),
         ASN1_AddExtensions);
  NodePtr list;
  Check(ASN1_WriteExtensions(chain.get(), Out(list)), "write the extensions");
  return list;
}

NodePtr SignedPart(std::string_view commonName, const SigningKey& key) {
  const std::array<uint8_t, 16> serial = SerialNumber();
  const NodePtr name = Name(commonName);
  const NodePtr publicKey = PublicKey(key);
  TbsPtr tbs;
  Check(ASN1_CreateTBSCertificate(Out(tbs)), "create the signed part");
  Check(ASN1_TBSCertificateSetVersion(tbs.get(), kVersion3), "set the version");
  Check(ASN1_TBSCertificateSetSerialNumber(tbs.get(), serial.data(), Length32(serial.size())),
        "set the serial number");
  Check(ASN1_TBSCertificateSetSignatureAlg(tbs.get(), Algorithm(kSha256WithRsaEncryptionId).get()),
        "set the signature algorithm");
  Check(ASN1_TBSCertificateSetIssuer(tbs.get(), name.get()), "set the issuer");
  Check(ASN1_TBSCertificateSetValidity(tbs.get(), Validity().get()), "set the validity");
  Check(ASN1_TBSCertificateSetSubject(tbs.get(), name.get()), "set the subject");
  Check(ASN1_TBSCertificateSetSubjectPublicKeyInfo(tbs.get(), KeyInfo(publicKey).get()),
        "set the public key");
  Check(ASN1_TBSCertificateSetExtensions(tbs.get(), Extensions(publicKey).get()),
        "set the extensions");
  NodePtr node;
  Check(ASN1_TBSCertificateWriteData(tbs.get(), Out(node)), "write the signed part");
  return node;
}

NodePtr IssueCertificate(std::string_view commonName) {
  const SigningKey key;
  const NodePtr signedPart = SignedPart(commonName, key);
  const Octets signature = key.Sign(Bytes(signedPart->data, signedPart->dataLen));
  CertificatePtr certificate;
  Check(ASN1_CreateCertificate(Out(certificate)), "create the certificate");
  Check(ASN1_CertificateSetTbsCertificate(certificate.get(), signedPart.get()),
        "set the signed part");
  Check(ASN1_CertificateSetSignatureAlgorithm(certificate.get(),
                                              Algorithm(kSha256WithRsaEncryptionId).get()),
        "set the certificate's signature algorithm");
  Check(ASN1_CertificateSetSignatureValue(certificate.get(), BitString(signature, 0).get()),
        "set the signature");
  NodePtr der;
  Check(ASN1_CertificateWriteData(certificate.get(), Out(der)), "write the certificate");
  return der;
}

std::string PemText(const NodePtr& der) {
  constexpr std::string_view kHeader = "-----BEGIN CERTIFICATE-----";
  constexpr std::string_view kFooter = "-----END CERTIFICATE-----";
  const size_t base64Size = (size_t{der->dataLen} + 2) / 3 * 4;
  const size_t lineEnds = (base64Size + 63) / 64 + 2;
  std::string text(base64Size + 2 * lineEnds + kHeader.size() + kFooter.size() + 1, '\0');
  uint32_t length = 0;
  Check(DER2PEM_data_format(der->data, der->dataLen, text.data(), &length, kHeader.data(),
                            kFooter.data()),
        "write the PEM text");
  text.resize(length);
  return text;
}

void WriteFile(const char* path, std::string_view text) {
  std::ofstream file(path, std::ios::binary);
  file << text;
  file.close();
  if (!file) {
    throw std::runtime_error(std::string(path) +
                             ": cannot be written: " + std::generic_category().message(errno));
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 2 && std::string_view(argv[1]) == "--help") {
    std::cout << kUsage;
    return 0;
  }
  if (argc != 2 && argc != 3) {
    std::cerr << kUsage;
    return 2;
  }
  const std::string_view commonName = argc == 3 ? argv[2] : kDefaultCommonName;
  try {
    CheckCommonName(commonName);
    const NodePtr der = IssueCertificate(commonName);
    WriteFile(argv[1], PemText(der));
    std::cout << argv[1] << ": certificate of \"" << commonName << "\", " << der->dataLen
              << " bytes of DER\n";
  } catch (const std::exception& error) {
    std::cerr << "issue_certificate: " << error.what() << '\n';
    return 1;
  }
  return 0;
}
