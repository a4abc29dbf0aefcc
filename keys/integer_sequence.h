// A SEQUENCE of positive INTEGERs in a caller's buffer. Private values go straight from the
// caller's bytes to the caller's buffer, unless the two overlap.
#ifndef VELKORD_KEYS_INTEGER_SEQUENCE_H_
#define VELKORD_KEYS_INTEGER_SEQUENCE_H_

#include <span>

#include "der/node.h"

namespace velkord::internal {

// Writes the SEQUENCE to `out`, which may be null and may overlap the magnitudes, and its size to
// `outLength`. 0, or -1 when the size does not fit 32 bits or there is no memory to write in place.
int32_t WriteIntegerSequence(std::span<const Bytes> magnitudes, uint8_t* out, uint32_t* outLength);

}  // namespace velkord::internal

#endif  // VELKORD_KEYS_INTEGER_SEQUENCE_H_
