// A PKCS#10 certification request taken apart, and put together again.
#ifndef VELKORD_EXAMPLES_REQUEST_PARTS_H_
#define VELKORD_EXAMPLES_REQUEST_PARTS_H_

#include "readable_text.h"
#include "velkord.hpp"

struct RequestParts {
  velkord::Handle<PKCS10Request> request;
  velkord::Handle<PKCS10> info;
  uint32_t version = 0;
};

// All throw std::runtime_error naming the step that failed and its code.
RequestParts ReadRequestParts(velkord::Bytes der);

// The chain of the attributes, null when there is none.
velkord::NodePtr ReadAttributes(const RequestParts& parts);

// Each writes from the parts alone: every part goes through its setter into new records. A signed
// part without the element of its attributes, which the decoder allows, cannot be written.
velkord::NodePtr RebuildSignedRequest(const RequestParts& parts);
velkord::NodePtr RebuildRequest(const RequestParts& parts);

#endif  // VELKORD_EXAMPLES_REQUEST_PARTS_H_
