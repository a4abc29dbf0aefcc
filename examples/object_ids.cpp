#include "object_ids.h"

#include <algorithm>
#include <limits>
#include <string_view>

#include "velkord.hpp"

using velkord::Bytes;

namespace {

struct KnownObjectId {
  std::string_view dotted;
  std::string_view name;
};

constexpr KnownObjectId kKnownObjectIds[] = {
    // Attributes of names.
    {"0.9.2342.19200300.100.1.1", "userId"},
    {"0.9.2342.19200300.100.1.25", "domainComponent"},
    {"1.2.840.113549.1.9.1", "emailAddress"},
    {kCommonNameId, "commonName"},
    {"2.5.4.4", "surname"},
    {"2.5.4.5", "serialNumber"},
    {kCountryNameId, "countryName"},
    {"2.5.4.7", "localityName"},
    {"2.5.4.8", "stateOrProvinceName"},
    {"2.5.4.9", "streetAddress"},
    {kOrganizationNameId, "organizationName"},
    {"2.5.4.11", "organizationalUnitName"},
    {"2.5.4.12", "title"},
    {"2.5.4.15", "businessCategory"},
    {"2.5.4.17", "postalCode"},
    {"2.5.4.42", "givenName"},
    {"2.5.4.97", "organizationIdentifier"},
    // Keys.
    {"1.2.840.10040.4.1", "dsa"},
    {kEcPublicKeyId, "ecPublicKey"},
    {kRsaEncryptionId, "rsaEncryption"},
    {"1.3.101.112", "Ed25519"},
    {"1.3.101.113", "Ed448"},
    // Curves.
    {kSm2Id, "sm2"},
    {kPrime256v1Id, "prime256v1"},
    {"1.3.132.0.34", "secp384r1"},
    {"1.3.132.0.35", "secp521r1"},
    {kSecp256k1Id, "secp256k1"},
    // Signatures.
    {"1.2.156.10197.1.501", "sm2-with-sm3"},
    {"1.2.840.10040.4.3", "dsa-with-sha1"},
    {"1.2.840.10045.4.1", "ecdsa-with-SHA1"},
    {"1.2.840.10045.4.3.2", "ecdsa-with-SHA256"},
    {"1.2.840.10045.4.3.3", "ecdsa-with-SHA384"},
    {"1.2.840.10045.4.3.4", "ecdsa-with-SHA512"},
    {"1.2.840.113549.1.1.4", "md5WithRSAEncryption"},
    {"1.2.840.113549.1.1.5", "sha1WithRSAEncryption"},
    {"1.2.840.113549.1.1.10", "rsassaPss"},
    {kSha256WithRsaEncryptionId, "sha256WithRSAEncryption"},
    {"1.2.840.113549.1.1.12", "sha384WithRSAEncryption"},
    {"1.2.840.113549.1.1.13", "sha512WithRSAEncryption"},
    // Contents of PKCS#7.
    {"1.2.156.10197.6.1.4.2.1", "sm2-data"},
    {"1.2.156.10197.6.1.4.2.2", "sm2-signedData"},
    {"1.2.156.10197.6.1.4.2.3", "sm2-envelopedData"},
    {"1.2.840.113549.1.7.1", "data"},
    {"1.2.840.113549.1.7.2", "signedData"},
    {"1.2.840.113549.1.7.3", "envelopedData"},
    {"1.2.840.113549.1.7.4", "signedAndEnvelopedData"},
    {"1.2.840.113549.1.7.5", "digestedData"},
    {"1.2.840.113549.1.7.6", "encryptedData"},
    // Attributes of requests.
    {"1.2.840.113549.1.9.2", "unstructuredName"},
    {"1.2.840.113549.1.9.7", "challengePassword"},
    {kExtensionRequestId, "extensionRequest"},
    // Extensions.
    {"1.3.6.1.4.1.11129.2.4.2", "signedCertificateTimestampList"},
    {"1.3.6.1.5.5.7.1.1", "authorityInfoAccess"},
    {"1.3.6.1.5.5.7.1.3", "qcStatements"},
    {"2.16.840.1.113730.1.1", "netscapeCertType"},
    {"2.16.840.1.113730.1.13", "netscapeComment"},
    {"2.5.29.9", "subjectDirectoryAttributes"},
    {kSubjectKeyIdentifierId, "subjectKeyIdentifier"},
    {kKeyUsageId, "keyUsage"},
    {"2.5.29.16", "privateKeyUsagePeriod"},
    {kSubjectAltNameId, "subjectAltName"},
    {"2.5.29.18", "issuerAltName"},
    {kBasicConstraintsId, "basicConstraints"},
    {kCrlNumberId, "cRLNumber"},
    {kReasonCodeId, "reasonCode"},
    {"2.5.29.24", "invalidityDate"},
    {"2.5.29.27", "deltaCRLIndicator"},
    {"2.5.29.28", "issuingDistributionPoint"},
    {"2.5.29.29", "certificateIssuer"},
    {"2.5.29.30", "nameConstraints"},
    {"2.5.29.31", "cRLDistributionPoints"},
    {"2.5.29.32", "certificatePolicies"},
    {"2.5.29.33", "policyMappings"},
    {kAuthorityKeyIdentifierId, "authorityKeyIdentifier"},
    {"2.5.29.36", "policyConstraints"},
    {"2.5.29.37", "extKeyUsage"},
    {"2.5.29.46", "freshestCRL"},
    {"2.5.29.54", "inhibitAnyPolicy"},
};

}  // namespace

std::string DottedText(Bytes octets) {
  std::string text;
  uint64_t arc = 0;
  bool arcContinues = false;
  for (const uint8_t octet : octets) {
    if (arc > std::numeric_limits<uint64_t>::max() >> 7) return {};
    arc = arc << 7 | (octet & 0x7F);
    arcContinues = (octet & 0x80) != 0;
    if (arcContinues) continue;
    // The first two arcs share a number, and the first of them is at most 2.
    if (text.empty()) {
      const uint64_t first = std::min<uint64_t>(arc / 40, 2);
      text = std::to_string(first);
      arc -= first * 40;
    }
    text += '.' + std::to_string(arc);
    arc = 0;
  }
  return arcContinues ? std::string() : text;
}

std::string ObjectIdText(Bytes octets) {
  std::string text = DottedText(octets);
  if (text.empty()) return "octets " + HexText(octets);
  const auto* known = std::ranges::find(kKnownObjectIds, text, &KnownObjectId::dotted);
  if (known != std::end(kKnownObjectIds)) text.append(" ").append(known->name);
  return text;
}
