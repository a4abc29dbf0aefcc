"""Made by scripts/make-bindings from include/Velkord.h, which tells what each function takes and
gives, and who releases it.
"""
from ctypes import POINTER as P
from ctypes import Structure, c_char, c_char_p, c_int32, c_size_t, c_uint32, c_uint8

# Success.
VELKORD_OK = 0
# No memory, a length too long, a child that does not fit.
VELKORD_FAILURE = -1
# Tag, length and content are not the bytes given.
VELKORD_SIZE_MISMATCH = -2
# A time below 0.
VELKORD_NEGATIVE_TIME = -4
# A malformed time text.
VELKORD_BAD_TIME = -5
# Another type than the one that is needed.
VELKORD_WRONG_TAG = -7
# A null argument, or a required field that was never set.
VELKORD_NULL_ARGUMENT = -8
# No memory for a record, or a time outside 1970 to 2038.
VELKORD_OUT_OF_MEMORY = -7000


# The value node.
class Anybuf(Structure):
    pass


Anybuf._fields_ = [
    ("data", P(c_uint8)),
    ("dataLen", c_uint32),
    ("unusedBits", c_uint32),
    ("memKind", c_uint32),
    ("dataType", c_uint32),
    ("next", P(Anybuf)),
    ("prev", P(Anybuf)),
]


# An object identifier: a number of the caller's, then the fields of a content node.
class ObjectID(Structure):
    _fields_ = [
        ("id", c_int32),
        ("data", P(c_uint8)),
        ("dataLen", c_uint32),
        ("unusedBits", c_uint32),
        ("memKind", c_uint32),
        ("dataType", c_uint32),
        ("next", P(Anybuf)),
        ("prev", P(Anybuf)),
    ]


# One attribute of a name.
class AttributeTypeAndValue(Structure):
    _fields_ = [
        ("type", P(Anybuf)),
        ("value", P(Anybuf)),
    ]


# The signed part of a certificate.
class TBSCertificate(Structure):
    _fields_ = [
        ("version", c_uint32),
        ("hasIssuerUniqueID", c_uint32),
        ("hasSubjectUniqueID", c_uint32),
        ("hasExtensions", c_uint32),
        ("versionNode", P(Anybuf)),
        ("serialNumber", P(Anybuf)),
        ("signature", P(Anybuf)),
        ("issuer", P(Anybuf)),
        ("validity", P(Anybuf)),
        ("subject", P(Anybuf)),
        ("subjectPublicKeyInfo", P(Anybuf)),
        ("issuerUniqueID", P(Anybuf)),
        ("subjectUniqueID", P(Anybuf)),
        ("extensions", P(Anybuf)),
    ]


# A signed certificate.
class Certificate(Structure):
    _fields_ = [
        ("tbsCertificate", P(Anybuf)),
        ("signatureAlgorithm", P(Anybuf)),
        ("signatureValue", P(Anybuf)),
    ]


# One entry of a revocation list.
class RevokedCertificate(Structure):
    _fields_ = [
        ("hasCrlEntryExtensions", c_uint32),
        ("certificateSerialNumber", P(Anybuf)),
        ("revocationDate", P(Anybuf)),
        ("crlEntryExtensions", P(Anybuf)),
    ]


# The signed part of a revocation list.
class TbsCertList(Structure):
    _fields_ = [
        ("hasRevokedCertificates", c_uint32),
        ("hasCrlExtensions", c_uint32),
        ("hasNextUpdate", c_uint32),
        ("timeForm", c_uint32),
        ("version", c_uint32),
        ("signature", P(Anybuf)),
        ("issuer", P(Anybuf)),
        ("thisUpdate", c_int32),
        ("nextUpdate", c_int32),
        ("revokedCertificates", P(Anybuf)),
        ("crlExtensions", P(Anybuf)),
    ]


# A signed revocation list.
class CertificateList(Structure):
    _fields_ = [
        ("tbsCertList", P(Anybuf)),
        ("signatureAlgorithm", P(Anybuf)),
        ("signatureValue", P(Anybuf)),
    ]


# The signed part of a PKCS#10 certification request.
class PKCS10(Structure):
    _fields_ = [
        ("version", P(Anybuf)),
        ("subject", P(Anybuf)),
        ("subjectPublicKeyInfo", P(Anybuf)),
        ("attributes", P(Anybuf)),
    ]


# A signed PKCS#10 certification request.
class PKCS10Request(Structure):
    _fields_ = [
        ("certificationRequestInfo", P(Anybuf)),
        ("signatureAlgorithm", P(Anybuf)),
        ("signature", P(Anybuf)),
    ]


# The signed part of a PKCS#6 extended certificate.
class ExtendedCertificateInfo(Structure):
    _fields_ = [
        ("version", c_uint32),
        ("certificate", P(Anybuf)),
        ("attributes", P(Anybuf)),
    ]


# A signed PKCS#6 extended certificate.
class ExtendedCertificate(Structure):
    _fields_ = [
        ("extendedCertificateInfo", P(Anybuf)),
        ("signatureAlgorithm", P(Anybuf)),
        ("signature", P(Anybuf)),
    ]


# A PKCS#7 ContentInfo.
class PKCS7Context(Structure):
    _fields_ = [
        ("contentType", P(Anybuf)),
        ("content", P(Anybuf)),
    ]


# An RSA public key: big-endian numbers.
class ZantPublicKey(Structure):
    _fields_ = [
        ("modulus", c_uint8 * 256),
        ("publicExponent", c_uint8 * 256),
    ]


# An RSA private key, its numbers placed as in `ZantPublicKey`.
class ZantPrivateKey(Structure):
    _fields_ = [
        ("modulus", c_uint8 * 256),
        ("publicExponent", c_uint8 * 256),
        ("privateExponent", c_uint8 * 256),
        ("prime1", c_uint8 * 128),
        ("prime2", c_uint8 * 128),
        ("exponent1", c_uint8 * 128),
        ("exponent2", c_uint8 * 128),
        ("coefficient", c_uint8 * 128),
    ]


# The public key of an elliptic curve of 256 bits: the coordinates big-endian at full width.
class EccPubkey(Structure):
    _fields_ = [
        ("bits", c_uint32),
        ("x", c_uint8 * 32),
        ("y", c_uint8 * 32),
    ]


# The private key of an elliptic curve of 256 bits.
class EccPrikey(Structure):
    _fields_ = [
        ("bits", c_uint32),
        ("d", c_uint8 * 32),
    ]


# One subject attribute of an inspected certificate.
class CertEntry(Structure):
    pass


CertEntry._fields_ = [
    ("oid", P(c_uint8)),
    ("oidLen", c_uint32),
    ("value", P(c_uint8)),
    ("valueLen", c_uint32),
    ("next", P(CertEntry)),
]


# A list entry of the caller's own, released with the record that holds it.
class CertWideEntry(Structure):
    pass


CertWideEntry._fields_ = [
    ("block1", P(c_uint8)),
    ("word2", c_size_t),
    ("block3", P(c_uint8)),
    ("word4", c_size_t),
    ("word5", c_size_t),
    ("next", P(CertWideEntry)),
]


# A caller's view of a decoded certificate: 23 words, each as wide as a pointer.
class X509Cert(Structure):
    _fields_ = [
        ("word1", c_size_t),
        ("word2", c_size_t),
        ("word3", c_size_t),
        ("block1", P(c_uint8)),
        ("word5", c_size_t),
        ("word6", c_size_t),
        ("block2", P(c_uint8)),
        ("word8", c_size_t),
        ("tbs", P(TBSCertificate)),
        ("word10", c_size_t),
        ("word11", c_size_t),
        ("word12", c_size_t),
        ("block3", P(c_uint8)),
        ("word14", c_size_t),
        ("entriesA", P(CertEntry)),
        ("subjectEntries", P(CertEntry)),
        ("word17", c_size_t),
        ("word18", c_size_t),
        ("block4", P(c_uint8)),
        ("word20", c_size_t),
        ("block5", P(c_uint8)),
        ("word22", c_size_t),
        ("entriesB", P(CertWideEntry)),
    ]


def _of(result, /, **arguments):
    return result, arguments


# The types of the result and of each argument.
FUNCTIONS = {
    # ==== Value nodes
    # Makes a content node with a copy of `length` bytes.
    "ASN1_CreateAnybuf": _of(c_int32, bytes=c_char_p, length=c_uint32, type=c_uint8,
        out=P(P(Anybuf))),
    # Makes a node of DER bytes, unchanged.
    "ASN1_WriteExplicitFromDERData": _of(c_int32, bytes=c_char_p, length=c_uint32,
        out=P(P(Anybuf))),
    # Releases `node` and every node after it, so it is for the head of a chain only.
    "ASN1_FreeAnybuf": _of(None, node=P(Anybuf)),
    # ==== Byte and character strings, ENUMERATED, BOOLEAN, NULL. Writing differs by the tag alone;
    # ==== reading is the same for all. CharString is PrintableString.
    # Makes an element over a content node of any type.
    "ASN1_WriteOctetString": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_WriteBitString": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_WriteCharString": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_WriteUTF8String": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_WriteBmpString": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_WriteIa5String": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_WriteEnumerated": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_WritePrintableString": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
    # Makes an element over content bytes.
    "ASN1_WriteOctetStringFromBytes": _of(c_int32, bytes=c_char_p, length=c_uint32,
        out=P(P(Anybuf))),
    "ASN1_WriteBitStringFromBytes": _of(c_int32, bytes=c_char_p, length=c_uint32, out=P(P(Anybuf))),
    "ASN1_WriteCharStringFromBytes": _of(c_int32, bytes=c_char_p, length=c_uint32,
        out=P(P(Anybuf))),
    "ASN1_WriteUTF8StringFromBytes": _of(c_int32, bytes=c_char_p, length=c_uint32,
        out=P(P(Anybuf))),
    "ASN1_WriteBmpStringFromBytes": _of(c_int32, bytes=c_char_p, length=c_uint32, out=P(P(Anybuf))),
    "ASN1_WriteIa5StringFromBytes": _of(c_int32, bytes=c_char_p, length=c_uint32, out=P(P(Anybuf))),
    # Makes a PrintableString over content bytes when `selector` is not 0, and a BMPString when it
    # is.
    "ASN1_WritePrintableStringFromBytes": _of(c_int32, selector=c_int32, bytes=c_char_p,
        length=c_uint32, out=P(P(Anybuf))),
    # Other names of `ASN1_WriteExplicitFromDERData`; none tests the type.
    "ASN1_WriteOctetStringFromDERBytes": _of(c_int32, bytes=c_char_p, length=c_uint32,
        out=P(P(Anybuf))),
    "ASN1_WriteCharStringFromDERBytes": _of(c_int32, bytes=c_char_p, length=c_uint32,
        out=P(P(Anybuf))),
    "ASN1_WriteUTF8StringFromDERBytes": _of(c_int32, bytes=c_char_p, length=c_uint32,
        out=P(P(Anybuf))),
    "ASN1_WriteBmpStringFromDERBytes": _of(c_int32, bytes=c_char_p, length=c_uint32,
        out=P(P(Anybuf))),
    "ASN1_WriteIa5StringFromDERBytes": _of(c_int32, bytes=c_char_p, length=c_uint32,
        out=P(P(Anybuf))),
    "ASN1_WritePrintableStringFromDERBytes": _of(c_int32, bytes=c_char_p, length=c_uint32,
        out=P(P(Anybuf))),
    # Reads the DER bytes of a BIT STRING into a node, unchanged; `unusedBits` is the octet after
    # the header.
    "ASN1_WriteBitStringFromDERBytes": _of(c_int32, bytes=c_char_p, length=c_uint32,
        out=P(P(Anybuf))),
    # Reads an element of any type into a content node; `dataType` is the tag that was read.
    "ASN1_ReadBitString": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_ReadBmpString": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_ReadCharString": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_ReadEnumerated": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_ReadIa5String": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_ReadOctetString": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_ReadPrintableString": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_ReadUTF8String": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
    # Reads the same content into `out` and its size into `outLength`.
    "ASN1_ReadCharStringToBytes": _of(c_int32, source=P(Anybuf), out=P(c_uint8),
        outLength=P(c_uint32)),
    "ASN1_ReadIa5StringToBytes": _of(c_int32, source=P(Anybuf), out=P(c_uint8),
        outLength=P(c_uint32)),
    "ASN1_ReadOctetStringToBytes": _of(c_int32, source=P(Anybuf), out=P(c_uint8),
        outLength=P(c_uint32)),
    "ASN1_ReadPrintableStringToBytes": _of(c_int32, source=P(Anybuf), out=P(c_uint8),
        outLength=P(c_uint32)),
    "ASN1_ReadUTF8StringToBytes": _of(c_int32, source=P(Anybuf), out=P(c_uint8),
        outLength=P(c_uint32)),
    # Reads the same of BMP text without the high bytes that are zero and without an odd last byte.
    "ASN1_ReadBmpStringToBytes": _of(c_int32, source=P(Anybuf), out=P(c_uint8),
        outLength=P(c_uint32)),
    # Makes a BOOLEAN with the byte at `value` unchanged.
    "ASN1_WriteBoolean": _of(c_int32, value=c_char_p, out=P(P(Anybuf))),
    # Reads the first content octet of an element of any type, of a BIT STRING its unused-bits
    # octet.
    "ASN1_ReadBoolean": _of(c_int32, source=P(Anybuf), value=P(c_uint8)),
    # Makes a NULL.
    "ASN1_WriteNull": _of(c_int32, out=P(P(Anybuf))),
    # ==== INTEGER. Numbers are unsigned; those of any size are big-endian bytes.
    # Makes the content octets of a number, 1 to 5 of them, and their count in a cell of its own.
    "Asn1LowIntToChar": _of(c_int32, value=c_uint32, outBytes=P(P(c_uint8)),
        outLength=P(P(c_uint32))),
    # Makes the INTEGER of a number.
    "ASN1_WriteInteger": _of(c_int32, value=c_uint32, out=P(P(Anybuf))),
    # Reads the low 32 bits of the number in an element of any type.
    "ASN1_ReadInteger": _of(c_int32, source=P(Anybuf), value=P(c_uint32)),
    # Makes an INTEGER over a content node of any type or over bytes: a zero octet goes in front of
    # a first byte of 0x80 or more; leading zeros stay.
    "ASN1_WriteIntegerArray": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_WriteIntegerArrayFromBytes": _of(c_int32, bytes=c_char_p, length=c_uint32,
        out=P(P(Anybuf))),
    # Another name of `ASN1_WriteExplicitFromDERData`.
    "ASN1_WriteIntegerArrayFromDERBytes": _of(c_int32, bytes=c_char_p, length=c_uint32,
        out=P(P(Anybuf))),
    # Another name of `ASN1_ReadBitString`.
    "ASN1_ReadIntegerArray": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
    # Another name of `ASN1_ReadOctetStringToBytes`.
    "ASN1_ReadIntegerArrayToBytes": _of(c_int32, source=P(Anybuf), out=P(c_uint8),
        outLength=P(c_uint32)),
    # ==== OBJECT IDENTIFIER
    # Turns dotted text of `textLength` characters into content octets; blanks may stand for points.
    "ASN1_OBJECT_a2d": _of(c_int32, out=P(c_uint8), outLength=P(c_uint32), text=c_char_p,
        textLength=c_int32),
    # Makes an OBJECT IDENTIFIER over content octets; `id` has no effect.
    "ASN1_WriteObjectId": _of(c_int32, record=P(ObjectID), out=P(P(Anybuf))),
    "ASN1_WriteObjectIdFromData": _of(c_int32, id=c_int32, bytes=c_char_p, length=c_uint32,
        out=P(P(Anybuf))),
    # Another name of `ASN1_WriteExplicitFromDERData`.
    "ASN1_WriteObjectIdFromDERBytes": _of(c_int32, bytes=c_char_p, length=c_uint32,
        out=P(P(Anybuf))),
    # Reads the content of an element of any type into a new record.
    "ASN1_ReadObjectId": _of(c_int32, source=P(Anybuf), out=P(P(ObjectID))),
    # Releases a record and its `data`; `next` is not followed.
    "ASN1_FreeObjectID": _of(None, record=P(ObjectID)),
    # Another name of `ASN1_ReadOctetStringToBytes`.
    "ASN1_ReadObjectIdToBytes": _of(c_int32, source=P(Anybuf), out=P(c_uint8),
        outLength=P(c_uint32)),
    # ==== SEQUENCE and SET. Chains are built, joined and split. The order of the elements stays as
    # ==== it is, in a SET too.
    # Makes a chain of one node, a copy of `element`; its `next` is not followed.
    "ASN1_CreateSequence": _of(c_int32, element=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_CreateSet": _of(c_int32, element=P(Anybuf), out=P(P(Anybuf))),
    # Appends a copy of `element` at the end of `chain`, to which it walks.
    "ASN1_AddSequence": _of(None, element=P(Anybuf), chain=P(Anybuf)),
    "ASN1_AddSet": _of(None, element=P(Anybuf), chain=P(Anybuf)),
    # Other names of `ASN1_FreeAnybuf`.
    "ASN1_FreeSequence": _of(None, chain=P(Anybuf)),
    "ASN1_FreeSet": _of(None, chain=P(Anybuf)),
    # Makes one SEQUENCE or SET over the bytes of a chain; a null chain makes an empty element.
    "ASN1_WriteSequence": _of(c_int32, chain=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_WriteSet": _of(c_int32, chain=P(Anybuf), out=P(P(Anybuf))),
    # Opens a SEQUENCE or SET, in a node or in bytes: the chain of its children, null for none.
    "ASN1_ReadSequence": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_ReadSet": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_WriteSequenceFromDERBytes": _of(c_int32, bytes=c_char_p, length=c_uint32,
        out=P(P(Anybuf))),
    "ASN1_WriteSetFromDERData": _of(c_int32, bytes=c_char_p, length=c_uint32, out=P(P(Anybuf))),
    # ==== EXPLICIT and IMPLICIT tags. Of a tag number the low byte counts.
    # Makes an element of tag octet `tagNumber | 0xA0` around a node of either form, or around
    # bytes.
    "ASN1_WriteExplicit": _of(c_int32, source=P(Anybuf), tagNumber=c_uint8, out=P(P(Anybuf))),
    "ASN1_WriteExplicitFromData": _of(c_int32, tagNumber=c_uint32, bytes=c_char_p, length=c_uint32,
        out=P(P(Anybuf))),
    # Reads an element of any type: its content as `ASN1_ReadBitString` does, and its reduced tag,
    # 0xA3 for `[3]`.
    "ASN1_ReadExplicit": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf)), outTag=P(c_uint32)),
    "ASN1_ReadExplicitToBytes": _of(c_int32, source=P(Anybuf), out=P(c_uint8),
        outLength=P(c_uint32), outTag=P(c_uint32)),
    # Reads an element and makes one of the same content under another tag: `tagNumber | 0xA0` for a
    # source of `dataType` 16 or 17, `tagNumber | 0x80` otherwise.
    "ASN1_WriteImplicit": _of(c_int32, source=P(Anybuf), tagNumber=c_uint32, out=P(P(Anybuf))),
    # Reads an element under an IMPLICIT tag.
    "ASN1_ReadImplicit": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf)), outTagNumber=P(c_uint32)),
    # ==== Time. A time is a number of seconds since 1 January 1970. The text of an element is the
    # ==== machine's local time followed by "Z", so it is UTC only where the local zone is UTC. The
    # ==== zone is that of the C library: the one that TZ names at the call, or without TZ the one
    # ==== that it has read; whoever changes that calls `tzset`, on Windows `_tzset`.
    # Makes the element of a time.
    "ASN1_WriteGeneralizedTime": _of(c_int32, time=P(c_int32), out=P(P(Anybuf))),
    "ASN1_WriteUtcTime": _of(c_int32, time=P(c_int32), out=P(P(Anybuf))),
    # Reads the time of an element of that form.
    "ASN1_ReadGeneralizedTime": _of(c_int32, source=P(Anybuf), time=P(c_int32)),
    "ASN1_ReadUtcTime": _of(c_int32, source=P(Anybuf), time=P(c_int32)),
    # ==== Names. A name is a SEQUENCE of relative names, and a relative name a SET of attributes.
    # ==== The value of an attribute is a UTF8String, PrintableString or IA5String; for another type
    # ==== a function that looks at it returns `VELKORD_WRONG_TAG`.
    # Creates a record with copies of two nodes.
    "ASN1_SetAttributeTypeAndValue": _of(c_int32, type=P(Anybuf), value=P(Anybuf),
        out=P(P(AttributeTypeAndValue))),
    # Releases a record.
    "ASN1_FreeAttributeTypeAndValue": _of(None, record=P(AttributeTypeAndValue)),
    # Makes the SEQUENCE of an attribute.
    "ASN1_GetDerAttributeTypeAndValue": _of(c_int32, record=P(AttributeTypeAndValue),
        out=P(P(Anybuf))),
    # Opens the SEQUENCE of an attribute: its OBJECT IDENTIFIER and its value as new nodes.
    "ASN1_DecodeDerAttributeTypeAndValue": _of(c_int32, source=P(Anybuf), outType=P(P(Anybuf)),
        outValue=P(P(Anybuf))),
    # Makes the SET of a relative name with one attribute, from its value and its OID as dotted
    # text; `id` has no effect.
    "ASN1_GetDerRelativeDistinguishedNameOne": _of(c_int32, value=P(Anybuf), id=c_int32,
        oidText=c_char_p, oidTextLength=c_int32, out=P(P(Anybuf))),
    # Opens the SET of a relative name and copies the value and the OID's octets of its first
    # attribute, a UTF8String turned into GB2312 by `utf8sToZhs`.
    "ASN1_DecodeDerRelativeDistinguishedNameOne": _of(c_int32, source=P(Anybuf), value=P(c_uint8),
        valueLength=P(c_uint32), oid=P(c_uint8), oidLength=P(c_uint32)),
    # Other names of `ASN1_CreateSet`: start a chain of relative names or of attributes.
    "ASN1_CreateName": _of(c_int32, element=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_CreateRelativeDistinguishedName": _of(c_int32, element=P(Anybuf), out=P(P(Anybuf))),
    # Other names of `ASN1_AddSet`: the element first, the chain second.
    "ASN1_AddName": _of(None, element=P(Anybuf), chain=P(Anybuf)),
    "ASN1_AddRelativeDistinguishedName": _of(None, element=P(Anybuf), chain=P(Anybuf)),
    # Other names of `ASN1_FreeAnybuf`.
    "ASN1_FreeNames": _of(None, chain=P(Anybuf)),
    "ASN1_FreeRelativeDistinguishedName": _of(None, chain=P(Anybuf)),
    # Another name of `ASN1_WriteSequence`.
    "ASN1_GetDerName": _of(c_int32, chain=P(Anybuf), out=P(P(Anybuf))),
    # Another name of `ASN1_ReadSequence`.
    "ASN1_ReadDerName": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
    # Another name of `ASN1_WriteSet`.
    "ASN1_GetDerRelativeDistinguishedName": _of(c_int32, chain=P(Anybuf), out=P(P(Anybuf))),
    # Another name of `ASN1_ReadSet`.
    "ASN1_ReadRelativeDistinguishedName": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
    # Another name of `ASN1_WriteSetFromDERData`.
    "ASN1_ReadRelativeDistinguishedNameFromByte": _of(c_int32, bytes=c_char_p, length=c_uint32,
        out=P(P(Anybuf))),
    # ==== Validity, algorithms and public keys
    # Makes the SEQUENCE of two times, which are not tested.
    "ASN1_SetValidity": _of(c_int32, notBefore=P(Anybuf), notAfter=P(Anybuf), out=P(P(Anybuf))),
    # Opens a Validity and reads both times, in either form; of more than two the last is notAfter.
    "ASN1_GetValidity": _of(c_int32, source=P(Anybuf), notBefore=P(c_int32), notAfter=P(c_int32)),
    # Another name of `ASN1_FreeAnybuf`.
    "ASN1_FreeValidity": _of(None, chain=P(Anybuf)),
    # Makes an AlgorithmIdentifier of `oid` and one more element: `parameter` when it is not null,
    # else NULL when `mode` is 1, else `alternative`, which must then be there.
    "ASN1_SetAlgorithmIdentifier": _of(c_int32, mode=c_uint32, oid=P(Anybuf), alternative=P(Anybuf),
        parameter=P(Anybuf), out=P(P(Anybuf))),
    # Opens an AlgorithmIdentifier.
    "ASN1_GetAlgorithmIdentifier": _of(c_int32, source=P(Anybuf), outOid=P(P(Anybuf)),
        outSequence=P(P(Anybuf)), outParameterOid=P(P(Anybuf))),
    # Another name of `ASN1_FreeAnybuf`.
    "ASN1_FreeAlgorithmIdentifier": _of(None, chain=P(Anybuf)),
    # Makes a SubjectPublicKeyInfo: a copy of `algorithm`, then a BIT STRING over the bytes of
    # `key`, a node of either form, as `ASN1_WriteBitStringFromBytes` writes it.
    "ASN1_SetSubjectPublicKeyInfo": _of(c_int32, algorithm=P(Anybuf), key=P(Anybuf),
        out=P(P(Anybuf))),
    # Opens a SubjectPublicKeyInfo: both parts as new nodes, the unused-bits octet always 0.
    "ASN1_GetSubjectPublicKeyInfo": _of(c_int32, source=P(Anybuf), outAlgorithm=P(P(Anybuf)),
        outKey=P(P(Anybuf))),
    # Another name of `ASN1_FreeAnybuf`.
    "ASN1_FreeSubjectPublicKeyInfo": _of(None, chain=P(Anybuf)),
    # Another name of `ASN1_SetValidity`: makes the SEQUENCE of two INTEGERs.
    "ASN1_SetRSAPublicKey": _of(c_int32, modulus=P(Anybuf), exponent=P(Anybuf), out=P(P(Anybuf))),
    # Opens the SEQUENCE of an RSA public key: both numbers as new INTEGERs, positive; of more than
    # two elements the last is the exponent.
    "ASN1_GetRSAPublicKey": _of(c_int32, source=P(Anybuf), outModulus=P(P(Anybuf)),
        outExponent=P(P(Anybuf))),
    # Another name of `ASN1_FreeAnybuf`.
    "ASN1_FreeRSAPublicKey": _of(None, chain=P(Anybuf)),
    # ==== Extensions
    # Makes an Extension of an OID, a BOOLEAN, which may be null, and an OCTET STRING; none is
    # tested.
    "ASN1_SetExtension": _of(c_int32, oid=P(Anybuf), critical=P(Anybuf), value=P(Anybuf),
        out=P(P(Anybuf))),
    # Makes an Extension from the OID's content octets and the value's bytes.
    "ASN1_GetExtensionOne": _of(c_int32, id=c_int32, oid=c_char_p, oidLength=c_uint32,
        critical=c_uint32, value=c_char_p, valueLength=c_uint32, out=P(P(Anybuf))),
    # Opens an Extension: OBJECT IDENTIFIER, BOOLEAN and OCTET STRING as new nodes.
    "ASN1_GetExtension": _of(c_int32, source=P(Anybuf), outOid=P(P(Anybuf)),
        outCritical=P(P(Anybuf)), outValue=P(P(Anybuf))),
    # Another name of `ASN1_FreeAnybuf`.
    "ASN1_FreeExtension": _of(None, chain=P(Anybuf)),
    # Another name of `ASN1_CreateSet`: starts a list.
    "ASN1_CreateExtensions": _of(c_int32, element=P(Anybuf), out=P(P(Anybuf))),
    # Another name of `ASN1_AddSet`: the element first, the chain second.
    "ASN1_AddExtensions": _of(None, element=P(Anybuf), chain=P(Anybuf)),
    # Another name of `ASN1_WriteSequence`.
    "ASN1_WriteExtensions": _of(c_int32, chain=P(Anybuf), out=P(P(Anybuf))),
    # Another name of `ASN1_ReadSequence`.
    "ASN1_ReadExtensions": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
    # Another name of `ASN1_FreeAnybuf`.
    "ASN1_FreeExtensions": _of(None, chain=P(Anybuf)),
    # ==== Certificates
    # Creates an empty record.
    "ASN1_CreateTBSCertificate": _of(c_int32, out=P(P(TBSCertificate))),
    "ASN1_CreateCertificate": _of(c_int32, out=P(P(Certificate))),
    # Releases a record.
    "ASN1_FreeTBSCertificate": _of(None, record=P(TBSCertificate)),
    "ASN1_FreeCertificate": _of(None, record=P(Certificate)),
    # Sets the version number, 2 for a version 3 certificate.
    "ASN1_TBSCertificateSetVersion": _of(c_int32, record=P(TBSCertificate), version=c_uint32),
    # Sets the serial number from a big-endian magnitude.
    "ASN1_TBSCertificateSetSerialNumber": _of(c_int32, record=P(TBSCertificate), bytes=c_char_p,
        length=c_uint32),
    # Sets a field from a SEQUENCE.
    "ASN1_TBSCertificateSetSignatureAlg": _of(c_int32, record=P(TBSCertificate), value=P(Anybuf)),
    "ASN1_TBSCertificateSetIssuer": _of(c_int32, record=P(TBSCertificate), value=P(Anybuf)),
    "ASN1_TBSCertificateSetValidity": _of(c_int32, record=P(TBSCertificate), value=P(Anybuf)),
    "ASN1_TBSCertificateSetSubject": _of(c_int32, record=P(TBSCertificate), value=P(Anybuf)),
    "ASN1_TBSCertificateSetSubjectPublicKeyInfo": _of(c_int32, record=P(TBSCertificate),
        value=P(Anybuf)),
    # Sets an optional identifier, a BIT STRING, under `[1]` or `[2]` as `ASN1_WriteImplicit` does.
    "ASN1_TBSCertificateSetIssuerUniqueID": _of(c_int32, record=P(TBSCertificate), value=P(Anybuf)),
    "ASN1_TBSCertificateSetSubjectUniqueID": _of(c_int32, record=P(TBSCertificate),
        value=P(Anybuf)),
    # Sets the extensions under `[3]` EXPLICIT: the bytes of their list, which are not tested.
    "ASN1_TBSCertificateSetExtensions": _of(c_int32, record=P(TBSCertificate), value=P(Anybuf)),
    # Makes the SEQUENCE of a record: seven required fields, then the optional ones.
    "ASN1_TBSCertificateWriteData": _of(c_int32, record=P(TBSCertificate), out=P(P(Anybuf))),
    # Decodes a TBSCertificate of seven elements or more.
    "ASN1_TBSCertificateDecode": _of(c_int32, source=P(Anybuf), out=P(P(TBSCertificate))),
    # Sets the signed part or the algorithm from a SEQUENCE.
    "ASN1_CertificateSetTbsCertificate": _of(c_int32, record=P(Certificate), value=P(Anybuf)),
    "ASN1_CertificateSetSignatureAlgorithm": _of(c_int32, record=P(Certificate), value=P(Anybuf)),
    # Sets the signature from a BIT STRING, as `ASN1_WriteBitStringFromDERBytes` does.
    "ASN1_CertificateSetSignatureValue": _of(c_int32, record=P(Certificate), value=P(Anybuf)),
    # Makes the SEQUENCE of a record, all three fields.
    "ASN1_CertificateWriteData": _of(c_int32, record=P(Certificate), out=P(P(Anybuf))),
    # Decodes a certificate.
    "ASN1_CertificateDecode": _of(c_int32, bytes=c_char_p, length=c_uint32, out=P(P(Certificate))),
    # ==== Certificate inspection. Of the DER that is looked into, malformed parts are skipped.
    # Makes an empty record, and stores it in `out` too unless that is null.
    "X509CertCreate": _of(P(X509Cert), out=P(P(X509Cert))),
    # Releases a record and all that its pointers hold.
    "X509CertFree": _of(None, record=P(X509Cert)),
    # Appends one entry to `subjectEntries` for the first attribute of each relative name in the
    # subject of `tbs`.
    "X509CertGetSubject": _of(c_int32, record=P(X509Cert)),
    # Looks up the extension whose OID is `oidText`, dotted text of `textLength` characters, in a
    # decoded `tbs`.
    "X509CertGetOIDValue": _of(c_int32, record=P(X509Cert), oidText=c_char_p, textLength=c_int32,
        value=P(c_uint8), valueLength=P(c_uint32)),
    # ==== Revocation lists
    # Creates an empty record.
    "ASN1_CRL_CreateRevokedCertificate": _of(c_int32, out=P(P(RevokedCertificate))),
    "ASN1_CRL_CreateTbsCertList": _of(c_int32, out=P(P(TbsCertList))),
    "ASN1_CRL_CreateCertificateList": _of(c_int32, out=P(P(CertificateList))),
    # Releases a record.
    "ASN1_CRL_FreeRevokedCertificate": _of(None, record=P(RevokedCertificate)),
    "ASN1_CRL_FreeTbsCertList": _of(None, record=P(TbsCertList)),
    "ASN1_CRL_FreeCertificateList": _of(None, record=P(CertificateList)),
    # Sets the serial number, of any type, as `ASN1_WriteExplicitFromDERData` does.
    "ASN1_CRL_SetRevokedCertificateCertificateSerialNumber": _of(c_int32,
        record=P(RevokedCertificate), value=P(Anybuf)),
    # Sets the date from a time, read and written again in the form that it has.
    "ASN1_CRL_SetRevokedCertificateRevocationDate": _of(c_int32, record=P(RevokedCertificate),
        value=P(Anybuf)),
    # Sets the extensions from a SEQUENCE.
    "ASN1_CRL_SetRevokedCertificateCrlEntryExtensions": _of(c_int32, record=P(RevokedCertificate),
        value=P(Anybuf)),
    # Makes the SEQUENCE of a record, the extensions being optional.
    "ASN1_CRL_RevokedCertificateWriteData": _of(c_int32, record=P(RevokedCertificate),
        out=P(P(Anybuf))),
    # Decodes an entry.
    "ASN1_CRL_RevokedCertificateDecode": _of(c_int32, bytes=c_char_p, length=c_uint32,
        out=P(P(RevokedCertificate))),
    # Stores the version number.
    "ASN1_CRL_TbsCertListSetVersion": _of(c_int32, record=P(TbsCertList), version=c_uint32),
    # Sets a field from a SEQUENCE.
    "ASN1_CRL_TbsCertListSetSignatureAlgorithmIdentifier": _of(c_int32, record=P(TbsCertList),
        value=P(Anybuf)),
    "ASN1_CRL_TbsCertListSetIssuer": _of(c_int32, record=P(TbsCertList), value=P(Anybuf)),
    "ASN1_CRL_TbsCertListSetRevokedCertificates": _of(c_int32, record=P(TbsCertList),
        value=P(Anybuf)),
    "ASN1_CRL_TbsCertListSetCrlExtensions": _of(c_int32, record=P(TbsCertList), value=P(Anybuf)),
    # Stores the time of this list, in seconds, and the form of both times: 1 for UTCTime, any other
    # number for GeneralizedTime.
    "ASN1_CRL_TbsCertListSetThisUpdate": _of(c_int32, record=P(TbsCertList), time=c_int32,
        form=c_uint32),
    # Stores the time of the next list, in seconds, and sets its flag.
    "ASN1_CRL_TbsCertListSetNextUpdate": _of(c_int32, record=P(TbsCertList), time=c_int32),
    # Makes the SEQUENCE of a record, the extensions under `[0]` EXPLICIT.
    "ASN1_CRL_TbsCertListWriteData": _of(c_int32, record=P(TbsCertList), out=P(P(Anybuf))),
    # Decodes a TbsCertList.
    "ASN1_CRL_TbsCertListDecode": _of(c_int32, bytes=c_char_p, length=c_uint32,
        out=P(P(TbsCertList))),
    # Sets the signed part or the algorithm from a SEQUENCE.
    "ASN1_CRL_SetCertificateListTBSCertList": _of(c_int32, record=P(CertificateList),
        value=P(Anybuf)),
    "ASN1_CRL_SetCertificateListAlgorithmIdentifier": _of(c_int32, record=P(CertificateList),
        value=P(Anybuf)),
    # Sets the signature as `ASN1_CertificateSetSignatureValue` does.
    "ASN1_CRL_SetCertificateListSignatureValue": _of(c_int32, record=P(CertificateList),
        value=P(Anybuf)),
    # Makes the SEQUENCE of a record, all three fields.
    "ASN1_CRL_CertificateListWriteData": _of(c_int32, record=P(CertificateList), out=P(P(Anybuf))),
    # Decodes a revocation list.
    "ASN1_CRL_CertificateListDecode": _of(c_int32, bytes=c_char_p, length=c_uint32,
        out=P(P(CertificateList))),
    # ==== PKCS#10: certification requests
    # Creates an empty record.
    "ASN1_CreatePKCS10": _of(c_int32, out=P(P(PKCS10))),
    "ASN1_CreatePKCS10Request": _of(c_int32, out=P(P(PKCS10Request))),
    # Releases a record.
    "ASN1_FreePKCS10": _of(None, record=P(PKCS10)),
    "ASN1_FreePKCS10Request": _of(None, record=P(PKCS10Request)),
    # Sets the version number, 0 for version 1.
    "ASN1_PKCS10SetVersion": _of(c_int32, record=P(PKCS10), version=c_uint32),
    # Sets a field from a SEQUENCE.
    "ASN1_PKCS10SetSubject": _of(c_int32, record=P(PKCS10), value=P(Anybuf)),
    "ASN1_PKCS10SetSubjectPublicKeyInfo": _of(c_int32, record=P(PKCS10), value=P(Anybuf)),
    # Sets the attributes, a SET, under `[0]` as `ASN1_WriteImplicit` does.
    "ASN1_PKCS10SetAttributes": _of(c_int32, record=P(PKCS10), value=P(Anybuf)),
    # Makes the SEQUENCE of a record, all four fields.
    "ASN1_PKCS10WriteData": _of(c_int32, record=P(PKCS10), out=P(P(Anybuf))),
    # Decodes the signed part of a request.
    "ASN1_PKCS10Decode": _of(c_int32, bytes=c_char_p, length=c_uint32, out=P(P(PKCS10))),
    # Sets the signed part or the algorithm from a SEQUENCE.
    "ASN1_PKCS10RequestSetCertificationRequestInfo": _of(c_int32, record=P(PKCS10Request),
        value=P(Anybuf)),
    "ASN1_PKCS10RequestSetAlgorithmIdentifier": _of(c_int32, record=P(PKCS10Request),
        value=P(Anybuf)),
    # Sets the signature as `ASN1_CertificateSetSignatureValue` does.
    "ASN1_PKCS10RequestSetSignature": _of(c_int32, record=P(PKCS10Request), value=P(Anybuf)),
    # Makes the SEQUENCE of a record, all three fields.
    "ASN1_PKCS10RequestWriteData": _of(c_int32, record=P(PKCS10Request), out=P(P(Anybuf))),
    # Decodes a request as `ASN1_CRL_CertificateListDecode` does a list.
    "ASN1_PKCS10RequestDecode": _of(c_int32, bytes=c_char_p, length=c_uint32,
        out=P(P(PKCS10Request))),
    # ==== PKCS#6: extended certificates
    # Creates an empty record.
    "ASN1_PKCS6_CreateExtendedCertificateInfo": _of(c_int32, out=P(P(ExtendedCertificateInfo))),
    "ASN1_PKCS6_CreateExtendedCertificate": _of(c_int32, out=P(P(ExtendedCertificate))),
    # Releases a record.
    "ASN1_PKCS6_FreeExtendedCertificateInfo": _of(None, record=P(ExtendedCertificateInfo)),
    "ASN1_PKCS6_FreeExtendedCertificate": _of(None, record=P(ExtendedCertificate)),
    # Stores the version number.
    "ASN1_PKCS6_SetCertificateInfoVersion": _of(c_int32, record=P(ExtendedCertificateInfo),
        version=c_uint32),
    # Sets the certificate from a SEQUENCE, or the attributes from a SET.
    "ASN1_PKCS6_SetCertificateInfoX509": _of(c_int32, record=P(ExtendedCertificateInfo),
        value=P(Anybuf)),
    "ASN1_PKCS6_SetCertificateInfoAttributes": _of(c_int32, record=P(ExtendedCertificateInfo),
        value=P(Anybuf)),
    # Makes the SEQUENCE of a record, all three fields.
    "ASN1_PKCS6_CertificateInfoWriteData": _of(c_int32, record=P(ExtendedCertificateInfo),
        out=P(P(Anybuf))),
    # Decodes the signed part.
    "ASN1_PKCS6_CertificateInfoDecode": _of(c_int32, bytes=c_char_p, length=c_uint32,
        out=P(P(ExtendedCertificateInfo))),
    # Sets the signed part or the algorithm from a SEQUENCE.
    "ASN1_PKCS6_SetCertificateCertificateInfo": _of(c_int32, record=P(ExtendedCertificate),
        value=P(Anybuf)),
    "ASN1_PKCS6_SetCertificateSignatureAlgorithmIdentifier": _of(c_int32,
        record=P(ExtendedCertificate), value=P(Anybuf)),
    # Sets the signature as `ASN1_CertificateSetSignatureValue` does.
    "ASN1_PKCS6_SetCertificateSignature": _of(c_int32, record=P(ExtendedCertificate),
        value=P(Anybuf)),
    # Makes the SEQUENCE of a record, all three fields.
    "ASN1_PKCS6_CertificateWriteData": _of(c_int32, record=P(ExtendedCertificate),
        out=P(P(Anybuf))),
    # Decodes an extended certificate as `ASN1_CRL_CertificateListDecode` does a list.
    "ASN1_PKCS6_CertificateDecode": _of(c_int32, bytes=c_char_p, length=c_uint32,
        out=P(P(ExtendedCertificate))),
    # ==== PKCS#7: the ContentInfo of a message
    # Creates an empty record.
    "ASN1_PKCS7_CreateContext": _of(c_int32, out=P(P(PKCS7Context))),
    # Releases a record.
    "ASN1_PKCS7_FreeContext": _of(None, record=P(PKCS7Context)),
    # Sets the content type, of any type, as `ASN1_WriteExplicitFromDERData` does.
    "ASN1_PKCS7_SetContentType": _of(c_int32, record=P(PKCS7Context), value=P(Anybuf)),
    # Sets the content from the bytes of a node of either form, under `[0]` EXPLICIT.
    "ASN1_PKCS7_SetContent": _of(c_int32, record=P(PKCS7Context), value=P(Anybuf)),
    # Makes the SEQUENCE of a record: the content type, and the content if it is set.
    "ASN1_PKCS7_WriteData": _of(c_int32, record=P(PKCS7Context), out=P(P(Anybuf))),
    # Decodes a ContentInfo.
    "ASN1_PKCS7_Decode": _of(c_int32, bytes=c_char_p, length=c_uint32, out=P(P(PKCS7Context))),
    # ==== RSA keys. Keys of at most 2048 bits, which one certificate in three exceeds;
    # ==== `ASN1_SetRSAPublicKey` and `ASN1_GetRSAPublicKey` take public keys of any size.
    # ==== `VELKORD_FAILURE` also stands for a null argument and, when record and DER overlap, for a
    # ==== lack of memory; then nothing has changed.
    # Writes the DER of a key to `der` and its size to `derLen`: RSAPublicKey, at most 526 bytes, or
    # RSAPrivateKey of PKCS#1, at most 1450.
    "ZantEncodePublicKey": _of(c_int32, key=P(ZantPublicKey), der=P(c_uint8), derLen=P(c_uint32)),
    "ZantEncodePrivateKey": _of(c_int32, key=P(ZantPrivateKey), der=P(c_uint8), derLen=P(c_uint32)),
    # Fills a record from DER of exactly `derLen` bytes.
    "ZantDecodePublicKey": _of(c_int32, key=P(ZantPublicKey), der=c_char_p, derLen=c_int32),
    "ZantDecodePrivateKey": _of(c_int32, key=P(ZantPrivateKey), der=c_char_p, derLen=c_int32),
    # ==== Keys of elliptic curves. Keys of 256 bits. Returns `VELKORD_OK`, or `VELKORD_FAILURE` for
    # ==== all that is refused: a null argument, malformed DER, a missing element. Nothing has
    # ==== changed then. Nothing is allocated.
    # Writes the 312 bytes of a SubjectPublicKeyInfo to `der` and 312 to `derLen`.
    "ASN1_EccPubkey2Der": _of(c_int32, key=P(EccPubkey), der=P(c_uint8), derLen=P(c_uint32)),
    # Fills a record from the DER of a SubjectPublicKeyInfo of exactly `derLen` bytes, whatever its
    # algorithm: the point's second to 65th byte and `bits`, 256.
    "ASN1_Der2EccPubkey": _of(c_int32, der=c_char_p, derLen=c_uint32, key=P(EccPubkey)),
    # Fills a record from the DER of an ECPrivateKey in a PrivateKeyInfo of PKCS#8, of exactly
    # `derLen` bytes, whatever its algorithm; `bits` becomes 256.
    "ASN1_Der2EccPrikey": _of(c_int32, der=c_char_p, derLen=c_uint32, key=P(EccPrikey)),
    # ==== SM2. The result is always `VELKORD_OK`. What cannot be done, an argument being null or
    # ==== the DER malformed, leaves all out arguments alone: preset the lengths to 0. Nothing is
    # ==== allocated unless buffers overlap; a lack of memory then counts as what cannot be done.
    # Writes the SEQUENCE of two positive INTEGERs to `der`, which needs room for both numbers and
    # 20 bytes more.
    "ASN1_SM2_SM2SignatureEncode": _of(c_int32, r=c_char_p, rLen=c_uint32, s=c_char_p,
        sLen=c_uint32, der=P(c_uint8), derLen=P(c_uint32)),
    # Copies the two numbers of a signature, each without the zero byte that keeps it positive.
    "ASN1_SM2_SM2SignatureDecode": _of(c_int32, r=P(c_uint8), rLen=P(c_uint32), s=P(c_uint8),
        sLen=P(c_uint32), der=c_char_p, derLen=c_uint32),
    # Writes a private value as an INTEGER to `der`, 7 bytes more at most.
    "ASN1_SM2_PrikeyEncode": _of(c_int32, value=c_char_p, valueLen=c_uint32, der=P(c_uint8),
        derLen=P(c_uint32)),
    # Copies a private value without the zero byte that keeps it positive.
    "ASN1_SM2_PrikeyDecode": _of(c_int32, value=P(c_uint8), valueLen=P(c_uint32), der=c_char_p,
        derLen=c_uint32),
    # Writes a public point as a BIT STRING to `der`: at most 5 bytes, then 0x04, X and Y, together
    # at most 256.
    "ASN1_SM2_PubkeyEncode": _of(c_int32, x=c_char_p, xLen=c_uint32, y=c_char_p, yLen=c_uint32,
        der=P(c_uint8), derLen=P(c_uint32)),
    # Copies the two halves, of equal length, of what follows the first byte of a public point; an
    # odd last byte is left out.
    "ASN1_SM2_PubkeyDecode": _of(c_int32, x=P(c_uint8), xLen=P(c_uint32), y=P(c_uint8),
        yLen=P(c_uint32), der=c_char_p, derLen=c_uint32),
    # ==== Base64 and PEM. No argument may be null, but for input of length 0.
    # Writes Base64 text and a terminating zero to `out`, without line breaks.
    "base64_encode": _of(c_int32, in_=c_char_p, length=c_uint32, out=P(c_char)),
    # Decodes zero-terminated Base64 text in groups of four characters, up to a group with "=".
    "base64_decode": _of(c_int32, text=c_char_p, out=P(c_uint8), outLength=P(c_uint32)),
    # Writes DER bytes as PEM text: `header`, Base64 in lines of 64 characters, `footer`, each line
    # with CR LF, and a terminating zero that `outLength` does not count.
    "DER2PEM_data_format": _of(c_int32, der=c_char_p, length=c_uint32, out=P(c_char),
        outLength=P(c_uint32), header=c_char_p, footer=c_char_p),
    # Decodes the first PEM block of a text of `length` characters, or bare Base64 when the text has
    # no "-".
    "PEM2DER_data_format": _of(c_int32, pem=c_char_p, length=c_uint32, out=P(c_uint8),
        outLength=P(c_uint32)),
    # ==== Character sets. A GB code is the first byte of a GB2312 character in bits 8 to 15 and the
    # ==== second in bits 0 to 7. UTF-8 is the form of up to six bytes, for code points of up to 31
    # ==== bits. No argument may be null unless it says so, and no function adds a terminating zero.
    # Writes the UTF-8 form of a code point to `out`, which has room for `outSize` bytes.
    "uniToUTF8": _of(c_int32, out=P(c_uint8), outSize=c_int32, code=c_uint32),
    # Reads one UTF-8 form from at most `inLen` bytes; `code` is written on success only.
    "utf8ToUni": _of(c_int32, in_=c_char_p, inLen=c_int32, code=P(c_uint32)),
    # Returns the code point of a GB code, or for one that is not assigned that of a row near it.
    "ctouni": _of(c_uint32, gb=c_uint32),
    # Returns the GB code of a code point, or 0 when it has none.
    "unitoc": _of(c_uint32, code=c_uint32),
    # Returns the GB code of `n` bytes, at most 2; missing bytes count as 0.
    "zhToWc": _of(c_uint32, in_=c_char_p, n=c_uint32),
    # Writes the two bytes of a GB code to `out` and 2 to `outLen`.
    "wcToZh": _of(None, out=P(c_uint8), outLen=P(c_uint32), code=c_int32),
    # Turns GB2312 text into UTF-8, 3 bytes at most for each pair of bytes.
    "zhsToUtf8s": _of(None, in_=c_char_p, inLen=c_int32, out=P(c_uint8), outLen=P(c_uint32)),
    # Turns UTF-8 text into GB2312.
    "utf8sToZhs": _of(None, in_=c_char_p, inLen=c_uint32, out=P(c_uint8), outLen=P(c_uint32)),
}


def declare(library):
    """Gives all functions of a loaded library their types."""
    for name, (result, arguments) in FUNCTIONS.items():
        function = getattr(library, name)
        function.restype = result
        function.argtypes = list(arguments.values())
