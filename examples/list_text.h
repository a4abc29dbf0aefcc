// A revocation list as text for a reader.
#ifndef VELKORD_EXAMPLES_LIST_TEXT_H_
#define VELKORD_EXAMPLES_LIST_TEXT_H_

#include <string>

#include "list_parts.h"

// Indented lines, each with its line end. Throws std::runtime_error naming the step that failed and
// its code.
std::string ListText(const ListParts& parts);

#endif  // VELKORD_EXAMPLES_LIST_TEXT_H_
