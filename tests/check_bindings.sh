#!/usr/bin/env bash
# Holds the declarations for other languages to the header and to the layout of its records, runs
# the programs that use them and compares what they read with what openssl reads.
# Usage: check_bindings.sh BUILD_FOLDER
set -euo pipefail
export LC_ALL=C

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=$(cd "$1" && pwd)
names=$root/tests/exported_names.txt
layout=$root/der/record_layout.cpp
bundle=/etc/ssl/certs/ca-certificates.crt
csharp=$root/bindings/csharp/Velkord.cs
delphi=$root/bindings/delphi
python=$root/bindings/python
inspect=$python/inspect_certificate.py
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export VELKORD_LIBRARY=$build/libVelkord.so LD_LIBRARY_PATH=$build
export PYTHONPATH=$python PYTHONDONTWRITEBYTECODE=1

fail() {
  echo "$1" >&2
  exit 1
}

has() { [ -n "$(type -P "$1")" ] || { echo "Skipped, since there is no $1: $2" && false; }; }

# declares FILE EXPRESSION: the names that it finds in a file are those of the library.
declares() {
  diff <(sort "$names") <(sed -nE "$2" "$1" | sort) || fail "$1 declares other names (>)."
}

echo "== Declarations"
python3 "$root"/scripts/bindings.py --check
declares "$csharp" 's/^ *public static extern \w+ (\w+)\(.*/\1/p'
declares "$delphi"/Velkord.pas 's/^(function|procedure) (\w+)\(.*/\2/p'
declares "$delphi"/Velkord.pas "s/.*cdecl; external VelkordLibrary name '(\w+)';$/\1/p"
declares "$python"/velkord_api.py 's/^    "(\w+)": _of\(.*/\1/p'

# Lines of: RECORD FIELD NARROW WIDE, the field being "-" for the size of the whole.
sed -nE -e 's/^VELKORD_SIZE\((\w+), (\w+), (\w+)\);$/\1 - \2 \3/p' \
  -e 's/^VELKORD_OFFSET\((\w+), (\w+), (\w+), (\w+)\);$/\1 \2 \3 \4/p' "$layout" >"$work"/layout.txt

echo "== Python: names and layout"
python3 - "$names" "$work"/layout.txt <<'PYTHON'
import ctypes
import sys

import velkord
import velkord_api

names = open(sys.argv[1]).read().split()
for name in names:
    assert getattr(velkord.library, name).argtypes is not None, name

wanted = {}
for line in open(sys.argv[2]):
    record, field, narrow, wide = line.split()
    wanted[record, field] = int(narrow if ctypes.sizeof(ctypes.c_void_p) == 4 else wide)
found = {}
for record in vars(velkord_api).values():
    if isinstance(record, type) and record.__base__ is ctypes.Structure:
        found[record.__name__, "-"] = ctypes.sizeof(record)
        for field, _ in record._fields_:
            found[record.__name__, field] = getattr(record, field).offset
assert found == wanted, set(found.items()) ^ set(wanted.items())
print(f"{len(names)} names resolved, {len(found)} sizes and offsets compared")
PYTHON

echo "== Certificates"
mkdir "$work"/certificates
openssl ecparam -name prime256v1 -genkey -noout -out "$work"/key.pem
# issue NAME MASK COMMON-NAME: the mask tells which string types may be used.
issue() {
  cat >"$work"/config <<CONFIG
[req]
prompt = no
utf8 = yes
string_mask = $2
distinguished_name = name
x509_extensions = extensions
[name]
C = CN
O = One
+OU = Two
CN = $3
emailAddress = someone@example.org
[extensions]
basicConstraints = critical, CA:TRUE
subjectKeyIdentifier = hash
CONFIG
  openssl req -config "$work"/config -new -key "$work"/key.pem -x509 -days 36500 \
    -out "$work/certificates/$1".pem
}
issue utf8 MASK:0x2000 '示例根证书 Żółć'
issue bmp MASK:0x800 '示例根证书'
issue teletex MASK:4 'Zürich'
openssl req -config "$work"/config -new -key "$work"/key.pem |
  openssl x509 -req -signkey "$work"/key.pem -days 30 -out "$work"/certificates/version1.pem \
    2>"$work"/log || fail "$(cat "$work"/log)"
if [ -f "$bundle" ]; then
  found=$("$inspect" "$bundle" | grep -c '^  serial number:')
  [ "$found" -eq "$(grep -c -e '-BEGIN CERTIFICATE-' "$bundle")" ] ||
    fail "$found certificates of $bundle are read, and no more."
  echo "$found certificates of $bundle read"
  # A start of openssl takes its time, so one in eight is compared.
  awk -v folder="$work"/certificates '
    /-----BEGIN/ && ++count % 8 == 1 { file = sprintf("%s/bundle%04d.pem", folder, count) }
    file { print >file }
    /-----END/ { close(file); file = "" }' "$bundle"
else
  echo "Skipped, since there is no $bundle: the certificates that the system trusts"
fi

echo "== Python: certificates"
for certificate in "$work"/certificates/*.pem; do
  openssl x509 -in "$certificate" -noout -serial -issuer -subject -dates -dateopt iso_8601 \
    -nameopt utf8,oid,sep_multiline,space_eq
done | sed -E -e 's/^serial=/  serial number: /' -e 's/^(issuer|subject)=$/  \1:/' \
  -e 's/^notBefore=(.*)Z$/  not before: \1 UTC/' -e 's/^notAfter=(.*)Z$/  not after: \1 UTC/' \
  -e 's/ \+ ([0-9.]+ = )/\n    \1/g' >"$work"/wanted
"$inspect" "$work"/certificates/*.pem >"$work"/listing
diff "$work"/wanted <(sed -n '/^  serial number:/,/^  not after:/p' "$work"/listing) ||
  fail "The certificates are read (>) otherwise than by openssl (<)."
echo "$(grep -c '^  serial number:' "$work"/listing) certificates compared with openssl"

# rest NAME: what openssl does not show by numbers.
rest() {
  "$inspect" "$work/certificates/$1".pem | sed -E '1d; /^  (serial|issuer|not)/d; /^ .* = /d'
}
diff - <(rest utf8) <<'WANTED' || fail "The certificate of version 3 is read otherwise (>)."
  version: 3
  subject:
  key algorithm: 1.2.840.10045.2.1
  extensions:
    2.5.29.19, critical
    2.5.29.14

WANTED
diff - <(rest version1) <<'WANTED' || fail "The certificate of version 1 is read otherwise (>)."
  version: 1
  subject:
  key algorithm: 1.2.840.10045.2.1

WANTED

# A name that would forge a line, in a file of its own since openssl shows it as it stands.
issue forged MASK:0x2000 $'a\e[2K\\\\b\xe2\x80\xae'
mv "$work"/certificates/forged.pem "$work"/forged.pem
"$inspect" "$work"/forged.pem >"$work"/forged.txt
grep -Fx '    2.5.4.3 = a\u001b[2K\u005cb\u202e' "$work"/forged.txt ||
  fail "It is not escaped: $(cat "$work"/forged.txt)"

openssl x509 -in "$work"/certificates/utf8.pem -outform DER -out "$work"/utf8.der
diff <("$inspect" "$work"/certificates/utf8.pem | sed 1d) <("$inspect" "$work"/utf8.der | sed 1d) ||
  fail "DER is read otherwise than PEM."
head -c 200 "$work"/utf8.der >"$work"/cut.der
"$inspect" "$work"/cut.der >"$work"/log 2>&1 && fail "Half a certificate is read."
grep -F "cut.der: certificate 1: ASN1_CertificateDecode: VELKORD_" "$work"/log

echo "== Python: memory"
python3 - "$work"/utf8.der "$work"/cut.der <<'PYTHON'
import ctypes
import gc
import sys

import inspect_certificate
import velkord

ROUNDS = 500


class Usage(ctypes.Structure):
    _fields_ = [(name, ctypes.c_size_t) for name in (
        "arena", "ordblks", "smblks", "hblks", "hblkhd", "usmblks", "fsmblks", "uordblks",
        "fordblks", "keepcost")]


usage = ctypes.CDLL(None).mallinfo2
usage.restype = Usage
whole, cut = (open(name, "rb").read() for name in sys.argv[1:])


def work(rounds):
    for _ in range(rounds):
        list(inspect_certificate.certificate_lines(whole))
        velkord.Asn1LowIntToChar(70000)
        oid = velkord.ASN1_WriteObjectIdFromData(0, velkord.ASN1_OBJECT_a2d("1.2.3"))
        for mode in (0, 1):
            velkord.ASN1_SetAlgorithmIdentifier(mode, oid, oid)
        view = velkord.X509CertCreate()
        view.tbs = velkord.ASN1_TBSCertificateDecode(
            velkord.ASN1_CertificateDecode(whole).tbsCertificate)
        velkord.X509CertGetSubject(view)
        try:
            velkord.ASN1_CertificateDecode(cut)
            sys.exit("half a certificate is read")
        except velkord.VelkordError:
            pass
    gc.collect()
    return usage().uordblks


before = work(100)
growth = work(ROUNDS) - before
print(f"{growth} bytes more after {ROUNDS} rounds")
# The smallest block that can be lost is larger.
assert growth < 16 * ROUNDS
PYTHON

if has fpc "the Delphi unit and its program"; then
  echo "== Delphi: layout and certificates"
  {
    echo "program layout;"
    echo "uses Velkord;"
    echo "procedure Check(const Name: string; Found, Narrow, Wide: PtrUInt);"
    echo "begin"
    echo "  if SizeOf(Pointer) = 8 then Narrow := Wide;"
    echo "  if Found = Narrow then Exit;"
    echo "  Writeln(Name, ' is at or has ', Found, ' instead of ', Narrow);"
    echo "  ExitCode := 1;"
    echo "end;"
    echo "begin"
    sed -E -e "s/^(\w+) - (\w+) (\w+)$/  Check('\1', SizeOf(T\1), \2, \3);/" \
      -e "s/^(\w+) (\w+) (\w+) (\w+)$/  Check('\1.\2', PtrUInt(@P\1(nil)^.\&\2), \3, \4);/" \
      "$work"/layout.txt
    echo "end."
  } >"$work"/layout.pas
  # compile PROGRAM: warnings are errors.
  compile() {
    fpc -vw -Sew -Fu"$delphi" -FU"$work" -FE"$work" -Fl"$build" "$1" >"$work"/log 2>&1 ||
      fail "$(cat "$work"/log)"
  }
  compile "$work"/layout.pas
  compile "$delphi"/list_subject.pas
  "$work"/layout
  for certificate in "$work"/certificates/*.pem "$work"/forged.pem "$work"/utf8.der; do
    "$work"/list_subject "$certificate"
  done >"$work"/subjects
  "$inspect" "$work"/certificates/*.pem "$work"/forged.pem "$work"/utf8.der |
    sed -n '/^  subject:$/,/^  not before:/s/^    //p' >"$work"/wanted
  diff "$work"/wanted "$work"/subjects || fail "Subjects are read (>) otherwise than by Python (<)."
  echo "$(grep -c . "$work"/subjects) attributes compared"
  "$work"/list_subject "$work"/cut.der >"$work"/log 2>&1 && fail "Half a certificate is read."
  grep -F "cut.der: decode the certificate: code -" "$work"/log
fi

if has mcs "the C# declarations" && has mono "the C# declarations"; then
  echo "== C#: names, layout and calls"
  {
    cat <<'CSHARP'
using System;
using System.Reflection;
using System.Runtime.InteropServices;

static class Program
{
    static int status = 0;

    static void Check(string name, long found, long wanted)
    {
        if (found == wanted) return;
        Console.WriteLine("{0} is {1} instead of {2}", name, found, wanted);
        status = 1;
    }

    static void Layout(Type record, string field, int narrow, int wide)
    {
        long found = field == "-" ? Marshal.SizeOf(record) : (long)Marshal.OffsetOf(record, field);
        Check(record.Name + "." + field, found, IntPtr.Size == 4 ? narrow : wide);
    }

    static int Main()
    {
        int count = 0;
        foreach (MethodInfo method in typeof(Velkord).GetMethods())
        {
            if ((method.Attributes & MethodAttributes.PinvokeImpl) == 0) continue;
            Marshal.Prelink(method);
            ++count;
        }
        Console.WriteLine("{0} names resolved", count);

        IntPtr node = IntPtr.Zero;
        uint number = 0;
        Check("write", Velkord.ASN1_WriteInteger(70000, ref node), Velkord.VELKORD_OK);
        Check("read", Velkord.ASN1_ReadInteger(node, ref number), Velkord.VELKORD_OK);
        Check("number", number, 70000);
        var read = (Velkord.Anybuf)Marshal.PtrToStructure(node, typeof(Velkord.Anybuf));
        Check("length", read.dataLen, 5);
        Velkord.ASN1_FreeAnybuf(node);

        var key = new Velkord.EccPubkey { x = new byte[32], y = new byte[32] };
        key.x[0] = 1;
        key.y[31] = 2;
        byte[] der = new byte[312];
        Check("encode", Velkord.ASN1_EccPubkey2Der(ref key, der, ref number), Velkord.VELKORD_OK);
        var again = new Velkord.EccPubkey();
        Check("decode", Velkord.ASN1_Der2EccPubkey(der, number, ref again), Velkord.VELKORD_OK);
        Check("bits", again.bits, 256);
        Check("x", again.x[0], 1);
        Check("y", again.y[31], 2);

CSHARP
    sed -E 's/^(\w+) (\S+) (\w+) (\w+)$/        Layout(typeof(Velkord.\1), "\2", \3, \4);/' \
      "$work"/layout.txt
    echo "        return status;"
    echo "    }"
    echo "}"
  } >"$work"/Program.cs
  mcs -warnaserror -warn:4 -out:"$work"/program.exe "$csharp" "$work"/Program.cs
  mono "$work"/program.exe
fi
