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
    "ASN1_CreateAnybuf": _of(c_int32, bytes=c_char_p, length=c_uint32, type=c_uint8,
        out=P(P(Anybuf))),
    "ASN1_WriteExplicitFromDERData": _of(c_int32, bytes=c_char_p, length=c_uint32,
        out=P(P(Anybuf))),
    "ASN1_FreeAnybuf": _of(None, node=P(Anybuf)),
    # ==== Byte and character strings, ENUMERATED, BOOLEAN, NULL. Writing differs by the tag alone;
    # ==== reading is the same for all. CharString is PrintableString.
    "ASN1_WriteOctetString": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_WriteBitString": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_WriteCharString": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_WriteUTF8String": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_WriteBmpString": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_WriteIa5String": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_WriteEnumerated": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_WritePrintableString": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_WriteOctetStringFromBytes": _of(c_int32, bytes=c_char_p, length=c_uint32,
        out=P(P(Anybuf))),
    "ASN1_WriteBitStringFromBytes": _of(c_int32, bytes=c_char_p, length=c_uint32, out=P(P(Anybuf))),
    "ASN1_WriteCharStringFromBytes": _of(c_int32, bytes=c_char_p, length=c_uint32,
        out=P(P(Anybuf))),
    "ASN1_WriteUTF8StringFromBytes": _of(c_int32, bytes=c_char_p, length=c_uint32,
        out=P(P(Anybuf))),
    "ASN1_WriteBmpStringFromBytes": _of(c_int32, bytes=c_char_p, length=c_uint32, out=P(P(Anybuf))),
    "ASN1_WriteIa5StringFromBytes": _of(c_int32, bytes=c_char_p, length=c_uint32, out=P(P(Anybuf))),
    "ASN1_WritePrintableStringFromBytes": _of(c_int32, selector=c_int32, bytes=c_char_p,
        length=c_uint32, out=P(P(Anybuf))),
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
    "ASN1_WriteBitStringFromDERBytes": _of(c_int32, bytes=c_char_p, length=c_uint32,
        out=P(P(Anybuf))),
    "ASN1_ReadBitString": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_ReadBmpString": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_ReadCharString": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_ReadEnumerated": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_ReadIa5String": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_ReadOctetString": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_ReadPrintableString": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_ReadUTF8String": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
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
    "ASN1_ReadBmpStringToBytes": _of(c_int32, source=P(Anybuf), out=P(c_uint8),
        outLength=P(c_uint32)),
    "ASN1_WriteBoolean": _of(c_int32, value=c_char_p, out=P(P(Anybuf))),
    "ASN1_ReadBoolean": _of(c_int32, source=P(Anybuf), value=P(c_uint8)),
    "ASN1_WriteNull": _of(c_int32, out=P(P(Anybuf))),
    # ==== INTEGER. Numbers are unsigned; those of any size are big-endian bytes.
    "Asn1LowIntToChar": _of(c_int32, value=c_uint32, outBytes=P(P(c_uint8)),
        outLength=P(P(c_uint32))),
    "ASN1_WriteInteger": _of(c_int32, value=c_uint32, out=P(P(Anybuf))),
    "ASN1_ReadInteger": _of(c_int32, source=P(Anybuf), value=P(c_uint32)),
    "ASN1_WriteIntegerArray": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_WriteIntegerArrayFromBytes": _of(c_int32, bytes=c_char_p, length=c_uint32,
        out=P(P(Anybuf))),
    "ASN1_WriteIntegerArrayFromDERBytes": _of(c_int32, bytes=c_char_p, length=c_uint32,
        out=P(P(Anybuf))),
    "ASN1_ReadIntegerArray": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_ReadIntegerArrayToBytes": _of(c_int32, source=P(Anybuf), out=P(c_uint8),
        outLength=P(c_uint32)),
    # ==== OBJECT IDENTIFIER
    "ASN1_OBJECT_a2d": _of(c_int32, out=P(c_uint8), outLength=P(c_uint32), text=c_char_p,
        textLength=c_int32),
    "ASN1_WriteObjectId": _of(c_int32, record=P(ObjectID), out=P(P(Anybuf))),
    "ASN1_WriteObjectIdFromData": _of(c_int32, id=c_int32, bytes=c_char_p, length=c_uint32,
        out=P(P(Anybuf))),
    "ASN1_WriteObjectIdFromDERBytes": _of(c_int32, bytes=c_char_p, length=c_uint32,
        out=P(P(Anybuf))),
    "ASN1_ReadObjectId": _of(c_int32, source=P(Anybuf), out=P(P(ObjectID))),
    "ASN1_FreeObjectID": _of(None, record=P(ObjectID)),
    "ASN1_ReadObjectIdToBytes": _of(c_int32, source=P(Anybuf), out=P(c_uint8),
        outLength=P(c_uint32)),
    # ==== SEQUENCE and SET. Chains are built, joined and split. The order of the elements stays as
    # ==== it is, in a SET too.
    "ASN1_CreateSequence": _of(c_int32, element=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_CreateSet": _of(c_int32, element=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_AddSequence": _of(None, element=P(Anybuf), chain=P(Anybuf)),
    "ASN1_AddSet": _of(None, element=P(Anybuf), chain=P(Anybuf)),
    "ASN1_FreeSequence": _of(None, chain=P(Anybuf)),
    "ASN1_FreeSet": _of(None, chain=P(Anybuf)),
    "ASN1_WriteSequence": _of(c_int32, chain=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_WriteSet": _of(c_int32, chain=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_ReadSequence": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_ReadSet": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_WriteSequenceFromDERBytes": _of(c_int32, bytes=c_char_p, length=c_uint32,
        out=P(P(Anybuf))),
    "ASN1_WriteSetFromDERData": _of(c_int32, bytes=c_char_p, length=c_uint32, out=P(P(Anybuf))),
    # ==== EXPLICIT and IMPLICIT tags. Of a tag number the low byte counts.
    "ASN1_WriteExplicit": _of(c_int32, source=P(Anybuf), tagNumber=c_uint8, out=P(P(Anybuf))),
    "ASN1_WriteExplicitFromData": _of(c_int32, tagNumber=c_uint32, bytes=c_char_p, length=c_uint32,
        out=P(P(Anybuf))),
    "ASN1_ReadExplicit": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf)), outTag=P(c_uint32)),
    "ASN1_ReadExplicitToBytes": _of(c_int32, source=P(Anybuf), out=P(c_uint8),
        outLength=P(c_uint32), outTag=P(c_uint32)),
    "ASN1_WriteImplicit": _of(c_int32, source=P(Anybuf), tagNumber=c_uint32, out=P(P(Anybuf))),
    "ASN1_ReadImplicit": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf)), outTagNumber=P(c_uint32)),
    # ==== Time. A time is a number of seconds since 1 January 1970. The text of an element is the
    # ==== machine's local time followed by "Z", so it is UTC only where the local zone is UTC. The
    # ==== zone is that of the C library: the one that TZ names at the call, or without TZ the one
    # ==== that it has read; whoever changes that calls `tzset`, on Windows `_tzset`. The C library
    # ==== looks for TZ with `getenv`, and a `setenv` of any variable moves what that reads. So no
    # ==== thread may change the environment during a call that reads or writes a time: one of the
    # ==== functions below, `ASN1_GetValidity`, or one that sets, writes or decodes a revocation
    # ==== list or an entry of it.
    "ASN1_WriteGeneralizedTime": _of(c_int32, time=P(c_int32), out=P(P(Anybuf))),
    "ASN1_WriteUtcTime": _of(c_int32, time=P(c_int32), out=P(P(Anybuf))),
    "ASN1_ReadGeneralizedTime": _of(c_int32, source=P(Anybuf), time=P(c_int32)),
    "ASN1_ReadUtcTime": _of(c_int32, source=P(Anybuf), time=P(c_int32)),
    # ==== Names. A name is a SEQUENCE of relative names, and a relative name a SET of attributes.
    # ==== The value of an attribute is a UTF8String, PrintableString or IA5String; for another type
    # ==== a function that looks at it returns `VELKORD_WRONG_TAG`.
    "ASN1_SetAttributeTypeAndValue": _of(c_int32, type=P(Anybuf), value=P(Anybuf),
        out=P(P(AttributeTypeAndValue))),
    "ASN1_FreeAttributeTypeAndValue": _of(None, record=P(AttributeTypeAndValue)),
    "ASN1_GetDerAttributeTypeAndValue": _of(c_int32, record=P(AttributeTypeAndValue),
        out=P(P(Anybuf))),
    "ASN1_DecodeDerAttributeTypeAndValue": _of(c_int32, source=P(Anybuf), outType=P(P(Anybuf)),
        outValue=P(P(Anybuf))),
    "ASN1_GetDerRelativeDistinguishedNameOne": _of(c_int32, value=P(Anybuf), id=c_int32,
        oidText=c_char_p, oidTextLength=c_int32, out=P(P(Anybuf))),
    "ASN1_DecodeDerRelativeDistinguishedNameOne": _of(c_int32, source=P(Anybuf), value=P(c_uint8),
        valueLength=P(c_uint32), oid=P(c_uint8), oidLength=P(c_uint32)),
    "ASN1_CreateName": _of(c_int32, element=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_CreateRelativeDistinguishedName": _of(c_int32, element=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_AddName": _of(None, element=P(Anybuf), chain=P(Anybuf)),
    "ASN1_AddRelativeDistinguishedName": _of(None, element=P(Anybuf), chain=P(Anybuf)),
    "ASN1_FreeNames": _of(None, chain=P(Anybuf)),
    "ASN1_FreeRelativeDistinguishedName": _of(None, chain=P(Anybuf)),
    "ASN1_GetDerName": _of(c_int32, chain=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_ReadDerName": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_GetDerRelativeDistinguishedName": _of(c_int32, chain=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_ReadRelativeDistinguishedName": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_ReadRelativeDistinguishedNameFromByte": _of(c_int32, bytes=c_char_p, length=c_uint32,
        out=P(P(Anybuf))),
    # ==== Validity, algorithms and public keys
    "ASN1_SetValidity": _of(c_int32, notBefore=P(Anybuf), notAfter=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_GetValidity": _of(c_int32, source=P(Anybuf), notBefore=P(c_int32), notAfter=P(c_int32)),
    "ASN1_FreeValidity": _of(None, chain=P(Anybuf)),
    "ASN1_SetAlgorithmIdentifier": _of(c_int32, mode=c_uint32, oid=P(Anybuf), alternative=P(Anybuf),
        parameter=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_GetAlgorithmIdentifier": _of(c_int32, source=P(Anybuf), outOid=P(P(Anybuf)),
        outSequence=P(P(Anybuf)), outParameterOid=P(P(Anybuf))),
    "ASN1_FreeAlgorithmIdentifier": _of(None, chain=P(Anybuf)),
    "ASN1_SetSubjectPublicKeyInfo": _of(c_int32, algorithm=P(Anybuf), key=P(Anybuf),
        out=P(P(Anybuf))),
    "ASN1_GetSubjectPublicKeyInfo": _of(c_int32, source=P(Anybuf), outAlgorithm=P(P(Anybuf)),
        outKey=P(P(Anybuf))),
    "ASN1_FreeSubjectPublicKeyInfo": _of(None, chain=P(Anybuf)),
    "ASN1_SetRSAPublicKey": _of(c_int32, modulus=P(Anybuf), exponent=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_GetRSAPublicKey": _of(c_int32, source=P(Anybuf), outModulus=P(P(Anybuf)),
        outExponent=P(P(Anybuf))),
    "ASN1_FreeRSAPublicKey": _of(None, chain=P(Anybuf)),
    # ==== Extensions
    "ASN1_SetExtension": _of(c_int32, oid=P(Anybuf), critical=P(Anybuf), value=P(Anybuf),
        out=P(P(Anybuf))),
    "ASN1_GetExtensionOne": _of(c_int32, id=c_int32, oid=c_char_p, oidLength=c_uint32,
        critical=c_uint32, value=c_char_p, valueLength=c_uint32, out=P(P(Anybuf))),
    "ASN1_GetExtension": _of(c_int32, source=P(Anybuf), outOid=P(P(Anybuf)),
        outCritical=P(P(Anybuf)), outValue=P(P(Anybuf))),
    "ASN1_FreeExtension": _of(None, chain=P(Anybuf)),
    "ASN1_CreateExtensions": _of(c_int32, element=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_AddExtensions": _of(None, element=P(Anybuf), chain=P(Anybuf)),
    "ASN1_WriteExtensions": _of(c_int32, chain=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_ReadExtensions": _of(c_int32, source=P(Anybuf), out=P(P(Anybuf))),
    "ASN1_FreeExtensions": _of(None, chain=P(Anybuf)),
    # ==== Certificates
    "ASN1_CreateTBSCertificate": _of(c_int32, out=P(P(TBSCertificate))),
    "ASN1_CreateCertificate": _of(c_int32, out=P(P(Certificate))),
    "ASN1_FreeTBSCertificate": _of(None, record=P(TBSCertificate)),
    "ASN1_FreeCertificate": _of(None, record=P(Certificate)),
    "ASN1_TBSCertificateSetVersion": _of(c_int32, record=P(TBSCertificate), version=c_uint32),
    "ASN1_TBSCertificateSetSerialNumber": _of(c_int32, record=P(TBSCertificate), bytes=c_char_p,
        length=c_uint32),
    "ASN1_TBSCertificateSetSignatureAlg": _of(c_int32, record=P(TBSCertificate), value=P(Anybuf)),
    "ASN1_TBSCertificateSetIssuer": _of(c_int32, record=P(TBSCertificate), value=P(Anybuf)),
    "ASN1_TBSCertificateSetValidity": _of(c_int32, record=P(TBSCertificate), value=P(Anybuf)),
    "ASN1_TBSCertificateSetSubject": _of(c_int32, record=P(TBSCertificate), value=P(Anybuf)),
    "ASN1_TBSCertificateSetSubjectPublicKeyInfo": _of(c_int32, record=P(TBSCertificate),
        value=P(Anybuf)),
    "ASN1_TBSCertificateSetIssuerUniqueID": _of(c_int32, record=P(TBSCertificate), value=P(Anybuf)),
    "ASN1_TBSCertificateSetSubjectUniqueID": _of(c_int32, record=P(TBSCertificate),
        value=P(Anybuf)),
    "ASN1_TBSCertificateSetExtensions": _of(c_int32, record=P(TBSCertificate), value=P(Anybuf)),
    "ASN1_TBSCertificateWriteData": _of(c_int32, record=P(TBSCertificate), out=P(P(Anybuf))),
    "ASN1_TBSCertificateDecode": _of(c_int32, source=P(Anybuf), out=P(P(TBSCertificate))),
    "ASN1_CertificateSetTbsCertificate": _of(c_int32, record=P(Certificate), value=P(Anybuf)),
    "ASN1_CertificateSetSignatureAlgorithm": _of(c_int32, record=P(Certificate), value=P(Anybuf)),
    "ASN1_CertificateSetSignatureValue": _of(c_int32, record=P(Certificate), value=P(Anybuf)),
    "ASN1_CertificateWriteData": _of(c_int32, record=P(Certificate), out=P(P(Anybuf))),
    "ASN1_CertificateDecode": _of(c_int32, bytes=c_char_p, length=c_uint32, out=P(P(Certificate))),
    # ==== Certificate inspection. Of the DER that is looked into, malformed parts are skipped.
    "X509CertCreate": _of(P(X509Cert), out=P(P(X509Cert))),
    "X509CertFree": _of(None, record=P(X509Cert)),
    "X509CertGetSubject": _of(c_int32, record=P(X509Cert)),
    "X509CertGetOIDValue": _of(c_int32, record=P(X509Cert), oidText=c_char_p, textLength=c_int32,
        value=P(c_uint8), valueLength=P(c_uint32)),
    # ==== Revocation lists
    "ASN1_CRL_CreateRevokedCertificate": _of(c_int32, out=P(P(RevokedCertificate))),
    "ASN1_CRL_CreateTbsCertList": _of(c_int32, out=P(P(TbsCertList))),
    "ASN1_CRL_CreateCertificateList": _of(c_int32, out=P(P(CertificateList))),
    "ASN1_CRL_FreeRevokedCertificate": _of(None, record=P(RevokedCertificate)),
    "ASN1_CRL_FreeTbsCertList": _of(None, record=P(TbsCertList)),
    "ASN1_CRL_FreeCertificateList": _of(None, record=P(CertificateList)),
    "ASN1_CRL_SetRevokedCertificateCertificateSerialNumber": _of(c_int32,
        record=P(RevokedCertificate), value=P(Anybuf)),
    "ASN1_CRL_SetRevokedCertificateRevocationDate": _of(c_int32, record=P(RevokedCertificate),
        value=P(Anybuf)),
    "ASN1_CRL_SetRevokedCertificateCrlEntryExtensions": _of(c_int32, record=P(RevokedCertificate),
        value=P(Anybuf)),
    "ASN1_CRL_RevokedCertificateWriteData": _of(c_int32, record=P(RevokedCertificate),
        out=P(P(Anybuf))),
    "ASN1_CRL_RevokedCertificateDecode": _of(c_int32, bytes=c_char_p, length=c_uint32,
        out=P(P(RevokedCertificate))),
    "ASN1_CRL_TbsCertListSetVersion": _of(c_int32, record=P(TbsCertList), version=c_uint32),
    "ASN1_CRL_TbsCertListSetSignatureAlgorithmIdentifier": _of(c_int32, record=P(TbsCertList),
        value=P(Anybuf)),
    "ASN1_CRL_TbsCertListSetIssuer": _of(c_int32, record=P(TbsCertList), value=P(Anybuf)),
    "ASN1_CRL_TbsCertListSetRevokedCertificates": _of(c_int32, record=P(TbsCertList),
        value=P(Anybuf)),
    "ASN1_CRL_TbsCertListSetCrlExtensions": _of(c_int32, record=P(TbsCertList), value=P(Anybuf)),
    "ASN1_CRL_TbsCertListSetThisUpdate": _of(c_int32, record=P(TbsCertList), time=c_int32,
        form=c_uint32),
    "ASN1_CRL_TbsCertListSetNextUpdate": _of(c_int32, record=P(TbsCertList), time=c_int32),
    "ASN1_CRL_TbsCertListWriteData": _of(c_int32, record=P(TbsCertList), out=P(P(Anybuf))),
    "ASN1_CRL_TbsCertListDecode": _of(c_int32, bytes=c_char_p, length=c_uint32,
        out=P(P(TbsCertList))),
    "ASN1_CRL_SetCertificateListTBSCertList": _of(c_int32, record=P(CertificateList),
        value=P(Anybuf)),
    "ASN1_CRL_SetCertificateListAlgorithmIdentifier": _of(c_int32, record=P(CertificateList),
        value=P(Anybuf)),
    "ASN1_CRL_SetCertificateListSignatureValue": _of(c_int32, record=P(CertificateList),
        value=P(Anybuf)),
    "ASN1_CRL_CertificateListWriteData": _of(c_int32, record=P(CertificateList), out=P(P(Anybuf))),
    "ASN1_CRL_CertificateListDecode": _of(c_int32, bytes=c_char_p, length=c_uint32,
        out=P(P(CertificateList))),
    # ==== PKCS#10: certification requests
    "ASN1_CreatePKCS10": _of(c_int32, out=P(P(PKCS10))),
    "ASN1_CreatePKCS10Request": _of(c_int32, out=P(P(PKCS10Request))),
    "ASN1_FreePKCS10": _of(None, record=P(PKCS10)),
    "ASN1_FreePKCS10Request": _of(None, record=P(PKCS10Request)),
    "ASN1_PKCS10SetVersion": _of(c_int32, record=P(PKCS10), version=c_uint32),
    "ASN1_PKCS10SetSubject": _of(c_int32, record=P(PKCS10), value=P(Anybuf)),
    "ASN1_PKCS10SetSubjectPublicKeyInfo": _of(c_int32, record=P(PKCS10), value=P(Anybuf)),
    "ASN1_PKCS10SetAttributes": _of(c_int32, record=P(PKCS10), value=P(Anybuf)),
    "ASN1_PKCS10WriteData": _of(c_int32, record=P(PKCS10), out=P(P(Anybuf))),
    "ASN1_PKCS10Decode": _of(c_int32, bytes=c_char_p, length=c_uint32, out=P(P(PKCS10))),
    "ASN1_PKCS10RequestSetCertificationRequestInfo": _of(c_int32, record=P(PKCS10Request),
        value=P(Anybuf)),
    "ASN1_PKCS10RequestSetAlgorithmIdentifier": _of(c_int32, record=P(PKCS10Request),
        value=P(Anybuf)),
    "ASN1_PKCS10RequestSetSignature": _of(c_int32, record=P(PKCS10Request), value=P(Anybuf)),
    "ASN1_PKCS10RequestWriteData": _of(c_int32, record=P(PKCS10Request), out=P(P(Anybuf))),
    "ASN1_PKCS10RequestDecode": _of(c_int32, bytes=c_char_p, length=c_uint32,
        out=P(P(PKCS10Request))),
    # ==== PKCS#6: extended certificates
    "ASN1_PKCS6_CreateExtendedCertificateInfo": _of(c_int32, out=P(P(ExtendedCertificateInfo))),
    "ASN1_PKCS6_CreateExtendedCertificate": _of(c_int32, out=P(P(ExtendedCertificate))),
    "ASN1_PKCS6_FreeExtendedCertificateInfo": _of(None, record=P(ExtendedCertificateInfo)),
    "ASN1_PKCS6_FreeExtendedCertificate": _of(None, record=P(ExtendedCertificate)),
    "ASN1_PKCS6_SetCertificateInfoVersion": _of(c_int32, record=P(ExtendedCertificateInfo),
        version=c_uint32),
    "ASN1_PKCS6_SetCertificateInfoX509": _of(c_int32, record=P(ExtendedCertificateInfo),
        value=P(Anybuf)),
    "ASN1_PKCS6_SetCertificateInfoAttributes": _of(c_int32, record=P(ExtendedCertificateInfo),
        value=P(Anybuf)),
    "ASN1_PKCS6_CertificateInfoWriteData": _of(c_int32, record=P(ExtendedCertificateInfo),
        out=P(P(Anybuf))),
    "ASN1_PKCS6_CertificateInfoDecode": _of(c_int32, bytes=c_char_p, length=c_uint32,
        out=P(P(ExtendedCertificateInfo))),
    "ASN1_PKCS6_SetCertificateCertificateInfo": _of(c_int32, record=P(ExtendedCertificate),
        value=P(Anybuf)),
    "ASN1_PKCS6_SetCertificateSignatureAlgorithmIdentifier": _of(c_int32,
        record=P(ExtendedCertificate), value=P(Anybuf)),
    "ASN1_PKCS6_SetCertificateSignature": _of(c_int32, record=P(ExtendedCertificate),
        value=P(Anybuf)),
    "ASN1_PKCS6_CertificateWriteData": _of(c_int32, record=P(ExtendedCertificate),
        out=P(P(Anybuf))),
    "ASN1_PKCS6_CertificateDecode": _of(c_int32, bytes=c_char_p, length=c_uint32,
        out=P(P(ExtendedCertificate))),
    # ==== PKCS#7: the ContentInfo of a message
    "ASN1_PKCS7_CreateContext": _of(c_int32, out=P(P(PKCS7Context))),
    "ASN1_PKCS7_FreeContext": _of(None, record=P(PKCS7Context)),
    "ASN1_PKCS7_SetContentType": _of(c_int32, record=P(PKCS7Context), value=P(Anybuf)),
    "ASN1_PKCS7_SetContent": _of(c_int32, record=P(PKCS7Context), value=P(Anybuf)),
    "ASN1_PKCS7_WriteData": _of(c_int32, record=P(PKCS7Context), out=P(P(Anybuf))),
    "ASN1_PKCS7_Decode": _of(c_int32, bytes=c_char_p, length=c_uint32, out=P(P(PKCS7Context))),
    # ==== RSA keys. Keys of at most 2048 bits, which one certificate in three exceeds;
    # ==== `ASN1_SetRSAPublicKey` and `ASN1_GetRSAPublicKey` take public keys of any size.
    # ==== `VELKORD_FAILURE` also stands for a null argument and, when record and DER overlap, for a
    # ==== lack of memory; then nothing has changed.
    "ZantEncodePublicKey": _of(c_int32, key=P(ZantPublicKey), der=P(c_uint8), derLen=P(c_uint32)),
    "ZantEncodePrivateKey": _of(c_int32, key=P(ZantPrivateKey), der=P(c_uint8), derLen=P(c_uint32)),
    "ZantDecodePublicKey": _of(c_int32, key=P(ZantPublicKey), der=c_char_p, derLen=c_int32),
    "ZantDecodePrivateKey": _of(c_int32, key=P(ZantPrivateKey), der=c_char_p, derLen=c_int32),
    # ==== Keys of elliptic curves. Keys of 256 bits. Returns `VELKORD_OK`, or `VELKORD_FAILURE` for
    # ==== all that is refused: a null argument, malformed DER, a missing element. Nothing has
    # ==== changed then. Nothing is allocated.
    "ASN1_EccPubkey2Der": _of(c_int32, key=P(EccPubkey), der=P(c_uint8), derLen=P(c_uint32)),
    "ASN1_Der2EccPubkey": _of(c_int32, der=c_char_p, derLen=c_uint32, key=P(EccPubkey)),
    "ASN1_Der2EccPrikey": _of(c_int32, der=c_char_p, derLen=c_uint32, key=P(EccPrikey)),
    # ==== SM2. The result is always `VELKORD_OK`. What cannot be done, an argument being null or
    # ==== the DER malformed, leaves all out arguments alone: preset the lengths to 0. Nothing is
    # ==== allocated unless buffers overlap; a lack of memory then counts as what cannot be done.
    "ASN1_SM2_SM2SignatureEncode": _of(c_int32, r=c_char_p, rLen=c_uint32, s=c_char_p,
        sLen=c_uint32, der=P(c_uint8), derLen=P(c_uint32)),
    "ASN1_SM2_SM2SignatureDecode": _of(c_int32, r=P(c_uint8), rLen=P(c_uint32), s=P(c_uint8),
        sLen=P(c_uint32), der=c_char_p, derLen=c_uint32),
    "ASN1_SM2_PrikeyEncode": _of(c_int32, value=c_char_p, valueLen=c_uint32, der=P(c_uint8),
        derLen=P(c_uint32)),
    "ASN1_SM2_PrikeyDecode": _of(c_int32, value=P(c_uint8), valueLen=P(c_uint32), der=c_char_p,
        derLen=c_uint32),
    "ASN1_SM2_PubkeyEncode": _of(c_int32, x=c_char_p, xLen=c_uint32, y=c_char_p, yLen=c_uint32,
        der=P(c_uint8), derLen=P(c_uint32)),
    "ASN1_SM2_PubkeyDecode": _of(c_int32, x=P(c_uint8), xLen=P(c_uint32), y=P(c_uint8),
        yLen=P(c_uint32), der=c_char_p, derLen=c_uint32),
    # ==== Base64 and PEM. No argument may be null, but for input of length 0.
    "base64_encode": _of(c_int32, in_=c_char_p, length=c_uint32, out=P(c_char)),
    "base64_decode": _of(c_int32, text=c_char_p, out=P(c_uint8), outLength=P(c_uint32)),
    "DER2PEM_data_format": _of(c_int32, der=c_char_p, length=c_uint32, out=P(c_char),
        outLength=P(c_uint32), header=c_char_p, footer=c_char_p),
    "PEM2DER_data_format": _of(c_int32, pem=c_char_p, length=c_uint32, out=P(c_uint8),
        outLength=P(c_uint32)),
    # ==== Character sets. A GB code is the first byte of a GB2312 character in bits 8 to 15 and the
    # ==== second in bits 0 to 7. UTF-8 is the form of up to six bytes, for code points of up to 31
    # ==== bits. No argument may be null unless it says so, and no function adds a terminating zero.
    "uniToUTF8": _of(c_int32, out=P(c_uint8), outSize=c_int32, code=c_uint32),
    "utf8ToUni": _of(c_int32, in_=c_char_p, inLen=c_int32, code=P(c_uint32)),
    "ctouni": _of(c_uint32, gb=c_uint32),
    "unitoc": _of(c_uint32, code=c_uint32),
    "zhToWc": _of(c_uint32, in_=c_char_p, n=c_uint32),
    "wcToZh": _of(None, out=P(c_uint8), outLen=P(c_uint32), code=c_int32),
    "zhsToUtf8s": _of(None, in_=c_char_p, inLen=c_int32, out=P(c_uint8), outLen=P(c_uint32)),
    "utf8sToZhs": _of(None, in_=c_char_p, inLen=c_uint32, out=P(c_uint8), outLen=P(c_uint32)),
}

# What the header says of each function, and of those that stand together once.
DOCUMENTATION = {name: text for names, text in (
    ('ASN1_CreateAnybuf',
     'Makes a content node with a copy of `length` bytes. `dataType` is `type` as it stands. '
     'For type 3 `unusedBits` comes from the size of the last byte V: 0 for V below 2 or above '
     '128, otherwise the number of bits of V - 1.'),
    ('ASN1_WriteExplicitFromDERData',
     'Makes a node of DER bytes, unchanged. Only the tag is read, and in spite of the name '
     'none is added. Also `VELKORD_SIZE_MISMATCH` without a whole tag.'),
    ('ASN1_FreeAnybuf',
     'Releases `node` and every node after it, so it is for the head of a chain only.'),
    ('ASN1_WriteOctetString ASN1_WriteBitString ASN1_WriteCharString ASN1_WriteUTF8String '
     'ASN1_WriteBmpString ASN1_WriteIa5String ASN1_WriteEnumerated ASN1_WritePrintableString',
     'Makes an element over a content node of any type. `ASN1_WriteBitString` writes the low '
     "byte of the source's `unusedBits` in front. `ASN1_WritePrintableString` writes a "
     'BMPString for a source of `dataType` 30 and a PrintableString otherwise.'),
    ('ASN1_WriteOctetStringFromBytes ASN1_WriteBitStringFromBytes '
     'ASN1_WriteCharStringFromBytes ASN1_WriteUTF8StringFromBytes ASN1_WriteBmpStringFromBytes '
     'ASN1_WriteIa5StringFromBytes',
     'Makes an element over content bytes. `ASN1_WriteBitStringFromBytes` derives the unused '
     'bits from the size of the last byte, as `ASN1_CreateAnybuf` does; `ASN1_WriteBitString` '
     'takes a count.'),
    ('ASN1_WritePrintableStringFromBytes',
     'Makes a PrintableString over content bytes when `selector` is not 0, and a BMPString '
     'when it is.'),
    ('ASN1_WriteOctetStringFromDERBytes ASN1_WriteCharStringFromDERBytes '
     'ASN1_WriteUTF8StringFromDERBytes ASN1_WriteBmpStringFromDERBytes '
     'ASN1_WriteIa5StringFromDERBytes ASN1_WritePrintableStringFromDERBytes',
     'Other names of `ASN1_WriteExplicitFromDERData`; none tests the type.'),
    ('ASN1_WriteBitStringFromDERBytes',
     'Reads the DER bytes of a BIT STRING into a node, unchanged; `unusedBits` is the octet '
     'after the header. The tag and the length are not tested; `VELKORD_SIZE_MISMATCH` only '
     'without that octet or for the indefinite length.'),
    ('ASN1_ReadBitString ASN1_ReadBmpString ASN1_ReadCharString ASN1_ReadEnumerated '
     'ASN1_ReadIa5String ASN1_ReadOctetString ASN1_ReadPrintableString ASN1_ReadUTF8String',
     'Reads an element of any type into a content node; `dataType` is the tag that was read. A '
     'source of `dataType` 3 loses its unused-bits octet and passes its `unusedBits` on; an '
     'INTEGER loses the zero octet that only keeps it positive. All names are one function.'),
    ('ASN1_ReadCharStringToBytes ASN1_ReadIa5StringToBytes ASN1_ReadOctetStringToBytes '
     'ASN1_ReadPrintableStringToBytes ASN1_ReadUTF8StringToBytes',
     'Reads the same content into `out` and its size into `outLength`. `out` needs room for '
     "all of it, at most the source's `dataLen`; no zero is added. All names are one function."),
    ('ASN1_ReadBmpStringToBytes',
     'Reads the same of BMP text without the high bytes that are zero and without an odd last '
     'byte.'),
    ('ASN1_WriteBoolean',
     'Makes a BOOLEAN with the byte at `value` unchanged.'),
    ('ASN1_ReadBoolean',
     'Reads the first content octet of an element of any type, of a BIT STRING its unused-bits '
     'octet.'),
    ('ASN1_WriteNull',
     'Makes a NULL.'),
    ('Asn1LowIntToChar',
     'Makes the content octets of a number, 1 to 5 of them, and their count in a cell of its '
     'own. Release both blocks with `free`.'),
    ('ASN1_WriteInteger',
     'Makes the INTEGER of a number.'),
    ('ASN1_ReadInteger',
     'Reads the low 32 bits of the number in an element of any type. Bytes after it are '
     'allowed.'),
    ('ASN1_WriteIntegerArray ASN1_WriteIntegerArrayFromBytes',
     'Makes an INTEGER over a content node of any type or over bytes: a zero octet goes in '
     'front of a first byte of 0x80 or more; leading zeros stay.'),
    ('ASN1_WriteIntegerArrayFromDERBytes',
     'Another name of `ASN1_WriteExplicitFromDERData`.'),
    ('ASN1_ReadIntegerArray',
     'Another name of `ASN1_ReadBitString`.'),
    ('ASN1_ReadIntegerArrayToBytes',
     'Another name of `ASN1_ReadOctetStringToBytes`.'),
    ('ASN1_OBJECT_a2d',
     'Turns dotted text of `textLength` characters into content octets; blanks may stand for '
     'points. `out` needs as many bytes as the text has characters. Arcs are 32-bit and wrap. '
     'Returns the number of octets written, which also goes to `outLength`, or 0 for a null '
     'argument and for a text that is refused; then `outLength` is not written and `out` may '
     'hold the octets of the arcs before the bad one. For a first arc and one more character, '
     'whatever it is, it returns 0 and sets `outLength` to 0.'),
    ('ASN1_WriteObjectId ASN1_WriteObjectIdFromData',
     'Makes an OBJECT IDENTIFIER over content octets; `id` has no effect.'),
    ('ASN1_WriteObjectIdFromDERBytes',
     'Another name of `ASN1_WriteExplicitFromDERData`.'),
    ('ASN1_ReadObjectId',
     'Reads the content of an element of any type into a new record. Also '
     '`VELKORD_OUT_OF_MEMORY`.'),
    ('ASN1_FreeObjectID',
     'Releases a record and its `data`; `next` is not followed.'),
    ('ASN1_ReadObjectIdToBytes',
     'Another name of `ASN1_ReadOctetStringToBytes`.'),
    ('ASN1_CreateSequence ASN1_CreateSet',
     'Makes a chain of one node, a copy of `element`; its `next` is not followed.'),
    ('ASN1_AddSequence ASN1_AddSet',
     'Appends a copy of `element` at the end of `chain`, to which it walks. Does nothing for a '
     'null argument; when memory runs out the chain stays as it was.'),
    ('ASN1_FreeSequence ASN1_FreeSet',
     'Other names of `ASN1_FreeAnybuf`.'),
    ('ASN1_WriteSequence ASN1_WriteSet',
     'Makes one SEQUENCE or SET over the bytes of a chain; a null chain makes an empty '
     'element.'),
    ('ASN1_ReadSequence ASN1_ReadSet ASN1_WriteSequenceFromDERBytes ASN1_WriteSetFromDERData',
     'Opens a SEQUENCE or SET, in a node or in bytes: the chain of its children, null for '
     'none.'),
    ('ASN1_WriteExplicit ASN1_WriteExplicitFromData',
     'Makes an element of tag octet `tagNumber | 0xA0` around a node of either form, or around '
     'bytes.'),
    ('ASN1_ReadExplicit ASN1_ReadExplicitToBytes',
     'Reads an element of any type: its content as `ASN1_ReadBitString` does, and its reduced '
     'tag, 0xA3 for `[3]`. The buffer needs room for the whole content.'),
    ('ASN1_WriteImplicit',
     'Reads an element and makes one of the same content under another tag: `tagNumber | 0xA0` '
     'for a source of `dataType` 16 or 17, `tagNumber | 0x80` otherwise. A BIT STRING keeps '
     'its unused-bits octet; an INTEGER loses the zero octet that only keeps it positive.'),
    ('ASN1_ReadImplicit',
     'Reads an element under an IMPLICIT tag. A constructed context or private element becomes '
     'the chain of its children, null when it has none; any other becomes a content node, '
     'without its first octet when the tag is odd. `outTagNumber` receives the low five bits '
     'of the tag as soon as it is read, also when a later test fails. `VELKORD_FAILURE` also '
     'for a child that does not fit.'),
    ('ASN1_WriteGeneralizedTime ASN1_WriteUtcTime',
     'Makes the element of a time. Returns `VELKORD_OK`, `VELKORD_NEGATIVE_TIME`, '
     '`VELKORD_NULL_ARGUMENT` or `VELKORD_OUT_OF_MEMORY` (also when the platform refuses the '
     'time).'),
    ('ASN1_ReadGeneralizedTime ASN1_ReadUtcTime',
     'Reads the time of an element of that form. UTCTime years 00 to 69 are 2000 to 2069, and '
     'fields out of range carry over: day 32 of January is 1 February. Of an hour that occurs '
     'twice the earlier one is read; an hour that the clocks skip is read as if they had not '
     'been changed. `VELKORD_SIZE_MISMATCH` only without a whole header or for the indefinite '
     'length; also `VELKORD_WRONG_TAG` for another `dataType`, `VELKORD_BAD_TIME` and '
     '`VELKORD_OUT_OF_MEMORY`.'),
    ('ASN1_SetAttributeTypeAndValue',
     'Creates a record with copies of two nodes.'),
    ('ASN1_FreeAttributeTypeAndValue',
     'Releases a record.'),
    ('ASN1_GetDerAttributeTypeAndValue',
     'Makes the SEQUENCE of an attribute.'),
    ('ASN1_DecodeDerAttributeTypeAndValue',
     'Opens the SEQUENCE of an attribute: its OBJECT IDENTIFIER and its value as new nodes.'),
    ('ASN1_GetDerRelativeDistinguishedNameOne',
     'Makes the SET of a relative name with one attribute, from its value and its OID as '
     'dotted text; `id` has no effect. A text that `ASN1_OBJECT_a2d` refuses makes an empty '
     "OID. Also `VELKORD_WRONG_TAG` by the value's `dataType`, and `VELKORD_SIZE_MISMATCH` "
     'without a whole tag.'),
    ('ASN1_DecodeDerRelativeDistinguishedNameOne',
     "Opens the SET of a relative name and copies the value and the OID's octets of its first "
     'attribute, a UTF8String turned into GB2312 by `utf8sToZhs`. There must be room for the '
     'whole contents.'),
    ('ASN1_CreateName ASN1_CreateRelativeDistinguishedName',
     'Other names of `ASN1_CreateSet`: start a chain of relative names or of attributes.'),
    ('ASN1_AddName ASN1_AddRelativeDistinguishedName',
     'Other names of `ASN1_AddSet`: the element first, the chain second.'),
    ('ASN1_FreeNames ASN1_FreeRelativeDistinguishedName',
     'Other names of `ASN1_FreeAnybuf`.'),
    ('ASN1_GetDerName',
     'Another name of `ASN1_WriteSequence`.'),
    ('ASN1_ReadDerName',
     'Another name of `ASN1_ReadSequence`.'),
    ('ASN1_GetDerRelativeDistinguishedName',
     'Another name of `ASN1_WriteSet`.'),
    ('ASN1_ReadRelativeDistinguishedName',
     'Another name of `ASN1_ReadSet`.'),
    ('ASN1_ReadRelativeDistinguishedNameFromByte',
     'Another name of `ASN1_WriteSetFromDERData`.'),
    ('ASN1_SetValidity',
     'Makes the SEQUENCE of two times, which are not tested.'),
    ('ASN1_GetValidity',
     'Opens a Validity and reads both times, in either form; of more than two the last is '
     'notAfter. Also `VELKORD_BAD_TIME` and `VELKORD_OUT_OF_MEMORY`, for three in five root '
     'certificates in use, which end after 2038; what is no time is `VELKORD_WRONG_TAG`.'),
    ('ASN1_FreeValidity',
     'Another name of `ASN1_FreeAnybuf`.'),
    ('ASN1_SetAlgorithmIdentifier',
     'Makes an AlgorithmIdentifier of `oid` and one more element: `parameter` when it is not '
     'null, else NULL when `mode` is 1, else `alternative`, which must then be there. '
     '**Releases `oid`**, that node alone, on success, unless NULL was written; after a '
     "failure it stays the caller's."),
    ('ASN1_GetAlgorithmIdentifier',
     'Opens an AlgorithmIdentifier. Each out pointer may be null, and that part is not handed '
     'out. A SEQUENCE parameter goes to `outSequence`; a NULL or none leaves both null; '
     'anything else goes to `outParameterOid` as an OBJECT IDENTIFIER over its content. The '
     'last parameter counts.'),
    ('ASN1_FreeAlgorithmIdentifier',
     'Another name of `ASN1_FreeAnybuf`.'),
    ('ASN1_SetSubjectPublicKeyInfo',
     'Makes a SubjectPublicKeyInfo: a copy of `algorithm`, then a BIT STRING over the bytes of '
     '`key`, a node of either form, as `ASN1_WriteBitStringFromBytes` writes it.'),
    ('ASN1_GetSubjectPublicKeyInfo',
     'Opens a SubjectPublicKeyInfo: both parts as new nodes, the unused-bits octet always 0.'),
    ('ASN1_FreeSubjectPublicKeyInfo',
     'Another name of `ASN1_FreeAnybuf`.'),
    ('ASN1_SetRSAPublicKey',
     'Another name of `ASN1_SetValidity`: makes the SEQUENCE of two INTEGERs.'),
    ('ASN1_GetRSAPublicKey',
     'Opens the SEQUENCE of an RSA public key: both numbers as new INTEGERs, positive; of more '
     'than two elements the last is the exponent.'),
    ('ASN1_FreeRSAPublicKey',
     'Another name of `ASN1_FreeAnybuf`.'),
    ('ASN1_SetExtension',
     'Makes an Extension of an OID, a BOOLEAN, which may be null, and an OCTET STRING; none is '
     'tested.'),
    ('ASN1_GetExtensionOne',
     "Makes an Extension from the OID's content octets and the value's bytes. The low byte of "
     "`critical` is the BOOLEAN's octet; when it is 0 there is no BOOLEAN. `id` has no effect."),
    ('ASN1_GetExtension',
     'Opens an Extension: OBJECT IDENTIFIER, BOOLEAN and OCTET STRING as new nodes. '
     '`outCritical` is written only when there are exactly three elements: preset it to null. '
     'It holds the first content octet of the second, whatever its type; '
     '`VELKORD_SIZE_MISMATCH` also when that has none.'),
    ('ASN1_FreeExtension',
     'Another name of `ASN1_FreeAnybuf`.'),
    ('ASN1_CreateExtensions',
     'Another name of `ASN1_CreateSet`: starts a list.'),
    ('ASN1_AddExtensions',
     'Another name of `ASN1_AddSet`: the element first, the chain second.'),
    ('ASN1_WriteExtensions',
     'Another name of `ASN1_WriteSequence`.'),
    ('ASN1_ReadExtensions',
     'Another name of `ASN1_ReadSequence`.'),
    ('ASN1_FreeExtensions',
     'Another name of `ASN1_FreeAnybuf`.'),
    ('ASN1_CreateTBSCertificate ASN1_CreateCertificate',
     'Creates an empty record.'),
    ('ASN1_FreeTBSCertificate ASN1_FreeCertificate',
     'Releases a record.'),
    ('ASN1_TBSCertificateSetVersion',
     'Sets the version number, 2 for a version 3 certificate.'),
    ('ASN1_TBSCertificateSetSerialNumber',
     'Sets the serial number from a big-endian magnitude.'),
    ('ASN1_TBSCertificateSetSignatureAlg ASN1_TBSCertificateSetIssuer '
     'ASN1_TBSCertificateSetValidity ASN1_TBSCertificateSetSubject '
     'ASN1_TBSCertificateSetSubjectPublicKeyInfo',
     'Sets a field from a SEQUENCE.'),
    ('ASN1_TBSCertificateSetIssuerUniqueID ASN1_TBSCertificateSetSubjectUniqueID',
     'Sets an optional identifier, a BIT STRING, under `[1]` or `[2]` as `ASN1_WriteImplicit` '
     'does.'),
    ('ASN1_TBSCertificateSetExtensions',
     'Sets the extensions under `[3]` EXPLICIT: the bytes of their list, which are not tested.'),
    ('ASN1_TBSCertificateWriteData',
     'Makes the SEQUENCE of a record: seven required fields, then the optional ones.'),
    ('ASN1_TBSCertificateDecode',
     'Decodes a TBSCertificate of seven elements or more. The first is always taken for the '
     'version; `version` stays 0. Optional elements are recognised by the low five bits of '
     'their tags, in any order; of several of one kind the last counts, though each must open; '
     'elements of other tags are skipped. The unused-bits octets of the identifiers are '
     'derived anew, that of `[2]` also stays in its content, and `extensions` holds a SEQUENCE '
     'around the list: what is written again is not what was signed. `VELKORD_SIZE_MISMATCH` '
     'also for any BIT STRING without content, and for an identifier without content that is '
     'constructed or has an odd tag, such as `A1 00`, `A2 00`, `81 00`.'),
    ('ASN1_CertificateSetTbsCertificate ASN1_CertificateSetSignatureAlgorithm',
     'Sets the signed part or the algorithm from a SEQUENCE.'),
    ('ASN1_CertificateSetSignatureValue',
     'Sets the signature from a BIT STRING, as `ASN1_WriteBitStringFromDERBytes` does.'),
    ('ASN1_CertificateWriteData',
     'Makes the SEQUENCE of a record, all three fields.'),
    ('ASN1_CertificateDecode',
     'Decodes a certificate. Its signature, of any type, becomes a BIT STRING without unused '
     'bits, over the content that `ASN1_ReadBitString` reads from an element of its type.'),
    ('X509CertCreate',
     'Makes an empty record, and stores it in `out` too unless that is null. Returns the '
     'record, or null when memory runs out; `out` is then not written.'),
    ('X509CertFree',
     'Releases a record and all that its pointers hold.'),
    ('X509CertGetSubject',
     'Appends one entry to `subjectEntries` for the first attribute of each relative name in '
     'the subject of `tbs`. A UTF8String or PrintableString value comes as it stands, a '
     'BMPString as `ASN1_ReadBmpStringToBytes` reads it, and any other type, such as the '
     'IA5String of an email address, leaves the value null. When memory runs out the entries '
     'that were made stay, and an entry whose OID or value could not be held has a null block '
     'of length 0 there. Returns `VELKORD_OK`, `VELKORD_FAILURE` (no memory for an entry) or '
     '`VELKORD_NULL_ARGUMENT` (also for a null `tbs` or subject).'),
    ('X509CertGetOIDValue',
     'Looks up the extension whose OID is `oidText`, dotted text of `textLength` characters, '
     'in a decoded `tbs`. In its value, a SEQUENCE of items, each a SEQUENCE of OID and value, '
     'it looks for the item "1.2.156.1.8888.148" and copies the content of that item\'s value '
     'to `value`. Every match is written there, one over the other, and the last counts, so '
     '`value` needs room for the longest: `dataLen` of `tbs->extensions` is enough. '
     '`valueLength` is written only on a match: preset it to 0. Returns `VELKORD_OK`, also '
     'when nothing is found; `VELKORD_FAILURE` when `tbs` has no extensions or `value` or '
     '`valueLength` is null; `VELKORD_NULL_ARGUMENT` when `record`, its `tbs` or `oidText` is '
     'null.'),
    ('ASN1_CRL_CreateRevokedCertificate ASN1_CRL_CreateTbsCertList '
     'ASN1_CRL_CreateCertificateList',
     'Creates an empty record.'),
    ('ASN1_CRL_FreeRevokedCertificate ASN1_CRL_FreeTbsCertList ASN1_CRL_FreeCertificateList',
     'Releases a record.'),
    ('ASN1_CRL_SetRevokedCertificateCertificateSerialNumber',
     'Sets the serial number, of any type, as `ASN1_WriteExplicitFromDERData` does.'),
    ('ASN1_CRL_SetRevokedCertificateRevocationDate',
     'Sets the date from a time, read and written again in the form that it has. `dataType` '
     'must be 23 when the first octet is 0x17 (UTCTime), and 24 otherwise. Returns what '
     '`ASN1_ReadUtcTime` does.'),
    ('ASN1_CRL_SetRevokedCertificateCrlEntryExtensions',
     'Sets the extensions from a SEQUENCE.'),
    ('ASN1_CRL_RevokedCertificateWriteData',
     'Makes the SEQUENCE of a record, the extensions being optional.'),
    ('ASN1_CRL_RevokedCertificateDecode',
     'Decodes an entry. The first element is copied as it stands, the date is read and written '
     'again in its form, and a third element is the extensions. Also `VELKORD_BAD_TIME`.'),
    ('ASN1_CRL_TbsCertListSetVersion',
     'Stores the version number. Only 2 is written, as INTEGER 2.'),
    ('ASN1_CRL_TbsCertListSetSignatureAlgorithmIdentifier ASN1_CRL_TbsCertListSetIssuer '
     'ASN1_CRL_TbsCertListSetRevokedCertificates ASN1_CRL_TbsCertListSetCrlExtensions',
     'Sets a field from a SEQUENCE.'),
    ('ASN1_CRL_TbsCertListSetThisUpdate',
     'Stores the time of this list, in seconds, and the form of both times: 1 for UTCTime, any '
     'other number for GeneralizedTime. A negative time fails when it is written.'),
    ('ASN1_CRL_TbsCertListSetNextUpdate',
     'Stores the time of the next list, in seconds, and sets its flag.'),
    ('ASN1_CRL_TbsCertListWriteData',
     'Makes the SEQUENCE of a record, the extensions under `[0]` EXPLICIT. Also '
     '`VELKORD_NEGATIVE_TIME`, and `VELKORD_OUT_OF_MEMORY` when the platform refuses a time.'),
    ('ASN1_CRL_TbsCertListDecode',
     'Decodes a TbsCertList. Optional elements are recognised by their first octet: 0x02 the '
     'version; after thisUpdate, which sets the form, 0x17 or 0x18 nextUpdate, then 0x30 the '
     'revoked certificates; whatever is next is the extensions, of which the content is kept '
     'as it stands. A version other than 2, and a nextUpdate in the other form than '
     'thisUpdate, are not written again as they were. Also `VELKORD_BAD_TIME`: one time that '
     'is not read refuses the list.'),
    ('ASN1_CRL_SetCertificateListTBSCertList ASN1_CRL_SetCertificateListAlgorithmIdentifier',
     'Sets the signed part or the algorithm from a SEQUENCE.'),
    ('ASN1_CRL_SetCertificateListSignatureValue',
     'Sets the signature as `ASN1_CertificateSetSignatureValue` does.'),
    ('ASN1_CRL_CertificateListWriteData',
     'Makes the SEQUENCE of a record, all three fields.'),
    ('ASN1_CRL_CertificateListDecode',
     'Decodes a revocation list. Its signature, of any type, is copied as the setter copies '
     'it.'),
    ('ASN1_CreatePKCS10 ASN1_CreatePKCS10Request',
     'Creates an empty record.'),
    ('ASN1_FreePKCS10 ASN1_FreePKCS10Request',
     'Releases a record.'),
    ('ASN1_PKCS10SetVersion',
     'Sets the version number, 0 for version 1.'),
    ('ASN1_PKCS10SetSubject ASN1_PKCS10SetSubjectPublicKeyInfo',
     'Sets a field from a SEQUENCE.'),
    ('ASN1_PKCS10SetAttributes',
     'Sets the attributes, a SET, under `[0]` as `ASN1_WriteImplicit` does.'),
    ('ASN1_PKCS10WriteData',
     'Makes the SEQUENCE of a record, all four fields.'),
    ('ASN1_PKCS10Decode',
     'Decodes the signed part of a request. The first element is read as a number and written '
     'again. The attributes may be missing, and such a record can be written only after they '
     'are set; they come back constructed under the tag number of their element, or under the '
     'one octet BF for a tag of several octets. An element that is not a constructed context '
     'or private one loses its first content octet when its tag is odd, and must then have '
     'one.'),
    ('ASN1_PKCS10RequestSetCertificationRequestInfo ASN1_PKCS10RequestSetAlgorithmIdentifier',
     'Sets the signed part or the algorithm from a SEQUENCE.'),
    ('ASN1_PKCS10RequestSetSignature',
     'Sets the signature as `ASN1_CertificateSetSignatureValue` does.'),
    ('ASN1_PKCS10RequestWriteData',
     'Makes the SEQUENCE of a record, all three fields.'),
    ('ASN1_PKCS10RequestDecode',
     'Decodes a request as `ASN1_CRL_CertificateListDecode` does a list.'),
    ('ASN1_PKCS6_CreateExtendedCertificateInfo ASN1_PKCS6_CreateExtendedCertificate',
     'Creates an empty record.'),
    ('ASN1_PKCS6_FreeExtendedCertificateInfo ASN1_PKCS6_FreeExtendedCertificate',
     'Releases a record.'),
    ('ASN1_PKCS6_SetCertificateInfoVersion',
     'Stores the version number.'),
    ('ASN1_PKCS6_SetCertificateInfoX509 ASN1_PKCS6_SetCertificateInfoAttributes',
     'Sets the certificate from a SEQUENCE, or the attributes from a SET.'),
    ('ASN1_PKCS6_CertificateInfoWriteData',
     'Makes the SEQUENCE of a record, all three fields.'),
    ('ASN1_PKCS6_CertificateInfoDecode',
     'Decodes the signed part. The version is the low 32 bits of a first element of any type.'),
    ('ASN1_PKCS6_SetCertificateCertificateInfo '
     'ASN1_PKCS6_SetCertificateSignatureAlgorithmIdentifier',
     'Sets the signed part or the algorithm from a SEQUENCE.'),
    ('ASN1_PKCS6_SetCertificateSignature',
     'Sets the signature as `ASN1_CertificateSetSignatureValue` does.'),
    ('ASN1_PKCS6_CertificateWriteData',
     'Makes the SEQUENCE of a record, all three fields.'),
    ('ASN1_PKCS6_CertificateDecode',
     'Decodes an extended certificate as `ASN1_CRL_CertificateListDecode` does a list.'),
    ('ASN1_PKCS7_CreateContext',
     'Creates an empty record.'),
    ('ASN1_PKCS7_FreeContext',
     'Releases a record.'),
    ('ASN1_PKCS7_SetContentType',
     'Sets the content type, of any type, as `ASN1_WriteExplicitFromDERData` does.'),
    ('ASN1_PKCS7_SetContent',
     'Sets the content from the bytes of a node of either form, under `[0]` EXPLICIT.'),
    ('ASN1_PKCS7_WriteData',
     'Makes the SEQUENCE of a record: the content type, and the content if it is set.'),
    ('ASN1_PKCS7_Decode',
     'Decodes a ContentInfo. The content may be missing; its tag is not tested and comes off, '
     'so that a decoded record is not written as it was read.'),
    ('ZantEncodePublicKey ZantEncodePrivateKey',
     'Writes the DER of a key to `der` and its size to `derLen`: RSAPublicKey, at most 526 '
     'bytes, or RSAPrivateKey of PKCS#1, at most 1450. With a null `der` the size alone is '
     'written. Returns `VELKORD_OK`, or `VELKORD_FAILURE` when a number is 0; when it is only '
     'some of the last five of a private key, `VELKORD_OK`, and **nothing is written**: preset '
     '`derLen` to 0.'),
    ('ZantDecodePublicKey ZantDecodePrivateKey',
     'Fills a record from DER of exactly `derLen` bytes. A private key may be inside a '
     'PrivateKeyInfo of PKCS#8, recognised by a second element with 13 bytes of content. No '
     'tag but that of the SEQUENCE around the numbers, and around the PrivateKeyInfo, is '
     'tested. A failure while reading leaves the numbers read so far and zero bytes elsewhere; '
     'with a `derLen` below 1 it fails before that. A decoded record is not ready to be '
     'encoded unless every number fills its field. Returns `VELKORD_OK`, or like Opens '
     '`VELKORD_FAILURE` (also for a number too long for its field), `VELKORD_SIZE_MISMATCH` or '
     '`VELKORD_WRONG_TAG`.'),
    ('ASN1_EccPubkey2Der',
     'Writes the 312 bytes of a SubjectPublicKeyInfo to `der` and 312 to `derLen`. It states '
     'one constant curve of 256 bits by its parameters; `bits` is not read.'),
    ('ASN1_Der2EccPubkey',
     'Fills a record from the DER of a SubjectPublicKeyInfo of exactly `derLen` bytes, '
     "whatever its algorithm: the point's second to 65th byte and `bits`, 256. The point's "
     'first byte is not tested, and bytes after the 65th are skipped, so **a point of P-384 '
     'passes**: test that it has 65 bytes. A shorter one is refused.'),
    ('ASN1_Der2EccPrikey',
     'Fills a record from the DER of an ECPrivateKey in a PrivateKeyInfo of PKCS#8, of exactly '
     '`derLen` bytes, whatever its algorithm; `bits` becomes 256. A value of less than 32 '
     'bytes goes to the start of `d`, and the bytes after it stay; a longer one is refused.'),
    ('ASN1_SM2_SM2SignatureEncode',
     'Writes the SEQUENCE of two positive INTEGERs to `der`, which needs room for both numbers '
     'and 20 bytes more. Leading zero bytes stay.'),
    ('ASN1_SM2_SM2SignatureDecode',
     'Copies the two numbers of a signature, each without the zero byte that keeps it '
     'positive. It is no test that they are DER, and writing again shows no leading zeros. `r` '
     'and `s` need `derLen` bytes each.'),
    ('ASN1_SM2_PrikeyEncode',
     'Writes a private value as an INTEGER to `der`, 7 bytes more at most. Leading zeros stay.'),
    ('ASN1_SM2_PrikeyDecode',
     'Copies a private value without the zero byte that keeps it positive. `value` needs '
     '`derLen` bytes.'),
    ('ASN1_SM2_PubkeyEncode',
     'Writes a public point as a BIT STRING to `der`: at most 5 bytes, then 0x04, X and Y, '
     'together at most 256. The last byte decides on the unused-bits octet, as in '
     '`ASN1_CreateAnybuf`.'),
    ('ASN1_SM2_PubkeyDecode',
     'Copies the two halves, of equal length, of what follows the first byte of a public '
     'point; an odd last byte is left out, and of a point without bytes both are empty. `x` '
     'and `y` need half of `derLen` each, at most 127 bytes.'),
    ('base64_encode',
     'Writes Base64 text and a terminating zero to `out`, without line breaks. `out` needs 4 '
     'bytes for each 3 bytes of input or part of them, and 1 more. Returns `VELKORD_OK`.'),
    ('base64_decode',
     'Decodes zero-terminated Base64 text in groups of four characters, up to a group with '
     '"=". One to three characters at the end are ignored. A character outside the alphabet '
     'keeps the value of the same place in the group before. `out` needs 3 bytes for each 4 '
     'characters. Returns `VELKORD_OK`.'),
    ('DER2PEM_data_format',
     'Writes DER bytes as PEM text: `header`, Base64 in lines of 64 characters, `footer`, each '
     'line with CR LF, and a terminating zero that `outLength` does not count. `header` and '
     '`footer` are whole zero-terminated lines without their line end; an empty one is left '
     'out. With B the size of the Base64 text, `out` needs B, 2 for each 64 characters of B or '
     'part of them, 2 and the text for each of header and footer that is not empty, and 1 '
     'more. For no input `outLength` is 0 and nothing else is written. Returns `VELKORD_OK`, '
     'or `VELKORD_FAILURE` for a `length` of 2^30 or more, and when header and footer make the '
     'text longer than a `uint32_t` counts.'),
    ('PEM2DER_data_format',
     'Decodes the first PEM block of a text of `length` characters, or bare Base64 when the '
     'text has no "-". Any "-" in front counts as its start, and header lines as its body: '
     'give it one block without them. Characters outside the alphabet are skipped. `out` needs '
     '3 bytes for each 4 Base64 characters of the body. Returns `VELKORD_OK`, or '
     '`VELKORD_FAILURE` when a marker or the end of the body is missing.'),
    ('uniToUTF8',
     'Writes the UTF-8 form of a code point to `out`, which has room for `outSize` bytes. '
     'Returns its number of bytes, for a null `out` too, or -1 when the room is too small.'),
    ('utf8ToUni',
     'Reads one UTF-8 form from at most `inLen` bytes; `code` is written on success only. '
     'Returns the number of bytes read; 0 when `inLen` is below 1; -1 when the form is cut '
     'off; -2 when the first byte opens none; -3 when a following byte is no continuation; -4 '
     'when a shorter form exists.'),
    ('ctouni',
     'Returns the code point of a GB code, or for one that is not assigned that of a row near '
     'it.'),
    ('unitoc',
     'Returns the GB code of a code point, or 0 when it has none.'),
    ('zhToWc',
     'Returns the GB code of `n` bytes, at most 2; missing bytes count as 0.'),
    ('wcToZh',
     'Writes the two bytes of a GB code to `out` and 2 to `outLen`.'),
    ('zhsToUtf8s',
     'Turns GB2312 text into UTF-8, 3 bytes at most for each pair of bytes. An odd byte is '
     'ignored.'),
    ('utf8sToZhs',
     'Turns UTF-8 text into GB2312. ASCII stays as it is; of a character that GB2312 lacks, '
     'and of malformed input, the first byte is kept. A null `in` is no text. `out` needs '
     '`inLen` bytes.'),
) for name in names.split()}


def declare(library):
    """Gives all functions of a loaded library their types."""
    for name, (result, arguments) in FUNCTIONS.items():
        function = getattr(library, name)
        function.restype = result
        function.argtypes = list(arguments.values())
