// Base64, PEM, character sets and dotted identifiers from any bytes and back.
#include "call.h"
#include "text/base64.h"

namespace {

namespace internal = velkord::internal;

ByteVector Bytes(const std::string& text) { return {text.begin(), text.end()}; }

std::string Text(const ByteVector& in) {
  return {in.begin(), std::find(in.begin(), in.end(), uint8_t{0})};
}

void Base64(const ByteVector& in) {
  const std::string text = Text(in);
  const ByteVector decoded = Call(base64_decode, {Bytes(text)})[0];
  const ByteVector encoded = Call(base64_encode, {in})[0];
  EXPECT_EQ(encoded.size(), (in.size() + 2) / 3 * 4);
  EXPECT_EQ(Call(base64_decode, {encoded}), Values{in});
  for (const internal::Base64Kernel& kernel : internal::Base64Kernels()) {
    Buffer other(text.size() / 4 * 3);
    other.size = internal::DecodeBase64(kernel, text, internal::Invalid::kTakePlaces, other.Data());
    EXPECT_TRUE(std::equal(decoded.begin(), decoded.end(), other.bytes.begin()));
    EXPECT_TRUE(other.size == decoded.size() && other.IsUntouched(other.size));
    ByteVector same(encoded.size());
    char* place = reinterpret_cast<char*>(same.data());
    EXPECT_EQ(internal::PutBase64(kernel, in.data(), in.size(), place), place + same.size());
    EXPECT_EQ(same, encoded);
  }
}

void Pem(const ByteVector& in) {
  if (in.empty()) return;
  const std::string header = "-----BEGIN X-----";
  const std::string footer = "-----END X-----";
  const size_t base64 = (in.size() + 2) / 3 * 4;
  const Values pem = Call(DER2PEM_data_format, {in, Bytes(header), Bytes(footer)});
  EXPECT_EQ(pem[0].size(), base64 + (base64 + 63) / 64 * 2 + header.size() + footer.size() + 4);
  EXPECT_EQ(Call(PEM2DER_data_format, pem), Values{in});
}

void CodePoint(const ByteVector& in) {
  uint32_t code = 0;
  const int32_t read = utf8ToUni(in.data(), static_cast<int32_t>(in.size()), &code);
  EXPECT_TRUE(read >= -4 && read <= static_cast<int32_t>(std::min<size_t>(in.size(), 6)));
  Buffer form(6);
  if (read > 0) {
    EXPECT_EQ(uniToUTF8(form.Data(), read - 1, code), -1);
    EXPECT_EQ(uniToUTF8(form.Data(), read, code), read);
    EXPECT_TRUE(std::equal(in.begin(), in.begin() + read, form.bytes.begin()));
  }
  if (in.size() < 4) return;
  std::memcpy(&code, in.data(), sizeof code);
  const int32_t size = uniToUTF8(nullptr, 0, code);
  EXPECT_TRUE(size >= 1 && size <= 6);
  EXPECT_EQ(uniToUTF8(form.Data(), size, code), size);
  uint32_t again = 0;
  EXPECT_TRUE(code > INT32_MAX || (utf8ToUni(form.Data(), size, &again) == size && again == code));
}

// Text of assigned characters comes back from UTF-8 as it was.
void Gb2312(const ByteVector& in) {
  bool isAssigned = true;
  for (size_t at = 0; at + 1 < in.size(); at += 2) {
    const uint32_t code = zhToWc(&in[at], 2);
    Buffer pair(2);
    wcToZh(pair.Data(), &pair.size, static_cast<int32_t>(code));
    EXPECT_TRUE(pair.size == 2 && pair.bytes[0] == in[at] && pair.bytes[1] == in[at + 1]);
    isAssigned = isAssigned && unitoc(ctouni(code)) == code;
  }
  if (!isAssigned || in.size() < 2) return;
  const Values pairs{{in.begin(), in.end() - static_cast<ptrdiff_t>(in.size() % 2)}};
  EXPECT_EQ(Call(utf8sToZhs, Call(zhsToUtf8s, pairs)), pairs);
}

// An identifier in a name has the octets that its text alone gives.
void ObjectId(const ByteVector& in) {
  const ByteVector text = Bytes(Text(in));
  const Values oid = Call(ASN1_OBJECT_a2d, {text});
  const Values name = Call(ASN1_GetDerRelativeDistinguishedNameOne, {{0x0C, 1, 'A'}, {0}, text});
  const Values parts{{'A'}, oid.empty() ? ByteVector() : oid[0]};
  EXPECT_EQ(Call(ASN1_DecodeDerRelativeDistinguishedNameOne, name), parts);
}

}  // namespace

void TestInput(const ByteVector& in) {
  Base64(in);
  Pem(in);
  CodePoint(in);
  Gb2312(in);
  ObjectId(in);
}
