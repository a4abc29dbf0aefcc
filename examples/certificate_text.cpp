#include "certificate_text.h"

#include <sstream>

#include "object_ids.h"
#include "structure_text.h"
#include "velkord.hpp"

using velkord::Bytes, velkord::Chain, velkord::Make, velkord::NodePtr;

namespace {

// One entry for the first attribute of each relative name, as the library lists them.
void PutSubject(std::ostream& out, const X509Cert& view) {
  out << "  subject:\n";
  for (const CertEntry& entry : Chain(view.subjectEntries)) {
    out << "    " << ObjectIdText(Bytes(entry.oid, entry.oidLen)) << ": ";
    if (entry.value == nullptr) {
      out << "(no UTF8String, PrintableString or BMPString)\n";
    } else {
      out << EscapedText(Bytes(entry.value, entry.valueLen)) << '\n';
    }
  }
}

void PutValidity(std::ostream& out, const Anybuf& validity) {
  const NodePtr times = Make("split the validity", ASN1_ReadSequence, &validity);
  const Anybuf* notAfter = times == nullptr ? nullptr : times->next;
  out << "  not before: " << TimeText(times.get(), "read notBefore") << '\n'
      << "  not after: " << TimeText(notAfter, "read notAfter") << '\n';
}

}  // namespace

std::string CertificateText(const CertificateParts& parts) {
  const TBSCertificate& tbs = parts.Tbs();
  std::ostringstream out;
  out << "  version: " << uint64_t{parts.version} + 1 << '\n';
  PutSubject(out, *parts.view);
  out << "  issuer:\n";
  PutName(out, *tbs.issuer);
  out << "  serial number: " << HexText(parts.serialNumber) << '\n';
  PutValidity(out, *tbs.validity);
  out << "  signature algorithm: "
      << AlgorithmText(*parts.certificate->signatureAlgorithm, "read the signature algorithm")
      << '\n'
      << "  key algorithm: " << KeyAlgorithmText(*tbs.subjectPublicKeyInfo) << '\n';
  if (const NodePtr list = ReadExtensionList(tbs)) {
    out << "  extensions:\n";
    PutExtensions(out, *list, "    ");
  }
  return out.str();
}
