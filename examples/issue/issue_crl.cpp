// Issues a revocation list of 1,000 entries, and the certificate of the authority that signs it
// with a new RSA key. The library builds every structure; libcrypto makes the key and the
// signatures.
#include <time.h>

#include "command_line.h"
#include "issuing.h"

using velkord::ChainBuilder, velkord::Make, velkord::NodePtr;

namespace {

constexpr std::string_view kUsage =
    "usage: issue_crl LIST.pem CERTIFICATE.pem\n"
    "Writes a revocation list of 1,000 entries, signed with a new RSA key, which is not kept, and\n"
    "the certificate that verifies it.\n";
constexpr std::string_view kCommonName = "Velkord Example";

constexpr uint32_t kEntries = 1000;
constexpr uint32_t kFirstSerialNumber = 0x10000;
constexpr int64_t kSecondsOfHour = int64_t{60} * 60;
constexpr int64_t kSecondsOfMonth = int64_t{30} * 24 * kSecondsOfHour;

// A list with extensions has to be of version 2, which the standard numbers by the value 1.
constexpr uint32_t kVersion2 = 1;

// Each entry at a multiple of this has a reason: keyCompromise, superseded, cessationOfOperation.
constexpr uint32_t kReasonEvery = 5;
constexpr uint8_t kReasons[] = {1, 4, 5};

NodePtr ReasonCode(uint8_t reason) {
  const NodePtr content = Make("hold the reason", ASN1_CreateAnybuf, &reason, 1U, uint8_t{0});
  return Make("write the reason", ASN1_WriteEnumerated, content.get());
}

NodePtr Entry(uint32_t number, int64_t now) {
  NodePtr extensions;
  if (number % kReasonEvery == 0) {
    const uint8_t reason = kReasons[number / kReasonEvery % std::size(kReasons)];
    extensions = Sequence(Extension("2.5.29.21", kNotCritical, ReasonCode(reason)));
  }
  return Sequence(Integer(kFirstSerialNumber + number), UtcTime(now - number * kSecondsOfHour),
                  std::move(extensions));
}

NodePtr List(const KeyPtr& key) {
  const int64_t now = time(nullptr);
  ChainBuilder entries;
  for (uint32_t number = 0; number < kEntries; ++number) entries.Append(Entry(number, now));
  const NodePtr extensions =
      Sequence(Extension("2.5.29.35", kNotCritical, Sequence(Implicit(0, KeyIdentifier(key)))),
               Extension("2.5.29.20", kNotCritical, Integer(1)));
  return Sign(
      Sequence(Integer(kVersion2), SignatureAlgorithm(), Name(kCommonName), UtcTime(now),
               UtcTime(now + kSecondsOfMonth), Sequence(entries.Take()), Explicit(0, extensions)),
      key);
}

int IssueList(std::span<char*> arguments) {
  const KeyPtr key = NewRsaKey();
  const NodePtr list = List(key);
  WritePemFile(arguments[0], "X509 CRL", *list);
  WritePemFile(arguments[1], "CERTIFICATE", *AuthorityCertificate(kCommonName, key));
  std::cout << arguments[0] << ": revocation list of " << kEntries << " entries, " << list->dataLen
            << " bytes of DER\n"
            << arguments[1] << ": the certificate that verifies it\n";
  return 0;
}

}  // namespace

int main(int argc, char** argv) { return RunCommand(argc, argv, kUsage, 2, 2, IssueList); }
