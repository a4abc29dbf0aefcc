// Issues a revocation list of 1,000 entries, and the certificate of the authority that signs it
// with a new RSA key. The library builds every structure; libcrypto makes the key and the
// signatures.
#include <time.h>

#include <iostream>
#include <span>
#include <string_view>
#include <utility>

#include "authority_certificate.h"
#include "command_line.h"
#include "issuing.h"
#include "pem_file.h"
#include "result_codes.h"
#include "utc.h"

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

// The value by which version 2 of a list is numbered.
constexpr uint32_t kListVersion2 = 1;

NodePtr Integer(uint32_t value) {
  NodePtr node;
  Check(ASN1_WriteInteger(value, Out(node)), "write a number");
  return node;
}

NodePtr EntryExtensions(uint8_t reason) {
  NodePtr content;
  NodePtr code;
  Check(ASN1_CreateAnybuf(&reason, 1, 0, Out(content)), "hold the reason");
  Check(ASN1_WriteEnumerated(content.get(), Out(code)), "write the reason");
  NodeChain chain;
  chain.Append(Extension(kReasonCodeId, kNotCritical, *code));
  return Sequence(chain);
}

NodePtr Entry(uint32_t number, int64_t now) {
  RevokedCertificatePtr entry;
  Check(ASN1_CRL_CreateRevokedCertificate(Out(entry)), "create an entry");
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
  NodePtr node;
  Check(ASN1_CRL_RevokedCertificateWriteData(entry.get(), Out(node)), "write an entry");
  return node;
}

NodePtr Entries(int64_t now) {
  NodeChain chain;
  for (uint32_t number = 0; number < kEntries; ++number) chain.Append(Entry(number, now));
  return Sequence(chain);
}

// The identifier stands under [0] IMPLICIT.
NodePtr AuthorityKeyIdentifier(const SigningKey& key) {
  NodePtr identifier;
  Check(
      ASN1_WriteImplicit(OctetString(KeyIdentifier(*RsaPublicKey(key))).get(), 0, Out(identifier)),
      "write the authority's key identifier");
  NodeChain chain;
  chain.Append(std::move(identifier));
  return Sequence(chain);
}

NodePtr ListExtensions(const SigningKey& key) {
  NodeChain chain;
  chain.Append(Extension(kAuthorityKeyIdentifierId, kNotCritical, *AuthorityKeyIdentifier(key)));
  chain.Append(Extension(kCrlNumberId, kNotCritical, *Integer(kListNumber)));
  return Sequence(chain);
}

// A list with extensions has to be of version 2, which the standard numbers by the value 1. The
// library's setter writes the value 2 alone, so the version is left out there and put in front
// here.
NodePtr WithVersion2(const Anybuf& signedPart) {
  const NodePtr elements = Integer(kListVersion2);
  NodePtr behind;
  Check(ASN1_ReadSequence(&signedPart, Out(behind)), "split the signed part");
  elements->next = behind.release();
  NodePtr node;
  Check(ASN1_WriteSequence(elements.get(), Out(node)), "write the signed part with its version");
  return node;
}

NodePtr SignedPart(const SigningKey& key) {
  const int64_t now = time(nullptr);
  TbsCertListPtr tbs;
  Check(ASN1_CRL_CreateTbsCertList(Out(tbs)), "create the signed part");
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
  NodePtr node;
  Check(ASN1_CRL_TbsCertListWriteData(tbs.get(), Out(node)), "write the signed part");
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
