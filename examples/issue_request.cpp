// Issues a PKCS#10 certification request for a new RSA key. The library builds every structure;
// libcrypto makes the key and the signature.
#include <iostream>
#include <span>
#include <string_view>
#include <utility>

#include "command_line.h"
#include "issuing.h"
#include "pem_file.h"
#include "result_codes.h"

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
  NodePtr text;
  NodePtr name;
  Check(ASN1_WriteIa5StringFromBytes(reinterpret_cast<const uint8_t*>(kHostName.data()),
                                     Length32(kHostName.size()), Out(text)),
        "write the host's name");
  Check(ASN1_WriteImplicit(text.get(), kDnsNameTag, Out(name)), "tag the host's name");
  NodeChain chain;
  chain.Append(std::move(name));
  return Sequence(chain);
}

NodePtr Set(NodePtr element) {
  NodePtr node;
  Check(ASN1_WriteSet(element.get(), Out(node)), "write a SET");
  return node;
}

// The extensions that the certificate is to have: one attribute, with one value.
NodePtr Attributes() {
  NodeChain extensions;
  extensions.Append(Extension(kKeyUsageId, kCritical, *KeyUsage()));
  extensions.Append(Extension(kSubjectAltNameId, kNotCritical, *SubjectAltName()));
  NodeChain attribute;
  attribute.Append(ObjectIdentifier(kExtensionRequestId));
  attribute.Append(Set(Sequence(extensions)));
  return Set(Sequence(attribute));
}

NodePtr SignedPart(std::string_view commonName, const SigningKey& key) {
  Pkcs10Ptr info;
  Check(ASN1_CreatePKCS10(Out(info)), "create the signed part");
  Check(ASN1_PKCS10SetVersion(info.get(), kVersion1), "set the version");
  Check(ASN1_PKCS10SetSubject(info.get(), Name(commonName).get()), "set the subject");
  Check(ASN1_PKCS10SetSubjectPublicKeyInfo(info.get(), KeyInfo(*RsaPublicKey(key)).get()),
        "set the public key");
  Check(ASN1_PKCS10SetAttributes(info.get(), Attributes().get()), "set the attributes");
  NodePtr node;
  Check(ASN1_PKCS10WriteData(info.get(), Out(node)), "write the signed part");
  return node;
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
