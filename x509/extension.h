// One extension as a view.
//
// Extension ::= SEQUENCE {
//   extnID     OBJECT IDENTIFIER,
//   critical   BOOLEAN DEFAULT FALSE,
//   extnValue  OCTET STRING }
#ifndef VELKORD_X509_EXTENSION_H_
#define VELKORD_X509_EXTENSION_H_

#include "der/node.h"

namespace velkord::internal {

struct ExtensionView {
  Bytes oid;       // Content octets of the OBJECT IDENTIFIER.
  Bytes critical;  // The first content octet of the BOOLEAN; empty when there is none.
  Bytes value;     // Content of the OCTET STRING.
};

// Opens an extension. The tags do not count: of exactly three elements the second is `critical`,
// and of any other number the second is the value.
// 0; -1, -2 or -7 from the SEQUENCE; -1 for a missing element; -2 for a second of three without
// content, and for a BIT STRING without its octet.
int32_t OpenExtension(Bytes in, ExtensionView& extension);

}  // namespace velkord::internal

#endif  // VELKORD_X509_EXTENSION_H_
