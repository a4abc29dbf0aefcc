// Calls of the library's functions by name, with arguments and results as text.
#ifndef VELKORD_TESTS_CALLS_H_
#define VELKORD_TESTS_CALLS_H_

#include <map>

#include "invocation.h"

using Callers = std::map<std::string, std::function<std::string(const Arguments&)>>;

extern const Callers kInspectionCallers;
extern const Callers kRecordCallers;

// The decoder of a SEQUENCE's bytes, which the library has for a node.
int32_t DecodeTbsCertificate(const uint8_t* bytes, uint32_t length, TBSCertificate** out);

// An inspection record over a subject and extensions.
using InspectionPtr = std::unique_ptr<X509Cert, FreeWith<X509CertFree>>;
InspectionPtr Inspect(NodePtr subject, NodePtr extensions);

// The results of a call, or its code. Nodes and bytes are written as in `hex.h`, text as it stands
// and numbers in decimal or with 0x.
std::string Call(const std::string& function, const Arguments& arguments);

#endif  // VELKORD_TESTS_CALLS_H_
