// The structures that issued certificates, lists and requests are put together from, as TLV nodes,
// so that a program reads as the ASN.1 of what it writes. All throw std::runtime_error naming the
// step that failed.
#ifndef VELKORD_EXAMPLES_ISSUE_ISSUING_H_
#define VELKORD_EXAMPLES_ISSUE_ISSUING_H_

#include <string_view>
#include <utility>

#include "libcrypto.h"

enum Criticality { kCritical, kNotCritical };

// Writes content by the function of its type.
velkord::NodePtr Write(int32_t (*write)(const uint8_t*, uint32_t, Anybuf**),
                       velkord::Bytes content);

// [sequence]
// A SEQUENCE of nodes and chains, one after the other.
template <typename... Elements>
velkord::NodePtr Sequence(Elements... elements) {
  return velkord::Make("write a SEQUENCE", ASN1_WriteSequence,
                       velkord::ChainBuilder(std::move(elements)...).Head());
}
// [/sequence]

velkord::NodePtr Set(const velkord::NodePtr& element);

velkord::NodePtr Explicit(uint8_t tagNumber, const velkord::NodePtr& element);
velkord::NodePtr Implicit(uint32_t tagNumber, const velkord::NodePtr& element);

velkord::NodePtr True();

velkord::NodePtr Integer(uint32_t value);

velkord::NodePtr OctetString(velkord::Bytes bytes);

// A BIT STRING whose unused bits are known.
velkord::NodePtr BitString(velkord::Bytes bits, uint32_t unusedBits);

// Seconds since 1970, written as local time: RunCommand makes that UTC.
velkord::NodePtr UtcTime(int64_t time);

velkord::NodePtr ObjectIdentifier(std::string_view id);

// A country, an organisation and the common name, UTF-8 text of 1 to 64 characters.
velkord::NodePtr Name(std::string_view commonName);

velkord::NodePtr Extension(std::string_view id, Criticality criticality,
                           const velkord::NodePtr& value);

velkord::NodePtr KeyInfo(const KeyPtr& key);

// The first 160 bits of the SHA-256 of a public key, by which the key is told, as OCTET STRING.
velkord::NodePtr KeyIdentifier(const KeyPtr& key);

// The algorithm of the signatures that the issuers make.
velkord::NodePtr SignatureAlgorithm();

// Signs a part, and puts algorithm and signature after it.
velkord::NodePtr Sign(velkord::NodePtr signedPart, const KeyPtr& key);

// A self-signed certificate of version 3 for a certificate authority, valid for a year.
velkord::NodePtr AuthorityCertificate(std::string_view commonName, const KeyPtr& key);

// Writes one structure to a PEM file.
void WritePemFile(const std::string& path, const std::string& label, const Anybuf& der);

#endif  // VELKORD_EXAMPLES_ISSUE_ISSUING_H_
