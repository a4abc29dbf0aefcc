// RSA keys between their records and DER. The key is tiny, so that its bytes can be followed:
// n = 3233 = 61 * 53, e = 17, d = 2753.
#include "keys.h"

// The public key, and the private one as PKCS#1: a version and the eight numbers.
static const uint8_t kPublicKey[] = {0x30, 0x07, 0x02, 0x02, 0x0C, 0xA1, 0x02, 0x01, 0x11};
static const uint8_t kPrivateKey[] = {
    0x30, 0x1D, 0x02, 0x01, 0x00, 0x02, 0x02, 0x0C, 0xA1, 0x02, 0x01, 0x11, 0x02, 0x02, 0x0A, 0xC1,
    0x02, 0x01, 0x3D, 0x02, 0x01, 0x35, 0x02, 0x01, 0x35, 0x02, 0x01, 0x31, 0x02, 0x01, 0x26};

static void ShowPublicKey(void) {
  printf("Public key\n");
  // [encode_public]
  const uint8_t n[] = {0x0C, 0xA1};
  const uint8_t e[] = {0x11};
  ZantPublicKey key;
  SetNumber(key.modulus, sizeof key.modulus, n, sizeof n);
  SetNumber(key.publicExponent, sizeof key.publicExponent, e, sizeof e);

  uint8_t der[526];
  uint32_t length = 0;
  CHECK(ZantEncodePublicKey(&key, der, &length));
  ExpectBytes(der, length, "30 07 02 02 0C A1 02 01 11");
  // [/encode_public]

  // [decode_public]
  CHECK(ZantDecodePublicKey(&key, der, (int32_t)length));
  REQUIRE(key.modulus[0] == 0x0C && key.modulus[1] == 0xA1 && key.publicExponent[0] == 0x11);

  // The zero bytes after the numbers now count as part of them.
  CHECK(ZantEncodePublicKey(&key, der, &length));
  REQUIRE(length > 500);
  // [/decode_public]
}

// [fill_private]
// Fills a record, ready to be encoded, from the DER of PKCS#1.
static void FillPrivateKey(ZantPrivateKey* key, const uint8_t* der, uint32_t derLength) {
  const struct {
    uint8_t* bytes;
    size_t size;
  } fields[] = {
      {key->modulus, sizeof key->modulus},
      {key->publicExponent, sizeof key->publicExponent},
      {key->privateExponent, sizeof key->privateExponent},
      {key->prime1, sizeof key->prime1},
      {key->prime2, sizeof key->prime2},
      {key->exponent1, sizeof key->exponent1},
      {key->exponent2, sizeof key->exponent2},
      {key->coefficient, sizeof key->coefficient},
  };
  Anybuf* elements = NULL;
  CHECK(ASN1_WriteSequenceFromDERBytes(der, derLength, &elements));
  Anybuf* element = elements;  // The version.
  for (size_t at = 0; at < sizeof fields / sizeof fields[0]; ++at) {
    uint32_t length = 0;
    REQUIRE(element != NULL && element->next != NULL);
    element = element->next;
    // The content may be read over the element itself.
    CHECK(ASN1_ReadIntegerArrayToBytes(element, element->data, &length));
    SetNumber(fields[at].bytes, fields[at].size, element->data, length);
  }
  FreePrivate(elements);
}
// [/fill_private]

static void ShowPrivateKey(void) {
  printf("Private key\n");
  // [private_key]
  ZantPrivateKey key;
  FillPrivateKey(&key, kPrivateKey, sizeof kPrivateKey);

  uint8_t der[1450];
  uint32_t length = 0;
  CHECK(ZantEncodePrivateKey(&key, der, &length));
  REQUIRE(length == sizeof kPrivateKey && memcmp(der, kPrivateKey, length) == 0);
  Wipe(&key, sizeof key);
  Wipe(der, length);
  // [/private_key]
}

// [algorithm]
static Anybuf* RsaAlgorithm(void) {
  Anybuf* null = NULL;
  CHECK(ASN1_WriteNull(&null));
  return Algorithm("1.2.840.113549.1.1.1", null);
}
// [/algorithm]

static void ShowKeyInfo(void) {
  printf("Key info\n");
  // [key_info]
  Anybuf* info = KeyInfo(RsaAlgorithm(), kPublicKey, sizeof kPublicKey);

  Anybuf* algorithm = NULL;
  Anybuf* bits = NULL;
  Anybuf* content = NULL;
  CHECK(ASN1_GetSubjectPublicKeyInfo(info, &algorithm, &bits));
  CHECK(ASN1_ReadBitString(bits, &content));

  ZantPublicKey key;
  CHECK(ZantDecodePublicKey(&key, content->data, (int32_t)content->dataLen));
  REQUIRE(key.modulus[0] == 0x0C && key.publicExponent[0] == 0x11);

  // A node, unlike the record, tells how long the number is.
  Anybuf* modulus = RsaModulus(content);
  Expect(modulus, 2, "0C A1");
  // [/key_info]
  ASN1_FreeAnybuf(modulus);
  ASN1_FreeAnybuf(content);
  ASN1_FreeAnybuf(bits);
  ASN1_FreeAnybuf(algorithm);
  ASN1_FreeAnybuf(info);
}

static void ShowPrivateKeyInfo(void) {
  printf("Private key info\n");
  // [pkcs8]
  Anybuf* info = PrivateKeyInfo(RsaAlgorithm(), kPrivateKey, sizeof kPrivateKey);
  ZantPrivateKey key;
  CHECK(ZantDecodePrivateKey(&key, info->data, (int32_t)info->dataLen));
  REQUIRE(key.modulus[0] == 0x0C && key.coefficient[0] == 0x26);
  Wipe(&key, sizeof key);
  FreePrivate(info);
  // [/pkcs8]
}

int main(void) {
  ShowPublicKey();
  ShowPrivateKey();
  ShowKeyInfo();
  ShowPrivateKeyInfo();
  return 0;
}
