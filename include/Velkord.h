/// @mainpage Velkord
/// The whole boundary of Velkord: DER structures of a public-key infrastructure as plain C99. The
/// functions are grouped by family under Modules.
///
/// **Nodes.** Every DER value travels in an `Anybuf`. A *TLV node* holds one whole element: tag
/// octets, length octets and content. A *content node* holds content octets alone. The node does
/// not say which form it has; each function says which one it takes and which one it makes. A
/// *chain* is a run of nodes linked through `next` and held by the first.
///
/// **Reduced tags.** `dataType` is the tag octet itself when it is 0x80 or above, and its low five
/// bits otherwise: a SEQUENCE (0x30) is 16, a SET (0x31) is 17, `[3]` EXPLICIT stays 0xA3. A tag of
/// several octets is `(number << 8) | first octet`, the number cut to 24 bits: `9F 21` is 0x219F,
/// `BF 00` is 0xBF. Its low five bits are all set, as those of no tag of one octet are.
///
/// **Lengths.** Reading takes lengths of up to four octets behind the one that counts them, in
/// shortest form or not. The indefinite length (80) is refused, with -2 for the element that a
/// function opens and with -1 for a child of it.
///
/// **Ownership.** Inputs are copied and stay the caller's; the one exception is
/// `ASN1_SetAlgorithmIdentifier`. What a function hands out is new, and the caller releases it with
/// the Free function that its comment names. Every Free does nothing for a null pointer. Nodes,
/// their `data` and all other blocks come from the C run-time's `malloc` and go back through its
/// `free`, so a caller may build and take apart nodes itself.
///
/// **Results.** A function that returns `int32_t` gives 0 or a negative code below, unless its
/// comment says otherwise. After a failure no out argument and no record has changed, but for what
/// the comment of the function tells, and nothing stays allocated. A null pointer where an argument
/// is required gives `VELKORD_NULL_ARGUMENT`; bytes may be null when their length is 0. A node
/// whose `data` is null counts as holding no bytes. Lengths count bytes.
///
/// **Buffers.** An out buffer comes without its size: each comment states the room that it needs. A
/// reader of one content may be given the `data` of its own source, and the functions of RSA, EC
/// and SM2 keys may write over what they read; otherwise buffers and inputs do not overlap.
#ifndef VELKORD_H_
#define VELKORD_H_

#include <stdint.h>

#if defined(VELKORD_STATIC)
#define VELKORD_EXPORT
#elif defined(_WIN32) && defined(VELKORD_BUILD)
#define VELKORD_EXPORT __declspec(dllexport)
#elif defined(_WIN32)
#define VELKORD_EXPORT __declspec(dllimport)
#else
#define VELKORD_EXPORT __attribute__((visibility("default")))
#endif
#if defined(_WIN32) && defined(__GNUC__)
#define VELKORD_API VELKORD_EXPORT __attribute__((cdecl))
#else
#define VELKORD_API VELKORD_EXPORT
#endif

#ifdef __cplusplus
extern "C" {
#endif

// -------------------------------------------------------------------------------------------------
/// @defgroup codes Return codes
/// What functions return.
/// @{
// -------------------------------------------------------------------------------------------------

/// Return codes.
enum {
  VELKORD_OK = 0,              ///< Success.
  VELKORD_FAILURE = -1,        ///< A length of more than 4 subsequent octets; a child that overruns
                               ///< its parent, has the indefinite length or is missing; out of
                               ///< memory for a node; all that a function of EC keys refuses, and
                               ///< of RSA keys all that is not -2 or -7.
  VELKORD_SIZE_MISMATCH = -2,  ///< Tag, length and content do not add up to the bytes given, or the
                               ///< length is indefinite.
  VELKORD_NEGATIVE_TIME = -4,  ///< A time value below 0.
  VELKORD_BAD_TIME = -5,       ///< A time text without its digits or its final "Z".
  VELKORD_WRONG_TAG = -7,      ///< Not the SEQUENCE, SET, time form or string type that is needed.
  VELKORD_NULL_ARGUMENT = -8,  ///< A null argument, or a required field that was never set.
  VELKORD_OUT_OF_MEMORY = -7000  ///< Out of memory for a record; or a time outside 1970 to 2038.
};

/// @}

// -------------------------------------------------------------------------------------------------
/// @defgroup records Records
/// What functions fill and read, field by field.
/// @{
// -------------------------------------------------------------------------------------------------

/// The value node.
typedef struct Anybuf {
  uint8_t* data;        ///< The node's own block.
  uint32_t dataLen;     ///< Number of bytes at `data`.
  uint32_t unusedBits;  ///< Unused bits of a BIT STRING; no meaning for other types.
  uint32_t memKind;     ///< 2 on a node that the library makes; a copy of a node carries that of
                        ///< its source over. Nothing tests it.
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

/// One attribute of a name. Owns both nodes.
typedef struct AttributeTypeAndValue {
  Anybuf* type;   ///< OBJECT IDENTIFIER TLV.
  Anybuf* value;  ///< String TLV.
} AttributeTypeAndValue;

/// The signed part of a certificate. Owns its ten nodes; each holds one finished element.
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

/// A signed certificate. Owns its three nodes.
typedef struct Certificate {
  Anybuf* tbsCertificate;      ///< SEQUENCE, as signed.
  Anybuf* signatureAlgorithm;  ///< AlgorithmIdentifier.
  Anybuf* signatureValue;      ///< BIT STRING.
} Certificate;

/// One entry of a revocation list. Owns its three nodes.
typedef struct RevokedCertificate {
  uint32_t hasCrlEntryExtensions;   ///< 1 when `crlEntryExtensions` is set.
  Anybuf* certificateSerialNumber;  ///< INTEGER.
  Anybuf* revocationDate;           ///< UTCTime or GeneralizedTime.
  Anybuf* crlEntryExtensions;       ///< SEQUENCE of extensions, optional.
} RevokedCertificate;

/// The signed part of a revocation list. Owns its four nodes.
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
  Anybuf* crlExtensions;            ///< What stands inside `[0]`: SEQUENCE of extensions, optional.
} TbsCertList;

/// A signed revocation list. Owns its three nodes.
typedef struct CertificateList {
  Anybuf* tbsCertList;         ///< SEQUENCE, as signed.
  Anybuf* signatureAlgorithm;  ///< AlgorithmIdentifier.
  Anybuf* signatureValue;      ///< BIT STRING.
} CertificateList;

/// The signed part of a PKCS#10 certification request. Owns its four nodes.
typedef struct PKCS10 {
  Anybuf* version;               ///< INTEGER.
  Anybuf* subject;               ///< Name.
  Anybuf* subjectPublicKeyInfo;  ///< SubjectPublicKeyInfo.
  Anybuf* attributes;            ///< `[0]` IMPLICIT SET; null when a decoded one has none.
} PKCS10;

/// A signed PKCS#10 certification request. Owns its three nodes.
typedef struct PKCS10Request {
  Anybuf* certificationRequestInfo;  ///< SEQUENCE, as signed.
  Anybuf* signatureAlgorithm;        ///< AlgorithmIdentifier.
  Anybuf* signature;                 ///< BIT STRING.
} PKCS10Request;

/// The signed part of a PKCS#6 extended certificate. Owns its two nodes.
typedef struct ExtendedCertificateInfo {
  uint32_t version;     ///< The number itself.
  Anybuf* certificate;  ///< Certificate.
  Anybuf* attributes;   ///< SET.
} ExtendedCertificateInfo;

/// A signed PKCS#6 extended certificate. Owns its three nodes.
typedef struct ExtendedCertificate {
  Anybuf* extendedCertificateInfo;  ///< SEQUENCE, as signed.
  Anybuf* signatureAlgorithm;       ///< AlgorithmIdentifier.
  Anybuf* signature;                ///< BIT STRING.
} ExtendedCertificate;

/// A PKCS#7 ContentInfo. Owns its two nodes.
typedef struct PKCS7Context {
  Anybuf* contentType;  ///< OBJECT IDENTIFIER.
  Anybuf* content;      ///< The whole `[0]` element when set; what stands inside it when decoded.
} PKCS7Context;

/// An RSA public key: big-endian numbers. Encoding takes each from its field's end, with zero bytes
/// in front; decoding puts each at its field's start, with zero bytes behind.
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
/// `tbs` and fills `subjectEntries`; `X509CertFree` releases all named fields, whose blocks must
/// come from `malloc`. The numbered words are the caller's.
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

/// @}

// -------------------------------------------------------------------------------------------------
/// @defgroup nodes Value nodes
/// The value that all others are made of.
/// @{
// -------------------------------------------------------------------------------------------------

/// Makes a content node with a copy of `length` bytes. `dataType` is `type` as it stands. For type
/// 3 `unusedBits` comes from the size of the last byte V: 0 for V below 2 or above 128, otherwise
/// the number of bits of V - 1. Free with `ASN1_FreeAnybuf`. Returns 0, -1 (memory) or -8.
VELKORD_API int32_t ASN1_CreateAnybuf(const uint8_t* bytes, uint32_t length, uint8_t type,
                                      Anybuf** out);

/// Releases `node` and every node after it, each with its `data`. Call it on the head of a chain
/// only.
VELKORD_API void ASN1_FreeAnybuf(Anybuf* node);

/// Releases a record and its `data`; `next` is not followed.
VELKORD_API void ASN1_FreeObjectID(ObjectID* record);

/// @}

// -------------------------------------------------------------------------------------------------
/// @defgroup integers INTEGER
/// Unsigned magnitudes, big-endian.
/// @{
// -------------------------------------------------------------------------------------------------

/// Gives the DER content octets of `value`, 1 to 5 of them, and their count in a cell of its own.
/// Release both blocks with `free`. Returns 0, -1 (memory) or -8.
VELKORD_API int32_t Asn1LowIntToChar(uint32_t value, uint8_t** outBytes, uint32_t** outLength);

/// Makes the TLV node of a number. Free with `ASN1_FreeAnybuf`. Returns 0, -1 (memory) or -8.
VELKORD_API int32_t ASN1_WriteInteger(uint32_t value, Anybuf** out);

/// Reads the number of a TLV node of any type: its low 32 bits. Bytes behind the element are
/// allowed.
/// Returns 0, -1 (length octets), -2 (the element leaves the node) or -8.
VELKORD_API int32_t ASN1_ReadInteger(const Anybuf* source, uint32_t* value);

/// Makes an INTEGER TLV node over a magnitude: a zero octet goes in front of a first byte of 0x80
/// or more; leading zeros stay. The node form takes a content node of any type. Free with
/// `ASN1_FreeAnybuf`. Returns 0, -1 (memory) or -8.
/// @{
VELKORD_API int32_t ASN1_WriteIntegerArray(const Anybuf* source, Anybuf** out);
VELKORD_API int32_t ASN1_WriteIntegerArrayFromBytes(const uint8_t* bytes, uint32_t length,
                                                    Anybuf** out);
/// @}

/// @}

// -------------------------------------------------------------------------------------------------
/// @defgroup sequences SEQUENCE and SET
/// Chains of TLV nodes.
/// @{
// -------------------------------------------------------------------------------------------------

/// Starts a chain with a copy of `element`; its `next` is not followed. Free with
/// `ASN1_FreeAnybuf`.
/// Returns 0, -1 (memory) or -8.
/// @{
VELKORD_API int32_t ASN1_CreateSequence(const Anybuf* element, Anybuf** out);
VELKORD_API int32_t ASN1_CreateSet(const Anybuf* element, Anybuf** out);
/// @}

/// Appends a copy of `element` at the end of `chain`, to which it walks. Does nothing for a null
/// argument; when memory runs out the chain stays as it was.
/// @{
VELKORD_API void ASN1_AddSequence(const Anybuf* element, Anybuf* chain);
VELKORD_API void ASN1_AddSet(const Anybuf* element, Anybuf* chain);
/// @}

/// Releases a whole chain, as `ASN1_FreeAnybuf` does.
/// @{
VELKORD_API void ASN1_FreeSequence(Anybuf* chain);
VELKORD_API void ASN1_FreeSet(Anybuf* chain);
/// @}

/// Makes one SEQUENCE or SET TLV node over the bytes of a chain, in the chain's order; a null chain
/// gives an empty element. Free with `ASN1_FreeAnybuf`. Returns 0, -1 (memory) or -8.
/// @{
VELKORD_API int32_t ASN1_WriteSequence(const Anybuf* chain, Anybuf** out);
VELKORD_API int32_t ASN1_WriteSet(const Anybuf* chain, Anybuf** out);
/// @}

/// Splits one SEQUENCE or SET, in a TLV node or in plain bytes, into the chain of its direct
/// children, each a whole TLV node. An element without children gives a null chain. Free with
/// `ASN1_FreeAnybuf`.
/// Returns 0, -1 (length octets, a child that runs past its parent, memory), -2, -7 (another tag)
/// or -8.
/// @{
VELKORD_API int32_t ASN1_ReadSequence(const Anybuf* source, Anybuf** out);
VELKORD_API int32_t ASN1_ReadSet(const Anybuf* source, Anybuf** out);
VELKORD_API int32_t ASN1_WriteSequenceFromDERBytes(const uint8_t* bytes, uint32_t length,
                                                   Anybuf** out);
VELKORD_API int32_t ASN1_WriteSetFromDERData(const uint8_t* bytes, uint32_t length, Anybuf** out);
/// @}

/// @}

// -------------------------------------------------------------------------------------------------
/// @defgroup object_ids OBJECT IDENTIFIER
/// Dotted text, content octets and TLV nodes.
/// @{
// -------------------------------------------------------------------------------------------------

/// Turns dotted text of `textLength` characters into content octets; blanks may stand for points.
/// `out` needs as many bytes as the text has characters. Arcs are 32-bit and wrap. Returns the
/// number of octets written, which also goes to `outLength`, or 0 for a text that is refused; then
/// `outLength` is not written and `out` may hold the octets of the arcs before the bad one. A first
/// arc and a point alone give 0 and set `outLength` to 0. A null argument gives 0.
VELKORD_API int32_t ASN1_OBJECT_a2d(uint8_t* out, uint32_t* outLength, const char* text,
                                    int32_t textLength);

/// Makes an OBJECT IDENTIFIER TLV node over content octets; `id` has no effect. Free with
/// `ASN1_FreeAnybuf`.
/// Returns 0, -1 (memory) or -8.
/// @{
VELKORD_API int32_t ASN1_WriteObjectId(const ObjectID* record, Anybuf** out);
VELKORD_API int32_t ASN1_WriteObjectIdFromData(int32_t id, const uint8_t* bytes, uint32_t length,
                                               Anybuf** out);
/// @}

/// Reads the content of a TLV node of any type into a new record. Free with `ASN1_FreeObjectID`.
/// Returns 0, -1 (length octets), -2, -7000 (memory) or -8.
VELKORD_API int32_t ASN1_ReadObjectId(const Anybuf* source, ObjectID** out);

/// Copies the content of a TLV node of any type to `out`, which needs room for all of it.
/// Returns 0, -1 (length octets), -2 or -8.
VELKORD_API int32_t ASN1_ReadObjectIdToBytes(const Anybuf* source, uint8_t* out,
                                             uint32_t* outLength);

/// @}

// -------------------------------------------------------------------------------------------------
/// @defgroup strings Byte and character strings, ENUMERATED, BOOLEAN, NULL
/// Writing differs by the tag alone, and reading is the same for all.
/// @{
// -------------------------------------------------------------------------------------------------

/// Makes a TLV node over a content node of any type. CharString is PrintableString.
/// `ASN1_WriteBitString` writes the low byte of the source's `unusedBits` in front.
/// `ASN1_WritePrintableString` writes a BMPString for a source of `dataType` 30 and a
/// PrintableString otherwise. Free with `ASN1_FreeAnybuf`. Returns 0, -1 (memory) or -8.
/// @{
VELKORD_API int32_t ASN1_WriteOctetString(const Anybuf* source, Anybuf** out);
VELKORD_API int32_t ASN1_WriteBitString(const Anybuf* source, Anybuf** out);
VELKORD_API int32_t ASN1_WriteCharString(const Anybuf* source, Anybuf** out);
VELKORD_API int32_t ASN1_WriteUTF8String(const Anybuf* source, Anybuf** out);
VELKORD_API int32_t ASN1_WriteBmpString(const Anybuf* source, Anybuf** out);
VELKORD_API int32_t ASN1_WriteIa5String(const Anybuf* source, Anybuf** out);
VELKORD_API int32_t ASN1_WriteEnumerated(const Anybuf* source, Anybuf** out);
VELKORD_API int32_t ASN1_WritePrintableString(const Anybuf* source, Anybuf** out);
/// @}

/// Makes a TLV node over content bytes. `ASN1_WriteBitStringFromBytes` derives the unused bits from
/// the size of the last byte, as `ASN1_CreateAnybuf` does: where the count is known, use a node and
/// `ASN1_WriteBitString`. Free with `ASN1_FreeAnybuf`. Returns 0, -1 (memory) or -8.
/// @{
VELKORD_API int32_t ASN1_WriteOctetStringFromBytes(const uint8_t* bytes, uint32_t length,
                                                   Anybuf** out);
VELKORD_API int32_t ASN1_WriteBitStringFromBytes(const uint8_t* bytes, uint32_t length,
                                                 Anybuf** out);
VELKORD_API int32_t ASN1_WriteCharStringFromBytes(const uint8_t* bytes, uint32_t length,
                                                  Anybuf** out);
VELKORD_API int32_t ASN1_WriteUTF8StringFromBytes(const uint8_t* bytes, uint32_t length,
                                                  Anybuf** out);
VELKORD_API int32_t ASN1_WriteBmpStringFromBytes(const uint8_t* bytes, uint32_t length,
                                                 Anybuf** out);
VELKORD_API int32_t ASN1_WriteIa5StringFromBytes(const uint8_t* bytes, uint32_t length,
                                                 Anybuf** out);
/// @}

/// As above: a PrintableString when `selector` is not 0, a BMPString when it is.
VELKORD_API int32_t ASN1_WritePrintableStringFromBytes(int32_t selector, const uint8_t* bytes,
                                                       uint32_t length, Anybuf** out);

/// Stores the DER of a whole BIT STRING unchanged in a TLV node; `unusedBits` is the octet behind
/// the header. Neither the tag nor the length in the header is tested. Free with `ASN1_FreeAnybuf`.
/// Returns 0, -1 (length octets, memory), -2 (the bytes end before that octet) or -8.
VELKORD_API int32_t ASN1_WriteBitStringFromDERBytes(const uint8_t* bytes, uint32_t length,
                                                    Anybuf** out);

/// Makes the TLV node of a BOOLEAN with the byte at `value` unchanged. Free with `ASN1_FreeAnybuf`.
/// Returns 0, -1 (memory) or -8.
VELKORD_API int32_t ASN1_WriteBoolean(const uint8_t* value, Anybuf** out);

/// Gives the first content octet of a TLV node of any type as it stands: that of a BIT STRING is
/// its unused-bits octet. Returns 0, -1 (length octets), -2 (also for an element without content)
/// or -8.
VELKORD_API int32_t ASN1_ReadBoolean(const Anybuf* source, uint8_t* value);

/// Makes the TLV node of a NULL. Free with `ASN1_FreeAnybuf`. Returns 0, -1 (memory) or -8.
VELKORD_API int32_t ASN1_WriteNull(Anybuf** out);

/// Makes the content node of a TLV node of any type; `dataType` is the tag that was read. A source
/// of `dataType` 3 loses its unused-bits octet and passes its `unusedBits` on; an INTEGER loses the
/// zero octet that only keeps it positive. All names are one function. Free with `ASN1_FreeAnybuf`.
/// Returns 0, -1 (length octets, memory), -2 or -8.
/// @{
VELKORD_API int32_t ASN1_ReadBitString(const Anybuf* source, Anybuf** out);
VELKORD_API int32_t ASN1_ReadBmpString(const Anybuf* source, Anybuf** out);
VELKORD_API int32_t ASN1_ReadCharString(const Anybuf* source, Anybuf** out);
VELKORD_API int32_t ASN1_ReadEnumerated(const Anybuf* source, Anybuf** out);
VELKORD_API int32_t ASN1_ReadIa5String(const Anybuf* source, Anybuf** out);
VELKORD_API int32_t ASN1_ReadIntegerArray(const Anybuf* source, Anybuf** out);
VELKORD_API int32_t ASN1_ReadOctetString(const Anybuf* source, Anybuf** out);
VELKORD_API int32_t ASN1_ReadPrintableString(const Anybuf* source, Anybuf** out);
VELKORD_API int32_t ASN1_ReadUTF8String(const Anybuf* source, Anybuf** out);
/// @}

/// Copies that content to `out` and its size to `outLength`. `out` needs room for the whole
/// content, at most the source's `dataLen`; no zero is added. All names are one function. Returns
/// 0, -1 (length octets), -2 or -8.
/// @{
VELKORD_API int32_t ASN1_ReadCharStringToBytes(const Anybuf* source, uint8_t* out,
                                               uint32_t* outLength);
VELKORD_API int32_t ASN1_ReadIa5StringToBytes(const Anybuf* source, uint8_t* out,
                                              uint32_t* outLength);
VELKORD_API int32_t ASN1_ReadIntegerArrayToBytes(const Anybuf* source, uint8_t* out,
                                                 uint32_t* outLength);
VELKORD_API int32_t ASN1_ReadOctetStringToBytes(const Anybuf* source, uint8_t* out,
                                                uint32_t* outLength);
VELKORD_API int32_t ASN1_ReadPrintableStringToBytes(const Anybuf* source, uint8_t* out,
                                                    uint32_t* outLength);
VELKORD_API int32_t ASN1_ReadUTF8StringToBytes(const Anybuf* source, uint8_t* out,
                                               uint32_t* outLength);
/// @}

/// The same for BMP text: of each pair of bytes a zero high byte is left out, and an odd last byte
/// too.
VELKORD_API int32_t ASN1_ReadBmpStringToBytes(const Anybuf* source, uint8_t* out,
                                              uint32_t* outLength);

/// @}

// -------------------------------------------------------------------------------------------------
/// @defgroup tags Tags and raw DER
/// EXPLICIT and IMPLICIT tags, and DER bytes stored as they are.
/// @{
// -------------------------------------------------------------------------------------------------

/// Makes a TLV node of tag octet `tagNumber | 0xA0` around the source's bytes, or around plain
/// bytes; of `tagNumber` the low byte counts. Free with `ASN1_FreeAnybuf`. Returns 0, -1 (memory)
/// or -8.
/// @{
VELKORD_API int32_t ASN1_WriteExplicit(const Anybuf* source, uint8_t tagNumber, Anybuf** out);
VELKORD_API int32_t ASN1_WriteExplicitFromData(uint32_t tagNumber, const uint8_t* bytes,
                                               uint32_t length, Anybuf** out);
/// @}

/// Opens a TLV node of any type: its content as `ASN1_ReadBitString` gives it, and its reduced tag
/// (0xA3 for `[3]`). Free the node with `ASN1_FreeAnybuf`; the buffer form needs room for the whole
/// content.
/// Returns 0, -1 (length octets, memory), -2 or -8.
/// @{
VELKORD_API int32_t ASN1_ReadExplicit(const Anybuf* source, Anybuf** out, uint32_t* outTag);
VELKORD_API int32_t ASN1_ReadExplicitToBytes(const Anybuf* source, uint8_t* out,
                                             uint32_t* outLength, uint32_t* outTag);
/// @}

/// Makes a TLV node with the source's content under another tag: `tagNumber | 0xA0` for a source of
/// `dataType` 16 or 17, `tagNumber | 0x80` otherwise; the low byte counts. A BIT STRING keeps its
/// unused-bits octet; an INTEGER loses the zero octet that only keeps it positive. Free with
/// `ASN1_FreeAnybuf`. Returns 0, -1 (length octets, memory), -2 or -8.
VELKORD_API int32_t ASN1_WriteImplicit(const Anybuf* source, uint32_t tagNumber, Anybuf** out);

/// Opens an element under an IMPLICIT tag. A constructed context or private element gives the chain
/// of its children, null when it has none; any other element gives a content node, without its
/// first octet when the tag is odd. `outTagNumber` receives the low five bits of the tag as soon as
/// the tag is read, also when a later test fails. Free with `ASN1_FreeAnybuf`. Returns 0, -1
/// (length octets, a child that runs past its parent, memory), -2 or -8.
VELKORD_API int32_t ASN1_ReadImplicit(const Anybuf* source, Anybuf** out, uint32_t* outTagNumber);

/// Stores DER bytes unchanged in a TLV node; only the tag is read. All names are one function, none
/// tests the type. Free with `ASN1_FreeAnybuf`. Returns 0, -1 (memory), -2 (no whole tag) or -8.
/// @{
VELKORD_API int32_t ASN1_WriteExplicitFromDERData(const uint8_t* bytes, uint32_t length,
                                                  Anybuf** out);
VELKORD_API int32_t ASN1_WriteBmpStringFromDERBytes(const uint8_t* bytes, uint32_t length,
                                                    Anybuf** out);
VELKORD_API int32_t ASN1_WriteCharStringFromDERBytes(const uint8_t* bytes, uint32_t length,
                                                     Anybuf** out);
VELKORD_API int32_t ASN1_WriteIa5StringFromDERBytes(const uint8_t* bytes, uint32_t length,
                                                    Anybuf** out);
VELKORD_API int32_t ASN1_WriteIntegerArrayFromDERBytes(const uint8_t* bytes, uint32_t length,
                                                       Anybuf** out);
VELKORD_API int32_t ASN1_WriteObjectIdFromDERBytes(const uint8_t* bytes, uint32_t length,
                                                   Anybuf** out);
VELKORD_API int32_t ASN1_WriteOctetStringFromDERBytes(const uint8_t* bytes, uint32_t length,
                                                      Anybuf** out);
VELKORD_API int32_t ASN1_WritePrintableStringFromDERBytes(const uint8_t* bytes, uint32_t length,
                                                          Anybuf** out);
VELKORD_API int32_t ASN1_WriteUTF8StringFromDERBytes(const uint8_t* bytes, uint32_t length,
                                                     Anybuf** out);
/// @}

/// @}

// -------------------------------------------------------------------------------------------------
/// @defgroup time Time
/// Seconds since 1 January 1970 against local time text.
/// @{
// -------------------------------------------------------------------------------------------------

/// Makes the TLV node of a time. The text is the machine's local time followed by "Z", so it is UTC
/// only where the local zone is UTC. The zone is that of the C library: the one that TZ names at
/// the call, or without TZ the one that it has read; whoever changes that calls `tzset`, on Windows
/// `_tzset`. Free with `ASN1_FreeAnybuf`. Returns 0, -4 (negative), -7000 (memory, or the platform
/// refuses) or -8.
/// @{
VELKORD_API int32_t ASN1_WriteGeneralizedTime(const int32_t* time, Anybuf** out);
VELKORD_API int32_t ASN1_WriteUtcTime(const int32_t* time, Anybuf** out);
/// @}

/// Reads the time of a TLV node as local time. UTCTime years 00 to 69 are 2000 to 2069, and fields
/// out of range carry over: day 32 of January is 1 February. Of an hour that occurs twice the
/// earlier one is read; an hour that the clocks skip is read as if they had not been changed.
/// Returns 0, -1 (length octets), -2 (no whole header), -5 (short, no digits, no "Z"), -7 (another
/// `dataType`), -7000 (before 1970, or after 19 January 2038, 03:14:07 UTC) or -8.
/// @{
VELKORD_API int32_t ASN1_ReadGeneralizedTime(const Anybuf* source, int32_t* time);
VELKORD_API int32_t ASN1_ReadUtcTime(const Anybuf* source, int32_t* time);
/// @}

/// @}

// -------------------------------------------------------------------------------------------------
/// @defgroup names Names
/// Attributes, relative names and names.
/// @{
// -------------------------------------------------------------------------------------------------

/// Makes a record with copies of two TLV nodes. Free with `ASN1_FreeAttributeTypeAndValue`.
/// Returns 0, -7000 (memory) or -8.
VELKORD_API int32_t ASN1_SetAttributeTypeAndValue(const Anybuf* type, const Anybuf* value,
                                                  AttributeTypeAndValue** out);

/// Makes the SEQUENCE TLV node of an attribute. Free with `ASN1_FreeAnybuf`. Returns 0, -1 (memory)
/// or -8.
VELKORD_API int32_t ASN1_GetDerAttributeTypeAndValue(const AttributeTypeAndValue* record,
                                                     Anybuf** out);

/// Opens the SEQUENCE TLV node of an attribute: its OBJECT IDENTIFIER and its UTF8String,
/// PrintableString or IA5String as new TLV nodes. Free both with `ASN1_FreeAnybuf`.
/// Returns 0, -1 (also a missing element), -2, -7 (no SEQUENCE, another string type) or -8.
VELKORD_API int32_t ASN1_DecodeDerAttributeTypeAndValue(const Anybuf* source, Anybuf** outType,
                                                        Anybuf** outValue);

/// Releases a record and its nodes.
VELKORD_API void ASN1_FreeAttributeTypeAndValue(AttributeTypeAndValue* record);

/// The SET of a relative name: written as `ASN1_WriteSet` does, split as `ASN1_ReadSet` and
/// `ASN1_WriteSetFromDERData` do.
/// @{
VELKORD_API int32_t ASN1_GetDerRelativeDistinguishedName(const Anybuf* chain, Anybuf** out);
VELKORD_API int32_t ASN1_ReadRelativeDistinguishedName(const Anybuf* source, Anybuf** out);
VELKORD_API int32_t ASN1_ReadRelativeDistinguishedNameFromByte(const uint8_t* bytes,
                                                               uint32_t length, Anybuf** out);
/// @}

/// Makes the SET TLV node of a relative name with one attribute, from a string TLV node of
/// `dataType` 12, 19 or 22 and the attribute's OID as dotted text; `id` has no effect. A text that
/// `ASN1_OBJECT_a2d` refuses gives an empty OID. Free with `ASN1_FreeAnybuf`. Returns 0, -1
/// (memory), -2 (the value has no whole tag), -7 (another string type) or -8.
VELKORD_API int32_t ASN1_GetDerRelativeDistinguishedNameOne(const Anybuf* value, int32_t id,
                                                            const char* oidText,
                                                            int32_t oidTextLength, Anybuf** out);

/// Opens the SET TLV node of a relative name and gives its first attribute: the value's bytes, a
/// UTF8String turned into GB2312 by `utf8sToZhs`, and the OID's content octets. `value` and `oid`
/// need room for the whole contents.
/// Returns 0, -1 (also no attribute, a missing element), -2, -7 (no SET, no SEQUENCE, another
/// string type) or -8.
VELKORD_API int32_t ASN1_DecodeDerRelativeDistinguishedNameOne(const Anybuf* source, uint8_t* value,
                                                               uint32_t* valueLength, uint8_t* oid,
                                                               uint32_t* oidLength);

/// `ASN1_CreateSet` under the names of what is listed.
/// @{
VELKORD_API int32_t ASN1_CreateName(const Anybuf* element, Anybuf** out);
VELKORD_API int32_t ASN1_CreateRelativeDistinguishedName(const Anybuf* element, Anybuf** out);
VELKORD_API int32_t ASN1_CreateExtensions(const Anybuf* element, Anybuf** out);
/// @}

/// `ASN1_AddSet` under the names of what is listed: the element first, the chain second.
/// @{
VELKORD_API void ASN1_AddName(const Anybuf* element, Anybuf* chain);
VELKORD_API void ASN1_AddRelativeDistinguishedName(const Anybuf* element, Anybuf* chain);
VELKORD_API void ASN1_AddExtensions(const Anybuf* element, Anybuf* chain);
/// @}

/// `ASN1_WriteSequence` under the names of what is listed.
/// @{
VELKORD_API int32_t ASN1_GetDerName(const Anybuf* chain, Anybuf** out);
VELKORD_API int32_t ASN1_WriteExtensions(const Anybuf* chain, Anybuf** out);
/// @}

/// `ASN1_ReadSequence` under the names of what is listed.
/// @{
VELKORD_API int32_t ASN1_ReadDerName(const Anybuf* source, Anybuf** out);
VELKORD_API int32_t ASN1_ReadExtensions(const Anybuf* source, Anybuf** out);
/// @}

/// `ASN1_FreeAnybuf` under the names of what is released.
/// @{
VELKORD_API void ASN1_FreeNames(Anybuf* chain);
VELKORD_API void ASN1_FreeRelativeDistinguishedName(Anybuf* chain);
VELKORD_API void ASN1_FreeExtension(Anybuf* chain);
VELKORD_API void ASN1_FreeExtensions(Anybuf* chain);
VELKORD_API void ASN1_FreeAlgorithmIdentifier(Anybuf* chain);
VELKORD_API void ASN1_FreeSubjectPublicKeyInfo(Anybuf* chain);
VELKORD_API void ASN1_FreeRSAPublicKey(Anybuf* chain);
VELKORD_API void ASN1_FreeValidity(Anybuf* chain);
/// @}

/// @}

// -------------------------------------------------------------------------------------------------
/// @defgroup key_info Validity, algorithm and key info
/// Parts that certificates and requests share.
/// @{
// -------------------------------------------------------------------------------------------------

/// Makes the SEQUENCE TLV node of two TLV nodes: notBefore and notAfter, or modulus and exponent.
/// Neither is tested. Free with `ASN1_FreeAnybuf`. Returns 0, -1 (memory) or -8.
/// @{
VELKORD_API int32_t ASN1_SetValidity(const Anybuf* notBefore, const Anybuf* notAfter, Anybuf** out);
VELKORD_API int32_t ASN1_SetRSAPublicKey(const Anybuf* modulus, const Anybuf* exponent,
                                         Anybuf** out);
/// @}

/// Reads both times of a Validity TLV node, in either form; of more than two the last is notAfter.
/// Returns 0, -1 (also fewer than two elements), -2, -5, -7 (no SEQUENCE, no time), -7000 (see
/// `ASN1_ReadUtcTime`) or -8.
VELKORD_API int32_t ASN1_GetValidity(const Anybuf* source, int32_t* notBefore, int32_t* notAfter);

/// Opens the SEQUENCE TLV node of an RSA public key: both numbers as new INTEGER TLV nodes,
/// positive; of more than two elements the last is the exponent. Free both with `ASN1_FreeAnybuf`.
/// Returns 0, -1 (also fewer than two elements), -2, -7 (no SEQUENCE) or -8.
VELKORD_API int32_t ASN1_GetRSAPublicKey(const Anybuf* source, Anybuf** outModulus,
                                         Anybuf** outExponent);

/// Makes an AlgorithmIdentifier TLV node of `oid` and one more element: `parameter` when it is not
/// null, else NULL when `mode` is 1, else `alternative`, which must then be there. **Releases
/// `oid`**, that node alone, on success, unless NULL was written; after a failure it stays the
/// caller's. Free with `ASN1_FreeAnybuf`. Returns 0, -1 (memory) or -8.
VELKORD_API int32_t ASN1_SetAlgorithmIdentifier(uint32_t mode, Anybuf* oid,
                                                const Anybuf* alternative, const Anybuf* parameter,
                                                Anybuf** out);

/// Opens an AlgorithmIdentifier TLV node. Each out pointer may be null, and that part is not
/// delivered. A SEQUENCE parameter goes to `outSequence`; a NULL or none leaves both parameters
/// null; anything else goes to `outParameterOid` as an OBJECT IDENTIFIER over its content. Of
/// several parameters the last counts. Free each with `ASN1_FreeAnybuf`.
/// Returns 0, -1 (also an empty SEQUENCE), -2, -7 (no SEQUENCE), or -8 (null `source`).
VELKORD_API int32_t ASN1_GetAlgorithmIdentifier(const Anybuf* source, Anybuf** outOid,
                                                Anybuf** outSequence, Anybuf** outParameterOid);

/// Makes a SubjectPublicKeyInfo TLV node: a copy of `algorithm`, then a BIT STRING over the bytes
/// of `key`, written as `ASN1_WriteBitStringFromBytes` does. Free with `ASN1_FreeAnybuf`. Returns
/// 0, -1 (memory) or -8.
VELKORD_API int32_t ASN1_SetSubjectPublicKeyInfo(const Anybuf* algorithm, const Anybuf* key,
                                                 Anybuf** out);

/// Opens a SubjectPublicKeyInfo TLV node: AlgorithmIdentifier and BIT STRING as new TLV nodes, the
/// unused-bits octet always 0. Free both with `ASN1_FreeAnybuf`.
/// Returns 0, -1 (also a missing element), -2, -7 (it or its first element is no SEQUENCE) or -8.
VELKORD_API int32_t ASN1_GetSubjectPublicKeyInfo(const Anybuf* source, Anybuf** outAlgorithm,
                                                 Anybuf** outKey);

/// @}

// -------------------------------------------------------------------------------------------------
/// @defgroup extensions Extensions
/// Single, and as a list.
/// @{
// -------------------------------------------------------------------------------------------------

/// Makes an Extension TLV node of an OID, a BOOLEAN, which may be null, and an OCTET STRING, all
/// TLV nodes; none is tested. Free with `ASN1_FreeAnybuf`. Returns 0, -1 (memory) or -8.
VELKORD_API int32_t ASN1_SetExtension(const Anybuf* oid, const Anybuf* critical,
                                      const Anybuf* value, Anybuf** out);

/// Makes an Extension TLV node from the OID's content octets and the value's bytes. The low byte of
/// `critical` is the BOOLEAN's octet; when it is 0 there is no BOOLEAN. `id` has no effect. Free
/// with `ASN1_FreeAnybuf`.
/// Returns 0, -1 (memory) or -8.
VELKORD_API int32_t ASN1_GetExtensionOne(int32_t id, const uint8_t* oid, uint32_t oidLength,
                                         uint32_t critical, const uint8_t* value,
                                         uint32_t valueLength, Anybuf** out);

/// Opens an Extension TLV node: OBJECT IDENTIFIER, BOOLEAN and OCTET STRING as new TLV nodes.
/// `outCritical` is written only when there are exactly three elements: preset it to null. It holds
/// the first content octet of the second, whatever its type. Free each with `ASN1_FreeAnybuf`.
/// Returns 0, -1 (also fewer than two elements), -2 (also a BOOLEAN without content), -7 (no
/// SEQUENCE) or -8.
VELKORD_API int32_t ASN1_GetExtension(const Anybuf* source, Anybuf** outOid, Anybuf** outCritical,
                                      Anybuf** outValue);

/// @}

// -------------------------------------------------------------------------------------------------
/// @defgroup certificates Certificates: the signed part
/// What is signed of a certificate.
/// @{
// -------------------------------------------------------------------------------------------------

/// Makes an empty record. Free with `ASN1_FreeTBSCertificate`. Returns 0, -7000 (memory) or -8.
VELKORD_API int32_t ASN1_CreateTBSCertificate(TBSCertificate** out);

/// Releases a record and its nodes.
VELKORD_API void ASN1_FreeTBSCertificate(TBSCertificate* record);

/// Sets the version number, 2 for a version 3 certificate. Each setter of this record copies what
/// it is given and releases what the field held before. Returns 0, -1 (memory) or -8.
VELKORD_API int32_t ASN1_TBSCertificateSetVersion(TBSCertificate* record, uint32_t version);

/// Sets the serial number from a big-endian magnitude. Returns 0, -1 (memory) or -8.
VELKORD_API int32_t ASN1_TBSCertificateSetSerialNumber(TBSCertificate* record, const uint8_t* bytes,
                                                       uint32_t length);

/// Sets a field to a copy of a SEQUENCE TLV node, its own length rewritten in shortest form.
/// Returns 0, -1 (length octets, an element that overruns, memory), -2, -7 (no SEQUENCE) or -8.
/// @{
VELKORD_API int32_t ASN1_TBSCertificateSetSignatureAlg(TBSCertificate* record, const Anybuf* value);
VELKORD_API int32_t ASN1_TBSCertificateSetIssuer(TBSCertificate* record, const Anybuf* value);
VELKORD_API int32_t ASN1_TBSCertificateSetValidity(TBSCertificate* record, const Anybuf* value);
VELKORD_API int32_t ASN1_TBSCertificateSetSubject(TBSCertificate* record, const Anybuf* value);
VELKORD_API int32_t ASN1_TBSCertificateSetSubjectPublicKeyInfo(TBSCertificate* record,
                                                               const Anybuf* value);
/// @}

/// Sets an optional identifier from a BIT STRING TLV node, under `[1]` or `[2]` IMPLICIT, as
/// `ASN1_WriteImplicit` does.
/// Returns 0, -1 (length octets, memory), -2 or -8.
/// @{
VELKORD_API int32_t ASN1_TBSCertificateSetIssuerUniqueID(TBSCertificate* record,
                                                         const Anybuf* value);
VELKORD_API int32_t ASN1_TBSCertificateSetSubjectUniqueID(TBSCertificate* record,
                                                          const Anybuf* value);
/// @}

/// Sets the extensions from the TLV node of their list, under `[3]` EXPLICIT. Returns 0, -1
/// (memory) or -8.
VELKORD_API int32_t ASN1_TBSCertificateSetExtensions(TBSCertificate* record, const Anybuf* value);

/// Makes the SEQUENCE TLV node of the record: seven required fields, then each optional one whose
/// flag is 1. The record does not change. Free with `ASN1_FreeAnybuf`. Returns 0, -1 (memory) or -8
/// (also a field that is to be written and not set).
VELKORD_API int32_t ASN1_TBSCertificateWriteData(const TBSCertificate* record, Anybuf** out);

/// Decodes a TBSCertificate TLV node into a new record. The first element is always taken for the
/// version; `version` stays 0. Optional elements are told by the low five bits of their tags, in
/// any order; of several of one kind the last counts, though each must open, and elements of other
/// tags are passed over. The unused-bits octets of the identifiers are derived anew, where that of
/// `[2]` stays in its content, and `extensions` holds a SEQUENCE around the list: what is written
/// again is not what was signed. Free with `ASN1_FreeTBSCertificate`.
/// Returns 0, -1 (also fewer than seven elements), -2 (also an identifier without content that is
/// constructed or of an odd tag, such as `A1 00`, `A2 00` and `81 00`, and any BIT STRING without
/// content), -7 (it or one of elements 3 to 7 is no SEQUENCE), -7000 (memory) or -8.
VELKORD_API int32_t ASN1_TBSCertificateDecode(const Anybuf* source, TBSCertificate** out);

/// @}

// -------------------------------------------------------------------------------------------------
/// @defgroup signed_wholes Signed wholes
/// Certificates, revocation lists, PKCS#10 certification requests and PKCS#6 extended certificates
/// have one shape: what is signed, the algorithm and the signature.
/// @{
// -------------------------------------------------------------------------------------------------

/// Makes an empty record. Free with the function of the same type. Returns 0, -7000 (memory) or -8.
/// @{
VELKORD_API int32_t ASN1_CreateCertificate(Certificate** out);
VELKORD_API int32_t ASN1_CRL_CreateCertificateList(CertificateList** out);
VELKORD_API int32_t ASN1_CreatePKCS10Request(PKCS10Request** out);
VELKORD_API int32_t ASN1_PKCS6_CreateExtendedCertificate(ExtendedCertificate** out);
/// @}

/// Releases a record and its nodes.
/// @{
VELKORD_API void ASN1_FreeCertificate(Certificate* record);
VELKORD_API void ASN1_CRL_FreeCertificateList(CertificateList* record);
VELKORD_API void ASN1_FreePKCS10Request(PKCS10Request* record);
VELKORD_API void ASN1_PKCS6_FreeExtendedCertificate(ExtendedCertificate* record);
/// @}

/// Sets the first or the second field to a copy of a SEQUENCE TLV node, its own length rewritten in
/// shortest form. What the field held before is released. Returns 0, -1 (length octets, an element
/// that overruns, memory), -2, -7 (no SEQUENCE) or -8.
/// @{
VELKORD_API int32_t ASN1_CertificateSetTbsCertificate(Certificate* record, const Anybuf* value);
VELKORD_API int32_t ASN1_CertificateSetSignatureAlgorithm(Certificate* record, const Anybuf* value);
VELKORD_API int32_t ASN1_CRL_SetCertificateListTBSCertList(CertificateList* record,
                                                           const Anybuf* value);
VELKORD_API int32_t ASN1_CRL_SetCertificateListAlgorithmIdentifier(CertificateList* record,
                                                                   const Anybuf* value);
VELKORD_API int32_t ASN1_PKCS10RequestSetCertificationRequestInfo(PKCS10Request* record,
                                                                  const Anybuf* value);
VELKORD_API int32_t ASN1_PKCS10RequestSetAlgorithmIdentifier(PKCS10Request* record,
                                                             const Anybuf* value);
VELKORD_API int32_t ASN1_PKCS6_SetCertificateCertificateInfo(ExtendedCertificate* record,
                                                             const Anybuf* value);
VELKORD_API int32_t ASN1_PKCS6_SetCertificateSignatureAlgorithmIdentifier(
    ExtendedCertificate* record, const Anybuf* value);
/// @}

/// Sets the signature to a copy of a BIT STRING TLV node, as `ASN1_WriteBitStringFromDERBytes`
/// does. What the field held before is released. Returns 0, -1 (length octets, memory), -2 or -8.
/// @{
VELKORD_API int32_t ASN1_CertificateSetSignatureValue(Certificate* record, const Anybuf* value);
VELKORD_API int32_t ASN1_CRL_SetCertificateListSignatureValue(CertificateList* record,
                                                              const Anybuf* value);
VELKORD_API int32_t ASN1_PKCS10RequestSetSignature(PKCS10Request* record, const Anybuf* value);
VELKORD_API int32_t ASN1_PKCS6_SetCertificateSignature(ExtendedCertificate* record,
                                                       const Anybuf* value);
/// @}

/// Makes the SEQUENCE TLV node of the three fields. The record does not change. Free with
/// `ASN1_FreeAnybuf`.
/// Returns 0, -1 (memory) or -8 (also a field not set).
/// @{
VELKORD_API int32_t ASN1_CertificateWriteData(const Certificate* record, Anybuf** out);
VELKORD_API int32_t ASN1_CRL_CertificateListWriteData(const CertificateList* record, Anybuf** out);
VELKORD_API int32_t ASN1_PKCS10RequestWriteData(const PKCS10Request* record, Anybuf** out);
VELKORD_API int32_t ASN1_PKCS6_CertificateWriteData(const ExtendedCertificate* record,
                                                    Anybuf** out);
/// @}

/// Decodes DER of exactly `length` bytes into a new record. The first two nodes have their lengths
/// in shortest form. The signature is a copy as it stands, whatever its type; that of a certificate
/// alone is written again as a BIT STRING, its length in shortest form and its unused-bits octet 0,
/// over the content that `ASN1_ReadBitString` gives of an element of its type. Elements behind the
/// third are passed over. Free with the function of the same type.
/// Returns 0, -1 (also fewer than three elements), -2, -7 (it or one of elements 1 and 2 is no
/// SEQUENCE), -7000 (memory) or -8 (also null bytes of length 0).
/// @{
VELKORD_API int32_t ASN1_CertificateDecode(const uint8_t* bytes, uint32_t length,
                                           Certificate** out);
VELKORD_API int32_t ASN1_CRL_CertificateListDecode(const uint8_t* bytes, uint32_t length,
                                                   CertificateList** out);
VELKORD_API int32_t ASN1_PKCS10RequestDecode(const uint8_t* bytes, uint32_t length,
                                             PKCS10Request** out);
VELKORD_API int32_t ASN1_PKCS6_CertificateDecode(const uint8_t* bytes, uint32_t length,
                                                 ExtendedCertificate** out);
/// @}

/// @}

// -------------------------------------------------------------------------------------------------
/// @defgroup inspection Certificate inspection
/// The subject of a decoded certificate, and a value in its extensions.
/// @{
// -------------------------------------------------------------------------------------------------

/// Makes an empty record and also stores it in `out`, which may be null. Free with `X509CertFree`.
/// Returns the record, or null when memory runs out; `out` is then not written.
VELKORD_API X509Cert* X509CertCreate(X509Cert** out);

/// Releases a record and all that its named fields hold.
VELKORD_API void X509CertFree(X509Cert* record);

/// Appends one entry to `subjectEntries` for the first attribute of each relative name in the
/// subject of `tbs`. A UTF8String or PrintableString value comes as it stands, a BMPString as
/// `ASN1_ReadBmpStringToBytes` gives it, and any other type leaves the value null. Malformed names
/// are passed over. The record owns the entries; when memory runs out those that were made stay,
/// and an entry whose OID or value could not be held has a null block of length 0 there. Returns 0,
/// -1 (memory) or -8 (also when `tbs` or its subject is not set).
VELKORD_API int32_t X509CertGetSubject(X509Cert* record);

/// Looks up the extension whose OID is `oidText`, dotted text of `textLength` characters, in a
/// decoded `tbs`. In its value, a SEQUENCE of items, each a SEQUENCE of OID and value, it looks for
/// the item "1.2.156.1.8888.148" and copies the content of that item's value to `value`. Every
/// match is written there, one over the other, and the last counts, so `value` needs room for the
/// longest: `dataLen` of `tbs->extensions` is enough. Malformed parts are passed over.
/// `valueLength` is written only on a match: preset it to 0. Returns 0, also when nothing is found;
/// -1 when `tbs` has no extensions or when `value` or `valueLength` is null; or -8 (null `record`,
/// `oidText` or `tbs`).
VELKORD_API int32_t X509CertGetOIDValue(const X509Cert* record, const char* oidText,
                                        int32_t textLength, uint8_t* value, uint32_t* valueLength);

/// @}

// -------------------------------------------------------------------------------------------------
/// @defgroup list_entries Revocation lists: an entry
/// One revoked certificate.
/// @{
// -------------------------------------------------------------------------------------------------

/// Makes an empty record. Free with `ASN1_CRL_FreeRevokedCertificate`. Returns 0, -7000 (memory) or
/// -8.
VELKORD_API int32_t ASN1_CRL_CreateRevokedCertificate(RevokedCertificate** out);

/// Releases a record and its nodes.
VELKORD_API void ASN1_CRL_FreeRevokedCertificate(RevokedCertificate* record);

/// Sets the serial number to a copy of a TLV node of any type. Each setter of this record releases
/// what the field held before. Returns 0, -1 (memory), -2 (no tag) or -8.
VELKORD_API int32_t ASN1_CRL_SetRevokedCertificateCertificateSerialNumber(
    RevokedCertificate* record, const Anybuf* value);

/// Sets the date from a time TLV node, read and written again in the form that it has. Its
/// `dataType` must be 23 when its first octet is 0x17 (UTCTime), and 24 otherwise.
/// Returns 0, -1 (length octets), -2, -5, -7 (the other form), -7000 (memory, or see
/// `ASN1_ReadUtcTime`) or -8.
VELKORD_API int32_t ASN1_CRL_SetRevokedCertificateRevocationDate(RevokedCertificate* record,
                                                                 const Anybuf* value);

/// Sets the extensions to a copy of a SEQUENCE TLV node, its own length rewritten in shortest form.
/// Returns 0, -1 (length octets, an element that overruns, memory), -2, -7 (no SEQUENCE) or -8.
VELKORD_API int32_t ASN1_CRL_SetRevokedCertificateCrlEntryExtensions(RevokedCertificate* record,
                                                                     const Anybuf* value);

/// Makes the SEQUENCE TLV node of the entry, with extensions when their flag is 1. The record does
/// not change. Free with `ASN1_FreeAnybuf`. Returns 0, -1 (memory) or -8 (also a field that is to
/// be written and not set).
VELKORD_API int32_t ASN1_CRL_RevokedCertificateWriteData(const RevokedCertificate* record,
                                                         Anybuf** out);

/// Decodes the DER of one entry of exactly `length` bytes into a new record. The first element is
/// copied, the date is read and written again as the setter does, and a third element is the
/// extensions, its length in shortest form. Elements behind it are passed over. Free with
/// `ASN1_CRL_FreeRevokedCertificate`.
/// Returns 0, -1 (also fewer than two elements), -2, -5, -7 (it or the extensions are no SEQUENCE,
/// or the date is no time), -7000 (memory, or see `ASN1_ReadUtcTime`) or -8 (also null bytes of
/// length 0).
VELKORD_API int32_t ASN1_CRL_RevokedCertificateDecode(const uint8_t* bytes, uint32_t length,
                                                      RevokedCertificate** out);

/// @}

// -------------------------------------------------------------------------------------------------
/// @defgroup lists Revocation lists: the signed part
/// What is signed of a list.
/// @{
// -------------------------------------------------------------------------------------------------

/// Makes an empty record. Free with `ASN1_CRL_FreeTbsCertList`. Returns 0, -7000 (memory) or -8.
VELKORD_API int32_t ASN1_CRL_CreateTbsCertList(TbsCertList** out);

/// Releases a record and its nodes.
VELKORD_API void ASN1_CRL_FreeTbsCertList(TbsCertList* record);

/// Sets the version number. Only 2 is written, as INTEGER 2. Returns 0 or -8.
VELKORD_API int32_t ASN1_CRL_TbsCertListSetVersion(TbsCertList* record, uint32_t version);

/// Sets a field to a copy of a SEQUENCE TLV node, its own length rewritten in shortest form, and
/// the flag of an optional one to 1. What the field held before is released. Returns 0, -1 (length
/// octets, an element that overruns, memory), -2, -7 (no SEQUENCE) or -8.
/// @{
VELKORD_API int32_t ASN1_CRL_TbsCertListSetSignatureAlgorithmIdentifier(TbsCertList* record,
                                                                        const Anybuf* value);
VELKORD_API int32_t ASN1_CRL_TbsCertListSetIssuer(TbsCertList* record, const Anybuf* value);
VELKORD_API int32_t ASN1_CRL_TbsCertListSetRevokedCertificates(TbsCertList* record,
                                                               const Anybuf* value);
VELKORD_API int32_t ASN1_CRL_TbsCertListSetCrlExtensions(TbsCertList* record, const Anybuf* value);
/// @}

/// Sets the time of this list, in seconds, and the form of both times: 1 for UTCTime, any other
/// number for GeneralizedTime. A negative time fails when it is written. Returns 0 or -8.
VELKORD_API int32_t ASN1_CRL_TbsCertListSetThisUpdate(TbsCertList* record, int32_t time,
                                                      uint32_t form);

/// Sets the time of the next list, in seconds, and its flag. Returns 0 or -8.
VELKORD_API int32_t ASN1_CRL_TbsCertListSetNextUpdate(TbsCertList* record, int32_t time);

/// Makes the SEQUENCE TLV node of the record: each optional field when its flag is 1, the
/// extensions under `[0]` EXPLICIT. The record does not change. Free with `ASN1_FreeAnybuf`.
/// Returns 0, -1 (memory), -4 (a negative time), -7000 (the platform refuses a time) or -8 (also a
/// field that is to be written and not set).
VELKORD_API int32_t ASN1_CRL_TbsCertListWriteData(const TbsCertList* record, Anybuf** out);

/// Decodes the DER of one signed part of exactly `length` bytes into a new record. Optional
/// elements are told by their first octet: 0x02 the version; behind thisUpdate, which sets the
/// form, 0x17 or 0x18 nextUpdate, then 0x30 the revoked certificates; whatever stands next is the
/// extensions, of which the content is kept. Elements behind them are passed over. All nodes but
/// the extensions have their lengths in shortest form. A version other than 2, and a nextUpdate in
/// the other form than thisUpdate, are not written again as they were. Free with
/// `ASN1_CRL_FreeTbsCertList`. Returns 0, -1 (also a required element missing), -2, -5, -7 (it, the
/// algorithm or the issuer is no SEQUENCE, or thisUpdate no time), -7000 (memory, or see
/// `ASN1_ReadUtcTime`) or -8 (also null bytes of length 0).
VELKORD_API int32_t ASN1_CRL_TbsCertListDecode(const uint8_t* bytes, uint32_t length,
                                               TbsCertList** out);

/// @}

// -------------------------------------------------------------------------------------------------
/// @defgroup requests PKCS#10: the signed part
/// What is signed of a request.
/// @{
// -------------------------------------------------------------------------------------------------

/// Makes an empty record. Free with `ASN1_FreePKCS10`. Returns 0, -7000 (memory) or -8.
VELKORD_API int32_t ASN1_CreatePKCS10(PKCS10** out);

/// Releases a record and its nodes.
VELKORD_API void ASN1_FreePKCS10(PKCS10* record);

/// Sets the version, 0 for version 1. Each setter of this record releases what the field held
/// before. Returns 0, -1 (memory) or -8.
VELKORD_API int32_t ASN1_PKCS10SetVersion(PKCS10* record, uint32_t version);

/// Sets a field to a copy of a SEQUENCE TLV node, its own length rewritten in shortest form.
/// Returns 0, -1 (length octets, an element that overruns, memory), -2, -7 (no SEQUENCE) or -8.
/// @{
VELKORD_API int32_t ASN1_PKCS10SetSubject(PKCS10* record, const Anybuf* value);
VELKORD_API int32_t ASN1_PKCS10SetSubjectPublicKeyInfo(PKCS10* record, const Anybuf* value);
/// @}

/// Sets the attributes from a SET TLV node, under `[0]` IMPLICIT, as `ASN1_WriteImplicit` does.
/// Returns 0, -1 (length octets, memory), -2 or -8.
VELKORD_API int32_t ASN1_PKCS10SetAttributes(PKCS10* record, const Anybuf* value);

/// Makes the SEQUENCE TLV node of the four fields, all of them required. The record does not
/// change. Free with `ASN1_FreeAnybuf`.
/// Returns 0, -1 (memory) or -8 (also a field not set).
VELKORD_API int32_t ASN1_PKCS10WriteData(const PKCS10* record, Anybuf** out);

/// Decodes the DER of one signed part of exactly `length` bytes into a new record. The first
/// element is read as a number and written again; the other nodes have their lengths in shortest
/// form. The attributes may be missing, and such a record can be written only after they are set;
/// they come back constructed under the tag number of their element, or under the one octet BF for
/// a tag of several octets. An element that is not a constructed context or private one loses its
/// first content octet when its tag is odd. Elements behind them are passed over. Free with
/// `ASN1_FreePKCS10`.
/// Returns 0, -1 (also fewer than three elements), -2, -7 (it or one of elements 2 and 3 is no
/// SEQUENCE), -7000 (memory) or -8 (also null bytes of length 0).
VELKORD_API int32_t ASN1_PKCS10Decode(const uint8_t* bytes, uint32_t length, PKCS10** out);

/// @}

// -------------------------------------------------------------------------------------------------
/// @defgroup extended_certificates PKCS#6: the signed part
/// What is signed of an extended certificate.
/// @{
// -------------------------------------------------------------------------------------------------

/// Makes an empty record. Free with `ASN1_PKCS6_FreeExtendedCertificateInfo`. Returns 0, -7000
/// (memory) or -8.
VELKORD_API int32_t ASN1_PKCS6_CreateExtendedCertificateInfo(ExtendedCertificateInfo** out);

/// Releases a record and its nodes.
VELKORD_API void ASN1_PKCS6_FreeExtendedCertificateInfo(ExtendedCertificateInfo* record);

/// Sets the version number. Returns 0 or -8.
VELKORD_API int32_t ASN1_PKCS6_SetCertificateInfoVersion(ExtendedCertificateInfo* record,
                                                         uint32_t version);

/// Sets a field to a copy of a SEQUENCE or a SET TLV node, its own length rewritten in shortest
/// form. What the field held before is released. Returns 0, -1 (length octets, an element that
/// overruns, memory), -2, -7 (the certificate is no SEQUENCE, the attributes are no SET) or -8.
/// @{
VELKORD_API int32_t ASN1_PKCS6_SetCertificateInfoX509(ExtendedCertificateInfo* record,
                                                      const Anybuf* value);
VELKORD_API int32_t ASN1_PKCS6_SetCertificateInfoAttributes(ExtendedCertificateInfo* record,
                                                            const Anybuf* value);
/// @}

/// Makes the SEQUENCE TLV node of the three fields. The record does not change. Free with
/// `ASN1_FreeAnybuf`.
/// Returns 0, -1 (memory) or -8 (also a field not set).
VELKORD_API int32_t ASN1_PKCS6_CertificateInfoWriteData(const ExtendedCertificateInfo* record,
                                                        Anybuf** out);

/// Decodes the DER of one signed part of exactly `length` bytes into a new record. The version is
/// the low 32 bits of a first element of any type; the nodes have their lengths in shortest form.
/// Elements behind the third are passed over. Free with `ASN1_PKCS6_FreeExtendedCertificateInfo`.
/// Returns 0, -1 (also fewer than three elements), -2, -7 (it or the certificate is no SEQUENCE,
/// the attributes are no SET), -7000 (memory) or -8 (also null bytes of length 0).
VELKORD_API int32_t ASN1_PKCS6_CertificateInfoDecode(const uint8_t* bytes, uint32_t length,
                                                     ExtendedCertificateInfo** out);

/// @}

// -------------------------------------------------------------------------------------------------
/// @defgroup messages PKCS#7: the ContentInfo around a message
/// A content behind the identifier of its type.
/// @{
// -------------------------------------------------------------------------------------------------

/// Makes an empty record. Free with `ASN1_PKCS7_FreeContext`. Returns 0, -7000 (memory) or -8.
VELKORD_API int32_t ASN1_PKCS7_CreateContext(PKCS7Context** out);

/// Releases a record and its nodes.
VELKORD_API void ASN1_PKCS7_FreeContext(PKCS7Context* record);

/// Sets the content type to a copy of a TLV node of any type. What the field held before is
/// released. Returns 0, -1 (memory), -2 (no tag) or -8.
VELKORD_API int32_t ASN1_PKCS7_SetContentType(PKCS7Context* record, const Anybuf* value);

/// Sets the content from a node of any bytes, under `[0]` EXPLICIT. What the field held before is
/// released. Returns 0, -1 (memory) or -8.
VELKORD_API int32_t ASN1_PKCS7_SetContent(PKCS7Context* record, const Anybuf* value);

/// Makes the SEQUENCE TLV node of the content type and of the content, if that is set. The record
/// does not change. Free with `ASN1_FreeAnybuf`. Returns 0, -1 (memory) or -8 (also without a
/// content type).
VELKORD_API int32_t ASN1_PKCS7_WriteData(const PKCS7Context* record, Anybuf** out);

/// Decodes the DER of one ContentInfo of exactly `length` bytes into a new record. The content may
/// be missing; its tag is not tested and comes off, so that a decoded record is not written as it
/// was read. Elements behind it are passed over. Free with `ASN1_PKCS7_FreeContext`.
/// Returns 0, -1 (also an empty SEQUENCE), -2, -7 (no SEQUENCE), -7000 (memory) or -8 (also null
/// bytes of length 0).
VELKORD_API int32_t ASN1_PKCS7_Decode(const uint8_t* bytes, uint32_t length, PKCS7Context** out);

/// @}

// -------------------------------------------------------------------------------------------------
/// @defgroup rsa_keys RSA keys
/// A null argument gives -1. Nothing is allocated unless record and DER overlap; then a lack of
/// memory gives -1 and changes nothing.
/// @{
// -------------------------------------------------------------------------------------------------

/// Writes the DER of a key to `der` and its size to `derLen`: RSAPublicKey, at most 526 bytes, or
/// RSAPrivateKey of PKCS#1, at most 1450. A null `der` gives the size alone. With one of the five
/// last numbers of a private key 0, the result is 0 and **nothing is written**: preset `derLen` to
/// 0. Returns 0, or -1 when any other number is 0.
/// @{
VELKORD_API int32_t ZantEncodePublicKey(const ZantPublicKey* key, uint8_t* der, uint32_t* derLen);
VELKORD_API int32_t ZantEncodePrivateKey(const ZantPrivateKey* key, uint8_t* der, uint32_t* derLen);
/// @}

/// Fills a record from DER of exactly `derLen` bytes. A private key may stand in a PrivateKeyInfo
/// of PKCS#8, told by a second element with 13 bytes of content. No tag but that of the SEQUENCE
/// around the numbers, and around the PrivateKeyInfo, is tested. Numbers of more than 2048 bits,
/// and primes of more than 1024, do not fit the record: `ASN1_GetRSAPublicKey` reads any. A failure
/// while reading leaves the numbers read so far and zero bytes elsewhere; a null argument and a
/// `derLen` below 1 leave the record alone. A record that was decoded is not ready to be encoded
/// unless every number fills its field. Returns 0, -1 (also a missing element, a number too long
/// for its field), -2 or -7 (no SEQUENCE).
/// @{
VELKORD_API int32_t ZantDecodePublicKey(ZantPublicKey* key, const uint8_t* der, int32_t derLen);
VELKORD_API int32_t ZantDecodePrivateKey(ZantPrivateKey* key, const uint8_t* der, int32_t derLen);
/// @}

/// @}

// -------------------------------------------------------------------------------------------------
/// @defgroup ec_keys Keys of elliptic curves
/// Nothing is allocated.
/// @{
// -------------------------------------------------------------------------------------------------

/// Writes the 312 bytes of a SubjectPublicKeyInfo to `der` and 312 to `derLen`. It states one
/// constant curve of 256 bits by its parameters; `bits` is not read. Returns 0 or -1 (a null
/// argument).
VELKORD_API int32_t ASN1_EccPubkey2Der(const EccPubkey* key, uint8_t* der, uint32_t* derLen);

/// Fills a record from the DER of a SubjectPublicKeyInfo of exactly `derLen` bytes, whatever its
/// algorithm: the point's second to 65th byte and `bits`, 256. Its first byte is not tested, and of
/// a longer point, that of a larger curve, the rest is passed over.
/// Returns 0, or -1, the record then untouched: the DER is no SEQUENCE or does not add up, an
/// element is missing, the point is shorter than 65 bytes, an argument is null.
VELKORD_API int32_t ASN1_Der2EccPubkey(const uint8_t* der, uint32_t derLen, EccPubkey* key);

/// Fills a record from the DER of an ECPrivateKey in a PrivateKeyInfo of PKCS#8, of exactly
/// `derLen` bytes, whatever its algorithm; `bits` becomes 256. A value shorter than 32 bytes stands
/// at the start of `d`, and the bytes behind it stay. Returns 0, or -1, the record then untouched:
/// the DER, or that inside it, is no SEQUENCE or does not add up, an element is missing, the value
/// is longer than 32 bytes, an argument is null.
VELKORD_API int32_t ASN1_Der2EccPrikey(const uint8_t* der, uint32_t derLen, EccPrikey* key);

/// @}

// -------------------------------------------------------------------------------------------------
/// @defgroup sm2 SM2
/// The result is always 0. What cannot be done, an argument being null or the DER malformed, leaves
/// all out arguments alone: preset the lengths to 0. Nothing is allocated unless buffers overlap;
/// a lack of memory then counts as what cannot be done.
/// @{
// -------------------------------------------------------------------------------------------------

/// Writes the SEQUENCE of two positive INTEGERs to `der`, which needs room for both numbers and 20
/// bytes more. Leading zero bytes stay.
VELKORD_API int32_t ASN1_SM2_SM2SignatureEncode(const uint8_t* r, uint32_t rLen, const uint8_t* s,
                                                uint32_t sLen, uint8_t* der, uint32_t* derLen);

/// Gives the two numbers of a signature, each without the zero byte that keeps it positive. `r` and
/// `s` need `derLen` bytes each.
VELKORD_API int32_t ASN1_SM2_SM2SignatureDecode(uint8_t* r, uint32_t* rLen, uint8_t* s,
                                                uint32_t* sLen, const uint8_t* der,
                                                uint32_t derLen);

/// Writes a private value as an INTEGER to `der`, which needs room for the value and 7 bytes more.
/// Leading zero bytes stay.
VELKORD_API int32_t ASN1_SM2_PrikeyEncode(const uint8_t* value, uint32_t valueLen, uint8_t* der,
                                          uint32_t* derLen);

/// Gives a private value without the zero byte that keeps it positive. `value` needs `derLen`
/// bytes.
VELKORD_API int32_t ASN1_SM2_PrikeyDecode(uint8_t* value, uint32_t* valueLen, const uint8_t* der,
                                          uint32_t derLen);

/// Writes a public point as a BIT STRING to `der`: 0x04, X and Y, together at most 256 bytes, and 5
/// bytes at most in front. Its unused-bits octet comes from its last byte as in
/// `ASN1_CreateAnybuf`.
VELKORD_API int32_t ASN1_SM2_PubkeyEncode(const uint8_t* x, uint32_t xLen, const uint8_t* y,
                                          uint32_t yLen, uint8_t* der, uint32_t* derLen);

/// Gives the two halves, of equal length, of what follows the first byte of a public point; an odd
/// last byte is left out. `x` and `y` need half of `derLen` each, at most 127 bytes.
VELKORD_API int32_t ASN1_SM2_PubkeyDecode(uint8_t* x, uint32_t* xLen, uint8_t* y, uint32_t* yLen,
                                          const uint8_t* der, uint32_t derLen);

/// @}

// -------------------------------------------------------------------------------------------------
/// @defgroup base64 Base64 and PEM
/// No argument may be null, but for input of length 0.
/// @{
// -------------------------------------------------------------------------------------------------

/// Writes Base64 text and a terminating zero to `out`, without line breaks. `out` needs 4 bytes for
/// each 3 bytes of input or part of them, and 1 more. Returns 0.
VELKORD_API int32_t base64_encode(const uint8_t* in, uint32_t length, char* out);

/// Decodes zero-terminated Base64 text in groups of four characters, up to a group with "=". One to
/// three characters at the end are ignored. A character outside the alphabet keeps the value of the
/// same place in the group before. `out` needs 3 bytes for each 4 characters. Returns 0.
VELKORD_API int32_t base64_decode(const char* text, uint8_t* out, uint32_t* outLength);

/// Writes DER bytes as PEM text: `header`, Base64 in lines of 64 characters, `footer`, each line
/// with CR LF, and a terminating zero that `outLength` does not count. `header` and `footer` are
/// whole zero-terminated lines without their line end; an empty one is left out. With B the size of
/// the Base64 text, `out` needs B, 2 for each 64 characters of B or part of them, 2 and the text
/// for each of header and footer that is not empty, and 1 more. No input gives `outLength` 0 and
/// nothing written. Returns 0, or -1 for a `length` of 2^30 or more, and when header and footer
/// make the text longer than a `uint32_t` counts.
VELKORD_API int32_t DER2PEM_data_format(const uint8_t* der, uint32_t length, char* out,
                                        uint32_t* outLength, const char* header,
                                        const char* footer);

/// Decodes the first PEM block of a text of `length` characters, or bare Base64 when the text has
/// no "-". Characters outside the alphabet are skipped. `out` needs 3 bytes for each 4 Base64
/// characters of the body.
/// Returns 0, or -1 when a marker or the end of the body is missing.
VELKORD_API int32_t PEM2DER_data_format(const char* pem, uint32_t length, uint8_t* out,
                                        uint32_t* outLength);

/// @}

// -------------------------------------------------------------------------------------------------
/// @defgroup character_sets Character sets
/// A GB code is the first byte of a GB2312 character in bits 8 to 15 and the second in bits 0 to 7.
/// UTF-8 is the form of up to six bytes, for code points of up to 31 bits. No argument may be null
/// unless it says so, and no function adds a terminating zero.
/// @{
// -------------------------------------------------------------------------------------------------

/// Writes the UTF-8 form of a code point to `out`, which has room for `outSize` bytes. With a null
/// `out` nothing is written. Returns the number of bytes of the form, or -1 when the room is too
/// small.
VELKORD_API int32_t uniToUTF8(uint8_t* out, int32_t outSize, uint32_t code);

/// Reads one UTF-8 form from at most `inLen` bytes; `code` is written on success only. Returns the
/// number of bytes read; 0 when `inLen` is below 1; -1 when the form is cut off; -2 when the first
/// byte opens none; -3 when a following byte is no continuation; -4 when the form is longer than it
/// need be.
VELKORD_API int32_t utf8ToUni(const uint8_t* in, int32_t inLen, uint32_t* code);

/// Returns the code point of a GB code. A code that is not assigned gives the code point of a row
/// near it.
VELKORD_API uint32_t ctouni(uint32_t gb);

/// Returns the GB code of a code point, or 0 when it has none.
VELKORD_API uint32_t unitoc(uint32_t code);

/// Returns the GB code of `n` bytes, at most 2; missing bytes count as 0.
VELKORD_API uint32_t zhToWc(const uint8_t* in, uint32_t n);

/// Writes the two bytes of a GB code to `out` and 2 to `outLen`.
VELKORD_API void wcToZh(uint8_t* out, uint32_t* outLen, int32_t code);

/// Turns GB2312 text, two bytes a character, into UTF-8; an odd last byte is ignored. `out` needs 3
/// bytes for each pair.
VELKORD_API void zhsToUtf8s(const uint8_t* in, int32_t inLen, uint8_t* out, uint32_t* outLen);

/// Turns UTF-8 text into GB2312. ASCII passes through; a character that GB2312 lacks, and malformed
/// input, leaves its first byte. `in` may be null, which gives `outLen` 0. `out` needs `inLen`
/// bytes.
VELKORD_API void utf8sToZhs(const uint8_t* in, uint32_t inLen, uint8_t* out, uint32_t* outLen);

/// @}

#ifdef __cplusplus
}  // extern "C"
#endif

#endif  // VELKORD_H_
