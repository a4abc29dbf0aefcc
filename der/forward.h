// Further exported names of one function, a line each: the new name, and the one that does the
// work.
#ifndef VELKORD_DER_FORWARD_H_
#define VELKORD_DER_FORWARD_H_

#include "Velkord.h"

// A node in, a node out.
#define VELKORD_FORWARD_NODE(name, target) \
  int32_t name(const Anybuf* source, Anybuf** out) { return target(source, out); }

// Bytes in, a node out.
#define VELKORD_FORWARD_BYTES(name, target)                           \
  int32_t name(const uint8_t* bytes, uint32_t length, Anybuf** out) { \
    return target(bytes, length, out);                                \
  }

// A node in, bytes out.
#define VELKORD_FORWARD_TO_BYTES(name, target)                            \
  int32_t name(const Anybuf* source, uint8_t* out, uint32_t* outLength) { \
    return target(source, out, outLength);                                \
  }

// A node onto a chain.
#define VELKORD_FORWARD_ADD(name, target) \
  void name(const Anybuf* element, Anybuf* chain) { target(element, chain); }

// A chain released.
#define VELKORD_FORWARD_FREE(name, target) \
  void name(Anybuf* chain) { target(chain); }

#endif  // VELKORD_DER_FORWARD_H_
