#include "text.h"

#include <algorithm>
#include <string_view>
#include <system_error>
#include <utility>

using velkord::Bytes;

namespace {

constexpr std::string_view kKnownObjectIds[] = {
    // Attributes of names.
    "0.9.2342.19200300.100.1.1 userId", "0.9.2342.19200300.100.1.25 domainComponent",
    "1.2.840.113549.1.9.1 emailAddress", "2.5.4.3 commonName", "2.5.4.4 surname",
    "2.5.4.5 serialNumber", "2.5.4.6 countryName", "2.5.4.7 localityName",
    "2.5.4.8 stateOrProvinceName", "2.5.4.9 streetAddress", "2.5.4.10 organizationName",
    "2.5.4.11 organizationalUnitName", "2.5.4.12 title", "2.5.4.15 businessCategory",
    "2.5.4.17 postalCode", "2.5.4.42 givenName", "2.5.4.97 organizationIdentifier",
    // Keys.
    "1.2.840.10040.4.1 dsa", "1.2.840.10045.2.1 ecPublicKey", "1.2.840.113549.1.1.1 rsaEncryption",
    "1.3.101.112 Ed25519", "1.3.101.113 Ed448",
    // Curves.
    "1.2.156.10197.1.301 sm2", "1.2.840.10045.3.1.7 prime256v1", "1.3.132.0.34 secp384r1",
    "1.3.132.0.35 secp521r1", "1.3.132.0.10 secp256k1",
    // Signatures.
    "1.2.156.10197.1.501 sm2-with-sm3", "1.2.840.10040.4.3 dsa-with-sha1",
    "1.2.840.10045.4.1 ecdsa-with-SHA1", "1.2.840.10045.4.3.2 ecdsa-with-SHA256",
    "1.2.840.10045.4.3.3 ecdsa-with-SHA384", "1.2.840.10045.4.3.4 ecdsa-with-SHA512",
    "1.2.840.113549.1.1.4 md5WithRSAEncryption", "1.2.840.113549.1.1.5 sha1WithRSAEncryption",
    "1.2.840.113549.1.1.10 rsassaPss", "1.2.840.113549.1.1.11 sha256WithRSAEncryption",
    "1.2.840.113549.1.1.12 sha384WithRSAEncryption",
    "1.2.840.113549.1.1.13 sha512WithRSAEncryption",
    // Contents of PKCS#7.
    "1.2.156.10197.6.1.4.2.1 sm2-data", "1.2.156.10197.6.1.4.2.2 sm2-signedData",
    "1.2.156.10197.6.1.4.2.3 sm2-envelopedData", "1.2.840.113549.1.7.1 data",
    "1.2.840.113549.1.7.2 signedData", "1.2.840.113549.1.7.3 envelopedData",
    "1.2.840.113549.1.7.4 signedAndEnvelopedData", "1.2.840.113549.1.7.5 digestedData",
    "1.2.840.113549.1.7.6 encryptedData",
    // Attributes of requests.
    "1.2.840.113549.1.9.2 unstructuredName", "1.2.840.113549.1.9.7 challengePassword",
    "1.2.840.113549.1.9.14 extensionRequest",
    // Extensions.
    "1.3.6.1.4.1.11129.2.4.2 signedCertificateTimestampList",
    "1.3.6.1.5.5.7.1.1 authorityInfoAccess", "1.3.6.1.5.5.7.1.3 qcStatements",
    "2.16.840.1.113730.1.1 netscapeCertType", "2.16.840.1.113730.1.13 netscapeComment",
    "2.5.29.9 subjectDirectoryAttributes", "2.5.29.14 subjectKeyIdentifier", "2.5.29.15 keyUsage",
    "2.5.29.16 privateKeyUsagePeriod", "2.5.29.17 subjectAltName", "2.5.29.18 issuerAltName",
    "2.5.29.19 basicConstraints", "2.5.29.20 cRLNumber", "2.5.29.21 reasonCode",
    "2.5.29.24 invalidityDate", "2.5.29.27 deltaCRLIndicator", "2.5.29.28 issuingDistributionPoint",
    "2.5.29.29 certificateIssuer", "2.5.29.30 nameConstraints", "2.5.29.31 cRLDistributionPoints",
    "2.5.29.32 certificatePolicies", "2.5.29.33 policyMappings", "2.5.29.35 authorityKeyIdentifier",
    "2.5.29.36 policyConstraints", "2.5.29.37 extKeyUsage", "2.5.29.46 freshestCRL",
    "2.5.29.54 inhibitAnyPolicy"};

// Characters that move the cursor, end the line, reorder the text around them or are invisible
// would let a certificate forge what its reader sees. The backslash starts an escape.
using Range = std::pair<uint32_t, uint32_t>;
constexpr Range kEscaped[] = {
    {0, 0x1F},        {'\\', '\\'},     {0x7F, 0x9F},     {0xAD, 0xAD},     {0x200B, 0x200B},
    {0x200E, 0x200F}, {0x2028, 0x202E}, {0x2066, 0x2069}, {0xFEFF, 0xFEFF},
};

}  // namespace

size_t ReadCharacter(Bytes text, uint32_t& code) {
  // The longest form has six bytes.
  const auto available = static_cast<int32_t>(std::min<size_t>(text.size(), 6));
  uint32_t read = 0;
  const int32_t size = utf8ToUni(text.data(), available, &read);
  if (size <= 0 || read > 0x10FFFF || (read >= 0xD800 && read <= 0xDFFF)) return 0;
  code = read;
  return static_cast<size_t>(size);
}

std::string EscapedText(Bytes text) {
  std::string escaped;
  while (!text.empty()) {
    uint32_t code = 0;
    const size_t size = ReadCharacter(text, code);
    const Bytes form = text.first(std::max<size_t>(size, 1));
    const bool isEscaped = std::ranges::any_of(
        kEscaped, [=](Range range) { return range.first <= code && code <= range.second; });
    if (size != 0 && !isEscaped) {
      escaped.append(form.begin(), form.end());
    } else {
      for (const uint8_t byte : form) escaped += "\\x" + HexText({&byte, 1});
    }
    text = text.subspan(form.size());
  }
  return escaped;
}

std::string HexText(Bytes bytes) {
  constexpr char kDigits[] = "0123456789abcdef";
  std::string text;
  for (const uint8_t byte : bytes) {
    text += kDigits[byte >> 4];
    text += kDigits[byte & 0x0F];
  }
  return text;
}

std::string ObjectIdText(Bytes octets) {
  std::string text;
  try {
    text = velkord::ObjectIdText(octets);
  } catch (const std::system_error&) {
    return "octets " + HexText(octets);
  }
  const auto* known = std::ranges::find_if(
      kKnownObjectIds, [&](std::string_view entry) { return entry.starts_with(text + ' '); });
  return known == std::end(kKnownObjectIds) ? text : std::string(*known);
}
