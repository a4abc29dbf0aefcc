// Single values: INTEGER, OBJECT IDENTIFIER, strings and times.
#include <ctime>

#include "cases.h"
#include "velkord.hpp"

namespace bench {

namespace {

constexpr uint32_t kNumber = 65537;
constexpr uint8_t kObjectIdOctets[] = {0x2A, 0x86, 0x48, 0x86, 0xF7, 0x0D, 0x01, 0x01, 0x0B};
constexpr uint8_t kText[] = "Velkord Example Authority";
constexpr uint32_t kTextSize = sizeof kText - 1;
constexpr int32_t kTime = 1700000000;

// Adds a case of a function that makes a node, which is released again.
template <typename Function, typename... In>
void AddMaker(const char* name, Function function, In... in) {
  Add(name, "velkord", 1, [=] {
    Anybuf* made = nullptr;
    Require(function(in..., &made) == VELKORD_OK, name);
    ASN1_FreeAnybuf(made);
  });
}

void AddWriters() {
  AddMaker("integer_write", ASN1_WriteInteger, kNumber);
  AddMaker("object_id_write", ASN1_WriteObjectIdFromData, 0, kObjectIdOctets,
           uint32_t{sizeof kObjectIdOctets});
  Add("object_id_to_bytes", "velkord", 1, [] {
    constexpr char kObjectId[] = "1.2.840.113549.1.1.11";
    uint8_t octets[32];
    uint32_t length;
    ASN1_OBJECT_a2d(octets, &length, kObjectId, int32_t{sizeof kObjectId - 1});
  });
  AddMaker("string_write", ASN1_WriteUTF8StringFromBytes, kText, kTextSize);
  AddMaker("time_write", ASN1_WriteUtcTime, &kTime);
}

void AddReaders() {
  static const auto kNumberNode = velkord::Make("write a number", ASN1_WriteInteger, kNumber);
  static const auto kTextNode =
      velkord::Make("write a text", ASN1_WriteUTF8StringFromBytes, kText, kTextSize);
  static const auto kTimeNode = velkord::Make("write a time", ASN1_WriteUtcTime, &kTime);
  Add("integer_read", "velkord", 1, [] {
    uint32_t value = 0;
    ASN1_ReadInteger(kNumberNode.get(), &value);
    Require(value == kNumber, "the number is read");
  });
  AddMaker("string_read", ASN1_ReadCharString, kTextNode.get());
  Add("time_read", "velkord", 1, [] {
    int32_t value = 0;
    ASN1_ReadUtcTime(kTimeNode.get(), &value);
    Require(value == kTime, "the time is read");
  });
  // One look at the zone.
  Add("time_read", "limit", 1, [] {
    const std::time_t time = kTime;
    std::tm fields;
    benchmark::DoNotOptimize(localtime_r(&time, &fields));
  });
}

}  // namespace

void AddValues() {
  AddWriters();
  AddReaders();
}

}  // namespace bench
