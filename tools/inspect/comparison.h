// What was written again, beside what it was read from.
#ifndef VELKORD_TOOLS_INSPECT_COMPARISON_H_
#define VELKORD_TOOLS_INSPECT_COMPARISON_H_

#include <string_view>

#include "velkord.hpp"

bool SameBytes(const Anybuf& written, velkord::Bytes original);

// "identical", or "different" and, where the first element that differs tells it, the reason.
std::string_view Comparison(const Anybuf& written, velkord::Bytes original);

// A SEQUENCE without its first element: the version, which a record and DER may write otherwise.
velkord::NodePtr WithoutFirst(const Anybuf& sequence);

#endif  // VELKORD_TOOLS_INSPECT_COMPARISON_H_
