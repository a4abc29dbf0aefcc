// From local time, as the fields of a text, to seconds.
#ifndef VELKORD_DER_CIVIL_TIME_H_
#define VELKORD_DER_CIVIL_TIME_H_

#include <cstdint>
#include <ctime>

namespace velkord::internal {

// Finds the time that the zone shows as `fields`: year, month, day, hour, minute and second. A
// field out of its range carries over. Of two such times it is the earlier one; an hour that the
// clocks skip is read as if the offset before it went on. `fields` become those that the zone shows
// at that time. False for a time outside 0 to 2147483647 and for one that the platform refuses.
bool FromLocalTime(std::tm& fields, int32_t& seconds);

}  // namespace velkord::internal

#endif  // VELKORD_DER_CIVIL_TIME_H_
