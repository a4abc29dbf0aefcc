// Shows the certificates of PEM and DER files, and puts each together again from its decoded parts
// to see whether the same bytes come back.
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "certificate_parts.h"
#include "certificate_text.h"
#include "result_codes.h"

namespace {

constexpr std::string_view kUsage =
    "usage: inspect FILE...\n"
    "Shows every certificate of each file, PEM or DER, and whether it was rebuilt from its\n"
    "decoded parts to the same bytes. The exit status is 0 when all were.\n";

constexpr std::string_view kOpening = "-----BEGIN ";
constexpr std::string_view kDashes = "-----";
constexpr char kSequenceOctet = 0x30;

struct Tally {
  size_t certificates = 0;
  size_t read = 0;
  size_t identical = 0;
  bool anyError = false;

  bool AllWell() const { return !anyError && read == certificates && identical == certificates; }
};

void Report(Tally& tally, std::string_view place, std::string_view problem) {
  std::cerr << place << ": " << problem << '\n';
  tally.anyError = true;
}

Bytes AsBytes(std::string_view text) {
  return Bytes(reinterpret_cast<const uint8_t*>(text.data()), text.size());
}

std::string ReadFile(const char* name) {
  const auto fail = [] {
    throw std::runtime_error("cannot be read: " + std::generic_category().message(errno));
  };
  const auto close = [](std::FILE* file) { std::fclose(file); };
  const std::unique_ptr<std::FILE, decltype(close)> file(std::fopen(name, "rb"));
  if (file == nullptr) fail();
  std::string content;
  char block[65536];
  while (const size_t size = std::fread(block, 1, sizeof block, file.get())) {
    content.append(block, size);
  }
  if (std::ferror(file.get()) != 0) fail();
  return content;
}

std::vector<uint8_t> DecodePem(std::string_view block) {
  std::vector<uint8_t> der(block.size() / 4 * 3 + 3);
  uint32_t length = 0;
  Check(PEM2DER_data_format(block.data(), Length32(block.size()), der.data(), &length),
        "decode the PEM block");
  der.resize(length);
  return der;
}

void InspectDer(Bytes der, std::string_view place, Tally& tally) {
  const CertificateParts parts = ReadCertificateParts(der);
  const std::string text = CertificateText(parts);
  ++tally.read;
  std::cout << place << '\n' << text;

  const NodePtr rebuilt = RebuildCertificate(parts);
  const bool identical = std::ranges::equal(Bytes(rebuilt->data, rebuilt->dataLen), der);
  if (identical) ++tally.identical;
  std::cout << "  rebuilt: " << (identical ? "identical" : "different") << "\n\n";
}

// `giveDer` hands out the certificate's bytes, or throws.
template <typename GiveDer>
void InspectCertificate(std::string_view place, Tally& tally, GiveDer giveDer) {
  ++tally.certificates;
  try {
    InspectDer(giveDer(), place, tally);
  } catch (const std::exception& error) {
    Report(tally, place, error.what());
  }
}

// Finds the next line that opens a PEM block.
size_t FindOpening(std::string_view text, size_t from) {
  size_t at = text.find(kOpening, from);
  while (at != std::string_view::npos && at != 0 && text[at - 1] != '\n' && text[at - 1] != '\r') {
    at = text.find(kOpening, at + 1);
  }
  return at;
}

// What stands between the dashes of an opening line that `block` starts with.
std::string_view Label(std::string_view block) {
  const std::string_view line = block.substr(kOpening.size());
  return line.substr(0, std::min(line.find(kDashes), line.find_first_of("\r\n")));
}

void InspectBlock(std::string_view block, const std::string& place, Tally& tally) {
  const std::string_view label = Label(block);
  if (label != "CERTIFICATE") {
    Report(tally, place, "no certificate: its label is \"" + EscapedText(AsBytes(label)) + '"');
    return;
  }
  InspectCertificate(place, tally, [block] { return DecodePem(block); });
}

// The place of a block is its number and the line that it starts on.
void InspectPem(std::string_view text, const std::string& name, Tally& tally) {
  size_t number = 0;
  size_t line = 1;
  size_t counted = 0;
  size_t at = FindOpening(text, 0);
  while (at != std::string_view::npos) {
    const std::string_view skipped = text.substr(counted, at - counted);
    line += static_cast<size_t>(std::ranges::count(skipped, '\n'));
    counted = at;
    ++number;
    const size_t next = FindOpening(text, at + 1);
    InspectBlock(text.substr(at, next - at),
                 name + ": block " + std::to_string(number) + ", line " + std::to_string(line),
                 tally);
    at = next;
  }
}

void InspectFile(const char* name, Tally& tally) {
  std::string content;
  try {
    content = ReadFile(name);
  } catch (const std::exception& error) {
    Report(tally, name, error.what());
    return;
  }
  const size_t before = tally.certificates;
  if (FindOpening(content, 0) != std::string::npos) {
    InspectPem(content, name, tally);
  } else if (content.starts_with(kSequenceOctet)) {
    InspectCertificate(std::string(name) + ": block 1, byte 0", tally,
                       [&content] { return AsBytes(content); });
  }
  if (tally.certificates == before) Report(tally, name, "no certificate in this file");
}

void PutCount(size_t count, std::string_view noun) {
  std::cout << count << ' ' << noun << (count == 1 ? "" : "s");
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 2 && std::string_view(argv[1]) == "--help") {
    std::cout << kUsage;
    return 0;
  }
  if (argc < 2) {
    std::cerr << kUsage;
    return 2;
  }
  Tally tally;
  for (int i = 1; i < argc; ++i) InspectFile(argv[i], tally);
  PutCount(tally.certificates, "certificate");
  std::cout << " in ";
  PutCount(static_cast<size_t>(argc - 1), "file");
  std::cout << ": " << tally.read << " read, " << tally.identical << " rebuilt identical\n";
  std::cout.flush();
  if (!std::cout) Report(tally, "standard output", "cannot be written");
  return tally.AllWell() ? 0 : 1;
}
