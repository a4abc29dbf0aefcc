// Runs every case with the library's requests for memory failing in turn. The program is linked
// with the library's objects, whose calls of the C allocator come here.
#include <algorithm>
#include <regex>
#include <set>

#include "calls.h"
#include "watched_allocator.h"

namespace {

// The code for each request in turn that fails, the last one for all after it. The first pattern
// that fits counts; every other function returns -1.
using Codes = std::vector<int32_t>;
const std::pair<std::regex, Codes> kCodes[] = {
    {std::regex("ASN1_Add.*"), {0}},
    {std::regex(".*Create.*(Certificate|CertificateInfo|List|PKCS10|Request|Context)"), {-7000}},
    {std::regex(".*(Write.*Time|ReadObjectId|SetAttributeTypeAndValue|SetRev.*Date)"), {-7000}},
    {std::regex(".*RevokedCertificateDecode"), {-7000, -1, -1, -7000, -7000, -1}},
    {std::regex("ASN1_.*Decode"), {-7000, -1}},
    {std::regex(".*"), {-1}},
};

// Those of which requests have failed.
std::set<std::string> failed;

// Fails each request of a call in turn. In the end the call leaves in use all that it requested, or
// after a failure nothing.
int32_t FailEachRequest(const Function& function, const LibraryCall& call,
                        const Check& isAsBefore) {
  const auto fits = [&](const auto& entry) { return std::regex_match(function.name, entry.first); };
  const Codes& codes = std::find_if(std::begin(kCodes), std::end(kCodes), fits)->second;
  for (size_t n = 1;; ++n) {
    const int32_t code = Watched(n, call);
    if (watch.requests < n) {
      EXPECT_EQ(watch.blocks.size(), code < 0 ? 0 : watch.requests);
      return code;
    }
    EXPECT_EQ(code, codes[std::min(n, codes.size()) - 1]) << n;
    EXPECT_EQ(watch.blocks.size(), 0U) << n;
    isAsBefore();
    failed.insert(function.name);
  }
}

class Allocation : public testing::Environment {
  void SetUp() override { callHook = FailEachRequest; }
  // As many as request memory in version 1.0; fewer where not all cases are run.
  void TearDown() override { EXPECT_GE(failed.size(), 155U); }
};

const testing::Environment* const kAllocation = testing::AddGlobalTestEnvironment(new Allocation);

// Where a call's buffers lie over each other it takes one block, which it wipes; without that
// nothing is written.
void ExpectWiped(ByteVector bytes, int32_t refusal,
                 const std::function<int32_t(uint8_t*, uint32_t*)>& function) {
  const ByteVector before = bytes;
  uint32_t size = 7;
  const auto call = [&] { return function(bytes.data(), &size); };
  EXPECT_EQ(Watched(1, call), refusal);
  EXPECT_EQ(size, 7U);
  EXPECT_EQ(bytes, before);
  EXPECT_EQ(Watched(0, call), 0);
  EXPECT_EQ(watch.requests, 1U);
  EXPECT_EQ(std::count(watch.released.begin(), watch.released.end(), 0x55), 0);
}

TEST(Keys, WipeWhatTheyHoldInPlace) {
  ExpectWiped(ByteVector(60, 0x55), 0, [](uint8_t* at, uint32_t* size) {
    return ASN1_SM2_SM2SignatureEncode(at, 20, at + 20, 20, at, size);
  });
  ExpectWiped(FromHex("30 08 02 02 11 22 02 02 55 55"), 0, [](uint8_t* at, uint32_t* size) {
    return ASN1_SM2_SM2SignatureDecode(at + 8, size, at, size, at, 10);
  });
  ExpectWiped(FromHex("30 06 02 01 55 02 01 55 55*520"), -1, [](uint8_t* at, uint32_t* size) {
    return ZantEncodePublicKey(reinterpret_cast<ZantPublicKey*>(at), at, size);
  });
  ExpectWiped(FromHex("30 06 02 01 55 02 01 55 55*504"), -1, [](uint8_t* at, uint32_t*) {
    return ZantDecodePublicKey(reinterpret_cast<ZantPublicKey*>(at), at, 8);
  });
}

// A child that does not fit goes before a wrong tag in front of it, and before a lack of memory.
TEST(Decoding, ACutOffElementGoesFirst) {
  const NodePtr node = ToNode("30 11 A0 00 02 00 31 00 30 00 30 00 30 00 30 00 04 02 00");
  TBSCertificate* record = nullptr;
  EXPECT_EQ(Watched(1, [&] { return ASN1_TBSCertificateDecode(node.get(), &record); }), -1);
}

// An entry that cannot be made ends the list; a block that cannot be made leaves its place empty.
TEST(Inspection, KeepsWhatItCouldMake) {
  X509Cert untouched{};
  X509Cert* out = &untouched;
  EXPECT_EQ(Watched(1, [&] { return X509CertCreate(&out) == nullptr ? 0 : 1; }), 0);
  EXPECT_EQ(out, &untouched);

  // The code and the list after each request in turn has failed.
  const std::pair<int32_t, std::string> kResults[] = {
      {-1, ""},        {0, " = 41 ; 2B = 42"}, {0, "2A = null ; 2B = 42"},
      {-1, "2A = 41"}, {0, "2A = 41 ;  = 42"}, {0, "2A = 41 ; 2B = null"}};
  size_t n = 0;
  for (const auto& [code, list] : kResults) {
    const auto record = Inspect(
        Sequence("31 08 30 06 06 01 2A 0C 01 41 | 31 09 30 07 06 01 2B 1E 02 00 42"), nullptr);
    EXPECT_EQ(Watched(++n, [&] { return X509CertGetSubject(record.get()); }), code) << n;
    EXPECT_EQ(watch.blocks.size(), watch.requests - 1) << n;
    EXPECT_EQ(SubjectEntries(*record), list) << n;
  }
}

}  // namespace
