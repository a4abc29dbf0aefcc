#include "der/civil_time.h"

#include <algorithm>

#include "platform/local_time.h"

namespace velkord::internal {

namespace {

constexpr int64_t kSecondsOfDay = 86400;

// Seconds from the start of 1970 to the fields, taken as UTC. Years begin in March, so that the
// leap day is the last of a year, and are counted from 400 years before the first that a text can
// state, so that none is negative.
int64_t CivilSeconds(const std::tm& fields) {
  constexpr uint32_t kDaysTo1970 = 865565;
  const auto months = static_cast<uint32_t>((fields.tm_year + 1900 + 400) * 12 + fields.tm_mon - 2);
  const uint32_t year = months / 12;
  const uint32_t daysToYear = year * 365 + year / 4 - year / 100 + year / 400;
  const uint32_t daysToMonth = (months % 12 * 153 + 2) / 5;
  const int64_t days = int64_t{daysToYear + daysToMonth} - kDaysTo1970 + fields.tm_mday - 1;
  const int64_t minutes = int64_t{fields.tm_hour} * 60 + fields.tm_min;
  return days * kSecondsOfDay + minutes * 60 + fields.tm_sec;
}

// The zone's offset from UTC at the time in range that is nearest to `time`, and its fields then.
bool OffsetAt(int64_t time, int64_t& offset, std::tm& fields) {
  const int64_t nearest = std::clamp<int64_t>(time, 0, INT32_MAX);
  if (!LocalFields(static_cast<int32_t>(nearest), fields)) return false;
  offset = CivilSeconds(fields) - nearest;
  return true;
}

}  // namespace

bool FromLocalTime(std::tm& fields, int32_t& seconds) {
  FollowZone();
  const int64_t civil = CivilSeconds(fields);
  const int second = fields.tm_sec;
  // No offset reaches two days, and no zone of the tz database has two changes in two days.
  int64_t before;
  int64_t offset;
  if (!OffsetAt(civil - 2 * kSecondsOfDay, before, fields)) return false;
  int64_t time = civil - before;
  if (!OffsetAt(time, offset, fields)) return false;
  if (offset != before) {
    // The offset has changed in these days; the new one holds unless the hour was skipped.
    std::tm changed{};
    int64_t last;
    if (!OffsetAt(civil - offset, last, changed)) return false;
    if (last == offset) {
      time = civil - offset;
      fields = changed;
    }
  }
  // A zone that counts leap seconds shows the second 60 before the one that was meant.
  if (fields.tm_sec > 59 && second < 60 && !OffsetAt(++time, offset, fields)) return false;
  if (time < 0 || time > INT32_MAX) return false;
  seconds = static_cast<int32_t>(time);
  return true;
}

}  // namespace velkord::internal
