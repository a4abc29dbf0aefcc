// Shows what PEM and DER files hold, each block by its kind, and writes signed structures again
// from their decoded records to see whether the same bytes come back.
#include <algorithm>
#include <iostream>
#include <limits>
#include <sstream>
#include <string>

#include "command_line.h"
#include "comparison.h"
#include "kind.h"
#include "reading.h"
#include "text.h"

using velkord::Bytes, velkord::NodePtr, velkord::View;

namespace {

constexpr std::string_view kUsage =
    "usage: inspect FILE...\n"
    "       inspect --help | --version\n"
    "Tells what each PEM block or DER file holds and shows it: certificate, revocation list,\n"
    "PKCS#10 request, PKCS#7 message, key or signature; the file - is standard input. Private\n"
    "values are not shown. What is signed is written again from its decoded records, lists and\n"
    "requests around their signed part as it was; a line tells whether its own record gives the\n"
    "same bytes. The exit status is 0 when all blocks were read and all that was written came\n"
    "back as the same bytes, 1 when not, 2 when the options are wrong.\n";

constexpr uint8_t kSequenceOctet = 0x30;

struct Tally {
  size_t blocks = 0;
  size_t read = 0;
  size_t rebuilt = 0;
  size_t identical = 0;
  bool anyError = false;
};

void Report(Tally& tally, std::string_view place, std::string_view problem) {
  std::cerr << place << ": " << problem << '\n';
  tally.anyError = true;
}

// The kind is told by the content; a label that does not go with it is worth a remark and no more.
// A file of DER has none.
void InspectDer(Bytes der, std::string_view place, std::string_view label, Tally& tally) {
  const Kind& kind = KindOf(der, label);
  if (kind.show == nullptr) {
    throw std::runtime_error(std::string(kind.name) + ", which is not read");
  }
  std::ostringstream text;
  const NodePtr rebuilt = kind.show(der, text);
  ++tally.read;
  std::cout << place << ": " << kind.name << '\n' << text.str();
  if (rebuilt != nullptr) {
    ++tally.rebuilt;
    if (SameBytes(*rebuilt, der)) ++tally.identical;
    std::cout << "  rebuilt: " << Comparison(*rebuilt, der) << '\n';
  }
  if (!label.empty() && std::ranges::find(kind.labels, label) == std::end(kind.labels)) {
    std::cout << "  remark: its label is \"" << EscapedText(View(label)) << "\"\n";
  }
  std::cout << '\n';
}

void InspectBlock(const PemBlock& block, const std::string& name, Tally& tally) {
  const std::string place = name + ", line " + std::to_string(block.line);
  ++tally.blocks;
  try {
    InspectDer(DecodePem(block), place, block.label, tally);
  } catch (const std::exception& error) {
    Report(tally, place, error.what());
  }
}

void InspectFile(const std::string& name, Tally& tally) {
  try {
    const SecretBytes content = ReadFile(name);
    const auto blocks =
        FindPemBlocks({reinterpret_cast<const char*>(content.data()), content.size()});
    size_t number = 0;
    for (const PemBlock& block : blocks) {
      InspectBlock(block, name + ": block " + std::to_string(++number), tally);
    }
    if (!blocks.empty()) return;
    if (content.empty() || content.front() != kSequenceOctet) {
      throw std::runtime_error("neither a PEM block nor a DER structure in this file");
    }
    ++tally.blocks;
    InspectDer(content, name + ": block 1, byte 0", {}, tally);
  } catch (const std::exception& error) {
    Report(tally, name, error.what());
  }
}

std::string Count(size_t count, const std::string& noun) {
  return std::to_string(count) + ' ' + noun + (count == 1 ? "" : "s");
}

int Inspect(std::span<char*> names) {
  Tally tally;
  for (const char* name : names) InspectFile(name, tally);
  std::cout << Count(tally.blocks, "block") << " in " << Count(names.size(), "file") << ": "
            << tally.read << " read, " << tally.identical << " of " << tally.rebuilt
            << " rebuilt identical\n"
            << std::flush;
  if (!std::cout) Report(tally, "standard output", "cannot be written");
  return !tally.anyError && tally.identical == tally.rebuilt ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  return RunCommand(argc, argv, kUsage, 1, std::numeric_limits<size_t>::max(), Inspect);
}
