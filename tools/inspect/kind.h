// The kinds of structures: what tells one, and what shows it.
#ifndef VELKORD_TOOLS_INSPECT_KIND_H_
#define VELKORD_TOOLS_INSPECT_KIND_H_

#include <ostream>
#include <string_view>

#include "velkord.hpp"

// Each takes DER of its kind, as KindOf finds it, puts indented lines, each with its line end, and
// throws std::runtime_error naming the step that failed and its code. What was signed comes back
// written again from its decoded record, and for a certificate from that of its signed part too;
// for other kinds the result is null. Of keys nothing but what is public is shown, and private
// values that were copied are wiped.
using Show = velkord::NodePtr(velkord::Bytes der, std::ostream& out);

Show ShowCertificate;
Show ShowList;
Show ShowRequest;
Show ShowMessage;

// The two forms of PKCS#1.
Show ShowRsaPublicKey;
Show ShowRsaPrivateKey;

// The forms that name the algorithm: SubjectPublicKeyInfo, and PrivateKeyInfo of PKCS#8.
Show ShowPublicKeyInfo;
Show ShowPrivateKeyInfo;

// Two numbers, as SM2 and ECDSA make them.
Show ShowSignature;

struct Kind {
  std::string_view name;  // What a reader calls one of that kind.
  Show* show;
  std::string_view labels[2];  // Those that a PEM block of that kind usually has.
};

inline constexpr Kind kKinds[] = {
    {"certificate", ShowCertificate, {"CERTIFICATE", "X509 CERTIFICATE"}},
    {"revocation list", ShowList, {"X509 CRL"}},
    {"certification request", ShowRequest, {"CERTIFICATE REQUEST", "NEW CERTIFICATE REQUEST"}},
    {"PKCS#7 message", ShowMessage, {"PKCS7", "CMS"}},
    {"RSA public key", ShowRsaPublicKey, {"RSA PUBLIC KEY"}},
    {"RSA private key", ShowRsaPrivateKey, {"RSA PRIVATE KEY"}},
    {"public key", ShowPublicKeyInfo, {"PUBLIC KEY"}},
    {"private key", ShowPrivateKeyInfo, {"PRIVATE KEY"}},
    {"signature", ShowSignature, {}},
};

// By structure alone: one of the kinds above. Throws std::runtime_error when the DER is malformed
// or of no such kind.
const Kind& KindOf(velkord::Bytes der);

#endif  // VELKORD_TOOLS_INSPECT_KIND_H_
