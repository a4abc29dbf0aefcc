#include "hex.h"

#include <cstring>
#include <fstream>
#include <iterator>
#include <sstream>

namespace {

std::string Sample(const std::string& place) {
  const std::vector<std::string> parts = Split(place, ":");
  std::ifstream file(VELKORD_DATA "/" + parts[0], std::ios::binary);
  EXPECT_TRUE(file.is_open()) << place;
  const std::string content{std::istreambuf_iterator<char>(file), {}};
  if (parts.size() == 1) return content;
  const std::string part = content.substr(std::stoul(parts[1]), std::stoul(parts[2]));
  EXPECT_EQ(part.size(), std::stoul(parts[2])) << place;
  return part;
}

}  // namespace

ByteVector FromHex(const std::string& hex) {
  ByteVector bytes;
  std::istringstream octets(hex);
  for (std::string octet; octets >> octet;) {
    if (octet[0] == '"') {
      bytes.insert(bytes.end(), octet.begin() + 1, octet.end() - 1);
    } else if (octet[0] == '@') {
      const std::string sample = Sample(octet.substr(1));
      bytes.insert(bytes.end(), sample.begin(), sample.end());
    } else if (octet[0] == '#') {
      uint8_t number[4];
      const auto value = static_cast<uint32_t>(std::stoul(octet.substr(1)));
      std::memcpy(number, &value, sizeof(number));
      bytes.insert(bytes.end(), number, number + sizeof(number));
    } else {
      const size_t count = octet.size() > 3 ? std::stoul(octet.substr(3)) : 1;
      bytes.insert(bytes.end(), count, static_cast<uint8_t>(std::stoul(octet, nullptr, 16)));
    }
  }
  // No spare room after them, where a read past the end would go unseen.
  bytes.shrink_to_fit();
  return bytes;
}

std::string ToHex(const uint8_t* bytes, size_t size) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  std::string hex;
  for (size_t at = 0; at < size; ++at) {
    if (at != 0) hex += ' ';
    hex += kDigits[bytes[at] >> 4];
    hex += kDigits[bytes[at] & 15];
  }
  return hex;
}

uint32_t ReducedTag(std::span<const uint8_t> bytes) {
  if (bytes.empty()) return 0;
  return bytes[0] < 0x80 ? bytes[0] & 0x1F : bytes[0];
}

NodePtr MakeNode(const ByteVector& bytes) {
  NodePtr node = Make(ASN1_CreateAnybuf, bytes.data(), Size(bytes), uint8_t{0});
  node->dataType = ReducedTag(bytes);
  return node;
}

NodePtr ToNode(const std::string& text) {
  if (text == "none") return nullptr;
  if (const size_t bar = text.find(" | "); bar != std::string::npos) {
    NodePtr head = ToNode(text.substr(0, bar));
    head->next = ToNode(text.substr(bar + 3)).release();
    head->next->prev = head.get();
    return head;
  }
  const size_t colon = text.find(": ");
  if (colon == std::string::npos) return MakeNode(FromHex(text));
  NodePtr node = MakeNode(FromHex(text.substr(colon + 1)));
  node->dataType = static_cast<uint32_t>(std::stoul(text));
  const size_t slash = text.find('/');
  if (slash < colon) node->unusedBits = static_cast<uint32_t>(std::stoul(text.substr(slash + 1)));
  return node;
}

NodePtr Sequence(const std::string& elements) {
  return Make(ASN1_WriteSequence, ToNode(elements).get());
}

std::string Describe(const Anybuf* chain) {
  ExpectWhole(chain);
  std::string text;
  for (const Anybuf* node = chain; node != nullptr; node = node->next) {
    if (node != chain) text += " | ";
    const std::string type = std::to_string(node->dataType);
    if (node->unusedBits != 0) {
      text += type + "/" + std::to_string(node->unusedBits) + ": ";
    } else if (node->dataLen == 0 || node->dataType != ReducedTag({node->data, node->dataLen})) {
      text += type + ": ";
    }
    text += ToHex(node->data, node->dataLen);
  }
  return chain == nullptr ? "none" : text;
}

void ExpectWhole(const Anybuf* chain) {
  const Anybuf* last = nullptr;
  for (const Anybuf* node = chain; node != nullptr; last = node, node = node->next) {
    EXPECT_EQ(node->memKind, 2U);
    EXPECT_EQ(node->prev, last);
  }
}

std::vector<std::string> Split(std::string text, const std::string& separator) {
  std::vector<std::string> parts;
  for (size_t end; (end = text.find(separator)) != std::string::npos;) {
    parts.push_back(text.substr(0, end));
    text.erase(0, end + separator.size());
  }
  parts.push_back(text);
  return parts;
}

bool Buffer::IsUntouched(size_t from) const {
  // All are the first one when each is the one after it.
  const uint8_t* rest = bytes.data() + from;
  return from == bytes.size() || (from < bytes.size() && *rest == kUntouched &&
                                  std::memcmp(rest, rest + 1, bytes.size() - from - 1) == 0);
}
