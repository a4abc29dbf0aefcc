// A signature of two numbers, as SM2 and ECDSA make it, as text for a reader.
#ifndef VELKORD_EXAMPLES_SIGNATURE_TEXT_H_
#define VELKORD_EXAMPLES_SIGNATURE_TEXT_H_

#include <string>

#include "readable_text.h"

// Indented lines, each with its line end. Throws std::runtime_error when the DER is none.
std::string SignatureText(velkord::Bytes der);

#endif  // VELKORD_EXAMPLES_SIGNATURE_TEXT_H_
