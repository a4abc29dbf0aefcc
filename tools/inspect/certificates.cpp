// Certificates.
#include <system_error>

#include "comparison.h"
#include "kind.h"
#include "structures.h"
#include "text.h"

using velkord::Bytes, velkord::ChainBuilder, velkord::Check, velkord::Errc, velkord::Length,
    velkord::Make, velkord::NodePtr, velkord::View;

namespace {

// The element of version 1. It is the default value, so DER leaves it out, but the decoder needs
// it.
constexpr uint8_t kVersion1[] = {0xA0, 0x03, 0x02, 0x01, 0x00};

NodePtr WithVersion1(const Anybuf& signedPart) {
  const ChainBuilder elements(Element(kVersion1, "make version 1"),
                              SplitPair(signedPart, "split the signed part"));
  return Make("put version 1 in front", ASN1_WriteSequence, elements.Head());
}

}  // namespace

NodePtr ShowCertificate(Bytes der, std::ostream& out) {
  const auto certificate =
      Make("decode the certificate", ASN1_CertificateDecode, der.data(), Length(der));
  const Anybuf* source = certificate->tbsCertificate;
  // KindOf found a version or a serial number in front.
  const bool hasVersion = SplitPair(*source, "split the signed part")->dataType != kIntegerTag;
  const NodePtr completed = hasVersion ? nullptr : WithVersion1(*source);
  const auto tbs = Make("decode the signed part", ASN1_TBSCertificateDecode,
                        hasVersion ? source : completed.get());
  const NodePtr version = Element(velkord::Content(View(*tbs->versionNode)), "open the version");
  out << "  version: " << Version(*version) << "\n  subject:\n";
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
  NodePtr signedPart = Make("write the signed part", ASN1_TBSCertificateWriteData, tbs.get());
  if (!hasVersion) signedPart = WithoutFirst(*signedPart);
  Check(ASN1_CertificateSetTbsCertificate(certificate.get(), signedPart.get()),
        "set the signed part");
  return Make("write the certificate", ASN1_CertificateWriteData, certificate.get());
}
