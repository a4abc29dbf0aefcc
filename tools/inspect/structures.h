// Structures that stand in certificates, lists, requests and keys, read and shown. Each function
// throws std::runtime_error naming the step that failed and its code.
#ifndef VELKORD_TOOLS_INSPECT_STRUCTURES_H_
#define VELKORD_TOOLS_INSPECT_STRUCTURES_H_

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "velkord.hpp"

// Reduced tags.
inline constexpr uint32_t kIntegerTag = 2;
inline constexpr uint32_t kSequenceTag = 16;
inline constexpr uint32_t kUtcTimeTag = 23;
inline constexpr uint32_t kGeneralizedTimeTag = 24;

// The content of a TLV node: of a BIT STRING without its unused-bits octet, of an INTEGER without
// the zero octet that only keeps it positive.
std::vector<uint8_t> Content(const Anybuf& node, const char* step);

// A TLV node over a whole element.
velkord::NodePtr Element(velkord::Bytes der, const char* step);

// The chain of a SEQUENCE of at least two elements.
velkord::NodePtr SplitPair(const Anybuf& sequence, const char* step);

// The text of an OBJECT IDENTIFIER node, as ObjectIdText writes it.
std::string IdText(const Anybuf& node, const char* step);

// In UTC; a text that is not that of a time comes as it is, with a remark.
std::string TimeText(const Anybuf& node, const char* step);

// What a version's INTEGER stands for.
uint64_t Version(const Anybuf& number);

std::string AlgorithmText(const Anybuf& algorithm);

std::string KeyAlgorithmText(const Anybuf& keyInfo);

// A line for each attribute.
void PutName(std::ostream& out, const Anybuf& name);

struct Extension {
  std::string id;
  bool isCritical = false;
  std::vector<uint8_t> value;
};

std::vector<Extension> ReadExtensions(const Anybuf& list);

// A line for each extension, after `indent`.
void PutExtensions(std::ostream& out, const std::vector<Extension>& list, std::string_view indent);

#endif  // VELKORD_TOOLS_INSPECT_STRUCTURES_H_
