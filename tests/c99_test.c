// A program in C99: names of each family, called and linked.
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "Velkord.h"

#define CHECK(condition)                                      \
  do {                                                        \
    if (!(condition)) {                                       \
      fprintf(stderr, "line %d: %s\n", __LINE__, #condition); \
      exit(1);                                                \
    }                                                         \
  } while (0)

int main(void) {
  const uint8_t oid[] = {0x55, 0x1D, 0x13};
  const uint8_t value[] = {0x30, 0x00};
  Anybuf* extension = NULL;
  Anybuf* list = NULL;
  Anybuf* extensions = NULL;
  TBSCertificate* tbs = NULL;
  Certificate* certificate = NULL;
  X509Cert* inspected = X509CertCreate(NULL);
  char pem[64];
  uint32_t length = 0;

  CHECK(ASN1_GetExtensionOne(0, oid, 3, 0xFF, value, 2, &extension) == VELKORD_OK);
  CHECK(ASN1_CreateExtensions(extension, &list) == VELKORD_OK);
  CHECK(ASN1_WriteExtensions(list, &extensions) == VELKORD_OK);
  CHECK(ASN1_CreateTBSCertificate(&tbs) == VELKORD_OK);
  CHECK(ASN1_TBSCertificateSetExtensions(tbs, extensions) == VELKORD_OK);
  CHECK(tbs->extensions->dataLen == 18 && tbs->hasExtensions == 1);
  CHECK(ASN1_CreateCertificate(&certificate) == VELKORD_OK);
  CHECK(ASN1_CertificateSetTbsCertificate(certificate, NULL) == VELKORD_NULL_ARGUMENT);
  CHECK(X509CertGetSubject(inspected) == VELKORD_NULL_ARGUMENT);
  CHECK(DER2PEM_data_format(value, 2, pem, &length, "", "") == VELKORD_OK);
  CHECK(strcmp(pem, "MAA=\r\n") == 0 && length == 6);
  CHECK(unitoc(ctouni(0xB0A1)) == 0xB0A1);

  X509CertFree(inspected);
  ASN1_FreeCertificate(certificate);
  ASN1_FreeTBSCertificate(tbs);
  ASN1_FreeExtensions(extensions);
  ASN1_FreeExtensions(list);
  ASN1_FreeExtension(extension);
  return 0;
}
