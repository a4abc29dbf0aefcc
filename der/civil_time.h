// The way back from local time: fields, as a text states them, to seconds.
#ifndef VELKORD_DER_CIVIL_TIME_H_
#define VELKORD_DER_CIVIL_TIME_H_

#include <cstdint>
#include <ctime>

namespace velkord::internal {

// Finds the time that the zone shows as `fields`: year, month, day, hour, minute and second, of
// which those out of their range carry over. Of two such times it is the earlier one; an hour that
// the clocks skip is read as if the offset before went on. `fields` then are those that the zone
// shows. False for a time outside 0 to 2147483647.
bool FromLocalTime(std::tm& fields, int32_t& seconds);

}  // namespace velkord::internal

#endif  // VELKORD_DER_CIVIL_TIME_H_
