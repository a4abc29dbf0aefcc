// PEM text: DER2PEM_data_format and PEM2DER_data_format, each in one pass straight to the output.
#include <cstring>
#include <string_view>

#include "Velkord.h"
#include "text/base64.h"

using namespace velkord::internal;

namespace {

constexpr uint32_t kLengthLimit = 1U << 30;
constexpr size_t kMarkerDashes = 5;

// Size of the text without its terminating zero. It always fits 64 bits: `length` is below 2^30,
// and strings in memory are far below 2^63.
uint64_t PemSize(uint32_t length, std::string_view header, std::string_view footer) {
  const uint64_t characters = (uint64_t{length} + 2) / 3 * 4;
  const uint64_t lines = (characters + kLineCharacters - 1) / kLineCharacters;
  uint64_t size = characters + 2 * lines;
  for (const std::string_view marker : {header, footer}) {
    if (!marker.empty()) size += marker.size() + 2;
  }
  return size;
}

char* PutMarker(char* place, std::string_view marker) {
  if (marker.empty()) return place;
  std::memcpy(place, marker.data(), marker.size());
  return PutLineEnd(place + marker.size());
}

// The text between the first marker and the dash that opens the next, or all of a text without
// dashes. False when a marker or that dash is missing.
bool FindBody(std::string_view text, std::string_view& body) {
  const size_t opening = text.find('-');
  if (opening == std::string_view::npos) {
    body = text;
    return true;
  }
  const size_t closing = text.find('-', opening + kMarkerDashes);
  if (closing == std::string_view::npos) return false;
  const size_t start = closing + kMarkerDashes;
  const size_t end = text.find('-', start);
  if (end == std::string_view::npos) return false;
  body = std::string_view(text.data() + start, end - start);
  return true;
}

}  // namespace

int32_t DER2PEM_data_format(const uint8_t* der, uint32_t length, char* out, uint32_t* outLength,
                            const char* header, const char* footer) {
  if (length == 0) {
    *outLength = 0;
    return VELKORD_OK;
  }
  if (length >= kLengthLimit) return VELKORD_FAILURE;
  const uint64_t size = PemSize(length, header, footer);
  if (size > UINT32_MAX) return VELKORD_FAILURE;

  char* place = PutMarker(out, header);
  const Base64Kernel& kernel = Base64Kernels(length).front();
  const size_t lines = length / kLineBytes;
  const size_t rest = length % kLineBytes;
  kernel.encodeLines(der, lines, place);
  der += lines * kLineBytes;
  place += lines * (kLineCharacters + 2);
  if (rest != 0) place = PutLineEnd(PutBase64(kernel, der, rest, place));
  place = PutMarker(place, footer);
  *place = '\0';
  *outLength = static_cast<uint32_t>(size);
  return VELKORD_OK;
}

int32_t PEM2DER_data_format(const char* pem, uint32_t length, uint8_t* out, uint32_t* outLength) {
  std::string_view body;
  if (!FindBody(std::string_view(pem, length), body)) return VELKORD_FAILURE;
  Base64Decoder decoder(Base64Kernels(body.size()).front(), Invalid::kSkipped, out);
  decoder.Decode(body);
  *outLength = decoder.Written();
  return VELKORD_OK;
}
