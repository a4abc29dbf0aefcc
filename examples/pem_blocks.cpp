#include "pem_blocks.h"

#include <algorithm>

#include "velkord.hpp"

namespace {

constexpr std::string_view kOpening = "-----BEGIN ";
constexpr std::string_view kDashes = "-----";

// Finds the next line that opens a block.
size_t FindOpening(std::string_view text, size_t from) {
  size_t at = text.find(kOpening, from);
  while (at != std::string_view::npos && at != 0 && text[at - 1] != '\n' && text[at - 1] != '\r') {
    at = text.find(kOpening, at + 1);
  }
  return at;
}

std::string_view Label(std::string_view block) {
  const std::string_view line = block.substr(kOpening.size());
  return line.substr(0, std::min(line.find(kDashes), line.find_first_of("\r\n")));
}

}  // namespace

std::vector<PemBlock> FindPemBlocks(std::string_view text) {
  std::vector<PemBlock> blocks;
  size_t line = 1;
  size_t counted = 0;
  size_t at = FindOpening(text, 0);
  while (at != std::string_view::npos) {
    const std::string_view skipped = text.substr(counted, at - counted);
    line += static_cast<size_t>(std::ranges::count(skipped, '\n'));
    counted = at;
    const size_t next = FindOpening(text, at + 1);
    const std::string_view block = text.substr(at, next - at);
    blocks.push_back({.text = block, .label = Label(block), .line = line});
    at = next;
  }
  return blocks;
}

SecretBytes DecodePem(const PemBlock& block) {
  SecretBytes der(block.text.size() / 4 * 3 + 3);
  uint32_t length = 0;
  velkord::Check(
      PEM2DER_data_format(block.text.data(), velkord::Length(block.text), der.data(), &length),
      "decode the PEM block");
  der.resize(length);
  return der;
}
