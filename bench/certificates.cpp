// A certificate decoded and written, and the machine's bundle decoded.
#include <algorithm>
#include <iterator>
#include <memory>

#if defined(VELKORD_BENCH_OPENSSL)
#include <openssl/x509.h>
#endif
#if defined(VELKORD_BENCH_MBEDTLS)
#include <mbedtls/x509_crt.h>
#endif

#include "cases.h"
#include "inputs.h"
#include "limit.h"
#include "velkord.hpp"

namespace bench {

namespace {

using velkord::Make;

struct Records {
  Certificate* whole = nullptr;
  TBSCertificate* tbs = nullptr;
};

// What the library decodes. Held without handles, which would be timed too.
struct Decoded : Records {
  explicit Decoded(const Der& der) {
    Require(ASN1_CertificateDecode(der.data(), velkord::Length(der), &whole) == VELKORD_OK &&
                ASN1_TBSCertificateDecode(whole->tbsCertificate, &tbs) == VELKORD_OK,
            "a certificate is decoded");
  }
  Decoded(const Decoded&) = delete;
  Decoded& operator=(const Decoded&) = delete;
  ~Decoded() {
    ASN1_FreeTBSCertificate(tbs);
    ASN1_FreeCertificate(whole);
  }
};

bool DecodeVelkord(const Der& der) {
  const Decoded decoded(der);
  return true;
}

// Takes a certificate of version 3 with extensions and without the identifiers that nobody uses.
bool DecodeLimit(const Der& der, Records& out) {
  std::array<Element, 1> whole;
  std::array<Element, 3> parts;
  std::array<Element, 8> fields;
  if (!TakeElements(der, whole) || whole[0].whole[0] != kSequence ||
      !TakeElements(whole[0].content, parts) || parts[0].whole[0] != kSequence ||
      !TakeElements(parts[0].content, fields) || fields[7].whole[0] != 0xA3 ||
      !IsFilledSequence(parts[1]) ||
      !std::all_of(fields.begin() + 2, fields.begin() + 7, IsFilledSequence)) {
    return false;
  }
  out.whole = Allocate<Certificate>();
  *out.whole = {.tbsCertificate = CopyElement(parts[0]),
                .signatureAlgorithm = CopyElement(parts[1]),
                .signatureValue = CopyElement(parts[2])};
  out.tbs = Allocate<TBSCertificate>();
  *out.tbs = {.version = 0,
              .hasIssuerUniqueID = 0,
              .hasSubjectUniqueID = 0,
              .hasExtensions = 1,
              .versionNode = CopyElement(fields[0]),
              .serialNumber = CopyElement(fields[1]),
              .signature = CopyElement(fields[2]),
              .issuer = CopyElement(fields[3]),
              .validity = CopyElement(fields[4]),
              .subject = CopyElement(fields[5]),
              .subjectPublicKeyInfo = CopyElement(fields[6]),
              .issuerUniqueID = nullptr,
              .subjectUniqueID = nullptr,
              .extensions = CopyElement(fields[7])};
  out.tbs->extensions->data[0] = kSequence;
  out.tbs->extensions->dataType = kSequence & 0x1F;
  return true;
}

std::array<Anybuf*, 11> Nodes(const Records& records) {
  const Certificate& whole = *records.whole;
  const TBSCertificate& tbs = *records.tbs;
  return {whole.tbsCertificate, whole.signatureAlgorithm,
          whole.signatureValue, tbs.versionNode,
          tbs.serialNumber,     tbs.signature,
          tbs.issuer,           tbs.validity,
          tbs.subject,          tbs.subjectPublicKeyInfo,
          tbs.extensions};
}

void FreeLimit(const Records& decoded) {
  std::ranges::for_each(Nodes(decoded), ReleaseChain);
  std::free(decoded.tbs);
  std::free(decoded.whole);
}

bool DecodeAndFreeLimit(const Der& der) {
  Records decoded;
  if (!DecodeLimit(der, decoded)) return false;
  FreeLimit(decoded);
  return true;
}

void RequireLimitEqual(const Der& der) {
  const Decoded velkord(der);
  Records limit;
  Require(DecodeLimit(der, limit) && std::ranges::equal(Nodes(velkord), Nodes(limit), SameChains),
          "the limit decodes a certificate as the library does");
  FreeLimit(limit);
}

#if defined(VELKORD_BENCH_OPENSSL)
using OpensslCertificate = std::unique_ptr<X509, decltype(&X509_free)>;

OpensslCertificate ReadOpenssl(const Der& der) {
  const unsigned char* at = der.data();
  return {d2i_X509(nullptr, &at, static_cast<long>(der.size())), X509_free};
}

bool DecodeOpenssl(const Der& der) { return ReadOpenssl(der) != nullptr; }

void AddOpensslWrite(const Der& certificate) {
  const std::shared_ptr<X509> decoded = ReadOpenssl(certificate);
  // Afterwards the signed part counts as changed, and its old bytes are not copied any more.
  Require(i2d_re_X509_tbs(decoded.get(), nullptr) > 0, "OpenSSL writes the signed part");
  Add("certificate_write", "openssl", 1, [decoded, size = certificate.size()] {
    unsigned char* bytes = nullptr;
    Require(i2d_X509(decoded.get(), &bytes) == static_cast<int>(size), "OpenSSL writes");
    OPENSSL_free(bytes);
  });
}
#endif

#if defined(VELKORD_BENCH_MBEDTLS)
bool DecodeMbedtls(const Der& der) {
  mbedtls_x509_crt certificate;
  mbedtls_x509_crt_init(&certificate);
  const int code = mbedtls_x509_crt_parse_der(&certificate, der.data(), der.size());
  mbedtls_x509_crt_free(&certificate);
  return code == 0;
}
#endif

struct Decoder {
  const char* contender;
  // Decodes and releases; whether the certificate was accepted.
  bool (*run)(const Der&);
};

constexpr Decoder kDecoders[] = {
    {"velkord", DecodeVelkord},
    {"limit", DecodeAndFreeLimit},
#if defined(VELKORD_BENCH_OPENSSL)
    {"openssl", DecodeOpenssl},
#endif
#if defined(VELKORD_BENCH_MBEDTLS)
    {"mbedtls", DecodeMbedtls},
#endif
};

// The certificates of the bundle that every contender accepts.
std::vector<Der> AcceptedCertificates() {
  std::vector<Der> accepted;
  std::ranges::copy_if(BundledCertificates(), std::back_inserter(accepted), [](const Der& der) {
    return std::ranges::all_of(kDecoders, [&](const Decoder& decoder) { return decoder.run(der); });
  });
  return accepted;
}

void AddDecode(const Der& certificate) {
  static const std::vector<Der> kBundle = AcceptedCertificates();
  std::ranges::for_each(kBundle, RequireLimitEqual);
  RequireLimitEqual(certificate);
  for (const Decoder& decoder : kDecoders) {
    Add("certificate_decode", decoder.contender, 1, [&certificate, run = decoder.run] {
      Require(run(certificate), "a certificate is decoded");
    });
    Add("certificate_decode_bundle", decoder.contender, kBundle.size(), [run = decoder.run] {
      for (const Der& der : kBundle) Require(run(der), "a certificate is decoded");
    });
  }
}

void AddWrite(const Der& certificate) {
  const auto decoded = std::make_shared<const Decoded>(certificate);
  const auto write = [decoded] {
    const auto tbs = Make("write a signed part", ASN1_TBSCertificateWriteData, decoded->tbs);
    return Make("write a certificate", ASN1_CertificateWriteData, decoded->whole);
  };
  Require(std::ranges::equal(velkord::View(*write()), certificate),
          "the certificate is written as it was");
  Add("certificate_write", "velkord", 1, write);
}

}  // namespace

void AddCertificates() {
  const Der& certificate = MedianCertificate();
  AddDecode(certificate);
  AddWrite(certificate);
#if defined(VELKORD_BENCH_OPENSSL)
  AddOpensslWrite(certificate);
#endif
}

}  // namespace bench
