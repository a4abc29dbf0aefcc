// A certificate decoded and written, and the machine's bundle decoded.
#include <algorithm>
#include <iterator>
#include <memory>
#include <utility>

#if defined(VELKORD_BENCH_OPENSSL)
#include <openssl/x509.h>
#endif
#if defined(VELKORD_BENCH_MBEDTLS)
#include <mbedtls/x509_crt.h>
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
// Here the plain name is that of an input.
using Whole = ::Certificate;

struct Decoded {
  Whole* whole = nullptr;
  TBSCertificate* tbs = nullptr;
};

using WholeShape =
    Shape<Whole, &Whole::tbsCertificate, &Whole::signatureAlgorithm, &Whole::signatureValue>;
using TbsShape = Shape<TBSCertificate, &TBSCertificate::versionNode, &TBSCertificate::serialNumber,
                       &TBSCertificate::signature, &TBSCertificate::issuer,
                       &TBSCertificate::validity, &TBSCertificate::subject,
                       &TBSCertificate::subjectPublicKeyInfo, &TBSCertificate::issuerUniqueID,
                       &TBSCertificate::subjectUniqueID, &TBSCertificate::extensions>;

bool DecodeVelkord(const Der& der, Decoded& out) {
  return ASN1_CertificateDecode(der.data(), static_cast<uint32_t>(der.size()), &out.whole) ==
             VELKORD_OK &&
         ASN1_TBSCertificateDecode(out.whole->tbsCertificate, &out.tbs) == VELKORD_OK;
}

void FreeVelkord(const Decoded& decoded) {
  ASN1_FreeTBSCertificate(decoded.tbs);
  ASN1_FreeCertificate(decoded.whole);
}

// Takes a certificate of version 3 with extensions and without the identifiers that nobody uses.
bool DecodeLimit(const Der& der, Decoded& out) {
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
  out.whole = Allocate<Whole>();
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

void FreeLimit(const Decoded& decoded) {
  TbsShape::Release(decoded.tbs);
  WholeShape::Release(decoded.whole);
}

template <auto kDecode, auto kFree>
bool DecodeAndFree(const Der& der) {
  Decoded decoded;
  const bool accepted = kDecode(der, decoded);
  kFree(decoded);
  return accepted;
}

#if defined(VELKORD_BENCH_OPENSSL)
bool DecodeOpenssl(const Der& der) {
  const unsigned char* at = der.data();
  X509* certificate = d2i_X509(nullptr, &at, static_cast<long>(der.size()));
  X509_free(certificate);
  return certificate != nullptr;
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

#if defined(VELKORD_BENCH_GNUTLS)
bool DecodeGnutls(const Der& der) {
  gnutls_datum_t datum;
  datum.data = const_cast<uint8_t*>(der.data());
  datum.size = static_cast<unsigned>(der.size());
  gnutls_x509_crt_t certificate;
  Require(gnutls_x509_crt_init(&certificate) == 0, "GnuTLS makes a certificate");
  const int code = gnutls_x509_crt_import(certificate, &datum, GNUTLS_X509_FMT_DER);
  gnutls_x509_crt_deinit(certificate);
  return code == 0;
}
#endif

struct Decoder {
  const char* contender;
  // Decodes and releases; whether the certificate was accepted.
  bool (*run)(const Der&);
};

constexpr Decoder kDecoders[] = {
    {"velkord", DecodeAndFree<DecodeVelkord, FreeVelkord>},
    {"limit", DecodeAndFree<DecodeLimit, FreeLimit>},
#if defined(VELKORD_BENCH_OPENSSL)
    {"openssl", DecodeOpenssl},
#endif
#if defined(VELKORD_BENCH_MBEDTLS)
    {"mbedtls", DecodeMbedtls},
#endif
#if defined(VELKORD_BENCH_GNUTLS)
    {"gnutls", DecodeGnutls},
#endif
};

bool AllAccept(const Der& der) {
  return std::ranges::all_of(kDecoders, [&](const Decoder& decoder) { return decoder.run(der); });
}

void RequireLimitEqual(const Der& der) {
  Decoded velkord;
  Decoded limit;
  Require(DecodeVelkord(der, velkord) && DecodeLimit(der, limit) &&
              WholeShape::Same(*velkord.whole, *limit.whole) &&
              TbsShape::Same(*velkord.tbs, *limit.tbs),
          "the limit decodes a certificate as the library does");
  FreeVelkord(velkord);
  FreeLimit(limit);
}

void AddDecode(const Der& certificate) {
  std::vector<Der> bundle;
  std::ranges::copy_if(Certificates(), std::back_inserter(bundle), AllAccept);
  std::ranges::for_each(bundle, RequireLimitEqual);
  const auto shared = std::make_shared<const std::vector<Der>>(std::move(bundle));
  for (const Decoder& decoder : kDecoders) {
    Add("certificate_decode", decoder.contender, 1, [&certificate, run = decoder.run] {
      Require(run(certificate), "a certificate is decoded");
    });
    Add("certificate_decode_bundle", decoder.contender, static_cast<double>(shared->size()),
        [shared, run = decoder.run] {
          for (const Der& der : *shared) Require(run(der), "a certificate is decoded");
        });
  }
}

struct Written {
  Anybuf* tbs;
  Anybuf* whole;
};

Written WriteVelkord(const Decoded& decoded) {
  Written written = {};
  Require(ASN1_TBSCertificateWriteData(decoded.tbs, &written.tbs) == VELKORD_OK &&
              ASN1_CertificateWriteData(decoded.whole, &written.whole) == VELKORD_OK,
          "a certificate is written");
  return written;
}

Written WriteLimit(const Decoded& decoded) {
  const TBSCertificate& tbs = *decoded.tbs;
  const Whole& whole = *decoded.whole;
  return {.tbs = JoinSequence<2>([&](auto visit) {
            visit(*tbs.versionNode);
            visit(*tbs.serialNumber);
            visit(*tbs.signature);
            visit(*tbs.issuer);
            visit(*tbs.validity);
            visit(*tbs.subject);
            visit(*tbs.subjectPublicKeyInfo);
            visit(*tbs.extensions);
          }),
          .whole = JoinSequence<2>([&](auto visit) {
            visit(*whole.tbsCertificate);
            visit(*whole.signatureAlgorithm);
            visit(*whole.signatureValue);
          })};
}

template <auto kRelease>
void Free(const Written& written) {
  kRelease(written.tbs);
  kRelease(written.whole);
}

void AddWrite(const Der& certificate) {
  const std::shared_ptr<Decoded> decoded(new Decoded, [](Decoded* records) {
    FreeVelkord(*records);
    delete records;
  });
  Require(DecodeVelkord(certificate, *decoded), "a certificate is decoded");
  const Written velkord = WriteVelkord(*decoded);
  const Written limit = WriteLimit(*decoded);
  Require(SameChains(velkord.tbs, limit.tbs) && SameChains(velkord.whole, limit.whole) &&
              std::ranges::equal(Bytes(velkord.whole->data, velkord.whole->dataLen), certificate),
          "the certificate is written as it was");
  Free<ASN1_FreeAnybuf>(velkord);
  Free<ReleaseChain>(limit);

  Add("certificate_write", "velkord", 1,
      [decoded] { Free<ASN1_FreeAnybuf>(WriteVelkord(*decoded)); });
  Add("certificate_write", "limit", 1, [decoded] { Free<ReleaseChain>(WriteLimit(*decoded)); });
}

#if defined(VELKORD_BENCH_OPENSSL)
void AddOpensslWrite(const Der& certificate) {
  const unsigned char* at = certificate.data();
  const std::shared_ptr<X509> decoded(d2i_X509(nullptr, &at, static_cast<long>(certificate.size())),
                                      X509_free);
  // Afterwards the signed part counts as changed, and its old bytes are not copied any more.
  Require(i2d_re_X509_tbs(decoded.get(), nullptr) > 0, "OpenSSL writes the signed part");
  Add("certificate_write", "openssl", 1, [decoded, size = certificate.size()] {
    unsigned char* bytes = nullptr;
    Require(i2d_X509(decoded.get(), &bytes) == static_cast<int>(size), "OpenSSL writes");
    OPENSSL_free(bytes);
  });
}
#endif

}  // namespace

void AddCertificates() {
  const Der& certificate = Certificate();
  Require(AllAccept(certificate), "every contender accepts the certificate");
  RequireLimitEqual(certificate);
  AddDecode(certificate);
  AddWrite(certificate);
#if defined(VELKORD_BENCH_OPENSSL)
  AddOpensslWrite(certificate);
#endif
}

}  // namespace bench
