#include "message_text.h"

#include <algorithm>
#include <sstream>

#include "handles.h"
#include "node_bytes.h"
#include "result_codes.h"
#include "structure_text.h"

namespace {

// A decoded record holds what stands inside [0], and so does the setter take it.
NodePtr RebuildMessage(const PKCS7Context& from) {
  Pkcs7Ptr message;
  Check(ASN1_PKCS7_CreateContext(Out(message)), "create the message");
  Check(ASN1_PKCS7_SetContentType(message.get(), from.contentType), "set the content type");
  if (from.content != nullptr) {
    Check(ASN1_PKCS7_SetContent(message.get(), from.content), "set the content");
  }
  NodePtr written;
  Check(ASN1_PKCS7_WriteData(message.get(), Out(written)), "write the message");
  return written;
}

}  // namespace

std::string MessageText(Bytes der) {
  Pkcs7Ptr message;
  Check(ASN1_PKCS7_Decode(der.data(), Length32(der.size()), Out(message)), "decode the message");
  std::ostringstream out;
  out << "  content type: " << NodeObjectId(*message->contentType, "read the content type")
      << "\n  content: ";
  if (message->content == nullptr) {
    out << "none\n";
  } else {
    out << message->content->dataLen << " bytes\n";
  }
  const bool identical = std::ranges::equal(NodeBytes(*RebuildMessage(*message)), der);
  out << "  put together again: " << (identical ? "identical" : "different") << '\n';
  return out.str();
}
