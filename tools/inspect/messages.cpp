// PKCS#7 messages.
#include "comparison.h"
#include "kind.h"
#include "structures.h"

using velkord::Bytes, velkord::Check, velkord::Length, velkord::Make, velkord::NodePtr;

NodePtr ShowMessage(Bytes der, std::ostream& out) {
  constexpr char kRebuild[] = "rebuild the message";
  const auto from = Make("decode the message", ASN1_PKCS7_Decode, der.data(), Length(der));
  out << "  content type: " << IdText(*from->contentType, "read the content type");
  const auto message = Make(kRebuild, ASN1_PKCS7_CreateContext);
  Check(ASN1_PKCS7_SetContentType(message.get(), from->contentType), kRebuild);
  if (from->content == nullptr) {
    out << "\n  content: none\n";
  } else {
    // A decoded record holds the content of [0], which is what the setter takes.
    out << "\n  content: " << from->content->dataLen << " bytes\n";
    Check(ASN1_PKCS7_SetContent(message.get(), from->content), kRebuild);
  }
  const NodePtr rebuilt = Make(kRebuild, ASN1_PKCS7_WriteData, message.get());
  out << "  put together again: " << Comparison(*rebuilt, der) << '\n';
  return nullptr;
}
