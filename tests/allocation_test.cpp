// Runs every case with the library's requests for memory failing in turn. The program is linked
// with the library's objects, whose calls of the C allocator come here.
#include <algorithm>
#include <iostream>
#include <regex>
#include <set>

#include "calls.h"
#include "cases.h"
#include "watched_allocator.h"

namespace {

// The code for each request in turn that fails, the last one for all after it. The first pattern
// that fits counts; every other function gives -1.
using Codes = std::vector<int32_t>;
const std::pair<std::regex, Codes> kCodes[] = {
    {std::regex("ASN1_Add.*"), {0}},
    {std::regex(".*Create.*(Certificate|CertificateInfo|List|PKCS10|Request|Context)"), {-7000}},
    {std::regex(".*Write(Generalized|Utc)Time|ASN1_ReadObjectId|.*SetAttributeTypeAndValue"),
     {-7000}},
    {std::regex(".*SetRevokedCertificateRevocationDate"), {-7000}},
    {std::regex(".*RevokedCertificateDecode"), {-7000, -1, -1, -7000, -7000, -1}},
    {std::regex("ASN1_.*Decode"), {-7000, -1}},
    {std::regex(".*"), {-1}},
};

const Codes& CodesOf(AnyFunction function) {
  const std::string& name = FindFunction(function).name;
  const auto* found = kCodes;
  while (!std::regex_match(name, found->first)) ++found;
  return found->second;
}

// How many requests have failed, and of which functions.
size_t failures = 0;
std::set<AnyFunction> failed;

// Fails each request of a call in turn. In the end the call leaves in use all that it requested, or
// after a failure nothing.
int32_t FailEachRequest(AnyFunction function, const LibraryCall& call, const Check& isAsBefore) {
  const Codes& codes = CodesOf(function);
  for (size_t n = 1;; ++n) {
    const int32_t code = Watched(n, call);
    if (watch.requests < n) {
      EXPECT_EQ(watch.blocks.size(), code < 0 ? 0 : watch.requests);
      return code;
    }
    EXPECT_EQ(code, codes[std::min(n, codes.size()) - 1]) << n;
    EXPECT_EQ(watch.blocks.size(), 0U) << n;
    isAsBefore();
    ++failures;
    failed.insert(function);
  }
}

class Allocation : public testing::Environment {
  void SetUp() override { callHook = FailEachRequest; }
  void TearDown() override {
    std::cout << failures << " requests for memory failed, of " << failed.size() << " functions\n";
    EXPECT_EQ(failed.size(), kFunctions);
  }
  static constexpr size_t kFunctions = 155;
};

const testing::Environment* const kAllocation = testing::AddGlobalTestEnvironment(new Allocation);

// Only buffers over each other take a block, which is wiped; without one nothing is written.
TEST(Keys, WipeWhatTheyHoldInPlace) {
  uint32_t size = 0;
  const auto encode = [&](ByteVector& bytes) {
    return ASN1_SM2_SM2SignatureEncode(&bytes[0], 20, &bytes[20], 20, bytes.data(), &size);
  };
  ByteVector bytes(60, 0x55);
  EXPECT_EQ(Watched(1, [&] { return encode(bytes); }), 0);
  EXPECT_EQ(size, 0U);
  EXPECT_EQ(bytes, ByteVector(60, 0x55));
  EXPECT_EQ(Watched(0, [&] { return encode(bytes); }), 0);
  EXPECT_EQ(size, 46U);
  EXPECT_EQ(watch.requests, 1U);
  EXPECT_EQ(std::count(watch.released.begin(), watch.released.end(), 0x55), 0);

  // A number of no bytes overlaps nothing.
  const auto encodeOne = [&] {
    return ASN1_SM2_SM2SignatureEncode(&bytes[40], 20, &bytes[10], 0, bytes.data(), &size);
  };
  EXPECT_EQ(Watched(0, encodeOne), 0);
  EXPECT_EQ(watch.requests, 0U);

  // The second number is kept while the first is written.
  bytes = FromHex("30 08 02 02 11 22 02 02 55 55");
  const auto decode = [&] {
    return ASN1_SM2_SM2SignatureDecode(&bytes[8], &size, &bytes[0], &size, bytes.data(), 10);
  };
  EXPECT_EQ(Watched(1, decode), 0);
  EXPECT_EQ(ToHex(bytes.data(), bytes.size()), "30 08 02 02 11 22 02 02 55 55");
  EXPECT_EQ(Watched(0, decode), 0);
  EXPECT_EQ(ToHex(bytes.data(), bytes.size()), "55 55 02 02 11 22 02 02 11 22");
  EXPECT_EQ(std::count(watch.released.begin(), watch.released.end(), 0x55), 0);
  bytes.resize(sizeof(ZantPublicKey), 0x55);
  auto* key = reinterpret_cast<ZantPublicKey*>(bytes.data());
  const ByteVector before = bytes;
  EXPECT_EQ(Watched(1, [&] { return ZantDecodePublicKey(key, bytes.data(), 20); }), -1);
  EXPECT_EQ(Watched(1, [&] { return ZantEncodePublicKey(key, bytes.data(), &size); }), -1);
  EXPECT_EQ(bytes, before);
}

// Without TZ the C library would ask the system at every call.
TEST(Time, ReadsTheZoneOnlyWhileTzIsSet) {
  const NodePtr node = ToNode("17 0D \"230101000000Z\"");
  int32_t time = 0;
  const auto read = [&] { return ASN1_ReadUtcTime(node.get(), &time); };
  SetZone("UTC0");
  EXPECT_EQ(Watched(0, read), 0);
  EXPECT_EQ(watch.zoneReads, 1U);
  unsetenv("TZ");
  EXPECT_EQ(Watched(0, read), 0);
  EXPECT_EQ(watch.zoneReads, 0U);
  SetZone("UTC0");
}

// A child that does not fit goes before a wrong tag in front of it, and before a lack of memory.
TEST(Decoding, ACutOffElementGoesFirst) {
  for (const std::string third : {"30", "31"}) {
    const NodePtr node =
        ToNode("30 11 A0 00 02 00 " + third + " 00 30 00 30 00 30 00 30 00 04 02 00");
    for (const size_t failing : {0U, 1U}) {
      TBSCertificate* record = nullptr;
      const auto decode = [&] { return ASN1_TBSCertificateDecode(node.get(), &record); };
      EXPECT_EQ(Watched(failing, decode), -1) << third << " " << failing;
      EXPECT_TRUE(watch.blocks.empty());
    }
  }
}

// An entry that cannot be made ends the list; a block that cannot be made leaves its place empty.
TEST(Inspection, KeepsWhatItCouldMake) {
  X509Cert untouched{};
  X509Cert* out = &untouched;
  EXPECT_EQ(Watched(1, [&] { return X509CertCreate(&out) == nullptr ? 0 : 1; }), 0);
  EXPECT_EQ(out, &untouched);

  // The entries, identifiers and values that are there after each request in turn has failed.
  constexpr size_t kMade[][3] = {{0, 0, 0}, {2, 1, 2}, {2, 2, 1}, {1, 1, 1},
                                 {2, 1, 2}, {2, 2, 1}, {2, 2, 2}};
  size_t n = 0;
  for (const auto& [entries, identifiers, values] : kMade) {
    const auto record = Inspect(
        Sequence("31 08 30 06 06 01 2A 0C 01 41 | 31 09 30 07 06 01 2B 1E 02 00 42"), nullptr);
    const auto call = [&] { return X509CertGetSubject(record.get()); };
    EXPECT_EQ(Watched(++n, call), entries == 2 ? 0 : -1) << n;
    EXPECT_EQ(watch.blocks.size(), entries + identifiers + values) << n;
    size_t made[3] = {};
    for (const CertEntry* entry = record->subjectEntries; entry != nullptr; entry = entry->next) {
      ++made[0];
      made[1] += entry->oidLen;
      made[2] += entry->valueLen;
      EXPECT_EQ(entry->oid != nullptr, entry->oidLen != 0);
      EXPECT_EQ(entry->value != nullptr, entry->valueLen != 0);
    }
    EXPECT_EQ(made[0], entries) << n;
    EXPECT_EQ(made[1], identifiers) << n;
    EXPECT_EQ(made[2], values) << n;
  }
}

}  // namespace
