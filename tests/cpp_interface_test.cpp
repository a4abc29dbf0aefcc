// The C++ interface: what its handles own, when, and that it requests no memory itself. The program
// is linked with the library's objects, whose calls of the C allocator come here.
#include <cstdlib>
#include <new>
#include <stdexcept>
#include <system_error>

#include "hex.h"
#include "velkord.hpp"
#include "watched_allocator.h"

// So `new` makes blocks of the C allocator.
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

TEST(Interface, FreesEachType) {
  const auto makeAndFree = [](auto*... create) {
    (static_cast<void>(Make("create a record", create)), ...);
  };
  makeAndFree(ASN1_CreateTBSCertificate, ASN1_CreateCertificate, ASN1_CRL_CreateRevokedCertificate,
              ASN1_CRL_CreateTbsCertList, ASN1_CRL_CreateCertificateList, ASN1_CreatePKCS10,
              ASN1_CreatePKCS10Request, ASN1_PKCS6_CreateExtendedCertificateInfo,
              ASN1_PKCS6_CreateExtendedCertificate, ASN1_PKCS7_CreateContext);
  const Node id = Nodes("06 01 2A");
  const auto attribute = Make("pair them", ASN1_SetAttributeTypeAndValue, id.get(), id.get());
}

// What a caller puts into its fields goes with it too.
TEST(Interface, FreesAllThatAnInspectionRecordHolds) {
  X509Cert* out = nullptr;
  const Handle<X509Cert> record(X509CertCreate(&out));
  EXPECT_EQ(record.get(), out);
  record->tbs = Make("create a record", ASN1_CreateTBSCertificate).release();
  record->tbs->subject = Number(5).release();
  for (uint8_t** block :
       {&record->block1, &record->block2, &record->block3, &record->block4, &record->block5}) {
    *block = new uint8_t;
  }
  for (CertEntry** list : {&record->entriesA, &record->subjectEntries}) {
    *list = new CertEntry{new uint8_t, 0, nullptr, 0,
                          new CertEntry{nullptr, 0, new uint8_t, 0, nullptr}};
  }
  record->entriesB = new CertWideEntry{
      nullptr, 0, new uint8_t, 0, 0, new CertWideEntry{new uint8_t, 0, nullptr, 0, 0, nullptr}};
  X509CertFree(nullptr);
  ASN1_FreeObjectID(nullptr);
}

// The source is the handle's own object, so that it has to live until the call has ended. A call
// that fails leaves the handle alone.
TEST(Interface, ReplacesTheObjectWhenTheCallSucceeds) {
  for (const std::string children : {"02 01 05 | 02 01 06", "none"}) {
    Node node(Sequence(children).release());
    EXPECT_EQ(ASN1_ReadSequence(node.get(), Out(node)), VELKORD_OK);
    const Anybuf* const before = node.get();
    EXPECT_LT(ASN1_ReadSequence(before, Out(node)), VELKORD_OK);
    EXPECT_THROW(std::ignore = Make("split", ASN1_ReadSequence, before), std::system_error);
    EXPECT_EQ(node.get(), before);
    EXPECT_EQ(Describe(before), children);
  }
}

std::string Shown(Bytes bytes) { return ToHex(bytes.data(), bytes.size()); }

TEST(Interface, ShowsTheBytesOfNodesRecordsAndTexts) {
  EXPECT_EQ(Shown(View(Anybuf{nullptr, 5, 0, 2, 4, nullptr, nullptr})), "");
  EXPECT_EQ(Shown(View(ObjectID{0, nullptr, 5, 0, 2, 6, nullptr, nullptr})), "");
  const Node node = Nodes("06 01 2A");
  EXPECT_EQ(Shown(View(*node)), "06 01 2A");
  EXPECT_EQ(Shown(View(*Make("read an identifier", ASN1_ReadObjectId, node.get()))), "2A");
  EXPECT_EQ(Shown(View("\xC4z")), "C4 7A");
}

// `Describe` looks at the links in both directions.
TEST(Interface, BuildsChainsAndShowsThemAsRanges) {
  static_assert(std::forward_iterator<Chain<CertEntry>::Iterator>);
  ChainBuilder builder(Number(1), Node());
  builder.Append(Nodes("05 00 | 04 00"));
  builder.Append(nullptr);
  builder.Append(Number(2));
  const Node chain = builder.Take();
  EXPECT_EQ(builder.Head(), nullptr);
  EXPECT_EQ(Describe(chain.get()), "02 01 01 | 05 00 | 04 00 | 02 01 02");
  auto at = Chain(chain.get()).begin();
  EXPECT_EQ(&*at++, chain.get());
  EXPECT_EQ(at->dataType, 5U);
  EXPECT_EQ(std::distance(at, {}), 3);
  builder.Append(Number(3));
  EXPECT_EQ(Describe(builder.Head()), "02 01 03");
}

// Each case is "octets = text", or the number of the error that is thrown.
void ExpectTexts(std::string (*read)(Bytes), const std::vector<std::string>& cases) {
  for (const std::string& one : cases) {
    const std::string hex = one.substr(0, one.find(" = "));
    std::string text;
    try {
      text = read(FromHex(hex));
    } catch (const std::system_error& error) {
      text = std::to_string(error.code().value());
    }
    EXPECT_EQ(text, one.substr(hex.size() + 3)) << one;
  }
}

TEST(Interface, ReadsTimesOfEveryYear) {
  ExpectTexts(
      [](Bytes time) { return std::to_string(ReadTime(time).time_since_epoch().count()); },
      {"17 0D \"491231235959Z\" = 2524607999", "17 81 0D \"500101000000Z\" = -631152000",
       "18 0F \"00000229000000Z\" = -62162121600", "18 0F \"99991231235959Z\" = 253402300799",
       "16 0D \"491231235959Z\" = -7", "17 0F \"20000101000000Z\" = -5",
       "17 0D \"491231235959z\" = -5", "17 0D \"49123123595:Z\" = -5",
       "17 0D \"49123123595/Z\" = -5", "17 0D \"490229000000Z\" = -5",
       "18 0F \"20000001000000Z\" = -5", "18 0F \"20000101240000Z\" = -5",
       "18 0F \"20000101006000Z\" = -5", "18 0F \"20000101000060Z\" = -5"});
}

TEST(Interface, WritesIdentifiersAsText) {
  ExpectTexts(ObjectIdText, {"2A 86 48 = 1.2.840", "27 = 0.39",
                             "81 FF FF FF FF FF FF FF FF 7F = 2.18446744073709551535",
                             "FF*9 7F = -1", " = -1", "2A 86 = -1", "2A 80 01 = -1"});
  // "1.2.99" needs all six.
  char text[6];
  EXPECT_EQ(ObjectIdToChars(text, text + 6, View("\x2A\x63")).ptr, text + 6);
  for (size_t room = 0; room < 6; ++room) {
    EXPECT_EQ(ObjectIdToChars(text, text + room, View("\x2A\x63")).ec, std::errc::value_too_large);
  }
}

TEST(Interface, ReadsStringsAsUtf8) {
  ExpectTexts(Utf8Text,
              {"0C 82 00 03 C5 BB FF = \u017B\xFF", "14 02 \"Z\" FC = Z\u00FC",
               "1E 08 79 3A D8 3D DE 00 00 41 = \u793A\U0001F600A",
               "1C 08 00 01 F6 00 00 00 20 AC = \U0001F600\u20AC", "1E 03 79 3A 00 = -1",
               "1E 04 D8 3D 00 41 = -1", "1E 04 00 41 D8 3D = -1", "1E 02 DE 00 = -1",
               "1C 08 00 00 D8 3D 00 00 DE 00 = -1", "1C 04 00 11 00 00 = -1", "04 01 \"A\" = -7",
               "13 = -2", "13 02 \"A\" = -2", "13 01 \"AB\" = -2", "13 80 00 00 = -2",
               "13 82 00 = -2", "13 85 00 00 00 00 01 \"A\" = -1", "1F 0C 00 = -7"});
  EXPECT_EQ(Utf8Text(*Nodes("13 02 \"CN\"")), "CN");
}

TEST(Interface, RequestsNoMemoryOfItsOwn) {
  const auto work = [] {
    ChainBuilder builder(Number(5), Number(5));
    builder.Append(Number(5));
    Node node = Number(5);
    for (const Anybuf& one : Chain(builder.Head())) EXPECT_EQ(Length(View(one)), 3U);
    EXPECT_EQ(ReadTime(View("\x17\r700101000001Z")).time_since_epoch().count(), 1);
    return ToErrorCode(ASN1_ReadSequence(node.get(), Out(node)));
  };
  EXPECT_EQ(Watched(0, work), Errc::kWrongTag);
  EXPECT_EQ(watch.requests, 8U) << "two for each node";
  EXPECT_TRUE(watch.blocks.empty());
}

TEST(Interface, TellsTheNamesAndNumbersOfCodes) {
  EXPECT_FALSE(ToErrorCode(VELKORD_OK));
  velkord::Check(VELKORD_OK, "a step");
  const std::pair<int32_t, std::string> kMessages[] = {
      {VELKORD_BAD_TIME, "VELKORD_BAD_TIME (-5)"},
      {-3, "unknown code (-3)"},
      {VELKORD_OUT_OF_MEMORY,
       "VELKORD_OUT_OF_MEMORY: out of memory, or a time outside 1970 to 2038 (-7000)"}};
  for (const auto& [code, message] : kMessages) {
    EXPECT_EQ(ToErrorCode(code).message(), message);
    EXPECT_THROW(velkord::Check(code, "a step"), std::system_error);
  }
}

struct Sized {
  uint64_t count;
  uint64_t size() const { return count; }
};

TEST(Interface, RefusesLengthsBeyondTheirWidth) {
  EXPECT_EQ(Length(Sized{0xFFFFFFFF}), 0xFFFFFFFF);
  EXPECT_THROW(std::ignore = Length(Sized{0x100000000}), std::length_error);
  EXPECT_EQ(Length<int32_t>(Sized{0x7FFFFFFF}), 0x7FFFFFFF);
  EXPECT_THROW(std::ignore = Length<int32_t>(Sized{0x80000000}), std::length_error);
}

}  // namespace
