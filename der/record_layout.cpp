// The layout of every record, which callers in other languages rely on: for each field its offset
// with pointers of 4 and of 8 bytes.
#include <cstddef>

#include "Velkord.h"

namespace {

constexpr size_t ForWordSize(size_t narrow, size_t wide) {
  return sizeof(void*) == 4 ? narrow : wide;
}

}  // namespace

#define VELKORD_SIZE(record, narrow, wide) \
  static_assert(sizeof(record) == ForWordSize(narrow, wide))
#define VELKORD_OFFSET(record, field, narrow, wide) \
  static_assert(offsetof(record, field) == ForWordSize(narrow, wide))

VELKORD_OFFSET(Anybuf, data, 0, 0);
VELKORD_OFFSET(Anybuf, dataLen, 4, 8);
VELKORD_OFFSET(Anybuf, unusedBits, 8, 12);
VELKORD_OFFSET(Anybuf, memKind, 12, 16);
VELKORD_OFFSET(Anybuf, dataType, 16, 20);
VELKORD_OFFSET(Anybuf, next, 20, 24);
VELKORD_OFFSET(Anybuf, prev, 24, 32);
VELKORD_SIZE(Anybuf, 28, 40);

VELKORD_OFFSET(ObjectID, id, 0, 0);
VELKORD_OFFSET(ObjectID, data, 4, 8);
VELKORD_OFFSET(ObjectID, dataLen, 8, 16);
VELKORD_OFFSET(ObjectID, unusedBits, 12, 20);
VELKORD_OFFSET(ObjectID, memKind, 16, 24);
VELKORD_OFFSET(ObjectID, dataType, 20, 28);
VELKORD_OFFSET(ObjectID, next, 24, 32);
VELKORD_OFFSET(ObjectID, prev, 28, 40);
VELKORD_SIZE(ObjectID, 32, 48);

VELKORD_OFFSET(AttributeTypeAndValue, type, 0, 0);
VELKORD_OFFSET(AttributeTypeAndValue, value, 4, 8);
VELKORD_SIZE(AttributeTypeAndValue, 8, 16);

VELKORD_OFFSET(TBSCertificate, version, 0, 0);
VELKORD_OFFSET(TBSCertificate, hasIssuerUniqueID, 4, 4);
VELKORD_OFFSET(TBSCertificate, hasSubjectUniqueID, 8, 8);
VELKORD_OFFSET(TBSCertificate, hasExtensions, 12, 12);
VELKORD_OFFSET(TBSCertificate, versionNode, 16, 16);
VELKORD_OFFSET(TBSCertificate, serialNumber, 20, 24);
VELKORD_OFFSET(TBSCertificate, signature, 24, 32);
VELKORD_OFFSET(TBSCertificate, issuer, 28, 40);
VELKORD_OFFSET(TBSCertificate, validity, 32, 48);
VELKORD_OFFSET(TBSCertificate, subject, 36, 56);
VELKORD_OFFSET(TBSCertificate, subjectPublicKeyInfo, 40, 64);
VELKORD_OFFSET(TBSCertificate, issuerUniqueID, 44, 72);
VELKORD_OFFSET(TBSCertificate, subjectUniqueID, 48, 80);
VELKORD_OFFSET(TBSCertificate, extensions, 52, 88);
VELKORD_SIZE(TBSCertificate, 56, 96);

VELKORD_OFFSET(Certificate, tbsCertificate, 0, 0);
VELKORD_OFFSET(Certificate, signatureAlgorithm, 4, 8);
VELKORD_OFFSET(Certificate, signatureValue, 8, 16);
VELKORD_SIZE(Certificate, 12, 24);

VELKORD_OFFSET(CertificateList, tbsCertList, 0, 0);
VELKORD_OFFSET(CertificateList, signatureAlgorithm, 4, 8);
VELKORD_OFFSET(CertificateList, signatureValue, 8, 16);
VELKORD_SIZE(CertificateList, 12, 24);

VELKORD_OFFSET(PKCS10Request, certificationRequestInfo, 0, 0);
VELKORD_OFFSET(PKCS10Request, signatureAlgorithm, 4, 8);
VELKORD_OFFSET(PKCS10Request, signature, 8, 16);
VELKORD_SIZE(PKCS10Request, 12, 24);

VELKORD_OFFSET(CertEntry, oid, 0, 0);
VELKORD_OFFSET(CertEntry, oidLen, 4, 8);
VELKORD_OFFSET(CertEntry, value, 8, 16);
VELKORD_OFFSET(CertEntry, valueLen, 12, 24);
VELKORD_OFFSET(CertEntry, next, 16, 32);
VELKORD_SIZE(CertEntry, 20, 40);

VELKORD_OFFSET(CertWideEntry, block1, 0, 0);
VELKORD_OFFSET(CertWideEntry, word2, 4, 8);
VELKORD_OFFSET(CertWideEntry, block3, 8, 16);
VELKORD_OFFSET(CertWideEntry, word4, 12, 24);
VELKORD_OFFSET(CertWideEntry, word5, 16, 32);
VELKORD_OFFSET(CertWideEntry, next, 20, 40);
VELKORD_SIZE(CertWideEntry, 24, 48);

VELKORD_OFFSET(X509Cert, word1, 0, 0);
VELKORD_OFFSET(X509Cert, word2, 4, 8);
VELKORD_OFFSET(X509Cert, word3, 8, 16);
VELKORD_OFFSET(X509Cert, block1, 12, 24);
VELKORD_OFFSET(X509Cert, word5, 16, 32);
VELKORD_OFFSET(X509Cert, word6, 20, 40);
VELKORD_OFFSET(X509Cert, block2, 24, 48);
VELKORD_OFFSET(X509Cert, word8, 28, 56);
VELKORD_OFFSET(X509Cert, tbs, 32, 64);
VELKORD_OFFSET(X509Cert, word10, 36, 72);
VELKORD_OFFSET(X509Cert, word11, 40, 80);
VELKORD_OFFSET(X509Cert, word12, 44, 88);
VELKORD_OFFSET(X509Cert, block3, 48, 96);
VELKORD_OFFSET(X509Cert, word14, 52, 104);
VELKORD_OFFSET(X509Cert, entriesA, 56, 112);
VELKORD_OFFSET(X509Cert, subjectEntries, 60, 120);
VELKORD_OFFSET(X509Cert, word17, 64, 128);
VELKORD_OFFSET(X509Cert, word18, 68, 136);
VELKORD_OFFSET(X509Cert, block4, 72, 144);
VELKORD_OFFSET(X509Cert, word20, 76, 152);
VELKORD_OFFSET(X509Cert, block5, 80, 160);
VELKORD_OFFSET(X509Cert, word22, 84, 168);
VELKORD_OFFSET(X509Cert, entriesB, 88, 176);
VELKORD_SIZE(X509Cert, 92, 184);

VELKORD_OFFSET(RevokedCertificate, hasCrlEntryExtensions, 0, 0);
VELKORD_OFFSET(RevokedCertificate, certificateSerialNumber, 4, 8);
VELKORD_OFFSET(RevokedCertificate, revocationDate, 8, 16);
VELKORD_OFFSET(RevokedCertificate, crlEntryExtensions, 12, 24);
VELKORD_SIZE(RevokedCertificate, 16, 32);

VELKORD_OFFSET(TbsCertList, hasRevokedCertificates, 0, 0);
VELKORD_OFFSET(TbsCertList, hasCrlExtensions, 4, 4);
VELKORD_OFFSET(TbsCertList, hasNextUpdate, 8, 8);
VELKORD_OFFSET(TbsCertList, timeForm, 12, 12);
VELKORD_OFFSET(TbsCertList, version, 16, 16);
VELKORD_OFFSET(TbsCertList, signature, 20, 24);
VELKORD_OFFSET(TbsCertList, issuer, 24, 32);
VELKORD_OFFSET(TbsCertList, thisUpdate, 28, 40);
VELKORD_OFFSET(TbsCertList, nextUpdate, 32, 44);
VELKORD_OFFSET(TbsCertList, revokedCertificates, 36, 48);
VELKORD_OFFSET(TbsCertList, crlExtensions, 40, 56);
VELKORD_SIZE(TbsCertList, 44, 64);

VELKORD_OFFSET(PKCS10, version, 0, 0);
VELKORD_OFFSET(PKCS10, subject, 4, 8);
VELKORD_OFFSET(PKCS10, subjectPublicKeyInfo, 8, 16);
VELKORD_OFFSET(PKCS10, attributes, 12, 24);
VELKORD_SIZE(PKCS10, 16, 32);

VELKORD_OFFSET(ExtendedCertificateInfo, version, 0, 0);
VELKORD_OFFSET(ExtendedCertificateInfo, certificate, 4, 8);
VELKORD_OFFSET(ExtendedCertificateInfo, attributes, 8, 16);
VELKORD_SIZE(ExtendedCertificateInfo, 12, 24);

VELKORD_OFFSET(ExtendedCertificate, extendedCertificateInfo, 0, 0);
VELKORD_OFFSET(ExtendedCertificate, signatureAlgorithm, 4, 8);
VELKORD_OFFSET(ExtendedCertificate, signature, 8, 16);
VELKORD_SIZE(ExtendedCertificate, 12, 24);

VELKORD_OFFSET(PKCS7Context, contentType, 0, 0);
VELKORD_OFFSET(PKCS7Context, content, 4, 8);
VELKORD_SIZE(PKCS7Context, 8, 16);

VELKORD_OFFSET(ZantPublicKey, modulus, 0, 0);
VELKORD_OFFSET(ZantPublicKey, publicExponent, 256, 256);
VELKORD_SIZE(ZantPublicKey, 512, 512);

VELKORD_OFFSET(ZantPrivateKey, modulus, 0, 0);
VELKORD_OFFSET(ZantPrivateKey, publicExponent, 256, 256);
VELKORD_OFFSET(ZantPrivateKey, privateExponent, 512, 512);
VELKORD_OFFSET(ZantPrivateKey, prime1, 768, 768);
VELKORD_OFFSET(ZantPrivateKey, prime2, 896, 896);
VELKORD_OFFSET(ZantPrivateKey, exponent1, 1024, 1024);
VELKORD_OFFSET(ZantPrivateKey, exponent2, 1152, 1152);
VELKORD_OFFSET(ZantPrivateKey, coefficient, 1280, 1280);
VELKORD_SIZE(ZantPrivateKey, 1408, 1408);

VELKORD_OFFSET(EccPubkey, bits, 0, 0);
VELKORD_OFFSET(EccPubkey, x, 4, 4);
VELKORD_OFFSET(EccPubkey, y, 36, 36);
VELKORD_SIZE(EccPubkey, 68, 68);

VELKORD_OFFSET(EccPrikey, bits, 0, 0);
VELKORD_OFFSET(EccPrikey, d, 4, 4);
VELKORD_SIZE(EccPrikey, 36, 36);
