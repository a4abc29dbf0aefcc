// Times written as text and read again, in zones of every kind.
#include <ctime>

#include "cases.h"

namespace {

long Offset(std::time_t time) {
  std::tm fields{};
  localtime_r(&time, &fields);
  return fields.tm_gmtoff;
}

// The first time at which the offset is that of `to` and no longer that of `from`.
int32_t FindChange(int32_t from, int32_t to) {
  while (to - from > 1) {
    const int32_t middle = from + (to - from) / 2;
    (Offset(middle) == Offset(to) ? to : from) = middle;
  }
  return to;
}

std::string Write(int32_t time) {
  Anybuf* node = nullptr;
  EXPECT_EQ(ASN1_WriteGeneralizedTime(&time, &node), 0);
  const NodePtr owned(node);
  return {node->data + 2, node->data + node->dataLen};
}

int32_t Read(const std::string& text) {
  std::string element = "\x18\x0F" + text;
  const Anybuf node = {reinterpret_cast<uint8_t*>(element.data()), 17, 0, 2, 24, nullptr, nullptr};
  int32_t time = -1;
  EXPECT_EQ(ASN1_ReadGeneralizedTime(&node, &time), 0) << text;
  return time;
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
  char text[16];
  std::strftime(text, sizeof text, "%Y%m%d%H%M%SZ", gmtime_r(&time, &fields));
  return text;
}

class Zones : public testing::TestWithParam<const char*> {};

TEST_P(Zones, ReadWhatTheyWrite) {
  SetZone(GetParam());
  if (*GetParam() == '\0') unsetenv("TZ");
  tzset();
  constexpr int32_t kStep = 1'000'003;
  int changes = 0;
  for (int32_t time = 0; time <= INT32_MAX - kStep; time += kStep) {
    ExpectReadBack(time);
    const long before = Offset(time);
    if (Offset(time + kStep) == before) continue;
    ++changes;
    const int32_t change = FindChange(time, time + kStep);
    for (const int32_t away : {0, 1, 1799, 1800, 3599, 3600, 7199, 7200, 86400}) {
      ExpectReadBack(change + away);
      ExpectReadBack(change - away - 1);
      if (away < Offset(change) - before) {
        EXPECT_EQ(Read(TextByOffset(change + away, before)), change + away);
      }
    }
  }
  ExpectReadBack(INT32_MAX);
  const bool isFixed = std::string(GetParam()).size() <= 3;
  EXPECT_TRUE(isFixed || changes != 0);
  SetZone("UTC0");
}

// The second 60 and the one behind it are two.
TEST(LeapSeconds, AreSecondsOfTheirOwn) {
  SetZone("right/UTC");
  constexpr int32_t kLeapSecond = 1483228826;
  const std::string text = Write(kLeapSecond);
  SetZone("UTC0");
  if (text != "20161231235960Z") GTEST_SKIP() << "no such zone here";
  SetZone("right/UTC");
  for (int32_t time = kLeapSecond - 1; time <= kLeapSecond + 1; ++time) {
    EXPECT_EQ(Read(Write(time)), time);
  }
  SetZone("UTC0");
}

INSTANTIATE_TEST_SUITE_P(, Zones,
                         testing::Values("", "UTC", "Asia/Shanghai", "America/New_York",
                                         "Europe/Dublin", "Australia/Lord_Howe",
                                         "Africa/Casablanca", "Pacific/Apia",
                                         "IST-1GMT0,M10.5.0,M3.5.0/1"));

}  // namespace
