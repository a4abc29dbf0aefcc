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

// By the bits of leaf 7 that may be used.
inline X86Set FromLeaf7(const Leaf& leaf) {
  constexpr uint32_t kAvx512FAndBw = 1U << 16 | 1U << 30;
  if (!HasBit(leaf.ebx, 5)) return X86Set::kBase;
  const bool vbmi = (leaf.ebx & kAvx512FAndBw) == kAvx512FAndBw && HasBit(leaf.ecx, 1);
  return vbmi ? X86Set::kAvx512Vbmi : X86Set::kAvx2;
}

// By those of leaf 1.
inline X86Set FromLeaf1(const Leaf& leaf) {
  return HasBit(leaf.ecx, 9) ? X86Set::kSsse3 : X86Set::kBase;
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

X86Set ReadSet() {
  constexpr uint32_t kKeptForAvx = 0x06;
  constexpr uint32_t kKeptForAvx512 = 0xE6;
  const Leaf leaf1 = ReadLeaf(1);
  const uint32_t kept = HasBit(leaf1.ecx, 27) ? KeptRegisters() : 0;  // Bit 27: it may be asked.
  const X86Set found = FromLeaf7(ReadLeaf(7));
  if (found == X86Set::kBase || (kept & kKeptForAvx) != kKeptForAvx) return FromLeaf1(leaf1);
  return (kept & kKeptForAvx512) == kKeptForAvx512 ? found : X86Set::kAvx2;
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
bool PlatformKnows() { return __x86_get_cpuid_feature_leaf != nullptr; }
X86Set AskPlatform() {
  const X86Set set = FromLeaf7(__x86_get_cpuid_feature_leaf(1)->active);
  // Most need one call alone.
  return set != X86Set::kBase ? set : FromLeaf1(__x86_get_cpuid_feature_leaf(0)->active);
}
#elif defined(_WIN32)
// PF_SSSE3_INSTRUCTIONS_AVAILABLE and PF_AVX2_INSTRUCTIONS_AVAILABLE of winnt.h, where headers have
// them late. Windows 10 of 2020 knows both, an older one none.
constexpr DWORD kSsse3 = 36;
constexpr DWORD kAvx2 = 40;
bool PlatformKnows() { return IsProcessorFeaturePresent(kSsse3) != 0; }
X86Set AskPlatform() {
  return IsProcessorFeaturePresent(kAvx2) != 0 ? X86Set::kAvx2 : X86Set::kSsse3;
}
#else
bool PlatformKnows() { return false; }
X86Set AskPlatform() { return X86Set::kBase; }
#endif

}  // namespace

X86Set AskForX86Set(size_t octets) {
  return PlatformKnows() ? AskPlatform() : AskX86Processor(octets);
}

X86Set AskX86Processor(size_t octets) { return octets < kPaysForCpuid ? X86Set::kBase : ReadSet(); }

}  // namespace velkord::internal

#endif
