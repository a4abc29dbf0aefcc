// Base64, PEM, character sets and dotted identifiers from any bytes and back.
#include "call.h"

namespace {

// The input up to its first zero byte.
ByteView Text(ByteView in) {
  return {in.data(), static_cast<size_t>(std::find(in.begin(), in.end(), 0) - in.begin())};
}

// A code point that is read is written in the same bytes, and any that is written is read.
void CodePoint(ByteView in) {
  uint32_t code = 0;
  const int32_t read = utf8ToUni(in.data(), static_cast<int32_t>(in.size()), &code);
  EXPECT_TRUE(read >= -4 && read <= static_cast<int32_t>(std::min<size_t>(in.size(), 6)));
  uint8_t form[6];
  if (read > 0) {
    EXPECT_EQ(uniToUTF8(form, read - 1, code), -1);
    EXPECT_EQ(uniToUTF8(form, read, code), read);
    EXPECT_TRUE(std::equal(form, form + read, in.begin()));
  }
  if (in.size() < 4) return;
  std::memcpy(&code, in.data(), sizeof code);
  const int32_t size = uniToUTF8(form, sizeof form, code);
  uint32_t again = 0;
  EXPECT_TRUE(code > INT32_MAX || (utf8ToUni(form, size, &again) == size && again == code));
}

// Text of assigned characters comes back from UTF-8 as it was.
void Gb2312(ByteView in) {
  bool isAssigned = in.size() > 1;
  for (size_t at = 0; at + 1 < in.size(); at += 2) {
    const uint32_t code = zhToWc(&in[at], 2);
    uint8_t pair[2];
    uint32_t size = 0;
    wcToZh(pair, &size, static_cast<int32_t>(code));
    EXPECT_TRUE(size == 2 && std::equal(pair, pair + 2, &in[at]));
    isAssigned = isAssigned && unitoc(ctouni(code)) == code;
  }
  if (isAssigned) ComesBack<zhsToUtf8s, utf8sToZhs>({Copy(in.first(in.size() / 2 * 2))});
}

// An identifier in a name has the octets that are made of its text alone.
void ObjectId(const ByteVector& text) {
  const Values oid = Call<ASN1_OBJECT_a2d>(Values{text});
  const Values name =
      Call<ASN1_GetDerRelativeDistinguishedNameOne>(Values{FromHex("0C 01 41"), {0}, text});
  const Values parts{{'A'}, oid.empty() ? ByteVector() : oid[0]};
  EXPECT_EQ(Call<ASN1_DecodeDerRelativeDistinguishedNameOne>(name), parts);
}

}  // namespace

void TestInput(const Values& in) {
  ComesBack<base64_encode, base64_decode>(in);
  if (!in[0].empty()) {
    ComesBack<DER2PEM_data_format, PEM2DER_data_format>(
        {in[0], FromHex("\"-----BEGIN-----\""), FromHex("\"-----END-----\"")});
  }
  CodePoint(in[0]);
  Gb2312(in[0]);
  ObjectId(Copy(Text(in[0])));
}
