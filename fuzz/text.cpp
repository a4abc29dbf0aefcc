// Base64, PEM, character sets and dotted identifiers from any bytes, each into a buffer of exactly
// the room that the function asks for.
#include <cstring>
#include <string>

#include "blocks.h"
#include "text/base64.h"

namespace {

using Input = std::span<const uint8_t>;

uint32_t Size(Input in) { return static_cast<uint32_t>(in.size()); }

// The input up to its first zero byte, as text.
std::string Text(Input in) { return {in.begin(), std::find(in.begin(), in.end(), uint8_t{0})}; }

size_t DecodedRoom(size_t characters) { return characters / 4 * 3; }

void DecodeBase64(const std::string& text, Buffer& out) {
  REQUIRE(base64_decode(text.c_str(), out.bytes.get(), &out.size) == 0);
  REQUIRE(out.size <= out.room && out.IsUntouched(out.size));
}

void Base64(Input in) {
  const std::string text = Text(in);
  Buffer decoded(DecodedRoom(text.size()));
  DecodeBase64(text, decoded);

  Buffer encoded((in.size() + 2) / 3 * 4 + 1);
  REQUIRE(base64_encode(in.data(), Size(in), reinterpret_cast<char*>(encoded.bytes.get())) == 0);
  REQUIRE(encoded.bytes[encoded.room - 1] == 0);
  Buffer again(DecodedRoom(encoded.room - 1));
  DecodeBase64(reinterpret_cast<const char*>(encoded.bytes.get()), again);
  REQUIRE(Same(again.View(), in));

  for (const velkord::internal::Base64Kernel& kernel : velkord::internal::Base64Kernels()) {
    Buffer other(decoded.room);
    other.size = velkord::internal::DecodeBase64(
        kernel, text, velkord::internal::Invalid::kTakePlaces, other.bytes.get());
    REQUIRE(Same(other.View(), decoded.View()) && other.IsUntouched(other.size));
    Buffer same(encoded.room - 1);
    char* place = reinterpret_cast<char*>(same.bytes.get());
    same.size = static_cast<uint32_t>(
        velkord::internal::PutBase64(kernel, in.data(), in.size(), place) - place);
    REQUIRE(Same(same.View(), Input(encoded.bytes.get(), encoded.room - 1)));
  }
}

// Whether the text is a PEM block, which is then in `out`.
bool DecodePem(Input text, Buffer& out) {
  const char* characters = reinterpret_cast<const char*>(text.data());
  const int32_t code = PEM2DER_data_format(characters, Size(text), out.bytes.get(), &out.size);
  REQUIRE(code == 0 || code == -1);
  REQUIRE(code == 0 ? out.size <= out.room && out.IsUntouched(out.size)
                    : out.size == kNoSize && out.IsUntouched());
  return code == 0;
}

void Pem(Input in) {
  Buffer decoded(DecodedRoom(in.size()));
  DecodePem(in, decoded);
  if (in.empty()) return;

  constexpr char kHeader[] = "-----BEGIN X-----";
  constexpr char kFooter[] = "-----END X-----";
  const size_t base64 = (in.size() + 2) / 3 * 4;
  const size_t lines = (base64 + 63) / 64;
  Buffer pem(base64 + 2 * lines + sizeof kHeader + 1 + sizeof kFooter + 1 + 1);
  char* text = reinterpret_cast<char*>(pem.bytes.get());
  REQUIRE(DER2PEM_data_format(in.data(), Size(in), text, &pem.size, kHeader, kFooter) == 0);
  REQUIRE(pem.size + 1 == pem.room && pem.size == std::strlen(text));
  Buffer again(DecodedRoom(base64));
  REQUIRE(DecodePem(pem.View(), again) && Same(again.View(), in));
}

void CodePoint(Input in) {
  uint32_t code = kNoSize;
  const int32_t read = utf8ToUni(in.data(), static_cast<int32_t>(in.size()), &code);
  REQUIRE(read >= -4 && read <= static_cast<int32_t>(std::min<size_t>(in.size(), 6)));
  REQUIRE((read > 0) == (code != kNoSize));
  if (read > 0) {
    Buffer form(static_cast<size_t>(read));
    REQUIRE(uniToUTF8(form.bytes.get(), read, code) == read);
    REQUIRE(std::equal(in.begin(), in.begin() + read, form.bytes.get()));
    REQUIRE(uniToUTF8(form.bytes.get(), read - 1, code) == -1);
  }
  if (in.size() < 4) return;
  std::memcpy(&code, in.data(), sizeof code);
  const int32_t size = uniToUTF8(nullptr, 0, code);
  REQUIRE(size >= 1 && size <= 6);
  Buffer form(static_cast<size_t>(size));
  REQUIRE(uniToUTF8(form.bytes.get(), size, code) == size);
  uint32_t again = kNoSize;
  REQUIRE(code > INT32_MAX || (utf8ToUni(form.bytes.get(), size, &again) == size && again == code));
}

// Text of assigned characters comes back from UTF-8 as it was.
void Gb2312(Input in) {
  Buffer gb(in.size());
  utf8sToZhs(in.data(), Size(in), gb.bytes.get(), &gb.size);
  REQUIRE(gb.size <= gb.room && gb.IsUntouched(gb.size));

  bool isAssigned = true;
  for (size_t at = 0; at + 1 < in.size(); at += 2) {
    const uint32_t code = zhToWc(in.data() + at, 2);
    Buffer pair(2);
    wcToZh(pair.bytes.get(), &pair.size, static_cast<int32_t>(code));
    REQUIRE(Same(pair.View(), in.subspan(at, 2)));
    isAssigned = isAssigned && unitoc(ctouni(code)) == code;
  }
  Buffer utf8(in.size() / 2 * 3);
  zhsToUtf8s(in.data(), static_cast<int32_t>(in.size()), utf8.bytes.get(), &utf8.size);
  REQUIRE(utf8.size <= utf8.room && utf8.IsUntouched(utf8.size));
  Buffer again(utf8.size);
  utf8sToZhs(utf8.bytes.get(), utf8.size, again.bytes.get(), &again.size);
  REQUIRE(!isAssigned || Same(again.View(), in.first(in.size() / 2 * 2)));
}

// An identifier in a name has the octets that its text alone gives.
void ObjectId(Input in) {
  const std::string text = Text(in);
  const auto length = static_cast<int32_t>(text.size());
  Buffer oid(text.size());
  const int32_t octets = ASN1_OBJECT_a2d(oid.bytes.get(), &oid.size, text.c_str(), length);
  REQUIRE(octets >= 0 && octets <= length);
  REQUIRE(octets == 0 ? oid.size == kNoSize || oid.size == 0
                      : oid.size == static_cast<uint32_t>(octets));

  constexpr uint8_t kValue[] = {0x0C, 1, 'A'};
  const NodePtr value = MakeNode(kValue);
  const NodePtr name =
      Made(ASN1_GetDerRelativeDistinguishedNameOne, value.get(), 0, text.c_str(), length);
  REQUIRE(name != nullptr);
  Buffer valueAgain(1);
  Buffer oidAgain(static_cast<size_t>(octets));
  REQUIRE(ASN1_DecodeDerRelativeDistinguishedNameOne(name.get(), valueAgain.bytes.get(),
                                                     &valueAgain.size, oidAgain.bytes.get(),
                                                     &oidAgain.size) == 0);
  REQUIRE(oidAgain.size == oidAgain.room);
  REQUIRE(std::equal(oidAgain.bytes.get(), oidAgain.bytes.get() + octets, oid.bytes.get()));
}

}  // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const Input in(data, size);
  Base64(in);
  Pem(in);
  CodePoint(in);
  Gb2312(in);
  ObjectId(in);
  return 0;
}
