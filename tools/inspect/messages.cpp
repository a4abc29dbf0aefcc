// PKCS#7 messages.
#include <algorithm>

#include "kind.h"
#include "structures.h"

using velkord::Bytes, velkord::Check, velkord::Length, velkord::Make, velkord::NodePtr,
    velkord::View;

NodePtr ShowMessage(Bytes der, std::ostream& out) {
  constexpr char kRebuild[] = "rebuild the message";
  const auto from = Make("decode the message", ASN1_PKCS7_Decode, der.data(), Length(der));
  out << "  content type: " << ObjectId(*from->contentType, "read the content type");
  const auto message = Make(kRebuild, ASN1_PKCS7_CreateContext);
  Check(ASN1_PKCS7_SetContentType(message.get(), from->contentType), kRebuild);
  if (from->content == nullptr) {
    out << "\n  content: none\n";
  } else {
    // A decoded record holds what stands inside [0], and so does the setter take it.
    out << "\n  content: " << from->content->dataLen << " bytes\n";
    Check(ASN1_PKCS7_SetContent(message.get(), from->content), kRebuild);
  }
  const NodePtr rebuilt = Make(kRebuild, ASN1_PKCS7_WriteData, message.get());
  const bool identical = std::ranges::equal(View(*rebuilt), der);
  out << "  put together again: " << (identical ? "identical" : "different") << '\n';
  return nullptr;
}
