// Writes signed structures. Certificates, revocation lists and requests are of one shape: what is
// signed, the algorithm and the signature.
#ifndef VELKORD_EXAMPLES_SIGNED_WHOLE_H_
#define VELKORD_EXAMPLES_SIGNED_WHOLE_H_

#include <cstdint>
#include <memory>

#include "handles.h"
#include "result_codes.h"

// The functions of one kind.
template <typename Record>
struct SignedWhole {
  int32_t (*create)(Record**);
  void (*free)(Record*);
  int32_t (*setSignedPart)(Record*, const Anybuf*);
  int32_t (*setAlgorithm)(Record*, const Anybuf*);
  int32_t (*setSignature)(Record*, const Anybuf*);
  int32_t (*write)(const Record*, Anybuf**);
};

inline constexpr SignedWhole<Certificate> kCertificateWhole = {
    ASN1_CreateCertificate,
    ASN1_FreeCertificate,
    ASN1_CertificateSetTbsCertificate,
    ASN1_CertificateSetSignatureAlgorithm,
    ASN1_CertificateSetSignatureValue,
    ASN1_CertificateWriteData,
};
inline constexpr SignedWhole<CertificateList> kListWhole = {
    ASN1_CRL_CreateCertificateList,
    ASN1_CRL_FreeCertificateList,
    ASN1_CRL_SetCertificateListTBSCertList,
    ASN1_CRL_SetCertificateListAlgorithmIdentifier,
    ASN1_CRL_SetCertificateListSignatureValue,
    ASN1_CRL_CertificateListWriteData,
};
inline constexpr SignedWhole<PKCS10Request> kRequestWhole = {
    ASN1_CreatePKCS10Request,
    ASN1_FreePKCS10Request,
    ASN1_PKCS10RequestSetCertificationRequestInfo,
    ASN1_PKCS10RequestSetAlgorithmIdentifier,
    ASN1_PKCS10RequestSetSignature,
    ASN1_PKCS10RequestWriteData,
};

template <typename Record>
NodePtr WriteSigned(const SignedWhole<Record>& whole, const Anybuf& signedPart,
                    const Anybuf& algorithm, const Anybuf& signature) {
  std::unique_ptr<Record, void (*)(Record*)> record(nullptr, whole.free);
  Check(whole.create(Out(record)), "create the signed structure");
  Check(whole.setSignedPart(record.get(), &signedPart), "set the signed part");
  Check(whole.setAlgorithm(record.get(), &algorithm), "set the structure's signature algorithm");
  Check(whole.setSignature(record.get(), &signature), "set the signature");
  NodePtr written;
  Check(whole.write(record.get(), Out(written)), "write the signed structure");
  return written;
}

#endif  // VELKORD_EXAMPLES_SIGNED_WHOLE_H_
