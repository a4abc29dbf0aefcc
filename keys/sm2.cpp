// SM2 signatures, private values and public points. These functions report nothing: on failure
// every out argument is unchanged.
#include "keys/in_place.h"
#include "keys/integer_sequence.h"

using namespace velkord::internal;

namespace {

constexpr uint8_t kUncompressed[] = {4};
// Form byte, X and Y.
constexpr size_t kMaximumPoint = 256;

void WriteElement(const DerHeader& header, std::initializer_list<Bytes> parts, uint8_t* der,
                  uint32_t* derLen) {
  const auto size = static_cast<uint32_t>(header.Total());
  const auto write = [&](DerWriter& writer) {
    writer.Put(header);
    for (const Bytes part : parts) writer.Put(part);
  };
  if (WriteInPlace(parts, der, size, write) == VELKORD_OK) *derLen = size;
}

// Copies two parts of an input out. The second is copied aside first where writing the first would
// overwrite it.
void CopyOutBoth(Bytes first, uint8_t* out, uint32_t* outLen, Bytes second, uint8_t* secondOut,
                 uint32_t* secondOutLen) {
  const auto* length = static_cast<const uint8_t*>(static_cast<const void*>(outLen));
  Scratch scratch;
  if (KeepInput(second, scratch, Bytes(out, first.size()), Bytes(length, sizeof *outLen)) !=
      VELKORD_OK) {
    return;
  }
  *outLen = CopyOut(first, out);
  *secondOutLen = CopyOut(second, secondOut);
}

// SM2Signature ::= SEQUENCE {
//   r  INTEGER,
//   s  INTEGER }
// Unlike the standard's, elements of any tag are read, and further ones are skipped.
int32_t OpenSignature(const uint8_t* der, uint32_t derLen, Bytes& r, Bytes& s) {
  Bytes in;
  VELKORD_TRY(CallerBytes(der, derLen, in));
  return DerElements::Read(in, kSequenceType, [&](DerElements& elements) -> int32_t {
    VELKORD_TRY(DerNextContent(elements, r));
    return DerNextContent(elements, s);
  });
}

// SM2PrivateKey ::= INTEGER
// SM2PublicKey ::= BIT STRING  -- 04, X, Y
// Unlike the standard's, an element of any tag is read.
int32_t OpenValue(const uint8_t* der, uint32_t derLen, Bytes& content) {
  Bytes in;
  VELKORD_TRY(CallerBytes(der, derLen, in));
  DerElement element;
  VELKORD_TRY(DerParseElement(in, element));
  return DerOpenContent(element, content);
}

}  // namespace

int32_t ASN1_SM2_SM2SignatureEncode(const uint8_t* r, uint32_t rLen, const uint8_t* s,
                                    uint32_t sLen, uint8_t* der, uint32_t* derLen) {
  Bytes numbers[2];
  if (der != nullptr && derLen != nullptr && CallerBytes(r, rLen, numbers[0]) == VELKORD_OK &&
      CallerBytes(s, sLen, numbers[1]) == VELKORD_OK) {
    WriteIntegerSequence(numbers, der, derLen);
  }
  return VELKORD_OK;
}

int32_t ASN1_SM2_SM2SignatureDecode(uint8_t* r, uint32_t* rLen, uint8_t* s, uint32_t* sLen,
                                    const uint8_t* der, uint32_t derLen) {
  Bytes first;
  Bytes second;
  if (r != nullptr && rLen != nullptr && s != nullptr && sLen != nullptr &&
      OpenSignature(der, derLen, first, second) == VELKORD_OK) {
    CopyOutBoth(first, r, rLen, second, s, sLen);
  }
  return VELKORD_OK;
}

int32_t ASN1_SM2_PrikeyEncode(const uint8_t* value, uint32_t valueLen, uint8_t* der,
                              uint32_t* derLen) {
  Bytes number;
  if (der == nullptr || derLen == nullptr || CallerBytes(value, valueLen, number) != VELKORD_OK) {
    return VELKORD_OK;
  }
  const DerHeader header = DerHeader::For(kInteger, number);
  if (header.Total() > UINT32_MAX) return VELKORD_OK;
  // The value first and then the header before it, so that `der` may overlap the value.
  const auto size = static_cast<uint32_t>(header.Total());
  CopyOut(number, der + header.Size());
  DerWriter({der, header.Size()}).Put(header);
  *derLen = size;
  return VELKORD_OK;
}

int32_t ASN1_SM2_PrikeyDecode(uint8_t* value, uint32_t* valueLen, const uint8_t* der,
                              uint32_t derLen) {
  Bytes number;
  if (value != nullptr && valueLen != nullptr && OpenValue(der, derLen, number) == VELKORD_OK) {
    *valueLen = CopyOut(number, value);
  }
  return VELKORD_OK;
}

int32_t ASN1_SM2_PubkeyEncode(const uint8_t* x, uint32_t xLen, const uint8_t* y, uint32_t yLen,
                              uint8_t* der, uint32_t* derLen) {
  const uint64_t size = 1 + uint64_t{xLen} + yLen;
  Bytes first;
  Bytes second;
  if (size <= kMaximumPoint && der != nullptr && derLen != nullptr &&
      CallerBytes(x, xLen, first) == VELKORD_OK && CallerBytes(y, yLen, second) == VELKORD_OK) {
    const Bytes last = !second.empty() ? second : !first.empty() ? first : Bytes(kUncompressed);
    WriteElement(DerHeader::ForBitString(ImpliedUnusedBits(last), size),
                 {kUncompressed, first, second}, der, derLen);
  }
  return VELKORD_OK;
}

int32_t ASN1_SM2_PubkeyDecode(uint8_t* x, uint32_t* xLen, uint8_t* y, uint32_t* yLen,
                              const uint8_t* der, uint32_t derLen) {
  Bytes point;
  if (x != nullptr && xLen != nullptr && y != nullptr && yLen != nullptr &&
      OpenValue(der, derLen, point) == VELKORD_OK && point.size() <= kMaximumPoint) {
    // The first byte is the form and is skipped. Without any byte both halves are empty.
    const Bytes halves = point.empty() ? point : point.subspan(1);
    const size_t half = halves.size() / 2;
    CopyOutBoth(halves.first(half), x, xLen, halves.subspan(half, half), y, yLen);
  }
  return VELKORD_OK;
}
