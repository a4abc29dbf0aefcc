// Made by scripts/make-bindings from include/Velkord.h, which tells what each function takes and
// gives, and who releases it.
// What a function hands out goes to a var argument, which a function that fails leaves as it was:
// start with nil or 0. A PByte or PAnsiChar for a result points to the room that the header asks
// for.
unit Velkord;

{$IFDEF FPC}{$MODE DELPHI}{$PACKRECORDS C}{$ELSE}{$ALIGN 8}{$ENDIF}

interface

const
  VelkordLibrary = {$IFDEF MSWINDOWS}'Velkord.dll'{$ELSE}'libVelkord.so'{$ENDIF};

// ==== Return codes. What each means, by the first word of a comment or by family.
  // Success.
  VELKORD_OK = 0;
  // No memory, a length too long, a child that does not fit.
  VELKORD_FAILURE = -1;
  // Tag, length and content are not the bytes given.
  VELKORD_SIZE_MISMATCH = -2;
  // A time below 0.
  VELKORD_NEGATIVE_TIME = -4;
  // A malformed time text.
  VELKORD_BAD_TIME = -5;
  // Another type than the one that is needed.
  VELKORD_WRONG_TAG = -7;
  // A null argument, or a required field that was never set.
  VELKORD_NULL_ARGUMENT = -8;
  // No memory for a record, or a time outside 1970 to 2038.
  VELKORD_OUT_OF_MEMORY = -7000;

// ==== Records. What functions fill and read, field by field.

type
  // The value node.
  PAnybuf = ^TAnybuf;
  TAnybuf = record
    data: PByte;
    dataLen: Cardinal;
    unusedBits: Cardinal;
    memKind: Cardinal;
    dataType: Cardinal;
    next: PAnybuf;
    prev: PAnybuf;
  end;

  // An object identifier: a number of the caller's, then the fields of a content node.
  PObjectID = ^TObjectID;
  TObjectID = record
    id: Integer;
    data: PByte;
    dataLen: Cardinal;
    unusedBits: Cardinal;
    memKind: Cardinal;
    dataType: Cardinal;
    next: PAnybuf;
    prev: PAnybuf;
  end;

  // One attribute of a name.
  PAttributeTypeAndValue = ^TAttributeTypeAndValue;
  TAttributeTypeAndValue = record
    &type: PAnybuf;
    value: PAnybuf;
  end;

  // The signed part of a certificate.
  PTBSCertificate = ^TTBSCertificate;
  TTBSCertificate = record
    version: Cardinal;
    hasIssuerUniqueID: Cardinal;
    hasSubjectUniqueID: Cardinal;
    hasExtensions: Cardinal;
    versionNode: PAnybuf;
    serialNumber: PAnybuf;
    signature: PAnybuf;
    issuer: PAnybuf;
    validity: PAnybuf;
    subject: PAnybuf;
    subjectPublicKeyInfo: PAnybuf;
    issuerUniqueID: PAnybuf;
    subjectUniqueID: PAnybuf;
    extensions: PAnybuf;
  end;

  // A signed certificate.
  PCertificate = ^TCertificate;
  TCertificate = record
    tbsCertificate: PAnybuf;
    signatureAlgorithm: PAnybuf;
    signatureValue: PAnybuf;
  end;

  // One entry of a revocation list.
  PRevokedCertificate = ^TRevokedCertificate;
  TRevokedCertificate = record
    hasCrlEntryExtensions: Cardinal;
    certificateSerialNumber: PAnybuf;
    revocationDate: PAnybuf;
    crlEntryExtensions: PAnybuf;
  end;

  // The signed part of a revocation list.
  PTbsCertList = ^TTbsCertList;
  TTbsCertList = record
    hasRevokedCertificates: Cardinal;
    hasCrlExtensions: Cardinal;
    hasNextUpdate: Cardinal;
    timeForm: Cardinal;
    version: Cardinal;
    signature: PAnybuf;
    issuer: PAnybuf;
    thisUpdate: Integer;
    nextUpdate: Integer;
    revokedCertificates: PAnybuf;
    crlExtensions: PAnybuf;
  end;

  // A signed revocation list.
  PCertificateList = ^TCertificateList;
  TCertificateList = record
    tbsCertList: PAnybuf;
    signatureAlgorithm: PAnybuf;
    signatureValue: PAnybuf;
  end;

  // The signed part of a PKCS#10 certification request.
  PPKCS10 = ^TPKCS10;
  TPKCS10 = record
    version: PAnybuf;
    subject: PAnybuf;
    subjectPublicKeyInfo: PAnybuf;
    attributes: PAnybuf;
  end;

  // A signed PKCS#10 certification request.
  PPKCS10Request = ^TPKCS10Request;
  TPKCS10Request = record
    certificationRequestInfo: PAnybuf;
    signatureAlgorithm: PAnybuf;
    signature: PAnybuf;
  end;

  // The signed part of a PKCS#6 extended certificate.
  PExtendedCertificateInfo = ^TExtendedCertificateInfo;
  TExtendedCertificateInfo = record
    version: Cardinal;
    certificate: PAnybuf;
    attributes: PAnybuf;
  end;

  // A signed PKCS#6 extended certificate.
  PExtendedCertificate = ^TExtendedCertificate;
  TExtendedCertificate = record
    extendedCertificateInfo: PAnybuf;
    signatureAlgorithm: PAnybuf;
    signature: PAnybuf;
  end;

  // A PKCS#7 ContentInfo.
  PPKCS7Context = ^TPKCS7Context;
  TPKCS7Context = record
    contentType: PAnybuf;
    content: PAnybuf;
  end;

  // An RSA public key: big-endian numbers.
  PZantPublicKey = ^TZantPublicKey;
  TZantPublicKey = record
    modulus: array[0..255] of Byte;
    publicExponent: array[0..255] of Byte;
  end;

  // An RSA private key, its numbers placed as in `ZantPublicKey`.
  PZantPrivateKey = ^TZantPrivateKey;
  TZantPrivateKey = record
    modulus: array[0..255] of Byte;
    publicExponent: array[0..255] of Byte;
    privateExponent: array[0..255] of Byte;
    prime1: array[0..127] of Byte;
    prime2: array[0..127] of Byte;
    exponent1: array[0..127] of Byte;
    exponent2: array[0..127] of Byte;
    coefficient: array[0..127] of Byte;
  end;

  // The public key of an elliptic curve of 256 bits: the coordinates big-endian at full width.
  PEccPubkey = ^TEccPubkey;
  TEccPubkey = record
    bits: Cardinal;
    x: array[0..31] of Byte;
    y: array[0..31] of Byte;
  end;

  // The private key of an elliptic curve of 256 bits.
  PEccPrikey = ^TEccPrikey;
  TEccPrikey = record
    bits: Cardinal;
    d: array[0..31] of Byte;
  end;

  // One subject attribute of an inspected certificate.
  PCertEntry = ^TCertEntry;
  TCertEntry = record
    oid: PByte;
    oidLen: Cardinal;
    value: PByte;
    valueLen: Cardinal;
    next: PCertEntry;
  end;

  // A list entry of the caller's own, released with the record that holds it.
  PCertWideEntry = ^TCertWideEntry;
  TCertWideEntry = record
    block1: PByte;
    word2: NativeUInt;
    block3: PByte;
    word4: NativeUInt;
    word5: NativeUInt;
    next: PCertWideEntry;
  end;

  // A caller's view of a decoded certificate: 23 words, each as wide as a pointer.
  PX509Cert = ^TX509Cert;
  TX509Cert = record
    word1: NativeUInt;
    word2: NativeUInt;
    word3: NativeUInt;
    block1: PByte;
    word5: NativeUInt;
    word6: NativeUInt;
    block2: PByte;
    word8: NativeUInt;
    tbs: PTBSCertificate;
    word10: NativeUInt;
    word11: NativeUInt;
    word12: NativeUInt;
    block3: PByte;
    word14: NativeUInt;
    entriesA: PCertEntry;
    subjectEntries: PCertEntry;
    word17: NativeUInt;
    word18: NativeUInt;
    block4: PByte;
    word20: NativeUInt;
    block5: PByte;
    word22: NativeUInt;
    entriesB: PCertWideEntry;
  end;

// ==== Value nodes

// Makes a content node with a copy of `length` bytes.
function ASN1_CreateAnybuf(ABytes: PByte; ALength: Cardinal; AType: Byte;
  var AOut: PAnybuf): Integer; cdecl; external VelkordLibrary name 'ASN1_CreateAnybuf';

// Makes a node of DER bytes, unchanged.
function ASN1_WriteExplicitFromDERData(ABytes: PByte; ALength: Cardinal;
  var AOut: PAnybuf): Integer; cdecl; external VelkordLibrary name 'ASN1_WriteExplicitFromDERData';

// Releases `node` and every node after it, so it is for the head of a chain only.
procedure ASN1_FreeAnybuf(ANode: PAnybuf); cdecl; external VelkordLibrary name 'ASN1_FreeAnybuf';

// ==== Byte and character strings, ENUMERATED, BOOLEAN, NULL. Writing differs by the tag alone;
// ==== reading is the same for all. CharString is PrintableString.

// Makes an element over a content node of any type.
function ASN1_WriteOctetString(ASource: PAnybuf; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_WriteOctetString';

function ASN1_WriteBitString(ASource: PAnybuf; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_WriteBitString';

function ASN1_WriteCharString(ASource: PAnybuf; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_WriteCharString';

function ASN1_WriteUTF8String(ASource: PAnybuf; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_WriteUTF8String';

function ASN1_WriteBmpString(ASource: PAnybuf; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_WriteBmpString';

function ASN1_WriteIa5String(ASource: PAnybuf; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_WriteIa5String';

function ASN1_WriteEnumerated(ASource: PAnybuf; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_WriteEnumerated';

function ASN1_WritePrintableString(ASource: PAnybuf; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_WritePrintableString';

// Makes an element over content bytes.
function ASN1_WriteOctetStringFromBytes(ABytes: PByte; ALength: Cardinal;
  var AOut: PAnybuf): Integer; cdecl; external VelkordLibrary name 'ASN1_WriteOctetStringFromBytes';

function ASN1_WriteBitStringFromBytes(ABytes: PByte; ALength: Cardinal; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_WriteBitStringFromBytes';

function ASN1_WriteCharStringFromBytes(ABytes: PByte; ALength: Cardinal;
  var AOut: PAnybuf): Integer; cdecl; external VelkordLibrary name 'ASN1_WriteCharStringFromBytes';

function ASN1_WriteUTF8StringFromBytes(ABytes: PByte; ALength: Cardinal;
  var AOut: PAnybuf): Integer; cdecl; external VelkordLibrary name 'ASN1_WriteUTF8StringFromBytes';

function ASN1_WriteBmpStringFromBytes(ABytes: PByte; ALength: Cardinal; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_WriteBmpStringFromBytes';

function ASN1_WriteIa5StringFromBytes(ABytes: PByte; ALength: Cardinal; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_WriteIa5StringFromBytes';

// Makes a PrintableString over content bytes when `selector` is not 0, and a BMPString when it is.
function ASN1_WritePrintableStringFromBytes(ASelector: Integer; ABytes: PByte; ALength: Cardinal;
  var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_WritePrintableStringFromBytes';

// Other names of `ASN1_WriteExplicitFromDERData`; none tests the type.
function ASN1_WriteOctetStringFromDERBytes(ABytes: PByte; ALength: Cardinal;
  var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_WriteOctetStringFromDERBytes';

function ASN1_WriteCharStringFromDERBytes(ABytes: PByte; ALength: Cardinal;
  var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_WriteCharStringFromDERBytes';

function ASN1_WriteUTF8StringFromDERBytes(ABytes: PByte; ALength: Cardinal;
  var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_WriteUTF8StringFromDERBytes';

function ASN1_WriteBmpStringFromDERBytes(ABytes: PByte; ALength: Cardinal;
  var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_WriteBmpStringFromDERBytes';

function ASN1_WriteIa5StringFromDERBytes(ABytes: PByte; ALength: Cardinal;
  var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_WriteIa5StringFromDERBytes';

function ASN1_WritePrintableStringFromDERBytes(ABytes: PByte; ALength: Cardinal;
  var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_WritePrintableStringFromDERBytes';

// Reads the DER bytes of a BIT STRING into a node, unchanged; `unusedBits` is the octet after the
// header.
function ASN1_WriteBitStringFromDERBytes(ABytes: PByte; ALength: Cardinal;
  var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_WriteBitStringFromDERBytes';

// Reads an element of any type into a content node; `dataType` is the tag that was read.
function ASN1_ReadBitString(ASource: PAnybuf; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_ReadBitString';

function ASN1_ReadBmpString(ASource: PAnybuf; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_ReadBmpString';

function ASN1_ReadCharString(ASource: PAnybuf; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_ReadCharString';

function ASN1_ReadEnumerated(ASource: PAnybuf; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_ReadEnumerated';

function ASN1_ReadIa5String(ASource: PAnybuf; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_ReadIa5String';

function ASN1_ReadOctetString(ASource: PAnybuf; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_ReadOctetString';

function ASN1_ReadPrintableString(ASource: PAnybuf; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_ReadPrintableString';

function ASN1_ReadUTF8String(ASource: PAnybuf; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_ReadUTF8String';

// Reads the same content into `out` and its size into `outLength`.
function ASN1_ReadCharStringToBytes(ASource: PAnybuf; AOut: PByte;
  var AOutLength: Cardinal): Integer;
  cdecl; external VelkordLibrary name 'ASN1_ReadCharStringToBytes';

function ASN1_ReadIa5StringToBytes(ASource: PAnybuf; AOut: PByte;
  var AOutLength: Cardinal): Integer;
  cdecl; external VelkordLibrary name 'ASN1_ReadIa5StringToBytes';

function ASN1_ReadOctetStringToBytes(ASource: PAnybuf; AOut: PByte;
  var AOutLength: Cardinal): Integer;
  cdecl; external VelkordLibrary name 'ASN1_ReadOctetStringToBytes';

function ASN1_ReadPrintableStringToBytes(ASource: PAnybuf; AOut: PByte;
  var AOutLength: Cardinal): Integer;
  cdecl; external VelkordLibrary name 'ASN1_ReadPrintableStringToBytes';

function ASN1_ReadUTF8StringToBytes(ASource: PAnybuf; AOut: PByte;
  var AOutLength: Cardinal): Integer;
  cdecl; external VelkordLibrary name 'ASN1_ReadUTF8StringToBytes';

// Reads the same of BMP text without the high bytes that are zero and without an odd last byte.
function ASN1_ReadBmpStringToBytes(ASource: PAnybuf; AOut: PByte;
  var AOutLength: Cardinal): Integer;
  cdecl; external VelkordLibrary name 'ASN1_ReadBmpStringToBytes';

// Makes a BOOLEAN with the byte at `value` unchanged.
function ASN1_WriteBoolean(AValue: PByte; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_WriteBoolean';

// Reads the first content octet of an element of any type, of a BIT STRING its unused-bits octet.
function ASN1_ReadBoolean(ASource: PAnybuf; AValue: PByte): Integer;
  cdecl; external VelkordLibrary name 'ASN1_ReadBoolean';

// Makes a NULL.
function ASN1_WriteNull(var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_WriteNull';

// ==== INTEGER. Numbers are unsigned; those of any size are big-endian bytes.

// Makes the content octets of a number, 1 to 5 of them, and their count in a cell of its own.
function Asn1LowIntToChar(AValue: Cardinal; var AOutBytes: PByte;
  var AOutLength: PCardinal): Integer; cdecl; external VelkordLibrary name 'Asn1LowIntToChar';

// Makes the INTEGER of a number.
function ASN1_WriteInteger(AValue: Cardinal; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_WriteInteger';

// Reads the low 32 bits of the number in an element of any type.
function ASN1_ReadInteger(ASource: PAnybuf; var AValue: Cardinal): Integer;
  cdecl; external VelkordLibrary name 'ASN1_ReadInteger';

// Makes an INTEGER over a content node of any type or over bytes: a zero octet goes in front of a
// first byte of 0x80 or more; leading zeros stay.
function ASN1_WriteIntegerArray(ASource: PAnybuf; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_WriteIntegerArray';

function ASN1_WriteIntegerArrayFromBytes(ABytes: PByte; ALength: Cardinal;
  var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_WriteIntegerArrayFromBytes';

// Another name of `ASN1_WriteExplicitFromDERData`.
function ASN1_WriteIntegerArrayFromDERBytes(ABytes: PByte; ALength: Cardinal;
  var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_WriteIntegerArrayFromDERBytes';

// Another name of `ASN1_ReadBitString`.
function ASN1_ReadIntegerArray(ASource: PAnybuf; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_ReadIntegerArray';

// Another name of `ASN1_ReadOctetStringToBytes`.
function ASN1_ReadIntegerArrayToBytes(ASource: PAnybuf; AOut: PByte;
  var AOutLength: Cardinal): Integer;
  cdecl; external VelkordLibrary name 'ASN1_ReadIntegerArrayToBytes';

// ==== OBJECT IDENTIFIER

// Turns dotted text of `textLength` characters into content octets; blanks may stand for points.
function ASN1_OBJECT_a2d(AOut: PByte; var AOutLength: Cardinal; AText: PAnsiChar;
  ATextLength: Integer): Integer; cdecl; external VelkordLibrary name 'ASN1_OBJECT_a2d';

// Makes an OBJECT IDENTIFIER over content octets; `id` has no effect.
function ASN1_WriteObjectId(ARecord: PObjectID; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_WriteObjectId';

function ASN1_WriteObjectIdFromData(AId: Integer; ABytes: PByte; ALength: Cardinal;
  var AOut: PAnybuf): Integer; cdecl; external VelkordLibrary name 'ASN1_WriteObjectIdFromData';

// Another name of `ASN1_WriteExplicitFromDERData`.
function ASN1_WriteObjectIdFromDERBytes(ABytes: PByte; ALength: Cardinal;
  var AOut: PAnybuf): Integer; cdecl; external VelkordLibrary name 'ASN1_WriteObjectIdFromDERBytes';

// Reads the content of an element of any type into a new record.
function ASN1_ReadObjectId(ASource: PAnybuf; var AOut: PObjectID): Integer;
  cdecl; external VelkordLibrary name 'ASN1_ReadObjectId';

// Releases a record and its `data`; `next` is not followed.
procedure ASN1_FreeObjectID(ARecord: PObjectID);
  cdecl; external VelkordLibrary name 'ASN1_FreeObjectID';

// Another name of `ASN1_ReadOctetStringToBytes`.
function ASN1_ReadObjectIdToBytes(ASource: PAnybuf; AOut: PByte; var AOutLength: Cardinal): Integer;
  cdecl; external VelkordLibrary name 'ASN1_ReadObjectIdToBytes';

// ==== SEQUENCE and SET. Chains are built, joined and split. The order of the elements stays as it
// ==== is, in a SET too.

// Makes a chain of one node, a copy of `element`; its `next` is not followed.
function ASN1_CreateSequence(AElement: PAnybuf; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_CreateSequence';

function ASN1_CreateSet(AElement: PAnybuf; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_CreateSet';

// Appends a copy of `element` at the end of `chain`, to which it walks.
procedure ASN1_AddSequence(AElement: PAnybuf; AChain: PAnybuf);
  cdecl; external VelkordLibrary name 'ASN1_AddSequence';

procedure ASN1_AddSet(AElement: PAnybuf; AChain: PAnybuf);
  cdecl; external VelkordLibrary name 'ASN1_AddSet';

// Other names of `ASN1_FreeAnybuf`.
procedure ASN1_FreeSequence(AChain: PAnybuf);
  cdecl; external VelkordLibrary name 'ASN1_FreeSequence';

procedure ASN1_FreeSet(AChain: PAnybuf); cdecl; external VelkordLibrary name 'ASN1_FreeSet';

// Makes one SEQUENCE or SET over the bytes of a chain; a null chain makes an empty element.
function ASN1_WriteSequence(AChain: PAnybuf; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_WriteSequence';

function ASN1_WriteSet(AChain: PAnybuf; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_WriteSet';

// Opens a SEQUENCE or SET, in a node or in bytes: the chain of its children, null for none.
function ASN1_ReadSequence(ASource: PAnybuf; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_ReadSequence';

function ASN1_ReadSet(ASource: PAnybuf; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_ReadSet';

function ASN1_WriteSequenceFromDERBytes(ABytes: PByte; ALength: Cardinal;
  var AOut: PAnybuf): Integer; cdecl; external VelkordLibrary name 'ASN1_WriteSequenceFromDERBytes';

function ASN1_WriteSetFromDERData(ABytes: PByte; ALength: Cardinal; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_WriteSetFromDERData';

// ==== EXPLICIT and IMPLICIT tags. Of a tag number the low byte counts.

// Makes an element of tag octet `tagNumber | 0xA0` around a node of either form, or around bytes.
function ASN1_WriteExplicit(ASource: PAnybuf; ATagNumber: Byte; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_WriteExplicit';

function ASN1_WriteExplicitFromData(ATagNumber: Cardinal; ABytes: PByte; ALength: Cardinal;
  var AOut: PAnybuf): Integer; cdecl; external VelkordLibrary name 'ASN1_WriteExplicitFromData';

// Reads an element of any type: its content as `ASN1_ReadBitString` does, and its reduced tag, 0xA3
// for `[3]`.
function ASN1_ReadExplicit(ASource: PAnybuf; var AOut: PAnybuf; var AOutTag: Cardinal): Integer;
  cdecl; external VelkordLibrary name 'ASN1_ReadExplicit';

function ASN1_ReadExplicitToBytes(ASource: PAnybuf; AOut: PByte; var AOutLength: Cardinal;
  var AOutTag: Cardinal): Integer; cdecl; external VelkordLibrary name 'ASN1_ReadExplicitToBytes';

// Reads an element and makes one of the same content under another tag: `tagNumber | 0xA0` for a
// source of `dataType` 16 or 17, `tagNumber | 0x80` otherwise.
function ASN1_WriteImplicit(ASource: PAnybuf; ATagNumber: Cardinal; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_WriteImplicit';

// Reads an element under an IMPLICIT tag.
function ASN1_ReadImplicit(ASource: PAnybuf; var AOut: PAnybuf;
  var AOutTagNumber: Cardinal): Integer; cdecl; external VelkordLibrary name 'ASN1_ReadImplicit';

// ==== Time. A time is a number of seconds since 1 January 1970. The text of an element is the
// ==== machine's local time followed by "Z", so it is UTC only where the local zone is UTC. The
// ==== zone is that of the C library: the one that TZ names at the call, or without TZ the one that
// ==== it has read; whoever changes that calls `tzset`, on Windows `_tzset`. The C library looks
// ==== for TZ with `getenv`, and a `setenv` of any variable moves what that reads. So no thread may
// ==== change the environment during a call that reads or writes a time: one of the functions
// ==== below, `ASN1_GetValidity`, or one that sets, writes or decodes a revocation list or an entry
// ==== of it.

// Makes the element of a time.
function ASN1_WriteGeneralizedTime(ATime: PInteger; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_WriteGeneralizedTime';

function ASN1_WriteUtcTime(ATime: PInteger; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_WriteUtcTime';

// Reads the time of an element of that form.
function ASN1_ReadGeneralizedTime(ASource: PAnybuf; var ATime: Integer): Integer;
  cdecl; external VelkordLibrary name 'ASN1_ReadGeneralizedTime';

function ASN1_ReadUtcTime(ASource: PAnybuf; var ATime: Integer): Integer;
  cdecl; external VelkordLibrary name 'ASN1_ReadUtcTime';

// ==== Names. A name is a SEQUENCE of relative names, and a relative name a SET of attributes. The
// ==== value of an attribute is a UTF8String, PrintableString or IA5String; for another type a
// ==== function that looks at it returns `VELKORD_WRONG_TAG`.

// Creates a record with copies of two nodes.
function ASN1_SetAttributeTypeAndValue(AType: PAnybuf; AValue: PAnybuf;
  var AOut: PAttributeTypeAndValue): Integer;
  cdecl; external VelkordLibrary name 'ASN1_SetAttributeTypeAndValue';

// Releases a record.
procedure ASN1_FreeAttributeTypeAndValue(ARecord: PAttributeTypeAndValue);
  cdecl; external VelkordLibrary name 'ASN1_FreeAttributeTypeAndValue';

// Makes the SEQUENCE of an attribute.
function ASN1_GetDerAttributeTypeAndValue(ARecord: PAttributeTypeAndValue;
  var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_GetDerAttributeTypeAndValue';

// Opens the SEQUENCE of an attribute: its OBJECT IDENTIFIER and its value as new nodes.
function ASN1_DecodeDerAttributeTypeAndValue(ASource: PAnybuf; var AOutType: PAnybuf;
  var AOutValue: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_DecodeDerAttributeTypeAndValue';

// Makes the SET of a relative name with one attribute, from its value and its OID as dotted text;
// `id` has no effect.
function ASN1_GetDerRelativeDistinguishedNameOne(AValue: PAnybuf; AId: Integer; AOidText: PAnsiChar;
  AOidTextLength: Integer; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_GetDerRelativeDistinguishedNameOne';

// Opens the SET of a relative name and copies the value and the OID's octets of its first
// attribute, a UTF8String turned into GB2312 by `utf8sToZhs`.
function ASN1_DecodeDerRelativeDistinguishedNameOne(ASource: PAnybuf; AValue: PByte;
  var AValueLength: Cardinal; AOid: PByte; var AOidLength: Cardinal): Integer;
  cdecl; external VelkordLibrary name 'ASN1_DecodeDerRelativeDistinguishedNameOne';

// Other names of `ASN1_CreateSet`: start a chain of relative names or of attributes.
function ASN1_CreateName(AElement: PAnybuf; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_CreateName';

function ASN1_CreateRelativeDistinguishedName(AElement: PAnybuf; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_CreateRelativeDistinguishedName';

// Other names of `ASN1_AddSet`: the element first, the chain second.
procedure ASN1_AddName(AElement: PAnybuf; AChain: PAnybuf);
  cdecl; external VelkordLibrary name 'ASN1_AddName';

procedure ASN1_AddRelativeDistinguishedName(AElement: PAnybuf; AChain: PAnybuf);
  cdecl; external VelkordLibrary name 'ASN1_AddRelativeDistinguishedName';

// Other names of `ASN1_FreeAnybuf`.
procedure ASN1_FreeNames(AChain: PAnybuf); cdecl; external VelkordLibrary name 'ASN1_FreeNames';

procedure ASN1_FreeRelativeDistinguishedName(AChain: PAnybuf);
  cdecl; external VelkordLibrary name 'ASN1_FreeRelativeDistinguishedName';

// Another name of `ASN1_WriteSequence`.
function ASN1_GetDerName(AChain: PAnybuf; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_GetDerName';

// Another name of `ASN1_ReadSequence`.
function ASN1_ReadDerName(ASource: PAnybuf; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_ReadDerName';

// Another name of `ASN1_WriteSet`.
function ASN1_GetDerRelativeDistinguishedName(AChain: PAnybuf; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_GetDerRelativeDistinguishedName';

// Another name of `ASN1_ReadSet`.
function ASN1_ReadRelativeDistinguishedName(ASource: PAnybuf; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_ReadRelativeDistinguishedName';

// Another name of `ASN1_WriteSetFromDERData`.
function ASN1_ReadRelativeDistinguishedNameFromByte(ABytes: PByte; ALength: Cardinal;
  var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_ReadRelativeDistinguishedNameFromByte';

// ==== Validity, algorithms and public keys

// Makes the SEQUENCE of two times, which are not tested.
function ASN1_SetValidity(ANotBefore: PAnybuf; ANotAfter: PAnybuf; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_SetValidity';

// Opens a Validity and reads both times, in either form; of more than two the last is notAfter.
function ASN1_GetValidity(ASource: PAnybuf; var ANotBefore: Integer;
  var ANotAfter: Integer): Integer; cdecl; external VelkordLibrary name 'ASN1_GetValidity';

// Another name of `ASN1_FreeAnybuf`.
procedure ASN1_FreeValidity(AChain: PAnybuf);
  cdecl; external VelkordLibrary name 'ASN1_FreeValidity';

// Makes an AlgorithmIdentifier of `oid` and one more element: `parameter` when it is not null, else
// NULL when `mode` is 1, else `alternative`, which must then be there.
function ASN1_SetAlgorithmIdentifier(AMode: Cardinal; AOid: PAnybuf; AAlternative: PAnybuf;
  AParameter: PAnybuf; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_SetAlgorithmIdentifier';

// Opens an AlgorithmIdentifier.
function ASN1_GetAlgorithmIdentifier(ASource: PAnybuf; var AOutOid: PAnybuf;
  var AOutSequence: PAnybuf; var AOutParameterOid: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_GetAlgorithmIdentifier';

// Another name of `ASN1_FreeAnybuf`.
procedure ASN1_FreeAlgorithmIdentifier(AChain: PAnybuf);
  cdecl; external VelkordLibrary name 'ASN1_FreeAlgorithmIdentifier';

// Makes a SubjectPublicKeyInfo: a copy of `algorithm`, then a BIT STRING over the bytes of `key`, a
// node of either form, as `ASN1_WriteBitStringFromBytes` writes it.
function ASN1_SetSubjectPublicKeyInfo(AAlgorithm: PAnybuf; AKey: PAnybuf;
  var AOut: PAnybuf): Integer; cdecl; external VelkordLibrary name 'ASN1_SetSubjectPublicKeyInfo';

// Opens a SubjectPublicKeyInfo: both parts as new nodes, the unused-bits octet always 0.
function ASN1_GetSubjectPublicKeyInfo(ASource: PAnybuf; var AOutAlgorithm: PAnybuf;
  var AOutKey: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_GetSubjectPublicKeyInfo';

// Another name of `ASN1_FreeAnybuf`.
procedure ASN1_FreeSubjectPublicKeyInfo(AChain: PAnybuf);
  cdecl; external VelkordLibrary name 'ASN1_FreeSubjectPublicKeyInfo';

// Another name of `ASN1_SetValidity`: makes the SEQUENCE of two INTEGERs.
function ASN1_SetRSAPublicKey(AModulus: PAnybuf; AExponent: PAnybuf; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_SetRSAPublicKey';

// Opens the SEQUENCE of an RSA public key: both numbers as new INTEGERs, positive; of more than two
// elements the last is the exponent.
function ASN1_GetRSAPublicKey(ASource: PAnybuf; var AOutModulus: PAnybuf;
  var AOutExponent: PAnybuf): Integer; cdecl; external VelkordLibrary name 'ASN1_GetRSAPublicKey';

// Another name of `ASN1_FreeAnybuf`.
procedure ASN1_FreeRSAPublicKey(AChain: PAnybuf);
  cdecl; external VelkordLibrary name 'ASN1_FreeRSAPublicKey';

// ==== Extensions

// Makes an Extension of an OID, a BOOLEAN, which may be null, and an OCTET STRING; none is tested.
function ASN1_SetExtension(AOid: PAnybuf; ACritical: PAnybuf; AValue: PAnybuf;
  var AOut: PAnybuf): Integer; cdecl; external VelkordLibrary name 'ASN1_SetExtension';

// Makes an Extension from the OID's content octets and the value's bytes.
function ASN1_GetExtensionOne(AId: Integer; AOid: PByte; AOidLength: Cardinal; ACritical: Cardinal;
  AValue: PByte; AValueLength: Cardinal; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_GetExtensionOne';

// Opens an Extension: OBJECT IDENTIFIER, BOOLEAN and OCTET STRING as new nodes.
function ASN1_GetExtension(ASource: PAnybuf; var AOutOid: PAnybuf; var AOutCritical: PAnybuf;
  var AOutValue: PAnybuf): Integer; cdecl; external VelkordLibrary name 'ASN1_GetExtension';

// Another name of `ASN1_FreeAnybuf`.
procedure ASN1_FreeExtension(AChain: PAnybuf);
  cdecl; external VelkordLibrary name 'ASN1_FreeExtension';

// Another name of `ASN1_CreateSet`: starts a list.
function ASN1_CreateExtensions(AElement: PAnybuf; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_CreateExtensions';

// Another name of `ASN1_AddSet`: the element first, the chain second.
procedure ASN1_AddExtensions(AElement: PAnybuf; AChain: PAnybuf);
  cdecl; external VelkordLibrary name 'ASN1_AddExtensions';

// Another name of `ASN1_WriteSequence`.
function ASN1_WriteExtensions(AChain: PAnybuf; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_WriteExtensions';

// Another name of `ASN1_ReadSequence`.
function ASN1_ReadExtensions(ASource: PAnybuf; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_ReadExtensions';

// Another name of `ASN1_FreeAnybuf`.
procedure ASN1_FreeExtensions(AChain: PAnybuf);
  cdecl; external VelkordLibrary name 'ASN1_FreeExtensions';

// ==== Certificates

// Creates an empty record.
function ASN1_CreateTBSCertificate(var AOut: PTBSCertificate): Integer;
  cdecl; external VelkordLibrary name 'ASN1_CreateTBSCertificate';

function ASN1_CreateCertificate(var AOut: PCertificate): Integer;
  cdecl; external VelkordLibrary name 'ASN1_CreateCertificate';

// Releases a record.
procedure ASN1_FreeTBSCertificate(ARecord: PTBSCertificate);
  cdecl; external VelkordLibrary name 'ASN1_FreeTBSCertificate';

procedure ASN1_FreeCertificate(ARecord: PCertificate);
  cdecl; external VelkordLibrary name 'ASN1_FreeCertificate';

// Sets the version number, 2 for a version 3 certificate.
function ASN1_TBSCertificateSetVersion(ARecord: PTBSCertificate; AVersion: Cardinal): Integer;
  cdecl; external VelkordLibrary name 'ASN1_TBSCertificateSetVersion';

// Sets the serial number from a big-endian magnitude.
function ASN1_TBSCertificateSetSerialNumber(ARecord: PTBSCertificate; ABytes: PByte;
  ALength: Cardinal): Integer;
  cdecl; external VelkordLibrary name 'ASN1_TBSCertificateSetSerialNumber';

// Sets a field from a SEQUENCE.
function ASN1_TBSCertificateSetSignatureAlg(ARecord: PTBSCertificate; AValue: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_TBSCertificateSetSignatureAlg';

function ASN1_TBSCertificateSetIssuer(ARecord: PTBSCertificate; AValue: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_TBSCertificateSetIssuer';

function ASN1_TBSCertificateSetValidity(ARecord: PTBSCertificate; AValue: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_TBSCertificateSetValidity';

function ASN1_TBSCertificateSetSubject(ARecord: PTBSCertificate; AValue: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_TBSCertificateSetSubject';

function ASN1_TBSCertificateSetSubjectPublicKeyInfo(ARecord: PTBSCertificate;
  AValue: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_TBSCertificateSetSubjectPublicKeyInfo';

// Sets an optional identifier, a BIT STRING, under `[1]` or `[2]` as `ASN1_WriteImplicit` does.
function ASN1_TBSCertificateSetIssuerUniqueID(ARecord: PTBSCertificate; AValue: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_TBSCertificateSetIssuerUniqueID';

function ASN1_TBSCertificateSetSubjectUniqueID(ARecord: PTBSCertificate; AValue: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_TBSCertificateSetSubjectUniqueID';

// Sets the extensions under `[3]` EXPLICIT: the bytes of their list, which are not tested.
function ASN1_TBSCertificateSetExtensions(ARecord: PTBSCertificate; AValue: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_TBSCertificateSetExtensions';

// Makes the SEQUENCE of a record: seven required fields, then the optional ones.
function ASN1_TBSCertificateWriteData(ARecord: PTBSCertificate; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_TBSCertificateWriteData';

// Decodes a TBSCertificate of seven elements or more.
function ASN1_TBSCertificateDecode(ASource: PAnybuf; var AOut: PTBSCertificate): Integer;
  cdecl; external VelkordLibrary name 'ASN1_TBSCertificateDecode';

// Sets the signed part or the algorithm from a SEQUENCE.
function ASN1_CertificateSetTbsCertificate(ARecord: PCertificate; AValue: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_CertificateSetTbsCertificate';

function ASN1_CertificateSetSignatureAlgorithm(ARecord: PCertificate; AValue: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_CertificateSetSignatureAlgorithm';

// Sets the signature from a BIT STRING, as `ASN1_WriteBitStringFromDERBytes` does.
function ASN1_CertificateSetSignatureValue(ARecord: PCertificate; AValue: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_CertificateSetSignatureValue';

// Makes the SEQUENCE of a record, all three fields.
function ASN1_CertificateWriteData(ARecord: PCertificate; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_CertificateWriteData';

// Decodes a certificate.
function ASN1_CertificateDecode(ABytes: PByte; ALength: Cardinal; var AOut: PCertificate): Integer;
  cdecl; external VelkordLibrary name 'ASN1_CertificateDecode';

// ==== Certificate inspection. Of the DER that is looked into, malformed parts are skipped.

// Makes an empty record, and stores it in `out` too unless that is null.
function X509CertCreate(var AOut: PX509Cert): PX509Cert;
  cdecl; external VelkordLibrary name 'X509CertCreate';

// Releases a record and all that its pointers hold.
procedure X509CertFree(ARecord: PX509Cert); cdecl; external VelkordLibrary name 'X509CertFree';

// Appends one entry to `subjectEntries` for the first attribute of each relative name in the
// subject of `tbs`.
function X509CertGetSubject(ARecord: PX509Cert): Integer;
  cdecl; external VelkordLibrary name 'X509CertGetSubject';

// Looks up the extension whose OID is `oidText`, dotted text of `textLength` characters, in a
// decoded `tbs`.
function X509CertGetOIDValue(ARecord: PX509Cert; AOidText: PAnsiChar; ATextLength: Integer;
  AValue: PByte; var AValueLength: Cardinal): Integer;
  cdecl; external VelkordLibrary name 'X509CertGetOIDValue';

// ==== Revocation lists

// Creates an empty record.
function ASN1_CRL_CreateRevokedCertificate(var AOut: PRevokedCertificate): Integer;
  cdecl; external VelkordLibrary name 'ASN1_CRL_CreateRevokedCertificate';

function ASN1_CRL_CreateTbsCertList(var AOut: PTbsCertList): Integer;
  cdecl; external VelkordLibrary name 'ASN1_CRL_CreateTbsCertList';

function ASN1_CRL_CreateCertificateList(var AOut: PCertificateList): Integer;
  cdecl; external VelkordLibrary name 'ASN1_CRL_CreateCertificateList';

// Releases a record.
procedure ASN1_CRL_FreeRevokedCertificate(ARecord: PRevokedCertificate);
  cdecl; external VelkordLibrary name 'ASN1_CRL_FreeRevokedCertificate';

procedure ASN1_CRL_FreeTbsCertList(ARecord: PTbsCertList);
  cdecl; external VelkordLibrary name 'ASN1_CRL_FreeTbsCertList';

procedure ASN1_CRL_FreeCertificateList(ARecord: PCertificateList);
  cdecl; external VelkordLibrary name 'ASN1_CRL_FreeCertificateList';

// Sets the serial number, of any type, as `ASN1_WriteExplicitFromDERData` does.
function ASN1_CRL_SetRevokedCertificateCertificateSerialNumber(ARecord: PRevokedCertificate;
  AValue: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_CRL_SetRevokedCertificateCertificateSerialNumber';

// Sets the date from a time, read and written again in the form that it has.
function ASN1_CRL_SetRevokedCertificateRevocationDate(ARecord: PRevokedCertificate;
  AValue: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_CRL_SetRevokedCertificateRevocationDate';

// Sets the extensions from a SEQUENCE.
function ASN1_CRL_SetRevokedCertificateCrlEntryExtensions(ARecord: PRevokedCertificate;
  AValue: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_CRL_SetRevokedCertificateCrlEntryExtensions';

// Makes the SEQUENCE of a record, the extensions being optional.
function ASN1_CRL_RevokedCertificateWriteData(ARecord: PRevokedCertificate;
  var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_CRL_RevokedCertificateWriteData';

// Decodes an entry.
function ASN1_CRL_RevokedCertificateDecode(ABytes: PByte; ALength: Cardinal;
  var AOut: PRevokedCertificate): Integer;
  cdecl; external VelkordLibrary name 'ASN1_CRL_RevokedCertificateDecode';

// Stores the version number.
function ASN1_CRL_TbsCertListSetVersion(ARecord: PTbsCertList; AVersion: Cardinal): Integer;
  cdecl; external VelkordLibrary name 'ASN1_CRL_TbsCertListSetVersion';

// Sets a field from a SEQUENCE.
function ASN1_CRL_TbsCertListSetSignatureAlgorithmIdentifier(ARecord: PTbsCertList;
  AValue: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_CRL_TbsCertListSetSignatureAlgorithmIdentifier';

function ASN1_CRL_TbsCertListSetIssuer(ARecord: PTbsCertList; AValue: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_CRL_TbsCertListSetIssuer';

function ASN1_CRL_TbsCertListSetRevokedCertificates(ARecord: PTbsCertList;
  AValue: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_CRL_TbsCertListSetRevokedCertificates';

function ASN1_CRL_TbsCertListSetCrlExtensions(ARecord: PTbsCertList; AValue: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_CRL_TbsCertListSetCrlExtensions';

// Stores the time of this list, in seconds, and the form of both times: 1 for UTCTime, any other
// number for GeneralizedTime.
function ASN1_CRL_TbsCertListSetThisUpdate(ARecord: PTbsCertList; ATime: Integer;
  AForm: Cardinal): Integer;
  cdecl; external VelkordLibrary name 'ASN1_CRL_TbsCertListSetThisUpdate';

// Stores the time of the next list, in seconds, and sets its flag.
function ASN1_CRL_TbsCertListSetNextUpdate(ARecord: PTbsCertList; ATime: Integer): Integer;
  cdecl; external VelkordLibrary name 'ASN1_CRL_TbsCertListSetNextUpdate';

// Makes the SEQUENCE of a record, the extensions under `[0]` EXPLICIT.
function ASN1_CRL_TbsCertListWriteData(ARecord: PTbsCertList; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_CRL_TbsCertListWriteData';

// Decodes a TbsCertList.
function ASN1_CRL_TbsCertListDecode(ABytes: PByte; ALength: Cardinal;
  var AOut: PTbsCertList): Integer;
  cdecl; external VelkordLibrary name 'ASN1_CRL_TbsCertListDecode';

// Sets the signed part or the algorithm from a SEQUENCE.
function ASN1_CRL_SetCertificateListTBSCertList(ARecord: PCertificateList;
  AValue: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_CRL_SetCertificateListTBSCertList';

function ASN1_CRL_SetCertificateListAlgorithmIdentifier(ARecord: PCertificateList;
  AValue: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_CRL_SetCertificateListAlgorithmIdentifier';

// Sets the signature as `ASN1_CertificateSetSignatureValue` does.
function ASN1_CRL_SetCertificateListSignatureValue(ARecord: PCertificateList;
  AValue: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_CRL_SetCertificateListSignatureValue';

// Makes the SEQUENCE of a record, all three fields.
function ASN1_CRL_CertificateListWriteData(ARecord: PCertificateList; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_CRL_CertificateListWriteData';

// Decodes a revocation list.
function ASN1_CRL_CertificateListDecode(ABytes: PByte; ALength: Cardinal;
  var AOut: PCertificateList): Integer;
  cdecl; external VelkordLibrary name 'ASN1_CRL_CertificateListDecode';

// ==== PKCS#10: certification requests

// Creates an empty record.
function ASN1_CreatePKCS10(var AOut: PPKCS10): Integer;
  cdecl; external VelkordLibrary name 'ASN1_CreatePKCS10';

function ASN1_CreatePKCS10Request(var AOut: PPKCS10Request): Integer;
  cdecl; external VelkordLibrary name 'ASN1_CreatePKCS10Request';

// Releases a record.
procedure ASN1_FreePKCS10(ARecord: PPKCS10); cdecl; external VelkordLibrary name 'ASN1_FreePKCS10';

procedure ASN1_FreePKCS10Request(ARecord: PPKCS10Request);
  cdecl; external VelkordLibrary name 'ASN1_FreePKCS10Request';

// Sets the version number, 0 for version 1.
function ASN1_PKCS10SetVersion(ARecord: PPKCS10; AVersion: Cardinal): Integer;
  cdecl; external VelkordLibrary name 'ASN1_PKCS10SetVersion';

// Sets a field from a SEQUENCE.
function ASN1_PKCS10SetSubject(ARecord: PPKCS10; AValue: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_PKCS10SetSubject';

function ASN1_PKCS10SetSubjectPublicKeyInfo(ARecord: PPKCS10; AValue: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_PKCS10SetSubjectPublicKeyInfo';

// Sets the attributes, a SET, under `[0]` as `ASN1_WriteImplicit` does.
function ASN1_PKCS10SetAttributes(ARecord: PPKCS10; AValue: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_PKCS10SetAttributes';

// Makes the SEQUENCE of a record, all four fields.
function ASN1_PKCS10WriteData(ARecord: PPKCS10; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_PKCS10WriteData';

// Decodes the signed part of a request.
function ASN1_PKCS10Decode(ABytes: PByte; ALength: Cardinal; var AOut: PPKCS10): Integer;
  cdecl; external VelkordLibrary name 'ASN1_PKCS10Decode';

// Sets the signed part or the algorithm from a SEQUENCE.
function ASN1_PKCS10RequestSetCertificationRequestInfo(ARecord: PPKCS10Request;
  AValue: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_PKCS10RequestSetCertificationRequestInfo';

function ASN1_PKCS10RequestSetAlgorithmIdentifier(ARecord: PPKCS10Request;
  AValue: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_PKCS10RequestSetAlgorithmIdentifier';

// Sets the signature as `ASN1_CertificateSetSignatureValue` does.
function ASN1_PKCS10RequestSetSignature(ARecord: PPKCS10Request; AValue: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_PKCS10RequestSetSignature';

// Makes the SEQUENCE of a record, all three fields.
function ASN1_PKCS10RequestWriteData(ARecord: PPKCS10Request; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_PKCS10RequestWriteData';

// Decodes a request as `ASN1_CRL_CertificateListDecode` does a list.
function ASN1_PKCS10RequestDecode(ABytes: PByte; ALength: Cardinal;
  var AOut: PPKCS10Request): Integer;
  cdecl; external VelkordLibrary name 'ASN1_PKCS10RequestDecode';

// ==== PKCS#6: extended certificates

// Creates an empty record.
function ASN1_PKCS6_CreateExtendedCertificateInfo(var AOut: PExtendedCertificateInfo): Integer;
  cdecl; external VelkordLibrary name 'ASN1_PKCS6_CreateExtendedCertificateInfo';

function ASN1_PKCS6_CreateExtendedCertificate(var AOut: PExtendedCertificate): Integer;
  cdecl; external VelkordLibrary name 'ASN1_PKCS6_CreateExtendedCertificate';

// Releases a record.
procedure ASN1_PKCS6_FreeExtendedCertificateInfo(ARecord: PExtendedCertificateInfo);
  cdecl; external VelkordLibrary name 'ASN1_PKCS6_FreeExtendedCertificateInfo';

procedure ASN1_PKCS6_FreeExtendedCertificate(ARecord: PExtendedCertificate);
  cdecl; external VelkordLibrary name 'ASN1_PKCS6_FreeExtendedCertificate';

// Stores the version number.
function ASN1_PKCS6_SetCertificateInfoVersion(ARecord: PExtendedCertificateInfo;
  AVersion: Cardinal): Integer;
  cdecl; external VelkordLibrary name 'ASN1_PKCS6_SetCertificateInfoVersion';

// Sets the certificate from a SEQUENCE, or the attributes from a SET.
function ASN1_PKCS6_SetCertificateInfoX509(ARecord: PExtendedCertificateInfo;
  AValue: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_PKCS6_SetCertificateInfoX509';

function ASN1_PKCS6_SetCertificateInfoAttributes(ARecord: PExtendedCertificateInfo;
  AValue: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_PKCS6_SetCertificateInfoAttributes';

// Makes the SEQUENCE of a record, all three fields.
function ASN1_PKCS6_CertificateInfoWriteData(ARecord: PExtendedCertificateInfo;
  var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_PKCS6_CertificateInfoWriteData';

// Decodes the signed part.
function ASN1_PKCS6_CertificateInfoDecode(ABytes: PByte; ALength: Cardinal;
  var AOut: PExtendedCertificateInfo): Integer;
  cdecl; external VelkordLibrary name 'ASN1_PKCS6_CertificateInfoDecode';

// Sets the signed part or the algorithm from a SEQUENCE.
function ASN1_PKCS6_SetCertificateCertificateInfo(ARecord: PExtendedCertificate;
  AValue: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_PKCS6_SetCertificateCertificateInfo';

function ASN1_PKCS6_SetCertificateSignatureAlgorithmIdentifier(ARecord: PExtendedCertificate;
  AValue: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_PKCS6_SetCertificateSignatureAlgorithmIdentifier';

// Sets the signature as `ASN1_CertificateSetSignatureValue` does.
function ASN1_PKCS6_SetCertificateSignature(ARecord: PExtendedCertificate;
  AValue: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_PKCS6_SetCertificateSignature';

// Makes the SEQUENCE of a record, all three fields.
function ASN1_PKCS6_CertificateWriteData(ARecord: PExtendedCertificate; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_PKCS6_CertificateWriteData';

// Decodes an extended certificate as `ASN1_CRL_CertificateListDecode` does a list.
function ASN1_PKCS6_CertificateDecode(ABytes: PByte; ALength: Cardinal;
  var AOut: PExtendedCertificate): Integer;
  cdecl; external VelkordLibrary name 'ASN1_PKCS6_CertificateDecode';

// ==== PKCS#7: the ContentInfo of a message

// Creates an empty record.
function ASN1_PKCS7_CreateContext(var AOut: PPKCS7Context): Integer;
  cdecl; external VelkordLibrary name 'ASN1_PKCS7_CreateContext';

// Releases a record.
procedure ASN1_PKCS7_FreeContext(ARecord: PPKCS7Context);
  cdecl; external VelkordLibrary name 'ASN1_PKCS7_FreeContext';

// Sets the content type, of any type, as `ASN1_WriteExplicitFromDERData` does.
function ASN1_PKCS7_SetContentType(ARecord: PPKCS7Context; AValue: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_PKCS7_SetContentType';

// Sets the content from the bytes of a node of either form, under `[0]` EXPLICIT.
function ASN1_PKCS7_SetContent(ARecord: PPKCS7Context; AValue: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_PKCS7_SetContent';

// Makes the SEQUENCE of a record: the content type, and the content if it is set.
function ASN1_PKCS7_WriteData(ARecord: PPKCS7Context; var AOut: PAnybuf): Integer;
  cdecl; external VelkordLibrary name 'ASN1_PKCS7_WriteData';

// Decodes a ContentInfo.
function ASN1_PKCS7_Decode(ABytes: PByte; ALength: Cardinal; var AOut: PPKCS7Context): Integer;
  cdecl; external VelkordLibrary name 'ASN1_PKCS7_Decode';

// ==== RSA keys. Keys of at most 2048 bits, which one certificate in three exceeds;
// ==== `ASN1_SetRSAPublicKey` and `ASN1_GetRSAPublicKey` take public keys of any size.
// ==== `VELKORD_FAILURE` also stands for a null argument and, when record and DER overlap, for a
// ==== lack of memory; then nothing has changed.

// Writes the DER of a key to `der` and its size to `derLen`: RSAPublicKey, at most 526 bytes, or
// RSAPrivateKey of PKCS#1, at most 1450.
function ZantEncodePublicKey(AKey: PZantPublicKey; ADer: PByte; var ADerLen: Cardinal): Integer;
  cdecl; external VelkordLibrary name 'ZantEncodePublicKey';

function ZantEncodePrivateKey(AKey: PZantPrivateKey; ADer: PByte; var ADerLen: Cardinal): Integer;
  cdecl; external VelkordLibrary name 'ZantEncodePrivateKey';

// Fills a record from DER of exactly `derLen` bytes.
function ZantDecodePublicKey(AKey: PZantPublicKey; ADer: PByte; ADerLen: Integer): Integer;
  cdecl; external VelkordLibrary name 'ZantDecodePublicKey';

function ZantDecodePrivateKey(AKey: PZantPrivateKey; ADer: PByte; ADerLen: Integer): Integer;
  cdecl; external VelkordLibrary name 'ZantDecodePrivateKey';

// ==== Keys of elliptic curves. Keys of 256 bits. Returns `VELKORD_OK`, or `VELKORD_FAILURE` for
// ==== all that is refused: a null argument, malformed DER, a missing element. Nothing has changed
// ==== then. Nothing is allocated.

// Writes the 312 bytes of a SubjectPublicKeyInfo to `der` and 312 to `derLen`.
function ASN1_EccPubkey2Der(AKey: PEccPubkey; ADer: PByte; var ADerLen: Cardinal): Integer;
  cdecl; external VelkordLibrary name 'ASN1_EccPubkey2Der';

// Fills a record from the DER of a SubjectPublicKeyInfo of exactly `derLen` bytes, whatever its
// algorithm: the point's second to 65th byte and `bits`, 256.
function ASN1_Der2EccPubkey(ADer: PByte; ADerLen: Cardinal; AKey: PEccPubkey): Integer;
  cdecl; external VelkordLibrary name 'ASN1_Der2EccPubkey';

// Fills a record from the DER of an ECPrivateKey in a PrivateKeyInfo of PKCS#8, of exactly `derLen`
// bytes, whatever its algorithm; `bits` becomes 256.
function ASN1_Der2EccPrikey(ADer: PByte; ADerLen: Cardinal; AKey: PEccPrikey): Integer;
  cdecl; external VelkordLibrary name 'ASN1_Der2EccPrikey';

// ==== SM2. The result is always `VELKORD_OK`. What cannot be done, an argument being null or the
// ==== DER malformed, leaves all out arguments alone: preset the lengths to 0. Nothing is allocated
// ==== unless buffers overlap; a lack of memory then counts as what cannot be done.

// Writes the SEQUENCE of two positive INTEGERs to `der`, which needs room for both numbers and 20
// bytes more.
function ASN1_SM2_SM2SignatureEncode(AR: PByte; ARLen: Cardinal; &AS: PByte; ASLen: Cardinal;
  ADer: PByte; var ADerLen: Cardinal): Integer;
  cdecl; external VelkordLibrary name 'ASN1_SM2_SM2SignatureEncode';

// Copies the two numbers of a signature, each without the zero byte that keeps it positive.
function ASN1_SM2_SM2SignatureDecode(AR: PByte; var ARLen: Cardinal; &AS: PByte;
  var ASLen: Cardinal; ADer: PByte; ADerLen: Cardinal): Integer;
  cdecl; external VelkordLibrary name 'ASN1_SM2_SM2SignatureDecode';

// Writes a private value as an INTEGER to `der`, 7 bytes more at most.
function ASN1_SM2_PrikeyEncode(AValue: PByte; AValueLen: Cardinal; ADer: PByte;
  var ADerLen: Cardinal): Integer; cdecl; external VelkordLibrary name 'ASN1_SM2_PrikeyEncode';

// Copies a private value without the zero byte that keeps it positive.
function ASN1_SM2_PrikeyDecode(AValue: PByte; var AValueLen: Cardinal; ADer: PByte;
  ADerLen: Cardinal): Integer; cdecl; external VelkordLibrary name 'ASN1_SM2_PrikeyDecode';

// Writes a public point as a BIT STRING to `der`: at most 5 bytes, then 0x04, X and Y, together at
// most 256.
function ASN1_SM2_PubkeyEncode(AX: PByte; AXLen: Cardinal; AY: PByte; AYLen: Cardinal; ADer: PByte;
  var ADerLen: Cardinal): Integer; cdecl; external VelkordLibrary name 'ASN1_SM2_PubkeyEncode';

// Copies the two halves, of equal length, of what follows the first byte of a public point; an odd
// last byte is left out, and of a point without bytes both are empty.
function ASN1_SM2_PubkeyDecode(AX: PByte; var AXLen: Cardinal; AY: PByte; var AYLen: Cardinal;
  ADer: PByte; ADerLen: Cardinal): Integer;
  cdecl; external VelkordLibrary name 'ASN1_SM2_PubkeyDecode';

// ==== Base64 and PEM. No argument may be null, but for input of length 0.

// Writes Base64 text and a terminating zero to `out`, without line breaks.
function base64_encode(AIn: PByte; ALength: Cardinal; AOut: PAnsiChar): Integer;
  cdecl; external VelkordLibrary name 'base64_encode';

// Decodes zero-terminated Base64 text in groups of four characters, up to a group with "=".
function base64_decode(AText: PAnsiChar; AOut: PByte; var AOutLength: Cardinal): Integer;
  cdecl; external VelkordLibrary name 'base64_decode';

// Writes DER bytes as PEM text: `header`, Base64 in lines of 64 characters, `footer`, each line
// with CR LF, and a terminating zero that `outLength` does not count.
function DER2PEM_data_format(ADer: PByte; ALength: Cardinal; AOut: PAnsiChar;
  var AOutLength: Cardinal; AHeader: PAnsiChar; AFooter: PAnsiChar): Integer;
  cdecl; external VelkordLibrary name 'DER2PEM_data_format';

// Decodes the first PEM block of a text of `length` characters, or bare Base64 when the text has no
// "-".
function PEM2DER_data_format(APem: PAnsiChar; ALength: Cardinal; AOut: PByte;
  var AOutLength: Cardinal): Integer; cdecl; external VelkordLibrary name 'PEM2DER_data_format';

// ==== Character sets. A GB code is the first byte of a GB2312 character in bits 8 to 15 and the
// ==== second in bits 0 to 7. UTF-8 is the form of up to six bytes, for code points of up to 31
// ==== bits. No argument may be null unless it says so, and no function adds a terminating zero.

// Writes the UTF-8 form of a code point to `out`, which has room for `outSize` bytes.
function uniToUTF8(AOut: PByte; AOutSize: Integer; ACode: Cardinal): Integer;
  cdecl; external VelkordLibrary name 'uniToUTF8';

// Reads one UTF-8 form from at most `inLen` bytes; `code` is written on success only.
function utf8ToUni(AIn: PByte; AInLen: Integer; var ACode: Cardinal): Integer;
  cdecl; external VelkordLibrary name 'utf8ToUni';

// Returns the code point of a GB code, or for one that is not assigned that of a row near it.
function ctouni(AGb: Cardinal): Cardinal; cdecl; external VelkordLibrary name 'ctouni';

// Returns the GB code of a code point, or 0 when it has none.
function unitoc(ACode: Cardinal): Cardinal; cdecl; external VelkordLibrary name 'unitoc';

// Returns the GB code of `n` bytes, at most 2; missing bytes count as 0.
function zhToWc(AIn: PByte; AN: Cardinal): Cardinal; cdecl; external VelkordLibrary name 'zhToWc';

// Writes the two bytes of a GB code to `out` and 2 to `outLen`.
procedure wcToZh(AOut: PByte; var AOutLen: Cardinal; ACode: Integer);
  cdecl; external VelkordLibrary name 'wcToZh';

// Turns GB2312 text into UTF-8, 3 bytes at most for each pair of bytes.
procedure zhsToUtf8s(AIn: PByte; AInLen: Integer; AOut: PByte; var AOutLen: Cardinal);
  cdecl; external VelkordLibrary name 'zhsToUtf8s';

// Turns UTF-8 text into GB2312.
procedure utf8sToZhs(AIn: PByte; AInLen: Cardinal; AOut: PByte; var AOutLen: Cardinal);
  cdecl; external VelkordLibrary name 'utf8sToZhs';

implementation

end.
