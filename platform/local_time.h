// The platform's local time conversion, in both directions, by the zone as it stands at the call.
#ifndef VELKORD_PLATFORM_LOCAL_TIME_H_
#define VELKORD_PLATFORM_LOCAL_TIME_H_

#include <cstdint>
#include <ctime>

namespace velkord {

// False when the platform refuses the value.
bool ToLocalTime(int32_t seconds, std::tm& fields);

// Fields out of their range carry over, and daylight saving is worked out from the zone; `fields`
// then are those that `ToLocalTime` gives. False for a time outside 0 to 2147483647.
bool FromLocalTime(std::tm& fields, int32_t& seconds);

}  // namespace velkord

#endif  // VELKORD_PLATFORM_LOCAL_TIME_H_
