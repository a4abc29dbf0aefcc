// Issues a revocation list of 1,000 entries, and the certificate of the authority that signs it
// with a new RSA key. The library builds every structure; libcrypto makes the key and the
// signatures.
#include <time.h>

#include <iostream>
#include <span>
#include <string_view>

#include "authority_certificate.h"
#include "command_line.h"
#include "issuing.h"
#include "pem_file.h"
#include "utc.h"
#include "velkord.hpp"

using velkord::ChainBuilder, velkord::Check, velkord::Make, velkord::NodePtr;

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
constexpr uint32_t kUtcTimeForm = 1;
constexpr uint32_t kListNumber = 1;

// Each entry at a multiple of this has a reason: keyCompromise, superseded, cessationOfOperation.
constexpr uint32_t kReasonEvery = 5;
constexpr uint8_t kReasons[] = {1, 4, 5};
constexpr uint8_t kNoType = 0;

// The value by which version 2 of a list is numbered.
constexpr uint32_t kListVersion2 = 1;

NodePtr Integer(uint32_t value) { return Make("write a number", ASN1_WriteInteger, value); }

NodePtr EntryExtensions(uint8_t reason) {
  const NodePtr content = Make("hold the reason", ASN1_CreateAnybuf, &reason, 1U, kNoType);
  const NodePtr code = Make("write the reason", ASN1_WriteEnumerated, content.get());
  return Sequence(ChainBuilder(Extension(kReasonCodeId, kNotCritical, *code)));
}

NodePtr Entry(uint32_t number, int64_t now) {
  const auto entry = Make("create an entry", ASN1_CRL_CreateRevokedCertificate);
  Check(ASN1_CRL_SetRevokedCertificateCertificateSerialNumber(
            entry.get(), Integer(kFirstSerialNumber + number).get()),
        "set an entry's serial number");
  Check(ASN1_CRL_SetRevokedCertificateRevocationDate(entry.get(),
                                                     UtcTime(now - number * kSecondsOfHour).get()),
        "set an entry's date");
  if (number % kReasonEvery == 0) {
    const uint8_t reason = kReasons[number / kReasonEvery % std::size(kReasons)];
    Check(ASN1_CRL_SetRevokedCertificateCrlEntryExtensions(entry.get(),
                                                           EntryExtensions(reason).get()),
          "set an entry's extensions");
  }
  return Make("write an entry", ASN1_CRL_RevokedCertificateWriteData, entry.get());
}

NodePtr Entries(int64_t now) {
  ChainBuilder chain;
  for (uint32_t number = 0; number < kEntries; ++number) chain.Append(Entry(number, now));
  return Sequence(chain);
}

// The identifier stands under [0] IMPLICIT.
NodePtr AuthorityKeyIdentifier(const SigningKey& key) {
  return Sequence(ChainBuilder(Make("write the authority's key identifier", ASN1_WriteImplicit,
                                    OctetString(KeyIdentifier(*RsaPublicKey(key))).get(), 0U)));
}

NodePtr ListExtensions(const SigningKey& key) {
  return Sequence(
      ChainBuilder(Extension(kAuthorityKeyIdentifierId, kNotCritical, *AuthorityKeyIdentifier(key)),
                   Extension(kCrlNumberId, kNotCritical, *Integer(kListNumber))));
}

// A list with extensions has to be of version 2, which the standard numbers by the value 1. The
// library's setter writes the value 2 alone, so the version is left out there and put in front
// here.
NodePtr WithVersion2(const Anybuf& signedPart) {
  const ChainBuilder elements(Integer(kListVersion2),
                              Make("split the signed part", ASN1_ReadSequence, &signedPart));
  return Make("write the signed part with its version", ASN1_WriteSequence, elements.Head());
}

NodePtr SignedPart(const SigningKey& key) {
  const int64_t now = time(nullptr);
  const auto tbs = Make("create the signed part", ASN1_CRL_CreateTbsCertList);
  Check(ASN1_CRL_TbsCertListSetSignatureAlgorithmIdentifier(
            tbs.get(), Algorithm(kSha256WithRsaEncryptionId).get()),
        "set the signature algorithm");
  Check(ASN1_CRL_TbsCertListSetIssuer(tbs.get(), Name(kCommonName).get()), "set the issuer");
  Check(ASN1_CRL_TbsCertListSetThisUpdate(tbs.get(), Seconds(now), kUtcTimeForm), "set thisUpdate");
  Check(ASN1_CRL_TbsCertListSetNextUpdate(tbs.get(), Seconds(now + kSecondsOfMonth)),
        "set nextUpdate");
  Check(ASN1_CRL_TbsCertListSetRevokedCertificates(tbs.get(), Entries(now).get()),
        "set the entries");
  Check(ASN1_CRL_TbsCertListSetCrlExtensions(tbs.get(), ListExtensions(key).get()),
        "set the extensions");
  const NodePtr node = Make("write the signed part", ASN1_CRL_TbsCertListWriteData, tbs.get());
  return WithVersion2(*node);
}

int IssueList(std::span<char*> arguments) {
  UseUtc();
  const SigningKey key;
  const NodePtr list = Sign(kListWhole, *SignedPart(key), key);
  const NodePtr certificate = AuthorityCertificate(kCommonName, key);
  WritePemFile(arguments[0], "X509 CRL", *list);
  WritePemFile(arguments[1], "CERTIFICATE", *certificate);
  std::cout << arguments[0] << ": revocation list of " << kEntries << " entries, " << list->dataLen
            << " bytes of DER\n"
            << arguments[1] << ": the certificate that verifies it\n";
  return 0;
}

}  // namespace

int main(int argc, char** argv) { return RunCommand(argc, argv, kUsage, 2, 2, IssueList); }
