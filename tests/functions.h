// All functions of the library and the records that they work on, as scripts/bindings.py lists them
// from the header, with what is special about some.
#ifndef VELKORD_TESTS_FUNCTIONS_H_
#define VELKORD_TESTS_FUNCTIONS_H_

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

class Invocation;
struct Function;
using AnyFunction = void (*)();  // Stands for a function of any type.

// Which out arguments a success writes.
enum class Writes { kAll, kAllOrNone, kSome };

// What a family of functions does in its own way.
struct Rule {
  static constexpr int32_t kTakesNoNull = 1;

  const char* prefix = "";       // Of the functions' names.
  int32_t refusal = 0;           // The code where a null pointer stands for an out argument.
  Writes writes = Writes::kAll;  // Of its out arguments.
  const char* mayBeNull = "";    // The out arguments that are not required.
  bool writesBeforeFailing = false;
};

// A record that owns nodes.
struct RecordType {
  struct Field {
    std::string name;
    size_t offset;
    size_t size;
    bool isNode;
    bool isNumber;
  };

  // The fields that are not zero, by their names. All bytes between fields must be zero.
  std::string Describe(const void* record) const;

  size_t size = 0;
  std::vector<Field> fields;
  std::function<int32_t(void**)> create;
  std::function<void(void*)> release;
  std::function<void(void*)> restore;  // Of fuzzers: makes it one that is written as it was read.
  const Function* write = nullptr;
  std::vector<const Function*> setters;
};

struct Function {
  std::string name;
  std::vector<std::string> parameters;
  AnyFunction address;
  const Rule* rule;
  RecordType* subject = nullptr;  // The record that it works on.
  std::function<int32_t(Invocation&)>
      run;  // Empty for one that returns a pointer or releases a record.
};

// Null for an unknown name.
const Function* FindFunction(const std::string& name);
const RecordType* FindRecordType(const std::string& name);

const std::vector<Function>& Functions();

// How the tests call a function: plainly, unless a program puts another way in place that makes the
// same call several times, as the one that lets requests for memory fail does. Returns the code;
// after a failure `isAsBefore` expects that nothing has changed.
using LibraryCall = std::function<int32_t()>;
using Check = std::function<void()>;
inline int32_t (*callHook)(const Function&, const LibraryCall&, const Check&) = nullptr;
int32_t CallLibrary(const Function& function, const LibraryCall& call, const Check& isAsBefore);

#endif  // VELKORD_TESTS_FUNCTIONS_H_
