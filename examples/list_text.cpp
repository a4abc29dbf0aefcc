#include "list_text.h"

#include <algorithm>
#include <sstream>
#include <string_view>

#include "node_bytes.h"
#include "object_ids.h"
#include "structure_text.h"
#include "velkord.hpp"

using velkord::Chain, velkord::Check, velkord::Handle, velkord::Make, velkord::NodePtr,
    velkord::Out;

namespace {

// Reduced tags.
constexpr uint32_t kIntegerTag = 2;
constexpr uint32_t kUtcTimeTag = 23;
constexpr uint32_t kGeneralizedTimeTag = 24;

// The places are the numbers of the reasons; 7 has none.
constexpr std::string_view kReasons[] = {
    "unspecified",   "keyCompromise",        "cACompromise",    "affiliationChanged",
    "superseded",    "cessationOfOperation", "certificateHold", "",
    "removeFromCRL", "privilegeWithdrawn",   "aACompromise",
};

// The record holds seconds, which were read as the local time that this writes.
std::string SecondsText(int32_t seconds, const char* step) {
  const NodePtr time = Make(step, ASN1_WriteGeneralizedTime, &seconds);
  return TimeText(time.get(), step);
}

std::string ReasonText(const Anybuf& value) {
  const std::vector<uint8_t> enumerated = NodeContent(value, "read a reason code's value");
  uint32_t reason = 0;
  Check(ASN1_ReadInteger(ElementNode(enumerated, "open a reason code").get(), &reason),
        "read a reason code");
  if (reason < std::size(kReasons) && !kReasons[reason].empty()) {
    return std::string(kReasons[reason]);
  }
  return std::to_string(reason);
}

// Empty when no extension of the entry is a reason code.
std::string EntryReason(const Anybuf& list) {
  const NodePtr extensions = Make("split an entry's extensions", ASN1_ReadExtensions, &list);
  for (const Anybuf& extension : Chain(extensions.get())) {
    NodePtr id;
    NodePtr critical;
    NodePtr value;
    Check(ASN1_GetExtension(&extension, Out(id), Out(critical), Out(value)),
          "open an entry's extension");
    if (DottedText(NodeContent(*id, "read an extension's type")) == kReasonCodeId) {
      return ReasonText(*value);
    }
  }
  return {};
}

void PutEntry(std::ostream& out, const RevokedCertificate& entry) {
  out << "    "
      << HexText(NodeContent(*entry.certificateSerialNumber, "read an entry's serial number"))
      << ", " << TimeText(entry.revocationDate, "read an entry's date");
  if (entry.hasCrlEntryExtensions != 1) {
    out << '\n';
    return;
  }
  const std::string reason = EntryReason(*entry.crlEntryExtensions);
  out << (reason.empty() ? "" : ", ") << reason << '\n';
  PutExtensions(out, *entry.crlEntryExtensions, "      ");
}

NodePtr WithoutFirst(const NodePtr& elements) {
  return Make("write the signed part shortened", ASN1_WriteSequence, elements->next);
}

bool HasElement(const NodePtr& elements, uint32_t type) {
  return std::ranges::any_of(Chain(elements.get()),
                             [type](const Anybuf& element) { return element.dataType == type; });
}

// What comes of the signed part when it is written from its fields.
std::string_view SignedPartRemark(const ListParts& parts) {
  const Anybuf& original = *parts.list->tbsCertList;
  const NodePtr rebuilt = RebuildSignedList(parts);
  if (SameBytes(*rebuilt, original)) return "identical";

  const NodePtr elements = Make("split the signed part", ASN1_ReadSequence, &original);
  if (HasElement(elements, kUtcTimeTag) && HasElement(elements, kGeneralizedTimeTag)) {
    return "different: nextUpdate is written in the form of thisUpdate";
  }
  if (elements->dataType == kIntegerTag && SameBytes(*rebuilt, *WithoutFirst(elements))) {
    return "identical but for its version, which is written only when it is the number 2";
  }
  return "different";
}

}  // namespace

std::string ListText(const ListParts& parts) {
  const TbsCertList& tbs = *parts.tbs;
  std::ostringstream out;
  out << "  version: " << uint64_t{tbs.version} + 1 << "\n  issuer:\n";
  PutName(out, *tbs.issuer);
  out << "  this update: " << SecondsText(tbs.thisUpdate, "write thisUpdate") << '\n';
  if (tbs.hasNextUpdate == 1) {
    out << "  next update: " << SecondsText(tbs.nextUpdate, "write nextUpdate") << '\n';
  }
  out << "  signature algorithm: "
      << AlgorithmText(*parts.list->signatureAlgorithm, "read the signature algorithm") << '\n'
      << "  entries: " << parts.entries.size() << '\n';
  for (const Handle<RevokedCertificate>& entry : parts.entries) PutEntry(out, *entry);
  if (tbs.hasCrlExtensions == 1) {
    out << "  extensions:\n";
    PutExtensions(out, *tbs.crlExtensions, "    ");
  }
  out << "  signed part rebuilt: " << SignedPartRemark(parts) << '\n';
  return out.str();
}
