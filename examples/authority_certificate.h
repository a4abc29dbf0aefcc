// A self-signed certificate of version 3 for a certificate authority.
#ifndef VELKORD_EXAMPLES_AUTHORITY_CERTIFICATE_H_
#define VELKORD_EXAMPLES_AUTHORITY_CERTIFICATE_H_

#include <string_view>

#include "signing_key.h"
#include "velkord.hpp"

// Valid for a year from now on. Times are written as local time: call UseUtc before. Throws
// std::runtime_error naming the step that failed.
velkord::NodePtr AuthorityCertificate(std::string_view commonName, const SigningKey& key);

#endif  // VELKORD_EXAMPLES_AUTHORITY_CERTIFICATE_H_
