// A PKCS#7 message as text for a reader.
#ifndef VELKORD_EXAMPLES_MESSAGE_TEXT_H_
#define VELKORD_EXAMPLES_MESSAGE_TEXT_H_

#include <string>

#include "readable_text.h"

// Indented lines, each with its line end. Throws std::runtime_error naming the step that failed and
// its code.
std::string MessageText(velkord::Bytes der);

#endif  // VELKORD_EXAMPLES_MESSAGE_TEXT_H_
