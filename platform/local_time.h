// The platform's local time: the fields that its zone shows at a time.
#ifndef VELKORD_PLATFORM_LOCAL_TIME_H_
#define VELKORD_PLATFORM_LOCAL_TIME_H_

#include <cstdint>
#include <ctime>

namespace velkord::internal {

// Makes the C library follow the zone that TZ names now: it may keep the one that it read first.
// Without TZ this does nothing, since the C library would ask the system every time.
void FollowZone();

// The fields at a time, which is 0 to 2147483647. False when the platform refuses it.
bool LocalFields(int32_t seconds, std::tm& fields);

}  // namespace velkord::internal

#endif  // VELKORD_PLATFORM_LOCAL_TIME_H_
