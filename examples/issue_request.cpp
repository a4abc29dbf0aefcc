// Issues a PKCS#10 certification request for a new RSA key. The library builds every structure;
// libcrypto makes the key and the signature.
#include <iostream>
#include <span>
#include <string_view>

#include "command_line.h"
#include "issuing.h"
#include "pem_file.h"
#include "velkord.hpp"

using velkord::ChainBuilder, velkord::Check, velkord::Length, velkord::Make, velkord::NodePtr,
    velkord::View;

namespace {

constexpr std::string_view kUsage =
    "usage: issue_request OUT.pem [COMMON-NAME]\n"
    "Writes a request for a certificate with a new RSA key, which is not kept. COMMON-NAME is "
    "UTF-8\n"
    "text of 1 to 64 characters.\n";
constexpr std::string_view kDefaultCommonName = "request.example";
constexpr std::string_view kHostName = "request.example";

constexpr uint32_t kVersion1 = 0;
constexpr uint32_t kDnsNameTag = 2;

// digitalSignature is bit 0, counted from the highest.
NodePtr KeyUsage() {
  constexpr uint8_t kUses[] = {0x80};
  return BitString(kUses, 7);
}

// A host's name is an IA5String under [2] IMPLICIT.
NodePtr SubjectAltName() {
  const NodePtr text = Make("write the host's name", ASN1_WriteIa5StringFromBytes,
                            View(kHostName).data(), Length(kHostName));
  return Sequence(
      ChainBuilder(Make("tag the host's name", ASN1_WriteImplicit, text.get(), kDnsNameTag)));
}

NodePtr Set(NodePtr element) { return Make("write a SET", ASN1_WriteSet, element.get()); }

// The extensions that the certificate is to have: one attribute, with one value.
NodePtr Attributes() {
  const ChainBuilder extensions(Extension(kKeyUsageId, kCritical, *KeyUsage()),
                                Extension(kSubjectAltNameId, kNotCritical, *SubjectAltName()));
  return Set(
      Sequence(ChainBuilder(ObjectIdentifier(kExtensionRequestId), Set(Sequence(extensions)))));
}

NodePtr SignedPart(std::string_view commonName, const SigningKey& key) {
  const auto info = Make("create the signed part", ASN1_CreatePKCS10);
  Check(ASN1_PKCS10SetVersion(info.get(), kVersion1), "set the version");
  Check(ASN1_PKCS10SetSubject(info.get(), Name(commonName).get()), "set the subject");
  Check(ASN1_PKCS10SetSubjectPublicKeyInfo(info.get(), KeyInfo(*RsaPublicKey(key)).get()),
        "set the public key");
  Check(ASN1_PKCS10SetAttributes(info.get(), Attributes().get()), "set the attributes");
  return Make("write the signed part", ASN1_PKCS10WriteData, info.get());
}

int IssueRequest(std::span<char*> arguments) {
  const std::string_view commonName = arguments.size() > 1 ? arguments[1] : kDefaultCommonName;
  const SigningKey key;
  const NodePtr request = Sign(kRequestWhole, *SignedPart(commonName, key), key);
  WritePemFile(arguments[0], "CERTIFICATE REQUEST", *request);
  std::cout << arguments[0] << ": request of \"" << commonName << "\", " << request->dataLen
            << " bytes of DER\n";
  return 0;
}

}  // namespace

int main(int argc, char** argv) { return RunCommand(argc, argv, kUsage, 1, 2, IssueRequest); }
