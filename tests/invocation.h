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

// Where the arguments of a call come from: the text of a case, or the bytes of a fuzzer. Here all
// are zero.
class Inputs {
 public:
  struct Block {
    const uint8_t* data;
    size_t size;
  };

  virtual ~Inputs() = default;
  virtual int64_t Number() { return 0; }
  virtual Anybuf* Node() { return nullptr; }
  // A node that the function may release, and that a call which returned 0 did.
  virtual Anybuf* GivenNode() { return nullptr; }
  virtual void LetGo() {}
  // Bytes; of exactly `size` when that is not 0.
  virtual Block Bytes(size_t /*size*/) { return {}; }
  virtual Block Text(bool /*isTerminated*/) { return {}; }
  virtual size_t Room(const Function&) { return 0; }  // Of an out buffer.
  virtual void ExpectUnchanged() {}
  virtual void BeforeObject(size_t) {}  // An object of that size is about to be made.
};

// Whether a record owns nodes. The records of keys are flat.
template <typename Type, typename... Types>
inline constexpr bool kIsOneOf = (std::is_same_v<Type, Types> || ...);
template <typename Record>
inline constexpr bool kOwnsNodes =
    std::is_class_v<Record> &&
    !kIsOneOf<Record, Anybuf, ZantPublicKey, ZantPrivateKey, EccPubkey, EccPrikey>;

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

  // Returns the code of the function, 0 for one without.
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
    const int32_t code = CallLibrary(function_, call, [this] { ExpectKept(); });
    Settle(code);
    return code;
  }

 private:
  // The call makes what is of the first three kinds, and writes a pointer to it.
  enum class Kind { kNode, kRecord, kBlock, kNumber, kBytes, kText };
  struct Out {
    void Settle(int32_t code, const Rule& rule);
    bool IsWritten() const { return buffer.size != Buffer::kNoSize; }
    std::string Text() const;
    ByteVector Bytes() const;
    template <typename Value>
    Value As() const {
      const void* bytes = buffer.bytes.data();
      return *static_cast<const Value*>(bytes);
    }

    Kind kind = Kind::kNode;
    size_t parameter = 0;
    uint32_t fixedSize = 0;  // Where no size goes with it.
    bool isSized = false;
    Buffer buffer{0};
    const RecordType* type = nullptr;
  };

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
  Anybuf* Take(Anybuf**) { return in_.GivenNode(); }
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
  std::enable_if_t<std::is_class_v<Record>, Record*> Take(Record**) {
    if constexpr (kOwnsNodes<std::remove_const_t<Record>>) {
      const auto* bytes = static_cast<const uint8_t*>(subject_);
      if (subject_ != nullptr) before_.assign(bytes, bytes + sizeof(Record));
      return static_cast<Record*>(subject_);
    } else if constexpr (std::is_const_v<Record>) {
      const void* bytes = in_.Bytes(sizeof(Record)).data;
      return static_cast<Record*>(bytes);
    } else {
      return static_cast<Record*>(TakeOut(Kind::kBytes, sizeof(Record)));
    }
  }

  template <typename Object>
  Object** Take(Object***) {
    constexpr Kind kKind = kOwnsNodes<Object>        ? Kind::kRecord
                           : std::is_class_v<Object> ? Kind::kNode
                                                     : Kind::kBlock;
    in_.BeforeObject(sizeof(Object));
    void* place = TakeOut(kKind, sizeof(Object*));
    LastOut().type = &TypeOf<Object>();
    return static_cast<Object**>(place);
  }
  uint8_t* Take(uint8_t**) { return static_cast<uint8_t*>(TakeOut(Kind::kBytes, 1)); }
  char* Take(char**) { return static_cast<char*>(TakeOut(Kind::kText, 0)); }
  int32_t* Take(int32_t**) {
    return static_cast<int32_t*>(TakeOut(Kind::kNumber, sizeof(int32_t)));
  }
  uint32_t* Take(uint32_t**) {
    if (!std::exchange(sizeIsNext_, false)) {
      return reinterpret_cast<uint32_t*>(Take(static_cast<int32_t**>(nullptr)));
    }
    return IsNulled() ? nullptr : &LastOut().buffer.size;
  }

  void* TakeOut(Kind kind, uint32_t fixedSize);  // Null when the argument is to be.
  Out& LastOut() { return outs_[outCount_ - 1]; }
  std::span<const Out> Outs() const { return std::span(outs_).first(outCount_); }
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
  ByteVector before_;  // The bytes of `subject_`.
  // Without blocks of their own, which would take the fuzzers most of their time.
  std::array<Out, 3> outs_;
  size_t outCount_ = 0;
  std::array<size_t, 4> pointers_{};  // The out arguments, sizes among them.
  size_t pointerCount_ = 0;
};

#endif  // VELKORD_TESTS_INVOCATION_H_
