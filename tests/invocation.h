// A call of a library function whose arguments come from text and whose results become text. What
// an argument is for follows from its type and place: bytes and text are followed by their length,
// an out buffer by its size.
#ifndef VELKORD_TESTS_INVOCATION_H_
#define VELKORD_TESTS_INVOCATION_H_

#include <list>
#include <tuple>
#include <type_traits>

#include "hex.h"

using Arguments = std::vector<std::string>;

// Expects that all out arguments were left alone.
inline void ExpectKept(const std::string& results) {
  EXPECT_EQ(results.find_first_not_of("kept ;"), std::string::npos) << results;
}

class Invocation {
 public:
  // With the out argument of number `nulled` a null pointer.
  explicit Invocation(const Arguments& in, size_t nulled = SIZE_MAX) : in_(in), nulled_(nulled) {}

  // Gives the code of the function, 0 for one without. Its inputs must stay as they are.
  template <typename Result, typename... Parameters>
  int32_t Run(Result (*function)(Parameters...)) {
    std::tuple<Parameters...> arguments{Take(static_cast<Parameters*>(nullptr))...};
    const std::string inputs = Inputs();
    const auto call = [&] {
      if constexpr (std::is_void_v<Result>) {
        std::apply(function, arguments);
        return 0;
      } else {
        return static_cast<int32_t>(std::apply(function, arguments));
      }
    };
    // Only some failures leave all out arguments alone; the callers know which.
    const int32_t code =
        callHook(reinterpret_cast<AnyFunction>(function), call, [this] { ExpectKept(Results()); });
    EXPECT_EQ(Inputs(), inputs);
    return code;
  }

  // Number of out arguments, sizes of buffers among them.
  size_t OutCount() const { return outCount_; }

  // All out arguments, " ; " between them; `kept` for one that was left alone.
  std::string Results();

 private:
  struct Out {
    explicit Out(char kindOfOut) : kind(kindOfOut) {}
    char kind;  // 'n'ode, 'b'ytes, 't'ext or 'i'nteger.
    Anybuf untouched{};
    Anybuf* node = &untouched;
    Buffer buffer;
    bool sized = false;
    uint32_t size = 1;  // Of bytes that no size goes with: a record, or else one byte.
    int32_t integer = kUntouchedInteger;
  };

  static constexpr int32_t kUntouchedInteger = 99;

  std::string Inputs() const;

  bool NextIsNulled() { return outCount_++ == nulled_; }

  Out* AddOut(char kind) {
    outs_.emplace_back(kind);
    return NextIsNulled() ? nullptr : &outs_.back();
  }

  const std::string& Next() { return at_ < in_.size() ? in_[at_++] : none_; }

  template <typename Integer>
  Integer TakeInteger() {
    const bool isLength = length_ >= 0;
    const int64_t value = isLength ? length_ : std::stoll(Next(), nullptr, 0);
    length_ = -1;
    return static_cast<Integer>(value);
  }

  uint32_t Take(uint32_t*) { return TakeInteger<uint32_t>(); }
  int32_t Take(int32_t*) { return TakeInteger<int32_t>(); }
  uint8_t Take(uint8_t*) { return TakeInteger<uint8_t>(); }

  const Anybuf* Take(const Anybuf**) { return nodes_.emplace_back(ToNode(Next())).get(); }

  const int32_t* Take(const int32_t**) {
    return &integers_.emplace_back(static_cast<int32_t>(std::stoll(Next(), nullptr, 0)));
  }

  const uint8_t* Take(const uint8_t**) {
    const std::string& text = Next();
    const ByteVector& bytes = bytes_.emplace_back(text == "null" ? ByteVector(1) : FromHex(text));
    length_ = static_cast<int64_t>(bytes.size());
    return text == "null" ? nullptr : bytes.data();
  }

  // A line end in a text is written as `|`.
  const char* Take(const char**);

  // A flat record as its bytes.
  template <typename Record>
  const Record* Take(const Record**) {
    const std::string& text = Next();
    if (text == "null") return nullptr;
    const ByteVector& bytes = bytes_.emplace_back(FromHex(text));
    EXPECT_EQ(bytes.size(), sizeof(Record));
    return reinterpret_cast<const Record*>(bytes.data());
  }

  template <typename Record>
  Record* Take(Record**) {
    Out* out = AddOut('b');
    if (out == nullptr) return nullptr;
    out->size = sizeof(Record);
    return reinterpret_cast<Record*>(out->buffer.Data());
  }

  Anybuf** Take(Anybuf***) {
    Out* out = AddOut('n');
    return out == nullptr ? nullptr : &out->node;
  }

  uint8_t* Take(uint8_t**) {
    Out* out = AddOut('b');
    return out == nullptr ? nullptr : out->buffer.Data();
  }

  char* Take(char**) {
    Out* out = AddOut('t');
    return out == nullptr ? nullptr : reinterpret_cast<char*>(out->buffer.Data());
  }

  int32_t* Take(int32_t**) {
    Out* out = AddOut('i');
    return out == nullptr ? nullptr : &out->integer;
  }

  uint32_t* Take(uint32_t**) {
    const bool isSize = !outs_.empty() && !outs_.back().sized &&
                        (outs_.back().kind == 'b' || outs_.back().kind == 't');
    if (!isSize) return reinterpret_cast<uint32_t*>(Take(static_cast<int32_t**>(nullptr)));
    outs_.back().sized = true;
    return NextIsNulled() ? nullptr : &outs_.back().buffer.size;
  }

  static std::string Result(Out& out);

  const Arguments& in_;
  const size_t nulled_;
  const std::string none_;
  size_t at_ = 0;
  size_t outCount_ = 0;
  int64_t length_ = -1;
  std::list<NodePtr> nodes_;
  std::list<ByteVector> bytes_;
  std::list<std::string> texts_;
  std::list<int32_t> integers_;
  std::list<Out> outs_;
};

#endif  // VELKORD_TESTS_INVOCATION_H_
