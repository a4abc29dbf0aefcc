// PKCS#10 certification requests.
#include "comparison.h"
#include "kind.h"
#include "structures.h"

using velkord::Bytes, velkord::Chain, velkord::Check, velkord::Length, velkord::Make,
    velkord::NodePtr, velkord::Out, velkord::View;

namespace {

void PutAttribute(std::ostream& out, const Anybuf& attribute) {
  const NodePtr parts = SplitPair(attribute, "split an attribute");
  const std::string type = IdText(*parts, "read the type of an attribute");
  out << "    " << type << ":\n";
  const NodePtr values = Make("split the values of an attribute", ASN1_ReadSet, parts->next);
  for (const Anybuf& value : Chain(values.get())) {
    if (type == "1.2.840.113549.1.9.14 extensionRequest") {
      PutExtensions(out, ReadExtensions(value), "      ");
    } else {
      // By its size alone, since one of the usual attributes is a password.
      out << "      " << Content(value, "read a value of an attribute").size() << " bytes\n";
    }
  }
}

// What comes of the signed part when its record is written again. A signed part without the element
// of its attributes, which the decoder allows, cannot be written.
std::string_view SignedPartRemark(const Anybuf& original, const PKCS10& info) {
  if (info.attributes == nullptr) {
    return "no, since the element of its attributes is missing and would be written";
  }
  return Comparison(*Make("write the signed part", ASN1_PKCS10WriteData, &info), View(original));
}

}  // namespace

NodePtr ShowRequest(Bytes der, std::ostream& out) {
  const auto request =
      Make("decode the request", ASN1_PKCS10RequestDecode, der.data(), Length(der));
  const Anybuf& signedPart = *request->certificationRequestInfo;
  const auto info =
      Make("decode the signed part", ASN1_PKCS10Decode, signedPart.data, signedPart.dataLen);
  out << "  version: " << Version(*info->version) << "\n  subject:\n";
  PutName(out, *info->subject);
  out << "  key algorithm: " << KeyAlgorithmText(*info->subjectPublicKeyInfo) << '\n';
  NodePtr attributes;
  uint32_t tagNumber = 0;
  if (info->attributes != nullptr) {
    Check(ASN1_ReadImplicit(info->attributes, Out(attributes), &tagNumber), "split the attributes");
  }
  if (attributes != nullptr) out << "  attributes:\n";
  for (const Anybuf& attribute : Chain(attributes.get())) PutAttribute(out, attribute);
  out << "  signature algorithm: " << AlgorithmText(*request->signatureAlgorithm)
      << "\n  signed part rebuilt: " << SignedPartRemark(signedPart, *info) << '\n';
  return Make("write the request", ASN1_PKCS10RequestWriteData, request.get());
}
