/// @mainpage Velkord
/// The whole interface of Velkord: DER structures of a public-key infrastructure, in plain C99.
/// This holds unless a comment says otherwise. A comment above several functions is that of each.
///
/// **Nodes.** Every DER value travels in an `Anybuf`. A *TLV node* holds one whole element: tag
/// octets, length octets and content. A *content node* holds content octets alone. The node does
/// not say which form it has: functions take and make TLV nodes unless they speak of content nodes.
/// A *chain* is a run of TLV nodes linked through `next` and held by the first.
///
/// **Reduced tags.** `dataType` is the tag octet itself when it is 0x80 or above, and its low five
/// bits otherwise: a SEQUENCE (0x30) is 16, a SET (0x31) is 17, `[3]` EXPLICIT stays 0xA3. A tag of
/// several octets is `(number << 8) | first octet`, the number cut to 24 bits: `9F 21` is 0x219F,
/// `BF 00` is 0xBF. Its low five bits are all set, as those of no tag of one octet are.
///
/// **Lengths** count bytes. Those of elements are read in shortest form or not, with up to four
/// octets after the first, and written in shortest form; the indefinite one of BER (80) is refused.
///
/// **Ownership.** What a function is given is copied and stays the caller's;
/// `ASN1_SetAlgorithmIdentifier` alone differs. What it hands out is new: nodes and chains are
/// released with `ASN1_FreeAnybuf`, a record and all in it with the Free function of its type. A
/// Free function does nothing for a null pointer. All blocks come from the C run-time's `malloc`
/// and go back through its `free`, so a caller may build and take apart nodes itself.
///
/// **Threads** may use different nodes and records at the same time. No thread may change the
/// environment or the time zone while another reads or writes a time, as the group Time tells.
///
/// **Records.** A record owns the nodes in its fields: copies, those of a SEQUENCE or SET with its
/// own length in shortest form. A setter releases what the field held before, and sets the flag of
/// an optional field to 1; an optional field is written when its flag is 1. Writing changes nothing
/// in it. A decoder takes one level of the DER apart. It tests the types of what must be a
/// SEQUENCE, SET or time alone, and skips elements after those that it knows.
///
/// **Buffers.** An out buffer comes without its size: each comment states the room that it needs. A
/// reader of one content may be given the `data` of its own source, and the functions of RSA, EC
/// and SM2 keys may write over what they read; otherwise buffers and inputs do not overlap. Bytes
/// may be null when their length is 0, and a node whose `data` is null holds none.
///
/// **Results.** After a failure no out argument and no record has changed, and nothing stays
/// allocated. A function that returns `int32_t` returns `VELKORD_OK`, `VELKORD_NULL_ARGUMENT`, or a
/// code that the first word of its comment stands for:
///
/// | first word | what the function does | codes |
/// |---|---|---|
/// | Makes | makes a node or chain | `VELKORD_FAILURE` |
/// | Reads | looks into one element of any type | these and `VELKORD_SIZE_MISMATCH` |
/// | Opens | looks into a SEQUENCE or SET and its children | these and `VELKORD_WRONG_TAG` |
/// | Decodes | makes a record of a SEQUENCE | these and `VELKORD_OUT_OF_MEMORY` |
/// | Creates | makes a record | `VELKORD_OUT_OF_MEMORY` |
/// | Sets | sets a field | as Opens from a SEQUENCE or SET, else as Makes |
/// | Stores | stores a number in a record | no more |
///
/// Other codes that a comment names are added to these; after "Returns" it names all. A function
/// that is another name of one, or sets a field as one does, returns what that one does.
///
/// | group | what it holds |
/// |---|---|
/// | @ref version | the numbers and the text |
/// | @ref codes | what each means |
/// | @ref records | what functions fill and read, field by field |
/// | @ref nodes | a node made and released |
/// | @ref strings | the types whose content is bytes |
/// | @ref integers | numbers of 32 bits and of any size |
/// | @ref object_ids | dotted text, content octets and elements |
/// | @ref sequences | chains built, joined and split |
/// | @ref tags | an element under another tag |
/// | @ref time | UTCTime and GeneralizedTime |
/// | @ref names | attributes, relative names and names |
/// | @ref key_info | Validity, AlgorithmIdentifier, SubjectPublicKeyInfo, RSAPublicKey |
/// | @ref extensions | one extension, and the list of them |
/// | @ref certificates | the signed part, and the whole with its signature |
/// | @ref inspection | the subject of a certificate, and a value in its extensions |
/// | @ref lists | an entry, the signed part, and the whole with its signature |
/// | @ref requests | the signed part, and the whole with its signature |
/// | @ref extended_certificates | the signed part, and the whole with its signature |
/// | @ref messages | a content after its type |
/// | @ref rsa_keys | records of numbers as DER |
/// | @ref ec_keys | records of a point or a private value as DER |
/// | @ref sm2 | signatures, private values and points as DER |
/// | @ref base64 | DER as text |
/// | @ref character_sets | GB2312, code points and UTF-8 |
#ifndef VELKORD_H_
#define VELKORD_H_

#include <stdint.h>

// -------------------------------------------------------------------------------------------------
/// @defgroup version Version
/// That of this header.

/// The three numbers, or the text made of them.
/// @{
#define VELKORD_VERSION_MAJOR 1
#define VELKORD_VERSION_MINOR 0
#define VELKORD_VERSION_PATCH 0
#define VELKORD_VERSION_STRING "1.0.0"
/// @}

#if defined(VELKORD_STATIC)
#define VELKORD_API
#elif defined(_WIN32) && defined(VELKORD_BUILD)
#define VELKORD_API __declspec(dllexport)
#elif defined(_WIN32)
#define VELKORD_API __declspec(dllimport)
#else
#define VELKORD_API __attribute__((visibility("default")))
#endif
// A compiler for Windows may be told another convention for what names none.
#if defined(_WIN32)
#define VELKORD_CALL __cdecl
#else
#define VELKORD_CALL
#endif

#ifdef __cplusplus
extern "C" {
#endif

// -------------------------------------------------------------------------------------------------
/// @defgroup codes Return codes
/// What each means, by the first word of a comment or by family.
///
/// | code | returned by | when |
/// |---|---|---|
/// | `VELKORD_FAILURE` | Makes, Reads, Opens, Decodes | there is no memory for a node |
/// | | Reads, Opens, Decodes | a length has more than four octets after the first |
/// | | Opens, Decodes | a child is missing, runs past its parent or has the indefinite length |
/// | | keys, PEM, inspection | what the comments there say |
/// | `VELKORD_SIZE_MISMATCH` | Reads, Opens, Decodes | the bytes are not exactly one element |
/// | | | its length is indefinite, or an octet that must be there is missing |
/// | `VELKORD_NEGATIVE_TIME` | writers of times | a time is below 0 |
/// | `VELKORD_BAD_TIME` | readers of times | a text is short, or lacks a digit or its final "Z" |
/// | `VELKORD_WRONG_TAG` | Opens, Decodes | what must be a SEQUENCE or SET is none |
/// | | names, readers of times | a value is of another string type, a time of another type |
/// | `VELKORD_NULL_ARGUMENT` | all | an argument that is required is null |
/// | | writers of records | a field that is to be written was never set |
/// | | Decodes | the bytes are null, of length 0 too |
/// | `VELKORD_OUT_OF_MEMORY` | Creates, Decodes | there is no memory for the record |
/// | | writers of times | there is no memory for the node |
/// | | readers of times | a time is before 1970, or after 19 January 2038, 03:14:07 UTC |

/// Return codes.
enum {
  VELKORD_OK = 0,                ///< Success.
  VELKORD_FAILURE = -1,          ///< No memory, a length too long, a child that does not fit.
  VELKORD_SIZE_MISMATCH = -2,    ///< Tag, length and content are not the bytes given.
  VELKORD_NEGATIVE_TIME = -4,    ///< A time below 0.
  VELKORD_BAD_TIME = -5,         ///< A malformed time text.
  VELKORD_WRONG_TAG = -7,        ///< Another type than the one that is needed.
  VELKORD_NULL_ARGUMENT = -8,    ///< A null argument, or a required field that was never set.
  VELKORD_OUT_OF_MEMORY = -7000  ///< No memory for a record, or a time outside 1970 to 2038.
};
// -------------------------------------------------------------------------------------------------
/// @defgroup records Records
/// What functions fill and read, field by field.

/// The value node.
typedef struct Anybuf {
  uint8_t* data;        ///< The node's own block.
  uint32_t dataLen;     ///< Number of bytes at `data`.
  uint32_t unusedBits;  ///< Unused bits of a BIT STRING; no meaning for other types.
  uint32_t memKind;     ///< 2, or that of its source on a copy in a chain; nothing tests it.
  uint32_t dataType;    ///< Reduced tag.
  struct Anybuf* next;  ///< Next node of the chain, null on the last.
  struct Anybuf* prev;  ///< Node before this one in a chain from a split; else null.
} Anybuf;

/// An object identifier: a number of the caller's, then the fields of a content node.
typedef struct ObjectID {
  int32_t id;           ///< The caller's; 0 from `ASN1_ReadObjectId`.
  uint8_t* data;        ///< Content octets, owned by the record.
  uint32_t dataLen;     ///< Number of octets at `data`.
  uint32_t unusedBits;  ///< As in a node.
  uint32_t memKind;     ///< As in a node.
  uint32_t dataType;    ///< As in a node.
  struct Anybuf* next;  ///< As in a node.
  struct Anybuf* prev;  ///< As in a node.
} ObjectID;

/// One attribute of a name.
typedef struct AttributeTypeAndValue {
  Anybuf* type;   ///< OBJECT IDENTIFIER TLV.
  Anybuf* value;  ///< String TLV.
} AttributeTypeAndValue;

/// The signed part of a certificate.
typedef struct TBSCertificate {
  uint32_t version;              ///< As given to the setter; 0 after a decode.
  uint32_t hasIssuerUniqueID;    ///< 1 when `issuerUniqueID` is set.
  uint32_t hasSubjectUniqueID;   ///< 1 when `subjectUniqueID` is set.
  uint32_t hasExtensions;        ///< 1 when `extensions` is set.
  Anybuf* versionNode;           ///< `[0]` around an INTEGER.
  Anybuf* serialNumber;          ///< INTEGER.
  Anybuf* signature;             ///< AlgorithmIdentifier.
  Anybuf* issuer;                ///< Name.
  Anybuf* validity;              ///< Validity.
  Anybuf* subject;               ///< Name.
  Anybuf* subjectPublicKeyInfo;  ///< SubjectPublicKeyInfo.
  Anybuf* issuerUniqueID;        ///< `[1]` IMPLICIT BIT STRING, optional.
  Anybuf* subjectUniqueID;       ///< `[2]` IMPLICIT BIT STRING, optional.
  Anybuf* extensions;  ///< Optional: `[3]` around the list; after a decode SEQUENCE around it.
} TBSCertificate;

/// A signed certificate.
typedef struct Certificate {
  Anybuf* tbsCertificate;      ///< SEQUENCE, as signed.
  Anybuf* signatureAlgorithm;  ///< AlgorithmIdentifier.
  Anybuf* signatureValue;      ///< BIT STRING.
} Certificate;

/// One entry of a revocation list.
typedef struct RevokedCertificate {
  uint32_t hasCrlEntryExtensions;   ///< 1 when `crlEntryExtensions` is set.
  Anybuf* certificateSerialNumber;  ///< INTEGER.
  Anybuf* revocationDate;           ///< UTCTime or GeneralizedTime.
  Anybuf* crlEntryExtensions;       ///< SEQUENCE of extensions, optional.
} RevokedCertificate;

/// The signed part of a revocation list.
typedef struct TbsCertList {
  uint32_t hasRevokedCertificates;  ///< 1 when `revokedCertificates` is set.
  uint32_t hasCrlExtensions;        ///< 1 when `crlExtensions` is set.
  uint32_t hasNextUpdate;           ///< 1 when `nextUpdate` is set.
  uint32_t timeForm;                ///< 1: both times are written as UTCTime, else GeneralizedTime.
  uint32_t version;                 ///< As its INTEGER shows it; written only when it is 2.
  Anybuf* signature;                ///< AlgorithmIdentifier.
  Anybuf* issuer;                   ///< Name.
  int32_t thisUpdate;               ///< Seconds since 1 January 1970.
  int32_t nextUpdate;               ///< Seconds since 1 January 1970, optional.
  Anybuf* revokedCertificates;      ///< SEQUENCE of entries, optional.
  Anybuf* crlExtensions;            ///< The content of `[0]`: SEQUENCE of extensions, optional.
} TbsCertList;

/// A signed revocation list.
typedef struct CertificateList {
  Anybuf* tbsCertList;         ///< SEQUENCE, as signed.
  Anybuf* signatureAlgorithm;  ///< AlgorithmIdentifier.
  Anybuf* signatureValue;      ///< BIT STRING.
} CertificateList;

/// The signed part of a PKCS#10 certification request.
typedef struct PKCS10 {
  Anybuf* version;               ///< INTEGER.
  Anybuf* subject;               ///< Name.
  Anybuf* subjectPublicKeyInfo;  ///< SubjectPublicKeyInfo.
  Anybuf* attributes;            ///< `[0]` IMPLICIT SET; null when a decoded one has none.
} PKCS10;

/// A signed PKCS#10 certification request.
typedef struct PKCS10Request {
  Anybuf* certificationRequestInfo;  ///< SEQUENCE, as signed.
  Anybuf* signatureAlgorithm;        ///< AlgorithmIdentifier.
  Anybuf* signature;                 ///< BIT STRING.
} PKCS10Request;

/// The signed part of a PKCS#6 extended certificate.
typedef struct ExtendedCertificateInfo {
  uint32_t version;     ///< The number itself.
  Anybuf* certificate;  ///< Certificate.
  Anybuf* attributes;   ///< SET.
} ExtendedCertificateInfo;

/// A signed PKCS#6 extended certificate.
typedef struct ExtendedCertificate {
  Anybuf* extendedCertificateInfo;  ///< SEQUENCE, as signed.
  Anybuf* signatureAlgorithm;       ///< AlgorithmIdentifier.
  Anybuf* signature;                ///< BIT STRING.
} ExtendedCertificate;

/// A PKCS#7 ContentInfo.
typedef struct PKCS7Context {
  Anybuf* contentType;  ///< OBJECT IDENTIFIER.
  Anybuf* content;      ///< The whole `[0]` element when set, its content when decoded.
} PKCS7Context;

/// An RSA public key: big-endian numbers. Encoding takes each from its field's end, with zero bytes
/// in front; decoding puts each at its field's start, with zero bytes after it.
typedef struct ZantPublicKey {
  uint8_t modulus[256];         ///< n.
  uint8_t publicExponent[256];  ///< e.
} ZantPublicKey;

/// An RSA private key, its numbers placed as in `ZantPublicKey`.
typedef struct ZantPrivateKey {
  uint8_t modulus[256];          ///< n.
  uint8_t publicExponent[256];   ///< e.
  uint8_t privateExponent[256];  ///< d.
  uint8_t prime1[128];           ///< p.
  uint8_t prime2[128];           ///< q.
  uint8_t exponent1[128];        ///< d mod (p - 1).
  uint8_t exponent2[128];        ///< d mod (q - 1).
  uint8_t coefficient[128];      ///< The inverse of q mod p.
} ZantPrivateKey;

/// The public key of an elliptic curve of 256 bits: the coordinates big-endian at full width.
typedef struct EccPubkey {
  uint32_t bits;  ///< 256 after decoding; encoding does not read it.
  uint8_t x[32];  ///< The X coordinate.
  uint8_t y[32];  ///< The Y coordinate.
} EccPubkey;

/// The private key of an elliptic curve of 256 bits.
typedef struct EccPrikey {
  uint32_t bits;  ///< 256 after decoding.
  uint8_t d[32];  ///< Big-endian, from the first byte on.
} EccPrikey;

/// One subject attribute of an inspected certificate.
typedef struct CertEntry {
  uint8_t* oid;            ///< OBJECT IDENTIFIER content octets.
  uint32_t oidLen;         ///< Number of octets at `oid`.
  uint8_t* value;          ///< The value's bytes; null when its type is not read.
  uint32_t valueLen;       ///< Number of bytes at `value`.
  struct CertEntry* next;  ///< Null on the last.
} CertEntry;

/// A list entry of the caller's own, released with the record that holds it.
typedef struct CertWideEntry {
  uint8_t* block1;             ///< Released with the entry.
  uintptr_t word2;             ///< The caller's.
  uint8_t* block3;             ///< Released with the entry.
  uintptr_t word4;             ///< The caller's.
  uintptr_t word5;             ///< The caller's.
  struct CertWideEntry* next;  ///< Null on the last.
} CertWideEntry;

/// A caller's view of a decoded certificate: 23 words, each as wide as a pointer. The library reads
/// `tbs` and fills `subjectEntries`; `X509CertFree` releases what its pointers hold, whose blocks
/// must come from `malloc`. The fields `wordN` are the caller's.
typedef struct X509Cert {
  uintptr_t word1;            ///< The caller's.
  uintptr_t word2;            ///< The caller's.
  uintptr_t word3;            ///< The caller's.
  uint8_t* block1;            ///< Released with the record.
  uintptr_t word5;            ///< The caller's.
  uintptr_t word6;            ///< The caller's.
  uint8_t* block2;            ///< Released with the record.
  uintptr_t word8;            ///< The caller's.
  TBSCertificate* tbs;        ///< Set by the caller; then owned by the record.
  uintptr_t word10;           ///< The caller's.
  uintptr_t word11;           ///< The caller's.
  uintptr_t word12;           ///< The caller's.
  uint8_t* block3;            ///< Released with the record.
  uintptr_t word14;           ///< The caller's.
  CertEntry* entriesA;        ///< Released with the record.
  CertEntry* subjectEntries;  ///< Filled by `X509CertGetSubject`.
  uintptr_t word17;           ///< The caller's.
  uintptr_t word18;           ///< The caller's.
  uint8_t* block4;            ///< Released with the record.
  uintptr_t word20;           ///< The caller's.
  uint8_t* block5;            ///< Released with the record.
  uintptr_t word22;           ///< The caller's.
  CertWideEntry* entriesB;    ///< Released with the record.
} X509Cert;
// -------------------------------------------------------------------------------------------------
/// @defgroup nodes Value nodes

/// Makes a content node with a copy of `length` bytes. `dataType` is `type` as it stands. For type
/// 3 `unusedBits` comes from the size of the last byte V: 0 for V below 2 or above 128, otherwise
/// the number of bits of V - 1.
VELKORD_API int32_t VELKORD_CALL ASN1_CreateAnybuf(const uint8_t* bytes, uint32_t length,
                                                   uint8_t type, Anybuf** out);

/// Makes a node of DER bytes, unchanged. Only the tag is read, and in spite of the name none is
/// added. Also `VELKORD_SIZE_MISMATCH` without a whole tag.
VELKORD_API int32_t VELKORD_CALL ASN1_WriteExplicitFromDERData(const uint8_t* bytes,
                                                               uint32_t length, Anybuf** out);

/// Releases `node` and every node after it, so it is for the head of a chain only.
VELKORD_API void VELKORD_CALL ASN1_FreeAnybuf(Anybuf* node);
// -------------------------------------------------------------------------------------------------
/// @defgroup strings Byte and character strings, ENUMERATED, BOOLEAN, NULL
/// Writing differs by the tag alone; reading is the same for all. CharString is PrintableString.

/// Makes an element over a content node of any type. `ASN1_WriteBitString` writes the low byte of
/// the source's `unusedBits` in front. `ASN1_WritePrintableString` writes a BMPString for a source
/// of `dataType` 30 and a PrintableString otherwise.
VELKORD_API int32_t VELKORD_CALL ASN1_WriteOctetString(const Anybuf* source, Anybuf** out);
VELKORD_API int32_t VELKORD_CALL ASN1_WriteBitString(const Anybuf* source, Anybuf** out);
VELKORD_API int32_t VELKORD_CALL ASN1_WriteCharString(const Anybuf* source, Anybuf** out);
VELKORD_API int32_t VELKORD_CALL ASN1_WriteUTF8String(const Anybuf* source, Anybuf** out);
VELKORD_API int32_t VELKORD_CALL ASN1_WriteBmpString(const Anybuf* source, Anybuf** out);
VELKORD_API int32_t VELKORD_CALL ASN1_WriteIa5String(const Anybuf* source, Anybuf** out);
VELKORD_API int32_t VELKORD_CALL ASN1_WriteEnumerated(const Anybuf* source, Anybuf** out);
VELKORD_API int32_t VELKORD_CALL ASN1_WritePrintableString(const Anybuf* source, Anybuf** out);

/// Makes an element over content bytes. `ASN1_WriteBitStringFromBytes` derives the unused bits from
/// the size of the last byte, as `ASN1_CreateAnybuf` does; `ASN1_WriteBitString` takes a count.
VELKORD_API int32_t VELKORD_CALL ASN1_WriteOctetStringFromBytes(const uint8_t* bytes,
                                                                uint32_t length, Anybuf** out);
VELKORD_API int32_t VELKORD_CALL ASN1_WriteBitStringFromBytes(const uint8_t* bytes, uint32_t length,
                                                              Anybuf** out);
VELKORD_API int32_t VELKORD_CALL ASN1_WriteCharStringFromBytes(const uint8_t* bytes,
                                                               uint32_t length, Anybuf** out);
VELKORD_API int32_t VELKORD_CALL ASN1_WriteUTF8StringFromBytes(const uint8_t* bytes,
                                                               uint32_t length, Anybuf** out);
VELKORD_API int32_t VELKORD_CALL ASN1_WriteBmpStringFromBytes(const uint8_t* bytes, uint32_t length,
                                                              Anybuf** out);
VELKORD_API int32_t VELKORD_CALL ASN1_WriteIa5StringFromBytes(const uint8_t* bytes, uint32_t length,
                                                              Anybuf** out);
/// Makes a PrintableString over content bytes when `selector` is not 0, and a BMPString when it is.
VELKORD_API int32_t VELKORD_CALL ASN1_WritePrintableStringFromBytes(int32_t selector,
                                                                    const uint8_t* bytes,
                                                                    uint32_t length, Anybuf** out);

/// Other names of `ASN1_WriteExplicitFromDERData`; none tests the type.
VELKORD_API int32_t VELKORD_CALL ASN1_WriteOctetStringFromDERBytes(const uint8_t* bytes,
                                                                   uint32_t length, Anybuf** out);
VELKORD_API int32_t VELKORD_CALL ASN1_WriteCharStringFromDERBytes(const uint8_t* bytes,
                                                                  uint32_t length, Anybuf** out);
VELKORD_API int32_t VELKORD_CALL ASN1_WriteUTF8StringFromDERBytes(const uint8_t* bytes,
                                                                  uint32_t length, Anybuf** out);
VELKORD_API int32_t VELKORD_CALL ASN1_WriteBmpStringFromDERBytes(const uint8_t* bytes,
                                                                 uint32_t length, Anybuf** out);
VELKORD_API int32_t VELKORD_CALL ASN1_WriteIa5StringFromDERBytes(const uint8_t* bytes,
                                                                 uint32_t length, Anybuf** out);
VELKORD_API int32_t VELKORD_CALL ASN1_WritePrintableStringFromDERBytes(const uint8_t* bytes,
                                                                       uint32_t length,
                                                                       Anybuf** out);
/// Reads the DER bytes of a BIT STRING into a node, unchanged; `unusedBits` is the octet after the
/// header. The tag and the length are not tested; `VELKORD_SIZE_MISMATCH` only without that octet
/// or for the indefinite length.
VELKORD_API int32_t VELKORD_CALL ASN1_WriteBitStringFromDERBytes(const uint8_t* bytes,
                                                                 uint32_t length, Anybuf** out);

/// Reads an element of any type into a content node; `dataType` is the tag that was read. A source
/// of `dataType` 3 loses its unused-bits octet and passes its `unusedBits` on; an INTEGER loses the
/// zero octet that only keeps it positive. All names are one function.
VELKORD_API int32_t VELKORD_CALL ASN1_ReadBitString(const Anybuf* source, Anybuf** out);
VELKORD_API int32_t VELKORD_CALL ASN1_ReadBmpString(const Anybuf* source, Anybuf** out);
VELKORD_API int32_t VELKORD_CALL ASN1_ReadCharString(const Anybuf* source, Anybuf** out);
VELKORD_API int32_t VELKORD_CALL ASN1_ReadEnumerated(const Anybuf* source, Anybuf** out);
VELKORD_API int32_t VELKORD_CALL ASN1_ReadIa5String(const Anybuf* source, Anybuf** out);
VELKORD_API int32_t VELKORD_CALL ASN1_ReadOctetString(const Anybuf* source, Anybuf** out);
VELKORD_API int32_t VELKORD_CALL ASN1_ReadPrintableString(const Anybuf* source, Anybuf** out);
VELKORD_API int32_t VELKORD_CALL ASN1_ReadUTF8String(const Anybuf* source, Anybuf** out);

/// Reads the same content into `out` and its size into `outLength`. `out` needs room for all of it,
/// at most the source's `dataLen`; no zero is added. All names are one function.
VELKORD_API int32_t VELKORD_CALL ASN1_ReadCharStringToBytes(const Anybuf* source, uint8_t* out,
                                                            uint32_t* outLength);
VELKORD_API int32_t VELKORD_CALL ASN1_ReadIa5StringToBytes(const Anybuf* source, uint8_t* out,
                                                           uint32_t* outLength);
VELKORD_API int32_t VELKORD_CALL ASN1_ReadOctetStringToBytes(const Anybuf* source, uint8_t* out,
                                                             uint32_t* outLength);
VELKORD_API int32_t VELKORD_CALL ASN1_ReadPrintableStringToBytes(const Anybuf* source, uint8_t* out,
                                                                 uint32_t* outLength);
VELKORD_API int32_t VELKORD_CALL ASN1_ReadUTF8StringToBytes(const Anybuf* source, uint8_t* out,
                                                            uint32_t* outLength);
/// Reads the same of BMP text without the high bytes that are zero and without an odd last byte.
VELKORD_API int32_t VELKORD_CALL ASN1_ReadBmpStringToBytes(const Anybuf* source, uint8_t* out,
                                                           uint32_t* outLength);

/// Makes a BOOLEAN with the byte at `value` unchanged.
VELKORD_API int32_t VELKORD_CALL ASN1_WriteBoolean(const uint8_t* value, Anybuf** out);
/// Reads the first content octet of an element of any type, of a BIT STRING its unused-bits octet.
VELKORD_API int32_t VELKORD_CALL ASN1_ReadBoolean(const Anybuf* source, uint8_t* value);
/// Makes a NULL.
VELKORD_API int32_t VELKORD_CALL ASN1_WriteNull(Anybuf** out);
// -------------------------------------------------------------------------------------------------
/// @defgroup integers INTEGER
/// Numbers are unsigned; those of any size are big-endian bytes.

/// Makes the content octets of a number, 1 to 5 of them, and their count in a cell of its own.
/// Release both blocks with `free`.
VELKORD_API int32_t VELKORD_CALL Asn1LowIntToChar(uint32_t value, uint8_t** outBytes,
                                                  uint32_t** outLength);
/// Makes the INTEGER of a number.
VELKORD_API int32_t VELKORD_CALL ASN1_WriteInteger(uint32_t value, Anybuf** out);
/// Reads the low 32 bits of the number in an element of any type. Bytes after it are allowed.
VELKORD_API int32_t VELKORD_CALL ASN1_ReadInteger(const Anybuf* source, uint32_t* value);

/// Makes an INTEGER over a content node of any type or over bytes: a zero octet goes in front of a
/// first byte of 0x80 or more; leading zeros stay.
VELKORD_API int32_t VELKORD_CALL ASN1_WriteIntegerArray(const Anybuf* source, Anybuf** out);
VELKORD_API int32_t VELKORD_CALL ASN1_WriteIntegerArrayFromBytes(const uint8_t* bytes,
                                                                 uint32_t length, Anybuf** out);
/// Another name of `ASN1_WriteExplicitFromDERData`.
VELKORD_API int32_t VELKORD_CALL ASN1_WriteIntegerArrayFromDERBytes(const uint8_t* bytes,
                                                                    uint32_t length, Anybuf** out);
/// Another name of `ASN1_ReadBitString`.
VELKORD_API int32_t VELKORD_CALL ASN1_ReadIntegerArray(const Anybuf* source, Anybuf** out);
/// Another name of `ASN1_ReadOctetStringToBytes`.
VELKORD_API int32_t VELKORD_CALL ASN1_ReadIntegerArrayToBytes(const Anybuf* source, uint8_t* out,
                                                              uint32_t* outLength);
// -------------------------------------------------------------------------------------------------
/// @defgroup object_ids OBJECT IDENTIFIER

/// Turns dotted text of `textLength` characters into content octets; blanks may stand for points.
/// `out` needs as many bytes as the text has characters. Arcs are 32-bit and wrap. Returns the
/// number of octets written, which also goes to `outLength`, or 0 for a null argument and for a
/// text that is refused; then `outLength` is not written and `out` may hold the octets of the arcs
/// before the bad one. For a first arc and one more character, whatever it is, it returns 0 and
/// sets `outLength` to 0.
VELKORD_API int32_t VELKORD_CALL ASN1_OBJECT_a2d(uint8_t* out, uint32_t* outLength,
                                                 const char* text, int32_t textLength);

/// Makes an OBJECT IDENTIFIER over content octets; `id` has no effect.
VELKORD_API int32_t VELKORD_CALL ASN1_WriteObjectId(const ObjectID* record, Anybuf** out);
VELKORD_API int32_t VELKORD_CALL ASN1_WriteObjectIdFromData(int32_t id, const uint8_t* bytes,
                                                            uint32_t length, Anybuf** out);
/// Another name of `ASN1_WriteExplicitFromDERData`.
VELKORD_API int32_t VELKORD_CALL ASN1_WriteObjectIdFromDERBytes(const uint8_t* bytes,
                                                                uint32_t length, Anybuf** out);

/// Reads the content of an element of any type into a new record. Also `VELKORD_OUT_OF_MEMORY`.
VELKORD_API int32_t VELKORD_CALL ASN1_ReadObjectId(const Anybuf* source, ObjectID** out);
/// Releases a record and its `data`; `next` is not followed.
VELKORD_API void VELKORD_CALL ASN1_FreeObjectID(ObjectID* record);
/// Another name of `ASN1_ReadOctetStringToBytes`.
VELKORD_API int32_t VELKORD_CALL ASN1_ReadObjectIdToBytes(const Anybuf* source, uint8_t* out,
                                                          uint32_t* outLength);
// -------------------------------------------------------------------------------------------------
/// @defgroup sequences SEQUENCE and SET
/// Chains are built, joined and split. The order of the elements stays as it is, in a SET too.

/// Makes a chain of one node, a copy of `element`; its `next` is not followed.
VELKORD_API int32_t VELKORD_CALL ASN1_CreateSequence(const Anybuf* element, Anybuf** out);
VELKORD_API int32_t VELKORD_CALL ASN1_CreateSet(const Anybuf* element, Anybuf** out);
/// Appends a copy of `element` at the end of `chain`, to which it walks. Does nothing for a null
/// argument; when memory runs out the chain stays as it was.
VELKORD_API void VELKORD_CALL ASN1_AddSequence(const Anybuf* element, Anybuf* chain);
VELKORD_API void VELKORD_CALL ASN1_AddSet(const Anybuf* element, Anybuf* chain);
/// Other names of `ASN1_FreeAnybuf`.
VELKORD_API void VELKORD_CALL ASN1_FreeSequence(Anybuf* chain);
VELKORD_API void VELKORD_CALL ASN1_FreeSet(Anybuf* chain);

/// Makes one SEQUENCE or SET over the bytes of a chain; a null chain makes an empty element.
VELKORD_API int32_t VELKORD_CALL ASN1_WriteSequence(const Anybuf* chain, Anybuf** out);
VELKORD_API int32_t VELKORD_CALL ASN1_WriteSet(const Anybuf* chain, Anybuf** out);
/// Opens a SEQUENCE or SET, in a node or in bytes: the chain of its children, null for none.
VELKORD_API int32_t VELKORD_CALL ASN1_ReadSequence(const Anybuf* source, Anybuf** out);
VELKORD_API int32_t VELKORD_CALL ASN1_ReadSet(const Anybuf* source, Anybuf** out);
VELKORD_API int32_t VELKORD_CALL ASN1_WriteSequenceFromDERBytes(const uint8_t* bytes,
                                                                uint32_t length, Anybuf** out);
VELKORD_API int32_t VELKORD_CALL ASN1_WriteSetFromDERData(const uint8_t* bytes, uint32_t length,
                                                          Anybuf** out);
// -------------------------------------------------------------------------------------------------
/// @defgroup tags EXPLICIT and IMPLICIT tags
/// Of a tag number the low byte counts.

/// Makes an element of tag octet `tagNumber | 0xA0` around a node of either form, or around bytes.
VELKORD_API int32_t VELKORD_CALL ASN1_WriteExplicit(const Anybuf* source, uint8_t tagNumber,
                                                    Anybuf** out);
VELKORD_API int32_t VELKORD_CALL ASN1_WriteExplicitFromData(uint32_t tagNumber,
                                                            const uint8_t* bytes, uint32_t length,
                                                            Anybuf** out);
/// Reads an element of any type: its content as `ASN1_ReadBitString` does, and its reduced tag,
/// 0xA3 for `[3]`. The buffer needs room for the whole content.
VELKORD_API int32_t VELKORD_CALL ASN1_ReadExplicit(const Anybuf* source, Anybuf** out,
                                                   uint32_t* outTag);
VELKORD_API int32_t VELKORD_CALL ASN1_ReadExplicitToBytes(const Anybuf* source, uint8_t* out,
                                                          uint32_t* outLength, uint32_t* outTag);

/// Reads an element and makes one of the same content under another tag: `tagNumber | 0xA0` for a
/// source of `dataType` 16 or 17, `tagNumber | 0x80` otherwise. A BIT STRING keeps its unused-bits
/// octet; an INTEGER loses the zero octet that only keeps it positive.
VELKORD_API int32_t VELKORD_CALL ASN1_WriteImplicit(const Anybuf* source, uint32_t tagNumber,
                                                    Anybuf** out);
/// Reads an element under an IMPLICIT tag. A constructed context or private element becomes the
/// chain of its children, null when it has none; any other becomes a content node, without its
/// first octet when the tag is odd. `outTagNumber` receives the low five bits of the tag as soon as
/// it is read, also when a later test fails. `VELKORD_FAILURE` also for a child that does not fit.
VELKORD_API int32_t VELKORD_CALL ASN1_ReadImplicit(const Anybuf* source, Anybuf** out,
                                                   uint32_t* outTagNumber);
// -------------------------------------------------------------------------------------------------
/// @defgroup time Time
/// A time is a number of seconds since 1 January 1970. The text of an element is the machine's
/// local time followed by "Z", so it is UTC only where the local zone is UTC. The zone is that of
/// the C library: the one that TZ names at the call, or without TZ the one that it has read;
/// whoever changes that calls `tzset`, on Windows `_tzset`. The C library looks for TZ with
/// `getenv`, and a `setenv` of any variable moves what that reads. So no thread may change the
/// environment during a call that reads or writes a time: one of the functions below,
/// `ASN1_GetValidity`, or one that sets, writes or decodes a revocation list or an entry of it.

/// Makes the element of a time. Returns `VELKORD_OK`, `VELKORD_NEGATIVE_TIME`,
/// `VELKORD_NULL_ARGUMENT` or `VELKORD_OUT_OF_MEMORY` (also when the platform refuses the time).
VELKORD_API int32_t VELKORD_CALL ASN1_WriteGeneralizedTime(const int32_t* time, Anybuf** out);
VELKORD_API int32_t VELKORD_CALL ASN1_WriteUtcTime(const int32_t* time, Anybuf** out);
/// Reads the time of an element of that form. UTCTime years 00 to 69 are 2000 to 2069, and fields
/// out of range carry over: day 32 of January is 1 February. Of an hour that occurs twice the
/// earlier one is read; an hour that the clocks skip is read as if they had not been changed.
/// `VELKORD_SIZE_MISMATCH` only without a whole header or for the indefinite length; also
/// `VELKORD_WRONG_TAG` for another `dataType`, `VELKORD_BAD_TIME` and `VELKORD_OUT_OF_MEMORY`.
VELKORD_API int32_t VELKORD_CALL ASN1_ReadGeneralizedTime(const Anybuf* source, int32_t* time);
VELKORD_API int32_t VELKORD_CALL ASN1_ReadUtcTime(const Anybuf* source, int32_t* time);
// -------------------------------------------------------------------------------------------------
/// @defgroup names Names
/// A name is a SEQUENCE of relative names, and a relative name a SET of attributes. The value of an
/// attribute is a UTF8String, PrintableString or IA5String; for another type a function that looks
/// at it returns `VELKORD_WRONG_TAG`.

/// Creates a record with copies of two nodes.
VELKORD_API int32_t VELKORD_CALL ASN1_SetAttributeTypeAndValue(const Anybuf* type,
                                                               const Anybuf* value,
                                                               AttributeTypeAndValue** out);
/// Releases a record.
VELKORD_API void VELKORD_CALL ASN1_FreeAttributeTypeAndValue(AttributeTypeAndValue* record);
/// Makes the SEQUENCE of an attribute.
VELKORD_API int32_t VELKORD_CALL
ASN1_GetDerAttributeTypeAndValue(const AttributeTypeAndValue* record, Anybuf** out);
/// Opens the SEQUENCE of an attribute: its OBJECT IDENTIFIER and its value as new nodes.
VELKORD_API int32_t VELKORD_CALL ASN1_DecodeDerAttributeTypeAndValue(const Anybuf* source,
                                                                     Anybuf** outType,
                                                                     Anybuf** outValue);

/// Makes the SET of a relative name with one attribute, from its value and its OID as dotted text;
/// `id` has no effect. A text that `ASN1_OBJECT_a2d` refuses makes an empty OID. Also
/// `VELKORD_WRONG_TAG` by the value's `dataType`, and `VELKORD_SIZE_MISMATCH` without a whole tag.
VELKORD_API int32_t VELKORD_CALL ASN1_GetDerRelativeDistinguishedNameOne(
    const Anybuf* value, int32_t id, const char* oidText, int32_t oidTextLength, Anybuf** out);
/// Opens the SET of a relative name and copies the value and the OID's octets of its first
/// attribute, a UTF8String turned into GB2312 by `utf8sToZhs`. There must be room for the whole
/// contents.
VELKORD_API int32_t VELKORD_CALL ASN1_DecodeDerRelativeDistinguishedNameOne(
    const Anybuf* source, uint8_t* value, uint32_t* valueLength, uint8_t* oid, uint32_t* oidLength);

/// Other names of `ASN1_CreateSet`: start a chain of relative names or of attributes.
VELKORD_API int32_t VELKORD_CALL ASN1_CreateName(const Anybuf* element, Anybuf** out);
VELKORD_API int32_t VELKORD_CALL ASN1_CreateRelativeDistinguishedName(const Anybuf* element,
                                                                      Anybuf** out);
/// Other names of `ASN1_AddSet`: the element first, the chain second.
VELKORD_API void VELKORD_CALL ASN1_AddName(const Anybuf* element, Anybuf* chain);
VELKORD_API void VELKORD_CALL ASN1_AddRelativeDistinguishedName(const Anybuf* element,
                                                                Anybuf* chain);
/// Other names of `ASN1_FreeAnybuf`.
VELKORD_API void VELKORD_CALL ASN1_FreeNames(Anybuf* chain);
VELKORD_API void VELKORD_CALL ASN1_FreeRelativeDistinguishedName(Anybuf* chain);
/// Another name of `ASN1_WriteSequence`.
VELKORD_API int32_t VELKORD_CALL ASN1_GetDerName(const Anybuf* chain, Anybuf** out);
/// Another name of `ASN1_ReadSequence`.
VELKORD_API int32_t VELKORD_CALL ASN1_ReadDerName(const Anybuf* source, Anybuf** out);
/// Another name of `ASN1_WriteSet`.
VELKORD_API int32_t VELKORD_CALL ASN1_GetDerRelativeDistinguishedName(const Anybuf* chain,
                                                                      Anybuf** out);
/// Another name of `ASN1_ReadSet`.
VELKORD_API int32_t VELKORD_CALL ASN1_ReadRelativeDistinguishedName(const Anybuf* source,
                                                                    Anybuf** out);
/// Another name of `ASN1_WriteSetFromDERData`.
VELKORD_API int32_t VELKORD_CALL ASN1_ReadRelativeDistinguishedNameFromByte(const uint8_t* bytes,
                                                                            uint32_t length,
                                                                            Anybuf** out);
// -------------------------------------------------------------------------------------------------
/// @defgroup key_info Validity, algorithms and public keys

/// Makes the SEQUENCE of two times, which are not tested.
VELKORD_API int32_t VELKORD_CALL ASN1_SetValidity(const Anybuf* notBefore, const Anybuf* notAfter,
                                                  Anybuf** out);
/// Opens a Validity and reads both times, in either form; of more than two the last is notAfter.
/// Also `VELKORD_BAD_TIME` and `VELKORD_OUT_OF_MEMORY`, for three in five root certificates in use,
/// which end after 2038; what is no time is `VELKORD_WRONG_TAG`.
VELKORD_API int32_t VELKORD_CALL ASN1_GetValidity(const Anybuf* source, int32_t* notBefore,
                                                  int32_t* notAfter);
/// Another name of `ASN1_FreeAnybuf`.
VELKORD_API void VELKORD_CALL ASN1_FreeValidity(Anybuf* chain);

/// Makes an AlgorithmIdentifier of `oid` and one more element: `parameter` when it is not null,
/// else NULL when `mode` is 1, else `alternative`, which must then be there. **Releases `oid`**,
/// that node alone, on success, unless NULL was written; after a failure it stays the caller's.
VELKORD_API int32_t VELKORD_CALL ASN1_SetAlgorithmIdentifier(uint32_t mode, Anybuf* oid,
                                                             const Anybuf* alternative,
                                                             const Anybuf* parameter, Anybuf** out);
/// Opens an AlgorithmIdentifier. Each out pointer may be null, and that part is not handed out. A
/// SEQUENCE parameter goes to `outSequence`; a NULL or none leaves both null; anything else goes to
/// `outParameterOid` as an OBJECT IDENTIFIER over its content. The last parameter counts.
VELKORD_API int32_t VELKORD_CALL ASN1_GetAlgorithmIdentifier(const Anybuf* source, Anybuf** outOid,
                                                             Anybuf** outSequence,
                                                             Anybuf** outParameterOid);
/// Another name of `ASN1_FreeAnybuf`.
VELKORD_API void VELKORD_CALL ASN1_FreeAlgorithmIdentifier(Anybuf* chain);

/// Makes a SubjectPublicKeyInfo: a copy of `algorithm`, then a BIT STRING over the bytes of `key`,
/// a node of either form, as `ASN1_WriteBitStringFromBytes` writes it.
VELKORD_API int32_t VELKORD_CALL ASN1_SetSubjectPublicKeyInfo(const Anybuf* algorithm,
                                                              const Anybuf* key, Anybuf** out);
/// Opens a SubjectPublicKeyInfo: both parts as new nodes, the unused-bits octet always 0.
VELKORD_API int32_t VELKORD_CALL ASN1_GetSubjectPublicKeyInfo(const Anybuf* source,
                                                              Anybuf** outAlgorithm,
                                                              Anybuf** outKey);
/// Another name of `ASN1_FreeAnybuf`.
VELKORD_API void VELKORD_CALL ASN1_FreeSubjectPublicKeyInfo(Anybuf* chain);

/// Another name of `ASN1_SetValidity`: makes the SEQUENCE of two INTEGERs.
VELKORD_API int32_t VELKORD_CALL ASN1_SetRSAPublicKey(const Anybuf* modulus, const Anybuf* exponent,
                                                      Anybuf** out);
/// Opens the SEQUENCE of an RSA public key: both numbers as new INTEGERs, positive; of more than
/// two elements the last is the exponent.
VELKORD_API int32_t VELKORD_CALL ASN1_GetRSAPublicKey(const Anybuf* source, Anybuf** outModulus,
                                                      Anybuf** outExponent);
/// Another name of `ASN1_FreeAnybuf`.
VELKORD_API void VELKORD_CALL ASN1_FreeRSAPublicKey(Anybuf* chain);
// -------------------------------------------------------------------------------------------------
/// @defgroup extensions Extensions

/// Makes an Extension of an OID, a BOOLEAN, which may be null, and an OCTET STRING; none is tested.
VELKORD_API int32_t VELKORD_CALL ASN1_SetExtension(const Anybuf* oid, const Anybuf* critical,
                                                   const Anybuf* value, Anybuf** out);
/// Makes an Extension from the OID's content octets and the value's bytes. The low byte of
/// `critical` is the BOOLEAN's octet; when it is 0 there is no BOOLEAN. `id` has no effect.
VELKORD_API int32_t VELKORD_CALL ASN1_GetExtensionOne(int32_t id, const uint8_t* oid,
                                                      uint32_t oidLength, uint32_t critical,
                                                      const uint8_t* value, uint32_t valueLength,
                                                      Anybuf** out);
/// Opens an Extension: OBJECT IDENTIFIER, BOOLEAN and OCTET STRING as new nodes. `outCritical` is
/// written only when there are exactly three elements: preset it to null. It holds the first
/// content octet of the second, whatever its type; `VELKORD_SIZE_MISMATCH` also when that has none.
VELKORD_API int32_t VELKORD_CALL ASN1_GetExtension(const Anybuf* source, Anybuf** outOid,
                                                   Anybuf** outCritical, Anybuf** outValue);
/// Another name of `ASN1_FreeAnybuf`.
VELKORD_API void VELKORD_CALL ASN1_FreeExtension(Anybuf* chain);

/// Another name of `ASN1_CreateSet`: starts a list.
VELKORD_API int32_t VELKORD_CALL ASN1_CreateExtensions(const Anybuf* element, Anybuf** out);
/// Another name of `ASN1_AddSet`: the element first, the chain second.
VELKORD_API void VELKORD_CALL ASN1_AddExtensions(const Anybuf* element, Anybuf* chain);
/// Another name of `ASN1_WriteSequence`.
VELKORD_API int32_t VELKORD_CALL ASN1_WriteExtensions(const Anybuf* chain, Anybuf** out);
/// Another name of `ASN1_ReadSequence`.
VELKORD_API int32_t VELKORD_CALL ASN1_ReadExtensions(const Anybuf* source, Anybuf** out);
/// Another name of `ASN1_FreeAnybuf`.
VELKORD_API void VELKORD_CALL ASN1_FreeExtensions(Anybuf* chain);
// -------------------------------------------------------------------------------------------------
/// @defgroup certificates Certificates

/// Creates an empty record.
VELKORD_API int32_t VELKORD_CALL ASN1_CreateTBSCertificate(TBSCertificate** out);
VELKORD_API int32_t VELKORD_CALL ASN1_CreateCertificate(Certificate** out);
/// Releases a record.
VELKORD_API void VELKORD_CALL ASN1_FreeTBSCertificate(TBSCertificate* record);
VELKORD_API void VELKORD_CALL ASN1_FreeCertificate(Certificate* record);

/// Sets the version number, 2 for a version 3 certificate.
VELKORD_API int32_t VELKORD_CALL ASN1_TBSCertificateSetVersion(TBSCertificate* record,
                                                               uint32_t version);
/// Sets the serial number from a big-endian magnitude.
VELKORD_API int32_t VELKORD_CALL ASN1_TBSCertificateSetSerialNumber(TBSCertificate* record,
                                                                    const uint8_t* bytes,
                                                                    uint32_t length);
/// Sets a field from a SEQUENCE.
VELKORD_API int32_t VELKORD_CALL ASN1_TBSCertificateSetSignatureAlg(TBSCertificate* record,
                                                                    const Anybuf* value);
VELKORD_API int32_t VELKORD_CALL ASN1_TBSCertificateSetIssuer(TBSCertificate* record,
                                                              const Anybuf* value);
VELKORD_API int32_t VELKORD_CALL ASN1_TBSCertificateSetValidity(TBSCertificate* record,
                                                                const Anybuf* value);
VELKORD_API int32_t VELKORD_CALL ASN1_TBSCertificateSetSubject(TBSCertificate* record,
                                                               const Anybuf* value);
VELKORD_API int32_t VELKORD_CALL ASN1_TBSCertificateSetSubjectPublicKeyInfo(TBSCertificate* record,
                                                                            const Anybuf* value);
/// Sets an optional identifier, a BIT STRING, under `[1]` or `[2]` as `ASN1_WriteImplicit` does.
VELKORD_API int32_t VELKORD_CALL ASN1_TBSCertificateSetIssuerUniqueID(TBSCertificate* record,
                                                                      const Anybuf* value);
VELKORD_API int32_t VELKORD_CALL ASN1_TBSCertificateSetSubjectUniqueID(TBSCertificate* record,
                                                                       const Anybuf* value);
/// Sets the extensions under `[3]` EXPLICIT: the bytes of their list, which are not tested.
VELKORD_API int32_t VELKORD_CALL ASN1_TBSCertificateSetExtensions(TBSCertificate* record,
                                                                  const Anybuf* value);
/// Makes the SEQUENCE of a record: seven required fields, then the optional ones.
VELKORD_API int32_t VELKORD_CALL ASN1_TBSCertificateWriteData(const TBSCertificate* record,
                                                              Anybuf** out);
/// Decodes a TBSCertificate of seven elements or more. The first is always taken for the version;
/// `version` stays 0. Optional elements are recognised by the low five bits of their tags, in any
/// order; of several of one kind the last counts, though each must open; elements of other tags are
/// skipped. The unused-bits octets of the identifiers are derived anew, that of `[2]` also stays in
/// its content, and `extensions` holds a SEQUENCE around the list: what is written again is not
/// what was signed. `VELKORD_SIZE_MISMATCH` also for any BIT STRING without content, and for an
/// identifier without content that is constructed or has an odd tag, such as `A1 00`, `A2 00`,
/// `81 00`.
VELKORD_API int32_t VELKORD_CALL ASN1_TBSCertificateDecode(const Anybuf* source,
                                                           TBSCertificate** out);

/// Sets the signed part or the algorithm from a SEQUENCE.
VELKORD_API int32_t VELKORD_CALL ASN1_CertificateSetTbsCertificate(Certificate* record,
                                                                   const Anybuf* value);
VELKORD_API int32_t VELKORD_CALL ASN1_CertificateSetSignatureAlgorithm(Certificate* record,
                                                                       const Anybuf* value);
/// Sets the signature from a BIT STRING, as `ASN1_WriteBitStringFromDERBytes` does.
VELKORD_API int32_t VELKORD_CALL ASN1_CertificateSetSignatureValue(Certificate* record,
                                                                   const Anybuf* value);
/// Makes the SEQUENCE of a record, all three fields.
VELKORD_API int32_t VELKORD_CALL ASN1_CertificateWriteData(const Certificate* record, Anybuf** out);
/// Decodes a certificate. Its signature, of any type, becomes a BIT STRING without unused bits,
/// over the content that `ASN1_ReadBitString` reads from an element of its type.
VELKORD_API int32_t VELKORD_CALL ASN1_CertificateDecode(const uint8_t* bytes, uint32_t length,
                                                        Certificate** out);
// -------------------------------------------------------------------------------------------------
/// @defgroup inspection Certificate inspection
/// Of the DER that is looked into, malformed parts are skipped.

/// Makes an empty record, and stores it in `out` too unless that is null. Returns the record, or
/// null when memory runs out; `out` is then not written.
VELKORD_API X509Cert* VELKORD_CALL X509CertCreate(X509Cert** out);
/// Releases a record and all that its pointers hold.
VELKORD_API void VELKORD_CALL X509CertFree(X509Cert* record);
/// Appends one entry to `subjectEntries` for the first attribute of each relative name in the
/// subject of `tbs`. A UTF8String or PrintableString value comes as it stands, a BMPString as
/// `ASN1_ReadBmpStringToBytes` reads it, and any other type, such as the IA5String of an email
/// address, leaves the value null. When memory runs out the entries that were made stay, and an
/// entry whose OID or value could not be held has a null block of length 0 there. Returns
/// `VELKORD_OK`, `VELKORD_FAILURE` (no memory for an entry) or `VELKORD_NULL_ARGUMENT` (also for a
/// null `tbs` or subject).
VELKORD_API int32_t VELKORD_CALL X509CertGetSubject(X509Cert* record);
/// Looks up the extension whose OID is `oidText`, dotted text of `textLength` characters, in a
/// decoded `tbs`. In its value, a SEQUENCE of items, each a SEQUENCE of OID and value, it looks for
/// the item "1.2.156.1.8888.148" and copies the content of that item's value to `value`. Every
/// match is written there, one over the other, and the last counts, so `value` needs room for the
/// longest: `dataLen` of `tbs->extensions` is enough. `valueLength` is written only on a match:
/// preset it to 0. Returns `VELKORD_OK`, also when nothing is found; `VELKORD_FAILURE` when `tbs`
/// has no extensions or `value` or `valueLength` is null; `VELKORD_NULL_ARGUMENT` when `record`,
/// its `tbs` or `oidText` is null.
VELKORD_API int32_t VELKORD_CALL X509CertGetOIDValue(const X509Cert* record, const char* oidText,
                                                     int32_t textLength, uint8_t* value,
                                                     uint32_t* valueLength);
// -------------------------------------------------------------------------------------------------
/// @defgroup lists Revocation lists

/// Creates an empty record.
VELKORD_API int32_t VELKORD_CALL ASN1_CRL_CreateRevokedCertificate(RevokedCertificate** out);
VELKORD_API int32_t VELKORD_CALL ASN1_CRL_CreateTbsCertList(TbsCertList** out);
VELKORD_API int32_t VELKORD_CALL ASN1_CRL_CreateCertificateList(CertificateList** out);
/// Releases a record.
VELKORD_API void VELKORD_CALL ASN1_CRL_FreeRevokedCertificate(RevokedCertificate* record);
VELKORD_API void VELKORD_CALL ASN1_CRL_FreeTbsCertList(TbsCertList* record);
VELKORD_API void VELKORD_CALL ASN1_CRL_FreeCertificateList(CertificateList* record);

/// Sets the serial number, of any type, as `ASN1_WriteExplicitFromDERData` does.
VELKORD_API int32_t VELKORD_CALL ASN1_CRL_SetRevokedCertificateCertificateSerialNumber(
    RevokedCertificate* record, const Anybuf* value);
/// Sets the date from a time, read and written again in the form that it has. `dataType` must be 23
/// when the first octet is 0x17 (UTCTime), and 24 otherwise. Returns what `ASN1_ReadUtcTime` does.
VELKORD_API int32_t VELKORD_CALL
ASN1_CRL_SetRevokedCertificateRevocationDate(RevokedCertificate* record, const Anybuf* value);
/// Sets the extensions from a SEQUENCE.
VELKORD_API int32_t VELKORD_CALL
ASN1_CRL_SetRevokedCertificateCrlEntryExtensions(RevokedCertificate* record, const Anybuf* value);
/// Makes the SEQUENCE of a record, the extensions being optional.
VELKORD_API int32_t VELKORD_CALL
ASN1_CRL_RevokedCertificateWriteData(const RevokedCertificate* record, Anybuf** out);
/// Decodes an entry. The first element is copied as it stands, the date is read and written again
/// in its form, and a third element is the extensions. Also `VELKORD_BAD_TIME`.
VELKORD_API int32_t VELKORD_CALL ASN1_CRL_RevokedCertificateDecode(const uint8_t* bytes,
                                                                   uint32_t length,
                                                                   RevokedCertificate** out);

/// Stores the version number. Only 2 is written, as INTEGER 2.
VELKORD_API int32_t VELKORD_CALL ASN1_CRL_TbsCertListSetVersion(TbsCertList* record,
                                                                uint32_t version);
/// Sets a field from a SEQUENCE.
VELKORD_API int32_t VELKORD_CALL
ASN1_CRL_TbsCertListSetSignatureAlgorithmIdentifier(TbsCertList* record, const Anybuf* value);
VELKORD_API int32_t VELKORD_CALL ASN1_CRL_TbsCertListSetIssuer(TbsCertList* record,
                                                               const Anybuf* value);
VELKORD_API int32_t VELKORD_CALL ASN1_CRL_TbsCertListSetRevokedCertificates(TbsCertList* record,
                                                                            const Anybuf* value);
VELKORD_API int32_t VELKORD_CALL ASN1_CRL_TbsCertListSetCrlExtensions(TbsCertList* record,
                                                                      const Anybuf* value);
/// Stores the time of this list, in seconds, and the form of both times: 1 for UTCTime, any other
/// number for GeneralizedTime. A negative time fails when it is written.
VELKORD_API int32_t VELKORD_CALL ASN1_CRL_TbsCertListSetThisUpdate(TbsCertList* record,
                                                                   int32_t time, uint32_t form);
/// Stores the time of the next list, in seconds, and sets its flag.
VELKORD_API int32_t VELKORD_CALL ASN1_CRL_TbsCertListSetNextUpdate(TbsCertList* record,
                                                                   int32_t time);
/// Makes the SEQUENCE of a record, the extensions under `[0]` EXPLICIT. Also
/// `VELKORD_NEGATIVE_TIME`, and `VELKORD_OUT_OF_MEMORY` when the platform refuses a time.
VELKORD_API int32_t VELKORD_CALL ASN1_CRL_TbsCertListWriteData(const TbsCertList* record,
                                                               Anybuf** out);
/// Decodes a TbsCertList. Optional elements are recognised by their first octet: 0x02 the version;
/// after thisUpdate, which sets the form, 0x17 or 0x18 nextUpdate, then 0x30 the revoked
/// certificates; whatever is next is the extensions, of which the content is kept as it stands. A
/// version other than 2, and a nextUpdate in the other form than thisUpdate, are not written again
/// as they were. Also `VELKORD_BAD_TIME`: one time that is not read refuses the list.
VELKORD_API int32_t VELKORD_CALL ASN1_CRL_TbsCertListDecode(const uint8_t* bytes, uint32_t length,
                                                            TbsCertList** out);

/// Sets the signed part or the algorithm from a SEQUENCE.
VELKORD_API int32_t VELKORD_CALL ASN1_CRL_SetCertificateListTBSCertList(CertificateList* record,
                                                                        const Anybuf* value);
VELKORD_API int32_t VELKORD_CALL
ASN1_CRL_SetCertificateListAlgorithmIdentifier(CertificateList* record, const Anybuf* value);
/// Sets the signature as `ASN1_CertificateSetSignatureValue` does.
VELKORD_API int32_t VELKORD_CALL ASN1_CRL_SetCertificateListSignatureValue(CertificateList* record,
                                                                           const Anybuf* value);
/// Makes the SEQUENCE of a record, all three fields.
VELKORD_API int32_t VELKORD_CALL ASN1_CRL_CertificateListWriteData(const CertificateList* record,
                                                                   Anybuf** out);
/// Decodes a revocation list. Its signature, of any type, is copied as the setter copies it.
VELKORD_API int32_t VELKORD_CALL ASN1_CRL_CertificateListDecode(const uint8_t* bytes,
                                                                uint32_t length,
                                                                CertificateList** out);
// -------------------------------------------------------------------------------------------------
/// @defgroup requests PKCS#10: certification requests

/// Creates an empty record.
VELKORD_API int32_t VELKORD_CALL ASN1_CreatePKCS10(PKCS10** out);
VELKORD_API int32_t VELKORD_CALL ASN1_CreatePKCS10Request(PKCS10Request** out);
/// Releases a record.
VELKORD_API void VELKORD_CALL ASN1_FreePKCS10(PKCS10* record);
VELKORD_API void VELKORD_CALL ASN1_FreePKCS10Request(PKCS10Request* record);

/// Sets the version number, 0 for version 1.
VELKORD_API int32_t VELKORD_CALL ASN1_PKCS10SetVersion(PKCS10* record, uint32_t version);
/// Sets a field from a SEQUENCE.
VELKORD_API int32_t VELKORD_CALL ASN1_PKCS10SetSubject(PKCS10* record, const Anybuf* value);
VELKORD_API int32_t VELKORD_CALL ASN1_PKCS10SetSubjectPublicKeyInfo(PKCS10* record,
                                                                    const Anybuf* value);
/// Sets the attributes, a SET, under `[0]` as `ASN1_WriteImplicit` does.
VELKORD_API int32_t VELKORD_CALL ASN1_PKCS10SetAttributes(PKCS10* record, const Anybuf* value);
/// Makes the SEQUENCE of a record, all four fields.
VELKORD_API int32_t VELKORD_CALL ASN1_PKCS10WriteData(const PKCS10* record, Anybuf** out);
/// Decodes the signed part of a request. The first element is read as a number and written again.
/// The attributes may be missing, and such a record can be written only after they are set; they
/// come back constructed under the tag number of their element, or under the one octet BF for a tag
/// of several octets. An element that is not a constructed context or private one loses its first
/// content octet when its tag is odd, and must then have one.
VELKORD_API int32_t VELKORD_CALL ASN1_PKCS10Decode(const uint8_t* bytes, uint32_t length,
                                                   PKCS10** out);

/// Sets the signed part or the algorithm from a SEQUENCE.
VELKORD_API int32_t VELKORD_CALL
ASN1_PKCS10RequestSetCertificationRequestInfo(PKCS10Request* record, const Anybuf* value);
VELKORD_API int32_t VELKORD_CALL ASN1_PKCS10RequestSetAlgorithmIdentifier(PKCS10Request* record,
                                                                          const Anybuf* value);
/// Sets the signature as `ASN1_CertificateSetSignatureValue` does.
VELKORD_API int32_t VELKORD_CALL ASN1_PKCS10RequestSetSignature(PKCS10Request* record,
                                                                const Anybuf* value);
/// Makes the SEQUENCE of a record, all three fields.
VELKORD_API int32_t VELKORD_CALL ASN1_PKCS10RequestWriteData(const PKCS10Request* record,
                                                             Anybuf** out);
/// Decodes a request as `ASN1_CRL_CertificateListDecode` does a list.
VELKORD_API int32_t VELKORD_CALL ASN1_PKCS10RequestDecode(const uint8_t* bytes, uint32_t length,
                                                          PKCS10Request** out);
// -------------------------------------------------------------------------------------------------
/// @defgroup extended_certificates PKCS#6: extended certificates

/// Creates an empty record.
VELKORD_API int32_t VELKORD_CALL
ASN1_PKCS6_CreateExtendedCertificateInfo(ExtendedCertificateInfo** out);
VELKORD_API int32_t VELKORD_CALL ASN1_PKCS6_CreateExtendedCertificate(ExtendedCertificate** out);
/// Releases a record.
VELKORD_API void VELKORD_CALL
ASN1_PKCS6_FreeExtendedCertificateInfo(ExtendedCertificateInfo* record);
VELKORD_API void VELKORD_CALL ASN1_PKCS6_FreeExtendedCertificate(ExtendedCertificate* record);

/// Stores the version number.
VELKORD_API int32_t VELKORD_CALL
ASN1_PKCS6_SetCertificateInfoVersion(ExtendedCertificateInfo* record, uint32_t version);
/// Sets the certificate from a SEQUENCE, or the attributes from a SET.
VELKORD_API int32_t VELKORD_CALL ASN1_PKCS6_SetCertificateInfoX509(ExtendedCertificateInfo* record,
                                                                   const Anybuf* value);
VELKORD_API int32_t VELKORD_CALL
ASN1_PKCS6_SetCertificateInfoAttributes(ExtendedCertificateInfo* record, const Anybuf* value);
/// Makes the SEQUENCE of a record, all three fields.
VELKORD_API int32_t VELKORD_CALL
ASN1_PKCS6_CertificateInfoWriteData(const ExtendedCertificateInfo* record, Anybuf** out);
/// Decodes the signed part. The version is the low 32 bits of a first element of any type.
VELKORD_API int32_t VELKORD_CALL ASN1_PKCS6_CertificateInfoDecode(const uint8_t* bytes,
                                                                  uint32_t length,
                                                                  ExtendedCertificateInfo** out);

/// Sets the signed part or the algorithm from a SEQUENCE.
VELKORD_API int32_t VELKORD_CALL
ASN1_PKCS6_SetCertificateCertificateInfo(ExtendedCertificate* record, const Anybuf* value);
VELKORD_API int32_t VELKORD_CALL ASN1_PKCS6_SetCertificateSignatureAlgorithmIdentifier(
    ExtendedCertificate* record, const Anybuf* value);
/// Sets the signature as `ASN1_CertificateSetSignatureValue` does.
VELKORD_API int32_t VELKORD_CALL ASN1_PKCS6_SetCertificateSignature(ExtendedCertificate* record,
                                                                    const Anybuf* value);
/// Makes the SEQUENCE of a record, all three fields.
VELKORD_API int32_t VELKORD_CALL ASN1_PKCS6_CertificateWriteData(const ExtendedCertificate* record,
                                                                 Anybuf** out);
/// Decodes an extended certificate as `ASN1_CRL_CertificateListDecode` does a list.
VELKORD_API int32_t VELKORD_CALL ASN1_PKCS6_CertificateDecode(const uint8_t* bytes, uint32_t length,
                                                              ExtendedCertificate** out);
// -------------------------------------------------------------------------------------------------
/// @defgroup messages PKCS#7: the ContentInfo of a message

/// Creates an empty record.
VELKORD_API int32_t VELKORD_CALL ASN1_PKCS7_CreateContext(PKCS7Context** out);
/// Releases a record.
VELKORD_API void VELKORD_CALL ASN1_PKCS7_FreeContext(PKCS7Context* record);
/// Sets the content type, of any type, as `ASN1_WriteExplicitFromDERData` does.
VELKORD_API int32_t VELKORD_CALL ASN1_PKCS7_SetContentType(PKCS7Context* record,
                                                           const Anybuf* value);
/// Sets the content from the bytes of a node of either form, under `[0]` EXPLICIT.
VELKORD_API int32_t VELKORD_CALL ASN1_PKCS7_SetContent(PKCS7Context* record, const Anybuf* value);
/// Makes the SEQUENCE of a record: the content type, and the content if it is set.
VELKORD_API int32_t VELKORD_CALL ASN1_PKCS7_WriteData(const PKCS7Context* record, Anybuf** out);
/// Decodes a ContentInfo. The content may be missing; its tag is not tested and comes off, so that
/// a decoded record is not written as it was read.
VELKORD_API int32_t VELKORD_CALL ASN1_PKCS7_Decode(const uint8_t* bytes, uint32_t length,
                                                   PKCS7Context** out);
// -------------------------------------------------------------------------------------------------
/// @defgroup rsa_keys RSA keys
/// Keys of at most 2048 bits, which one certificate in three exceeds; `ASN1_SetRSAPublicKey` and
/// `ASN1_GetRSAPublicKey` take public keys of any size. `VELKORD_FAILURE` also stands for a null
/// argument and, when record and DER overlap, for a lack of memory; then nothing has changed.

/// Writes the DER of a key to `der` and its size to `derLen`: RSAPublicKey, at most 526 bytes, or
/// RSAPrivateKey of PKCS#1, at most 1450. With a null `der` the size alone is written. Returns
/// `VELKORD_OK`, or `VELKORD_FAILURE` when a number is 0; when it is only some of the last five of
/// a private key, `VELKORD_OK`, and **nothing is written**: preset `derLen` to 0.
VELKORD_API int32_t VELKORD_CALL ZantEncodePublicKey(const ZantPublicKey* key, uint8_t* der,
                                                     uint32_t* derLen);
VELKORD_API int32_t VELKORD_CALL ZantEncodePrivateKey(const ZantPrivateKey* key, uint8_t* der,
                                                      uint32_t* derLen);
/// Fills a record from DER of exactly `derLen` bytes. A private key may be inside a PrivateKeyInfo
/// of PKCS#8, recognised by a second element with 13 bytes of content. No tag but that of the
/// SEQUENCE around the numbers, and around the PrivateKeyInfo, is tested. A failure while reading
/// leaves the numbers read so far and zero bytes elsewhere; with a `derLen` below 1 it fails before
/// that. A decoded record is not ready to be encoded unless every number fills its field. Returns
/// `VELKORD_OK`, or like Opens `VELKORD_FAILURE` (also for a number too long for its field),
/// `VELKORD_SIZE_MISMATCH` or `VELKORD_WRONG_TAG`.
VELKORD_API int32_t VELKORD_CALL ZantDecodePublicKey(ZantPublicKey* key, const uint8_t* der,
                                                     int32_t derLen);
VELKORD_API int32_t VELKORD_CALL ZantDecodePrivateKey(ZantPrivateKey* key, const uint8_t* der,
                                                      int32_t derLen);
// -------------------------------------------------------------------------------------------------
/// @defgroup ec_keys Keys of elliptic curves
/// Keys of 256 bits. Returns `VELKORD_OK`, or `VELKORD_FAILURE` for all that is refused: a null
/// argument, malformed DER, a missing element. Nothing has changed then. Nothing is allocated.

/// Writes the 312 bytes of a SubjectPublicKeyInfo to `der` and 312 to `derLen`. It states one
/// constant curve of 256 bits by its parameters; `bits` is not read.
VELKORD_API int32_t VELKORD_CALL ASN1_EccPubkey2Der(const EccPubkey* key, uint8_t* der,
                                                    uint32_t* derLen);
/// Fills a record from the DER of a SubjectPublicKeyInfo of exactly `derLen` bytes, whatever its
/// algorithm: the point's second to 65th byte and `bits`, 256. The point's first byte is not
/// tested, and bytes after the 65th are skipped, so **a point of P-384 passes**: test that it has
/// 65 bytes. A shorter one is refused.
VELKORD_API int32_t VELKORD_CALL ASN1_Der2EccPubkey(const uint8_t* der, uint32_t derLen,
                                                    EccPubkey* key);
/// Fills a record from the DER of an ECPrivateKey in a PrivateKeyInfo of PKCS#8, of exactly
/// `derLen` bytes, whatever its algorithm; `bits` becomes 256. A value of less than 32 bytes goes
/// to the start of `d`, and the bytes after it stay; a longer one is refused.
VELKORD_API int32_t VELKORD_CALL ASN1_Der2EccPrikey(const uint8_t* der, uint32_t derLen,
                                                    EccPrikey* key);
// -------------------------------------------------------------------------------------------------
/// @defgroup sm2 SM2
/// The result is always `VELKORD_OK`. What cannot be done, an argument being null or the DER
/// malformed, leaves all out arguments alone: preset the lengths to 0. Nothing is allocated unless
/// buffers overlap; a lack of memory then counts as what cannot be done.

/// Writes the SEQUENCE of two positive INTEGERs to `der`, which needs room for both numbers and 20
/// bytes more. Leading zero bytes stay.
VELKORD_API int32_t VELKORD_CALL ASN1_SM2_SM2SignatureEncode(const uint8_t* r, uint32_t rLen,
                                                             const uint8_t* s, uint32_t sLen,
                                                             uint8_t* der, uint32_t* derLen);
/// Copies the two numbers of a signature, each without the zero byte that keeps it positive. It is
/// no test that they are DER, and writing again shows no leading zeros. `r` and `s` need `derLen`
/// bytes each.
VELKORD_API int32_t VELKORD_CALL ASN1_SM2_SM2SignatureDecode(uint8_t* r, uint32_t* rLen, uint8_t* s,
                                                             uint32_t* sLen, const uint8_t* der,
                                                             uint32_t derLen);
/// Writes a private value as an INTEGER to `der`, 7 bytes more at most. Leading zeros stay.
VELKORD_API int32_t VELKORD_CALL ASN1_SM2_PrikeyEncode(const uint8_t* value, uint32_t valueLen,
                                                       uint8_t* der, uint32_t* derLen);
/// Copies a private value without the zero byte that keeps it positive. `value` needs `derLen`
/// bytes.
VELKORD_API int32_t VELKORD_CALL ASN1_SM2_PrikeyDecode(uint8_t* value, uint32_t* valueLen,
                                                       const uint8_t* der, uint32_t derLen);
/// Writes a public point as a BIT STRING to `der`: at most 5 bytes, then 0x04, X and Y, together at
/// most 256. The last byte decides on the unused-bits octet, as in `ASN1_CreateAnybuf`.
VELKORD_API int32_t VELKORD_CALL ASN1_SM2_PubkeyEncode(const uint8_t* x, uint32_t xLen,
                                                       const uint8_t* y, uint32_t yLen,
                                                       uint8_t* der, uint32_t* derLen);
/// Copies the two halves, of equal length, of what follows the first byte of a public point; an odd
/// last byte is left out, and of a point without bytes both are empty. `x` and `y` need half of
/// `derLen` each, at most 127 bytes.
VELKORD_API int32_t VELKORD_CALL ASN1_SM2_PubkeyDecode(uint8_t* x, uint32_t* xLen, uint8_t* y,
                                                       uint32_t* yLen, const uint8_t* der,
                                                       uint32_t derLen);
// -------------------------------------------------------------------------------------------------
/// @defgroup base64 Base64 and PEM
/// No argument may be null, but for input of length 0.

/// Writes Base64 text and a terminating zero to `out`, without line breaks. `out` needs 4 bytes for
/// each 3 bytes of input or part of them, and 1 more. Returns `VELKORD_OK`.
VELKORD_API int32_t VELKORD_CALL base64_encode(const uint8_t* in, uint32_t length, char* out);
/// Decodes zero-terminated Base64 text in groups of four characters, up to a group with "=". One to
/// three characters at the end are ignored. A character outside the alphabet keeps the value of the
/// same place in the group before. `out` needs 3 bytes for each 4 characters. Returns `VELKORD_OK`.
VELKORD_API int32_t VELKORD_CALL base64_decode(const char* text, uint8_t* out, uint32_t* outLength);

/// Writes DER bytes as PEM text: `header`, Base64 in lines of 64 characters, `footer`, each line
/// with CR LF, and a terminating zero that `outLength` does not count. `header` and `footer` are
/// whole zero-terminated lines without their line end; an empty one is left out. With B the size of
/// the Base64 text, `out` needs B, 2 for each 64 characters of B or part of them, 2 and the text
/// for each of header and footer that is not empty, and 1 more. For no input `outLength` is 0 and
/// nothing else is written. Returns `VELKORD_OK`, or `VELKORD_FAILURE` for a `length` of 2^30 or
/// more, and when header and footer make the text longer than a `uint32_t` counts.
VELKORD_API int32_t VELKORD_CALL DER2PEM_data_format(const uint8_t* der, uint32_t length, char* out,
                                                     uint32_t* outLength, const char* header,
                                                     const char* footer);
/// Decodes the first PEM block of a text of `length` characters, or bare Base64 when the text has
/// no "-". Any "-" in front counts as its start, and header lines as its body: give it one block
/// without them. Characters outside the alphabet are skipped. `out` needs 3 bytes for each 4 Base64
/// characters of the body. Returns `VELKORD_OK`, or `VELKORD_FAILURE` when a marker or the end of
/// the body is missing.
VELKORD_API int32_t VELKORD_CALL PEM2DER_data_format(const char* pem, uint32_t length, uint8_t* out,
                                                     uint32_t* outLength);
// -------------------------------------------------------------------------------------------------
/// @defgroup character_sets Character sets
/// A GB code is the first byte of a GB2312 character in bits 8 to 15 and the second in bits 0 to 7.
/// UTF-8 is the form of up to six bytes, for code points of up to 31 bits. No argument may be null
/// unless it says so, and no function adds a terminating zero.

/// Writes the UTF-8 form of a code point to `out`, which has room for `outSize` bytes. Returns its
/// number of bytes, for a null `out` too, or -1 when the room is too small.
VELKORD_API int32_t VELKORD_CALL uniToUTF8(uint8_t* out, int32_t outSize, uint32_t code);
/// Reads one UTF-8 form from at most `inLen` bytes; `code` is written on success only. Returns the
/// number of bytes read; 0 when `inLen` is below 1; -1 when the form is cut off; -2 when the first
/// byte opens none; -3 when a following byte is no continuation; -4 when a shorter form exists.
VELKORD_API int32_t VELKORD_CALL utf8ToUni(const uint8_t* in, int32_t inLen, uint32_t* code);

/// Returns the code point of a GB code, or for one that is not assigned that of a row near it.
VELKORD_API uint32_t VELKORD_CALL ctouni(uint32_t gb);
/// Returns the GB code of a code point, or 0 when it has none.
VELKORD_API uint32_t VELKORD_CALL unitoc(uint32_t code);
/// Returns the GB code of `n` bytes, at most 2; missing bytes count as 0.
VELKORD_API uint32_t VELKORD_CALL zhToWc(const uint8_t* in, uint32_t n);
/// Writes the two bytes of a GB code to `out` and 2 to `outLen`.
VELKORD_API void VELKORD_CALL wcToZh(uint8_t* out, uint32_t* outLen, int32_t code);

/// Turns GB2312 text into UTF-8, 3 bytes at most for each pair of bytes. An odd byte is ignored.
VELKORD_API void VELKORD_CALL zhsToUtf8s(const uint8_t* in, int32_t inLen, uint8_t* out,
                                         uint32_t* outLen);
/// Turns UTF-8 text into GB2312. ASCII stays as it is; of a character that GB2312 lacks, and of
/// malformed input, the first byte is kept. A null `in` is no text. `out` needs `inLen` bytes.
VELKORD_API void VELKORD_CALL utf8sToZhs(const uint8_t* in, uint32_t inLen, uint8_t* out,
                                         uint32_t* outLen);

#ifdef __cplusplus
}  // extern "C"
#endif

#endif  // VELKORD_H_
