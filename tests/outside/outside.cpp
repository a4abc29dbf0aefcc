// Writes a number as DER and reads it again, as a C++ program that knows only the installed header.
#include <Velkord.h>

int main() {
  constexpr uint32_t kNumber = 0x123456;
  Anybuf* node = nullptr;
  uint32_t number = 0;
  const int32_t written = ASN1_WriteInteger(kNumber, &node);
  const int32_t read = written == VELKORD_OK ? ASN1_ReadInteger(node, &number) : written;
  ASN1_FreeAnybuf(node);
  return read == VELKORD_OK && number == kNumber ? 0 : 1;
}
