#include "platform/local_time.h"

#include <cstdlib>

namespace velkord::internal {

void FollowZone() {
  if (std::getenv("TZ") == nullptr) return;  // NOLINT(concurrency-mt-unsafe)
#if defined(_WIN32)
  _tzset();
#else
  tzset();
#endif
}

bool LocalFields(int32_t seconds, std::tm& fields) {
#if defined(_WIN32)
  const __time64_t time = seconds;
  return _localtime64_s(&fields, &time) == 0;
#else
  const std::time_t time = seconds;
  return localtime_r(&time, &fields) != nullptr;
#endif
}

}  // namespace velkord::internal
