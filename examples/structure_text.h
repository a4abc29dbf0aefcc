// Structures that stand in certificates, lists, requests and keys, as text for a reader. Each
// throws std::runtime_error naming the step that failed and its code.
#ifndef VELKORD_EXAMPLES_STRUCTURE_TEXT_H_
#define VELKORD_EXAMPLES_STRUCTURE_TEXT_H_

#include <ostream>
#include <string>
#include <string_view>

#include "Velkord.h"

std::string NodeObjectId(const Anybuf& node, const char* step);

// `node` may be null, which is a failure of the step.
std::string TimeText(const Anybuf* node, const char* step);

std::string AlgorithmText(const Anybuf& algorithm, const char* step);

std::string KeyAlgorithmText(const Anybuf& keyInfo);

// A line for each attribute.
void PutName(std::ostream& out, const Anybuf& name);

// A line for each extension of a list, behind `indent`.
void PutExtensions(std::ostream& out, const Anybuf& list, std::string_view indent);

#endif  // VELKORD_EXAMPLES_STRUCTURE_TEXT_H_
