// What an x86 processor can do. The platform, which has found it out already, is asked at each
// call, so that the library keeps no state and does no work when it is loaded.
#ifndef VELKORD_PLATFORM_PROCESSOR_H_
#define VELKORD_PLATFORM_PROCESSOR_H_

#include <cstddef>

#if defined(__x86_64__) || defined(__i386__) || defined(_M_X64) || defined(_M_IX86)
#define VELKORD_X86

namespace velkord::internal {

// Sets of instructions that the processor has and the system lets programs use, each with those in
// front of it.
enum class X86Set { kBase, kSsse3, kAvx2, kAvx512Vbmi };

// By the platform. Where it does not know, by the processor.
X86Set AskForX86Set(size_t octets);

// By the processor itself, if a work on that many octets pays for the question; otherwise the base.
X86Set AskX86Processor(size_t octets);

}  // namespace velkord::internal

#endif

#endif  // VELKORD_PLATFORM_PROCESSOR_H_
