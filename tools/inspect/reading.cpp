#include "reading.h"

#include <cerrno>
#include <fstream>
#include <stdexcept>
#include <system_error>

namespace {

constexpr std::streamsize kReadSize = 65536;
constexpr std::string_view kOpening = "-----BEGIN ";

}  // namespace

SecretBytes ReadFile(const char* name) {
  // Without a buffer of its own the stream leaves no copy of what the file holds.
  std::ifstream file;
  file.rdbuf()->pubsetbuf(nullptr, 0);
  file.open(name, std::ios::binary);
  SecretBytes content;
  size_t size = 0;
  while (file) {
    content.resize(size + kReadSize);
    file.read(reinterpret_cast<char*>(content.data() + size), kReadSize);
    size += static_cast<size_t>(file.gcount());
  }
  if (!file.eof()) {
    throw std::runtime_error("cannot be read: " + std::generic_category().message(errno));
  }
  content.resize(size);
  return content;
}

std::vector<PemBlock> FindPemBlocks(std::string_view text) {
  std::vector<PemBlock> blocks;
  size_t line = 1;
  for (bool startsLine = true; !text.empty(); text.remove_prefix(1)) {
    if (startsLine && text.starts_with(kOpening)) {
      if (!blocks.empty()) blocks.back().text.remove_suffix(text.size());
      std::string_view label = text.substr(kOpening.size());
      label = label.substr(0, label.find_first_of("\r\n"));
      blocks.push_back({.text = text, .label = label.substr(0, label.find("-----")), .line = line});
    }
    startsLine = text.front() == '\n' || text.front() == '\r';
    if (text.front() == '\n') ++line;
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
