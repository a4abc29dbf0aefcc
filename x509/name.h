// The attributes of a name as views.
//
// RDNSequence ::= SEQUENCE OF RelativeDistinguishedName
// RelativeDistinguishedName ::= SET SIZE (1..MAX) OF AttributeTypeAndValue
// AttributeTypeAndValue ::= SEQUENCE {
//   type   OBJECT IDENTIFIER,
//   value  ANY DEFINED BY type }
#ifndef VELKORD_X509_NAME_H_
#define VELKORD_X509_NAME_H_

#include "der/node.h"

namespace velkord::internal {

struct AttributeView {
  Bytes type;  // Content octets of the OBJECT IDENTIFIER.
  DerElement value;
};

// Opens an attribute. Unlike the standard's, its type may have any tag, and elements after the
// second are skipped.
// 0; -1, -2 or -7 from the SEQUENCE; -1 for a missing element; -2 for a type that is a BIT STRING
// without its octet.
int32_t OpenAttribute(Bytes in, AttributeView& attribute);

// Opens the first attribute of a relative name. Codes as above, -1 for an empty SET.
int32_t OpenFirstAttribute(Bytes in, AttributeView& attribute);

}  // namespace velkord::internal

#endif  // VELKORD_X509_NAME_H_
