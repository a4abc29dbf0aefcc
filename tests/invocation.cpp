#include "invocation.h"

#include <algorithm>

const char* Invocation::Take(const char**) {
  std::string& text = texts_.emplace_back();
  for (const char c : Next()) text += c == '|' ? "\r\n" : std::string(1, c);
  length_ = static_cast<int64_t>(text.size());
  return text.c_str();
}

std::string Invocation::Inputs() const {
  std::string text;
  for (const NodePtr& node : nodes_) text += Describe(node.get());
  for (const ByteVector& bytes : bytes_) text.append(bytes.begin(), bytes.end());
  return text;
}

std::string Invocation::Results() {
  std::string text;
  for (Out& out : outs_) {
    if (&out != &outs_.front()) text += " ; ";
    text += Result(out);
  }
  return text;
}

std::string Invocation::Result(Out& out) {
  if (out.kind == 'n') {
    return out.node == &out.untouched ? "kept" : Describe(NodePtr(out.node).get());
  }
  if (out.kind == 'i') {
    return out.integer == kUntouchedInteger ? "kept" : std::to_string(out.integer);
  }
  Buffer& buffer = out.buffer;
  if (out.kind == 'b') {
    const auto isWritten = [](uint8_t byte) { return byte != Buffer::kUntouched; };
    if (!out.sized && std::any_of(buffer.Data(), buffer.Data() + out.size, isWritten)) {
      buffer.size = out.size;
    }
    return buffer.Text();
  }
  // A text ends with a zero that its size does not count; without one nothing was written.
  const auto end = std::find(buffer.bytes.begin(), buffer.bytes.end(), 0);
  if (end == buffer.bytes.end()) return buffer.Text();
  std::string text;
  for (auto c = buffer.bytes.begin(); c != end; ++c) {
    if (*c != '\r') text += *c == '\n' ? '|' : static_cast<char>(*c);
  }
  const auto size = static_cast<uint32_t>(end - buffer.bytes.begin());
  EXPECT_EQ(out.sized ? buffer.size : size, size);
  *end = Buffer::kUntouched;
  buffer.size = size;
  static_cast<void>(buffer.Text());
  return text;
}
