#include "message_text.h"

#include <algorithm>
#include <sstream>

#include "structure_text.h"
#include "velkord.hpp"

using velkord::Bytes, velkord::Check, velkord::Length, velkord::Make, velkord::NodePtr,
    velkord::View;

namespace {

// A decoded record holds what stands inside [0], and so does the setter take it.
NodePtr RebuildMessage(const PKCS7Context& from) {
  const auto message = Make("create the message", ASN1_PKCS7_CreateContext);
  Check(ASN1_PKCS7_SetContentType(message.get(), from.contentType), "set the content type");
  if (from.content != nullptr) {
    Check(ASN1_PKCS7_SetContent(message.get(), from.content), "set the content");
  }
  return Make("write the message", ASN1_PKCS7_WriteData, message.get());
}

}  // namespace

std::string MessageText(Bytes der) {
  const auto message = Make("decode the message", ASN1_PKCS7_Decode, der.data(), Length(der));
  std::ostringstream out;
  out << "  content type: " << NodeObjectId(*message->contentType, "read the content type")
      << "\n  content: ";
  if (message->content == nullptr) {
    out << "none\n";
  } else {
    out << message->content->dataLen << " bytes\n";
  }
  const bool identical = std::ranges::equal(View(*RebuildMessage(*message)), der);
  out << "  put together again: " << (identical ? "identical" : "different") << '\n';
  return out.str();
}
