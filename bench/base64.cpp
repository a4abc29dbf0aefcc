// Base64 of plain buffers, and the PEM text of a certificate.
#include <memory>

#if defined(VELKORD_BENCH_OPENSSL)
#include <openssl/evp.h>
#include <openssl/pem.h>
#endif

#include "Velkord.h"
#include "cases.h"
#include "inputs.h"

namespace bench {

namespace {

void AddBase64(const std::string& name, uint32_t size) {
  const std::string encode = "base64_encode_" + name;
  const std::string decode = "base64_decode_" + name;
  const PageBuffer bytes(Random(1).Bytes(size));
  std::string encoded((size + 2) / 3 * 4, '\0');
  base64_encode(bytes.Data(), size, encoded.data());
  const PageBuffer text(encoded);
  const PageBuffer textOut(encoded.size() + 1);
  const PageBuffer bytesOut(size_t{size} + 3);

  Add(encode, "velkord", size, [=] { base64_encode(bytes.Data(), size, textOut.Text()); });
  Add(decode, "velkord", size, [=] {
    uint32_t length = 0;
    base64_decode(text.Text(), bytesOut.Data(), &length);
    Require(length == size, "Base64 is decoded");
  });
  AddCopy(encode, size, text, textOut);
  AddCopy(decode, size, bytes, bytesOut);

#if defined(VELKORD_BENCH_OPENSSL)
  const auto octets = static_cast<int>(size);
  const auto characters = static_cast<int>(text.Size());
  EVP_EncodeBlock(textOut.Data(), bytes.Data(), octets);
  Require(textOut.Text() == encoded, "OpenSSL encodes the same");
  Add(encode, "openssl", size, [=] { EVP_EncodeBlock(textOut.Data(), bytes.Data(), octets); });
  Add(decode, "openssl", size, [=] { EVP_DecodeBlock(bytesOut.Data(), text.Data(), characters); });
#endif
}

#if defined(VELKORD_BENCH_OPENSSL)
void AddOpensslPem(const PageBuffer& der, const PageBuffer& pem) {
  Add("pem_to_der", "openssl", 1, [=] {
    BIO* in = BIO_new_mem_buf(pem.Data(), static_cast<int>(pem.Size()));
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
  Add("der_to_pem", "openssl", 1, [=] {
    BIO_reset(out.get());
    Require(PEM_write_bio(out.get(), "CERTIFICATE", "", der.Data(), long{der.Size()}) > 0,
            "OpenSSL writes the PEM text");
  });
}
#endif

void AddPem(const Der& certificate) {
  const PageBuffer der(std::string(certificate.begin(), certificate.end()));
  const PageBuffer derOut(2 * certificate.size());
  const PageBuffer pemOut(2 * certificate.size());
  const auto write = [=] {
    uint32_t length = 0;
    DER2PEM_data_format(der.Data(), der.Size(), pemOut.Text(), &length,
                        "-----BEGIN CERTIFICATE-----", "-----END CERTIFICATE-----");
    Require(length > der.Size(), "the PEM text is written");
    return length;
  };
  const uint32_t pemSize = write();
  const PageBuffer pem(std::string(pemOut.Text(), pemSize));

  Add("pem_to_der", "velkord", 1, [=] {
    uint32_t length = 0;
    PEM2DER_data_format(pem.Text(), pem.Size(), derOut.Data(), &length);
    Require(length == der.Size(), "the PEM text is read");
  });
  Add("der_to_pem", "velkord", 1, write);
  AddCopy("pem_to_der", 1, der, derOut);
  AddCopy("der_to_pem", 1, pem, pemOut);
#if defined(VELKORD_BENCH_OPENSSL)
  AddOpensslPem(der, pem);
#endif
}

}  // namespace

void AddBase64AndPem() {
  AddBase64("1536", 1536);
  AddBase64("1m", 1U << 20);
  AddPem(MedianCertificate());
}

}  // namespace bench
