#include "comparison.h"

#include <algorithm>
#include <utility>

#include "structures.h"

using velkord::Bytes, velkord::Make, velkord::NodePtr, velkord::Out, velkord::View;

namespace {

// What writing again loses in an element, by its tag.
using Reason = std::pair<uint8_t, std::string_view>;
constexpr Reason kReasons[] = {
    {0x02, "different, since a number is negative"},
    {0x03, "different, since a BIT STRING has unused bits"},
    {0x81, "different, since it has a unique identifier"},
    {0x82, "different, since it has a unique identifier"},
};

// Of two elements that differ. Records keep what is deeper than their fields, so it is the same.
// NOLINTNEXTLINE(misc-no-recursion): it ends below the fields.
std::string_view Difference(const Anybuf& written, const Anybuf& original) {
  // Null for what is no SEQUENCE.
  NodePtr ours;
  NodePtr theirs;
  ASN1_ReadSequence(&written, Out(ours));
  ASN1_ReadSequence(&original, Out(theirs));
  for (const Anybuf *our = ours.get(), *their = theirs.get(); our != nullptr && their != nullptr;
       our = our->next, their = their->next) {
    if (!SameBytes(*our, View(*their))) return Difference(*our, *their);
  }
  if (written.data[0] == original.data[0] &&
      std::ranges::equal(velkord::Content(View(written)), velkord::Content(View(original)))) {
    return "different, since a length is not in its shortest form";
  }
  const auto* reason = std::ranges::find(kReasons, original.data[0], &Reason::first);
  return reason == std::end(kReasons) ? "different" : reason->second;
}

}  // namespace

bool SameBytes(const Anybuf& written, Bytes original) {
  return std::ranges::equal(View(written), original);
}

std::string_view Comparison(const Anybuf& written, Bytes original) {
  if (SameBytes(written, original)) return "identical";
  return Difference(written, *Element(original, "open what was read"));
}

NodePtr WithoutFirst(const Anybuf& sequence) {
  return Make("leave out the version", ASN1_WriteSequence,
              SplitPair(sequence, "split the signed part")->next);
}
