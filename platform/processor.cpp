#include "platform/processor.h"

#if defined(VELKORD_X86)

#include <cstdint>

#if defined(_WIN32)
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
#endif
#if defined(_MSC_VER)
#include <intrin.h>
#else
#include <cpuid.h>
#endif

namespace velkord::internal {

namespace {

// In a virtual machine the instruction cpuid costs a microsecond or more, and it takes three. In
// that time the portable code does some thousands of octets.
constexpr size_t kPaysForCpuid = 32768;

// The registers that the instruction cpuid fills.
struct Leaf {
  uint32_t eax;
  uint32_t ebx;
  uint32_t ecx;
  uint32_t edx;
};

constexpr bool HasBit(uint32_t word, uint32_t bit) { return (word >> bit & 1) != 0; }

// By the bits of the leaves 1 and 7 that may be used. AVX2 comes with SSSE3.
inline X86Features FromLeaves(const Leaf& leaf1, const Leaf& leaf7) {
  constexpr uint32_t kAvx512FAndBw = 1U << 16 | 1U << 30;
  const bool avx2 = HasBit(leaf7.ebx, 5);
  return {avx2 || HasBit(leaf1.ecx, 9), avx2,
          (leaf7.ebx & kAvx512FAndBw) == kAvx512FAndBw && HasBit(leaf7.ecx, 1)};
}

// A leaf that the processor does not have is all zeros.
Leaf ReadLeaf(uint32_t number) {
  Leaf leaf{};
#if defined(_MSC_VER)
  int registers[4];
  __cpuid(registers, 0);
  if (static_cast<uint32_t>(registers[0]) < number) return leaf;
  __cpuidex(registers, static_cast<int>(number), 0);
  leaf = {static_cast<uint32_t>(registers[0]), static_cast<uint32_t>(registers[1]),
          static_cast<uint32_t>(registers[2]), static_cast<uint32_t>(registers[3])};
#else
  __get_cpuid_count(number, 0, &leaf.eax, &leaf.ebx, &leaf.ecx, &leaf.edx);
#endif
  return leaf;
}

// Which registers the system keeps for a program: the low half of XCR0.
uint32_t KeptRegisters() {
#if defined(_MSC_VER)
  return static_cast<uint32_t>(_xgetbv(0));
#else
  uint32_t low;
  uint32_t high;
  __asm__ volatile("xgetbv" : "=a"(low), "=d"(high) : "c"(0));
  return low;
#endif
}

X86Features ReadFeatures() {
  constexpr uint32_t kKeptForAvx = 0x06;
  constexpr uint32_t kKeptForAvx512 = 0xE6;
  const Leaf leaf1 = ReadLeaf(1);
  X86Features features = FromLeaves(leaf1, ReadLeaf(7));
  const uint32_t kept = HasBit(leaf1.ecx, 27) ? KeptRegisters() : 0;  // Bit 27: it may be asked.
  features.avx2 = features.avx2 && (kept & kKeptForAvx) == kKeptForAvx;
  features.avx512Vbmi = features.avx512Vbmi && (kept & kKeptForAvx512) == kKeptForAvx512;
  return features;
}

}  // namespace

}  // namespace velkord::internal

#if defined(__GLIBC__)
// The GNU C library has this from version 2.33 on, in <sys/platform/x86.h>: leaf 1 is number 0
// there, and leaf 7 number 1. With an older one the weak reference is null.
// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" {
struct cpuid_feature {
  velkord::internal::Leaf found;
  velkord::internal::Leaf active;
};
__attribute__((weak)) const cpuid_feature* __x86_get_cpuid_feature_leaf(unsigned int number);
}
// NOLINTEND(bugprone-reserved-identifier)
#endif

namespace velkord::internal {

namespace {

#if defined(__GLIBC__)
bool KnowsFeatures() { return __x86_get_cpuid_feature_leaf != nullptr; }
X86Features KnownFeatures() {
  const Leaf& leaf7 = __x86_get_cpuid_feature_leaf(1)->active;
  const X86Features features = FromLeaves(Leaf{}, leaf7);
  // Most need one call alone.
  return features.avx2 ? features : FromLeaves(__x86_get_cpuid_feature_leaf(0)->active, leaf7);
}
#elif defined(_WIN32)
// By number, since headers have their names late. Windows 10 of 2020 knows both, an older one none.
bool KnowsFeatures() { return IsProcessorFeaturePresent(36) != 0; }  // SSSE3
X86Features KnownFeatures() { return {true, IsProcessorFeaturePresent(40) != 0, false}; }
#else
bool KnowsFeatures() { return false; }
X86Features KnownFeatures() { return {}; }
#endif

}  // namespace

X86Features AskForX86Features(size_t octets) {
  return KnowsFeatures() ? KnownFeatures() : AskX86Processor(octets);
}

X86Features AskX86Processor(size_t octets) {
  return octets < kPaysForCpuid ? X86Features() : ReadFeatures();
}

}  // namespace velkord::internal

#endif
