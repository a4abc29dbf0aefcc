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
