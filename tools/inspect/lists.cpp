// Revocation lists.
#include <algorithm>

#include "comparison.h"
#include "kind.h"
#include "structures.h"
#include "text.h"

using velkord::Bytes, velkord::Chain, velkord::ChainBuilder, velkord::Check, velkord::Handle,
    velkord::Length, velkord::Make, velkord::NodePtr, velkord::Out, velkord::View;

namespace {

// The places are the numbers of the reasons; 7 has none.
constexpr std::string_view kReasons[] = {
    "unspecified",   "keyCompromise",        "cACompromise",    "affiliationChanged",
    "superseded",    "cessationOfOperation", "certificateHold", "",
    "removeFromCRL", "privilegeWithdrawn",   "aACompromise",
};

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

// What comes of the signed part when its record is written again, with its entries as they were
// written. It is different where nextUpdate has another form than thisUpdate, which it then takes.
std::string SignedPartRemark(const Anybuf& original, const Anybuf* entries) {
  Handle<TbsCertList> record;
  const int32_t code = ASN1_CRL_TbsCertListDecode(original.data, original.dataLen, Out(record));
  if (code != VELKORD_OK) {
    return "no, its record cannot be decoded: " + velkord::ToErrorCode(code).message();
  }
  if (entries != nullptr) {
    Check(ASN1_CRL_TbsCertListSetRevokedCertificates(record.get(), entries), "set the entries");
  }
  const NodePtr rebuilt =
      Make("write the signed part", ASN1_CRL_TbsCertListWriteData, record.get());
  const bool hasVersion = SplitPair(original, "split the signed part")->dataType == kIntegerTag;
  if (hasVersion && SameBytes(*rebuilt, View(*WithoutFirst(original)))) {
    return "identical but for its version, which is written only when it is the number 2";
  }
  return std::string(Comparison(*rebuilt, View(original)));
}

}  // namespace

NodePtr ShowList(Bytes der, std::ostream& out) {
  const auto list =
      Make("decode the list", ASN1_CRL_CertificateListDecode, der.data(), Length(der));
  const Anybuf& signedPart = *list->tbsCertList;
  // Shown by its elements, since its record holds no time after 2038. KindOf found those up to
  // thisUpdate.
  const NodePtr elements = SplitPair(signedPart, "split the signed part");
  const Anybuf* element = elements.get();
  const bool hasVersion = element->dataType == kIntegerTag;
  out << "  version: " << (hasVersion ? Version(*element) : 1) << "\n  issuer:\n";
  if (hasVersion) element = element->next;
  const Anybuf& issuer = *element->next;
  PutName(out, issuer);
  out << "  this update: " << TimeText(*issuer.next, "read thisUpdate") << '\n';
  element = issuer.next->next;
  if (element != nullptr &&
      (element->dataType == kUtcTimeTag || element->dataType == kGeneralizedTimeTag)) {
    out << "  next update: " << TimeText(*element, "read nextUpdate") << '\n';
    element = element->next;
  }
  NodePtr entries;
  const bool hasEntries = element != nullptr && element->dataType == kSequenceTag;
  if (hasEntries) {
    entries = Make("split the entries", ASN1_ReadSequence, element);
    element = element->next;
  }
  out << "  signature algorithm: " << AlgorithmText(*list->signatureAlgorithm)
      << "\n  entries: " << std::ranges::distance(Chain(entries.get())) << '\n';
  ChainBuilder written;
  for (const Anybuf& entry : Chain(entries.get())) written.Append(ShowEntry(entry, out));
  if (hasEntries) entries = Make("write the entries", ASN1_WriteSequence, written.Head());
  if (element != nullptr) {
    const NodePtr extensions = Element(velkord::Content(View(*element)), "open the extensions");
    out << "  extensions:\n";
    PutExtensions(out, ReadExtensions(*extensions), "    ");
  }
  out << "  signed part rebuilt: " << SignedPartRemark(signedPart, entries.get()) << '\n';
  // Around the signed part as it was signed, since the library does not write every version of it.
  return Make("write the list", ASN1_CRL_CertificateListWriteData, list.get());
}
