// Allocations counted and made to fail. The C allocator is replaced here for the whole program.
#include <cstdlib>

#include "sample.h"

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

TEST(Allocation, DecodesAllocateWhatTheyHandOut) {
  const NodePtr tbs = Sequence(SampleElements() + " 81 03 00 AB CD 82 01 00 A3 10 " + kExtensions);
  const NodePtr whole = Sequence(Hex(tbs) + " " + kAlgorithm + " 03 03 00 11 22");
  Certificate* certificate = nullptr;
  TBSCertificate* record = nullptr;
  EXPECT_EQ(Watched(0,
                    [&] {
                      const int32_t code =
                          ASN1_CertificateDecode(whole->data, whole->dataLen, &certificate);
                      if (code != 0) return code;
                      return ASN1_TBSCertificateDecode(certificate->tbsCertificate, &record);
                    }),
            0);
  // A record of 3 nodes and one of 10, each node with its bytes.
  EXPECT_EQ(requests, 1 + 2 * 3 + 1 + 2 * 10);
  EXPECT_EQ(inUse, requests);
  ASN1_FreeCertificate(certificate);
  ASN1_FreeTBSCertificate(record);
}

// Fails each request of a call in turn: the code, and nothing that stays in use. `first` is the
// code of the first request, which makes the record, and `rest` that of the others.
template <typename Call>
void Sweep(int32_t first, int32_t rest, Call call) {
  int n = 1;
  for (int32_t code; (code = Watched(n, call)) != 0; ++n) {
    EXPECT_EQ(code, n == 1 ? first : rest) << n;
    EXPECT_EQ(inUse, 0) << n;
  }
  EXPECT_EQ(inUse, requests);
}

TEST(Allocation, FailureGivesItsCodeAndLeavesNothing) {
  const NodePtr extension = ToNode("30 0C 06 03 55 1D 13 01 01 FF 04 02 30 00");
  const NodePtr tbs = Sequence(SampleElements() + " 81 01 00 82 01 00 A3 10 " + kExtensions);
  const NodePtr whole = Sequence(Hex(tbs) + " " + kAlgorithm + " 03 03 00 11 22");
  Anybuf* out[3] = {};
  Sweep(-1, -1, [&] { return ASN1_GetExtension(extension.get(), &out[0], &out[1], &out[2]); });
  for (Anybuf* node : out) ASN1_FreeAnybuf(node);
  Sweep(-1, -1, [&] { return ASN1_ReadSequence(tbs.get(), &out[0]); });
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
  Sweep(-7000, -7000,
        [&] { return ASN1_SetAttributeTypeAndValue(extension.get(), extension.get(), &pair); });
  ASN1_FreeAttributeTypeAndValue(pair);
  ObjectID* objectId = nullptr;
  Sweep(-7000, -7000, [&] { return ASN1_ReadObjectId(extension.get(), &objectId); });
  ASN1_FreeObjectID(objectId);
  Certificate* certificate = nullptr;
  Sweep(-7000, -1,
        [&] { return ASN1_CertificateDecode(whole->data, whole->dataLen, &certificate); });
  ASN1_FreeCertificate(certificate);
  TBSCertificate* record = nullptr;
  Sweep(-7000, -1, [&] { return ASN1_TBSCertificateDecode(tbs.get(), &record); });

  // A setter that fails leaves the field as it was.
  const std::string issuer = Describe(record->issuer);
  EXPECT_EQ(Watched(1, [&] { return ASN1_TBSCertificateSetIssuer(record, tbs.get()); }), -1);
  EXPECT_EQ(Describe(record->issuer), issuer);
  ASN1_FreeTBSCertificate(record);
}

}  // namespace
