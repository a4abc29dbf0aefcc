/// @file velkord.hpp
/// An optional C++20 interface, this header alone: owning handles, views, ranges and error codes
/// for the functions of Velkord.h, which are still called by name, and readers of times, object
/// identifiers and strings.
///
/// **Memory.** Nothing here allocates but the standard library: for the strings that `ObjectIdText`
/// and `Utf8Text` return, and when it reports an error, since `std::error_category::message` has to
/// return a `std::string` and an exception holds one.
///
/// **Exceptions.** What throws is left out where exceptions are switched off: `Check`, `Make`,
/// `Length`, `Content`, `ReadTime`, `ObjectIdText` and `Utf8Text`.
///
/// **Threads.** As with the functions themselves, different objects may be used at the same time.
#ifndef VELKORD_HPP_
#define VELKORD_HPP_

#if __cplusplus < 202002L && !(defined(_MSVC_LANG) && _MSVC_LANG >= 202002L)
#error "velkord.hpp needs C++20"
#endif

#include <algorithm>
#include <charconv>
#include <chrono>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <limits>
#include <memory>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>
#include <tuple>
#include <type_traits>
#include <utility>

#include "Velkord.h"

namespace velkord {

// -------------------------------------------------------------------------------------------------
// Handles
// -------------------------------------------------------------------------------------------------

/// Releases an object by the Free function of its type.
struct Free {
  /// With a node the whole chain after it is released.
  /// @{
  void operator()(Anybuf* chain) const noexcept { ASN1_FreeAnybuf(chain); }
  void operator()(ObjectID* record) const noexcept { ASN1_FreeObjectID(record); }
  void operator()(AttributeTypeAndValue* record) const noexcept {
    ASN1_FreeAttributeTypeAndValue(record);
  }
  void operator()(TBSCertificate* record) const noexcept { ASN1_FreeTBSCertificate(record); }
  void operator()(Certificate* record) const noexcept { ASN1_FreeCertificate(record); }
  void operator()(X509Cert* record) const noexcept { X509CertFree(record); }
  void operator()(RevokedCertificate* record) const noexcept {
    ASN1_CRL_FreeRevokedCertificate(record);
  }
  void operator()(TbsCertList* record) const noexcept { ASN1_CRL_FreeTbsCertList(record); }
  void operator()(CertificateList* record) const noexcept { ASN1_CRL_FreeCertificateList(record); }
  void operator()(PKCS10* record) const noexcept { ASN1_FreePKCS10(record); }
  void operator()(PKCS10Request* record) const noexcept { ASN1_FreePKCS10Request(record); }
  void operator()(ExtendedCertificateInfo* record) const noexcept {
    ASN1_PKCS6_FreeExtendedCertificateInfo(record);
  }
  void operator()(ExtendedCertificate* record) const noexcept {
    ASN1_PKCS6_FreeExtendedCertificate(record);
  }
  void operator()(PKCS7Context* record) const noexcept { ASN1_PKCS7_FreeContext(record); }
  /// @}
};

/// Owns a node or record. Functions take `get()`. `release()` is for what becomes the new owner: a
/// field of a record, `next`, and `ASN1_SetAlgorithmIdentifier` as its comment says.
template <typename Object>
using Handle = std::unique_ptr<Object, Free>;

/// Owns a node and every node after it: the head of a chain holds all of it.
using NodePtr = Handle<Anybuf>;

/// The out pointer of a handle in a call, which `Out` makes.
template <typename Pointer>
class OutPointer {
 public:
  /// For the one statement of the call.
  explicit OutPointer(Pointer& handle) noexcept : handle_(handle), object_(handle.get()) {}
  ~OutPointer() {
    if (object_ != handle_.get()) handle_.reset(object_);
  }
  OutPointer(const OutPointer&) = delete;
  OutPointer& operator=(const OutPointer&) = delete;

  /// What the function takes.
  // NOLINTNEXTLINE(google-explicit-constructor): it stands where the out pointer does.
  operator typename Pointer::pointer *() noexcept { return &object_; }

 private:
  Pointer& handle_;
  typename Pointer::pointer object_;
};

/// The out pointer of a call, for any `std::unique_ptr`:
/// `ASN1_ReadSequence(node.get(), Out(children))`. The handle owns the new object, and has released
/// the one before, when the whole statement has ended, not earlier. A call that fails or writes
/// nothing leaves the handle as it was.
template <typename Pointer>
[[nodiscard]] OutPointer<Pointer> Out(Pointer& handle) noexcept {
  return OutPointer<Pointer>(handle);
}

// -------------------------------------------------------------------------------------------------
// Views
// -------------------------------------------------------------------------------------------------

/// Bytes that belong to something else.
using Bytes = std::span<const std::uint8_t>;

/// The bytes of a node, record or text, for as long as that lives. Null `data` is no bytes.
/// @{
[[nodiscard]] inline Bytes View(const Anybuf& node) noexcept {
  return node.data == nullptr ? Bytes() : Bytes(node.data, node.dataLen);
}
[[nodiscard]] inline Bytes View(const ObjectID& record) noexcept {
  return record.data == nullptr ? Bytes() : Bytes(record.data, record.dataLen);
}
[[nodiscard]] inline Bytes View(std::string_view text) noexcept {
  return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}
/// @}

// -------------------------------------------------------------------------------------------------
// Chains
// -------------------------------------------------------------------------------------------------

/// The objects of a chain as a range that owns nothing:
/// `for (const Anybuf& node : velkord::Chain(handle.get()))`. For types with a `next` of their own
/// type: nodes and the entries of an inspected certificate. A null pointer is an empty range.
/// Removing or freeing an object makes the iterators at it invalid, as with a list.
template <typename Link>
class Chain {
 public:
  /// A forward iterator.
  class Iterator {
   public:
    /// What `std::iterator_traits` asks for.
    /// @{
    using iterator_category = std::forward_iterator_tag;
    using value_type = std::remove_const_t<Link>;
    using difference_type = std::ptrdiff_t;
    using pointer = Link*;
    using reference = Link&;
    /// @}

    /// The end of every chain.
    Iterator() = default;
    /// At an object, null for the end.
    explicit Iterator(Link* at) noexcept : at_(at) {}

    /// What a forward iterator does.
    /// @{
    Link& operator*() const noexcept { return *at_; }
    Link* operator->() const noexcept { return at_; }
    Iterator& operator++() noexcept {
      at_ = at_->next;
      return *this;
    }
    // NOLINTNEXTLINE(cert-dcl21-cpp): a constant copy makes it no iterator.
    Iterator operator++(int) noexcept {
      const Iterator before = *this;
      ++*this;
      return before;
    }
    bool operator==(const Iterator&) const = default;
    /// @}

   private:
    Link* at_ = nullptr;
  };

  /// From an object on, null for an empty range.
  explicit Chain(Link* head) noexcept : head_(head) {}

  /// The range.
  /// @{
  Iterator begin() const noexcept { return Iterator(head_); }
  Iterator end() const noexcept { return Iterator(); }
  /// @}

 private:
  Link* head_;
};

/// Builds a chain. It knows the last node, so that n nodes take n steps; `ASN1_AddSequence` and its
/// other names walk the whole chain, copy the node, and do not report that memory ran out.
class ChainBuilder {
 public:
  /// Appends each of the chains in turn.
  template <std::same_as<NodePtr>... Chains>
  explicit ChainBuilder(Chains... chains) noexcept {
    (Append(std::move(chains)), ...);
  }
  ChainBuilder(const ChainBuilder&) = delete;
  ChainBuilder& operator=(const ChainBuilder&) = delete;
  ~ChainBuilder() = default;

  /// Takes a node and all after it. Null adds nothing.
  void Append(NodePtr chain) noexcept {
    Anybuf* const first = chain.get();
    if (first == nullptr) return;
    if (last_ == nullptr) {
      head_ = std::move(chain);
    } else {
      first->prev = last_;
      last_->next = chain.release();
    }
    last_ = first;
    while (last_->next != nullptr) last_ = last_->next;
  }

  /// The first node, or null, which the writers take for a chain without elements. Nodes may be
  /// changed through it, but not linked in another way.
  [[nodiscard]] Anybuf* Head() const noexcept { return head_.get(); }

  /// Hands over the chain. The builder is empty then.
  [[nodiscard]] NodePtr Take() noexcept {
    last_ = nullptr;
    return std::move(head_);
  }

 private:
  NodePtr head_;
  Anybuf* last_ = nullptr;
};

// -------------------------------------------------------------------------------------------------
// Errors
// -------------------------------------------------------------------------------------------------

/// The codes of a failure. One converts to a `std::error_code` and compares with it.
enum class Errc : std::int32_t {
  kFailure = VELKORD_FAILURE,
  kSizeMismatch = VELKORD_SIZE_MISMATCH,
  kNegativeTime = VELKORD_NEGATIVE_TIME,
  kBadTime = VELKORD_BAD_TIME,
  kWrongTag = VELKORD_WRONG_TAG,
  kNullArgument = VELKORD_NULL_ARGUMENT,
  kOutOfMemory = VELKORD_OUT_OF_MEMORY,
};

/// The category of all codes of the library. `error_category()` returns its one object.
class ErrorCategory final : public std::error_category {
 public:
  /// "Velkord".
  [[nodiscard]] const char* name() const noexcept override { return "Velkord"; }

  /// The code's name in Velkord.h and its number, `VELKORD_WRONG_TAG (-7)`: its meaning depends on
  /// the function. For -7000, which has two meanings, both are added in words.
  [[nodiscard]] std::string message(int code) const override {
    return std::string(CodeName(code)) + " (" + std::to_string(code) + ")";
  }

 private:
  static const char* CodeName(int code) noexcept {
    switch (code) {
      case VELKORD_OK:
        return "VELKORD_OK";
      case VELKORD_FAILURE:
        return "VELKORD_FAILURE";
      case VELKORD_SIZE_MISMATCH:
        return "VELKORD_SIZE_MISMATCH";
      case VELKORD_NEGATIVE_TIME:
        return "VELKORD_NEGATIVE_TIME";
      case VELKORD_BAD_TIME:
        return "VELKORD_BAD_TIME";
      case VELKORD_WRONG_TAG:
        return "VELKORD_WRONG_TAG";
      case VELKORD_NULL_ARGUMENT:
        return "VELKORD_NULL_ARGUMENT";
      case VELKORD_OUT_OF_MEMORY:
        return "VELKORD_OUT_OF_MEMORY: out of memory, or a time outside 1970 to 2038";
      default:
        return "unknown code";
    }
  }
};

/// The one object of the category.
[[nodiscard]] inline const std::error_category& error_category() noexcept {
  static const ErrorCategory category;
  return category;
}

/// What a function returned as an error code, which is false for `VELKORD_OK`. Not for the
/// functions that return anything but codes.
[[nodiscard]] inline std::error_code ToErrorCode(std::int32_t code) noexcept {
  return {code, error_category()};
}

/// A named code as an error code.
[[nodiscard]] inline std::error_code make_error_code(Errc code) noexcept {
  return ToErrorCode(static_cast<std::int32_t>(code));
}

// -------------------------------------------------------------------------------------------------
// Object identifiers
// -------------------------------------------------------------------------------------------------

/// Writes the dotted text of an OBJECT IDENTIFIER's content octets to `[first, last)`, without a
/// terminating zero, and returns its end. Four characters for each octet are always enough; `ec` is
/// `std::errc::value_too_large` when the text does not fit, and `std::errc::invalid_argument` for
/// octets that are no identifier: none at all, the last arc cut off, an arc that begins with 0x80
/// or has more than 64 bits (the first two arcs share one number). After an error the buffer may
/// hold part of the text.
[[nodiscard]] inline std::to_chars_result ObjectIdToChars(char* first, char* last,
                                                          Bytes content) noexcept {
  char* at = first;
  std::uint64_t arc = 0;
  bool isArcStart = true;
  for (const std::uint8_t octet : content) {
    if ((isArcStart && octet == 0x80) || arc > std::numeric_limits<std::uint64_t>::max() >> 7) {
      return {first, std::errc::invalid_argument};
    }
    arc = arc << 7 | (octet & 0x7F);
    isArcStart = octet < 0x80;
    if (!isArcStart) continue;
    if (last - at < 2) return {last, std::errc::value_too_large};
    if (at == first) {
      // The first two arcs share a number, and the first of them is at most 2.
      const std::uint64_t root = std::min<std::uint64_t>(arc / 40, 2);
      *at++ = static_cast<char>('0' + root);
      arc -= root * 40;
    }
    *at++ = '.';
    const std::to_chars_result written = std::to_chars(at, last, arc);
    if (written.ec != std::errc()) return written;
    at = written.ptr;
    arc = 0;
  }
  if (at == first || !isArcStart) return {first, std::errc::invalid_argument};
  return {at, std::errc()};
}

}  // namespace velkord

/// @cond
template <>
struct std::is_error_code_enum<velkord::Errc> : std::true_type {};
/// @endcond

// -------------------------------------------------------------------------------------------------
// For callers that use exceptions
// -------------------------------------------------------------------------------------------------

#ifdef __cpp_exceptions
namespace velkord {

/// Throws `std::system_error` with the code and `what`, the step that failed, unless `code` is
/// `VELKORD_OK`.
inline void Check(std::int32_t code, const char* what) {
  if (code != VELKORD_OK) throw std::system_error(ToErrorCode(code), what);
}

/// Calls a function whose last parameter is an out pointer and returns what it made:
/// `Make("write a time", ASN1_WriteUtcTime, &seconds)`. `in` are the arguments before that one, as
/// the function takes them. Throws as `Check` does.
template <typename... Parameters, typename... In>
[[nodiscard]] auto Make(const char* what, std::int32_t (*function)(Parameters...), In... in) {
  static_assert(sizeof...(In) + 1 == sizeof...(Parameters));
  using Last = std::tuple_element_t<sizeof...(In), std::tuple<Parameters...>>;
  Handle<std::remove_pointer_t<std::remove_pointer_t<Last>>> made;
  Check(function(in..., Out(made)), what);
  return made;
}

/// The size of a container, span or text in 32 bits, as functions take it; `Length<int32_t>` is for
/// those that take a signed one. Throws `std::length_error` for a larger size.
template <std::integral Count = std::uint32_t, typename Container>
[[nodiscard]] Count Length(const Container& bytes) {
  if (!std::in_range<Count>(std::size(bytes))) {
    throw std::length_error("more bytes than a 32-bit length counts");
  }
  return static_cast<Count>(std::size(bytes));
}

/// The content of one whole element whose tag has one octet: a view. As in the functions, length
/// octets may be more than needed. Throws `std::system_error` with `Errc::kWrongTag` for a longer
/// tag, `Errc::kFailure` for a length of more than four octets, and `Errc::kSizeMismatch` for the
/// indefinite form, for bytes missing and for bytes after the element.
[[nodiscard]] inline Bytes Content(Bytes element) {
  constexpr const char* kStep = "open an element";
  if (element.size() < 2) throw std::system_error(Errc::kSizeMismatch, kStep);
  if ((element[0] & 0x1F) == 0x1F) throw std::system_error(Errc::kWrongTag, kStep);
  std::size_t length = element[1];
  Bytes rest = element.subspan(2);
  if (length >= 0x80) {
    const std::size_t octets = length & 0x7F;
    if (octets > 4) throw std::system_error(Errc::kFailure, kStep);
    if (octets == 0 || octets > rest.size()) throw std::system_error(Errc::kSizeMismatch, kStep);
    length = 0;
    for (const std::uint8_t octet : rest.first(octets)) length = length << 8 | octet;
    rest = rest.subspan(octets);
  }
  if (length != rest.size()) throw std::system_error(Errc::kSizeMismatch, kStep);
  return rest;
}

/// The time, in UTC, of a whole UTCTime or GeneralizedTime element: every year that they can write,
/// 0 to 9999, where the functions end in 2038. The two digits of a UTCTime stand for 1950 to 2049.
/// It takes the forms of DER alone, `YYMMDDHHMMSSZ` and `YYYYMMDDHHMMSSZ`; there is no second 60.
/// Throws `std::system_error` as `Content` does, with `Errc::kWrongTag` for another tag, and with
/// `Errc::kBadTime` for another form and for what no calendar or clock shows.
/// @{
[[nodiscard]] inline std::chrono::sys_seconds ReadTime(Bytes element) {
  constexpr const char* kStep = "read a time";
  const Bytes text = Content(element);
  const bool isUtcTime = element[0] == 0x17;
  if (!isUtcTime && element[0] != 0x18) throw std::system_error(Errc::kWrongTag, kStep);
  const std::size_t digits = isUtcTime ? 12 : 14;
  if (text.size() != digits + 1 || text.back() != 'Z' ||
      !std::ranges::all_of(text.first(digits), [](auto c) { return c >= '0' && c <= '9'; })) {
    throw std::system_error(Errc::kBadTime, kStep);
  }
  // A number of two digits, by how far it starts from the Z.
  const auto number = [&](std::size_t before) {
    const Bytes at = text.last(before + 1);
    return (at[0] - '0') * 10 + (at[1] - '0');
  };
  const int inCentury = number(12);
  const int century = isUtcTime ? (inCentury < 50 ? 20 : 19) : number(14);
  const std::chrono::year_month_day date(std::chrono::year(century * 100 + inCentury),
                                         std::chrono::month(static_cast<unsigned>(number(10))),
                                         std::chrono::day(static_cast<unsigned>(number(8))));
  const std::chrono::hours hours(number(6));
  const std::chrono::minutes minutes(number(4));
  const std::chrono::seconds seconds(number(2));
  if (!date.ok() || hours.count() > 23 || minutes.count() > 59 || seconds.count() > 59) {
    throw std::system_error(Errc::kBadTime, kStep);
  }
  return std::chrono::sys_days(date) + hours + minutes + seconds;
}
[[nodiscard]] inline std::chrono::sys_seconds ReadTime(const Anybuf& node) {
  return ReadTime(View(node));
}
/// @}

/// The dotted text of an OBJECT IDENTIFIER's content octets, such as `Content` returns. Throws
/// `std::system_error` with `Errc::kFailure` for what `ObjectIdToChars` calls no identifier.
[[nodiscard]] inline std::string ObjectIdText(Bytes content) {
  std::string text(content.size() * 4, '\0');
  char* const first = text.data();
  const auto [end, error] = ObjectIdToChars(first, first + text.size(), content);
  if (error != std::errc()) throw std::system_error(Errc::kFailure, "read an object identifier");
  text.resize(static_cast<std::size_t>(end - first));
  return text;
}

/// The text of a whole string element as UTF-8. UTF8String, NumericString, PrintableString,
/// IA5String and VisibleString come as they are, so that malformed ones stay malformed. T61String
/// (also named TeletexString) is taken for Latin-1, as its writers mean it; BMPString for UTF-16,
/// and UniversalString for UTF-32. Throws `std::system_error` as `Content` does, with
/// `Errc::kWrongTag` for another type, and with `Errc::kFailure` for part of a character, a
/// surrogate without the other, and what is above U+10FFFF.
/// @{
[[nodiscard]] inline std::string Utf8Text(Bytes element) {
  constexpr const char* kStep = "read a string";
  const Bytes content = Content(element);
  std::size_t width = 0;
  switch (element[0]) {
    case 0x0C:  // UTF8String
    case 0x12:  // NumericString
    case 0x13:  // PrintableString
    case 0x16:  // IA5String
    case 0x1A:  // VisibleString
      return {content.begin(), content.end()};
    case 0x14:  // T61String
      width = 1;
      break;
    case 0x1E:  // BMPString
      width = 2;
      break;
    case 0x1C:  // UniversalString
      width = 4;
      break;
    default:
      throw std::system_error(Errc::kWrongTag, kStep);
  }
  if (content.size() % width != 0) throw std::system_error(Errc::kFailure, kStep);

  std::string text;
  std::uint32_t high = 0;  // The first surrogate of a pair, while the second is to come.
  for (std::size_t at = 0; at != content.size(); at += width) {
    std::uint32_t code = 0;
    for (const std::uint8_t octet : content.subspan(at, width)) code = code << 8 | octet;
    const bool isHigh = code >> 10 == 0xD800 >> 10;
    const bool isLow = code >> 10 == 0xDC00 >> 10;
    if (code > 0x10FFFF || isLow != (high != 0) || (isHigh && width != 2)) {
      throw std::system_error(Errc::kFailure, kStep);
    }
    if (isLow) code = 0x10000 + ((high - 0xD800) << 10 | (code - 0xDC00));
    high = isHigh ? code : 0;
    if (isHigh) continue;
    std::uint8_t form[6];
    const std::int32_t size = uniToUTF8(form, sizeof form, code);
    text.append(form, form + size);
  }
  if (high != 0) throw std::system_error(Errc::kFailure, kStep);
  return text;
}
[[nodiscard]] inline std::string Utf8Text(const Anybuf& node) { return Utf8Text(View(node)); }
/// @}

}  // namespace velkord
#endif  // __cpp_exceptions

#endif  // VELKORD_HPP_
