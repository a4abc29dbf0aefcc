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
  Anybuf* chain = NULL;
  Anybuf* sequence = NULL;
  Anybuf* out = NULL;
  CHECK(ASN1_WriteInteger(128, &chain) == VELKORD_OK);
  CHECK(ASN1_WriteObjectIdFromData(0, oid, 3, &chain->next) == VELKORD_OK);
  CHECK(ASN1_WriteUtcTime(&time, &chain->next->next) == VELKORD_OK);
  CHECK(ASN1_WriteSequence(chain, &sequence) == VELKORD_OK && sequence->dataLen == 26);
  CHECK(ASN1_WriteExplicit(sequence, 3, &out) == VELKORD_OK && out->dataType == 0xA3);
  ASN1_FreeAnybuf(out);
  CHECK(ASN1_WriteOctetStringFromBytes(oid, 3, &out) == VELKORD_OK && out->dataLen == 5);
  CHECK(ASN1_CreateName(NULL, &out) == VELKORD_NULL_ARGUMENT);
  CHECK(ASN1_GetValidity(sequence, NULL, NULL) == VELKORD_NULL_ARGUMENT);
  ASN1_FreeAnybuf(out);
  ASN1_FreeSequence(sequence);
  ASN1_FreeSequence(chain);
}

static void use_certificates(void) {
  const uint8_t oid[] = {0x55, 0x1D, 0x13};
  const uint8_t value[] = {0x30, 0x00};
  Anybuf* extension = NULL;
  TBSCertificate* tbs = NULL;
  Certificate* certificate = NULL;
  X509Cert* inspected = X509CertCreate(NULL);
  CHECK(ASN1_GetExtensionOne(0, oid, 3, 0xFF, value, 2, &extension) == VELKORD_OK);
  CHECK(ASN1_CreateTBSCertificate(&tbs) == VELKORD_OK);
  CHECK(ASN1_TBSCertificateSetExtensions(tbs, extension) == VELKORD_OK);
  CHECK(tbs->extensions->dataLen == 16 && tbs->hasExtensions == 1);
  CHECK(ASN1_CreateCertificate(&certificate) == VELKORD_OK);
  CHECK(X509CertGetSubject(inspected) == VELKORD_NULL_ARGUMENT);
  X509CertFree(inspected);
  ASN1_FreeCertificate(certificate);
  ASN1_FreeTBSCertificate(tbs);
  ASN1_FreeExtension(extension);
}

static void use_containers_and_keys(void) {
  const uint8_t der[] = {0x30, 0x06, 0x02, 0x01, 0x05, 0x02, 0x01, 0x03};
  RevokedCertificate* revoked = NULL;
  PKCS10* request = NULL;
  ExtendedCertificateInfo* info = NULL;
  PKCS7Context* message = NULL;
  ZantPublicKey rsa;
  EccPubkey point;
  uint8_t r = 0;
  uint8_t s = 0;
  uint32_t size = 0;
  CHECK(ASN1_CRL_CreateRevokedCertificate(&revoked) == VELKORD_OK);
  CHECK(ASN1_CreatePKCS10(&request) == VELKORD_OK);
  CHECK(ASN1_PKCS6_CreateExtendedCertificateInfo(&info) == VELKORD_OK);
  CHECK(ASN1_PKCS7_Decode(der, sizeof der, &message) == VELKORD_OK);
  CHECK(ZantDecodePublicKey(&rsa, der, sizeof der) == VELKORD_OK && rsa.modulus[0] == 5);
  CHECK(ASN1_Der2EccPubkey(der, sizeof der, &point) == VELKORD_FAILURE);
  CHECK(ASN1_SM2_SM2SignatureDecode(&r, &size, &s, &size, der, sizeof der) == 0 && s == 3);
  ASN1_PKCS7_FreeContext(message);
  ASN1_PKCS6_FreeExtendedCertificateInfo(info);
  ASN1_FreePKCS10(request);
  ASN1_CRL_FreeRevokedCertificate(revoked);
}

int main(void) {
  const uint8_t value[] = {0x30, 0x00};
  char pem[64];
  uint32_t length = 0;
  use_values();
  use_certificates();
  use_containers_and_keys();
  CHECK(DER2PEM_data_format(value, 2, pem, &length, "", "") == VELKORD_OK);
  CHECK(strcmp(pem, "MAA=\r\n") == 0 && length == 6);
  CHECK(unitoc(ctouni(0xB0A1)) == 0xB0A1);
  return 0;
}
