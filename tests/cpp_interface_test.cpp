// The C++ interface: what its handles own, when, and that it requests no memory itself. The program
// is linked with the library's objects, whose calls of the C allocator come here.
#include <cstdlib>
#include <new>
#include <stdexcept>
#include <system_error>

#include "hex.h"
#include "velkord.hpp"
#include "watched_allocator.h"

void* operator new(size_t size) {
  void* const block = std::malloc(size);
  if (block == nullptr) throw std::bad_alloc();
  return block;
}
void operator delete(void* block) noexcept { std::free(block); }
void operator delete(void* block, size_t /*size*/) noexcept { std::free(block); }

namespace {

using namespace velkord;
using Node = velkord::NodePtr;

Node Nodes(const std::string& text) { return Node(ToNode(text).release()); }

Node Number(uint32_t value) { return Make("write a number", ASN1_WriteInteger, value); }

template <typename Object = uint8_t>
Object* Block() {
  return static_cast<Object*>(std::calloc(1, sizeof(Object)));
}

// Whatever a test requests it releases.
class Interface : public testing::Test {
  void SetUp() override {
    watch = {};
    watch.on = true;
  }
  void TearDown() override {
    watch.on = false;
    EXPECT_TRUE(watch.blocks.empty());
  }
};

// A record that owns a node is moved and released.
template <typename Object>
void MoveAndFree(int32_t (*create)(Object**), Anybuf* Object::*field) {
  Handle<Object> record = Make("create a record", create);
  velkord::Check(ASN1_WriteNull(&((*record).*field)), "fill a field");
  const Handle<Object> other = std::move(record);
}

TEST_F(Interface, FreesEachType) {
  MoveAndFree(ASN1_CreateTBSCertificate, &TBSCertificate::subject);
  MoveAndFree(ASN1_CreateCertificate, &Certificate::signatureValue);
  MoveAndFree(ASN1_CRL_CreateRevokedCertificate, &RevokedCertificate::revocationDate);
  MoveAndFree(ASN1_CRL_CreateTbsCertList, &TbsCertList::issuer);
  MoveAndFree(ASN1_CRL_CreateCertificateList, &CertificateList::signatureValue);
  MoveAndFree(ASN1_CreatePKCS10, &PKCS10::subject);
  MoveAndFree(ASN1_CreatePKCS10Request, &PKCS10Request::signature);
  MoveAndFree(ASN1_PKCS6_CreateExtendedCertificateInfo, &ExtendedCertificateInfo::certificate);
  MoveAndFree(ASN1_PKCS6_CreateExtendedCertificate, &ExtendedCertificate::signature);
  MoveAndFree(ASN1_PKCS7_CreateContext, &PKCS7Context::content);
  const Node id = Nodes("06 01 2A");
  const auto identifier = Make("read an identifier", ASN1_ReadObjectId, id.get());
  const auto attribute = Make("pair them", ASN1_SetAttributeTypeAndValue, id.get(), id.get());
}

// What a caller puts into its fields goes with it too.
TEST_F(Interface, FreesAllThatAnInspectionRecordHolds) {
  X509Cert* out = nullptr;
  const Handle<X509Cert> record(X509CertCreate(&out));
  EXPECT_EQ(record.get(), out);
  record->tbs = Make("create a record", ASN1_CreateTBSCertificate).release();
  for (uint8_t** block :
       {&record->block1, &record->block2, &record->block3, &record->block4, &record->block5}) {
    *block = Block();
  }
  record->entriesA = Block<CertEntry>();
  record->entriesA->next = Block<CertEntry>();
  record->entriesA->next->oid = Block();
  record->entriesB = Block<CertWideEntry>();
  record->entriesB->block3 = Block();
  record->entriesB->next = Block<CertWideEntry>();
  record->entriesB->next->block1 = Block();
  X509CertFree(nullptr);
  ASN1_FreeObjectID(nullptr);
}

TEST_F(Interface, LeavesTheHandleAloneWhenTheCallFails) {
  Node node = Number(5);
  const Anybuf* const before = node.get();
  EXPECT_EQ(ASN1_ReadSequence(before, Out(node)), VELKORD_WRONG_TAG);
  EXPECT_THROW(std::ignore = Make("split", ASN1_ReadSequence, before), std::system_error);
  EXPECT_EQ(node.get(), before);
  EXPECT_EQ(Describe(before), "2: 02 01 05");
}

// The source is the handle's own object, so that it has to live until the call has ended.
TEST_F(Interface, ReplacesTheObjectWhenTheCallSucceeds) {
  for (const std::string children : {"2: 02 01 05 | 2: 02 01 06", "none"}) {
    Node node(Sequence(children).release());
    EXPECT_EQ(ASN1_ReadSequence(node.get(), Out(node)), VELKORD_OK);
    EXPECT_EQ(Describe(node.get()), children);
  }
}

std::string Shown(Bytes bytes) { return ToHex(bytes.data(), bytes.size()); }

TEST_F(Interface, ShowsTheBytesOfNodesRecordsAndTexts) {
  EXPECT_EQ(Shown(View(Anybuf{nullptr, 5, 0, 2, 4, nullptr, nullptr})), "");
  EXPECT_EQ(Shown(View(ObjectID{0, nullptr, 5, 0, 2, 6, nullptr, nullptr})), "");
  const Node node = Nodes("06 01 2A");
  EXPECT_EQ(Shown(View(*node)), "06 01 2A");
  EXPECT_EQ(Shown(View(*Make("read an identifier", ASN1_ReadObjectId, node.get()))), "2A");
  EXPECT_EQ(Shown(View("\xC4z")), "C4 7A");
}

TEST_F(Interface, ShowsChainsAsRanges) {
  static_assert(std::forward_iterator<Chain<const Anybuf>::Iterator>);
  const Node three = Nodes("02 01 05 | 05 00 | 04 00");
  const Chain chain(three.get());
  auto at = chain.begin();
  EXPECT_EQ(&*at++, three.get());
  EXPECT_EQ(at->dataType, 5U);
  EXPECT_EQ(std::distance(at, chain.end()), 2);
  CertEntry last{};
  CertEntry first{};
  first.next = &last;
  for (CertEntry& entry : Chain(&first)) entry.oidLen = 5;
  EXPECT_EQ(first.oidLen + last.oidLen, 10U);
}

// `Describe` looks at the links in both directions.
TEST_F(Interface, BuildsChainsOfNodesAndChains) {
  ChainBuilder builder(Number(1), Node());
  builder.Append(Nodes("05 00 | 04 00"));
  builder.Append(nullptr);
  builder.Append(Number(2));
  EXPECT_EQ(Describe(builder.Head()), "2: 02 01 01 | 5: 05 00 | 4: 04 00 | 2: 02 01 02");
  const Node taken = builder.Take();
  EXPECT_EQ(Describe(taken.get()), "2: 02 01 01 | 5: 05 00 | 4: 04 00 | 2: 02 01 02");
  EXPECT_EQ(builder.Head(), nullptr);
  builder.Append(Number(3));
  EXPECT_EQ(Describe(builder.Head()), "2: 02 01 03");
}

TEST_F(Interface, RequestsNoMemoryOfItsOwn) {
  ChainBuilder builder(Number(5), Number(5));
  builder.Append(Number(5));
  Node node = Number(5);
  const std::error_code code = ToErrorCode(ASN1_ReadSequence(node.get(), Out(node)));
  EXPECT_EQ(code, Errc::kWrongTag);
  for (const Anybuf& one : Chain(builder.Head())) EXPECT_EQ(Length(View(one)), 3U);
  EXPECT_EQ(watch.requests, 8U) << "two for each node";
}

TEST_F(Interface, TellsTheNamesAndNumbersOfCodes) {
  const std::pair<Errc, std::string> kMessages[] = {
      {Errc{VELKORD_OK}, "VELKORD_OK (0)"},
      {Errc::kFailure, "VELKORD_FAILURE (-1)"},
      {Errc::kSizeMismatch, "VELKORD_SIZE_MISMATCH (-2)"},
      {Errc{-3}, "unknown code (-3)"},
      {Errc::kNegativeTime, "VELKORD_NEGATIVE_TIME (-4)"},
      {Errc::kBadTime, "VELKORD_BAD_TIME (-5)"},
      {Errc::kWrongTag, "VELKORD_WRONG_TAG (-7)"},
      {Errc::kNullArgument, "VELKORD_NULL_ARGUMENT (-8)"},
      {Errc::kOutOfMemory,
       "VELKORD_OUT_OF_MEMORY: out of memory, or a time outside 1970 to 2038 (-7000)"},
  };
  for (const auto& [code, message] : kMessages) {
    const std::error_code error = code;
    EXPECT_EQ(error.message(), message);
    EXPECT_STREQ(error.category().name(), "Velkord");
    EXPECT_NE(error, std::error_code(error.value(), std::generic_category()));
    try {
      velkord::Check(error.value(), "a step");
      EXPECT_FALSE(error);
    } catch (const std::system_error& thrown) {
      EXPECT_TRUE(error);
      EXPECT_EQ(thrown.code(), error);
      EXPECT_EQ(thrown.what(), "a step: " + message);
    }
  }
}

struct Sized {
  uint64_t count;
  uint64_t size() const { return count; }
};

TEST_F(Interface, RefusesLengthsBeyondTheirWidth) {
  EXPECT_EQ(Length(Sized{0xFFFFFFFF}), 0xFFFFFFFF);
  EXPECT_THROW(std::ignore = Length(Sized{0x100000000}), std::length_error);
  EXPECT_EQ(Length<int32_t>(Sized{0x7FFFFFFF}), 0x7FFFFFFF);
  EXPECT_THROW(std::ignore = Length<int32_t>(Sized{0x80000000}), std::length_error);
}

}  // namespace
