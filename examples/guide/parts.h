// The parts that certificates, requests, revocation lists and keys have in common.
#ifndef VELKORD_EXAMPLES_GUIDE_PARTS_H_
#define VELKORD_EXAMPLES_GUIDE_PARTS_H_

#include "tools.h"

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
  const int32_t oidTextLength = (int32_t)strlen(oidText);
  Anybuf* name = NULL;
  CHECK(ASN1_GetDerRelativeDistinguishedNameOne(value, 0, oidText, oidTextLength, &name));
  ASN1_FreeAnybuf(value);
  return name;
}

// Makes the name of a country and a common name in UTF-8.
static inline Anybuf* Name(const char* commonName) {
  const uint32_t length = (uint32_t)strlen(commonName);
  Anybuf* country = NULL;
  Anybuf* common = NULL;
  CHECK(ASN1_WriteCharStringFromBytes((const uint8_t*)"CN", 2, &country));
  CHECK(ASN1_WriteUTF8StringFromBytes((const uint8_t*)commonName, length, &common));
  Anybuf* names = RelativeName("2.5.4.6", country);
  names->next = RelativeName("2.5.4.3", common);
  return Sequence(names);
}
// [/name]

// [key_info]
// Makes the identifier of an algorithm, and takes over its parameter, which may be null.
static inline Anybuf* Algorithm(const char* oidText, Anybuf* parameter) {
  Anybuf* oid = ObjectId(oidText);
  oid->next = parameter;
  return Sequence(oid);
}

static inline Anybuf* Sm2KeyAlgorithm(void) {
  return Algorithm("1.2.840.10045.2.1", ObjectId("1.2.156.10197.1.301"));
}

// Makes the key info of a public key, and takes over the algorithm.
static inline Anybuf* KeyInfo(Anybuf* algorithm, const uint8_t* key, uint32_t length) {
  algorithm->next = BitString(key, length, 0);
  return Sequence(algorithm);
}
// [/key_info]

// [rsa_modulus]
// Returns the modulus of an RSA public key of any size, as a content node. `key` is the content of
// the BIT STRING in the key info.
static inline Anybuf* RsaModulus(const Anybuf* key) {
  Anybuf* publicKey = Element(key->data, key->dataLen);
  Anybuf* modulus = NULL;
  Anybuf* exponent = NULL;
  Anybuf* bytes = NULL;
  CHECK(ASN1_GetRSAPublicKey(publicKey, &modulus, &exponent));
  CHECK(ASN1_ReadIntegerArray(modulus, &bytes));
  ASN1_FreeAnybuf(exponent);
  ASN1_FreeAnybuf(modulus);
  ASN1_FreeAnybuf(publicKey);
  return bytes;
}
// [/rsa_modulus]

// [signature]
// The algorithm of SM2 signatures with SM3. It has no parameter.
static inline Anybuf* SignatureAlgorithm(void) { return Algorithm("1.2.156.10197.1.501", NULL); }

// Stands where a program calls its toolkit, which hashes the node's bytes and signs the digest.
// Here r and s are fixed bytes, and no valid signature.
static inline Anybuf* Sign(const Anybuf* toBeSigned) {
  const uint8_t r[32] = {0x5A};
  const uint8_t s[32] = {0xA5};
  uint8_t der[sizeof r + sizeof s + 20];
  uint32_t length = 0;
  (void)toBeSigned;
  CHECK(ASN1_SM2_SM2SignatureEncode(r, sizeof r, s, sizeof s, der, &length));
  REQUIRE(length != 0);
  return BitString(der, length, 0);
}
// [/signature]

// [extension]
// Makes an extension and releases the node of its value.
static inline Anybuf* Extension(const char* oidText, bool critical, Anybuf* value) {
  const uint32_t flag = critical ? 0xFF : 0;
  uint8_t oid[64];
  const uint32_t oidLength = ObjectIdOctets(oidText, oid);
  Anybuf* node = NULL;
  CHECK(ASN1_GetExtensionOne(0, oid, oidLength, flag, value->data, value->dataLen, &node));
  ASN1_FreeAnybuf(value);
  return node;
}
// [/extension]

// [find_extension]
// Finds an extension in a list of them and returns its value as a content node, or null.
static inline Anybuf* FindExtension(const Anybuf* list, const char* oidText, bool* isCritical) {
  Anybuf* found = NULL;
  Anybuf* extensions = NULL;
  CHECK(ASN1_ReadExtensions(list, &extensions));
  for (const Anybuf* one = extensions; one != NULL && found == NULL; one = one->next) {
    Anybuf* oid = NULL;
    Anybuf* critical = NULL;  // Stays null when the extension has no BOOLEAN.
    Anybuf* value = NULL;
    CHECK(ASN1_GetExtension(one, &oid, &critical, &value));
    if (IsObjectId(oid, oidText)) {
      uint8_t flag = 0;
      if (critical != NULL) CHECK(ASN1_ReadBoolean(critical, &flag));
      *isCritical = flag != 0;
      CHECK(ASN1_ReadOctetString(value, &found));
    }
    ASN1_FreeAnybuf(value);
    ASN1_FreeAnybuf(critical);
    ASN1_FreeAnybuf(oid);
  }
  ASN1_FreeAnybuf(extensions);
  return found;
}
// [/find_extension]

// [any_string]
// Writes the text of a string TLV node to `out` as UTF-8 and returns the number of bytes. Twice the
// size of the node is enough room.
static inline uint32_t TextOf(const Anybuf* value, uint8_t* out) {
  // A BMPString has two bytes for each character. A T61String has one, which is taken for Latin-1.
  const bool isBmpString = value->dataType == 30;
  const bool isT61String = value->dataType == 20;
  const uint32_t width = isBmpString ? 2 : 1;
  Anybuf* content = NULL;
  uint32_t written = 0;
  CHECK(ASN1_ReadBmpString(value, &content));
  for (uint32_t at = 0; at + width <= content->dataLen; at += width) {
    uint32_t code = content->data[at];
    if (isBmpString) code = code << 8 | content->data[at + 1];
    if (isBmpString || isT61String) {
      written += (uint32_t)uniToUTF8(out + written, 3, code);
    } else {
      out[written++] = (uint8_t)code;  // The others are UTF-8 as they stand.
    }
  }
  ASN1_FreeAnybuf(content);
  return written;
}
// [/any_string]

// [version_1]
// Decodes the signed part of a certificate. One of version 1 gets its version put in front first.
static inline TBSCertificate* DecodeSignedPart(const Anybuf* signedPart) {
  const uint8_t version1[] = {0xA0, 0x03, 0x02, 0x01, 0x00};
  Anybuf* elements = NULL;
  CHECK(ASN1_ReadSequence(signedPart, &elements));
  REQUIRE(elements != NULL);
  if (elements->dataType != 0xA0) {
    Anybuf* version = Element(version1, sizeof version1);
    version->next = elements;
    elements = version;
  }
  Anybuf* withVersion = Sequence(elements);
  TBSCertificate* tbs = NULL;
  CHECK(ASN1_TBSCertificateDecode(withVersion, &tbs));
  ASN1_FreeAnybuf(withVersion);
  return tbs;
}
// [/version_1]

// [prepend]
// Makes the SEQUENCE of `first` and then the elements of `sequence`, and releases `first`.
static inline Anybuf* Prepend(Anybuf* first, const Anybuf* sequence) {
  CHECK(ASN1_ReadSequence(sequence, &first->next));
  return Sequence(first);
}
// [/prepend]

#endif  // VELKORD_EXAMPLES_GUIDE_PARTS_H_
