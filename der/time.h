// Time text: the machine's local time followed by "Z".
#ifndef VELKORD_DER_TIME_H_
#define VELKORD_DER_TIME_H_

#include "der/node.h"

namespace velkord {

// Makes a time TLV node in the form of `tag`, UTCTime or GeneralizedTime.
// 0, -4 for a negative time, or -7000.
int32_t TimeWriteNode(int32_t time, uint8_t tag, Anybuf** out);

// Reads a time TLV in the form that its tag gives, UTCTime for any but GeneralizedTime. All bytes
// behind the header are its text, whatever length the header states.
// 0, -1 or -2 from the header, -5, or -7000.
int32_t TimeRead(Bytes in, int32_t& time);

}  // namespace velkord

#endif  // VELKORD_DER_TIME_H_
