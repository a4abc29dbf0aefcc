// Revocation lists. The library reads their times as local time: the program's zone is UTC.
#include <algorithm>

#include "comparison.h"
#include "kind.h"
#include "structures.h"
#include "text.h"

using velkord::Bytes, velkord::Chain, velkord::ChainBuilder, velkord::Check, velkord::Length,
    velkord::Make, velkord::NodePtr, velkord::View;

namespace {

// The places are the numbers of the reasons; 7 has none.
constexpr std::string_view kReasons[] = {
    "unspecified",   "keyCompromise",        "cACompromise",    "affiliationChanged",
    "superseded",    "cessationOfOperation", "certificateHold", "",
    "removeFromCRL", "privilegeWithdrawn",   "aACompromise",
};

// The record holds seconds, which were read as the local time that this writes.
std::string SecondsText(int32_t seconds, const char* step) {
  return TimeText(*Make(step, ASN1_WriteGeneralizedTime, &seconds), step);
}

// Empty when no extension of the entry is a reason code.
std::string ReasonText(const std::vector<Extension>& extensions) {
  const auto code = std::ranges::find(extensions, "2.5.29.21 reasonCode", &Extension::id);
  if (code == extensions.end()) return {};
  uint32_t reason = 0;
  Check(ASN1_ReadInteger(Element(code->value, "open a reason code").get(), &reason),
        "read a reason code");
  const bool isNamed = reason < std::size(kReasons) && !kReasons[reason].empty();
  return ", " + (isNamed ? std::string(kReasons[reason]) : std::to_string(reason));
}

// Shows an entry and writes it again.
NodePtr ShowEntry(const Anybuf& element, std::ostream& out) {
  const auto entry =
      Make("decode an entry", ASN1_CRL_RevokedCertificateDecode, element.data, element.dataLen);
  out << "    "
      << HexText(Content(*entry->certificateSerialNumber, "read an entry's serial number")) << ", "
      << TimeText(*entry->revocationDate, "read an entry's date");
  std::vector<Extension> extensions;
  if (entry->hasCrlEntryExtensions == 1) extensions = ReadExtensions(*entry->crlEntryExtensions);
  out << ReasonText(extensions) << '\n';
  PutExtensions(out, extensions, "      ");
  return Make("write an entry", ASN1_CRL_RevokedCertificateWriteData, entry.get());
}

// What comes of the signed part when its record is written again. It is different where nextUpdate
// has another form than thisUpdate, which it then takes.
std::string_view SignedPartRemark(const Anybuf& original, const Anybuf& rebuilt) {
  const bool hasVersion = SplitPair(original, "split the signed part")->dataType == kIntegerTag;
  if (hasVersion && SameBytes(rebuilt, View(*WithoutFirst(original)))) {
    return "identical but for its version, which is written only when it is the number 2";
  }
  return Comparison(rebuilt, View(original));
}

}  // namespace

NodePtr ShowList(Bytes der, std::ostream& out) {
  const auto list =
      Make("decode the list", ASN1_CRL_CertificateListDecode, der.data(), Length(der));
  const Anybuf& signedPart = *list->tbsCertList;
  const auto tbs = Make("decode the signed part", ASN1_CRL_TbsCertListDecode, signedPart.data,
                        signedPart.dataLen);
  out << "  version: " << uint64_t{tbs->version} + 1 << "\n  issuer:\n";
  PutName(out, *tbs->issuer);
  out << "  this update: " << SecondsText(tbs->thisUpdate, "write thisUpdate") << '\n';
  if (tbs->hasNextUpdate == 1) {
    out << "  next update: " << SecondsText(tbs->nextUpdate, "write nextUpdate") << '\n';
  }
  NodePtr entries;
  if (tbs->hasRevokedCertificates == 1) {
    entries = Make("split the entries", ASN1_ReadSequence, tbs->revokedCertificates);
  }
  out << "  signature algorithm: " << AlgorithmText(*list->signatureAlgorithm)
      << "\n  entries: " << std::ranges::distance(Chain(entries.get())) << '\n';
  ChainBuilder written;
  for (const Anybuf& entry : Chain(entries.get())) written.Append(ShowEntry(entry, out));
  if (tbs->hasRevokedCertificates == 1) {
    entries = Make("write the entries", ASN1_WriteSequence, written.Head());
    Check(ASN1_CRL_TbsCertListSetRevokedCertificates(tbs.get(), entries.get()), "set the entries");
  }
  if (tbs->hasCrlExtensions == 1) {
    out << "  extensions:\n";
    PutExtensions(out, ReadExtensions(*tbs->crlExtensions), "    ");
  }
  out << "  signed part rebuilt: "
      << SignedPartRemark(signedPart,
                          *Make("write the signed part", ASN1_CRL_TbsCertListWriteData, tbs.get()))
      << '\n';
  // Around the signed part as it was signed, since the library does not write every version of it.
  return Make("write the list", ASN1_CRL_CertificateListWriteData, list.get());
}
