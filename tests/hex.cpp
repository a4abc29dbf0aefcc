#include "hex.h"

#include <fstream>
#include <iterator>
#include <sstream>

namespace {

ByteVector Sample(const std::string& place) {
  const size_t colon = place.find(':');
  const std::string path = std::string(VELKORD_DATA "/") + place.substr(0, colon);
  std::ifstream file(path, std::ios::binary);
  EXPECT_TRUE(file.is_open()) << path;
  const std::string content{std::istreambuf_iterator<char>(file), {}};
  if (colon == std::string::npos) return {content.begin(), content.end()};
  const size_t offset = std::stoul(place.substr(colon + 1));
  const size_t size = std::stoul(place.substr(place.rfind(':') + 1));
  EXPECT_LE(offset + size, content.size()) << place;
  const std::string part = content.substr(offset, size);
  return {part.begin(), part.end()};
}

}  // namespace

ByteVector FromHex(const std::string& hex) {
  ByteVector bytes;
  std::istringstream octets(hex);
  for (std::string octet; octets >> octet;) {
    if (octet[0] == '"') {
      bytes.insert(bytes.end(), octet.begin() + 1, octet.end() - 1);
      continue;
    }
    if (octet[0] == '@') {
      const ByteVector sample = Sample(octet.substr(1));
      bytes.insert(bytes.end(), sample.begin(), sample.end());
      continue;
    }
    if (octet.find("..") == 2) {
      const auto last = std::stoul(octet.substr(4), nullptr, 16);
      for (auto byte = std::stoul(octet, nullptr, 16); byte <= last; ++byte) {
        bytes.push_back(static_cast<uint8_t>(byte));
      }
      continue;
    }
    const size_t count = octet.size() > 3 ? std::stoul(octet.substr(3)) : 1;
    bytes.insert(bytes.end(), count, static_cast<uint8_t>(std::stoul(octet, nullptr, 16)));
  }
  // No spare room behind them, where a read past the end would go unseen.
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
  Anybuf* node = nullptr;
  EXPECT_EQ(ASN1_CreateAnybuf(bytes.data(), Size(bytes), 0, &node), 0);
  node->dataType = ReducedTag(bytes);
  return NodePtr(node);
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
  NodePtr node = MakeNode(FromHex(colon == std::string::npos ? text : text.substr(colon + 1)));
  if (colon != std::string::npos) {
    const size_t slash = text.find('/');
    node->dataType = static_cast<uint32_t>(std::stoul(text));
    if (slash < colon) node->unusedBits = static_cast<uint32_t>(std::stoul(text.substr(slash + 1)));
  }
  return node;
}

NodePtr Sequence(const std::string& elements) {
  Anybuf* node = nullptr;
  EXPECT_EQ(ASN1_WriteSequence(ToNode(elements).get(), &node), 0);
  return NodePtr(node);
}

std::string Describe(const Anybuf* chain, bool isShort) {
  ExpectWhole(chain);
  std::string text;
  for (const Anybuf* node = chain; node != nullptr; node = node->next) {
    if (node != chain) text += " | ";
    const bool isPlain = isShort && node->dataLen > 0 && node->unusedBits == 0 &&
                         node->dataType == ReducedTag({node->data, node->dataLen});
    if (!isPlain) text += std::to_string(node->dataType);
    if (node->unusedBits != 0) text.append("/").append(std::to_string(node->unusedBits));
    if (!isPlain) text += ": ";
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

std::vector<std::string> Split(const std::string& text, const std::string& separator) {
  std::vector<std::string> parts;
  size_t at = 0;
  for (size_t end; (end = text.find(separator, at)) != std::string::npos;) {
    parts.push_back(text.substr(at, end - at));
    at = end + separator.size();
  }
  parts.push_back(text.substr(at));
  return parts;
}

bool Buffer::IsUntouched(size_t from) const {
  // All are the first one when each is the one after it.
  const uint8_t* rest = bytes.data() + from;
  return from == bytes.size() || (from < bytes.size() && *rest == kUntouched &&
                                  std::memcmp(rest, rest + 1, bytes.size() - from - 1) == 0);
}

std::string Buffer::Text() const {
  const size_t written = size == kNoSize ? 0 : size;
  EXPECT_TRUE(IsUntouched(written));
  return size == kNoSize ? "kept" : ToHex(bytes.data(), written);
}
