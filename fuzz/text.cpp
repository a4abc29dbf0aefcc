// Base64, PEM, character sets and dotted identifiers from any bytes and back.
#include "call.h"
#include "text/base64.h"

namespace {

namespace internal = velkord::internal;

ByteView AsBytes(std::string_view text) {
  return {reinterpret_cast<const uint8_t*>(text.data()), text.size()};
}

// The input up to its first zero byte.
ByteView Text(ByteView in) {
  return {in.data(), static_cast<size_t>(std::find(in.begin(), in.end(), 0) - in.begin())};
}

Values Whole(ByteView in) { return {{in.begin(), in.end()}}; }

void Base64(ByteView in) {
  const ByteView text = Text(in);
  const ByteVector decoded = Call(base64_decode, {text}, text.size() / 4 * 3)[0];
  const size_t size = (in.size() + 2) / 3 * 4;
  const ByteVector encoded = Call(base64_encode, {in}, size + 1)[0];
  EXPECT_EQ(encoded.size(), size);
  EXPECT_EQ(Call(base64_decode, {encoded}, size / 4 * 3), Whole(in));
  for (const internal::Base64Kernel& kernel : internal::Base64Kernels()) {
    Buffer other(text.size() / 4 * 3);
    other.size =
        internal::DecodeBase64(kernel, {reinterpret_cast<const char*>(text.data()), text.size()},
                               internal::Invalid::kTakePlaces, other.Data());
    EXPECT_TRUE(std::equal(decoded.begin(), decoded.end(), other.bytes.begin()));
    EXPECT_TRUE(other.size == decoded.size() && other.IsUntouched(other.size));
    ByteVector same(size);
    char* place = reinterpret_cast<char*>(same.data());
    EXPECT_EQ(internal::PutBase64(kernel, in.data(), in.size(), place), place + size);
    EXPECT_EQ(same, encoded);
  }
}

void Pem(ByteView in) {
  Call(PEM2DER_data_format, {in}, in.size() / 4 * 3);
  if (in.empty()) return;
  constexpr std::string_view kHeader = "-----BEGIN X-----";
  constexpr std::string_view kFooter = "-----END X-----";
  const size_t base64 = (in.size() + 2) / 3 * 4;
  const size_t size = base64 + (base64 + 63) / 64 * 2 + kHeader.size() + kFooter.size() + 4;
  const Values pem = Call(DER2PEM_data_format, {in, AsBytes(kHeader), AsBytes(kFooter)}, size + 1);
  EXPECT_EQ(pem[0].size(), size);
  EXPECT_EQ(Call(PEM2DER_data_format, pem, base64 / 4 * 3), Whole(in));
}

void CodePoint(ByteView in) {
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
void Gb2312(ByteView in) {
  Call(utf8sToZhs, {in});
  bool isAssigned = true;
  for (size_t at = 0; at + 1 < in.size(); at += 2) {
    const uint32_t code = zhToWc(&in[at], 2);
    Buffer pair(2);
    wcToZh(pair.Data(), &pair.size, static_cast<int32_t>(code));
    EXPECT_TRUE(pair.size == 2 && pair.bytes[0] == in[at] && pair.bytes[1] == in[at + 1]);
    isAssigned = isAssigned && unitoc(ctouni(code)) == code;
  }
  const Values utf8 = Call(zhsToUtf8s, {in}, in.size() / 2 * 3);
  if (!isAssigned || in.size() < 2) return;
  EXPECT_EQ(Call(utf8sToZhs, utf8), Whole(in.first(in.size() / 2 * 2)));
}

// An identifier in a name has the octets that its text alone gives.
void ObjectId(ByteView in) {
  constexpr uint8_t kValue[] = {0x0C, 1, 'A'};
  constexpr uint8_t kZero[] = {0};
  const Values oid = Call(ASN1_OBJECT_a2d, {Text(in)});
  const Values name = Call(ASN1_GetDerRelativeDistinguishedNameOne, {kValue, kZero, Text(in)});
  const Values parts{{'A'}, oid.empty() ? ByteVector() : oid[0]};
  EXPECT_EQ(Call(ASN1_DecodeDerRelativeDistinguishedNameOne, name), parts);
}

}  // namespace

void TestInput(ByteView in) {
  Base64(in);
  Pem(in);
  CodePoint(in);
  Gb2312(in);
  ObjectId(in);
}
