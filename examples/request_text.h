// A PKCS#10 certification request as text for a reader.
#ifndef VELKORD_EXAMPLES_REQUEST_TEXT_H_
#define VELKORD_EXAMPLES_REQUEST_TEXT_H_

#include <string>

#include "request_parts.h"

// Indented lines, each with its line end. Throws std::runtime_error naming the step that failed and
// its code.
std::string RequestText(const RequestParts& parts);

#endif  // VELKORD_EXAMPLES_REQUEST_TEXT_H_
