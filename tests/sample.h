// The parts of a small certificate.
#ifndef VELKORD_TESTS_SAMPLE_H_
#define VELKORD_TESTS_SAMPLE_H_

#include "hex.h"

inline constexpr char kAlgorithm[] = "30 0D 06 09 2A 86 48 86 F7 0D 01 01 0B 05 00";
inline constexpr char kName[] = "30 0E 31 0C 30 0A 06 03 55 04 03 0C 03 61 62 63";
inline constexpr char kValidity[] = "30 1E 17 0D \"170101000000Z\" 17 0D \"270101000000Z\"";
inline constexpr char kKeyInfo[] =
    "30 1D 30 0D 06 09 2A 86 48 86 F7 0D 01 01 01 05 00 03 0C 00 30 09 02 02 00 C1 02 03 01 00 01";
inline constexpr char kExtensions[] = "30 0E 30 0C 06 03 55 1D 13 01 01 FF 04 02 30 00";

// The seven required elements of the signed part, after a version and a serial number.
inline std::string SampleElements(const std::string& first = "A0 03 02 01 02 02 01 01") {
  std::string elements = first;
  for (const char* element : {kAlgorithm, kName, kValidity, kName, kKeyInfo}) {
    elements += std::string(" ") + element;
  }
  return elements;
}

// One SEQUENCE over elements.
inline NodePtr Sequence(const std::string& elements) {
  Anybuf* node = nullptr;
  EXPECT_EQ(ASN1_WriteSequence(ToNode(elements).get(), &node), 0);
  return NodePtr(node);
}

// The bytes of a node as text.
inline std::string Hex(const NodePtr& node) { return ToHex(node->data, node->dataLen); }

#endif  // VELKORD_TESTS_SAMPLE_H_
