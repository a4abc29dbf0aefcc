// Issues a PKCS#10 certification request for a new RSA key. The library builds every structure;
// libcrypto makes the key and the signature.
#include "command_line.h"
#include "issuing.h"

using velkord::NodePtr, velkord::View;

namespace {

constexpr std::string_view kUsage =
    "usage: issue_request OUT.pem [COMMON-NAME]\n"
    "Writes a request for a certificate with a new RSA key, which is not kept. COMMON-NAME is\n"
    "UTF-8 text of 1 to 64 characters.\n";
constexpr std::string_view kHostName = "request.example";

constexpr uint32_t kVersion1 = 0;
constexpr uint32_t kDnsNameTag = 2;

// digitalSignature is bit 0, counted from the highest.
constexpr uint8_t kUses[] = {0x80};

// [request]
NodePtr Request(std::string_view commonName, const KeyPtr& key) {
  const NodePtr hostName = Write(ASN1_WriteIa5StringFromBytes, View(kHostName));
  const NodePtr extensions =
      Sequence(Extension("2.5.29.15", kCritical, BitString(kUses, 7)),
               Extension("2.5.29.17", kNotCritical, Sequence(Implicit(kDnsNameTag, hostName))));
  // The extensions that the certificate is to have: one attribute, with one value.
  const NodePtr attributes =
      Set(Sequence(ObjectIdentifier("1.2.840.113549.1.9.14"), Set(extensions)));
  return Sign(Sequence(Integer(kVersion1), Name(commonName), KeyInfo(key), Implicit(0, attributes)),
              key);
}
// [/request]

int IssueRequest(std::span<char*> arguments) {
  const std::string_view commonName = arguments.size() > 1 ? arguments[1] : kHostName;
  const NodePtr request = Request(commonName, NewRsaKey());
  WritePemFile(arguments[0], "CERTIFICATE REQUEST", *request);
  std::cout << arguments[0] << ": request of \"" << commonName << "\", " << request->dataLen
            << " bytes of DER\n";
  return 0;
}

}  // namespace

int main(int argc, char** argv) { return RunCommand(argc, argv, kUsage, 1, 2, IssueRequest); }
