#include "authority_certificate.h"

#include <time.h>

#include <array>

#include "issuing.h"
#include "velkord.hpp"

using velkord::ChainBuilder, velkord::Check, velkord::Length, velkord::Make, velkord::NodePtr;

namespace {

constexpr uint32_t kVersion3 = 2;
constexpr int64_t kSecondsOfYear = int64_t{365} * 24 * 60 * 60;
constexpr uint8_t kTrue = 0xFF;

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

NodePtr Validity() {
  const int64_t now = time(nullptr);
  return Make("write the validity", ASN1_SetValidity, UtcTime(now).get(),
              UtcTime(now + kSecondsOfYear).get());
}

NodePtr BasicConstraints() {
  return Sequence(ChainBuilder(Make("write the authority flag", ASN1_WriteBoolean, &kTrue)));
}

// digitalSignature is bit 0, counted from the highest; keyCertSign and cRLSign are bits 5 and 6.
NodePtr KeyUsage() {
  constexpr uint8_t kUses[] = {0x80 | 0x04 | 0x02};
  return BitString(kUses, 1);
}

NodePtr Extensions(const Anybuf& publicKey) {
  const ChainBuilder chain(
      Extension(kBasicConstraintsId, kCritical, *BasicConstraints()),
      Extension(kKeyUsageId, kCritical, *KeyUsage()),
      Extension(kSubjectKeyIdentifierId, kNotCritical, *OctetString(KeyIdentifier(publicKey))));
  return Make("write the extensions", ASN1_WriteExtensions, chain.Head());
}

NodePtr SignedPart(std::string_view commonName, const SigningKey& key) {
  const std::array<uint8_t, 16> serial = SerialNumber();
  const NodePtr name = Name(commonName);
  const NodePtr publicKey = RsaPublicKey(key);
  const auto tbs = Make("create the signed part", ASN1_CreateTBSCertificate);
  Check(ASN1_TBSCertificateSetVersion(tbs.get(), kVersion3), "set the version");
  Check(ASN1_TBSCertificateSetSerialNumber(tbs.get(), serial.data(), Length(serial)),
        "set the serial number");
  Check(ASN1_TBSCertificateSetSignatureAlg(tbs.get(), Algorithm(kSha256WithRsaEncryptionId).get()),
        "set the signature algorithm");
  Check(ASN1_TBSCertificateSetIssuer(tbs.get(), name.get()), "set the issuer");
  Check(ASN1_TBSCertificateSetValidity(tbs.get(), Validity().get()), "set the validity");
  Check(ASN1_TBSCertificateSetSubject(tbs.get(), name.get()), "set the subject");
  Check(ASN1_TBSCertificateSetSubjectPublicKeyInfo(tbs.get(), KeyInfo(*publicKey).get()),
        "set the public key");
  Check(ASN1_TBSCertificateSetExtensions(tbs.get(), Extensions(*publicKey).get()),
        "set the extensions");
  return Make("write the signed part", ASN1_TBSCertificateWriteData, tbs.get());
}

}  // namespace

NodePtr AuthorityCertificate(std::string_view commonName, const SigningKey& key) {
  return Sign(kCertificateWhole, *SignedPart(commonName, key), key);
}
