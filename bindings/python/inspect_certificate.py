#!/usr/bin/env python3
"""Shows the certificates in PEM and DER files."""
import argparse
import re
import sys

import velkord

PEM_BLOCK = re.compile(rb"-----BEGIN CERTIFICATE-----.*?-----END CERTIFICATE-----", re.DOTALL)

# Reduced tags.
INTEGER = 2
OBJECT_ID = 6
VERSION = 0xA0
EXTENSIONS = 0xA3


# [elements]
def elements(sequence):
    return list(velkord.ASN1_ReadSequence(sequence) or [])
# [/elements]


def object_id(node):
    if node.dataType != OBJECT_ID:
        raise ValueError("not an object identifier")
    return velkord.object_id_text(velkord.content(node))


def escaped(text):
    """Without characters that end the line or move the cursor, which could forge what is read."""
    return "".join(
        char if char.isprintable() and char != "\\" else f"\\u{ord(char):04x}"
        for char in text)


# [string]
def string(node):
    try:
        return escaped(velkord.utf8_text(node))
    except velkord.VelkordError:
        return "#" + bytes(node).hex().upper()
# [/string]


# [attributes]
def attributes(name):
    for relative_name in elements(name):
        for attribute in velkord.ASN1_ReadSet(relative_name) or []:
            kind, value = elements(attribute)
            yield f"{object_id(kind)} = {string(value)}"
# [/attributes]


def time(node):
    return str(velkord.read_time(node)).replace("+00:00", " UTC")


# [extensions]
def extensions(node):
    sequence, _ = velkord.ASN1_ReadExplicit(node)
    for extension in velkord.ASN1_ReadExtensions(sequence) or []:
        kind, critical, _ = velkord.ASN1_GetExtension(extension)
        is_critical = critical is not None and velkord.ASN1_ReadBoolean(critical)
        yield object_id(kind) + (", critical" if is_critical else "")
# [/extensions]


def certificate_lines(der):
    # [fields]
    certificate = velkord.ASN1_CertificateDecode(der)
    parts = elements(certificate.tbsCertificate)
    version = 1
    # The version of a version 1 certificate is left out.
    if parts[0].dataType == VERSION:
        number, _ = velkord.ASN1_ReadExplicit(parts.pop(0))
        version = velkord.ASN1_ReadInteger(number) + 1
    serial, _, issuer, validity, subject, key = parts[:6]
    if serial.dataType != INTEGER:
        raise ValueError("no serial number")
    not_before, not_after = map(time, elements(validity))
    key_algorithm, _ = velkord.ASN1_GetSubjectPublicKeyInfo(key)
    # [/fields]

    yield f"version: {version}"
    yield f"serial number: {velkord.content(serial).hex().upper()}"
    yield "issuer:"
    yield from ("  " + attribute for attribute in attributes(issuer))
    yield "subject:"
    yield from ("  " + attribute for attribute in attributes(subject))
    yield f"not before: {not_before}"
    yield f"not after: {not_after}"
    yield f"key algorithm: {object_id(velkord.ASN1_GetAlgorithmIdentifier(key_algorithm)[0])}"
    for part in parts[6:]:
        if part.dataType == EXTENSIONS:
            yield "extensions:"
            yield from ("  " + extension for extension in extensions(part))


# [certificates]
def certificates(data):
    """The DER of each certificate in a file."""
    if data.startswith(b"\x30"):
        return [data]
    return [velkord.PEM2DER_data_format(block) for block in PEM_BLOCK.findall(data)]
# [/certificates]


def main():
    parser = argparse.ArgumentParser(
        description=__doc__, epilog="The exit status is 0 when all certificates were read.")
    parser.add_argument("files", nargs="+", metavar="FILE")
    files = parser.parse_args().files
    sys.stdout.reconfigure(encoding="utf-8")
    status = 0
    for name in files:
        try:
            with open(name, "rb") as file:
                found = certificates(file.read())
            if not found:
                raise ValueError("no certificate in this file")
        except (OSError, ValueError, velkord.VelkordError) as error:
            print(f"{name}: {error}", file=sys.stderr)
            status = 1
            continue
        for number, der in enumerate(found, 1):
            try:
                lines = list(certificate_lines(der))
            except (ValueError, IndexError, velkord.VelkordError) as error:
                print(f"{name}: certificate {number}: {error}", file=sys.stderr)
                status = 1
                continue
            print(f"{name}: certificate {number}")
            for line in lines:
                print("  " + line)
            print()
    return status


if __name__ == "__main__":
    sys.exit(main())
