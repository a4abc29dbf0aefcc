#include "request_text.h"

#include <sstream>
#include <string_view>
#include <system_error>

#include "node_bytes.h"
#include "object_ids.h"
#include "structure_text.h"
#include "velkord.hpp"

using velkord::Chain, velkord::Errc, velkord::Make, velkord::NodePtr;

namespace {

// A value is told by its size alone, since one of the usual attributes is a password.
void PutValue(std::ostream& out, std::string_view type, const Anybuf& value) {
  if (type == kExtensionRequestId) {
    PutExtensions(out, value, "      ");
  } else {
    out << "      " << NodeContent(value, "read a value of an attribute").size() << " bytes\n";
  }
}

void PutAttribute(std::ostream& out, const Anybuf& attribute) {
  const NodePtr parts = Make("split an attribute", ASN1_ReadSequence, &attribute);
  if (parts == nullptr || parts->next == nullptr) {
    throw std::system_error(Errc::kFailure, "split an attribute");
  }
  out << "    " << NodeObjectId(*parts, "read the type of an attribute") << ":\n";

  const std::string type = DottedText(NodeContent(*parts, "read the type of an attribute"));
  const NodePtr values = Make("split the values of an attribute", ASN1_ReadSet, parts->next);
  for (const Anybuf& value : Chain(values.get())) {
    PutValue(out, type, value);
  }
}

// What comes of the signed part when it is written from its fields.
std::string_view SignedPartRemark(const RequestParts& parts) {
  if (parts.info->attributes == nullptr) {
    return "no, since the element of its attributes is missing and would be written";
  }
  const NodePtr rebuilt = RebuildSignedRequest(parts);
  return SameBytes(*rebuilt, *parts.request->certificationRequestInfo) ? "identical" : "different";
}

}  // namespace

std::string RequestText(const RequestParts& parts) {
  const PKCS10& info = *parts.info;
  std::ostringstream out;
  out << "  version: " << uint64_t{parts.version} + 1 << "\n  subject:\n";
  PutName(out, *info.subject);
  out << "  key algorithm: " << KeyAlgorithmText(*info.subjectPublicKeyInfo) << '\n';
  if (const NodePtr attributes = ReadAttributes(parts)) {
    out << "  attributes:\n";
    for (const Anybuf& attribute : Chain(attributes.get())) {
      PutAttribute(out, attribute);
    }
  }
  out << "  signature algorithm: "
      << AlgorithmText(*parts.request->signatureAlgorithm, "read the signature algorithm") << '\n'
      << "  signed part rebuilt: " << SignedPartRemark(parts) << '\n';
  return out.str();
}
