#include "certificate_parts.h"

#include <string>
#include <system_error>

#include "node_bytes.h"
#include "signed_whole.h"
#include "velkord.hpp"

using velkord::Bytes, velkord::Check, velkord::Errc, velkord::Handle, velkord::Length,
    velkord::Make, velkord::NodePtr, velkord::Out, velkord::ToErrorCode;

namespace {

constexpr uint32_t kIntegerTag = 2;
constexpr uint32_t kVersionTag = 0xA0;

Handle<TBSCertificate> DecodeTbs(const Anybuf& source) {
  Handle<TBSCertificate> tbs;
  const int32_t code = ASN1_TBSCertificateDecode(&source, Out(tbs));
  if (code == VELKORD_OK && tbs->versionNode->dataType == kVersionTag) return tbs;

  // Version 1 is the default value, so its element is left out and the serial number comes first,
  // where the decoder looks for the version.
  const NodePtr elements = Make("split the signed part", ASN1_ReadSequence, &source);
  const bool isVersion1 = elements != nullptr && elements->dataType == kIntegerTag;
  throw std::system_error(ToErrorCode(code == VELKORD_OK ? VELKORD_WRONG_TAG : code),
                          isVersion1
                              ? "decode the signed part, which has no version element (version 1)"
                              : "decode the signed part");
}

uint32_t ReadVersion(const TBSCertificate& tbs) {
  NodePtr number;
  uint32_t tag = 0;
  uint32_t version = 0;
  Check(ASN1_ReadExplicit(tbs.versionNode, Out(number), &tag), "open the version");
  Check(ASN1_ReadInteger(number.get(), &version), "read the version");
  return version;
}

NodePtr RebuildTbs(const CertificateParts& parts) {
  const TBSCertificate& from = parts.Tbs();
  const auto tbs = Make("create the signed part", ASN1_CreateTBSCertificate);
  Check(ASN1_TBSCertificateSetVersion(tbs.get(), parts.version), "set the version");
  Check(ASN1_TBSCertificateSetSerialNumber(tbs.get(), parts.serialNumber.data(),
                                           Length(parts.serialNumber)),
        "set the serial number");
  Check(ASN1_TBSCertificateSetSignatureAlg(tbs.get(), from.signature),
        "set the signature algorithm");
  Check(ASN1_TBSCertificateSetIssuer(tbs.get(), from.issuer), "set the issuer");
  Check(ASN1_TBSCertificateSetValidity(tbs.get(), from.validity), "set the validity");
  Check(ASN1_TBSCertificateSetSubject(tbs.get(), from.subject), "set the subject");
  Check(ASN1_TBSCertificateSetSubjectPublicKeyInfo(tbs.get(), from.subjectPublicKeyInfo),
        "set the public key");
  if (from.hasIssuerUniqueID == 1) {
    Check(ASN1_TBSCertificateSetIssuerUniqueID(tbs.get(), from.issuerUniqueID),
          "set the issuer's unique identifier");
  }
  if (from.hasSubjectUniqueID == 1) {
    Check(ASN1_TBSCertificateSetSubjectUniqueID(tbs.get(), from.subjectUniqueID),
          "set the subject's unique identifier");
  }
  if (const NodePtr list = ReadExtensionList(from)) {
    Check(ASN1_TBSCertificateSetExtensions(tbs.get(), list.get()), "set the extensions");
  }
  return Make("write the signed part", ASN1_TBSCertificateWriteData, tbs.get());
}

}  // namespace

CertificateParts ReadCertificateParts(Bytes der) {
  CertificateParts parts;
  Check(ASN1_CertificateDecode(der.data(), Length(der), Out(parts.certificate)),
        "decode the certificate");
  Handle<TBSCertificate> tbs = DecodeTbs(*parts.certificate->tbsCertificate);
  parts.version = ReadVersion(*tbs);
  parts.serialNumber = NodeContent(*tbs->serialNumber, "read the serial number");

  parts.view.reset(X509CertCreate(nullptr));
  if (parts.view == nullptr) throw std::system_error(Errc::kOutOfMemory, "create the view");
  parts.view->tbs = tbs.release();
  Check(X509CertGetSubject(parts.view.get()), "list the subject");
  return parts;
}

NodePtr RebuildCertificate(const CertificateParts& parts) {
  return WriteSigned(kCertificateWhole, *RebuildTbs(parts), *parts.certificate->signatureAlgorithm,
                     *parts.certificate->signatureValue);
}

NodePtr ReadExtensionList(const TBSCertificate& tbs) {
  if (tbs.hasExtensions != 1) return nullptr;
  // A decoded record holds the list one SEQUENCE deeper than the setter takes it.
  NodePtr list = Make("open the extensions", ASN1_ReadSequence, tbs.extensions);
  if (list == nullptr) throw std::system_error(Errc::kFailure, "open the extensions");
  return list;
}
