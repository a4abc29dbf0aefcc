#include "signature_text.h"

#include <system_error>
#include <vector>

#include "velkord.hpp"

using velkord::Bytes, velkord::Errc, velkord::Length;

std::string SignatureText(Bytes der) {
  // The decoder reports nothing: a length that stays 0 tells that there was no signature to read.
  uint32_t rLength = 0;
  uint32_t sLength = 0;
  std::vector<uint8_t> r(der.size());
  std::vector<uint8_t> s(der.size());
  ASN1_SM2_SM2SignatureDecode(r.data(), &rLength, s.data(), &sLength, der.data(), Length(der));
  if (rLength == 0 || sLength == 0) throw std::system_error(Errc::kFailure, "read the signature");
  return "  r: " + HexText(Bytes(r).first(rLength)) + "\n  s: " + HexText(Bytes(s).first(sLength)) +
         '\n';
}
