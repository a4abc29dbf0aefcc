#include "structures.h"

#include <system_error>

#include "text.h"

using velkord::Bytes, velkord::Chain, velkord::Check, velkord::Errc, velkord::Length, velkord::Make,
    velkord::NodePtr, velkord::Out, velkord::View;

namespace {

constexpr uint32_t kObjectIdTag = 6;  // Reduced.

// A string by its type; of other types the content as it stands.
std::string ValueText(const Anybuf& node, const char* step) {
  try {
    return EscapedText(View(velkord::Utf8Text(node)));
  } catch (const std::system_error&) {
    return EscapedText(Content(node, step));
  }
}

}  // namespace

std::vector<uint8_t> Content(const Anybuf& node, const char* step) {
  std::vector<uint8_t> content(node.dataLen);
  uint32_t length = 0;
  Check(ASN1_ReadOctetStringToBytes(&node, content.data(), &length), step);
  content.resize(length);
  return content;
}

NodePtr Element(Bytes der, const char* step) {
  return Make(step, ASN1_WriteExplicitFromDERData, der.data(), Length(der));
}

NodePtr SplitPair(const Anybuf& sequence, const char* step) {
  NodePtr elements = Make(step, ASN1_ReadSequence, &sequence);
  if (elements == nullptr || elements->next == nullptr) {
    throw std::system_error(Errc::kFailure, step);
  }
  return elements;
}

std::string IdText(const Anybuf& node, const char* step) {
  if (node.dataType != kObjectIdTag) throw std::system_error(Errc::kWrongTag, step);
  return ObjectIdText(Content(node, step));
}

std::string TimeText(const Anybuf& node, const char* step) {
  std::string text = EscapedText(Content(node, step));
  try {
    const bool is1900s =
        velkord::ReadTime(node) < std::chrono::sys_days(std::chrono::year(2000) / 1 / 1);
    if (node.dataType == kUtcTimeTag) text.insert(0, is1900s ? "19" : "20");
  } catch (const std::system_error&) {
    return text + ", which is not a time in DER";
  }
  return text.substr(0, 4) + '-' + text.substr(4, 2) + '-' + text.substr(6, 2) + ' ' +
         text.substr(8, 2) + ':' + text.substr(10, 2) + ':' + text.substr(12, 2) + " UTC";
}

uint64_t Version(const Anybuf& number) {
  uint32_t version = 0;
  Check(ASN1_ReadInteger(&number, &version), "read the version");
  return uint64_t{version} + 1;
}

std::string AlgorithmText(const Anybuf& algorithm) {
  NodePtr id;
  Check(ASN1_GetAlgorithmIdentifier(&algorithm, Out(id), nullptr, nullptr), "open an algorithm");
  return IdText(*id, "read an algorithm");
}

std::string KeyAlgorithmText(const Anybuf& keyInfo) {
  NodePtr algorithm;
  NodePtr key;
  Check(ASN1_GetSubjectPublicKeyInfo(&keyInfo, Out(algorithm), Out(key)), "open the public key");
  return AlgorithmText(*algorithm);
}

// [put_name]
void PutName(std::ostream& out, const Anybuf& name) {
  const NodePtr relativeNames = Make("split a name", ASN1_ReadDerName, &name);
  for (const Anybuf& relative : Chain(relativeNames.get())) {
    const NodePtr attributes =
        Make("split a relative name", ASN1_ReadRelativeDistinguishedName, &relative);
    for (const Anybuf& attribute : Chain(attributes.get())) {
      const NodePtr type = SplitPair(attribute, "split an attribute of a name");
      out << "    " << IdText(*type, "read the type of an attribute of a name") << ": "
          << ValueText(*type->next, "read an attribute of a name") << '\n';
    }
  }
}
// [/put_name]

std::vector<Extension> ReadExtensions(const Anybuf& list) {
  std::vector<Extension> extensions;
  const NodePtr elements = Make("split the extensions", ASN1_ReadExtensions, &list);
  for (const Anybuf& element : Chain(elements.get())) {
    NodePtr id;
    NodePtr critical;
    NodePtr value;
    Check(ASN1_GetExtension(&element, Out(id), Out(critical), Out(value)), "open an extension");
    uint8_t isCritical = 0;
    if (critical != nullptr) {
      Check(ASN1_ReadBoolean(critical.get(), &isCritical), "read an extension's critical flag");
    }
    extensions.push_back({.id = IdText(*id, "read an extension's type"),
                          .isCritical = isCritical != 0,
                          .value = Content(*value, "read an extension's value")});
  }
  return extensions;
}

void PutExtensions(std::ostream& out, const std::vector<Extension>& list, std::string_view indent) {
  for (const Extension& extension : list) {
    out << indent << extension.id << (extension.isCritical ? ", critical, " : ", ")
        << extension.value.size() << " bytes\n";
  }
}
