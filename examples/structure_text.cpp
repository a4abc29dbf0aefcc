#include "structure_text.h"

#include <system_error>
#include <vector>

#include "node_bytes.h"
#include "object_ids.h"
#include "velkord.hpp"

using velkord::Chain, velkord::Check, velkord::Errc, velkord::Make, velkord::NodePtr, velkord::Out,
    velkord::View;

namespace {

// Reduced tags.
constexpr uint32_t kObjectIdTag = 6;
constexpr uint32_t kUtcTimeTag = 23;
constexpr uint32_t kGeneralizedTimeTag = 24;
constexpr uint32_t kBmpStringTag = 30;

std::vector<uint8_t> NodeText(const Anybuf& node, const char* step) {
  if (node.dataType != kBmpStringTag) return NodeContent(node, step);
  std::vector<uint8_t> text(node.dataLen);
  uint32_t length = 0;
  Check(ASN1_ReadBmpStringToBytes(&node, text.data(), &length), step);
  text.resize(length);
  return text;
}

void PutAttribute(std::ostream& out, const Anybuf& attribute) {
  const NodePtr parts = Make("split an attribute of a name", ASN1_ReadSequence, &attribute);
  if (parts == nullptr || parts->next == nullptr) {
    throw std::system_error(Errc::kFailure, "split an attribute of a name");
  }
  out << "    " << NodeObjectId(*parts, "read the type of an attribute of a name") << ": "
      << EscapedText(NodeText(*parts->next, "read an attribute of a name")) << '\n';
}

void PutExtension(std::ostream& out, const Anybuf& extension, std::string_view indent) {
  NodePtr id;
  NodePtr critical;
  NodePtr value;
  Check(ASN1_GetExtension(&extension, Out(id), Out(critical), Out(value)), "open an extension");
  uint8_t isCritical = 0;
  if (critical != nullptr) {
    Check(ASN1_ReadBoolean(critical.get(), &isCritical), "read an extension's critical flag");
  }
  const NodePtr content = Make("read an extension's value", ASN1_ReadOctetString, value.get());
  out << indent << NodeObjectId(*id, "read an extension's type")
      << (isCritical != 0 ? ", critical, " : ", ") << content->dataLen << " bytes\n";
}

}  // namespace

std::string NodeObjectId(const Anybuf& node, const char* step) {
  if (node.dataType != kObjectIdTag) throw std::system_error(Errc::kWrongTag, step);
  const auto id = Make(step, ASN1_ReadObjectId, &node);
  return ObjectIdText(View(*id));
}

// Read from the text itself: the library's own reader gives local time and ends in 2038.
std::string TimeText(const Anybuf* node, const char* step) {
  if (node == nullptr) throw std::system_error(Errc::kFailure, step);
  const bool isUtcTime = node->dataType == kUtcTimeTag;
  if (!isUtcTime && node->dataType != kGeneralizedTimeTag) {
    throw std::system_error(Errc::kWrongTag, step);
  }

  const std::vector<uint8_t> content = NodeContent(*node, step);
  std::string text(content.begin(), content.end());
  const size_t digits = isUtcTime ? 12 : 14;
  if (text.size() != digits + 1 || text.back() != 'Z' ||
      text.find_first_not_of("0123456789") != digits) {
    throw std::system_error(Errc::kBadTime, step);
  }
  // Two-digit years run from 1950 to 2049.
  if (isUtcTime) text.insert(0, text[0] < '5' ? "20" : "19");
  return text.substr(0, 4) + '-' + text.substr(4, 2) + '-' + text.substr(6, 2) + ' ' +
         text.substr(8, 2) + ':' + text.substr(10, 2) + ':' + text.substr(12, 2) + " UTC";
}

std::string AlgorithmText(const Anybuf& algorithm, const char* step) {
  NodePtr id;
  Check(ASN1_GetAlgorithmIdentifier(&algorithm, Out(id), nullptr, nullptr), step);
  return NodeObjectId(*id, step);
}

std::string KeyAlgorithmText(const Anybuf& keyInfo) {
  NodePtr algorithm;
  NodePtr key;
  Check(ASN1_GetSubjectPublicKeyInfo(&keyInfo, Out(algorithm), Out(key)), "open the public key");
  return AlgorithmText(*algorithm, "read the key algorithm");
}

void PutName(std::ostream& out, const Anybuf& name) {
  const NodePtr relativeNames = Make("split a name", ASN1_ReadDerName, &name);
  for (const Anybuf& relative : Chain(relativeNames.get())) {
    const NodePtr attributes =
        Make("split a relative name", ASN1_ReadRelativeDistinguishedName, &relative);
    for (const Anybuf& attribute : Chain(attributes.get())) {
      PutAttribute(out, attribute);
    }
  }
}

void PutExtensions(std::ostream& out, const Anybuf& list, std::string_view indent) {
  const NodePtr extensions = Make("split the extensions", ASN1_ReadExtensions, &list);
  for (const Anybuf& extension : Chain(extensions.get())) {
    PutExtension(out, extension, indent);
  }
}
