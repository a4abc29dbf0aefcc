// Shows what PEM and DER files hold, each block by its kind, and puts signed structures together
// again from their decoded parts to see whether the same bytes come back.
#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <iostream>
#include <limits>
#include <memory>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "certificate_parts.h"
#include "certificate_text.h"
#include "command_line.h"
#include "key_text.h"
#include "kind.h"
#include "list_parts.h"
#include "list_text.h"
#include "message_text.h"
#include "pem_blocks.h"
#include "request_parts.h"
#include "request_text.h"
#include "secret.h"
#include "signature_text.h"
#include "utc.h"
#include "velkord.hpp"

using velkord::Bytes, velkord::NodePtr, velkord::View;

namespace {

constexpr std::string_view kUsage =
    "usage: inspect FILE...\n"
    "Tells what each PEM block or DER file holds and shows it: certificate, revocation list,\n"
    "PKCS#10 request, PKCS#7 message, key or signature. Private values are not shown. What is\n"
    "signed is put together again from its decoded parts. The exit status is 0 when all blocks\n"
    "were read and all that was signed came back as the same bytes.\n";

constexpr uint8_t kSequenceOctet = 0x30;
constexpr size_t kReadSize = 65536;

struct Tally {
  std::array<size_t, std::size(kKindNames)> kinds{};
  size_t blocks = 0;
  size_t read = 0;
  size_t rebuilt = 0;
  size_t identical = 0;
  bool anyError = false;

  bool AllWell() const { return !anyError && read == blocks && identical == rebuilt; }
};

// What a block shows, and for what was signed its bytes put together again.
struct Reading {
  std::string text;
  NodePtr rebuilt;
};

void Report(Tally& tally, std::string_view place, std::string_view problem) {
  std::cerr << place << ": " << problem << '\n';
  tally.anyError = true;
}

// Without a buffer of its own the file leaves no copy of what it held.
SecretBytes ReadFile(const char* name) {
  const auto fail = [] {
    throw std::runtime_error("cannot be read: " + std::generic_category().message(errno));
  };
  const auto close = [](std::FILE* file) { static_cast<void>(std::fclose(file)); };
  const std::unique_ptr<std::FILE, decltype(close)> file(std::fopen(name, "rb"));
  if (file == nullptr || std::setvbuf(file.get(), nullptr, _IONBF, 0) != 0) fail();
  SecretBytes content;
  size_t size = 0;
  size_t added = 0;
  do {
    content.resize(size + kReadSize);
    added = std::fread(content.data() + size, 1, kReadSize, file.get());
    size += added;
  } while (added != 0);
  if (std::ferror(file.get()) != 0) fail();
  content.resize(size);
  return content;
}

Reading Read(Kind kind, Bytes der) {
  switch (kind) {
    case Kind::kCertificate: {
      const CertificateParts parts = ReadCertificateParts(der);
      return {CertificateText(parts), RebuildCertificate(parts)};
    }
    case Kind::kRevocationList: {
      const ListParts parts = ReadListParts(der);
      return {ListText(parts), RebuildList(parts)};
    }
    case Kind::kRequest: {
      const RequestParts parts = ReadRequestParts(der);
      return {RequestText(parts), RebuildRequest(parts)};
    }
    case Kind::kMessage:
      return {MessageText(der), nullptr};
    case Kind::kRsaPublicKey:
      return {RsaPublicKeyText(der), nullptr};
    case Kind::kRsaPrivateKey:
      return {RsaPrivateKeyText(der), nullptr};
    case Kind::kPublicKeyInfo:
      return {PublicKeyInfoText(der), nullptr};
    case Kind::kPrivateKeyInfo:
      return {PrivateKeyInfoText(der), nullptr};
    case Kind::kSignature:
      return {SignatureText(der), nullptr};
  }
  throw std::logic_error("a kind that is not read");
}

void PutRebuilt(const Anybuf& rebuilt, Bytes der, Tally& tally) {
  ++tally.rebuilt;
  const bool identical = std::ranges::equal(View(rebuilt), der);
  if (identical) ++tally.identical;
  std::cout << "  rebuilt: " << (identical ? "identical" : "different") << '\n';
}

// The kind is told by the content; a label that does not go with it is worth a remark and no more.
void InspectDer(Bytes der, std::string_view place, std::optional<std::string_view> label,
                Tally& tally) {
  const Kind kind = KindOf(der);
  ++tally.kinds[static_cast<size_t>(kind)];
  const Reading reading = Read(kind, der);
  ++tally.read;
  std::cout << place << ": " << KindName(kind) << '\n' << reading.text;
  if (reading.rebuilt != nullptr) PutRebuilt(*reading.rebuilt, der, tally);
  if (label.has_value() && !IsUsualLabel(kind, *label)) {
    std::cout << "  remark: its label is \"" << EscapedText(View(*label)) << "\"\n";
  }
  std::cout << '\n';
}

void InspectPem(std::span<const PemBlock> blocks, const std::string& name, Tally& tally) {
  size_t number = 0;
  for (const PemBlock& block : blocks) {
    const std::string place =
        name + ": block " + std::to_string(++number) + ", line " + std::to_string(block.line);
    ++tally.blocks;
    try {
      InspectDer(DecodePem(block), place, block.label, tally);
    } catch (const std::exception& error) {
      Report(tally, place, error.what());
    }
  }
}

void InspectFile(const char* name, Tally& tally) {
  try {
    const SecretBytes content = ReadFile(name);
    const std::string_view text(reinterpret_cast<const char*>(content.data()), content.size());
    const std::vector<PemBlock> blocks = FindPemBlocks(text);
    if (!blocks.empty()) {
      InspectPem(blocks, name, tally);
    } else if (!content.empty() && content.front() == kSequenceOctet) {
      ++tally.blocks;
      InspectDer(content, std::string(name) + ": block 1, byte 0", std::nullopt, tally);
    } else {
      Report(tally, name, "neither a PEM block nor a DER structure in this file");
    }
  } catch (const std::exception& error) {
    Report(tally, name, error.what());
  }
}

void PutCount(size_t count, std::string_view noun) {
  std::cout << count << ' ' << noun << (count == 1 ? "" : "s");
}

void PutSummary(const Tally& tally, size_t files) {
  PutCount(tally.blocks, "block");
  std::cout << " in ";
  PutCount(files, "file");
  const char* separator = " (";
  size_t ofKnownKind = 0;
  for (size_t kind = 0; kind < tally.kinds.size(); ++kind) {
    if (tally.kinds[kind] == 0) continue;
    ofKnownKind += tally.kinds[kind];
    std::cout << separator;
    PutCount(tally.kinds[kind], kKindNames[kind]);
    separator = ", ";
  }
  if (ofKnownKind != tally.blocks) {
    std::cout << separator << tally.blocks - ofKnownKind << " of no known kind";
  }
  if (tally.blocks != 0) std::cout << ')';
  std::cout << ": " << tally.read << " read, " << tally.identical << " of " << tally.rebuilt
            << " rebuilt identical\n";
}

int Inspect(std::span<char*> names) {
  UseUtc();
  Tally tally;
  for (const char* name : names) InspectFile(name, tally);
  PutSummary(tally, names.size());
  std::cout.flush();
  if (!std::cout) Report(tally, "standard output", "cannot be written");
  return tally.AllWell() ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  return RunCommand(argc, argv, kUsage, 1, std::numeric_limits<size_t>::max(), Inspect);
}
