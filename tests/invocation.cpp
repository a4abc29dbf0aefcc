#include "invocation.h"

#include <algorithm>

namespace {

struct NoInputs : Inputs {
  int64_t Number() override { return 0; }
  Anybuf* Node() override { return nullptr; }
  Block Bytes(size_t) override { return {}; }
  Block Text(bool) override { return {}; }
  size_t Room(const Function&) override { return 0; }
  void ExpectUnchanged() override {}
};

}  // namespace

std::string Written(const RecordType& type, void* record) {
  NoInputs none;
  Invocation write(*type.write, none, record);
  const int32_t code = write.Run();
  return code == 0 ? write.Results() : std::to_string(code);
}

Invocation::~Invocation() {
  for (const Out& out : outs_) {
    if (!out.IsWritten()) continue;
    if (out.kind == Kind::kNode) ASN1_FreeAnybuf(static_cast<Anybuf*>(out.object));
    if (out.kind == Kind::kRecord) out.type->release(out.object);
  }
}

uint8_t* Invocation::TakeBuffer(Kind kind, uint32_t fixedSize) {
  Out* out = Add(kind);
  Out& added = outs_[outCount_ - 1];
  added.fixedSize = fixedSize;
  added.isSized = sizeIsNext_ = isSize_[at_];
  const bool isFixed = fixedSize != 0 && !added.isSized && !isInteger_[at_];
  added.buffer = Buffer(isFixed ? fixedSize : in_.Room(function_));
  return out ? out->buffer.Data() : nullptr;
}

Invocation::Out* Invocation::Add(Kind kind) {
  Out& out = outs_[outCount_++];
  out.kind = kind;
  out.parameter = at_ - 1;
  return IsNulled() ? nullptr : &out;
}

bool Invocation::IsNulled() {
  pointers_[pointerCount_] = at_ - 1;
  return pointerCount_++ == nulled_;
}

void Invocation::ExpectKept() const {
  for (const Out& out : std::span(outs_).first(outCount_)) {
    const bool isObject = out.kind == Kind::kNode || out.kind == Kind::kRecord;
    if (isObject || !function_.rule->writesBeforeFailing) {
      EXPECT_TRUE(!out.IsWritten() && out.buffer.IsUntouched(0));
    }
  }
  EXPECT_TRUE(std::equal(before_.begin(), before_.end(), static_cast<const uint8_t*>(subject_)));
}

void Invocation::Settle(int32_t code) {
  in_.ExpectUnchanged();
  if (code < 0) ExpectKept();
  for (size_t at = 0; at < outCount_; ++at) outs_[at].Settle(code, *function_.rule);
  if (code != 0 || nulled_ != kNone || function_.rule->writes == Writes::kSome) return;
  const auto written = std::count_if(outs_.begin(), outs_.end(), std::mem_fn(&Out::IsWritten));
  EXPECT_TRUE(written == static_cast<ptrdiff_t>(outCount_) ||
              (written == 0 && function_.rule->writes == Writes::kAllOrNone))
      << function_.name;
}

void Invocation::Out::Settle(int32_t code, const Rule& rule) {
  if (kind == Kind::kNode && IsWritten()) ExpectWhole(static_cast<Anybuf*>(object));
  const bool mustWrite = code == 0 && rule.writes == Writes::kAll;
  if (kind == Kind::kBytes && !isSized && (mustWrite || !buffer.IsUntouched(0))) {
    buffer.size = code > 0 ? static_cast<uint32_t>(code) : fixedSize;
  }
  size_t end = buffer.size == Buffer::kNoSize ? 0 : buffer.size;
  // A text ends with a zero that its size does not count; without one nothing was written.
  const auto zero = std::find(buffer.bytes.begin(), buffer.bytes.end(), 0);
  if (kind == Kind::kText && zero != buffer.bytes.end()) {
    end = static_cast<size_t>(zero - buffer.bytes.begin());
    EXPECT_TRUE(!isSized || buffer.size == end);
    buffer.size = static_cast<uint32_t>(end++);
  }
  EXPECT_TRUE(buffer.IsUntouched(end) || (code <= 0 && rule.writesBeforeFailing));
}

bool Invocation::Out::IsWritten() const {
  return object != &untouched || buffer.size != Buffer::kNoSize || number != kUntouchedNumber;
}

std::string Invocation::Out::Text() const {
  switch (kind) {
    case Kind::kNode:
      return Describe(static_cast<Anybuf*>(object), true);
    case Kind::kRecord: {
      const std::string written = Written(*type, object);
      EXPECT_EQ(Written(*type, object), written);
      return type->Describe(object) + "written=" + written;
    }
    case Kind::kNumber:
      return std::to_string(number);
    case Kind::kBytes:
      return ToHex(buffer.bytes.data(), buffer.size);
    case Kind::kText:
      break;
  }
  std::string text;
  for (size_t at = 0; at < buffer.size; ++at) {
    if (buffer.bytes[at] != '\r') {
      text += buffer.bytes[at] == '\n' ? '|' : static_cast<char>(buffer.bytes[at]);
    }
  }
  return text;
}

ByteVector Invocation::Out::Bytes() const {
  ByteVector bytes;
  if (kind == Kind::kNumber) {
    const auto* octets = reinterpret_cast<const uint8_t*>(&number);
    bytes.assign(octets, octets + sizeof number);
  } else if (kind == Kind::kRecord) {
    if (type->restore) type->restore(object);
    NoInputs none;
    Invocation write(*type->write, none, object);
    if (write.Run() == 0) bytes = write.outs_[0].Bytes();
  } else if (kind != Kind::kNode) {
    bytes.assign(buffer.bytes.begin(), buffer.bytes.begin() + buffer.size);
  } else {
    for (const auto* node = static_cast<Anybuf*>(object); node; node = node->next) {
      bytes.insert(bytes.end(), node->data, node->data + node->dataLen);
    }
  }
  return bytes;
}

bool Invocation::HasResults() const {
  return std::any_of(outs_.begin(), outs_.end(), std::mem_fn(&Out::IsWritten));
}

std::vector<ByteVector> Invocation::Bytes() const {
  std::vector<ByteVector> all;
  if (!HasResults()) return all;
  for (size_t at = 0; at < outCount_; ++at) all.push_back(outs_[at].Bytes());
  return all;
}

std::string Invocation::Results() const {
  std::string text;
  for (const Out& out : outs_) {
    if (!out.IsWritten()) continue;
    if (!text.empty()) text += ' ';
    if (outCount_ > 1) text += function_.parameters[out.parameter] + "=";
    text += out.Text();
  }
  return text;
}
