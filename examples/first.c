#include <stdio.h>

#include "Velkord.h"

// Writes the name of a country as DER and prints it as PEM text.
int main(void) {
  Anybuf* country = NULL;
  Anybuf* name = NULL;
  int32_t code = ASN1_WriteCharStringFromBytes((const uint8_t*)"CN", 2, &country);
  if (code == VELKORD_OK) {
    code = ASN1_GetDerRelativeDistinguishedNameOne(country, 0, "2.5.4.6", 7, &name);
  }
  ASN1_FreeAnybuf(country);
  if (code != VELKORD_OK) return 1;

  char text[128];
  uint32_t length = 0;
  code = DER2PEM_data_format(name->data, name->dataLen, text, &length, "-----BEGIN NAME-----",
                             "-----END NAME-----");
  ASN1_FreeAnybuf(name);
  if (code != VELKORD_OK) return 1;
  return fwrite(text, 1, length, stdout) == length ? 0 : 1;
}
