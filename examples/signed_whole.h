// Writes signed structures. Certificates, revocation lists and requests are of one shape: what is
// signed, the algorithm and the signature.
#ifndef VELKORD_EXAMPLES_SIGNED_WHOLE_H_
#define VELKORD_EXAMPLES_SIGNED_WHOLE_H_

#include <cstdint>

#include "velkord.hpp"

// The functions of one kind.
template <typename Record>
struct SignedWhole {
  int32_t (*create)(Record**);
  int32_t (*setSignedPart)(Record*, const Anybuf*);
  int32_t (*setAlgorithm)(Record*, const Anybuf*);
  int32_t (*setSignature)(Record*, const Anybuf*);
  int32_t (*write)(const Record*, Anybuf**);
};

inline constexpr SignedWhole<Certificate> kCertificateWhole = {
    ASN1_CreateCertificate,
    ASN1_CertificateSetTbsCertificate,
    ASN1_CertificateSetSignatureAlgorithm,
    ASN1_CertificateSetSignatureValue,
    ASN1_CertificateWriteData,
};
inline constexpr SignedWhole<CertificateList> kListWhole = {
    ASN1_CRL_CreateCertificateList,
    ASN1_CRL_SetCertificateListTBSCertList,
    ASN1_CRL_SetCertificateListAlgorithmIdentifier,
    ASN1_CRL_SetCertificateListSignatureValue,
    ASN1_CRL_CertificateListWriteData,
};
inline constexpr SignedWhole<PKCS10Request> kRequestWhole = {
    ASN1_CreatePKCS10Request,
    ASN1_PKCS10RequestSetCertificationRequestInfo,
    ASN1_PKCS10RequestSetAlgorithmIdentifier,
    ASN1_PKCS10RequestSetSignature,
    ASN1_PKCS10RequestWriteData,
};

template <typename Record>
velkord::NodePtr WriteSigned(const SignedWhole<Record>& whole, const Anybuf& signedPart,
                             const Anybuf& algorithm, const Anybuf& signature) {
  const auto record = velkord::Make("create the signed structure", whole.create);
  velkord::Check(whole.setSignedPart(record.get(), &signedPart), "set the signed part");
  velkord::Check(whole.setAlgorithm(record.get(), &algorithm),
                 "set the structure's signature algorithm");
  velkord::Check(whole.setSignature(record.get(), &signature), "set the signature");
  return velkord::Make("write the signed structure", whole.write, record.get());
}

#endif  // VELKORD_EXAMPLES_SIGNED_WHOLE_H_
