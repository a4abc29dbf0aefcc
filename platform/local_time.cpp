#include "platform/local_time.h"

namespace velkord {

// Windows keeps the zone of the first call until it is told to look again, and its mktime may count
// in 32 bits, which end too early in a zone ahead.
bool ToLocalTime(int32_t seconds, std::tm& fields) {
#if defined(_WIN32)
  _tzset();
  const __time64_t time = seconds;
  return _localtime64_s(&fields, &time) == 0;
#else
  // localtime_r alone may keep the zone of its first call, while mktime follows a change.
  tzset();
  const std::time_t time = seconds;
  return localtime_r(&time, &fields) != nullptr;
#endif
}

bool FromLocalTime(std::tm& fields, int32_t& seconds) {
  fields.tm_isdst = -1;
#if defined(_WIN32)
  _tzset();
  const int64_t time = _mktime64(&fields);
#else
  const int64_t time = std::mktime(&fields);
#endif
  if (time < 0 || time > INT32_MAX) return false;
  seconds = static_cast<int32_t>(time);
  return true;
}

}  // namespace velkord
