// RSA keys between their records and DER. The key is tiny, so that its bytes can be followed:
// n = 3233 = 61 * 53, e = 17, d = 2753.
#include "guide_tools.h"

// The private key as PKCS#1: a version and the eight numbers.
static const uint8_t kPrivateKey[] = {
    0x30, 0x1D, 0x02, 0x01, 0x00, 0x02, 0x02, 0x0C, 0xA1, 0x02, 0x01, 0x11, 0x02, 0x02, 0x0A, 0xC1,
    0x02, 0x01, 0x3D, 0x02, 0x01, 0x35, 0x02, 0x01, 0x35, 0x02, 0x01, 0x31, 0x02, 0x01, 0x26};

// [set_number]
// Sets a number at the end of its field, where the encoder takes it from.
static void SetNumber(uint8_t* field, size_t fieldSize, const uint8_t* number, size_t length) {
  Require(length <= fieldSize, "length of a number");
  memset(field, 0, fieldSize);
  memcpy(field + fieldSize - length, number, length);
}
// [/set_number]

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
  Check(ZantEncodePublicKey(&key, der, &length), "write the public key");
  ExpectBytes(der, length, "30 07 02 02 0C A1 02 01 11");
  // [/encode_public]

  // [decode_public]
  ZantPublicKey decoded;
  Check(ZantDecodePublicKey(&decoded, der, (int32_t)length), "read the public key");
  Require(decoded.modulus[0] == 0x0C && decoded.modulus[1] == 0xA1, "n at the start");
  Require(decoded.publicExponent[0] == 0x11, "e at the start");
  // [/decode_public]

  // [decode_then_encode]
  // The zero bytes behind the numbers now count as part of them.
  Check(ZantEncodePublicKey(&decoded, der, &length), "write the decoded record");
  Require(length > 500, "DER of two numbers of 256 bytes");
  // [/decode_then_encode]
  printf("  %u bytes when the numbers stay at the start\n", (unsigned)length);
}

// [move_to_end]
// Moves a number of `length` bytes from the start of its field to the end.
static void MoveToEnd(uint8_t* field, size_t fieldSize, size_t length) {
  Require(length <= fieldSize, "length of a number");
  memmove(field + fieldSize - length, field, length);
  memset(field, 0, fieldSize - length);
}
// [/move_to_end]

// [wipe]
// Overwrites private bytes. The compiler must not leave a volatile write out.
static void Wipe(void* bytes, size_t length) {
  volatile uint8_t* place = (volatile uint8_t*)bytes;
  while (length-- != 0) *place++ = 0;
}
// [/wipe]

// [ready_to_encode]
// Moves all numbers of a record that was decoded from `der`, which is PKCS#1. How long a number is
// shows in the DER alone, since a number may end with a zero byte.
static void MoveNumbers(ZantPrivateKey* key, const uint8_t* der, uint32_t derLength) {
  const struct {
    uint8_t* field;
    size_t size;
  } places[] = {
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
  Check(ASN1_WriteSequenceFromDERBytes(der, derLength, &elements), "split the private key");
  Anybuf* element = elements;  // The version.
  for (size_t at = 0; at < sizeof places / sizeof places[0]; ++at) {
    uint32_t length = 0;
    Require(element != NULL && element->next != NULL, "number of the key");
    element = element->next;
    // Reads the content over the element. The node held a private number.
    Check(ASN1_ReadIntegerArrayToBytes(element, element->data, &length), "read a number");
    MoveToEnd(places[at].field, places[at].size, length);
    Wipe(element->data, element->dataLen);
  }
  ASN1_FreeAnybuf(elements);
}
// [/ready_to_encode]

static void ShowPrivateKey(void) {
  printf("Private key\n");
  // [private_key]
  ZantPrivateKey key;
  Check(ZantDecodePrivateKey(&key, kPrivateKey, sizeof kPrivateKey), "read the private key");
  MoveNumbers(&key, kPrivateKey, sizeof kPrivateKey);

  uint8_t der[1450];
  uint32_t length = 0;
  Check(ZantEncodePrivateKey(&key, der, &length), "write the private key");
  Require(length != 0, "all numbers of the key");  // 0: one of the last five is missing.
  Wipe(&key, sizeof key);
  // [/private_key]
  Require(length == sizeof kPrivateKey && memcmp(der, kPrivateKey, length) == 0,
          "bytes of the private key");
  printf("  written again with the same %u bytes\n", (unsigned)length);
  Wipe(der, length);
}

// [algorithm]
// When the call writes NULL, `oid` stays the caller's.
static Anybuf* RsaAlgorithm(void) {
  Anybuf* oid = ObjectId("1.2.840.113549.1.1.1");
  Anybuf* algorithm = NULL;
  Check(ASN1_SetAlgorithmIdentifier(1, oid, NULL, NULL, &algorithm), "write the algorithm");
  ASN1_FreeAnybuf(oid);
  return algorithm;
}
// [/algorithm]

static void ShowKeyInfo(void) {
  printf("Key info\n");
  const uint8_t publicKey[] = {0x30, 0x07, 0x02, 0x02, 0x0C, 0xA1, 0x02, 0x01, 0x11};
  // [key_info]
  Chain chain = {NULL, NULL};
  Append(&chain, RsaAlgorithm());
  Append(&chain, BitString(publicKey, sizeof publicKey, 0));
  Anybuf* info = Sequence(&chain);

  Anybuf* algorithm = NULL;
  Anybuf* bits = NULL;
  Anybuf* content = NULL;
  Check(ASN1_GetSubjectPublicKeyInfo(info, &algorithm, &bits), "open the key info");
  Check(ASN1_ReadBitString(bits, &content), "read the key");

  ZantPublicKey key;
  Check(ZantDecodePublicKey(&key, content->data, (int32_t)content->dataLen), "read the key");
  // [/key_info]
  Require(key.modulus[0] == 0x0C && key.publicExponent[0] == 0x11, "numbers of the key");

  // [numbers]
  // Nodes, in place of the record, tell how long each number is.
  Anybuf* modulus = NULL;
  Anybuf* exponent = NULL;
  Anybuf* n = NULL;
  Anybuf* publicKeyNode = NULL;
  Check(ASN1_WriteExplicitFromDERData(content->data, content->dataLen, &publicKeyNode), "hold it");
  Check(ASN1_GetRSAPublicKey(publicKeyNode, &modulus, &exponent), "open the key");
  Check(ASN1_ReadIntegerArray(modulus, &n), "read the modulus");
  Expect(n, 2, "0C A1");
  // [/numbers]
  ASN1_FreeAnybuf(publicKeyNode);
  ASN1_FreeAnybuf(n);
  ASN1_FreeAnybuf(exponent);
  ASN1_FreeAnybuf(modulus);
  ASN1_FreeAnybuf(content);
  ASN1_FreeAnybuf(bits);
  ASN1_FreeAnybuf(algorithm);
  ASN1_FreeAnybuf(info);
}

static void ShowPrivateKeyInfo(const uint8_t* pkcs1, uint32_t pkcs1Length) {
  printf("Private key info\n");
  // [write_pkcs8]
  Chain chain = {NULL, NULL};
  Anybuf* version = NULL;
  Anybuf* octets = NULL;
  Check(ASN1_WriteInteger(0, &version), "write the version");
  Check(ASN1_WriteOctetStringFromBytes(pkcs1, pkcs1Length, &octets), "hold the key");
  Append(&chain, version);
  Append(&chain, RsaAlgorithm());
  Append(&chain, octets);
  Anybuf* pkcs8 = NULL;
  Check(ASN1_WriteSequence(chain.head, &pkcs8), "write the private key info");
  Wipe(octets->data, octets->dataLen);
  ASN1_FreeAnybuf(chain.head);
  // [/write_pkcs8]

  // [read_pkcs8]
  ZantPrivateKey key;
  Check(ZantDecodePrivateKey(&key, pkcs8->data, (int32_t)pkcs8->dataLen), "read the private key");
  // [/read_pkcs8]
  Require(key.modulus[0] == 0x0C && key.coefficient[0] == 0x26, "numbers of the key");
  printf("  read from %u bytes\n", (unsigned)pkcs8->dataLen);
  Wipe(&key, sizeof key);
  Wipe(pkcs8->data, pkcs8->dataLen);
  ASN1_FreeAnybuf(pkcs8);
}

int main(void) {
  ShowPublicKey();
  ShowPrivateKey();
  ShowKeyInfo();
  ShowPrivateKeyInfo(kPrivateKey, sizeof kPrivateKey);
  return 0;
}
