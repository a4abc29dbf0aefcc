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
  const uint8_t der[] = {0x30, 0x06, 0x02, 0x01, 0x05, 0x02, 0x01, 0x03};
  const int32_t time = 0;
  Anybuf* chain = NULL;
  Anybuf* sequence = NULL;
  Anybuf* extension = NULL;
  TBSCertificate* tbs = NULL;
  PKCS7Context* message = NULL;
  ZantPublicKey rsa;
  EccPubkey point;
  uint8_t octets[8];
  char pem[64];
  uint32_t length = 0;

  CHECK(ASN1_WriteInteger(128, &chain) == VELKORD_OK);
  CHECK(ASN1_WriteObjectIdFromData(0, der, 3, &chain->next) == VELKORD_OK);
  CHECK(ASN1_WriteOctetString(chain, &chain->next->next) == VELKORD_OK);
  CHECK(ASN1_WriteUtcTime(&time, &chain->next->next->next) == VELKORD_OK);
  CHECK(ASN1_WriteSequence(chain, &sequence) == VELKORD_OK && sequence->dataLen == 32);
  CHECK(ASN1_WriteExplicit(NULL, 0, &chain) == VELKORD_NULL_ARGUMENT);
  CHECK(ASN1_CreateName(NULL, &chain) == VELKORD_NULL_ARGUMENT);
  CHECK(ASN1_GetDerRelativeDistinguishedNameOne(chain, 0, NULL, 1, &sequence) ==
        VELKORD_NULL_ARGUMENT);
  CHECK(ASN1_GetValidity(sequence, NULL, NULL) == VELKORD_NULL_ARGUMENT);
  CHECK(ASN1_GetExtensionOne(0, der, 3, 0xFF, der, 2, &extension) == VELKORD_OK);
  CHECK(ASN1_CreateTBSCertificate(&tbs) == VELKORD_OK);
  CHECK(ASN1_TBSCertificateSetExtensions(tbs, extension) == VELKORD_OK);
  CHECK(tbs->extensions->dataType == 0xA3 && tbs->hasExtensions == 1);
  CHECK(X509CertGetSubject(NULL) == VELKORD_NULL_ARGUMENT);
  CHECK(ASN1_CRL_CreateRevokedCertificate(NULL) == VELKORD_NULL_ARGUMENT);
  CHECK(ASN1_CreatePKCS10(NULL) == VELKORD_NULL_ARGUMENT);
  CHECK(ASN1_PKCS6_CertificateInfoDecode(NULL, 0, NULL) == VELKORD_NULL_ARGUMENT);
  CHECK(ASN1_PKCS7_Decode(der, sizeof der, &message) == VELKORD_OK);
  CHECK(message->content->dataLen == 1 && message->content->data[0] == 3);
  CHECK(ZantDecodePublicKey(&rsa, der, sizeof der) == VELKORD_OK && rsa.modulus[0] == 5);
  CHECK(ASN1_Der2EccPubkey(der, sizeof der, &point) == VELKORD_FAILURE);
  CHECK(ASN1_SM2_PrikeyEncode(der, 1, octets, &length) == VELKORD_OK && length == 3);
  CHECK(DER2PEM_data_format(der, 2, pem, &length, "", "") == VELKORD_OK);
  CHECK(strcmp(pem, "MAY=\r\n") == 0 && length == 6);
  CHECK(unitoc(ctouni(0xB0A1)) == 0xB0A1);

  ASN1_PKCS7_FreeContext(message);
  ASN1_FreeTBSCertificate(tbs);
  ASN1_FreeExtension(extension);
  ASN1_FreeSequence(sequence);
  ASN1_FreeAnybuf(chain);
  return 0;
}
