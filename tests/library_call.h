// How the tests call the library: plainly, unless a program puts another way in place that makes
// the same call several times, as the one that lets requests for memory fail does.
#ifndef VELKORD_TESTS_LIBRARY_CALL_H_
#define VELKORD_TESTS_LIBRARY_CALL_H_

#include <cstdint>
#include <functional>

// Stands for a function of any type.
using AnyFunction = void (*)();
using LibraryCall = std::function<int32_t()>;
using Check = std::function<void()>;

inline int32_t (*callHook)(AnyFunction, const LibraryCall&, const Check&) = nullptr;

// Gives the code of `call`, which calls `function`. After a failure `isAsBefore` expects that
// nothing has changed.
template <typename Function>
int32_t CallLibrary(Function* function, const LibraryCall& call, const Check& isAsBefore) {
  const auto address = reinterpret_cast<AnyFunction>(function);
  const int32_t code = callHook ? callHook(address, call, isAsBefore) : call();
  if (code < 0) isAsBefore();
  return code;
}

#endif  // VELKORD_TESTS_LIBRARY_CALL_H_
