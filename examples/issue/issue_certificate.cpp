// Issues a self-signed certificate authority certificate of version 3 with a new RSA key. The
// library builds every structure; libcrypto makes the key, the random numbers and the signature.
#include "command_line.h"
#include "issuing.h"

namespace {

constexpr std::string_view kUsage =
    "usage: issue_certificate OUT.pem [COMMON-NAME]\n"
    "Writes a self-signed certificate with a new RSA key, which is not kept. COMMON-NAME is UTF-8\n"
    "text of 1 to 64 characters.\n";

int IssueCertificate(std::span<char*> arguments) {
  const std::string_view commonName = arguments.size() > 1 ? arguments[1] : "Velkord Example";
  const velkord::NodePtr certificate = AuthorityCertificate(commonName, NewRsaKey());
  WritePemFile(arguments[0], "CERTIFICATE", *certificate);
  std::cout << arguments[0] << ": certificate of \"" << commonName << "\", " << certificate->dataLen
            << " bytes of DER\n";
  return 0;
}

}  // namespace

int main(int argc, char** argv) { return RunCommand(argc, argv, kUsage, 1, 2, IssueCertificate); }
