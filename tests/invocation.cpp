#include "invocation.h"

#include <algorithm>
#include <cstdlib>

namespace {

// What a record is written as, or the code.
std::string Written(const RecordType& type, void* record) {
  Inputs none;
  Invocation write(*type.write, none, record);
  const int32_t code = write.Run();
  return code == 0 ? write.Results() : std::to_string(code);
}

}  // namespace

Invocation::~Invocation() {
  for (const Out& out : Outs()) {
    if (!out.IsWritten()) continue;
    if (out.kind == Kind::kNode) ASN1_FreeAnybuf(out.As<Anybuf*>());
    if (out.kind == Kind::kRecord) out.type->release(out.As<void*>());
    if (out.kind == Kind::kBlock) std::free(out.As<void*>());
  }
}

void* Invocation::TakeOut(Kind kind, uint32_t fixedSize) {
  const bool isBuffer = kind == Kind::kBytes || kind == Kind::kText;
  sizeIsNext_ = isBuffer && isSize_[at_];
  const bool hasRoom = isBuffer && (fixedSize == 0 || isSize_[at_] || isInteger_[at_]);
  Out& out = outs_[outCount_++];
  out.kind = kind;
  out.parameter = at_ - 1;
  out.fixedSize = fixedSize;
  out.isSized = sizeIsNext_;
  out.buffer = Buffer(hasRoom ? in_.Room(function_) : fixedSize);
  return IsNulled() ? nullptr : out.buffer.Data();
}

bool Invocation::IsNulled() {
  pointers_[pointerCount_] = at_ - 1;
  return pointerCount_++ == nulled_;
}

void Invocation::ExpectKept() const {
  for (const Out& out : Outs()) {
    const bool mayChange = function_.rule->writesBeforeFailing && out.kind > Kind::kBlock;
    EXPECT_TRUE(mayChange || (!out.IsWritten() && out.buffer.IsUntouched(0)));
  }
  EXPECT_TRUE(std::equal(before_.begin(), before_.end(), static_cast<const uint8_t*>(subject_)));
}

void Invocation::Settle(int32_t code) {
  if (code == 0) in_.LetGo();
  in_.ExpectUnchanged();
  for (size_t at = 0; at < outCount_; ++at) outs_[at].Settle(code, *function_.rule);
  if (code != 0 || nulled_ != kNone || function_.rule->writes == Writes::kSome) return;
  const auto written = std::count_if(outs_.begin(), outs_.end(), std::mem_fn(&Out::IsWritten));
  EXPECT_TRUE(written == static_cast<ptrdiff_t>(outCount_) ||
              (written == 0 && function_.rule->writes == Writes::kAllOrNone))
      << function_.name;
}

void Invocation::Out::Settle(int32_t code, const Rule& rule) {
  // Any bytes and any number may be written, those that stand for none too.
  const bool isValue = kind == Kind::kBytes || kind == Kind::kNumber;
  const bool mustWrite = isValue && code == 0 && rule.writes == Writes::kAll;
  if (kind != Kind::kText && !isSized && (mustWrite || !buffer.IsUntouched(0))) {
    buffer.size = kind == Kind::kBytes && code > 0 ? static_cast<uint32_t>(code) : fixedSize;
  }
  if (kind == Kind::kNode && IsWritten()) ExpectWhole(As<Anybuf*>());
  size_t end = buffer.size == Buffer::kNoSize ? 0 : buffer.size;
  // A text ends with a zero that its size does not count; without one it is empty, or not written.
  const auto zero = std::find(buffer.bytes.begin(), buffer.bytes.end(), 0);
  if (kind == Kind::kText && (zero != buffer.bytes.end() || (IsWritten() && buffer.size != 0))) {
    end = static_cast<size_t>(zero - buffer.bytes.begin());
    EXPECT_TRUE(!isSized || buffer.size == end);
    buffer.size = static_cast<uint32_t>(end++);
  }
  EXPECT_TRUE(buffer.IsUntouched(end) || (code <= 0 && rule.writesBeforeFailing));
}

std::string Invocation::Out::Text() const {
  if (kind == Kind::kNode) return Describe(As<Anybuf*>());
  if (kind == Kind::kNumber) return std::to_string(As<int32_t>());
  if (kind == Kind::kRecord) {
    const std::string written = Written(*type, As<void*>());
    EXPECT_EQ(Written(*type, As<void*>()), written);
    return type->Describe(As<void*>()) + "written=" + written;
  }
  if (kind == Kind::kBytes) return ToHex(buffer.bytes.data(), buffer.size);
  std::string text(buffer.bytes.begin(), buffer.bytes.begin() + buffer.size);
  std::erase(text, '\r');
  std::replace(text.begin(), text.end(), '\n', '|');
  return text;
}

ByteVector Invocation::Out::Bytes() const {
  ByteVector bytes;
  if (!IsWritten()) return bytes;
  if (kind == Kind::kNode) {
    for (const auto* node = As<Anybuf*>(); node; node = node->next) {
      bytes.insert(bytes.end(), node->data, node->data + node->dataLen);
    }
  } else if (kind == Kind::kRecord) {
    if (type->restore) type->restore(As<void*>());
    Inputs none;
    Invocation write(*type->write, none, As<void*>());
    if (write.Run() == 0) bytes = write.outs_[0].Bytes();
  } else {
    bytes.assign(buffer.bytes.begin(), buffer.bytes.begin() + buffer.size);
  }
  return bytes;
}

bool Invocation::HasResults() const {
  return std::any_of(outs_.begin(), outs_.end(), std::mem_fn(&Out::IsWritten));
}

std::vector<ByteVector> Invocation::Bytes() const {
  std::vector<ByteVector> all;
  if (!HasResults()) return all;
  for (const Out& out : Outs()) all.push_back(out.Bytes());
  return all;
}

std::string Invocation::Results() const {
  // The second block holds the size of the first.
  if (outs_[0].kind == Kind::kBlock) {
    return ToHex(outs_[0].As<uint8_t*>(), *outs_[1].As<uint32_t*>());
  }
  std::string text;
  for (const Out& out : Outs()) {
    if (!out.IsWritten()) continue;
    if (!text.empty()) text += ' ';
    if (outCount_ > 1) text += function_.parameters[out.parameter] + "=";
    text += out.Text();
  }
  return text;
}
