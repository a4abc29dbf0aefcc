// What the programs for RSA and SM2 keys share: numbers of a fixed size, and bytes that are
// private.
#ifndef VELKORD_EXAMPLES_GUIDE_KEYS_H_
#define VELKORD_EXAMPLES_GUIDE_KEYS_H_

#include "parts.h"

// [set_number]
// Sets a number at the end of its field, with zero bytes in front.
static inline void SetNumber(uint8_t* field, size_t fieldSize, const uint8_t* number,
                             size_t length) {
  REQUIRE(length <= fieldSize);
  memset(field, 0, fieldSize);
  memcpy(field + fieldSize - length, number, length);
}
// [/set_number]

// [wipe]
// Overwrites private bytes. The compiler must not leave a volatile write out.
static inline void Wipe(void* bytes, size_t length) {
  volatile uint8_t* place = (volatile uint8_t*)bytes;
  while (length-- != 0) *place++ = 0;
}

// Wipes the bytes of a chain and releases it.
static inline void FreePrivate(Anybuf* chain) {
  for (Anybuf* node = chain; node != NULL; node = node->next) Wipe(node->data, node->dataLen);
  ASN1_FreeAnybuf(chain);
}

// Makes the SEQUENCE of a chain, and wipes and releases the chain.
static inline Anybuf* PrivateSequence(Anybuf* chain) {
  Anybuf* sequence = NULL;
  CHECK(ASN1_WriteSequence(chain, &sequence));
  FreePrivate(chain);
  return sequence;
}
// [/wipe]

// [private_key_info]
// Makes the PrivateKeyInfo of PKCS#8 around the DER of a key, and takes over the algorithm.
static inline Anybuf* PrivateKeyInfo(Anybuf* algorithm, const uint8_t* key, uint32_t length) {
  Anybuf* version = Integer(0);
  version->next = algorithm;
  CHECK(ASN1_WriteOctetStringFromBytes(key, length, &algorithm->next));
  return PrivateSequence(version);
}
// [/private_key_info]

#endif  // VELKORD_EXAMPLES_GUIDE_KEYS_H_
