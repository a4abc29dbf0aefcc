// The structures that issued certificates, lists and requests have in common, as TLV nodes. All
// throw std::runtime_error naming the step that failed.
#ifndef VELKORD_EXAMPLES_ISSUING_H_
#define VELKORD_EXAMPLES_ISSUING_H_

#include <cstdint>
#include <string_view>
#include <vector>

#include "node_bytes.h"
#include "object_ids.h"
#include "readable_text.h"
#include "signed_whole.h"
#include "signing_key.h"
#include "velkord.hpp"

inline constexpr uint32_t kCritical = 0xFF;
inline constexpr uint32_t kNotCritical = 0;

// Seconds since 1970, which the library counts in 32 bits.
int32_t Seconds(int64_t time);

// Written as local time: call UseUtc before.
velkord::NodePtr UtcTime(int64_t time);

velkord::NodePtr ObjectIdentifier(std::string_view id);

// A country, an organisation and the common name, UTF-8 text of 1 to 64 characters.
velkord::NodePtr Name(std::string_view commonName);

// An AlgorithmIdentifier whose parameter is NULL.
velkord::NodePtr Algorithm(std::string_view id);

velkord::NodePtr Sequence(const velkord::ChainBuilder& chain);

// A BIT STRING whose unused bits are known.
velkord::NodePtr BitString(velkord::Bytes bits, uint32_t unusedBits);

velkord::NodePtr OctetString(velkord::Bytes bytes);

velkord::NodePtr RsaPublicKey(const SigningKey& key);

velkord::NodePtr KeyInfo(const Anybuf& publicKey);

// The first 160 bits of the SHA-256 of a public key, by which the key is told.
std::vector<uint8_t> KeyIdentifier(const Anybuf& publicKey);

velkord::NodePtr Extension(std::string_view id, uint32_t critical, const Anybuf& value);

// Signs a part and puts the whole around it.
template <typename Record>
velkord::NodePtr Sign(const SignedWhole<Record>& whole, const Anybuf& signedPart,
                      const SigningKey& key) {
  const std::vector<uint8_t> signature = key.Sign(velkord::View(signedPart));
  return WriteSigned(whole, signedPart, *Algorithm(kSha256WithRsaEncryptionId),
                     *BitString(signature, 0));
}

#endif  // VELKORD_EXAMPLES_ISSUING_H_
