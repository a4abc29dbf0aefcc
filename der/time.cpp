// UTCTime and GeneralizedTime.
#include "der/time.h"

#include <algorithm>

#include "platform/local_time.h"

namespace velkord {

namespace {

// Years are counted from 1900, as the platform does.
constexpr int kYearBase = 1900;
constexpr int kFirstUtcTimeYear = 70;
constexpr size_t kMonthToSecondDigits = 10;

uint8_t* PutTwoDigits(uint8_t* place, int value) {
  *place++ = static_cast<uint8_t>('0' + value / 10);
  *place++ = static_cast<uint8_t>('0' + value % 10);
  return place;
}

int TwoDigits(Bytes text, size_t at) { return (text[at] - '0') * 10 + (text[at + 1] - '0'); }

// The time that a text tells, and its fields in range.
int32_t ReadText(Bytes in, std::tm& fields, int32_t& time) {
  uint32_t tag;
  uint32_t length;
  VELKORD_TRY(DerParseTag(in, tag));
  VELKORD_TRY(DerParseLength(in, length));

  const size_t yearDigits = tag == ReduceTag(kGeneralizedTime) ? 4 : 2;
  const size_t digits = yearDigits + kMonthToSecondDigits;
  if (in.size() <= digits || in[digits] != 'Z') return VELKORD_BAD_TIME;
  const auto isDigit = [](uint8_t octet) { return octet >= '0' && octet <= '9'; };
  const Bytes fieldDigits = in.first(digits);
  if (!std::all_of(fieldDigits.begin(), fieldDigits.end(), isDigit)) return VELKORD_BAD_TIME;

  fields = {};
  if (yearDigits == 4) {
    fields.tm_year = TwoDigits(in, 0) * 100 + TwoDigits(in, 2) - kYearBase;
  } else {
    const int year = TwoDigits(in, 0);
    fields.tm_year = year < kFirstUtcTimeYear ? year + 100 : year;
  }
  fields.tm_mon = TwoDigits(in, yearDigits) - 1;
  fields.tm_mday = TwoDigits(in, yearDigits + 2);
  fields.tm_hour = TwoDigits(in, yearDigits + 4);
  fields.tm_min = TwoDigits(in, yearDigits + 6);
  fields.tm_sec = TwoDigits(in, yearDigits + 8);
  return FromLocalTime(fields, time) ? VELKORD_OK : VELKORD_OUT_OF_MEMORY;
}

// Whether the low byte of a `dataType` is that of a form. 0 or -7.
int32_t CheckForm(uint8_t form, uint32_t dataType) {
  return (dataType & 0xFF) == ReduceTag(form) ? VELKORD_OK : VELKORD_WRONG_TAG;
}

uint8_t FormByFirstOctet(Bytes in) {
  return !in.empty() && in[0] == kUtcTime ? kUtcTime : kGeneralizedTime;
}

int32_t MakeNode(const TimeElement& element, uint8_t tag, Anybuf** out) {
  const int32_t code = DerCopyBytes(element.Whole(), ReduceTag(tag), 0, out);
  return code == VELKORD_OK ? VELKORD_OK : VELKORD_OUT_OF_MEMORY;
}

}  // namespace

int32_t TimeElement::Set(int32_t time, uint8_t tag) {
  if (time < 0) return VELKORD_NEGATIVE_TIME;
  std::tm fields{};
  if (!ToLocalTime(time, fields)) return VELKORD_OUT_OF_MEMORY;
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
  for (const int field :
       {fields.tm_mon + 1, fields.tm_mday, fields.tm_hour, fields.tm_min, fields.tm_sec}) {
    end = PutTwoDigits(end, field);
  }
  *end++ = 'Z';
  octets_[1] = static_cast<uint8_t>(end - text);
  size_ = static_cast<size_t>(end - octets_);
}

int32_t TimeWriteNode(int32_t time, uint8_t tag, Anybuf** out) {
  TimeElement element;
  VELKORD_TRY(element.Set(time, tag));
  return MakeNode(element, tag, out);
}

int32_t TimeRead(Bytes in, int32_t& time) {
  std::tm fields{};
  return ReadText(in, fields, time);
}

int32_t TimeReadForm(Bytes in, uint8_t form, uint32_t dataType, int32_t& time) {
  VELKORD_TRY(CheckForm(form, dataType));
  return TimeRead(in, time);
}

int32_t TimeReadByFirstOctet(Bytes in, uint32_t dataType, uint8_t& form, int32_t& time) {
  form = FormByFirstOctet(in);
  return TimeReadForm(in, form, dataType, time);
}

int32_t TimeRewrite(Bytes in, uint32_t dataType, Anybuf** out) {
  const uint8_t form = FormByFirstOctet(in);
  VELKORD_TRY(CheckForm(form, dataType));
  std::tm fields{};
  int32_t time;
  VELKORD_TRY(ReadText(in, fields, time));
  TimeElement element;
  element.Set(fields, form);
  return MakeNode(element, form, out);
}

}  // namespace velkord

using namespace velkord;

namespace {

int32_t WriteTime(const int32_t* time, uint8_t tag, Anybuf** out) {
  if (time == nullptr || out == nullptr) return VELKORD_NULL_ARGUMENT;
  return TimeWriteNode(*time, tag, out);
}

int32_t ReadTime(const Anybuf* source, uint8_t form, int32_t* time) {
  if (source == nullptr || time == nullptr) return VELKORD_NULL_ARGUMENT;
  return TimeReadForm(NodeBytes(*source), form, source->dataType, *time);
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
