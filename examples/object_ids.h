// Object identifiers as text.
#ifndef VELKORD_EXAMPLES_OBJECT_IDS_H_
#define VELKORD_EXAMPLES_OBJECT_IDS_H_

#include <string>
#include <string_view>

#include "readable_text.h"

// Identifiers by which the examples choose, or that they write.
inline constexpr std::string_view kCommonNameId = "2.5.4.3";
inline constexpr std::string_view kCountryNameId = "2.5.4.6";
inline constexpr std::string_view kOrganizationNameId = "2.5.4.10";
inline constexpr std::string_view kEcPublicKeyId = "1.2.840.10045.2.1";
inline constexpr std::string_view kRsaEncryptionId = "1.2.840.113549.1.1.1";
inline constexpr std::string_view kSha256WithRsaEncryptionId = "1.2.840.113549.1.1.11";
inline constexpr std::string_view kPrime256v1Id = "1.2.840.10045.3.1.7";
inline constexpr std::string_view kSecp256k1Id = "1.3.132.0.10";
inline constexpr std::string_view kSm2Id = "1.2.156.10197.1.301";
inline constexpr std::string_view kExtensionRequestId = "1.2.840.113549.1.9.14";
inline constexpr std::string_view kSubjectKeyIdentifierId = "2.5.29.14";
inline constexpr std::string_view kKeyUsageId = "2.5.29.15";
inline constexpr std::string_view kSubjectAltNameId = "2.5.29.17";
inline constexpr std::string_view kBasicConstraintsId = "2.5.29.19";
inline constexpr std::string_view kCrlNumberId = "2.5.29.20";
inline constexpr std::string_view kReasonCodeId = "2.5.29.21";
inline constexpr std::string_view kAuthorityKeyIdentifierId = "2.5.29.35";

// The dotted form of content octets, empty when they are no identifier or when an arc needs more
// than 64 bits.
std::string DottedText(velkord::Bytes octets);

// The dotted form, followed by the usual name of a well-known identifier. Octets that have no
// dotted form come in hex.
std::string ObjectIdText(velkord::Bytes octets);

#endif  // VELKORD_EXAMPLES_OBJECT_IDS_H_
