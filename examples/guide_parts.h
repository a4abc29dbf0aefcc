// The parts that certificates, requests and revocation lists of the guide have in common.
#ifndef VELKORD_EXAMPLES_GUIDE_PARTS_H_
#define VELKORD_EXAMPLES_GUIDE_PARTS_H_

#include "guide_tools.h"

static const int32_t kTime2026 = 1767225600;  // 1 January 2026, 00:00:00 UTC.
static const int32_t kTime2027 = 1798761600;

// The public point of an SM2 key: the form 0x04, X and Y.
static const uint8_t kPoint[65] = {
    0x04,  //
    0x32, 0xC4, 0xAE, 0x2C, 0x1F, 0x19, 0x81, 0x19, 0x5F, 0x99, 0x04, 0x46, 0x6A, 0x39, 0xC9, 0x94,
    0x8F, 0xE3, 0x0B, 0xBF, 0xF2, 0x66, 0x0B, 0xE1, 0x71, 0x5A, 0x45, 0x89, 0x33, 0x4C, 0x74, 0xC7,
    0xBC, 0x37, 0x36, 0xA2, 0xF4, 0xF6, 0x77, 0x9C, 0x59, 0xBD, 0xCE, 0xE3, 0x6B, 0x69, 0x21, 0x53,
    0xD0, 0xA9, 0x87, 0x7C, 0xC6, 0x2A, 0x47, 0x40, 0x02, 0xDF, 0x32, 0xE5, 0x21, 0x39, 0xF0, 0xA0};

// [name]
// Makes a relative name with one attribute, and releases the string that is its value.
static inline Anybuf* RelativeName(const char* oidText, Anybuf* value) {
  Anybuf* node = NULL;
  Check(ASN1_GetDerRelativeDistinguishedNameOne(value, 0, oidText, (int32_t)strlen(oidText), &node),
        "write a relative name");
  ASN1_FreeAnybuf(value);
  return node;
}

// Makes the name of a country and a common name in UTF-8.
static inline Anybuf* Name(const char* commonName) {
  Anybuf* country = NULL;
  Anybuf* common = NULL;
  Check(ASN1_WriteCharStringFromBytes((const uint8_t*)"CN", 2, &country), "write the country");
  Check(ASN1_WriteUTF8StringFromBytes((const uint8_t*)commonName, (uint32_t)strlen(commonName),
                                      &common),
        "write the common name");

  Chain chain = {NULL, NULL};
  Append(&chain, RelativeName("2.5.4.6", country));
  Append(&chain, RelativeName("2.5.4.3", common));
  Anybuf* name = NULL;
  Check(ASN1_GetDerName(chain.head, &name), "write the name");
  ASN1_FreeNames(chain.head);
  return name;
}
// [/name]

// [key_info]
// Makes the key info of an SM2 key.
static inline Anybuf* KeyInfo(const uint8_t point[65]) {
  Anybuf* oid = ObjectId("1.2.840.10045.2.1");
  Anybuf* curve = ObjectId("1.2.156.10197.1.301");
  Anybuf* algorithm = NULL;
  Check(ASN1_SetAlgorithmIdentifier(0, oid, curve, NULL, &algorithm), "write the key's algorithm");
  ASN1_FreeAnybuf(curve);  // The call has released `oid`, and that alone.

  Chain chain = {NULL, NULL};
  Append(&chain, algorithm);
  Append(&chain, BitString(point, 65, 0));
  return Sequence(&chain);
}
// [/key_info]

// [signature]
// The algorithm of SM2 signatures with SM3. It has no parameters.
static inline Anybuf* SignatureAlgorithm(void) {
  return SequenceOf(ObjectId("1.2.156.10197.1.501"));
}

// Stands where a program calls its toolkit, which hashes the node's bytes and signs the digest.
// Here r and s are fixed bytes, and no valid signature.
static inline Anybuf* Sign(const Anybuf* toBeSigned) {
  uint8_t r[32];
  uint8_t s[32];
  (void)toBeSigned;
  memset(r, 0x5A, sizeof r);
  memset(s, 0xA5, sizeof s);

  uint8_t der[sizeof r + sizeof s + 20];
  uint32_t length = 0;
  ASN1_SM2_SM2SignatureEncode(r, sizeof r, s, sizeof s, der, &length);
  Require(length != 0, "signature");
  return BitString(der, length, 0);
}
// [/signature]

// [extension]
// Makes an extension and releases the node of its value.
static inline Anybuf* Extension(const char* oidText, bool critical, Anybuf* value) {
  uint8_t oid[64];
  const uint32_t oidLength = ObjectIdOctets(oidText, oid);
  Anybuf* node = NULL;
  Check(ASN1_GetExtensionOne(0, oid, oidLength, critical ? 0xFF : 0, value->data, value->dataLen,
                             &node),
        "write an extension");
  ASN1_FreeAnybuf(value);
  return node;
}
// [/extension]

#endif  // VELKORD_EXAMPLES_GUIDE_PARTS_H_
