#include "comparison.h"

#include <algorithm>

#include "structures.h"

using velkord::Bytes, velkord::Make, velkord::NodePtr, velkord::Out, velkord::View;

namespace {

// Of two elements that differ.
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
  if (written.dataLen < original.dataLen) {
    return "different, since a length is not in its shortest form";
  }
  switch (original.data[0]) {
    case 0x02:
      return "different, since a number is negative";
    case 0x03:
      return "different, since a BIT STRING has unused bits";
    case 0x17:
    case 0x18:
      return "different, since its two times are not in the same form";
    case 0x81:
    case 0x82:
      return "different, since it has a unique identifier";
    default:
      return "different";
  }
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
