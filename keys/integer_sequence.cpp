#include "keys/integer_sequence.h"

#include "keys/in_place.h"

namespace velkord::internal {

int32_t WriteIntegerSequence(std::span<const Bytes> magnitudes, uint8_t* out, uint32_t* outLength) {
  uint64_t length = 0;
  for (const Bytes magnitude : magnitudes) length += DerHeader::For(kInteger, magnitude).Total();
  const DerHeader sequence(kSequence, length);
  if (sequence.Total() > UINT32_MAX) return VELKORD_FAILURE;
  const auto write = [&](DerWriter& writer) {
    writer.Put(sequence);
    for (const Bytes magnitude : magnitudes) {
      writer.Put(DerHeader::For(kInteger, magnitude));
      writer.Put(magnitude);
    }
  };
  if (out != nullptr) {
    VELKORD_TRY(WriteInPlace(magnitudes, out, static_cast<size_t>(sequence.Total()), write));
  }
  *outLength = static_cast<uint32_t>(sequence.Total());
  return VELKORD_OK;
}

}  // namespace velkord::internal
