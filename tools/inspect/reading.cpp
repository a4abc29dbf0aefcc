#include "reading.h"

#include <stdio.h>

#include <cerrno>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <system_error>

namespace {

constexpr std::streamsize kReadSize = 65536;
constexpr std::string_view kOpening = "-----BEGIN ";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

}  // namespace

SecretBytes ReadFile(const std::string& name) {
  // Without a buffer of its own a stream leaves no copy of what the file holds.
  std::ifstream opened;
  opened.rdbuf()->pubsetbuf(nullptr, 0);
  const bool isStandardInput = name == "-";
  if (isStandardInput) {
    (void)setvbuf(stdin, nullptr, _IONBF, 0);
  } else {
    opened.open(name, std::ios::binary);
  }
  std::istream& file = isStandardInput ? std::cin : opened;
  SecretBytes content;
  size_t size = 0;
  while (file) {
    content.resize(size + kReadSize);
    file.read(reinterpret_cast<char*>(content.data() + size), kReadSize);
    size += static_cast<size_t>(file.gcount());
  }
  if (!file.eof() || (isStandardInput && ferror(stdin) != 0)) {
    throw std::runtime_error("cannot be read: " + std::generic_category().message(errno));
  }
  content.resize(size);
  return content;
}

std::vector<PemBlock> FindPemBlocks(std::string_view text) {
  std::vector<PemBlock> blocks;
  size_t line = 1;
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
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
  if (block.text.find("Proc-Type: 4,ENCRYPTED") != std::string_view::npos) {
    throw std::runtime_error("encrypted PEM block, which is not read");
  }
  SecretBytes der(block.text.size() / 4 * 3 + 3);
  uint32_t length = 0;
  velkord::Check(
      PEM2DER_data_format(block.text.data(), velkord::Length(block.text), der.data(), &length),
      "decode the PEM block");
  der.resize(length);
  return der;
}
