// A call of a library function. What an argument is for follows from its type and place: bytes and
// text are followed by their length, an out buffer by its size. What holds for all functions is
// demanded of every call: inputs stay as they are, a failure changes no out argument and no record,
// nothing is written past what is handed out, and chains are whole.
#ifndef VELKORD_TESTS_INVOCATION_H_
#define VELKORD_TESTS_INVOCATION_H_

#include <array>
#include <optional>
#include <tuple>
#include <type_traits>
#include <utility>

#include "functions.h"
#include "hex.h"

// Where the arguments of a call come from: the text of a case, or the bytes of a fuzzer.
class Inputs {
 public:
  struct Block {
    const uint8_t* data;
    size_t size;
  };

  virtual ~Inputs() = default;
  virtual int64_t Number() = 0;
  virtual Anybuf* Node() = 0;
  // Bytes; of exactly `size` when that is not 0.
  virtual Block Bytes(size_t size) = 0;
  virtual Block Text(bool isTerminated) = 0;
  virtual size_t Room(const Function& function) = 0;  // Of an out buffer.
  virtual void ExpectUnchanged() = 0;
  virtual void BeforeRecord(size_t) {}  // Of that size is about to be made.
};

// Whether a record owns nodes. The records of keys are flat.
template <typename Record>
inline constexpr bool kOwnsNodes = false;
#define FUNCTION(name, parameters)
#define FIELD(record, name)
#define RECORD(name) \
  template <>        \
  inline constexpr bool kOwnsNodes<name> = !std::is_same_v<name, Anybuf>;
#include "functions.inc"
#undef RECORD
#undef FIELD
#undef FUNCTION

template <typename Record>
RecordType& TypeOf() {
  static RecordType type;
  return type;
}

class Invocation {
 public:
  static constexpr size_t kNone = SIZE_MAX;

  // The out argument of number `nulled` is a null pointer.
  Invocation(const Function& function, Inputs& in, void* subject = nullptr, size_t nulled = kNone)
      : function_(function), in_(in), subject_(subject), nulled_(nulled) {}
  Invocation(const Invocation&) = delete;
  Invocation& operator=(const Invocation&) = delete;
  ~Invocation();

  // Gives the code of the function, 0 for one without.
  int32_t Run() { return function_.run(*this); }

  // The parameters of the out arguments, those of sizes among them.
  size_t OutCount() const { return pointerCount_; }
  const std::string& OutName(size_t number) const {
    return function_.parameters[pointers_[number]];
  }
  bool HasResults() const;
  // Of the first out argument, where that is a buffer with a size.
  uint32_t SizeOfFirst() const { return outs_[0].isSized ? outs_[0].buffer.size : 0; }

  // What was written: as text, by the names of the out arguments where there are several, and as
  // bytes. A record of nodes is its fields and what it is written as.
  std::string Results() const;
  std::vector<ByteVector> Bytes() const;

  // Calls a function of the same type as this one's.
  template <typename Result, typename... Parameters>
  int32_t Apply(Result (*function)(Parameters...)) {
    static constexpr bool kIsInteger[] = {std::is_integral_v<Parameters>..., false};
    static constexpr bool kIsSize[] = {std::is_same_v<Parameters, uint32_t*>..., false};
    isInteger_ = kIsInteger;
    isSize_ = kIsSize;
    std::tuple<Parameters...> arguments{TakeNext<Parameters>()...};
    const auto call = [&] {
      if constexpr (std::is_void_v<Result>) {
        std::apply(function, arguments);
        return 0;
      } else {
        return static_cast<int32_t>(std::apply(function, arguments));
      }
    };
    const int32_t code =
        callHook ? callHook(function_.address, call, [this] { ExpectKept(); }) : call();
    Settle(code);
    return code;
  }

 private:
  enum class Kind { kNode, kRecord, kBytes, kText, kNumber };
  struct Out {
    void Settle(int32_t code, const Rule& rule);
    bool IsWritten() const;
    std::string Text() const;
    ByteVector Bytes() const;

    Kind kind = Kind::kNode;
    size_t parameter = 0;
    void* object = &untouched;  // A node or a record.
    const RecordType* type = nullptr;
    int32_t number = kUntouchedNumber;
    Buffer buffer{0};
    bool isSized = false;
    uint32_t fixedSize = 0;  // Of bytes that no size goes with.
  };

  static inline Anybuf untouched;
  static constexpr int32_t kUntouchedNumber = 0x6E6E6E6E;

  template <typename Parameter>
  Parameter TakeNext() {
    ++at_;
    return Take(static_cast<Parameter*>(nullptr));
  }

  template <typename Integer>
  std::enable_if_t<std::is_integral_v<Integer>, Integer> Take(Integer*) {
    return static_cast<Integer>(length_ ? *std::exchange(length_, {}) : in_.Number());
  }
  const int32_t* Take(const int32_t**) { return &(time_ = static_cast<int32_t>(in_.Number())); }
  const Anybuf* Take(const Anybuf**) { return in_.Node(); }
  // A pointer without a length is to one byte.
  const uint8_t* Take(const uint8_t**) { return Take(in_.Bytes(isInteger_[at_] ? 0 : 1)); }
  const char* Take(const char**) {
    return reinterpret_cast<const char*>(Take(in_.Text(!isInteger_[at_])));
  }
  const uint8_t* Take(Inputs::Block block) {
    if (isInteger_[at_]) length_ = static_cast<int64_t>(block.size);
    return block.data;
  }

  // A record of nodes is what the function works on.
  template <typename Record>
  std::enable_if_t<std::is_class_v<Record>, const Record*> Take(const Record**) {
    if constexpr (kOwnsNodes<Record>) return static_cast<const Record*>(subject_);
    return reinterpret_cast<const Record*>(in_.Bytes(sizeof(Record)).data);
  }
  template <typename Record>
  std::enable_if_t<std::is_class_v<Record>, Record*> Take(Record**) {
    if constexpr (kOwnsNodes<Record>) {
      const auto* bytes = static_cast<const uint8_t*>(subject_);
      if (subject_ != nullptr) before_.assign(bytes, bytes + sizeof(Record));
      return static_cast<Record*>(subject_);
    }
    return reinterpret_cast<Record*>(TakeBuffer(Kind::kBytes, sizeof(Record)));
  }

  Anybuf** Take(Anybuf***) {
    Out* out = Add(Kind::kNode);
    return out ? reinterpret_cast<Anybuf**>(&out->object) : nullptr;
  }
  template <typename Record>
  Record** Take(Record***) {
    Out* out = Add(Kind::kRecord);
    outs_[outCount_ - 1].type = &TypeOf<Record>();
    in_.BeforeRecord(sizeof(Record));
    return out ? reinterpret_cast<Record**>(&out->object) : nullptr;
  }
  uint8_t* Take(uint8_t**) { return TakeBuffer(Kind::kBytes, 1); }
  char* Take(char**) { return reinterpret_cast<char*>(TakeBuffer(Kind::kText, 0)); }
  int32_t* Take(int32_t**) {
    Out* out = Add(Kind::kNumber);
    return out ? &out->number : nullptr;
  }
  uint32_t* Take(uint32_t**) {
    if (!std::exchange(sizeIsNext_, false)) {
      return reinterpret_cast<uint32_t*>(Take(static_cast<int32_t**>(nullptr)));
    }
    return IsNulled() ? nullptr : &outs_[outCount_ - 1].buffer.size;
  }

  uint8_t* TakeBuffer(Kind kind, uint32_t fixedSize);
  Out* Add(Kind kind);  // Null when the argument is to be.
  bool IsNulled();

  void ExpectKept() const;
  void Settle(int32_t code);

  const Function& function_;
  Inputs& in_;
  void* subject_;
  const size_t nulled_;
  const bool* isInteger_ = nullptr;  // Of each parameter, and false at the end.
  const bool* isSize_ = nullptr;
  size_t at_ = 0;  // The parameter after the one that is taken.
  std::optional<int64_t> length_;
  bool sizeIsNext_ = false;
  int32_t time_ = 0;
  ByteVector before_;  // The bytes of `subject_`, where the function may change it.
  std::array<Out, 3> outs_;
  size_t outCount_ = 0;
  std::array<size_t, 4> pointers_{};  // The out arguments, sizes among them.
  size_t pointerCount_ = 0;
};

// What a record is written as, or the code.
std::string Written(const RecordType& type, void* record);

#endif  // VELKORD_TESTS_INVOCATION_H_
