// Times written as text and read again, in zones of every kind.
#include <ctime>

#include "cases.h"

namespace {

long Offset(std::time_t time) {
  std::tm fields{};
  localtime_r(&time, &fields);
  return fields.tm_gmtoff;
}

std::string Write(int32_t time) { return Describe(Make(ASN1_WriteGeneralizedTime, &time).get()); }

int32_t Read(const std::string& text) {
  return std::stoi(Call("ASN1_ReadGeneralizedTime", {text}));
}

// A time reads as itself, or as the earlier one that is written alike.
void ExpectReadBack(int32_t time) {
  const std::string text = Write(time);
  const int32_t read = Read(text);
  for (const int32_t again : {1800, 3600}) {
    if (time >= again && Write(time - again) == text) time -= again;
  }
  EXPECT_EQ(read, time) << text;
}

// What the clocks would show had they not been changed before.
std::string TextByOffset(std::time_t time, long offset) {
  time += offset;
  std::tm fields{};
  char text[32];
  std::strftime(text, sizeof text, "18 0F \"%Y%m%d%H%M%SZ\"", gmtime_r(&time, &fields));
  return text;
}

class Zones : public testing::TestWithParam<std::string> {};

TEST_P(Zones, ReadWhatTheyWrite) {
  SetZone(GetParam());
  if (GetParam().empty()) unsetenv("TZ");
  tzset();
  constexpr int32_t kStep = 1'000'003;
  bool isFixed = true;
  for (int32_t time = 0; time <= INT32_MAX - kStep; time += kStep) {
    ExpectReadBack(time);
    const long before = Offset(time);
    if (Offset(time + kStep) == before) continue;
    isFixed = false;
    // The first time with another offset.
    int32_t change = time + kStep;
    for (int32_t last = time; change - last > 1;) {
      const int32_t middle = last + (change - last) / 2;
      (Offset(middle) == before ? last : change) = middle;
    }
    for (const int32_t away : {0, 1, 1799, 1800, 3599, 3600, 7199, 7200, 86400}) {
      ExpectReadBack(change + away);
      ExpectReadBack(change - away - 1);
      if (away < Offset(change) - before) {
        EXPECT_EQ(Read(TextByOffset(change + away, before)), change + away);
      }
    }
  }
  EXPECT_TRUE(!isFixed || GetParam().empty() || GetParam().ends_with("UTC"));
  // Where leap seconds count, the second 60 and the one after it are two.
  for (const int32_t time : {1483228825, 1483228826, 1483228827, INT32_MAX}) ExpectReadBack(time);
}

// While it is in the environment a zone is followed; without one no call looks for another.
TEST(Zone, IsFollowedInTheEnvironmentAlone) {
  const std::string text = "18 0F \"19700102000000Z\"";
  SetZone("ABC-3");
  EXPECT_EQ(Read(text), 86400 - 3 * 3600);
  SetZone("XYZ-9:37");
  EXPECT_EQ(Read(text), 86400 - 9 * 3600 - 37 * 60);
  unsetenv("TZ");
  EXPECT_EQ(Read(text), 86400 - 9 * 3600 - 37 * 60);
}

INSTANTIATE_TEST_SUITE_P(, Zones,
                         testing::Values("", "UTC", "right/UTC", "Asia/Shanghai",
                                         "America/New_York", "Europe/Dublin", "Australia/Lord_Howe",
                                         "Africa/Casablanca", "Pacific/Apia",
                                         "IST-1GMT0,M10.5.0,M3.5.0/1"));

}  // namespace
