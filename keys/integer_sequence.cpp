#include "keys/integer_sequence.h"

namespace velkord {

int32_t WriteIntegerSequence(std::span<const Bytes> magnitudes, uint8_t* out, uint32_t* outLength) {
  uint64_t length = 0;
  for (const Bytes magnitude : magnitudes) length += DerHeader::For(kInteger, magnitude).Total();
  const DerHeader sequence(kSequence, length);
  if (sequence.Total() > UINT32_MAX) return VELKORD_FAILURE;
  if (out != nullptr) {
    uint8_t* place = sequence.Put(out);
    for (const Bytes magnitude : magnitudes) {
      place = DerHeader::For(kInteger, magnitude).Put(place);
      place = Put(place, magnitude);
    }
  }
  *outLength = static_cast<uint32_t>(sequence.Total());
  return VELKORD_OK;
}

}  // namespace velkord
