// Calls of the library on a fuzzer's bytes, by the code of the tests and with its demands. The
// first one that is not met ends the program, and the fuzzer keeps the input.
#ifndef VELKORD_FUZZ_CALL_H_
#define VELKORD_FUZZ_CALL_H_

#include <deque>

#include "invocation.h"

// What every target defines: it is given each input.
void TestInput(const ByteVector& in);

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

// Values as the arguments of a call in turn; the last one also stands for all that follow. An empty
// one is a null pointer. Out buffers have the room that the contract of a function asks for.
using Values = std::vector<ByteVector>;
class ByteInputs : public Inputs {
 public:
  explicit ByteInputs(const Values& values) : values_(values), nodes_(values.size()) {}

  static constexpr uint32_t kOwnType = UINT32_MAX;

  // Begins with the first value again. Nodes have a type, or the one of their first octets.
  void Restart(uint32_t type = kOwnType);

  int64_t Number() override;
  Anybuf* Node() override;
  Block Bytes(size_t size) override;
  Block Text(bool isTerminated) override;
  size_t Room(const Function& function) override;
  void ExpectUnchanged() override;

 private:
  const ByteVector& Next() { return Value(at_++); }
  const ByteVector& Value(size_t at) const { return values_[std::min(at, values_.size() - 1)]; }

  const Values& values_;
  std::vector<NodePtr> nodes_;
  uint32_t type_ = kOwnType;
  std::deque<ByteVector> made_;  // Blocks that are not values as they stand.
  size_t at_ = 0;
};

// The results of a call; none after a failure.
Values Call(const Function& function, const Values& in);

template <typename Type>
Values Call(Type* function, const Values& in) {
  return Call(FindFunction(reinterpret_cast<AnyFunction>(function)), in);
}

#endif  // VELKORD_FUZZ_CALL_H_
