// Calls from a stack that is aligned to 4 octets alone, as old compilers for 32-bit x86 make them.
#if defined(__i386__)

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "text/base64_kernel.h"

namespace {

using namespace velkord::internal;

struct Call {
  const void* function;
  std::array<const void*, 3> arguments;
};

// With `octets` between the arguments and the place where the stack is aligned to 16.
size_t CallBelow(size_t octets, const Call& call) {
  size_t result;
  asm volatile(
      "movl %%esp, %%ebx\n"
      "andl $-16, %%esp\n"
      "subl %[octets], %%esp\n"
      "pushl 12(%[call])\n"
      "pushl 8(%[call])\n"
      "pushl 4(%[call])\n"
      "call *(%[call])\n"
      "movl %%ebx, %%esp\n"
      : "=a"(result)
      : [octets] "D"(octets), [call] "S"(&call)
      : "ebx", "ecx", "edx", "memory", "cc");
  return result;
}

template <typename In, typename Out>
size_t CallBelow(size_t octets, size_t (*function)(const In*, size_t, Out*), const In* in,
                 size_t size, Out* out) {
  return CallBelow(octets, {reinterpret_cast<const void*>(function),
                            {in, reinterpret_cast<const void*>(size), out}});
}

TEST(Stack, EveryKernelWorksAtEveryAlignment) {
  const std::string bytes(960, 'x');
  for (const Base64Kernel& kernel : Base64Kernels(SIZE_MAX)) {
    for (size_t octets = 0; octets < 16; octets += 4) {
      std::string text(bytes.size() / 3 * 4, 0);
      std::string decoded = bytes;
      const auto* in = reinterpret_cast<const uint8_t*>(bytes.data());
      EXPECT_EQ(CallBelow(octets, kernel.encode, in, bytes.size(), text.data()), bytes.size());
      auto* out = reinterpret_cast<uint8_t*>(decoded.data());
      EXPECT_EQ(CallBelow(octets, kernel.decode, text.data(), text.size(), out), text.size());
      EXPECT_EQ(decoded, bytes);
    }
  }
}

}  // namespace

#endif
