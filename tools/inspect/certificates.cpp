// Certificates of version 2 and 3.
#include <system_error>

#include "kind.h"
#include "structures.h"
#include "text.h"

using velkord::Bytes, velkord::Check, velkord::Errc, velkord::Handle, velkord::Length,
    velkord::Make, velkord::NodePtr, velkord::Out;

namespace {

Handle<TBSCertificate> DecodeSignedPart(const Anybuf& source) {
  // Version 1 is the default value, so its element is left out and the serial number comes first,
  // where the decoder looks for the version.
  const NodePtr elements = Make("split the signed part", ASN1_ReadSequence, &source);
  if (elements == nullptr || elements->dataType == kIntegerTag) {
    throw std::system_error(Errc::kWrongTag,
                            "decode the signed part, which has no version element (version 1)");
  }
  return Make("decode the signed part", ASN1_TBSCertificateDecode, &source);
}

uint32_t ReadVersion(const TBSCertificate& tbs) {
  NodePtr number;
  uint32_t tag = 0;
  uint32_t version = 0;
  Check(ASN1_ReadExplicit(tbs.versionNode, Out(number), &tag), "open the version");
  Check(ASN1_ReadInteger(number.get(), &version), "read the version");
  return version;
}

}  // namespace

NodePtr ShowCertificate(Bytes der, std::ostream& out) {
  const auto certificate =
      Make("decode the certificate", ASN1_CertificateDecode, der.data(), Length(der));
  const auto tbs = DecodeSignedPart(*certificate->tbsCertificate);
  out << "  version: " << uint64_t{ReadVersion(*tbs)} + 1 << "\n  subject:\n";
  PutName(out, *tbs->subject);
  out << "  issuer:\n";
  PutName(out, *tbs->issuer);
  const NodePtr times = SplitPair(*tbs->validity, "split the validity");
  out << "  serial number: " << HexText(Content(*tbs->serialNumber, "read the serial number"))
      << "\n  not before: " << TimeText(*times, "read notBefore")
      << "\n  not after: " << TimeText(*times->next, "read notAfter")
      << "\n  signature algorithm: " << AlgorithmText(*certificate->signatureAlgorithm)
      << "\n  key algorithm: " << KeyAlgorithmText(*tbs->subjectPublicKeyInfo) << '\n';
  if (tbs->hasExtensions == 1) {
    // A decoded record holds the list one SEQUENCE deeper than the setter takes it.
    const NodePtr list = Make("open the extensions", ASN1_ReadSequence, tbs->extensions);
    if (list == nullptr) throw std::system_error(Errc::kFailure, "open the extensions");
    out << "  extensions:\n";
    PutExtensions(out, ReadExtensions(*list), "    ");
    Check(ASN1_TBSCertificateSetExtensions(tbs.get(), list.get()), "set the extensions");
  }
  const NodePtr signedPart = Make("write the signed part", ASN1_TBSCertificateWriteData, tbs.get());
  Check(ASN1_CertificateSetTbsCertificate(certificate.get(), signedPart.get()),
        "set the signed part");
  return Make("write the certificate", ASN1_CertificateWriteData, certificate.get());
}
