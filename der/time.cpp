// UTCTime and GeneralizedTime.
#include "der/time.h"

#include "der/civil_time.h"
#include "platform/local_time.h"

namespace velkord::internal {

namespace {

// Years are counted from 1900, as the platform does.
constexpr int kYearBase = 1900;
constexpr int kFirstUtcTimeYear = 70;
constexpr size_t kMonthToSecondDigits = 10;

// Numbers of two digits each, read from the front of a text that is long enough.
class TwoDigits {
 public:
  explicit TwoDigits(Bytes text) : text_(text) {}

  int Next() {
    const uint32_t tens = text_[0] - uint32_t{'0'};
    const uint32_t ones = text_[1] - uint32_t{'0'};
    text_ = text_.subspan(2);
    areDigits_ &= tens < 10 && ones < 10;
    return static_cast<int>(tens * 10 + ones);
  }

  // Whether all that was read were digits.
  bool AreDigits() const { return areDigits_; }

 private:
  Bytes text_;
  bool areDigits_ = true;
};

uint8_t* PutTwoDigits(uint8_t* place, int value) {
  const auto number = static_cast<uint32_t>(value);
  place[0] = static_cast<uint8_t>('0' + number / 10);
  place[1] = static_cast<uint8_t>('0' + number % 10);
  return place + 2;
}

// The time of a text, and its fields in range.
int32_t ReadText(const DerElement& element, std::tm& fields, int32_t& time) {
  const Bytes text = element.Content();
  const bool hasCentury = element.tag == ReduceTag(kGeneralizedTime);
  const size_t digits = (hasCentury ? 4 : 2) + kMonthToSecondDigits;
  if (text.size() <= digits || text[digits] != 'Z') return VELKORD_BAD_TIME;

  TwoDigits numbers(text);
  const int century = hasCentury ? numbers.Next() * 100 - kYearBase : 0;
  const int year = numbers.Next();
  fields.tm_year = century + year + (!hasCentury && year < kFirstUtcTimeYear ? 100 : 0);
  fields.tm_mon = numbers.Next() - 1;
  fields.tm_mday = numbers.Next();
  fields.tm_hour = numbers.Next();
  fields.tm_min = numbers.Next();
  fields.tm_sec = numbers.Next();
  if (!numbers.AreDigits()) return VELKORD_BAD_TIME;
  return FromLocalTime(fields, time) ? VELKORD_OK : VELKORD_OUT_OF_MEMORY;
}

// Whether the low byte of a `dataType` is that of a form. 0 or -7.
int32_t CheckForm(uint8_t form, uint32_t dataType) {
  return (dataType & 0xFF) == ReduceTag(form) ? VELKORD_OK : VELKORD_WRONG_TAG;
}

uint8_t FormByFirstOctet(Bytes in) {
  return !in.empty() && in[0] == kUtcTime ? kUtcTime : kGeneralizedTime;
}

// Opens the element of a node whose `dataType` must be that of `form`. The length in its header
// does not count: the element ends with the node. 0, -7, then -1 or -2 from the header.
int32_t OpenNode(const Anybuf& source, uint8_t form, DerElement& element) {
  VELKORD_TRY(CheckForm(form, source.dataType));
  const Bytes in = NodeBytes(source);
  Bytes text = in;
  uint32_t tag;
  uint32_t length;
  VELKORD_TRY(DerParseTag(text, tag));
  VELKORD_TRY(DerParseLength(text, length));
  element = {tag, in.size() - text.size(), in};
  return VELKORD_OK;
}

int32_t MakeNode(const TimeElement& element, uint8_t tag, Anybuf** out) {
  const int32_t code = DerCopyBytes(element.Whole(), ReduceTag(tag), 0, out);
  return code == VELKORD_OK ? VELKORD_OK : VELKORD_OUT_OF_MEMORY;
}

int32_t Rewrite(const DerElement& element, uint8_t form, Anybuf** out) {
  std::tm fields{};
  int32_t time;
  VELKORD_TRY(ReadText(element, fields, time));
  TimeElement written;
  written.Set(fields, form);
  return MakeNode(written, form, out);
}

}  // namespace

int32_t TimeElement::Set(int32_t time, uint8_t tag) {
  if (time < 0) return VELKORD_NEGATIVE_TIME;
  std::tm fields{};
  FollowZone();
  if (!LocalFields(time, fields)) return VELKORD_OUT_OF_MEMORY;
  Set(fields, tag);
  return VELKORD_OK;
}

void TimeElement::Set(const std::tm& fields, uint8_t tag) {
  octets_[0] = tag;
  uint8_t* const text = octets_ + 2;
  uint8_t* end = text;
  const int year = fields.tm_year + kYearBase;
  if (tag == kGeneralizedTime) end = PutTwoDigits(end, year / 100);
  end = PutTwoDigits(end, year % 100);
  end = PutTwoDigits(end, fields.tm_mon + 1);
  end = PutTwoDigits(end, fields.tm_mday);
  end = PutTwoDigits(end, fields.tm_hour);
  end = PutTwoDigits(end, fields.tm_min);
  end = PutTwoDigits(end, fields.tm_sec);
  *end++ = 'Z';
  octets_[1] = static_cast<uint8_t>(end - text);
  size_ = static_cast<size_t>(end - octets_);
}

int32_t TimeRead(const DerElement& element, int32_t& time) {
  std::tm fields{};
  return ReadText(element, fields, time);
}

int32_t TimeReadByFirstOctet(const DerElement& element, uint8_t& form, int32_t& time) {
  form = FormByFirstOctet(element.whole);
  VELKORD_TRY(CheckForm(form, element.tag));
  return TimeRead(element, time);
}

int32_t TimeRewrite(const DerElement& element, Anybuf** out) {
  const uint8_t form = FormByFirstOctet(element.whole);
  VELKORD_TRY(CheckForm(form, element.tag));
  return Rewrite(element, form, out);
}

int32_t TimeRewrite(const Anybuf& source, Anybuf** out) {
  const uint8_t form = FormByFirstOctet(NodeBytes(source));
  DerElement element;
  VELKORD_TRY(OpenNode(source, form, element));
  return Rewrite(element, form, out);
}

}  // namespace velkord::internal

using namespace velkord::internal;

namespace {

int32_t WriteTime(const int32_t* time, uint8_t tag, Anybuf** out) {
  if (time == nullptr || out == nullptr) return VELKORD_NULL_ARGUMENT;
  TimeElement element;
  VELKORD_TRY(element.Set(*time, tag));
  return MakeNode(element, tag, out);
}

int32_t ReadTime(const Anybuf* source, uint8_t form, int32_t* time) {
  if (source == nullptr || time == nullptr) return VELKORD_NULL_ARGUMENT;
  DerElement element;
  VELKORD_TRY(OpenNode(*source, form, element));
  return TimeRead(element, *time);
}

}  // namespace

int32_t ASN1_WriteGeneralizedTime(const int32_t* time, Anybuf** out) {
  return WriteTime(time, kGeneralizedTime, out);
}

int32_t ASN1_WriteUtcTime(const int32_t* time, Anybuf** out) {
  return WriteTime(time, kUtcTime, out);
}

int32_t ASN1_ReadGeneralizedTime(const Anybuf* source, int32_t* time) {
  return ReadTime(source, kGeneralizedTime, time);
}

int32_t ASN1_ReadUtcTime(const Anybuf* source, int32_t* time) {
  return ReadTime(source, kUtcTime, time);
}
