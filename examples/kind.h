// Tells what a DER structure is.
#ifndef VELKORD_EXAMPLES_KIND_H_
#define VELKORD_EXAMPLES_KIND_H_

#include <cstddef>
#include <string_view>

#include "readable_text.h"

enum class Kind : size_t {
  kCertificate,
  kRevocationList,
  kRequest,
  kMessage,
  kRsaPublicKey,
  kRsaPrivateKey,
  kPublicKeyInfo,
  kPrivateKeyInfo,
  kSignature,
};

// What a reader calls one of that kind; the places are the numbers of the kinds.
inline constexpr std::string_view kKindNames[] = {
    "certificate",    "revocation list", "certification request",
    "PKCS#7 message", "RSA public key",  "RSA private key",
    "public key",     "private key",     "signature",
};

inline std::string_view KindName(Kind kind) { return kKindNames[static_cast<size_t>(kind)]; }

// By structure alone. Throws std::runtime_error when the DER is malformed or of no kind above.
Kind KindOf(velkord::Bytes der);

// Whether a PEM label is one that such a block usually has.
bool IsUsualLabel(Kind kind, std::string_view label);

#endif  // VELKORD_EXAMPLES_KIND_H_
