// A certificate as text for a reader.
#ifndef VELKORD_EXAMPLES_CERTIFICATE_TEXT_H_
#define VELKORD_EXAMPLES_CERTIFICATE_TEXT_H_

#include <string>

#include "certificate_parts.h"

// Indented lines, each with its line end. Throws std::runtime_error naming the step that failed and
// its code.
std::string CertificateText(const CertificateParts& parts);

#endif  // VELKORD_EXAMPLES_CERTIFICATE_TEXT_H_
