// Revocation lists split, decoded and built.
#include <algorithm>
#include <ctime>
#include <iterator>
#include <memory>

#if defined(VELKORD_BENCH_OPENSSL)
#include <openssl/x509.h>
#endif
#if defined(VELKORD_BENCH_MBEDTLS)
#include <mbedtls/x509_crl.h>
#endif
#if defined(VELKORD_BENCH_GNUTLS)
#include <gnutls/gnutls.h>
#include <gnutls/x509.h>
#endif

#include "Velkord.h"
#include "cases.h"
#include "contender.h"
#include "inputs.h"
#include "limit.h"

namespace bench {

namespace {

using Der = std::vector<uint8_t>;

// Entries of the list that is decoded.
constexpr size_t kEntries = 10'000;

struct Decoded {
  CertificateList* list = nullptr;
  TbsCertList* tbs = nullptr;
  Anybuf* elements = nullptr;
  std::vector<RevokedCertificate*> entries;
};

using ListShape = Shape<CertificateList, &CertificateList::tbsCertList,
                        &CertificateList::signatureAlgorithm, &CertificateList::signatureValue>;
using TbsShape = Shape<TbsCertList, &TbsCertList::signature, &TbsCertList::issuer,
                       &TbsCertList::revokedCertificates, &TbsCertList::crlExtensions>;
using EntryShape =
    Shape<RevokedCertificate, &RevokedCertificate::certificateSerialNumber,
          &RevokedCertificate::revocationDate, &RevokedCertificate::crlEntryExtensions>;

Anybuf* SplitVelkord(Bytes sequence) {
  Anybuf* chain = nullptr;
  Require(ASN1_WriteSequenceFromDERBytes(sequence.data(), static_cast<uint32_t>(sequence.size()),
                                         &chain) == VELKORD_OK,
          "the entries are split");
  return chain;
}

Anybuf* SplitLimit(Bytes sequence) {
  Element element;
  Require(TakeElement(sequence, element) && sequence.empty() && element.whole[0] == kSequence,
          "the limit opens the entries");
  Chain chain;
  for (Bytes rest = element.content; !rest.empty();) {
    Require(TakeElement(rest, element), "the limit takes an entry");
    chain.Append(CopyElement(element));
  }
  return chain.first;
}

void DecodeVelkord(const Der& der, Decoded& out) {
  Require(ASN1_CRL_CertificateListDecode(der.data(), static_cast<uint32_t>(der.size()),
                                         &out.list) == VELKORD_OK,
          "the list is decoded");
  const Anybuf& tbs = *out.list->tbsCertList;
  Require(ASN1_CRL_TbsCertListDecode(tbs.data, tbs.dataLen, &out.tbs) == VELKORD_OK,
          "the signed part is decoded");
  Require(ASN1_ReadSequence(out.tbs->revokedCertificates, &out.elements) == VELKORD_OK,
          "the entries are split");
  out.entries.reserve(kEntries);
  for (const Anybuf* element = out.elements; element != nullptr; element = element->next) {
    RevokedCertificate* entry = nullptr;
    Require(
        ASN1_CRL_RevokedCertificateDecode(element->data, element->dataLen, &entry) == VELKORD_OK,
        "an entry is decoded");
    out.entries.push_back(entry);
  }
}

void FreeVelkord(const Decoded& decoded) {
  for (RevokedCertificate* entry : decoded.entries) ASN1_CRL_FreeRevokedCertificate(entry);
  ASN1_FreeAnybuf(decoded.elements);
  ASN1_CRL_FreeTbsCertList(decoded.tbs);
  ASN1_CRL_FreeCertificateList(decoded.list);
}

// What the way from local time back to seconds asks of the platform at the least: the zone's offset
// there, and whether it has changed lately.
void LookUpTwice(std::time_t time) {
  constexpr std::time_t kTwoDays = 2 * 86400;
  LookUpLocalTime(time);
  LookUpLocalTime(time - kTwoDays);
}

RevokedCertificate* DecodeEntryLimit(Bytes bytes) {
  Element whole;
  Element serialNumber;
  Element date;
  Element extensions;
  Require(TakeElement(bytes, whole) && bytes.empty() && whole.whole[0] == kSequence,
          "the limit opens an entry");
  Bytes rest = whole.content;
  Require(TakeElement(rest, serialNumber) && TakeElement(rest, date), "the limit reads an entry");
  const bool hasExtensions = !rest.empty();
  Require(!hasExtensions || (TakeElement(rest, extensions) && IsFilledSequence(extensions)),
          "the limit reads an entry's extensions");
  LookUpTwice(ReadUtcTime(date.content));
  auto* entry = Allocate<RevokedCertificate>();
  *entry = {.hasCrlEntryExtensions = hasExtensions ? 1U : 0U,
            .certificateSerialNumber = CopyElement(serialNumber),
            .revocationDate = CopyElement(date),
            .crlEntryExtensions = hasExtensions ? CopyElement(extensions) : nullptr};
  return entry;
}

// Copies the dates as they stand. Takes a list with a version, both times and entries, and without
// extensions.
void DecodeLimit(const Der& der, Decoded& out) {
  std::array<Element, 1> whole;
  std::array<Element, 3> parts;
  std::array<Element, 6> fields;
  Require(TakeElements(der, whole) && whole[0].whole[0] == kSequence &&
              TakeElements(whole[0].content, parts) && parts[0].whole[0] == kSequence &&
              IsFilledSequence(parts[1]) && TakeElements(parts[0].content, fields) &&
              IsFilledSequence(fields[1]) && IsFilledSequence(fields[2]),
          "the limit opens the list");
  out.list = Allocate<CertificateList>();
  *out.list = {.tbsCertList = CopyElement(parts[0]),
               .signatureAlgorithm = CopyElement(parts[1]),
               .signatureValue = CopyElement(parts[2])};
  out.list->signatureValue->unusedBits = parts[2].content[0];
  out.tbs = Allocate<TbsCertList>();
  *out.tbs = {.hasRevokedCertificates = 1,
              .hasCrlExtensions = 0,
              .hasNextUpdate = 1,
              .timeForm = 1,
              .version = fields[0].content[0],
              .signature = CopyElement(fields[1]),
              .issuer = CopyElement(fields[2]),
              .thisUpdate = 0,
              .nextUpdate = 0,
              .revokedCertificates = CopyElement(fields[5]),
              .crlExtensions = nullptr};
  out.elements = SplitLimit(fields[5].whole);
  out.entries.reserve(kEntries);
  for (const Anybuf* element = out.elements; element != nullptr; element = element->next) {
    out.entries.push_back(DecodeEntryLimit(Bytes(element->data, element->dataLen)));
  }
}

void FreeLimit(const Decoded& decoded) {
  for (RevokedCertificate* entry : decoded.entries) EntryShape::Release(entry);
  ReleaseChain(decoded.elements);
  TbsShape::Release(decoded.tbs);
  ListShape::Release(decoded.list);
}

template <auto kDecode, auto kFree>
void DecodeAndFree(const Der& der) {
  Decoded decoded;
  kDecode(der, decoded);
  kFree(decoded);
}

void RequireLimitEqual(const Der& der) {
  Decoded velkord;
  Decoded limit;
  DecodeVelkord(der, velkord);
  DecodeLimit(der, limit);
  Require(
      ListShape::Same(*velkord.list, *limit.list) && TbsShape::Same(*velkord.tbs, *limit.tbs) &&
          SameChains(velkord.elements, limit.elements) &&
          std::ranges::equal(velkord.entries, limit.entries,
                             [](const RevokedCertificate* entry, const RevokedCertificate* other) {
                               return EntryShape::Same(*entry, *other);
                             }),
      "the limit decodes a list as the library does");
  FreeVelkord(velkord);
  FreeLimit(limit);
}

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

#if defined(VELKORD_BENCH_GNUTLS)
size_t CountGnutlsEntries(gnutls_x509_crl_t list) {
  unsigned char serialNumber[32];
  time_t time;
  gnutls_x509_crl_iter_t place = nullptr;
  for (size_t count = 0;; ++count) {
    size_t size = sizeof serialNumber;
    if (gnutls_x509_crl_iter_crt_serial(list, &place, serialNumber, &size, &time) != 0) {
      gnutls_x509_crl_iter_deinit(place);
      return count;
    }
  }
}

void DecodeGnutls(const Der& der) {
  gnutls_datum_t datum;
  datum.data = const_cast<uint8_t*>(der.data());
  datum.size = static_cast<unsigned>(der.size());
  gnutls_x509_crl_t list;
  Require(gnutls_x509_crl_init(&list) == 0 &&
              gnutls_x509_crl_import(list, &datum, GNUTLS_X509_FMT_DER) == 0 &&
              CountGnutlsEntries(list) == kEntries,
          "GnuTLS decodes the list");
  gnutls_x509_crl_deinit(list);
}
#endif

Der MakeList(size_t entries) {
  Der list = RevocationList(entries);
  RequireLimitEqual(list);
  return list;
}

using DecodedPtr = std::shared_ptr<const Decoded>;

DecodedPtr DecodeList(const Der& list) {
  const std::shared_ptr<Decoded> decoded(new Decoded, [](Decoded* records) {
    FreeVelkord(*records);
    delete records;
  });
  DecodeVelkord(list, *decoded);
  return decoded;
}

void AddDecode() {
  const auto add = [](const char* contender, void (*run)(const Der&)) {
    AddWithInput<MakeList>("list_decode", contender, kEntries, run);
  };
  add("velkord", DecodeAndFree<DecodeVelkord, FreeVelkord>);
  add("limit", DecodeAndFree<DecodeLimit, FreeLimit>);
#if defined(VELKORD_BENCH_OPENSSL)
  add("openssl", DecodeOpenssl);
#endif
#if defined(VELKORD_BENCH_MBEDTLS)
  add("mbedtls", DecodeMbedtls);
#endif
#if defined(VELKORD_BENCH_GNUTLS)
  add("gnutls", DecodeGnutls);
#endif
}

// The SEQUENCE of entries.
Der MakeEntries(size_t entries) {
  const Der list = RevocationList(entries);
  std::array<Element, 1> whole;
  std::array<Element, 3> parts;
  std::array<Element, 6> fields;
  Require(TakeElements(list, whole) && TakeElements(whole[0].content, parts) &&
              TakeElements(parts[0].content, fields),
          "the list is opened");
  const Bytes sequence = fields[5].whole;
  Anybuf* velkord = SplitVelkord(sequence);
  Anybuf* limit = SplitLimit(sequence);
  Require(SameChains(velkord, limit), "the limit splits entries as the library does");
  ASN1_FreeAnybuf(velkord);
  ReleaseChain(limit);
  return Der(sequence.begin(), sequence.end());
}

void AddSplit(size_t entries) {
  const std::string name = "list_split_" + std::to_string(entries);
  AddWithInput<MakeEntries>(name, "velkord", entries,
                            [](const Der& sequence) { ASN1_FreeAnybuf(SplitVelkord(sequence)); });
  AddWithInput<MakeEntries>(name, "limit", entries,
                            [](const Der& sequence) { ReleaseChain(SplitLimit(sequence)); });
}

// Dates as nodes and in seconds.
struct Dates {
  DecodedPtr list;
  std::vector<std::time_t> seconds;
};

int32_t ReadDate(const RevokedCertificate& entry) {
  int32_t seconds = 0;
  Require(ASN1_ReadUtcTime(entry.revocationDate, &seconds) == VELKORD_OK, "a date is read");
  return seconds;
}

Dates MakeDates(size_t entries) {
  Dates dates = {.list = DecodeList(RevocationList(entries)), .seconds = {}};
  for (const RevokedCertificate* entry : dates.list->entries) {
    dates.seconds.push_back(ReadDate(*entry));
  }
  return dates;
}

void AddDates() {
  AddWithInput<MakeDates>("list_dates", "velkord", kEntries, [](const Dates& dates) {
    for (const RevokedCertificate* entry : dates.list->entries) {
      benchmark::DoNotOptimize(ReadDate(*entry));
    }
  });
  AddWithInput<MakeDates>("list_dates", "limit", kEntries, [](const Dates& dates) {
    for (const std::time_t seconds : dates.seconds) LookUpTwice(seconds);
  });
}

Anybuf* WriteEntryVelkord(const RevokedCertificate& entry) {
  Anybuf* node = nullptr;
  Require(ASN1_CRL_RevokedCertificateWriteData(&entry, &node) == VELKORD_OK, "an entry is written");
  return node;
}

Anybuf* WriteEntryLimit(const RevokedCertificate& entry) {
  return JoinSequence<0>([&](auto visit) {
    visit(*entry.certificateSerialNumber);
    visit(*entry.revocationDate);
    if (entry.hasCrlEntryExtensions == 1) visit(*entry.crlEntryExtensions);
  });
}

Anybuf* JoinVelkord(const Anybuf* chain) {
  Anybuf* node = nullptr;
  Require(ASN1_WriteSequence(chain, &node) == VELKORD_OK, "the entries are joined");
  return node;
}

Anybuf* JoinLimit(const Anybuf* chain) {
  return JoinSequence<3>([&](auto visit) {
    for (const Anybuf* node = chain; node != nullptr; node = node->next) visit(*node);
  });
}

// The SEQUENCE of entries, of which each is written and linked to the chain by its end.
template <auto kWriteEntry, auto kJoin, auto kRelease>
Anybuf* Build(const std::vector<RevokedCertificate*>& entries) {
  Chain chain;
  for (const RevokedCertificate* entry : entries) chain.Append(kWriteEntry(*entry));
  Anybuf* sequence = kJoin(chain.first);
  kRelease(chain.first);
  return sequence;
}

constexpr auto kBuildVelkord = Build<WriteEntryVelkord, JoinVelkord, ASN1_FreeAnybuf>;
constexpr auto kBuildLimit = Build<WriteEntryLimit, JoinLimit, ReleaseChain>;

DecodedPtr MakeRecords(size_t entries) {
  DecodedPtr decoded = DecodeList(RevocationList(entries));
  Anybuf* velkord = kBuildVelkord(decoded->entries);
  Anybuf* limit = kBuildLimit(decoded->entries);
  Require(SameChains(velkord, decoded->tbs->revokedCertificates) && SameChains(limit, velkord),
          "the entries are built as they were");
  ASN1_FreeAnybuf(velkord);
  ReleaseChain(limit);
  return decoded;
}

void AddBuild(const char* name, size_t entries) {
  AddWithInput<MakeRecords>(name, "velkord", entries, [](const DecodedPtr& decoded) {
    ASN1_FreeAnybuf(kBuildVelkord(decoded->entries));
  });
  AddWithInput<MakeRecords>(name, "limit", entries, [](const DecodedPtr& decoded) {
    ReleaseChain(kBuildLimit(decoded->entries));
  });
}

}  // namespace

void AddLists() {
  for (const size_t entries : {10U, 1000U, 10'000U, 100'000U, 1'000'000U}) AddSplit(entries);
  AddDecode();
  AddDates();
  AddBuild("list_build", 10'000);
  AddBuild("list_build_100000", 100'000);
}

}  // namespace bench
