// Calls of the library on a fuzzer's bytes, by the code of the tests and with its demands. The
// first one that is not met ends the program, and the fuzzer keeps the input.
#ifndef VELKORD_FUZZ_CALL_H_
#define VELKORD_FUZZ_CALL_H_

#include <algorithm>

#include "invocation.h"

using ByteView = std::span<const uint8_t>;
using Values = std::vector<ByteVector>;

// What every target defines: it is given each input.
void TestInput(ByteView in);

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

// Bytes again and again, up to a size.
ByteVector Repeat(ByteView in, size_t size);

// Up to three values as the arguments of each call in turn; the last one also stands for all that
// follow. A null value is a null pointer. The values must outlive the calls.
class ByteInputs : public Inputs {
 public:
  static constexpr uint32_t kOwnType = UINT32_MAX;

  ByteInputs(std::initializer_list<ByteView> values) : ByteInputs(values.begin(), values.size()) {}
  ByteInputs(const Values& values) : ByteInputs(values.data(), values.size()) {}

  int64_t Number() override;
  Anybuf* Node() override;
  Block Bytes(size_t size) override;
  Block Text(bool isTerminated) override;
  size_t Room(const Function&) override { return room; }
  // A call is over: the next one begins with the first value.
  void ExpectUnchanged() override;

  size_t room = 0;           // Of out buffers, as the contract of a function asks for it.
  uint32_t type = kOwnType;  // Of nodes, or that of their first octets.

 private:
  template <typename Value>
  ByteInputs(const Value* values, size_t count) {
    for (size_t at = 0; at < values_.size() && count != 0; ++at) {
      values_[at] = values[std::min(at, count - 1)];
    }
    room = values_[0].size();
  }
  ByteView Next() { return values_[std::min(at_++, values_.size() - 1)]; }

  std::array<ByteView, 3> values_;
  std::array<NodePtr, 3> nodes_;
  std::array<ByteVector, 8> made_;  // Of each argument that is not a value as it stands.
  size_t at_ = 0;
};

// The results of a call; none after a failure.
Values Call(const Function& function, ByteInputs& in);

template <typename Type>
const Function& Find(Type* function) {
  return FindFunction(reinterpret_cast<AnyFunction>(function));
}

// Out buffers have the room of the first value where none is told.
template <typename Type>
Values Call(Type* function, ByteInputs in, std::optional<size_t> room = {}) {
  in.room = room.value_or(in.room);
  return Call(Find(function), in);
}

// Those of the functions that an Invocation calls.
std::vector<const Function*> Select(bool (*isMeant)(const Function&));

// The node that a function makes, or null.
template <typename... Parameters, typename... In>
NodePtr Make(int32_t (*function)(Parameters...), In... in) {
  Anybuf* node = nullptr;
  return function(in..., &node) == 0 ? NodePtr(node) : nullptr;
}

#endif  // VELKORD_FUZZ_CALL_H_
