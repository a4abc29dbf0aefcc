// Owning handles for what the library hands out, so that every path releases it.
#ifndef VELKORD_EXAMPLES_HANDLES_H_
#define VELKORD_EXAMPLES_HANDLES_H_

#include <memory>

#include "Velkord.h"

// The deleter of a handle whose object goes back through `kFree`.
template <auto kFree>
struct FreeWith {
  template <typename Object>
  void operator()(Object* object) const {
    kFree(object);
  }
};

// A node, or the head of a chain.
using NodePtr = std::unique_ptr<Anybuf, FreeWith<ASN1_FreeAnybuf>>;
using ObjectIdPtr = std::unique_ptr<ObjectID, FreeWith<ASN1_FreeObjectID>>;
using TbsPtr = std::unique_ptr<TBSCertificate, FreeWith<ASN1_FreeTBSCertificate>>;
using CertificatePtr = std::unique_ptr<Certificate, FreeWith<ASN1_FreeCertificate>>;
using X509CertPtr = std::unique_ptr<X509Cert, FreeWith<X509CertFree>>;
using RevokedCertificatePtr =
    std::unique_ptr<RevokedCertificate, FreeWith<ASN1_CRL_FreeRevokedCertificate>>;
using TbsCertListPtr = std::unique_ptr<TbsCertList, FreeWith<ASN1_CRL_FreeTbsCertList>>;
using CertificateListPtr = std::unique_ptr<CertificateList, FreeWith<ASN1_CRL_FreeCertificateList>>;
using Pkcs10Ptr = std::unique_ptr<PKCS10, FreeWith<ASN1_FreePKCS10>>;
using Pkcs10RequestPtr = std::unique_ptr<PKCS10Request, FreeWith<ASN1_FreePKCS10Request>>;
using Pkcs7Ptr = std::unique_ptr<PKCS7Context, FreeWith<ASN1_PKCS7_FreeContext>>;

// Stands for a handle in the call of a function with an out pointer. The handle has the object once
// the whole statement of the call has ended.
template <typename Handle>
class Out {
 public:
  explicit Out(Handle& handle) : handle_(handle) {}
  ~Out() { handle_.reset(object_); }
  Out(const Out&) = delete;
  Out& operator=(const Out&) = delete;

  // NOLINTNEXTLINE(google-explicit-constructor): it stands where the out pointer does.
  operator typename Handle::pointer *() { return &object_; }

 private:
  Handle& handle_;
  typename Handle::pointer object_ = nullptr;
};

#endif  // VELKORD_EXAMPLES_HANDLES_H_
