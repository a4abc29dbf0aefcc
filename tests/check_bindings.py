"""Holds the declarations for other languages to the library, and what the programs in Python and
Pascal and that of the guide read in certificates to what openssl reads. tests/CMakeLists.txt sets
the environment."""
import contextlib
import ctypes
import difflib
import gc
import os
import pathlib
import re
import shutil
import ssl
import subprocess
import sys
import tempfile

import inspect_certificate
import velkord
import velkord_api

ROOT = pathlib.Path(__file__).resolve().parent.parent
PYTHON = pathlib.Path(velkord.__file__).parent
DELPHI, CSHARP = PYTHON.parent / "delphi", PYTHON.parent / "csharp"
LIBRARY = pathlib.Path(os.environ["VELKORD_LIBRARY"])
GUIDE = os.environ["GUIDE_CERTIFICATE"]
BUNDLE = pathlib.Path("/etc/ssl/certs/ca-certificates.crt")
FOLDER = tempfile.TemporaryDirectory()
WORK = pathlib.Path(FOLDER.name)


def run(*command, data=None, status=0):
    done = subprocess.run(command, input=data, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    said = done.stdout.decode()
    if done.returncode != status:
        sys.exit(f"{command} ends with status {done.returncode}:\n{said}")
    return said


def has(program):
    if not shutil.which(program):
        print(f"Left out, since there is no {program}")
        return False
    return True


def same(what, found, wanted):
    if found != wanted:
        sys.exit("\n".join(difflib.unified_diff(wanted, found, "wanted", what, lineterm="")))


def compile_pascal(source):
    run("fpc", "-vw", "-Sew", f"-Fu{DELPHI}", f"-FU{WORK}", f"-FE{WORK}", f"-Fl{LIBRARY.parent}",
        source)
    return WORK / source.stem


def check_names():
    names = sorted(re.findall(r" T (\w+)", run("nm", "-D", "--defined-only", LIBRARY)))
    same("velkord_api.py", sorted(velkord_api.FUNCTIONS), names)
    for file, pattern in (
            (DELPHI / "Velkord.pas", r"^(?:function|procedure) (\w+)\("),
            (DELPHI / "Velkord.pas", r"cdecl; external VelkordLibrary name '(\w+)';$"),
            (CSHARP / "Velkord.cs", r"^    public static extern \w+ (\w+)\(")):
        same(file.name, sorted(re.findall(pattern, file.read_text(), re.MULTILINE)), names)


def check_layout():
    # A record, a field or nothing, and its offset or the record's size, on 32 and on 64 bits.
    pins = re.findall(r"^VELKORD_\w+\((\w+)(?:, ([a-zA-Z]\w*))?, (\d+), (\d+)\);$",
                      (ROOT / "der/record_layout.cpp").read_text(), re.MULTILINE)
    column = 3 if ctypes.sizeof(ctypes.c_void_p) == 8 else 2
    wanted = sorted(f"{pin[0]}.{pin[1]} {pin[column]}" for pin in pins)

    lines = []
    for record in ctypes.Structure.__subclasses__():
        if record.__module__ == "velkord_api":
            lines.append(f"{record.__name__}. {ctypes.sizeof(record)}")
            lines += [f"{record.__name__}.{name} {getattr(record, name).offset}"
                      for name, _ in record._fields_]
    same("Layout in Python", sorted(lines), wanted)

    if has("fpc"):
        source = WORK / "layout.pas"
        source.write_text("program layout; uses Velkord; begin\n" + "".join(
            f"Writeln('{record}.{field} ', " +
            (f"PtrUInt(@P{record}(nil)^.&{field}));\n" if field else f"SizeOf(T{record}));\n")
            for record, field, _, _ in pins) + "end.\n")
        same("Layout in Pascal", sorted(run(compile_pascal(source)).splitlines()), wanted)
    if has("mcs"):
        program = WORK / "bindings.exe"
        run("mcs", "-warnaserror", "-warn:4", f"-out:{program}", CSHARP / "Velkord.cs",
            ROOT / "tests/check_bindings.cs")
        same("Layout in C#", sorted(run("mono", program).splitlines()), wanted)


def check_readers():
    # What each reader returns, or the code that it raises.
    for reader, octets, wanted in (
            (velkord.read_time, b"\x17\x0D491231235959Z", "2049-12-31 23:59:59+00:00"),
            (velkord.read_time, b"\x17\x0D500101000000Z", "1950-01-01 00:00:00+00:00"),
            (velkord.read_time, b"\x18\x0F99991231235959Z", "9999-12-31 23:59:59+00:00"),
            (velkord.read_time, b"\x16\x0D491231235959Z", -7),
            (velkord.read_time, b"\x17\x0F20491231235959Z", -5),
            (velkord.read_time, b"\x18\x0F20490229000000Z", -5),
            (velkord.read_time, b"\x17\x0D49123123595Z", -2),
            (velkord.object_id_text, b"\x2A\x86\x48", "1.2.840"),
            (velkord.object_id_text, b"\x69\x83" + 17 * b"\xFF" + b"\x7F", f"2.25.{2**128 - 1}"),
            (velkord.object_id_text, b"\x69\x84" + 17 * b"\x80" + b"\x00", -1),
            (velkord.object_id_text, b"", -1),
            (velkord.object_id_text, b"\x2A\x86", -1),
            (velkord.object_id_text, b"\x2A\x80\x01", -1),
            (velkord.utf8_text, b"\x0C\x03\xE7\xA4\xBA", "示"),
            (velkord.utf8_text, b"\x14\x01\xFC", "ü"),
            (velkord.utf8_text, b"\x1E\x06\x79\x3A\xD8\x3D\xDE\x00", "示\U0001F600"),
            (velkord.utf8_text, b"\x1E\x02\xD8\x3D", -1),
            (velkord.utf8_text, b"\x1E\x03\x79\x3A\x00", -1),
            (velkord.utf8_text, b"\x33\x01A", -7)):
        try:
            found = str(reader(octets))
        except velkord.VelkordError as error:
            found = error.code
        assert found == wanted, (octets, found)


def issue(string_types, common_name, *options):
    """Returns a certificate whose texts have one of the string types in the mask."""
    config, certificate = WORK / "config", WORK / "issued.der"
    config.write_text(f"[req]\nstring_mask = MASK:{string_types}\ndistinguished_name = req\n")
    run("openssl", "req", "-config", config, "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:P-256",
        "-noenc", "-keyout", os.devnull, "-x509", "-outform", "DER", "-out", certificate, "-utf8",
        "-subj", f"/C=CN/O=One+OU=Two/CN={common_name}", *options)
    return certificate.read_bytes()


def read_by_openssl(certificate):
    text = run("openssl", "x509", "-noout", "-serial", "-issuer", "-subject", "-dates", "-dateopt",
               "iso_8601", "-nameopt", "utf8,oid,sep_multiline,space_eq", data=certificate)
    for pattern, line in (
            (r"^serial=", "serial number: "), (r"^(issuer|subject)=$", r"\1:"), (r"^    ", "  "),
            (r" \+ ([0-9.]+ = )", r"\n  \1"), (r"^notBefore=(.*)Z$", r"not before: \1 UTC"),
            (r"^notAfter=(.*)Z$", r"not after: \1 UTC")):
        text = re.sub(pattern, line, text, flags=re.MULTILINE)
    return text.splitlines()


def key_by_openssl(certificate):
    text = run("openssl", "x509", "-noout", "-text", data=certificate)
    size = (int(re.search(r"Public-Key: \(([0-9]+) bit\)", text)[1]) + 7) // 8
    if "rsaEncryption" in text:
        return f"key: RSA, a modulus of {size} bytes"
    return f"key: another curve, a point of {1 + 2 * size} bytes"


def check_programs():
    """Returns a certificate of version 3."""
    extensions = ("-days", "36500", "-addext", "basicConstraints=critical,CA:TRUE",
                  "-addext", "subjectKeyIdentifier=hash")
    # OpenSSL 3.5 has to be asked for version 1, by an option that older ones do not know.
    oldest = ["-x509v1"] if "-x509v1" in run("openssl", "req", "-help") else []
    certificates = [
        issue("0x2000", "Version 1", *oldest), issue("0x2000", "示例根证书 Żółć", *extensions),
        issue("0x800", "示例根证书", *extensions), issue("4", "Zürich", *extensions)]
    assert next(inspect_certificate.certificate_lines(certificates[0])) == "version: 1"
    # A start of openssl takes its time, so one in eight of those that the system trusts is read.
    if BUNDLE.exists():
        certificates += inspect_certificate.certificates(BUNDLE.read_bytes())[::8]
    list_subject = has("fpc") and compile_pascal(DELPHI / "list_subject.pas")
    pem = WORK / "certificate.pem"
    for certificate in certificates:
        wanted = read_by_openssl(certificate)
        lines = list(inspect_certificate.certificate_lines(certificate))
        same("Certificate in Python", lines[1:len(wanted) + 1], wanted)
        pem.write_text("A text -- and its block:\n" + ssl.DER_cert_to_PEM_cert(certificate))
        said = re.sub("^  (attribute|common name): ", "  ", run(GUIDE, pem), flags=re.MULTILINE)
        same("Certificate in the guide", said.splitlines(),
             [re.sub("^  [0-9.]+ = ", "  ", line) for line in lines[:1] + wanted] +
             [key_by_openssl(certificate)])
        if list_subject:
            same("Subject in Pascal", run(list_subject, pem).splitlines(),
                 [line[2:] for line in wanted[wanted.index("subject:") + 1:-2]])

    # A value that openssl shows in another way and that could forge a line, and a file that is cut off.
    whole, cut = WORK / "whole.der", WORK / "cut.der"
    whole.write_bytes(issue("0x2000", "a\x1b[2K\\\\b\u202e", *extensions))
    cut.write_bytes(whole.read_bytes()[:200])
    escaped = r"2.5.4.3 = a\u001b[2K\u005cb\u202e"
    said = run(PYTHON / "inspect_certificate.py", whole, cut, status=1)
    for line in ("version: 3", escaped, "key algorithm: 1.2.840.10045.2.1", "2.5.29.19, critical",
                 "2.5.29.14", "certificate 1: ASN1_CertificateDecode: VELKORD_SIZE_MISMATCH"):
        assert f" {line}\n" in said, (line, said)
    if list_subject:
        assert escaped in run(list_subject, whole)
        assert "cut.der: decode the certificate: code -2\n" in run(list_subject, cut, status=1)
    return whole.read_bytes()


def check_parameters():
    node = velkord.ASN1_CreateAnybuf(type=4, bytes=b"abc")
    assert (node.dataType, node.data) == (4, b"abc")
    for values in ((b"abc",), (b"abc", 4, 4)):
        with contextlib.suppress(TypeError):
            sys.exit(f"A call with {len(values)} values: {velkord.ASN1_CreateAnybuf(*values)}")


class Usage(ctypes.Structure):
    """What mallinfo2 returns; the eighth number counts the bytes in use."""
    _fields_ = [("numbers", ctypes.c_size_t * 10)]


def used_memory(certificate, rounds):
    """Returns how many bytes are in use after each binding that owns something worked."""
    for _ in range(rounds):
        list(inspect_certificate.certificate_lines(certificate))
        velkord.Asn1LowIntToChar(70000)
        oid = velkord.ASN1_WriteObjectIdFromData(0, velkord.ASN1_OBJECT_a2d("1.2.3"))
        for mode in (0, 1):
            velkord.ASN1_SetAlgorithmIdentifier(mode, oid, oid)
        view = velkord.X509CertCreate()
        view.tbs = velkord.ASN1_TBSCertificateDecode(
            velkord.ASN1_CertificateDecode(certificate).tbsCertificate)
        velkord.X509CertGetSubject(view)
        with contextlib.suppress(velkord.VelkordError):
            velkord.ASN1_CertificateDecode(certificate[:200])
    gc.collect()
    usage = ctypes.CDLL(None).mallinfo2
    usage.restype = Usage
    return usage().numbers[7]


check_names()
check_layout()
check_readers()
check_parameters()
whole = check_programs()
before = used_memory(whole, 100)
# The smallest block that can be lost is larger.
assert used_memory(whole, 500) - before < 16 * 500
