// Single values: INTEGER, OBJECT IDENTIFIER, strings and times.
#include <memory>

#include "Velkord.h"
#include "cases.h"
#include "contender.h"
#include "inputs.h"
#include "limit.h"

namespace bench {

namespace {

constexpr char kObjectId[] = "1.2.840.113549.1.1.11";
constexpr int32_t kObjectIdSize = sizeof kObjectId - 1;
constexpr uint8_t kObjectIdOctets[] = {0x2A, 0x86, 0x48, 0x86, 0xF7, 0x0D, 0x01, 0x01, 0x0B};
constexpr uint8_t kText[] = "Velkord Example Authority";
constexpr uint32_t kTextSize = sizeof kText - 1;
constexpr int32_t kTime = 1700000000;

void FreeNode(Anybuf* node) {
  benchmark::DoNotOptimize(node);
  ASN1_FreeAnybuf(node);
}

// The node and the block that every writer hands out.
void MakeAndFree(size_t size) {
  auto* node = static_cast<Anybuf*>(std::malloc(sizeof(Anybuf)));
  auto* data = static_cast<uint8_t*>(std::malloc(size));
  benchmark::DoNotOptimize(node);
  benchmark::DoNotOptimize(data);
  std::free(data);
  std::free(node);
}

// What `write` hands out.
template <typename Write>
std::shared_ptr<Anybuf> Keep(Write write) {
  Anybuf* node = nullptr;
  Require(write(&node) == VELKORD_OK, "a value is written");
  return {node, ASN1_FreeAnybuf};
}

void AddLimit(const char* name, size_t size) {
  Add(name, "limit", 1, [size] { MakeAndFree(size); });
}

void AddWriters() {
  Add("integer_write", "velkord", 1, [] {
    Anybuf* node = nullptr;
    ASN1_WriteInteger(65537, &node);
    FreeNode(node);
  });
  AddLimit("integer_write", 5);
  Add("object_id_write", "velkord", 1, [] {
    Anybuf* node = nullptr;
    ASN1_WriteObjectIdFromData(0, kObjectIdOctets, sizeof kObjectIdOctets, &node);
    FreeNode(node);
  });
  AddLimit("object_id_write", sizeof kObjectIdOctets + 2);
  Add("object_id_to_bytes", "velkord", 1, [] {
    uint8_t octets[32];
    uint32_t length;
    benchmark::DoNotOptimize(ASN1_OBJECT_a2d(octets, &length, kObjectId, kObjectIdSize));
  });
  Add("string_write", "velkord", 1, [] {
    Anybuf* node = nullptr;
    ASN1_WriteUTF8StringFromBytes(kText, kTextSize, &node);
    FreeNode(node);
  });
  AddLimit("string_write", kTextSize + 2);
  Add("time_write", "velkord", 1, [] {
    Anybuf* node = nullptr;
    ASN1_WriteUtcTime(&kTime, &node);
    FreeNode(node);
  });
  Add("time_write", "limit", 1, [] {
    LookUpLocalTime(kTime);
    MakeAndFree(15);
  });
}

void AddReaders() {
  const auto number = Keep([](Anybuf** out) { return ASN1_WriteInteger(65537, out); });
  Add("integer_read", "velkord", 1, [number] {
    uint32_t value = 0;
    ASN1_ReadInteger(number.get(), &value);
    Require(value == 65537, "the number is read");
  });
  const auto text =
      Keep([](Anybuf** out) { return ASN1_WriteUTF8StringFromBytes(kText, kTextSize, out); });
  Add("string_read", "velkord", 1, [text] {
    Anybuf* content = nullptr;
    ASN1_ReadCharString(text.get(), &content);
    FreeNode(content);
  });
  AddLimit("string_read", kTextSize);
  const auto time = Keep([](Anybuf** out) { return ASN1_WriteUtcTime(&kTime, out); });
  Add("time_read", "velkord", 1, [time] {
    int32_t value = 0;
    ASN1_ReadUtcTime(time.get(), &value);
    Require(value == kTime, "the time is read");
  });
  Add("time_read", "limit", 1, [] { LookUpLocalTime(kTime); });
}

}  // namespace

void AddValues() {
  AddWriters();
  AddReaders();
}

}  // namespace bench
