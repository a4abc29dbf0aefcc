// The C++ interface: what its handles own, when, and that it requests no memory itself. The program
// is linked with the library's objects, whose calls of the C allocator come here.
#include <cstdlib>
#include <new>
#include <stdexcept>
#include <system_error>

#include "hex.h"
#include "velkord.hpp"
#include "watched_allocator.h"

using velkord::Chain, velkord::ChainBuilder, velkord::Errc, velkord::Handle, velkord::Length,
    velkord::Make, velkord::Out, velkord::ToErrorCode, velkord::View;

void* operator new(size_t size) {
  void* const block = std::malloc(size);
  if (block == nullptr) throw std::bad_alloc();
  return block;
}
void operator delete(void* block) noexcept { std::free(block); }
void operator delete(void* block, size_t /*size*/) noexcept { std::free(block); }

namespace {

using Node = velkord::NodePtr;

Node Nodes(const std::string& text) { return Node(ToNode(text).release()); }

Node Number(uint32_t value) { return Make("write a number", ASN1_WriteInteger, value); }

// Runs `work` and gives the number of its requests, all of which it has released.
template <typename Work>
size_t Requests(Work work) {
  Watched(0, [&] {
    work();
    return 0;
  });
  EXPECT_EQ(watch.blocks.size(), 0U);
  return watch.requests;
}

// A record that owns a node is moved and released.
template <typename Object>
void MoveAndFree(int32_t (*create)(Object**), Anybuf* Object::*field) {
  bool moved = false;
  size_t made = Requests([&] {
    Handle<Object> record = Make("create a record", create);
    velkord::Check(ASN1_WriteNull(&((*record).*field)), "fill a field");
    const Handle<Object> other = std::move(record);
    moved = record == nullptr && (*other).*field != nullptr;
  });
  EXPECT_GE(made, 2U);
  EXPECT_TRUE(moved);
}

TEST(Handles, FreeEachTypeOnce) {
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
  size_t made = Requests([] {
    const Handle<X509Cert> view(X509CertCreate(nullptr));
    view->tbs = Make("create a record", ASN1_CreateTBSCertificate).release();
    velkord::Check(ASN1_WriteNull(&view->tbs->subject), "fill a field");
  });
  EXPECT_GE(made, 3U);
  const Node id = Nodes("06 01 2A");
  made = Requests([&] {
    const auto record = Make("read an identifier", ASN1_ReadObjectId, id.get());
    const auto attribute =
        Make("make an attribute", ASN1_SetAttributeTypeAndValue, id.get(), id.get());
  });
  EXPECT_GE(made, 4U);
}

TEST(Out, LeavesTheHandleAloneWhenTheCallFails) {
  Node node = Number(5);
  const Anybuf* const before = node.get();
  EXPECT_EQ(ASN1_ReadSequence(node.get(), Out(node)), VELKORD_WRONG_TAG);
  EXPECT_THROW(velkord::Check(ASN1_ReadSequence(node.get(), Out(node)), "split"),
               std::system_error);
  EXPECT_EQ(node.get(), before);
  EXPECT_EQ(Describe(node.get()), "2: 02 01 05");
}

// The source is the handle's own object, so that it has to live until the call has ended.
TEST(Out, ReleasesTheObjectBefore) {
  const Node sequence = Nodes("30 06 02 01 05 02 01 06");
  std::string children;
  Requests([&] {
    Node node = Make("copy", ASN1_WriteExplicitFromDERData, sequence->data, sequence->dataLen);
    velkord::Check(ASN1_ReadSequence(node.get(), Out(node)), "split");
    watch.on = false;
    children = Describe(node.get());
    watch.on = true;
  });
  EXPECT_EQ(children, "2: 02 01 05 | 2: 02 01 06");
}

TEST(Out, StoresNullWhenTheCallMakesNothing) {
  const Node empty = Nodes("30 00");
  bool isNull = false;
  size_t made = Requests([&] {
    Node node = Number(5);
    velkord::Check(ASN1_ReadSequence(empty.get(), Out(node)), "split");
    isNull = node == nullptr;
  });
  EXPECT_GE(made, 1U);
  EXPECT_TRUE(isNull);
}

TEST(Views, ShowTheBytesOfNodesRecordsAndTexts) {
  const Anybuf noBytes = {nullptr, 5, 0, 2, 4, nullptr, nullptr};
  EXPECT_TRUE(View(noBytes).empty());
  const ObjectID noIdentifier = {0, nullptr, 5, 0, 2, 6, nullptr, nullptr};
  EXPECT_TRUE(View(noIdentifier).empty());
  const Node node = Nodes("06 01 2A");
  EXPECT_EQ(View(*node).data(), node->data);
  EXPECT_EQ(View(*node).size(), 3U);
  const auto id = Make("read an identifier", ASN1_ReadObjectId, node.get());
  EXPECT_EQ(ToHex(View(*id).data(), View(*id).size()), "2A");
  EXPECT_EQ(ToHex(View("\xC4z").data(), View("\xC4z").size()), "C4 7A");
}

std::string Types(const Anybuf* chain) {
  std::string types;
  for (const Anybuf& node : Chain(chain)) types += std::to_string(node.dataType) + ' ';
  return types;
}

TEST(Chains, AreRanges) {
  static_assert(std::forward_iterator<Chain<const Anybuf>::Iterator>);
  EXPECT_EQ(Types(nullptr), "");
  EXPECT_EQ(Types(Nodes("05 00").get()), "5 ");
  const Node three = Nodes("02 01 05 | 05 00 | 04 00");
  EXPECT_EQ(Types(three.get()), "2 5 4 ");
  for (Anybuf& node : Chain(three.get())) node.dataType = 7;
  EXPECT_EQ(Types(three.get()), "7 7 7 ");

  const Chain chain(three.get());
  auto at = chain.begin();
  EXPECT_EQ(&*at++, three.get());
  EXPECT_EQ(at->data, three->next->data);
  EXPECT_EQ(std::distance(at, chain.end()), 2);

  CertEntry last{};
  last.oidLen = 2;
  CertEntry first{};
  first.oidLen = 1;
  first.next = &last;
  uint32_t sum = 0;
  for (const CertEntry& entry : Chain(&first)) sum = sum * 10 + entry.oidLen;
  EXPECT_EQ(sum, 12U);
}

// `Describe` looks at the links in both directions.
TEST(ChainBuilders, LinkNodesAndChainsInTheirOrder) {
  ChainBuilder builder;
  EXPECT_EQ(builder.Head(), nullptr);
  builder.Append(nullptr);
  EXPECT_EQ(builder.Head(), nullptr);
  builder.Append(Number(1));
  builder.Append(Nodes("05 00 | 04 00"));
  builder.Append(nullptr);
  builder.Append(Number(2));
  EXPECT_EQ(Describe(builder.Head()), "2: 02 01 01 | 5: 05 00 | 4: 04 00 | 2: 02 01 02");

  builder.Append(Number(3));
  const Node taken = builder.Take();
  EXPECT_EQ(Describe(taken.get()), "2: 02 01 01 | 5: 05 00 | 4: 04 00 | 2: 02 01 02 | 2: 02 01 03");
  EXPECT_EQ(builder.Head(), nullptr);
  builder.Append(Number(4));
  EXPECT_EQ(Describe(builder.Head()), "2: 02 01 04");
  EXPECT_EQ(Describe(ChainBuilder(Number(1), Node(), Number(2)).Head()),
            "2: 02 01 01 | 2: 02 01 02");
}

TEST(ChainBuilders, ReleaseWhatTheyHold) {
  size_t made = Requests([] {
    ChainBuilder builder(Number(1), Number(2));
    builder.Append(Number(3));
    const Node taken = builder.Take();
    builder.Append(Number(4));
  });
  EXPECT_GE(made, 4U);
}

TEST(Interface, RequestsNoMemoryOfItsOwn) {
  Anybuf* nodes[4] = {};
  const size_t plain = Requests([&] {
    for (Anybuf*& node : nodes) ASN1_WriteInteger(5, &node);
    ASN1_ReadSequence(nodes[0], &nodes[1]);
    for (Anybuf* node : nodes) ASN1_FreeAnybuf(node);
  });
  uint32_t sum = 0;
  const size_t made = Requests([&] {
    ChainBuilder builder(Number(5), Number(5));
    builder.Append(Number(5));
    Node node = Number(5);
    const std::error_code code = ToErrorCode(ASN1_ReadSequence(node.get(), Out(node)));
    for (const Anybuf& one : Chain(builder.Head())) sum += Length(View(one));
    if (code == Errc::kWrongTag) ++sum;
  });
  EXPECT_EQ(made, plain);
  EXPECT_EQ(sum, 10U);
}

TEST(Errors, NameEveryCode) {
  const std::pair<int32_t, std::string> kMessages[] = {
      {VELKORD_OK, "VELKORD_OK (0)"},
      {VELKORD_FAILURE, "VELKORD_FAILURE (-1)"},
      {VELKORD_SIZE_MISMATCH, "VELKORD_SIZE_MISMATCH (-2)"},
      {VELKORD_NEGATIVE_TIME, "VELKORD_NEGATIVE_TIME (-4)"},
      {VELKORD_BAD_TIME, "VELKORD_BAD_TIME (-5)"},
      {VELKORD_WRONG_TAG, "VELKORD_WRONG_TAG (-7)"},
      {VELKORD_NULL_ARGUMENT, "VELKORD_NULL_ARGUMENT (-8)"},
      {VELKORD_OUT_OF_MEMORY,
       "VELKORD_OUT_OF_MEMORY: out of memory, or a time outside 1970 to 2038 (-7000)"},
      {-3, "unknown code (-3)"},
  };
  for (const auto& [code, message] : kMessages) {
    const std::error_code error = ToErrorCode(code);
    EXPECT_EQ(error.message(), message);
    EXPECT_EQ(error.value(), code);
    EXPECT_STREQ(error.category().name(), "Velkord");
    EXPECT_EQ(static_cast<bool>(error), code != VELKORD_OK);
  }
}

TEST(Errors, CompareByCodeAndCategory) {
  const std::error_code error = ToErrorCode(VELKORD_WRONG_TAG);
  EXPECT_TRUE(error == Errc::kWrongTag);
  EXPECT_FALSE(error == Errc::kBadTime);
  EXPECT_NE(error, std::error_code(VELKORD_WRONG_TAG, std::generic_category()));
}

TEST(Errors, AreThrownWithTheirStep) {
  EXPECT_NO_THROW(velkord::Check(VELKORD_OK, "a step"));
  try {
    const Node node = Make("a step", ASN1_ReadSequence, static_cast<const Anybuf*>(nullptr));
    ADD_FAILURE() << "nothing was thrown";
  } catch (const std::system_error& error) {
    EXPECT_EQ(error.code(), Errc::kNullArgument);
    EXPECT_STREQ(error.what(), "a step: VELKORD_NULL_ARGUMENT (-8)");
  }
}

struct Sized {
  uint64_t count;
  uint64_t size() const { return count; }
};

TEST(Lengths, BeyondTheirWidthAreRefused) {
  EXPECT_EQ(Length(std::string_view("CN")), 2U);
  EXPECT_EQ(Length(Sized{0xFFFFFFFF}), 0xFFFFFFFF);
  EXPECT_THROW(std::ignore = Length(Sized{0x100000000}), std::length_error);
  EXPECT_EQ(Length<int32_t>(Sized{0x7FFFFFFF}), 0x7FFFFFFF);
  EXPECT_THROW(std::ignore = Length<int32_t>(Sized{0x80000000}), std::length_error);
}

}  // namespace
