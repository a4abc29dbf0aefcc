// Object identifiers as text.
#ifndef VELKORD_EXAMPLES_OBJECT_IDS_H_
#define VELKORD_EXAMPLES_OBJECT_IDS_H_

#include <string>

#include "readable_text.h"

// The dotted form of content octets, followed by the usual name of a well-known identifier. Octets
// that are none, or with an arc of more than 64 bits, come in hex.
std::string ObjectIdText(Bytes octets);

#endif  // VELKORD_EXAMPLES_OBJECT_IDS_H_
