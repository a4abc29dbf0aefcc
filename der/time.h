// Time ::= CHOICE { utcTime UTCTime, generalTime GeneralizedTime }
// Unlike the standard's, the text is the machine's local time, yet followed by "Z".
#ifndef VELKORD_DER_TIME_H_
#define VELKORD_DER_TIME_H_

#include <ctime>

#include "der/node.h"

namespace velkord::internal {

// The element of a time.
class TimeElement {
 public:
  // In the form of `tag`, UTCTime or GeneralizedTime. 0, -4 for a negative time, or -7000.
  int32_t Set(int32_t time, uint8_t tag);
  // The same of local time, whose fields are in range.
  void Set(const std::tm& fields, uint8_t tag);

  // Empty before a time is set.
  Bytes Whole() const { return {octets_, size_}; }

 private:
  uint8_t octets_[17] = {};
  size_t size_ = 0;
};

// Reads a time in the form that its tag selects, UTCTime for any but GeneralizedTime. All bytes
// after the header are its text. 0, -5, or -7000.
int32_t TimeRead(const DerElement& element, int32_t& time);

// The same in the form that the first octet selects: UTCTime by its tag, else GeneralizedTime. -7
// for a reduced tag that is not that form's.
int32_t TimeReadByFirstOctet(const DerElement& element, uint8_t& form, int32_t& time);

// Makes a TLV node of such an element: its time, written again in that form.
int32_t TimeRewrite(const DerElement& element, Anybuf** out);
// The same of a node by its `dataType`; -1 or -2 from the header.
int32_t TimeRewrite(const Anybuf& source, Anybuf** out);

}  // namespace velkord::internal

#endif  // VELKORD_DER_TIME_H_
