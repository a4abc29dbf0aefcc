// A program in C99, which knows the public header alone.
#include <stddef.h>

#include "Velkord.h"

int main(void) {
  TBSCertificate* record = NULL;
  if (ASN1_CreateTBSCertificate(&record) != VELKORD_OK) return 1;
  const int32_t code = ASN1_TBSCertificateSetVersion(record, 2);
  const Anybuf* node = record->versionNode;
  const int isSet = record->version == 2 && node->dataLen == 5 && node->data[4] == 2;
  ASN1_FreeTBSCertificate(record);
  return code == VELKORD_OK && isSet ? 0 : 1;
}
