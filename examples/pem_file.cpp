#include "pem_file.h"

#include <cerrno>
#include <fstream>
#include <stdexcept>
#include <system_error>

#include "velkord.hpp"

namespace {

std::string PemText(const std::string& label, const Anybuf& der) {
  const std::string header = "-----BEGIN " + label + "-----";
  const std::string footer = "-----END " + label + "-----";
  const size_t base64Size = (size_t{der.dataLen} + 2) / 3 * 4;
  const size_t lineEnds = (base64Size + 63) / 64 + 2;
  std::string text(base64Size + 2 * lineEnds + header.size() + footer.size() + 1, '\0');
  uint32_t length = 0;
  velkord::Check(DER2PEM_data_format(der.data, der.dataLen, text.data(), &length, header.c_str(),
                                     footer.c_str()),
                 "write the PEM text");
  text.resize(length);
  return text;
}

}  // namespace

void WritePemFile(const std::string& path, const std::string& label, const Anybuf& der) {
  std::ofstream file(path, std::ios::binary);
  file << PemText(label, der);
  file.close();
  if (!file) {
    throw std::runtime_error(path +
                             ": cannot be written: " + std::generic_category().message(errno));
  }
}
