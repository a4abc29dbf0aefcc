#include "inputs.h"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <iterator>

#include "cases.h"
#include "velkord.hpp"

namespace bench {

namespace {

using namespace std::string_literals;

constexpr size_t kPage = 4096;

std::vector<Der> ReadBundle() {
  constexpr char kHeader[] = "-----BEGIN CERTIFICATE-----";
  std::ifstream file("/etc/ssl/certs/ca-certificates.crt", std::ios::binary);
  const std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  std::vector<Der> certificates;
  for (size_t at = text.find(kHeader); at != std::string::npos;) {
    const size_t next = text.find(kHeader, at + 1);
    const std::string block = text.substr(at, next - at);
    Der& der = certificates.emplace_back(block.size());
    uint32_t length = 0;
    velkord::Check(PEM2DER_data_format(block.data(), velkord::Length(block), der.data(), &length),
                   "decode the bundle of certificates");
    der.resize(length);
    at = next;
  }
  Require(!certificates.empty(), "there is no bundle of certificates");
  return certificates;
}

Der FindMedian(std::vector<Der> certificates) {
  const auto median = certificates.begin() + static_cast<ptrdiff_t>(certificates.size() / 2);
  std::ranges::nth_element(certificates, median, {}, &Der::size);
  return *median;
}

std::string MakeElement(char tag, const std::string& content) {
  std::string length;
  for (size_t left = content.size(); left != 0; left >>= 8) {
    length.insert(length.begin(), static_cast<char>(left));
  }
  if (content.size() >= 0x80) {
    length.insert(length.begin(), static_cast<char>(0x80 | length.size()));
  }
  return tag + length + content;
}

std::string Sequence(const std::string& content) { return MakeElement(0x30, content); }

std::string UtcTime(const std::string& text) { return MakeElement(0x17, text); }

// The date of an entry. It is at daytime, when no zone changes its clocks.
std::string RandomDate(Random& random) {
  constexpr struct {
    uint32_t first;
    uint32_t values;
  } kFields[] = {{20, 6}, {1, 12}, {1, 28}, {8, 10}, {0, 60}, {0, 60}};
  std::string text;
  for (const auto& field : kFields) {
    text += std::to_string(100 + field.first + random.Next(field.values)).substr(1);
  }
  return UtcTime(text + "Z");
}

std::string Entries(size_t count) {
  const std::string keyCompromise =
      Sequence(Sequence(MakeElement(6, "\x55\x1D\x15"s) + MakeElement(4, "\x0A\1\1"s)));
  Random random(2);
  std::string entries;
  for (size_t at = 0; at < count; ++at) {
    std::string serialNumber = random.Bytes(16);
    // Neither a zero in front nor an octet to keep it positive.
    serialNumber[0] = static_cast<char>(1 + random.Next(0x7F));
    const std::string date = RandomDate(random);
    entries += Sequence(MakeElement(2, serialNumber) + date + (at % 10 == 0 ? keyCompromise : ""));
  }
  return Sequence(entries);
}

Der ToDer(const std::string& bytes) { return Der(bytes.begin(), bytes.end()); }

}  // namespace

const std::vector<Der>& BundledCertificates() {
  static const auto kCertificates = ReadBundle();
  return kCertificates;
}

const Der& MedianCertificate() {
  static const auto kCertificate = FindMedian(BundledCertificates());
  return kCertificate;
}

Der RevokedCertificates(size_t entries) { return ToDer(Entries(entries)); }

Der RevocationList(size_t entries) {
  const std::string version2 = MakeElement(2, "\1"s);
  const std::string sha256WithRsaEncryption =
      Sequence(MakeElement(6, "\x2A\x86\x48\x86\xF7\x0D\1\1\x0B"s) + "\5\0"s);
  const std::string commonName =
      Sequence(MakeElement(6, "\x55\4\3"s) + MakeElement(0x0C, "Velkord Bench"s));
  const std::string tbs =
      Sequence(version2 + sha256WithRsaEncryption + Sequence(MakeElement(0x31, commonName)) +
               UtcTime("260101120000Z") + UtcTime("260131120000Z") + Entries(entries));
  const std::string signature = MakeElement(3, std::string(1 + 256, '\0'));
  return ToDer(Sequence(tbs + sha256WithRsaEncryption + signature));
}

std::string Random::Bytes(size_t size) {
  std::string bytes(size, '\0');
  for (char& octet : bytes) octet = static_cast<char>(Next(0x100));
  return bytes;
}

PageBuffer::PageBuffer(const std::string& content) : PageBuffer(content.size(), 0) {
  std::memcpy(data_, content.data(), content.size());
}

PageBuffer::PageBuffer(size_t room) : PageBuffer(room, kPage / 2) {}

PageBuffer::PageBuffer(size_t size, size_t place)
    : block_(new uint8_t[size + 2 * kPage]()),
      data_(block_.get() + (kPage - reinterpret_cast<uintptr_t>(block_.get()) % kPage) + place),
      size_(static_cast<uint32_t>(size)) {}

void AddCopy(const std::string& name, size_t items, const PageBuffer& result,
             const PageBuffer& out) {
  Add(name, "limit", items, [=] { std::memcpy(out.Data(), result.Data(), result.Size()); });
}

}  // namespace bench
