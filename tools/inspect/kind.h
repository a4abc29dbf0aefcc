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
  std::string_view name;       // What a reader calls one of that kind.
  Show* show;                  // Null where the kind is known, but not read.
  std::string_view labels[2];  // Those that a PEM block of that kind usually has.
  std::string_view shapes[2];  // How the letters of its elements begin, as ShapeOf puts them.
};

inline constexpr Kind kKinds[] = {
    {"certificate", ShowCertificate, {"CERTIFICATE", "X509 CERTIFICATE"}, {"(cis", "(isss"}},
    {"revocation list", ShowList, {"X509 CRL"}, {"(sst", "(isst"}},
    {"certification request",
     ShowRequest,
     {"CERTIFICATE REQUEST", "NEW CERTIFICATE REQUEST"},
     {"(iss.", "(issc"}},
    {"PKCS#7 message", ShowMessage, {"PKCS7", "CMS"}, {"d.", "dc."}},
    {"RSA public key", ShowRsaPublicKey, {"RSA PUBLIC KEY"}, {"ie."}},
    {"RSA private key", ShowRsaPrivateKey, {"RSA PRIVATE KEY"}, {"iiiiiiiii."}},
    {"public key", ShowPublicKeyInfo, {"PUBLIC KEY"}, {"sb."}},
    {"private key", ShowPrivateKeyInfo, {"PRIVATE KEY"}, {"iso"}},
    {"signature", ShowSignature, {}, {"ii."}},
    {"encrypted private key of PKCS#8", nullptr, {"ENCRYPTED PRIVATE KEY"}, {"so."}},
    {"private key of a curve as SEC 1 has it", nullptr, {"EC PRIVATE KEY"}, {"io"}},
    {"set of curve parameters", nullptr, {"EC PARAMETERS"}, {}},
    {"certificate with its trust settings", nullptr, {"TRUSTED CERTIFICATE"}, {}},
    {"PKCS#12 file", nullptr, {"PKCS12"}, {"is.", "iss."}},
    {"OCSP response", nullptr, {"OCSP RESPONSE"}, {"n.", "nc."}},
};

// By structure: one of the kinds above. What is malformed or of no such kind is what its label says
// if that kind is not read, and throws std::runtime_error if not.
const Kind& KindOf(velkord::Bytes der, std::string_view label);

#endif  // VELKORD_TOOLS_INSPECT_KIND_H_
