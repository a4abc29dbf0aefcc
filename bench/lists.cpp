// Revocation lists split, decoded and built.
#include <algorithm>

#if defined(VELKORD_BENCH_OPENSSL)
#include <openssl/x509.h>
#endif
#if defined(VELKORD_BENCH_MBEDTLS)
#include <mbedtls/x509_crl.h>
#endif

#include "cases.h"
#include "inputs.h"
#include "limit.h"
#include "velkord.hpp"

namespace bench {

namespace {

using velkord::Length;
using velkord::Make;
using velkord::NodePtr;

// Entries of the list that is decoded.
constexpr size_t kEntries = 10'000;

NodePtr SplitVelkord(const Der& sequence) {
  return Make("split entries", ASN1_WriteSequenceFromDERBytes, sequence.data(), Length(sequence));
}

Anybuf* SplitLimit(const Der& sequence) {
  std::array<Element, 1> whole;
  Require(TakeElements(sequence, whole) && whole[0].whole[0] == kSequence,
          "the limit opens the entries");
  GrowingChain entries;
  Element entry;
  for (Bytes rest = whole[0].content; !rest.empty();) {
    Require(TakeElement(rest, entry), "the limit takes an entry");
    entries.Append(CopyElement(entry));
  }
  return entries.first;
}

Der MakeEntries(size_t entries) {
  Der sequence = RevokedCertificates(entries);
  Anybuf* limit = SplitLimit(sequence);
  Require(SameChains(SplitVelkord(sequence).get(), limit),
          "the limit splits entries as the library does");
  ReleaseChain(limit);
  return sequence;
}

void AddSplit(size_t entries) {
  const std::string name = "list_split_" + std::to_string(entries);
  AddWithInput<MakeEntries>(name, "velkord", entries, SplitVelkord);
  AddWithInput<MakeEntries>(name, "limit", entries,
                            [](const Der& sequence) { ReleaseChain(SplitLimit(sequence)); });
}

struct Decoded {
  explicit Decoded(const Der& der)
      : list(Make("decode a list", ASN1_CRL_CertificateListDecode, der.data(), Length(der))),
        tbs(Make("decode its signed part", ASN1_CRL_TbsCertListDecode, list->tbsCertList->data,
                 list->tbsCertList->dataLen)),
        elements(Make("split its entries", ASN1_ReadSequence, tbs->revokedCertificates)) {
    entries.reserve(kEntries);
    for (const Anybuf& element : velkord::Chain(elements.get())) {
      entries.push_back(Make("decode an entry", ASN1_CRL_RevokedCertificateDecode, element.data,
                             element.dataLen));
    }
  }

  velkord::Handle<CertificateList> list;
  velkord::Handle<TbsCertList> tbs;
  NodePtr elements;
  std::vector<velkord::Handle<RevokedCertificate>> entries;
};

Decoded DecodeVelkord(const Der& der) { return Decoded(der); }

#if defined(VELKORD_BENCH_OPENSSL)
void DecodeOpenssl(const Der& der) {
  const unsigned char* at = der.data();
  X509_CRL* list = d2i_X509_CRL(nullptr, &at, static_cast<long>(der.size()));
  Require(list != nullptr && sk_X509_REVOKED_num(X509_CRL_get_REVOKED(list)) == kEntries,
          "OpenSSL decodes the list");
  X509_CRL_free(list);
}
#endif

#if defined(VELKORD_BENCH_MBEDTLS)
void DecodeMbedtls(const Der& der) {
  mbedtls_x509_crl list;
  mbedtls_x509_crl_init(&list);
  Require(mbedtls_x509_crl_parse_der(&list, der.data(), der.size()) == 0,
          "mbedTLS decodes the list");
  mbedtls_x509_crl_free(&list);
}
#endif

void AddDecode() {
  AddWithInput<RevocationList>("list_decode", "velkord", kEntries, DecodeVelkord);
#if defined(VELKORD_BENCH_OPENSSL)
  AddWithInput<RevocationList>("list_decode", "openssl", kEntries, DecodeOpenssl);
#endif
#if defined(VELKORD_BENCH_MBEDTLS)
  AddWithInput<RevocationList>("list_decode", "mbedtls", kEntries, DecodeMbedtls);
#endif
}

void ReadDates(const Decoded& list) {
  for (const auto& entry : list.entries) {
    int32_t seconds = 0;
    velkord::Check(ASN1_ReadUtcTime(entry->revocationDate, &seconds), "read a date");
  }
}

// The SEQUENCE of entries, of which each is written and linked to the chain by its end.
NodePtr Build(const Decoded& list) {
  GrowingChain chain;
  for (const auto& entry : list.entries) {
    chain.Append(
        Make("write an entry", ASN1_CRL_RevokedCertificateWriteData, entry.get()).release());
  }
  const NodePtr elements(chain.first);
  return Make("join the entries", ASN1_WriteSequence, elements.get());
}

Decoded MakeDecoded(size_t entries) {
  Decoded list(RevocationList(entries));
  Require(SameChains(Build(list).get(), list.tbs->revokedCertificates),
          "the entries are built as they were");
  return list;
}

}  // namespace

void AddLists() {
  for (const size_t entries : {10U, 1000U, 10'000U, 100'000U, 1'000'000U}) AddSplit(entries);
  AddDecode();
  AddWithInput<MakeDecoded>("list_dates", "velkord", kEntries, ReadDates);
  AddWithInput<MakeDecoded>("list_build", "velkord", kEntries, Build);
  AddWithInput<MakeDecoded>("list_build_100000", "velkord", 100'000, Build);
}

}  // namespace bench
