// Calls of the library on a fuzzer's bytes, by the code of the tests and with its demands. The
// first one that is not met ends the program, and the fuzzer keeps the input.
#ifndef VELKORD_FUZZ_CALL_H_
#define VELKORD_FUZZ_CALL_H_

#include <algorithm>

#include "invocation.h"

using ByteView = std::span<const uint8_t>;
using Values = std::vector<ByteVector>;

// What every target defines: it is given each input, as the one value.
void TestInput(const Values& in);

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

inline ByteVector Copy(ByteView in) { return {in.begin(), in.end()}; }

// Bytes again and again, up to a size.
ByteVector Repeat(ByteView in, size_t size);

// Up to three values as the arguments of each call in turn; the last one also stands for all that
// follow. A value of no bytes is a null pointer, and so is a node that a call may release or
// extend. The values must outlive the calls.
class ByteInputs : public Inputs {
 public:
  static constexpr uint32_t kOwnType = UINT32_MAX;

  ByteInputs(const Values& values) {
    for (size_t at = 0; at < values_.size() && !values.empty(); ++at) {
      values_[at] = values[std::min(at, values.size() - 1)];
    }
  }

  int64_t Number() override;
  Anybuf* Node() override;
  Block Bytes(size_t size) override;
  Block Text(bool isTerminated) override;
  size_t Room(const Function& function) override;
  // A call is over: the next one begins with the first value.
  void ExpectUnchanged() override;

  uint32_t type = kOwnType;  // Of nodes, or that of their first octets.

 private:
  ByteView Next() { return values_[std::min(at_++, values_.size() - 1)]; }

  std::array<ByteView, 3> values_;
  std::array<NodePtr, 3> nodes_;
  std::array<ByteVector, 8> made_;  // Of each argument that is not a value as it stands.
  size_t at_ = 0;
};

// The results of a call; none after a failure.
Values Call(const Function& function, ByteInputs& in);

template <auto kFunction>
Values Call(ByteInputs in) {
  static const auto isMeant = [](const Function& one) {
    return one.address == reinterpret_cast<AnyFunction>(kFunction);
  };
  static const Function& function = *std::find_if(Functions().begin(), Functions().end(), isMeant);
  return Call(function, in);
}

// What a function takes apart, put together again by another one, comes apart to the same.
template <auto kRead, auto kWrite>
void Rebuild(const Values& in) {
  const Values parts = Call<kRead>(in);
  if (parts.empty()) return;
  EXPECT_EQ(Call<kRead>(Call<kWrite>(parts)), parts);
}

// What a function makes of a value becomes that value again by another one.
template <auto kThere, auto kBack>
void ComesBack(const Values& in) {
  EXPECT_EQ(Call<kBack>(Call<kThere>(in)), Values{in[0]});
}

#endif  // VELKORD_FUZZ_CALL_H_
