// SM2 signatures and keys between their numbers and DER. All numbers are fixed bytes; nothing is
// signed.
#include "keys.h"

// [leading_zeros]
// The zero bytes that a number of 32 bytes begins with, all but the last byte at most.
static uint32_t LeadingZeros(const uint8_t number[32]) {
  uint32_t zeros = 0;
  while (zeros < 31 && number[zeros] == 0) ++zeros;
  return zeros;
}
// [/leading_zeros]

static void ShowSignature(void) {
  printf("Signature\n");
  const uint8_t r[32] = {0, 0x11};
  const uint8_t s[32] = {0x99};

  // [signature_encode]
  const uint32_t rZeros = LeadingZeros(r);
  const uint32_t sZeros = LeadingZeros(s);
  uint8_t der[32 + 32 + 20];
  uint32_t derLength = 0;
  CHECK(ASN1_SM2_SM2SignatureEncode(r + rZeros, 32 - rZeros, s + sZeros, 32 - sZeros, der,
                                    &derLength));
  REQUIRE(derLength == 2 + 2 + 31 + 2 + 33);  // 0 would be the only sign of a failure.
  // [/signature_encode]

  // [signature_decode]
  uint8_t rNumber[sizeof der];  // Each number needs as much room as there is DER.
  uint8_t sNumber[sizeof der];
  uint32_t rLength = 0;
  uint32_t sLength = 0;
  CHECK(ASN1_SM2_SM2SignatureDecode(rNumber, &rLength, sNumber, &sLength, der, derLength));
  REQUIRE(rLength != 0 && sLength != 0);
  uint8_t rAgain[32];
  uint8_t sAgain[32];
  SetNumber(rAgain, sizeof rAgain, rNumber, rLength);
  SetNumber(sAgain, sizeof sAgain, sNumber, sLength);
  // [/signature_decode]

  // [signature_strict]
  uint8_t written[2 * sizeof der + 20];
  uint32_t writtenLength = 0;
  REQUIRE(rLength <= 32 && rNumber[0] != 0 && sLength <= 32 && sNumber[0] != 0);
  CHECK(ASN1_SM2_SM2SignatureEncode(rNumber, rLength, sNumber, sLength, written, &writtenLength));
  REQUIRE(writtenLength == derLength && memcmp(written, der, derLength) == 0);
  // [/signature_strict]
  REQUIRE(memcmp(r, rAgain, sizeof r) == 0 && memcmp(s, sAgain, sizeof s) == 0);
}

static void ShowPrivateValue(void) {
  printf("Private value\n");
  const uint8_t value[32] = {0xC3};

  // [private_value]
  const uint32_t zeros = LeadingZeros(value);
  uint8_t der[32 + 7];
  uint32_t derLength = 0;
  CHECK(ASN1_SM2_PrikeyEncode(value + zeros, 32 - zeros, der, &derLength));
  REQUIRE(derLength != 0);

  uint8_t number[sizeof der];
  uint8_t again[32];
  uint32_t length = 0;
  CHECK(ASN1_SM2_PrikeyDecode(number, &length, der, derLength));
  REQUIRE(length != 0);
  SetNumber(again, sizeof again, number, length);
  REQUIRE(memcmp(value, again, sizeof value) == 0);
  Wipe(der, sizeof der);
  Wipe(number, sizeof number);
  Wipe(again, sizeof again);
  // [/private_value]
}

static void ShowPoint(void) {
  printf("Public point\n");
  // [point]
  // kPoint is 0x04, X and Y. The BIT STRING is made with 0 unused bits.
  Anybuf* bits = BitString(kPoint, sizeof kPoint, 0);

  uint8_t x[127];
  uint8_t y[127];
  uint32_t xLength = 0;
  uint32_t yLength = 0;
  CHECK(ASN1_SM2_PubkeyDecode(x, &xLength, y, &yLength, bits->data, bits->dataLen));
  REQUIRE(xLength == 32 && memcmp(x, kPoint + 1, 32) == 0);
  REQUIRE(yLength == 32 && memcmp(y, kPoint + 33, 32) == 0);
  // [/point]
  ASN1_FreeAnybuf(bits);
}

static void ShowKeyInfo(void) {
  printf("Key info\n");
  // [key_info]
  Anybuf* info = KeyInfo(Sm2KeyAlgorithm(), kPoint, sizeof kPoint);
  EccPubkey key;
  CHECK(ASN1_Der2EccPubkey(info->data, info->dataLen, &key));
  REQUIRE(memcmp(key.x, kPoint + 1, 32) == 0 && memcmp(key.y, kPoint + 33, 32) == 0);
  // [/key_info]
  ASN1_FreeAnybuf(info);
}

static void ShowPrivateKeyInfo(void) {
  printf("Private key info\n");
  const uint8_t value[32] = {[31] = 1};
  // [private_key_info]
  // The ECPrivateKey: version 1 and the value at full width.
  Anybuf* version = Integer(1);
  CHECK(ASN1_WriteOctetStringFromBytes(value, sizeof value, &version->next));
  Anybuf* privateKey = PrivateSequence(version);
  Anybuf* info = PrivateKeyInfo(Sm2KeyAlgorithm(), privateKey->data, privateKey->dataLen);

  EccPrikey key;
  memset(&key, 0, sizeof key);
  CHECK(ASN1_Der2EccPrikey(info->data, info->dataLen, &key));
  REQUIRE(memcmp(key.d, value, sizeof value) == 0);
  Wipe(&key, sizeof key);
  FreePrivate(info);
  FreePrivate(privateKey);
  // [/private_key_info]
}

int main(void) {
  ShowSignature();
  ShowPrivateValue();
  ShowPoint();
  ShowKeyInfo();
  ShowPrivateKeyInfo();
  return 0;
}
