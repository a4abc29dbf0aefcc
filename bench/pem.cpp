// PEM text of a certificate.
#include <cstring>
#include <memory>

#if defined(VELKORD_BENCH_OPENSSL)
#include <openssl/bio.h>
#include <openssl/crypto.h>
#include <openssl/pem.h>
#endif
#if defined(VELKORD_BENCH_GNUTLS)
#include <gnutls/gnutls.h>
#endif

#include "Velkord.h"
#include "cases.h"
#include "contender.h"
#include "inputs.h"

namespace bench {

namespace {

constexpr char kHeader[] = "-----BEGIN CERTIFICATE-----";
constexpr char kFooter[] = "-----END CERTIFICATE-----";

struct Sample {
  Sample()
      : der(Certificate()),
        pem(PemCertificate()),
        text(2 * pem.size(), PageBuffer::kDestination),
        bytes(pem.size(), PageBuffer::kDestination) {}

  const std::vector<uint8_t>& der;
  const std::string& pem;
  PageBuffer text;
  PageBuffer bytes;
};

#if defined(VELKORD_BENCH_OPENSSL)
void AddOpenssl(const std::shared_ptr<Sample>& sample) {
  Add("pem_to_der", "openssl", 1, [sample] {
    BIO* in = BIO_new_mem_buf(sample->pem.data(), static_cast<int>(sample->pem.size()));
    char* name = nullptr;
    char* header = nullptr;
    unsigned char* data = nullptr;
    long length = 0;
    Require(PEM_read_bio(in, &name, &header, &data, &length) == 1, "OpenSSL reads the PEM text");
    OPENSSL_free(name);
    OPENSSL_free(header);
    OPENSSL_free(data);
    BIO_free(in);
  });
  // One writer for all rounds: only the text is made each time.
  const std::shared_ptr<BIO> out(BIO_new(BIO_s_mem()), BIO_free);
  Add("der_to_pem", "openssl", 1, [sample, out] {
    BIO_reset(out.get());
    Require(PEM_write_bio(out.get(), "CERTIFICATE", "", sample->der.data(),
                          static_cast<long>(sample->der.size())) > 0,
            "OpenSSL writes the PEM text");
  });
}
#endif

#if defined(VELKORD_BENCH_GNUTLS)
void AddGnutls(const std::shared_ptr<Sample>& sample) {
  const auto datum = [](const void* data, size_t size) {
    gnutls_datum_t view;
    view.data = static_cast<unsigned char*>(const_cast<void*>(data));
    view.size = static_cast<unsigned>(size);
    return view;
  };
  Add("pem_to_der", "gnutls", 1, [sample, datum] {
    const gnutls_datum_t in = datum(sample->pem.data(), sample->pem.size());
    gnutls_datum_t out;
    Require(gnutls_pem_base64_decode2("CERTIFICATE", &in, &out) == 0, "GnuTLS reads the PEM text");
    gnutls_free(out.data);
  });
  Add("der_to_pem", "gnutls", 1, [sample, datum] {
    const gnutls_datum_t in = datum(sample->der.data(), sample->der.size());
    gnutls_datum_t out;
    Require(gnutls_pem_base64_encode2("CERTIFICATE", &in, &out) == 0, "GnuTLS writes the PEM text");
    gnutls_free(out.data);
  });
}
#endif

}  // namespace

void AddPem() {
  const auto sample = std::make_shared<Sample>();
  Add("pem_to_der", "velkord", 1, [sample] {
    uint32_t length = 0;
    PEM2DER_data_format(sample->pem.data(), static_cast<uint32_t>(sample->pem.size()),
                        sample->bytes.Bytes(), &length);
    Require(length == sample->der.size(), "the PEM text is read");
    benchmark::ClobberMemory();
  });
  Add("pem_to_der", "limit", 1, [sample] {
    std::memcpy(sample->bytes.Bytes(), sample->der.data(), sample->der.size());
    benchmark::ClobberMemory();
  });
  Add("der_to_pem", "velkord", 1, [sample] {
    uint32_t length = 0;
    DER2PEM_data_format(sample->der.data(), static_cast<uint32_t>(sample->der.size()),
                        sample->text.Text(), &length, kHeader, kFooter);
    Require(length > sample->der.size(), "the PEM text is written");
    benchmark::ClobberMemory();
  });
  Add("der_to_pem", "limit", 1, [sample] {
    std::memcpy(sample->text.Bytes(), sample->pem.data(), sample->pem.size());
    benchmark::ClobberMemory();
  });
#if defined(VELKORD_BENCH_OPENSSL)
  AddOpenssl(sample);
#endif
#if defined(VELKORD_BENCH_GNUTLS)
  AddGnutls(sample);
#endif
}

}  // namespace bench
