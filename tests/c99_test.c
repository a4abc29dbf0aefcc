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

static void use_values(void) {
  const uint8_t oid[] = {0x55, 0x1D, 0x13};
  const int32_t time = 0;
  Anybuf* nodes[4] = {NULL, NULL, NULL, NULL};
  Anybuf* chain = NULL;
  Anybuf* sequence = NULL;
  Anybuf* tagged = NULL;
  Anybuf* name = NULL;
  CHECK(ASN1_WriteInteger(128, &nodes[0]) == VELKORD_OK);
  CHECK(ASN1_WriteObjectIdFromData(0, oid, 3, &nodes[1]) == VELKORD_OK);
  CHECK(ASN1_WriteOctetStringFromBytes(oid, 3, &nodes[2]) == VELKORD_OK);
  CHECK(ASN1_WriteUtcTime(&time, &nodes[3]) == VELKORD_OK);
  CHECK(ASN1_CreateSequence(nodes[0], &chain) == VELKORD_OK);
  for (int at = 1; at < 4; ++at) ASN1_AddSequence(nodes[at], chain);
  CHECK(ASN1_WriteSequence(chain, &sequence) == VELKORD_OK && sequence->dataLen == 31);
  CHECK(ASN1_WriteExplicit(sequence, 3, &tagged) == VELKORD_OK && tagged->dataType == 0xA3);
  CHECK(ASN1_GetDerRelativeDistinguishedNameOne(nodes[2], 0, "2.5.4.3", 7, &name) ==
        VELKORD_WRONG_TAG);
  CHECK(ASN1_GetValidity(sequence, NULL, NULL) == VELKORD_NULL_ARGUMENT);
  ASN1_FreeAnybuf(tagged);
  ASN1_FreeSequence(sequence);
  ASN1_FreeSequence(chain);
  for (int at = 0; at < 4; ++at) ASN1_FreeAnybuf(nodes[at]);
}

static void use_records_and_keys(void) {
  const uint8_t der[] = {0x30, 0x06, 0x02, 0x01, 0x05, 0x02, 0x01, 0x03};
  RevokedCertificate* revoked = NULL;
  PKCS10* request = NULL;
  ExtendedCertificateInfo* info = NULL;
  PKCS7Context* context = NULL;
  ZantPublicKey rsa;
  EccPubkey point;
  uint8_t r[1];
  uint8_t s[1];
  uint32_t size = 0;
  CHECK(ASN1_CRL_CreateRevokedCertificate(&revoked) == VELKORD_OK);
  CHECK(ASN1_CreatePKCS10(&request) == VELKORD_OK);
  CHECK(ASN1_PKCS6_CreateExtendedCertificateInfo(&info) == VELKORD_OK);
  CHECK(ASN1_PKCS7_Decode(der, sizeof der, &context) == VELKORD_OK &&
        context->content->dataLen == 1);
  CHECK(ZantDecodePublicKey(&rsa, der, sizeof der) == VELKORD_OK && rsa.modulus[0] == 5);
  CHECK(ASN1_Der2EccPubkey(der, sizeof der, &point) == VELKORD_FAILURE);
  CHECK(ASN1_SM2_SM2SignatureDecode(r, &size, s, &size, der, sizeof der) == VELKORD_OK &&
        s[0] == 3);
  ASN1_PKCS7_FreeContext(context);
  ASN1_PKCS6_FreeExtendedCertificateInfo(info);
  ASN1_FreePKCS10(request);
  ASN1_CRL_FreeRevokedCertificate(revoked);
}

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

  use_values();
  use_records_and_keys();
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
