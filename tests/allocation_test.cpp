// Allocations counted and made to fail. The C allocator is replaced here for the whole program.
#include <algorithm>
#include <cstdlib>
#include <ctime>

#include "hex.h"

// NOLINTBEGIN(bugprone-reserved-identifier): the C library's names for its own allocator.
extern "C" {
void* __libc_malloc(size_t size);
void* __libc_calloc(size_t count, size_t size);
void __libc_free(void* block);
}
// NOLINTEND(bugprone-reserved-identifier)

namespace {

// While `counting`, requests and blocks in use are counted and the request of number `failing`
// fails.
bool counting = false;
int requests = 0;
int inUse = 0;
int failing = 0;

bool Refused() {
  if (!counting) return false;
  if (++requests == failing) return true;
  ++inUse;
  return false;
}

}  // namespace

extern "C" {

void* malloc(size_t size) { return Refused() ? nullptr : __libc_malloc(size); }

void* calloc(size_t count, size_t size) { return Refused() ? nullptr : __libc_calloc(count, size); }

void free(void* block) {
  if (counting && block != nullptr) --inUse;
  __libc_free(block);
}

}  // extern "C"

namespace {

// Calls with the allocator watched and the n-th request failing, none for 0.
template <typename Call>
int32_t Watched(int n, Call call) {
  requests = 0;
  inUse = 0;
  failing = n;
  counting = true;
  const int32_t code = call();
  counting = false;
  return code;
}

using Codes = std::vector<int32_t>;

// Fails each request of a call in turn: its code, and nothing that stays in use. The call makes no
// more requests than there are codes, and hands out every block.
template <typename Call>
void Sweep(const Codes& codes, Call call) {
  int n = 0;
  for (const int32_t expected : codes) {
    EXPECT_EQ(Watched(++n, call), expected) << n;
    EXPECT_EQ(inUse, 0) << n;
  }
  EXPECT_EQ(Watched(0, call), 0);
  EXPECT_EQ(requests, n);
  EXPECT_EQ(inUse, n);
}

// The same for a decoder: one request for the record, two for each of `nodes` nodes.
template <typename Record>
void SweepDecoder(int32_t (*decode)(const uint8_t*, uint32_t, Record**), void (*release)(Record*),
                  const std::string& der, size_t nodes) {
  const ByteVector bytes = FromHex(der);
  Codes codes(1 + 2 * nodes, -1);
  codes[0] = -7000;
  Record* record = nullptr;
  Sweep(codes, [&] { return decode(bytes.data(), Size(bytes), &record); });
  release(record);
}

TEST(Allocation, DecodersMakeWhatTheyHandOutOrNothing) {
  // The C library allocates for a zone when it first reads it.
  setenv("TZ", "UTC0", 1);
  tzset();
  const std::string whole = "30 81 00 30 00 03 01 00 05 00";
  SweepDecoder(ASN1_CertificateDecode, ASN1_FreeCertificate, "30 0A " + whole, 3);
  SweepDecoder(ASN1_CRL_CertificateListDecode, ASN1_CRL_FreeCertificateList, "30 0A " + whole, 3);
  SweepDecoder(ASN1_CRL_TbsCertListDecode, ASN1_CRL_FreeTbsCertList,
               "30 1A 02 01 02 30 00 30 00 17 0D \"150101120000Z\" 30 00 A0 00", 4);
  SweepDecoder(ASN1_PKCS10Decode, ASN1_FreePKCS10, "30 09 02 01 00 30 00 30 00 A0 00", 4);
  SweepDecoder(ASN1_PKCS6_CertificateInfoDecode, ASN1_PKCS6_FreeExtendedCertificateInfo,
               "30 07 02 01 00 30 00 31 00", 2);
  SweepDecoder(ASN1_PKCS7_Decode, ASN1_PKCS7_FreeContext, "30 05 06 01 2A A0 00", 2);

  const NodePtr tbs =
      Sequence("A0 00 02 00 30 00 30 00 30 00 30 00 30 00 81 01 00 82 01 00 A3 02 30 00");
  Codes codes(21, -1);
  codes[0] = -7000;
  TBSCertificate* record = nullptr;
  Sweep(codes, [&] { return ASN1_TBSCertificateDecode(tbs.get(), &record); });
  // A setter that fails leaves the field as it was.
  const std::string issuer = Describe(record->issuer);
  EXPECT_EQ(Watched(1, [&] { return ASN1_TBSCertificateSetIssuer(record, tbs.get()); }), -1);
  EXPECT_EQ(Describe(record->issuer), issuer);
  EXPECT_EQ(Watched(2, [&] { return ASN1_TBSCertificateSetVersion(record, 7); }), -1);
  EXPECT_EQ(record->version, 0U);
  ASN1_FreeTBSCertificate(record);

  // The date of an entry is formatted, which has a code of its own.
  const ByteVector entry = FromHex("30 13 02 00 17 0D \"150101120000Z\" 30 00");
  RevokedCertificate* revoked = nullptr;
  Sweep({-7000, -1, -1, -7000, -7000, -1, -1},
        [&] { return ASN1_CRL_RevokedCertificateDecode(entry.data(), Size(entry), &revoked); });
  ASN1_CRL_FreeRevokedCertificate(revoked);
}

TEST(Allocation, FailureGivesItsCodeAndLeavesNothing) {
  const NodePtr extension = ToNode("30 0C 06 03 55 1D 13 01 01 FF 04 02 30 00");
  Anybuf* out[3] = {};
  Sweep({-1, -1, -1, -1, -1, -1},
        [&] { return ASN1_GetExtension(extension.get(), &out[0], &out[1], &out[2]); });
  for (Anybuf* node : out) ASN1_FreeAnybuf(node);
  Sweep({-1, -1, -1, -1, -1, -1}, [&] { return ASN1_ReadSequence(extension.get(), &out[0]); });
  ASN1_FreeAnybuf(out[0]);

  // The OID node stays the caller's when its use fails.
  const NodePtr oid = ToNode("06 01 2A");
  for (const int n : {1, 2}) {
    EXPECT_EQ(Watched(n,
                      [&] {
                        return ASN1_SetAlgorithmIdentifier(0, oid.get(), extension.get(), nullptr,
                                                           &out[0]);
                      }),
              -1);
    EXPECT_EQ(inUse, 0);
  }
  AttributeTypeAndValue* pair = nullptr;
  Sweep({-7000, -7000, -7000, -7000, -7000},
        [&] { return ASN1_SetAttributeTypeAndValue(extension.get(), extension.get(), &pair); });
  ASN1_FreeAttributeTypeAndValue(pair);
  ObjectID* objectId = nullptr;
  Sweep({-7000, -7000}, [&] { return ASN1_ReadObjectId(extension.get(), &objectId); });
  ASN1_FreeObjectID(objectId);
}

// No block of the library's own ever holds a private value, so that none is left behind.
TEST(Allocation, KeysGoFromBufferToBuffer) {
  const ByteVector value(31, 0x80);
  const ByteVector ec = FromHex("30 2B 02 00 30 00 04 25 30 23 02 00 04 1F 80*31");
  ZantPrivateKey rsa;
  std::fill_n(reinterpret_cast<uint8_t*>(&rsa), sizeof rsa, uint8_t{0x80});
  EccPrikey key{};
  Buffer der;
  Buffer out;
  Sweep({}, [&] {
    int32_t code = ZantEncodePrivateKey(&rsa, der.Data(), &der.size);
    code += ZantDecodePrivateKey(&rsa, der.Data(), static_cast<int32_t>(der.size));
    code += ASN1_Der2EccPrikey(ec.data(), Size(ec), &key);
    ASN1_SM2_PrikeyEncode(key.d, Size(value), der.Data(), &der.size);
    ASN1_SM2_PrikeyDecode(out.Data(), &out.size, der.Data(), der.size);
    return code;
  });
  EXPECT_EQ(out.Text(), ToHex(value.data(), value.size()));
  EXPECT_EQ(rsa.coefficient[127], 0x80);
}

}  // namespace
