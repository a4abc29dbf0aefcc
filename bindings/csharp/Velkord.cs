// Made by scripts/make-bindings from include/Velkord.h, which tells what each function takes and
// gives, and who releases it.
// Nodes, records and chains are IntPtr: Marshal.PtrToStructure reads one into its struct, and its
// Free function releases it. A record without pointers is the caller's own struct. What a function
// hands out goes to a ref argument, since a function that fails leaves it as it was: start with
// IntPtr.Zero or 0. A byte[] for a result has the room that the header asks for. Text without a
// length of its own ends with a zero byte.
using System;
using System.Runtime.InteropServices;

public static class Velkord
{
    private const string Library = "Velkord";
    private const CallingConvention Cdecl = CallingConvention.Cdecl;

    // ==== Return codes. What each means, by the first word of a comment or by family.
    // Success.
    public const int VELKORD_OK = 0;
    // No memory, a length too long, a child that does not fit.
    public const int VELKORD_FAILURE = -1;
    // Tag, length and content are not the bytes given.
    public const int VELKORD_SIZE_MISMATCH = -2;
    // A time below 0.
    public const int VELKORD_NEGATIVE_TIME = -4;
    // A malformed time text.
    public const int VELKORD_BAD_TIME = -5;
    // Another type than the one that is needed.
    public const int VELKORD_WRONG_TAG = -7;
    // A null argument, or a required field that was never set.
    public const int VELKORD_NULL_ARGUMENT = -8;
    // No memory for a record, or a time outside 1970 to 2038.
    public const int VELKORD_OUT_OF_MEMORY = -7000;

    // ==== Records. What functions fill and read, field by field.

    // The value node.
    [StructLayout(LayoutKind.Sequential)]
    public struct Anybuf
    {
        public IntPtr data;
        public uint dataLen;
        public uint unusedBits;
        public uint memKind;
        public uint dataType;
        public IntPtr next;
        public IntPtr prev;
    }

    // An object identifier: a number of the caller's, then the fields of a content node.
    [StructLayout(LayoutKind.Sequential)]
    public struct ObjectID
    {
        public int id;
        public IntPtr data;
        public uint dataLen;
        public uint unusedBits;
        public uint memKind;
        public uint dataType;
        public IntPtr next;
        public IntPtr prev;
    }

    // One attribute of a name.
    [StructLayout(LayoutKind.Sequential)]
    public struct AttributeTypeAndValue
    {
        public IntPtr type;
        public IntPtr value;
    }

    // The signed part of a certificate.
    [StructLayout(LayoutKind.Sequential)]
    public struct TBSCertificate
    {
        public uint version;
        public uint hasIssuerUniqueID;
        public uint hasSubjectUniqueID;
        public uint hasExtensions;
        public IntPtr versionNode;
        public IntPtr serialNumber;
        public IntPtr signature;
        public IntPtr issuer;
        public IntPtr validity;
        public IntPtr subject;
        public IntPtr subjectPublicKeyInfo;
        public IntPtr issuerUniqueID;
        public IntPtr subjectUniqueID;
        public IntPtr extensions;
    }

    // A signed certificate.
    [StructLayout(LayoutKind.Sequential)]
    public struct Certificate
    {
        public IntPtr tbsCertificate;
        public IntPtr signatureAlgorithm;
        public IntPtr signatureValue;
    }

    // One entry of a revocation list.
    [StructLayout(LayoutKind.Sequential)]
    public struct RevokedCertificate
    {
        public uint hasCrlEntryExtensions;
        public IntPtr certificateSerialNumber;
        public IntPtr revocationDate;
        public IntPtr crlEntryExtensions;
    }

    // The signed part of a revocation list.
    [StructLayout(LayoutKind.Sequential)]
    public struct TbsCertList
    {
        public uint hasRevokedCertificates;
        public uint hasCrlExtensions;
        public uint hasNextUpdate;
        public uint timeForm;
        public uint version;
        public IntPtr signature;
        public IntPtr issuer;
        public int thisUpdate;
        public int nextUpdate;
        public IntPtr revokedCertificates;
        public IntPtr crlExtensions;
    }

    // A signed revocation list.
    [StructLayout(LayoutKind.Sequential)]
    public struct CertificateList
    {
        public IntPtr tbsCertList;
        public IntPtr signatureAlgorithm;
        public IntPtr signatureValue;
    }

    // The signed part of a PKCS#10 certification request.
    [StructLayout(LayoutKind.Sequential)]
    public struct PKCS10
    {
        public IntPtr version;
        public IntPtr subject;
        public IntPtr subjectPublicKeyInfo;
        public IntPtr attributes;
    }

    // A signed PKCS#10 certification request.
    [StructLayout(LayoutKind.Sequential)]
    public struct PKCS10Request
    {
        public IntPtr certificationRequestInfo;
        public IntPtr signatureAlgorithm;
        public IntPtr signature;
    }

    // The signed part of a PKCS#6 extended certificate.
    [StructLayout(LayoutKind.Sequential)]
    public struct ExtendedCertificateInfo
    {
        public uint version;
        public IntPtr certificate;
        public IntPtr attributes;
    }

    // A signed PKCS#6 extended certificate.
    [StructLayout(LayoutKind.Sequential)]
    public struct ExtendedCertificate
    {
        public IntPtr extendedCertificateInfo;
        public IntPtr signatureAlgorithm;
        public IntPtr signature;
    }

    // A PKCS#7 ContentInfo.
    [StructLayout(LayoutKind.Sequential)]
    public struct PKCS7Context
    {
        public IntPtr contentType;
        public IntPtr content;
    }

    // An RSA public key: big-endian numbers.
    [StructLayout(LayoutKind.Sequential)]
    public struct ZantPublicKey
    {
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = 256)]
        public byte[] modulus;
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = 256)]
        public byte[] publicExponent;
    }

    // An RSA private key, its numbers placed as in `ZantPublicKey`.
    [StructLayout(LayoutKind.Sequential)]
    public struct ZantPrivateKey
    {
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = 256)]
        public byte[] modulus;
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = 256)]
        public byte[] publicExponent;
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = 256)]
        public byte[] privateExponent;
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = 128)]
        public byte[] prime1;
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = 128)]
        public byte[] prime2;
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = 128)]
        public byte[] exponent1;
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = 128)]
        public byte[] exponent2;
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = 128)]
        public byte[] coefficient;
    }

    // The public key of an elliptic curve of 256 bits: the coordinates big-endian at full width.
    [StructLayout(LayoutKind.Sequential)]
    public struct EccPubkey
    {
        public uint bits;
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = 32)]
        public byte[] x;
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = 32)]
        public byte[] y;
    }

    // The private key of an elliptic curve of 256 bits.
    [StructLayout(LayoutKind.Sequential)]
    public struct EccPrikey
    {
        public uint bits;
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = 32)]
        public byte[] d;
    }

    // One subject attribute of an inspected certificate.
    [StructLayout(LayoutKind.Sequential)]
    public struct CertEntry
    {
        public IntPtr oid;
        public uint oidLen;
        public IntPtr value;
        public uint valueLen;
        public IntPtr next;
    }

    // A list entry of the caller's own, released with the record that holds it.
    [StructLayout(LayoutKind.Sequential)]
    public struct CertWideEntry
    {
        public IntPtr block1;
        public UIntPtr word2;
        public IntPtr block3;
        public UIntPtr word4;
        public UIntPtr word5;
        public IntPtr next;
    }

    // A caller's view of a decoded certificate: 23 words, each as wide as a pointer.
    [StructLayout(LayoutKind.Sequential)]
    public struct X509Cert
    {
        public UIntPtr word1;
        public UIntPtr word2;
        public UIntPtr word3;
        public IntPtr block1;
        public UIntPtr word5;
        public UIntPtr word6;
        public IntPtr block2;
        public UIntPtr word8;
        public IntPtr tbs;
        public UIntPtr word10;
        public UIntPtr word11;
        public UIntPtr word12;
        public IntPtr block3;
        public UIntPtr word14;
        public IntPtr entriesA;
        public IntPtr subjectEntries;
        public UIntPtr word17;
        public UIntPtr word18;
        public IntPtr block4;
        public UIntPtr word20;
        public IntPtr block5;
        public UIntPtr word22;
        public IntPtr entriesB;
    }

    // ==== Value nodes

    // Makes a content node with a copy of `length` bytes.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_CreateAnybuf(byte[] bytes, uint length, byte type,
        ref IntPtr @out);

    // Makes a node of DER bytes, unchanged.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_WriteExplicitFromDERData(byte[] bytes, uint length,
        ref IntPtr @out);

    // Releases `node` and every node after it, so it is for the head of a chain only.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern void ASN1_FreeAnybuf(IntPtr node);

    // ==== Byte and character strings, ENUMERATED, BOOLEAN, NULL. Writing differs by the tag alone;
    // ==== reading is the same for all. CharString is PrintableString.

    // Makes an element over a content node of any type.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_WriteOctetString(IntPtr source, ref IntPtr @out);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_WriteBitString(IntPtr source, ref IntPtr @out);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_WriteCharString(IntPtr source, ref IntPtr @out);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_WriteUTF8String(IntPtr source, ref IntPtr @out);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_WriteBmpString(IntPtr source, ref IntPtr @out);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_WriteIa5String(IntPtr source, ref IntPtr @out);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_WriteEnumerated(IntPtr source, ref IntPtr @out);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_WritePrintableString(IntPtr source, ref IntPtr @out);

    // Makes an element over content bytes.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_WriteOctetStringFromBytes(byte[] bytes, uint length,
        ref IntPtr @out);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_WriteBitStringFromBytes(byte[] bytes, uint length,
        ref IntPtr @out);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_WriteCharStringFromBytes(byte[] bytes, uint length,
        ref IntPtr @out);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_WriteUTF8StringFromBytes(byte[] bytes, uint length,
        ref IntPtr @out);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_WriteBmpStringFromBytes(byte[] bytes, uint length,
        ref IntPtr @out);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_WriteIa5StringFromBytes(byte[] bytes, uint length,
        ref IntPtr @out);

    // Makes a PrintableString over content bytes when `selector` is not 0, and a BMPString when it
    // is.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_WritePrintableStringFromBytes(int selector, byte[] bytes,
        uint length, ref IntPtr @out);

    // Other names of `ASN1_WriteExplicitFromDERData`; none tests the type.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_WriteOctetStringFromDERBytes(byte[] bytes, uint length,
        ref IntPtr @out);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_WriteCharStringFromDERBytes(byte[] bytes, uint length,
        ref IntPtr @out);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_WriteUTF8StringFromDERBytes(byte[] bytes, uint length,
        ref IntPtr @out);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_WriteBmpStringFromDERBytes(byte[] bytes, uint length,
        ref IntPtr @out);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_WriteIa5StringFromDERBytes(byte[] bytes, uint length,
        ref IntPtr @out);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_WritePrintableStringFromDERBytes(byte[] bytes, uint length,
        ref IntPtr @out);

    // Reads the DER bytes of a BIT STRING into a node, unchanged; `unusedBits` is the octet after
    // the header.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_WriteBitStringFromDERBytes(byte[] bytes, uint length,
        ref IntPtr @out);

    // Reads an element of any type into a content node; `dataType` is the tag that was read.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_ReadBitString(IntPtr source, ref IntPtr @out);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_ReadBmpString(IntPtr source, ref IntPtr @out);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_ReadCharString(IntPtr source, ref IntPtr @out);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_ReadEnumerated(IntPtr source, ref IntPtr @out);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_ReadIa5String(IntPtr source, ref IntPtr @out);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_ReadOctetString(IntPtr source, ref IntPtr @out);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_ReadPrintableString(IntPtr source, ref IntPtr @out);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_ReadUTF8String(IntPtr source, ref IntPtr @out);

    // Reads the same content into `out` and its size into `outLength`.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_ReadCharStringToBytes(IntPtr source, [In, Out] byte[] @out,
        ref uint outLength);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_ReadIa5StringToBytes(IntPtr source, [In, Out] byte[] @out,
        ref uint outLength);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_ReadOctetStringToBytes(IntPtr source, [In, Out] byte[] @out,
        ref uint outLength);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_ReadPrintableStringToBytes(IntPtr source, [In, Out] byte[] @out,
        ref uint outLength);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_ReadUTF8StringToBytes(IntPtr source, [In, Out] byte[] @out,
        ref uint outLength);

    // Reads the same of BMP text without the high bytes that are zero and without an odd last byte.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_ReadBmpStringToBytes(IntPtr source, [In, Out] byte[] @out,
        ref uint outLength);

    // Makes a BOOLEAN with the byte at `value` unchanged.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_WriteBoolean(byte[] value, ref IntPtr @out);

    // Reads the first content octet of an element of any type, of a BIT STRING its unused-bits
    // octet.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_ReadBoolean(IntPtr source, [In, Out] byte[] value);

    // Makes a NULL.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_WriteNull(ref IntPtr @out);

    // ==== INTEGER. Numbers are unsigned; those of any size are big-endian bytes.

    // Makes the content octets of a number, 1 to 5 of them, and their count in a cell of its own.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int Asn1LowIntToChar(uint value, ref IntPtr outBytes,
        ref IntPtr outLength);

    // Makes the INTEGER of a number.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_WriteInteger(uint value, ref IntPtr @out);

    // Reads the low 32 bits of the number in an element of any type.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_ReadInteger(IntPtr source, ref uint value);

    // Makes an INTEGER over a content node of any type or over bytes: a zero octet goes in front of
    // a first byte of 0x80 or more; leading zeros stay.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_WriteIntegerArray(IntPtr source, ref IntPtr @out);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_WriteIntegerArrayFromBytes(byte[] bytes, uint length,
        ref IntPtr @out);

    // Another name of `ASN1_WriteExplicitFromDERData`.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_WriteIntegerArrayFromDERBytes(byte[] bytes, uint length,
        ref IntPtr @out);

    // Another name of `ASN1_ReadBitString`.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_ReadIntegerArray(IntPtr source, ref IntPtr @out);

    // Another name of `ASN1_ReadOctetStringToBytes`.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_ReadIntegerArrayToBytes(IntPtr source, [In, Out] byte[] @out,
        ref uint outLength);

    // ==== OBJECT IDENTIFIER

    // Turns dotted text of `textLength` characters into content octets; blanks may stand for
    // points.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_OBJECT_a2d([In, Out] byte[] @out, ref uint outLength, byte[] text,
        int textLength);

    // Makes an OBJECT IDENTIFIER over content octets; `id` has no effect.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_WriteObjectId(IntPtr record, ref IntPtr @out);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_WriteObjectIdFromData(int id, byte[] bytes, uint length,
        ref IntPtr @out);

    // Another name of `ASN1_WriteExplicitFromDERData`.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_WriteObjectIdFromDERBytes(byte[] bytes, uint length,
        ref IntPtr @out);

    // Reads the content of an element of any type into a new record.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_ReadObjectId(IntPtr source, ref IntPtr @out);

    // Releases a record and its `data`; `next` is not followed.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern void ASN1_FreeObjectID(IntPtr record);

    // Another name of `ASN1_ReadOctetStringToBytes`.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_ReadObjectIdToBytes(IntPtr source, [In, Out] byte[] @out,
        ref uint outLength);

    // ==== SEQUENCE and SET. Chains are built, joined and split. The order of the elements stays as
    // ==== it is, in a SET too.

    // Makes a chain of one node, a copy of `element`; its `next` is not followed.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_CreateSequence(IntPtr element, ref IntPtr @out);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_CreateSet(IntPtr element, ref IntPtr @out);

    // Appends a copy of `element` at the end of `chain`, to which it walks.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern void ASN1_AddSequence(IntPtr element, IntPtr chain);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern void ASN1_AddSet(IntPtr element, IntPtr chain);

    // Other names of `ASN1_FreeAnybuf`.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern void ASN1_FreeSequence(IntPtr chain);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern void ASN1_FreeSet(IntPtr chain);

    // Makes one SEQUENCE or SET over the bytes of a chain; a null chain makes an empty element.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_WriteSequence(IntPtr chain, ref IntPtr @out);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_WriteSet(IntPtr chain, ref IntPtr @out);

    // Opens a SEQUENCE or SET, in a node or in bytes: the chain of its children, null for none.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_ReadSequence(IntPtr source, ref IntPtr @out);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_ReadSet(IntPtr source, ref IntPtr @out);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_WriteSequenceFromDERBytes(byte[] bytes, uint length,
        ref IntPtr @out);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_WriteSetFromDERData(byte[] bytes, uint length, ref IntPtr @out);

    // ==== EXPLICIT and IMPLICIT tags. Of a tag number the low byte counts.

    // Makes an element of tag octet `tagNumber | 0xA0` around a node of either form, or around
    // bytes.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_WriteExplicit(IntPtr source, byte tagNumber, ref IntPtr @out);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_WriteExplicitFromData(uint tagNumber, byte[] bytes, uint length,
        ref IntPtr @out);

    // Reads an element of any type: its content as `ASN1_ReadBitString` does, and its reduced tag,
    // 0xA3 for `[3]`.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_ReadExplicit(IntPtr source, ref IntPtr @out, ref uint outTag);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_ReadExplicitToBytes(IntPtr source, [In, Out] byte[] @out,
        ref uint outLength, ref uint outTag);

    // Reads an element and makes one of the same content under another tag: `tagNumber | 0xA0` for
    // a source of `dataType` 16 or 17, `tagNumber | 0x80` otherwise.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_WriteImplicit(IntPtr source, uint tagNumber, ref IntPtr @out);

    // Reads an element under an IMPLICIT tag.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_ReadImplicit(IntPtr source, ref IntPtr @out,
        ref uint outTagNumber);

    // ==== Time. A time is a number of seconds since 1 January 1970. The text of an element is the
    // ==== machine's local time followed by "Z", so it is UTC only where the local zone is UTC. The
    // ==== zone is that of the C library: the one that TZ names at the call, or without TZ the one
    // ==== that it has read; whoever changes that calls `tzset`, on Windows `_tzset`. The C library
    // ==== looks for TZ with `getenv`, and a `setenv` of any variable moves what that reads. So no
    // ==== thread may change the environment during a call that reads or writes a time: one of the
    // ==== functions below, `ASN1_GetValidity`, or one that sets, writes or decodes a revocation
    // ==== list or an entry of it.

    // Makes the element of a time.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_WriteGeneralizedTime([In] ref int time, ref IntPtr @out);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_WriteUtcTime([In] ref int time, ref IntPtr @out);

    // Reads the time of an element of that form.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_ReadGeneralizedTime(IntPtr source, ref int time);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_ReadUtcTime(IntPtr source, ref int time);

    // ==== Names. A name is a SEQUENCE of relative names, and a relative name a SET of attributes.
    // ==== The value of an attribute is a UTF8String, PrintableString or IA5String; for another
    // ==== type a function that looks at it returns `VELKORD_WRONG_TAG`.

    // Creates a record with copies of two nodes.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_SetAttributeTypeAndValue(IntPtr type, IntPtr value,
        ref IntPtr @out);

    // Releases a record.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern void ASN1_FreeAttributeTypeAndValue(IntPtr record);

    // Makes the SEQUENCE of an attribute.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_GetDerAttributeTypeAndValue(IntPtr record, ref IntPtr @out);

    // Opens the SEQUENCE of an attribute: its OBJECT IDENTIFIER and its value as new nodes.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_DecodeDerAttributeTypeAndValue(IntPtr source, ref IntPtr outType,
        ref IntPtr outValue);

    // Makes the SET of a relative name with one attribute, from its value and its OID as dotted
    // text; `id` has no effect.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_GetDerRelativeDistinguishedNameOne(IntPtr value, int id,
        byte[] oidText, int oidTextLength, ref IntPtr @out);

    // Opens the SET of a relative name and copies the value and the OID's octets of its first
    // attribute, a UTF8String turned into GB2312 by `utf8sToZhs`.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_DecodeDerRelativeDistinguishedNameOne(IntPtr source,
        [In, Out] byte[] value, ref uint valueLength, [In, Out] byte[] oid, ref uint oidLength);

    // Other names of `ASN1_CreateSet`: start a chain of relative names or of attributes.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_CreateName(IntPtr element, ref IntPtr @out);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_CreateRelativeDistinguishedName(IntPtr element, ref IntPtr @out);

    // Other names of `ASN1_AddSet`: the element first, the chain second.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern void ASN1_AddName(IntPtr element, IntPtr chain);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern void ASN1_AddRelativeDistinguishedName(IntPtr element, IntPtr chain);

    // Other names of `ASN1_FreeAnybuf`.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern void ASN1_FreeNames(IntPtr chain);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern void ASN1_FreeRelativeDistinguishedName(IntPtr chain);

    // Another name of `ASN1_WriteSequence`.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_GetDerName(IntPtr chain, ref IntPtr @out);

    // Another name of `ASN1_ReadSequence`.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_ReadDerName(IntPtr source, ref IntPtr @out);

    // Another name of `ASN1_WriteSet`.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_GetDerRelativeDistinguishedName(IntPtr chain, ref IntPtr @out);

    // Another name of `ASN1_ReadSet`.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_ReadRelativeDistinguishedName(IntPtr source, ref IntPtr @out);

    // Another name of `ASN1_WriteSetFromDERData`.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_ReadRelativeDistinguishedNameFromByte(byte[] bytes, uint length,
        ref IntPtr @out);

    // ==== Validity, algorithms and public keys

    // Makes the SEQUENCE of two times, which are not tested.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_SetValidity(IntPtr notBefore, IntPtr notAfter, ref IntPtr @out);

    // Opens a Validity and reads both times, in either form; of more than two the last is notAfter.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_GetValidity(IntPtr source, ref int notBefore, ref int notAfter);

    // Another name of `ASN1_FreeAnybuf`.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern void ASN1_FreeValidity(IntPtr chain);

    // Makes an AlgorithmIdentifier of `oid` and one more element: `parameter` when it is not null,
    // else NULL when `mode` is 1, else `alternative`, which must then be there.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_SetAlgorithmIdentifier(uint mode, IntPtr oid, IntPtr alternative,
        IntPtr parameter, ref IntPtr @out);

    // Opens an AlgorithmIdentifier.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_GetAlgorithmIdentifier(IntPtr source, ref IntPtr outOid,
        ref IntPtr outSequence, ref IntPtr outParameterOid);

    // Another name of `ASN1_FreeAnybuf`.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern void ASN1_FreeAlgorithmIdentifier(IntPtr chain);

    // Makes a SubjectPublicKeyInfo: a copy of `algorithm`, then a BIT STRING over the bytes of
    // `key`, a node of either form, as `ASN1_WriteBitStringFromBytes` writes it.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_SetSubjectPublicKeyInfo(IntPtr algorithm, IntPtr key,
        ref IntPtr @out);

    // Opens a SubjectPublicKeyInfo: both parts as new nodes, the unused-bits octet always 0.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_GetSubjectPublicKeyInfo(IntPtr source, ref IntPtr outAlgorithm,
        ref IntPtr outKey);

    // Another name of `ASN1_FreeAnybuf`.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern void ASN1_FreeSubjectPublicKeyInfo(IntPtr chain);

    // Another name of `ASN1_SetValidity`: makes the SEQUENCE of two INTEGERs.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_SetRSAPublicKey(IntPtr modulus, IntPtr exponent, ref IntPtr @out);

    // Opens the SEQUENCE of an RSA public key: both numbers as new INTEGERs, positive; of more than
    // two elements the last is the exponent.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_GetRSAPublicKey(IntPtr source, ref IntPtr outModulus,
        ref IntPtr outExponent);

    // Another name of `ASN1_FreeAnybuf`.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern void ASN1_FreeRSAPublicKey(IntPtr chain);

    // ==== Extensions

    // Makes an Extension of an OID, a BOOLEAN, which may be null, and an OCTET STRING; none is
    // tested.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_SetExtension(IntPtr oid, IntPtr critical, IntPtr value,
        ref IntPtr @out);

    // Makes an Extension from the OID's content octets and the value's bytes.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_GetExtensionOne(int id, byte[] oid, uint oidLength, uint critical,
        byte[] value, uint valueLength, ref IntPtr @out);

    // Opens an Extension: OBJECT IDENTIFIER, BOOLEAN and OCTET STRING as new nodes.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_GetExtension(IntPtr source, ref IntPtr outOid,
        ref IntPtr outCritical, ref IntPtr outValue);

    // Another name of `ASN1_FreeAnybuf`.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern void ASN1_FreeExtension(IntPtr chain);

    // Another name of `ASN1_CreateSet`: starts a list.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_CreateExtensions(IntPtr element, ref IntPtr @out);

    // Another name of `ASN1_AddSet`: the element first, the chain second.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern void ASN1_AddExtensions(IntPtr element, IntPtr chain);

    // Another name of `ASN1_WriteSequence`.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_WriteExtensions(IntPtr chain, ref IntPtr @out);

    // Another name of `ASN1_ReadSequence`.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_ReadExtensions(IntPtr source, ref IntPtr @out);

    // Another name of `ASN1_FreeAnybuf`.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern void ASN1_FreeExtensions(IntPtr chain);

    // ==== Certificates

    // Creates an empty record.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_CreateTBSCertificate(ref IntPtr @out);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_CreateCertificate(ref IntPtr @out);

    // Releases a record.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern void ASN1_FreeTBSCertificate(IntPtr record);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern void ASN1_FreeCertificate(IntPtr record);

    // Sets the version number, 2 for a version 3 certificate.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_TBSCertificateSetVersion(IntPtr record, uint version);

    // Sets the serial number from a big-endian magnitude.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_TBSCertificateSetSerialNumber(IntPtr record, byte[] bytes,
        uint length);

    // Sets a field from a SEQUENCE.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_TBSCertificateSetSignatureAlg(IntPtr record, IntPtr value);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_TBSCertificateSetIssuer(IntPtr record, IntPtr value);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_TBSCertificateSetValidity(IntPtr record, IntPtr value);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_TBSCertificateSetSubject(IntPtr record, IntPtr value);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_TBSCertificateSetSubjectPublicKeyInfo(IntPtr record,
        IntPtr value);

    // Sets an optional identifier, a BIT STRING, under `[1]` or `[2]` as `ASN1_WriteImplicit` does.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_TBSCertificateSetIssuerUniqueID(IntPtr record, IntPtr value);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_TBSCertificateSetSubjectUniqueID(IntPtr record, IntPtr value);

    // Sets the extensions under `[3]` EXPLICIT: the bytes of their list, which are not tested.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_TBSCertificateSetExtensions(IntPtr record, IntPtr value);

    // Makes the SEQUENCE of a record: seven required fields, then the optional ones.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_TBSCertificateWriteData(IntPtr record, ref IntPtr @out);

    // Decodes a TBSCertificate of seven elements or more.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_TBSCertificateDecode(IntPtr source, ref IntPtr @out);

    // Sets the signed part or the algorithm from a SEQUENCE.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_CertificateSetTbsCertificate(IntPtr record, IntPtr value);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_CertificateSetSignatureAlgorithm(IntPtr record, IntPtr value);

    // Sets the signature from a BIT STRING, as `ASN1_WriteBitStringFromDERBytes` does.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_CertificateSetSignatureValue(IntPtr record, IntPtr value);

    // Makes the SEQUENCE of a record, all three fields.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_CertificateWriteData(IntPtr record, ref IntPtr @out);

    // Decodes a certificate.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_CertificateDecode(byte[] bytes, uint length, ref IntPtr @out);

    // ==== Certificate inspection. Of the DER that is looked into, malformed parts are skipped.

    // Makes an empty record, and stores it in `out` too unless that is null.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern IntPtr X509CertCreate(ref IntPtr @out);

    // Releases a record and all that its pointers hold.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern void X509CertFree(IntPtr record);

    // Appends one entry to `subjectEntries` for the first attribute of each relative name in the
    // subject of `tbs`.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int X509CertGetSubject(IntPtr record);

    // Looks up the extension whose OID is `oidText`, dotted text of `textLength` characters, in a
    // decoded `tbs`.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int X509CertGetOIDValue(IntPtr record, byte[] oidText, int textLength,
        [In, Out] byte[] value, ref uint valueLength);

    // ==== Revocation lists

    // Creates an empty record.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_CRL_CreateRevokedCertificate(ref IntPtr @out);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_CRL_CreateTbsCertList(ref IntPtr @out);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_CRL_CreateCertificateList(ref IntPtr @out);

    // Releases a record.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern void ASN1_CRL_FreeRevokedCertificate(IntPtr record);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern void ASN1_CRL_FreeTbsCertList(IntPtr record);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern void ASN1_CRL_FreeCertificateList(IntPtr record);

    // Sets the serial number, of any type, as `ASN1_WriteExplicitFromDERData` does.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_CRL_SetRevokedCertificateCertificateSerialNumber(IntPtr record,
        IntPtr value);

    // Sets the date from a time, read and written again in the form that it has.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_CRL_SetRevokedCertificateRevocationDate(IntPtr record,
        IntPtr value);

    // Sets the extensions from a SEQUENCE.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_CRL_SetRevokedCertificateCrlEntryExtensions(IntPtr record,
        IntPtr value);

    // Makes the SEQUENCE of a record, the extensions being optional.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_CRL_RevokedCertificateWriteData(IntPtr record, ref IntPtr @out);

    // Decodes an entry.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_CRL_RevokedCertificateDecode(byte[] bytes, uint length,
        ref IntPtr @out);

    // Stores the version number.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_CRL_TbsCertListSetVersion(IntPtr record, uint version);

    // Sets a field from a SEQUENCE.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_CRL_TbsCertListSetSignatureAlgorithmIdentifier(IntPtr record,
        IntPtr value);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_CRL_TbsCertListSetIssuer(IntPtr record, IntPtr value);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_CRL_TbsCertListSetRevokedCertificates(IntPtr record,
        IntPtr value);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_CRL_TbsCertListSetCrlExtensions(IntPtr record, IntPtr value);

    // Stores the time of this list, in seconds, and the form of both times: 1 for UTCTime, any
    // other number for GeneralizedTime.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_CRL_TbsCertListSetThisUpdate(IntPtr record, int time, uint form);

    // Stores the time of the next list, in seconds, and sets its flag.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_CRL_TbsCertListSetNextUpdate(IntPtr record, int time);

    // Makes the SEQUENCE of a record, the extensions under `[0]` EXPLICIT.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_CRL_TbsCertListWriteData(IntPtr record, ref IntPtr @out);

    // Decodes a TbsCertList.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_CRL_TbsCertListDecode(byte[] bytes, uint length, ref IntPtr @out);

    // Sets the signed part or the algorithm from a SEQUENCE.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_CRL_SetCertificateListTBSCertList(IntPtr record, IntPtr value);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_CRL_SetCertificateListAlgorithmIdentifier(IntPtr record,
        IntPtr value);

    // Sets the signature as `ASN1_CertificateSetSignatureValue` does.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_CRL_SetCertificateListSignatureValue(IntPtr record, IntPtr value);

    // Makes the SEQUENCE of a record, all three fields.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_CRL_CertificateListWriteData(IntPtr record, ref IntPtr @out);

    // Decodes a revocation list.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_CRL_CertificateListDecode(byte[] bytes, uint length,
        ref IntPtr @out);

    // ==== PKCS#10: certification requests

    // Creates an empty record.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_CreatePKCS10(ref IntPtr @out);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_CreatePKCS10Request(ref IntPtr @out);

    // Releases a record.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern void ASN1_FreePKCS10(IntPtr record);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern void ASN1_FreePKCS10Request(IntPtr record);

    // Sets the version number, 0 for version 1.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_PKCS10SetVersion(IntPtr record, uint version);

    // Sets a field from a SEQUENCE.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_PKCS10SetSubject(IntPtr record, IntPtr value);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_PKCS10SetSubjectPublicKeyInfo(IntPtr record, IntPtr value);

    // Sets the attributes, a SET, under `[0]` as `ASN1_WriteImplicit` does.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_PKCS10SetAttributes(IntPtr record, IntPtr value);

    // Makes the SEQUENCE of a record, all four fields.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_PKCS10WriteData(IntPtr record, ref IntPtr @out);

    // Decodes the signed part of a request.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_PKCS10Decode(byte[] bytes, uint length, ref IntPtr @out);

    // Sets the signed part or the algorithm from a SEQUENCE.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_PKCS10RequestSetCertificationRequestInfo(IntPtr record,
        IntPtr value);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_PKCS10RequestSetAlgorithmIdentifier(IntPtr record, IntPtr value);

    // Sets the signature as `ASN1_CertificateSetSignatureValue` does.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_PKCS10RequestSetSignature(IntPtr record, IntPtr value);

    // Makes the SEQUENCE of a record, all three fields.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_PKCS10RequestWriteData(IntPtr record, ref IntPtr @out);

    // Decodes a request as `ASN1_CRL_CertificateListDecode` does a list.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_PKCS10RequestDecode(byte[] bytes, uint length, ref IntPtr @out);

    // ==== PKCS#6: extended certificates

    // Creates an empty record.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_PKCS6_CreateExtendedCertificateInfo(ref IntPtr @out);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_PKCS6_CreateExtendedCertificate(ref IntPtr @out);

    // Releases a record.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern void ASN1_PKCS6_FreeExtendedCertificateInfo(IntPtr record);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern void ASN1_PKCS6_FreeExtendedCertificate(IntPtr record);

    // Stores the version number.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_PKCS6_SetCertificateInfoVersion(IntPtr record, uint version);

    // Sets the certificate from a SEQUENCE, or the attributes from a SET.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_PKCS6_SetCertificateInfoX509(IntPtr record, IntPtr value);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_PKCS6_SetCertificateInfoAttributes(IntPtr record, IntPtr value);

    // Makes the SEQUENCE of a record, all three fields.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_PKCS6_CertificateInfoWriteData(IntPtr record, ref IntPtr @out);

    // Decodes the signed part.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_PKCS6_CertificateInfoDecode(byte[] bytes, uint length,
        ref IntPtr @out);

    // Sets the signed part or the algorithm from a SEQUENCE.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_PKCS6_SetCertificateCertificateInfo(IntPtr record, IntPtr value);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_PKCS6_SetCertificateSignatureAlgorithmIdentifier(IntPtr record,
        IntPtr value);

    // Sets the signature as `ASN1_CertificateSetSignatureValue` does.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_PKCS6_SetCertificateSignature(IntPtr record, IntPtr value);

    // Makes the SEQUENCE of a record, all three fields.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_PKCS6_CertificateWriteData(IntPtr record, ref IntPtr @out);

    // Decodes an extended certificate as `ASN1_CRL_CertificateListDecode` does a list.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_PKCS6_CertificateDecode(byte[] bytes, uint length,
        ref IntPtr @out);

    // ==== PKCS#7: the ContentInfo of a message

    // Creates an empty record.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_PKCS7_CreateContext(ref IntPtr @out);

    // Releases a record.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern void ASN1_PKCS7_FreeContext(IntPtr record);

    // Sets the content type, of any type, as `ASN1_WriteExplicitFromDERData` does.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_PKCS7_SetContentType(IntPtr record, IntPtr value);

    // Sets the content from the bytes of a node of either form, under `[0]` EXPLICIT.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_PKCS7_SetContent(IntPtr record, IntPtr value);

    // Makes the SEQUENCE of a record: the content type, and the content if it is set.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_PKCS7_WriteData(IntPtr record, ref IntPtr @out);

    // Decodes a ContentInfo.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_PKCS7_Decode(byte[] bytes, uint length, ref IntPtr @out);

    // ==== RSA keys. Keys of at most 2048 bits, which one certificate in three exceeds;
    // ==== `ASN1_SetRSAPublicKey` and `ASN1_GetRSAPublicKey` take public keys of any size.
    // ==== `VELKORD_FAILURE` also stands for a null argument and, when record and DER overlap, for
    // ==== a lack of memory; then nothing has changed.

    // Writes the DER of a key to `der` and its size to `derLen`: RSAPublicKey, at most 526 bytes,
    // or RSAPrivateKey of PKCS#1, at most 1450.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ZantEncodePublicKey([In] ref ZantPublicKey key, [In, Out] byte[] der,
        ref uint derLen);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ZantEncodePrivateKey([In] ref ZantPrivateKey key, [In, Out] byte[] der,
        ref uint derLen);

    // Fills a record from DER of exactly `derLen` bytes.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ZantDecodePublicKey(ref ZantPublicKey key, byte[] der, int derLen);

    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ZantDecodePrivateKey(ref ZantPrivateKey key, byte[] der, int derLen);

    // ==== Keys of elliptic curves. Keys of 256 bits. Returns `VELKORD_OK`, or `VELKORD_FAILURE`
    // ==== for all that is refused: a null argument, malformed DER, a missing element. Nothing has
    // ==== changed then. Nothing is allocated.

    // Writes the 312 bytes of a SubjectPublicKeyInfo to `der` and 312 to `derLen`.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_EccPubkey2Der([In] ref EccPubkey key, [In, Out] byte[] der,
        ref uint derLen);

    // Fills a record from the DER of a SubjectPublicKeyInfo of exactly `derLen` bytes, whatever its
    // algorithm: the point's second to 65th byte and `bits`, 256.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_Der2EccPubkey(byte[] der, uint derLen, ref EccPubkey key);

    // Fills a record from the DER of an ECPrivateKey in a PrivateKeyInfo of PKCS#8, of exactly
    // `derLen` bytes, whatever its algorithm; `bits` becomes 256.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_Der2EccPrikey(byte[] der, uint derLen, ref EccPrikey key);

    // ==== SM2. The result is always `VELKORD_OK`. What cannot be done, an argument being null or
    // ==== the DER malformed, leaves all out arguments alone: preset the lengths to 0. Nothing is
    // ==== allocated unless buffers overlap; a lack of memory then counts as what cannot be done.

    // Writes the SEQUENCE of two positive INTEGERs to `der`, which needs room for both numbers and
    // 20 bytes more.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_SM2_SM2SignatureEncode(byte[] r, uint rLen, byte[] s, uint sLen,
        [In, Out] byte[] der, ref uint derLen);

    // Copies the two numbers of a signature, each without the zero byte that keeps it positive.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_SM2_SM2SignatureDecode([In, Out] byte[] r, ref uint rLen,
        [In, Out] byte[] s, ref uint sLen, byte[] der, uint derLen);

    // Writes a private value as an INTEGER to `der`, 7 bytes more at most.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_SM2_PrikeyEncode(byte[] value, uint valueLen,
        [In, Out] byte[] der, ref uint derLen);

    // Copies a private value without the zero byte that keeps it positive.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_SM2_PrikeyDecode([In, Out] byte[] value, ref uint valueLen,
        byte[] der, uint derLen);

    // Writes a public point as a BIT STRING to `der`: at most 5 bytes, then 0x04, X and Y, together
    // at most 256.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_SM2_PubkeyEncode(byte[] x, uint xLen, byte[] y, uint yLen,
        [In, Out] byte[] der, ref uint derLen);

    // Copies the two halves, of equal length, of what follows the first byte of a public point; an
    // odd last byte is left out, and of a point without bytes both are empty.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int ASN1_SM2_PubkeyDecode([In, Out] byte[] x, ref uint xLen,
        [In, Out] byte[] y, ref uint yLen, byte[] der, uint derLen);

    // ==== Base64 and PEM. No argument may be null, but for input of length 0.

    // Writes Base64 text and a terminating zero to `out`, without line breaks.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int base64_encode(byte[] @in, uint length, [In, Out] byte[] @out);

    // Decodes zero-terminated Base64 text in groups of four characters, up to a group with "=".
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int base64_decode(byte[] text, [In, Out] byte[] @out, ref uint outLength);

    // Writes DER bytes as PEM text: `header`, Base64 in lines of 64 characters, `footer`, each line
    // with CR LF, and a terminating zero that `outLength` does not count.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int DER2PEM_data_format(byte[] der, uint length, [In, Out] byte[] @out,
        ref uint outLength, byte[] header, byte[] footer);

    // Decodes the first PEM block of a text of `length` characters, or bare Base64 when the text
    // has no "-".
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int PEM2DER_data_format(byte[] pem, uint length, [In, Out] byte[] @out,
        ref uint outLength);

    // ==== Character sets. A GB code is the first byte of a GB2312 character in bits 8 to 15 and
    // ==== the second in bits 0 to 7. UTF-8 is the form of up to six bytes, for code points of up
    // ==== to 31 bits. No argument may be null unless it says so, and no function adds a
    // ==== terminating zero.

    // Writes the UTF-8 form of a code point to `out`, which has room for `outSize` bytes.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int uniToUTF8([In, Out] byte[] @out, int outSize, uint code);

    // Reads one UTF-8 form from at most `inLen` bytes; `code` is written on success only.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern int utf8ToUni(byte[] @in, int inLen, ref uint code);

    // Returns the code point of a GB code, or for one that is not assigned that of a row near it.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern uint ctouni(uint gb);

    // Returns the GB code of a code point, or 0 when it has none.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern uint unitoc(uint code);

    // Returns the GB code of `n` bytes, at most 2; missing bytes count as 0.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern uint zhToWc(byte[] @in, uint n);

    // Writes the two bytes of a GB code to `out` and 2 to `outLen`.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern void wcToZh([In, Out] byte[] @out, ref uint outLen, int code);

    // Turns GB2312 text into UTF-8, 3 bytes at most for each pair of bytes.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern void zhsToUtf8s(byte[] @in, int inLen, [In, Out] byte[] @out,
        ref uint outLen);

    // Turns UTF-8 text into GB2312.
    [DllImport(Library, CallingConvention = Cdecl)]
    public static extern void utf8sToZhs(byte[] @in, uint inLen, [In, Out] byte[] @out,
        ref uint outLen);
}
