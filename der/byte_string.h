// Byte and character strings: the one conversion that reading can involve.
#ifndef VELKORD_DER_BYTE_STRING_H_
#define VELKORD_DER_BYTE_STRING_H_

#include "der/node.h"

namespace velkord::internal {

// Copies BMP text to `out` without the high bytes that are zero and without an odd last byte.
// Returns the number of bytes written, at most those of `text`.
uint32_t CopyBmpText(Bytes text, uint8_t* out);

}  // namespace velkord::internal

#endif  // VELKORD_DER_BYTE_STRING_H_
