// Calls of readers on one input. What holds for every reader is demanded after each call: a refusal
// leaves all out arguments untouched, what is made is whole, nothing is written past its room.
#ifndef VELKORD_FUZZ_READING_H_
#define VELKORD_FUZZ_READING_H_

#include <array>
#include <cstdlib>
#include <tuple>
#include <utility>

#include "blocks.h"

// A time and its text are one in a zone without daylight saving.
inline const int kZoneIsSet = setenv("TZ", "UTC0", 1);

// Which out arguments a reader writes: on success all of them, on refusal none; a number even when
// a later test refuses; or of the nodes only those that are present.
enum class Outs { kAllOrNone, kNumberFirst, kPresentNodes };

class Reading {
 public:
  explicit Reading(std::span<const uint8_t> input)
      : input_(input),
        node_(MakeNode(input)),
        buffers_{Buffer(input.size()), Buffer(input.size())} {}

  // The input as a node; its type may be changed.
  Anybuf& Node() { return *node_; }

  // Calls a reader with the input as its node or bytes. Whether it succeeded.
  template <typename... Parameters>
  bool Accepts(int32_t (*read)(Parameters...), Outs outs = Outs::kAllOrNone) {
    nodeCount_ = numberCount_ = bufferCount_ = 0;
    std::tuple<Parameters...> arguments{Argument(static_cast<Parameters*>(nullptr))...};
    const int32_t code = std::apply(read, arguments);
    REQUIRE(code <= 0);
    RequireOuts(code == 0, outs);
    REQUIRE(Same(View(*node_), input_));
    return code == 0;
  }

 private:
  const Anybuf* Argument(const Anybuf**) { return node_.get(); }
  const uint8_t* Argument(const uint8_t**) { return input_.data(); }
  uint32_t Argument(uint32_t*) { return static_cast<uint32_t>(input_.size()); }

  Anybuf** Argument(Anybuf***) {
    Anybuf*& out = nodes_.at(nodeCount_++);
    out = &untouched_;
    return &out;
  }

  uint8_t* Argument(uint8_t**) {
    Buffer& buffer = buffers_.at(bufferCount_++);
    buffer.Reset();
    sizeIsNext_ = true;
    return buffer.bytes.get();
  }

  uint32_t* Argument(uint32_t**) {
    if (std::exchange(sizeIsNext_, false)) return &buffers_.at(bufferCount_ - 1).size;
    uint32_t& out = numbers_.at(numberCount_++);
    out = kNoSize;
    return &out;
  }

  int32_t* Argument(int32_t**) {
    return reinterpret_cast<int32_t*>(Argument(static_cast<uint32_t**>(nullptr)));
  }

  void RequireOuts(bool succeeded, Outs outs) {
    for (Anybuf* node : std::span(nodes_).first(nodeCount_)) {
      const bool isWritten = node != &untouched_;
      REQUIRE(isWritten == succeeded || (succeeded && outs == Outs::kPresentNodes));
      if (isWritten) RequireChain(NodePtr(node).get());
    }
    for (const Buffer& buffer : std::span(buffers_).first(bufferCount_)) {
      REQUIRE((buffer.size != kNoSize) == succeeded);
      REQUIRE(!succeeded || buffer.size <= buffer.room);
      REQUIRE(buffer.IsUntouched(succeeded ? buffer.size : 0));
    }
    for (const uint32_t number : std::span(numbers_).first(numberCount_)) {
      REQUIRE(succeeded || number == kNoSize || outs == Outs::kNumberFirst);
    }
  }

  static void RequireChain(const Anybuf* chain) {
    const Anybuf* last = nullptr;
    for (const Anybuf* node = chain; node != nullptr; last = node, node = node->next) {
      REQUIRE(node->data != nullptr && node->memKind == 2 && node->prev == last);
    }
  }

  std::span<const uint8_t> input_;
  NodePtr node_;
  Anybuf untouched_{};
  std::array<Anybuf*, 3> nodes_{};
  size_t nodeCount_ = 0;
  std::array<uint32_t, 2> numbers_{};
  size_t numberCount_ = 0;
  std::array<Buffer, 2> buffers_;
  size_t bufferCount_ = 0;
  bool sizeIsNext_ = false;
};

#endif  // VELKORD_FUZZ_READING_H_
