// Exports that differ only by a name or a tag, a line each.
#ifndef VELKORD_DER_FORWARD_H_
#define VELKORD_DER_FORWARD_H_

#include "der/node.h"

// Further names of a function: the new name, and the one that does the work.
//
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

// An element of the tag octet `tag`, of a node's content and of bytes.
#define VELKORD_WRITE_NODE(name, tag) \
  int32_t name(const Anybuf* source, Anybuf** out) { return DerBuildFromNode(tag, source, out); }
#define VELKORD_WRITE_BYTES(name, tag)                                \
  int32_t name(const uint8_t* bytes, uint32_t length, Anybuf** out) { \
    return DerBuildFromBytes(tag, bytes, length, out);                \
  }

#endif  // VELKORD_DER_FORWARD_H_
