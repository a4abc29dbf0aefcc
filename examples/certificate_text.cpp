#include "certificate_text.h"

#include <sstream>
#include <vector>

#include "object_ids.h"
#include "result_codes.h"

namespace {

// Reduced tags.
constexpr uint32_t kObjectIdTag = 6;
constexpr uint32_t kUtcTimeTag = 23;
constexpr uint32_t kGeneralizedTimeTag = 24;
constexpr uint32_t kBmpStringTag = 30;

std::string NodeObjectId(const Anybuf& node, const char* step) {
  if (node.dataType != kObjectIdTag) Fail(step, VELKORD_WRONG_TAG);
  ObjectIdPtr id;
  Check(ASN1_ReadObjectId(&node, Out(id)), step);
  return ObjectIdText(Bytes(id->data, id->dataLen));
}

// The content of a string or time.
std::vector<uint8_t> NodeText(const Anybuf& node, const char* step) {
  std::vector<uint8_t> text(node.dataLen);
  uint32_t length = 0;
  const auto read =
      node.dataType == kBmpStringTag ? ASN1_ReadBmpStringToBytes : ASN1_ReadUTF8StringToBytes;
  Check(read(&node, text.data(), &length), step);
  text.resize(length);
  return text;
}

// Read from the text itself: the library's own reader gives local time and ends in 2038.
std::string TimeText(const Anybuf* node, const char* step) {
  if (node == nullptr) Fail(step, VELKORD_FAILURE);
  const bool isUtcTime = node->dataType == kUtcTimeTag;
  if (!isUtcTime && node->dataType != kGeneralizedTimeTag) Fail(step, VELKORD_WRONG_TAG);

  const std::vector<uint8_t> content = NodeText(*node, step);
  std::string text(content.begin(), content.end());
  const size_t digits = isUtcTime ? 12 : 14;
  if (text.size() != digits + 1 || text.back() != 'Z' ||
      text.find_first_not_of("0123456789") != digits) {
    Fail(step, VELKORD_BAD_TIME);
  }
  // A certificate's two-digit years run from 1950 to 2049.
  if (isUtcTime) text.insert(0, text[0] < '5' ? "20" : "19");
  return text.substr(0, 4) + '-' + text.substr(4, 2) + '-' + text.substr(6, 2) + ' ' +
         text.substr(8, 2) + ':' + text.substr(10, 2) + ':' + text.substr(12, 2) + " UTC";
}

// One entry for the first attribute of each relative name, as the library lists them.
void PutSubject(std::ostream& out, const X509Cert& view) {
  out << "  subject:\n";
  for (const CertEntry* entry = view.subjectEntries; entry != nullptr; entry = entry->next) {
    out << "    " << ObjectIdText(Bytes(entry->oid, entry->oidLen)) << ": ";
    if (entry->value == nullptr) {
      out << "(no UTF8String, PrintableString or BMPString)\n";
    } else {
      out << EscapedText(Bytes(entry->value, entry->valueLen)) << '\n';
    }
  }
}

void PutAttribute(std::ostream& out, const Anybuf& attribute) {
  NodePtr parts;
  Check(ASN1_ReadSequence(&attribute, Out(parts)), "split an attribute of the issuer");
  if (parts == nullptr || parts->next == nullptr) {
    Fail("split an attribute of the issuer", VELKORD_FAILURE);
  }
  out << "    " << NodeObjectId(*parts, "read the type of an attribute of the issuer") << ": "
      << EscapedText(NodeText(*parts->next, "read an attribute of the issuer")) << '\n';
}

void PutIssuer(std::ostream& out, const Anybuf& issuer) {
  out << "  issuer:\n";
  NodePtr names;
  Check(ASN1_ReadDerName(&issuer, Out(names)), "split the issuer");
  for (const Anybuf* name = names.get(); name != nullptr; name = name->next) {
    NodePtr attributes;
    Check(ASN1_ReadRelativeDistinguishedName(name, Out(attributes)),
          "split a relative name of the issuer");
    for (const Anybuf* attribute = attributes.get(); attribute != nullptr;
         attribute = attribute->next) {
      PutAttribute(out, *attribute);
    }
  }
}

void PutValidity(std::ostream& out, const Anybuf& validity) {
  NodePtr times;
  Check(ASN1_ReadSequence(&validity, Out(times)), "split the validity");
  const Anybuf* notAfter = times == nullptr ? nullptr : times->next;
  out << "  not before: " << TimeText(times.get(), "read notBefore") << '\n'
      << "  not after: " << TimeText(notAfter, "read notAfter") << '\n';
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

void PutExtension(std::ostream& out, const Anybuf& extension) {
  NodePtr id;
  NodePtr critical;
  NodePtr value;
  Check(ASN1_GetExtension(&extension, Out(id), Out(critical), Out(value)), "open an extension");
  uint8_t isCritical = 0;
  if (critical != nullptr) {
    Check(ASN1_ReadBoolean(critical.get(), &isCritical), "read an extension's critical flag");
  }
  NodePtr content;
  Check(ASN1_ReadOctetString(value.get(), Out(content)), "read an extension's value");
  out << "    " << NodeObjectId(*id, "read an extension's type")
      << (isCritical != 0 ? ", critical, " : ", ") << content->dataLen << " bytes\n";
}

void PutExtensions(std::ostream& out, const TBSCertificate& tbs) {
  const NodePtr list = ReadExtensionList(tbs);
  if (list == nullptr) return;
  out << "  extensions:\n";
  NodePtr extensions;
  Check(ASN1_ReadExtensions(list.get(), Out(extensions)), "split the extensions");
  for (const Anybuf* extension = extensions.get(); extension != nullptr;
       extension = extension->next) {
    PutExtension(out, *extension);
  }
}

}  // namespace

std::string CertificateText(const CertificateParts& parts) {
  const TBSCertificate& tbs = parts.Tbs();
  std::ostringstream out;
  out << "  version: " << uint64_t{parts.version} + 1 << '\n';
  PutSubject(out, *parts.view);
  PutIssuer(out, *tbs.issuer);
  out << "  serial number: " << HexText(parts.serialNumber) << '\n';
  PutValidity(out, *tbs.validity);
  out << "  signature algorithm: "
      << AlgorithmText(*parts.certificate->signatureAlgorithm, "read the signature algorithm")
      << '\n'
      << "  key algorithm: " << KeyAlgorithmText(*tbs.subjectPublicKeyInfo) << '\n';
  PutExtensions(out, tbs);
  return out.str();
}
