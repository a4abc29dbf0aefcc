// Calls of the library's functions by name, with arguments and results as text. A name may be that
// of a record, which is made, set and written: `Certificate TbsCertificate=30 00; ...`. A setter
// goes by the end of its name; `field=number` and `field=unset` change a field itself.
#ifndef VELKORD_TESTS_CALLS_H_
#define VELKORD_TESTS_CALLS_H_

#include "functions.h"
#include "hex.h"

using Arguments = std::vector<std::string>;

// Calls that need more than an Invocation.
std::string Append(const Function& function, const Arguments& in);
std::string ListSubject(const Arguments& in);
std::string LookUp(const Arguments& in);

// An inspection record over a subject and extensions.
using InspectionPtr = std::unique_ptr<X509Cert, FreeWith<X509CertFree>>;
InspectionPtr Inspect(NodePtr subject, NodePtr extensions);
std::string SubjectEntries(const X509Cert& record);

// The results of a call, after its code when that is not 0. Where nothing was written, the code, or
// `kept` for 0 from a function with out arguments.
std::string Call(const std::string& name, const Arguments& arguments);

// On the record that the function works on.
std::string Call(const Function& function, const Arguments& arguments, void* subject);

#endif  // VELKORD_TESTS_CALLS_H_
