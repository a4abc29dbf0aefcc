#include "inputs.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <utility>

#include "Velkord.h"
#include "contender.h"

namespace bench {

namespace {

constexpr char kBundle[] = "/etc/ssl/certs/ca-certificates.crt";
constexpr char kHeader[] = "-----BEGIN CERTIFICATE-----";
constexpr char kFooter[] = "-----END CERTIFICATE-----";

constexpr uint8_t kSha256WithRsaEncryption[] = {0x2A, 0x86, 0x48, 0x86, 0xF7,
                                                0x0D, 0x01, 0x01, 0x0B};
constexpr char kCommonName[] = "2.5.4.3";
constexpr uint8_t kReasonCode[] = {0x55, 0x1D, 0x15};
constexpr size_t kReasonEvery = 10;

// The value by which version 2 of a list is numbered.
constexpr uint32_t kListVersion2 = 1;

// 1 January of 2020 and of 2026.
constexpr uint32_t kFirstDate = 1577836800;
constexpr uint32_t kEndOfDates = 1767225600;
constexpr uint32_t kMonth = 30 * 24 * 60 * 60;

constexpr size_t kPage = 4096;

struct FreeNode {
  void operator()(Anybuf* node) const { ASN1_FreeAnybuf(node); }
};
using NodePtr = std::unique_ptr<Anybuf, FreeNode>;

// The node that a function of the library makes.
template <typename Function, typename... Arguments>
NodePtr Make(Function function, Arguments... arguments) {
  Anybuf* node = nullptr;
  Require(function(arguments..., &node) == VELKORD_OK, "a part of an input cannot be made");
  return NodePtr(node);
}

// The elements of a SEQUENCE. The library would walk the chain at each element that it appends.
class Elements {
 public:
  Elements& Append(NodePtr node) {
    Anybuf* const added = node.release();
    if (last_ == nullptr) {
      head_.reset(added);
    } else {
      last_->next = added;
    }
    last_ = added;
    return *this;
  }

  NodePtr Sequence() const { return Make(ASN1_WriteSequence, head_.get()); }

 private:
  NodePtr head_;
  Anybuf* last_ = nullptr;
};

NodePtr UtcTime(uint32_t time) {
  const auto seconds = static_cast<int32_t>(time);
  return Make(ASN1_WriteUtcTime, &seconds);
}

NodePtr Algorithm() {
  return Elements()
      .Append(Make(ASN1_WriteObjectIdFromData, 0, kSha256WithRsaEncryption,
                   uint32_t{sizeof kSha256WithRsaEncryption}))
      .Append(Make(ASN1_WriteNull))
      .Sequence();
}

NodePtr Issuer() {
  constexpr char kText[] = "Velkord Bench";
  const NodePtr text = Make(ASN1_WriteUTF8StringFromBytes, reinterpret_cast<const uint8_t*>(kText),
                            uint32_t{sizeof kText - 1});
  return Elements()
      .Append(Make(ASN1_GetDerRelativeDistinguishedNameOne, text.get(), 0, kCommonName,
                   int32_t{sizeof kCommonName - 1}))
      .Sequence();
}

NodePtr EntryExtensions() {
  constexpr uint8_t kKeyCompromise[] = {0x0A, 1, 1};
  return Elements()
      .Append(Make(ASN1_GetExtensionOne, 0, kReasonCode, uint32_t{sizeof kReasonCode}, 0U,
                   kKeyCompromise, uint32_t{sizeof kKeyCompromise}))
      .Sequence();
}

NodePtr Entry(Random& random, bool withReason) {
  uint8_t serialNumber[16];
  for (uint8_t& octet : serialNumber) octet = static_cast<uint8_t>(random.Next(0x100));
  // Neither a zero in front nor an octet to keep it positive.
  serialNumber[0] = static_cast<uint8_t>(1 + random.Next(0x7F));
  Elements entry;
  entry.Append(Make(ASN1_WriteIntegerArrayFromBytes, serialNumber, uint32_t{sizeof serialNumber}))
      .Append(UtcTime(kFirstDate + random.Next(kEndOfDates - kFirstDate)));
  if (withReason) entry.Append(EntryExtensions());
  return entry.Sequence();
}

NodePtr Entries(size_t count) {
  Random random(2);
  Elements entries;
  for (size_t at = 0; at < count; ++at) entries.Append(Entry(random, at % kReasonEvery == 0));
  return entries.Sequence();
}

NodePtr SignedPart(size_t entries) {
  return Elements()
      .Append(Make(ASN1_WriteInteger, kListVersion2))
      .Append(Algorithm())
      .Append(Issuer())
      .Append(UtcTime(kEndOfDates))
      .Append(UtcTime(kEndOfDates + kMonth))
      .Append(Entries(entries))
      .Sequence();
}

std::vector<std::vector<uint8_t>> ReadBundle() {
  std::ifstream file(kBundle, std::ios::binary);
  const std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  std::vector<std::vector<uint8_t>> certificates;
  size_t at = text.find(kHeader);
  while (at != std::string::npos) {
    const size_t next = text.find(kHeader, at + 1);
    const std::string block = text.substr(at, next - at);
    std::vector<uint8_t> der(block.size());
    uint32_t length = 0;
    Require(PEM2DER_data_format(block.data(), static_cast<uint32_t>(block.size()), der.data(),
                                &length) == VELKORD_OK,
            "the bundle of certificates cannot be decoded");
    der.resize(length);
    certificates.push_back(std::move(der));
    at = next;
  }
  Require(!certificates.empty(), "there is no bundle of certificates");
  return certificates;
}

std::vector<uint8_t> MedianCertificate() {
  std::vector<std::vector<uint8_t>> certificates = Certificates();
  const auto median = certificates.begin() + static_cast<ptrdiff_t>(certificates.size() / 2);
  std::ranges::nth_element(certificates, median, {}, &std::vector<uint8_t>::size);
  return *median;
}

std::string WritePem(const std::vector<uint8_t>& der) {
  std::string text(2 * der.size() + sizeof kHeader + sizeof kFooter, '\0');
  uint32_t length = 0;
  Require(DER2PEM_data_format(der.data(), static_cast<uint32_t>(der.size()), text.data(), &length,
                              kHeader, kFooter) == VELKORD_OK,
          "a certificate cannot be written as text");
  text.resize(length);
  return text;
}

}  // namespace

const std::vector<std::vector<uint8_t>>& Certificates() {
  static const auto kCertificates = ReadBundle();
  return kCertificates;
}

const std::vector<uint8_t>& Certificate() {
  static const auto kCertificate = MedianCertificate();
  return kCertificate;
}

const std::string& PemCertificate() {
  static const auto kText = WritePem(Certificate());
  return kText;
}

std::vector<uint8_t> RevocationList(size_t entries) {
  constexpr uint8_t kSignature[256] = {};
  const NodePtr list =
      Elements()
          .Append(SignedPart(entries))
          .Append(Algorithm())
          .Append(Make(ASN1_WriteBitStringFromBytes, kSignature, uint32_t{sizeof kSignature}))
          .Sequence();
  return std::vector<uint8_t>(list->data, list->data + list->dataLen);
}

std::vector<uint8_t> RandomBytes(size_t size) {
  Random random(1);
  std::vector<uint8_t> bytes(size);
  for (uint8_t& octet : bytes) octet = static_cast<uint8_t>(random.Next(0x100));
  return bytes;
}

PageBuffer::PageBuffer(size_t size, Place place)
    : block_(std::make_unique<uint8_t[]>(size + 2 * kPage)) {
  const auto address = reinterpret_cast<uintptr_t>(block_.get());
  bytes_ = block_.get() + (kPage - address % kPage) + place;
}

}  // namespace bench
