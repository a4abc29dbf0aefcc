#include "platform/local_time.h"

namespace velkord {

bool ToLocalTime(int32_t seconds, std::tm& fields) {
  const std::time_t time = seconds;
#if defined(_WIN32)
  return localtime_s(&fields, &time) == 0;
#else
  // localtime_r alone may keep the zone of its first call, while mktime follows a change.
  tzset();
  return localtime_r(&time, &fields) != nullptr;
#endif
}

bool FromLocalTime(std::tm fields, int32_t& seconds) {
  fields.tm_isdst = -1;
  const int64_t time = std::mktime(&fields);
  if (time < 0 || time > INT32_MAX) return false;
  seconds = static_cast<int32_t>(time);
  return true;
}

}  // namespace velkord
