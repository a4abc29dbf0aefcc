"""The functions of Velkord under their own names, taking and returning bytes.

Arguments come in the order of Velkord.h, or by their names there; `help` shows both. Two kinds are
left out: a length that follows bytes, and what the function hands out, which comes back: None, one
value, or a tuple of several.

- Bytes are given as bytes, text as bytes or str.
- A node or a record is a Handle, and None is the null pointer. A Handle releases what it holds, so
  no Free function is called. Its attributes are the fields; what they point to lives as long as it
  does, or until a setter replaces it. A number can be set, and a null pointer can be set to a
  Handle, which then belongs to the record. bytes(node) returns a node's bytes, and a loop over a node
  walks through its chain. An empty chain is None.
- The record of a key is a structure of velkord_api that the caller makes and the function fills.
- Bytes that the function did not write come back as None.

A return code below 0 raises VelkordError. The library is $VELKORD_LIBRARY; or the one beside this
file, of the build, or of the folders that this file was installed with; or that of the system.

content, read_time, object_id_text and utf8_text are what velkord.hpp has for C++: they read elements,
times beyond 2038 too, as values of Python.
"""
import ctypes
import ctypes.util
import datetime
import inspect
import os
import pathlib
import re
import weakref

import velkord_api

CODES = {code: name for name, code in vars(velkord_api).items() if name.startswith("VELKORD_")}
# The one code whose name tells half of it.
CODES[velkord_api.VELKORD_OUT_OF_MEMORY] += ": out of memory, or a time outside 1970 to 2038"

# No function writes more than twice what it reads, but for what surrounds it and for the numbers of
# a key, which are less than this.
ROOM = 2048
NOT_WRITTEN = 0xFFFFFFFF


class VelkordError(Exception):
    def __init__(self, function, code):
        super().__init__(f"{function}: {CODES.get(code, code)}")
        self.function = function
        self.code = code


def _candidates():
    """Where the library may be, the first that can be loaded first."""
    if "VELKORD_LIBRARY" in os.environ:
        return [os.environ["VELKORD_LIBRARY"]]
    here = pathlib.Path(__file__).resolve().parent
    name, folder, system = "libVelkord.so.1", "lib", "libVelkord.so.1"
    if os.name == "nt":
        name, folder, system = "Velkord.dll", "bin", ctypes.util.find_library("Velkord")
    near = [here, here / "../../build/release", here / "../../.." / folder]
    return [str(path / name) for path in near if (path / name).exists()] + [system or name]


def _load():
    for name in _candidates():
        try:
            return ctypes.CDLL(name)
        except OSError as error:
            failure = error
    raise ImportError(f"{failure} (VELKORD_LIBRARY may tell where the library is)")


library = _load()
velkord_api.declare(library)
_c_library = ctypes.CDLL("msvcrt" if os.name == "nt" else None)
_c_library.free.argtypes = [ctypes.c_void_p]

# A function that takes one record and returns nothing releases it; those of nodes are all the same.
_FREE_NAMES = {
    name for name, (result, arguments) in velkord_api.FUNCTIONS.items()
    if result is None and len(arguments) == 1
}
_FREE = {
    function.argtypes[0]._type_: function
    for function in (getattr(library, name) for name in sorted(_FREE_NAMES))
}


def _is_pointer(kind):
    return hasattr(kind, "contents")


def _number(kind, value):
    number = kind(value)
    if number.value != value:
        raise OverflowError(f"{value} does not fit {kind.__name__}")
    return number


class Handle:
    """A node or a record: one that owns what it holds, or a view of what another owns."""

    def __init__(self, pointer, owner=None):
        self._pointer = pointer
        self._owner = owner
        self._release = None
        if owner is None:
            self._release = weakref.finalize(self, _FREE[pointer._type_], pointer)

    def __getattr__(self, name):
        record = self._pointer.contents
        value = getattr(record, name)
        if not _is_pointer(type(value)):
            return bytes(value) if isinstance(value, ctypes.Array) else value
        if not value:
            return None
        if type(value) is ctypes.POINTER(ctypes.c_uint8):
            return ctypes.string_at(value, getattr(record, name + "Len"))
        return Handle(value, self._owner or self)

    def __setattr__(self, name, value):
        if name.startswith("_"):
            super().__setattr__(name, value)
            return
        record = self._pointer.contents
        kind = dict(record._fields_)[name]
        if not _is_pointer(kind):
            setattr(record, name, _number(kind, value).value)
            return
        # A record that is put into another belongs to that one from then on.
        if value._release is None or getattr(record, name):
            raise ValueError(f"{name}: only an owner can be put where nothing is")
        setattr(record, name, value._pointer)
        value._release.detach()
        value._release = None
        value._owner = self._owner or self

    def __bytes__(self):
        return self.data or b""

    def __iter__(self):
        node = self
        while node is not None:
            yield node
            node = node.next


def _size(value):
    """How many bytes of an argument a function may copy to its results."""
    if isinstance(value, bytes):
        return len(value)
    if isinstance(value, Handle):
        if value._pointer._type_ is velkord_api.X509Cert:
            return _size(value.tbs and value.tbs.extensions)
        return getattr(value, "dataLen", 0)
    return 0


def _parameters(name):
    """Yields those that the caller gives: no length of bytes, and nothing that is handed out."""
    before = None
    for parameter, kind in velkord_api.FUNCTIONS[name][1].items():
        if _is_pointer(kind):
            is_given = issubclass(kind._type_, ctypes.Structure)
        else:
            is_given = kind is ctypes.c_char_p or before is not ctypes.c_char_p
        if is_given:
            yield parameter
        before = kind


class _Call:
    """The arguments of one call, put together from the values that are given."""

    def __init__(self, name, values):
        self.name = name
        self.result, arguments = velkord_api.FUNCTIONS[name]
        values = [value.encode() if isinstance(value, str) else value for value in values]
        self.room = ROOM + 2 * sum(map(_size, values))
        self.given = dict(zip(_parameters(name), values))
        self.passed = []
        self.readers = []  # One for each result.
        self.before = None  # The bytes or the buffer that a length may follow.
        for parameter, kind in arguments.items():
            self.before = self.add(parameter, kind)

    def add(self, parameter, kind):
        target = getattr(kind, "_type_", None) if _is_pointer(kind) else None
        if kind is ctypes.c_char_p:
            value = self.given[parameter]
            self.passed.append(value)
            return value or b""
        if target is None:
            value = self.given[parameter] if parameter in self.given else len(self.before)
            self.passed.append(_number(kind, value))
        elif _is_pointer(target):
            cell = target()
            self.passed.append(ctypes.byref(cell))
            self.readers.append(lambda: Handle(cell) if cell else None)
        elif issubclass(target, ctypes.Structure):
            value = self.given[parameter]
            if isinstance(value, Handle):
                value = value._pointer
            self.passed.append(value)
        elif target in (ctypes.c_char, ctypes.c_uint8):
            buffer = (target * self.room)()
            self.passed.append(buffer)
            is_text = target is ctypes.c_char
            self.readers.append(lambda: buffer.value if is_text else buffer[0])
            return buffer
        else:
            self.add_number(target, self.before)
        return None

    def add_number(self, target, buffer):
        if buffer is None:
            cell = target()
            self.readers.append(lambda: cell.value)
        else:
            cell = target(NOT_WRITTEN)
            self.readers[-1] = lambda: (
                None if cell.value == NOT_WRITTEN else bytes(memoryview(buffer)[:cell.value]))
        self.passed.append(ctypes.byref(cell))

    def run(self):
        code = getattr(library, self.name)(*self.passed)
        if self.result is ctypes.c_int32 and code < 0:
            raise VelkordError(self.name, code)
        results = [read() for read in self.readers]
        if self.result is ctypes.c_uint32:
            results.insert(0, code)
        return tuple(results) if len(results) > 1 else results[0] if results else None


# -------------------------------------------------------------------------------------------------
# Functions of another shape
# -------------------------------------------------------------------------------------------------


def Asn1LowIntToChar(value):
    octets = ctypes.POINTER(ctypes.c_uint8)()
    length = ctypes.POINTER(ctypes.c_uint32)()
    code = library.Asn1LowIntToChar(
        _number(ctypes.c_uint32, value), ctypes.byref(octets), ctypes.byref(length))
    if code < 0:
        raise VelkordError("Asn1LowIntToChar", code)
    try:
        return ctypes.string_at(octets, length.contents.value)
    finally:
        _c_library.free(octets)
        _c_library.free(length)


def ASN1_OBJECT_a2d(text):
    octets = _Call("ASN1_OBJECT_a2d", [text]).run()
    if not octets:
        raise ValueError(f"not an object identifier: {text}")
    return octets


def _write_time(name, time):
    node = ctypes.POINTER(velkord_api.Anybuf)()
    code = getattr(library, name)(
        ctypes.byref(_number(ctypes.c_int32, time)), ctypes.byref(node))
    if code < 0:
        raise VelkordError(name, code)
    return Handle(node)


def ASN1_WriteGeneralizedTime(time):
    return _write_time("ASN1_WriteGeneralizedTime", time)


def ASN1_WriteUtcTime(time):
    return _write_time("ASN1_WriteUtcTime", time)


def ASN1_SetAlgorithmIdentifier(mode, oid, alternative=None, parameter=None):
    """The object identifier stays the caller's: the library is given a copy that it may release."""
    copy = oid and _Call("ASN1_CreateAnybuf", [bytes(oid), oid.dataType]).run()
    values = [mode, copy, alternative, parameter]
    algorithm = _Call("ASN1_SetAlgorithmIdentifier", values).run()
    if parameter is not None or mode != 1:
        copy._release.detach()
    return algorithm


def X509CertCreate():
    record = library.X509CertCreate(None)
    if not record:
        raise VelkordError("X509CertCreate", velkord_api.VELKORD_OUT_OF_MEMORY)
    return Handle(record)


def uniToUTF8(code):
    form = (ctypes.c_uint8 * 6)()
    size = library.uniToUTF8(form, len(form), _number(ctypes.c_uint32, code))
    if size < 0:
        raise ValueError(f"not a code point: {code}")
    return bytes(form[:size])


def utf8ToUni(in_):
    """Returns the number of bytes that were read, and the code point."""
    text = in_.encode() if isinstance(in_, str) else in_
    code = ctypes.c_uint32()
    size = library.utf8ToUni(text, len(text), ctypes.byref(code))
    if size <= 0:
        raise ValueError(f"no UTF-8 form at the start of {text[:6]}")
    return size, code.value


# -------------------------------------------------------------------------------------------------
# Values of elements
# -------------------------------------------------------------------------------------------------

# By the octet of the tag.
_ENCODINGS = {
    0x0C: "utf-8",  # UTF8String
    0x12: "ascii",  # NumericString
    0x13: "ascii",  # PrintableString
    0x14: "latin-1",  # T61String, as its writers mean it
    0x16: "ascii",  # IA5String
    0x1A: "ascii",  # VisibleString
    0x1C: "utf-32-be",  # UniversalString
    0x1E: "utf-16-be",  # BMPString
}


def content(element):
    """Returns the content of one whole element, a TLV node or bytes."""
    node = element if isinstance(element, Handle) else ASN1_WriteExplicitFromDERData(element)
    return bytes(ASN1_ReadOctetString(node))


def read_time(element):
    """Returns the time of a UTCTime or GeneralizedTime element as a datetime in UTC.

    The two digits of a UTCTime stand for 1950 to 2049. Only the forms of DER are taken,
    YYMMDDHHMMSSZ and YYYYMMDDHHMMSSZ, with a year that a datetime can have, 1 to 9999.
    """
    text = content(element).decode("latin-1")
    tag = bytes(element)[0]
    if tag == 0x17:
        text = ("20" if text[:1] < "5" else "19") + text
    elif tag != 0x18:
        raise VelkordError("read_time", velkord_api.VELKORD_WRONG_TAG)
    try:
        fields = re.fullmatch("([0-9]{4})" + 5 * "([0-9]{2})" + "Z", text).groups()
        return datetime.datetime(*map(int, fields), tzinfo=datetime.timezone.utc)
    except (AttributeError, ValueError):
        raise VelkordError("read_time", velkord_api.VELKORD_BAD_TIME) from None


def object_id_text(octets):
    """Returns the dotted text of an OBJECT IDENTIFIER's content octets.

    An arc has at most 128 bits, as a UUID in 2.25 has, and not the 64 of the one for C++.
    """
    arcs = []
    if re.fullmatch(rb"((?!\x80)[\x80-\xFF]{,18}[\x00-\x7F])+", octets):
        for arc in re.findall(rb"[\x80-\xFF]*[\x00-\x7F]", octets):
            arcs.append(0)
            for octet in arc:
                arcs[-1] = arcs[-1] << 7 | octet & 0x7F
    if not arcs or max(arcs) >> 128:
        raise VelkordError("object_id_text", velkord_api.VELKORD_FAILURE)
    first = min(arcs[0] // 40, 2)
    return ".".join(map(str, [first, arcs[0] - 40 * first, *arcs[1:]]))


def utf8_text(element):
    """Returns the text of a string element by its type.

    T61String is taken for Latin-1, BMPString for UTF-16. Bytes that are no text of their type are
    refused.
    """
    octets = content(element)
    tag = bytes(element)[0]
    if tag not in _ENCODINGS:
        raise VelkordError("utf8_text", velkord_api.VELKORD_WRONG_TAG)
    try:
        return octets.decode(_ENCODINGS[tag])
    except UnicodeDecodeError:
        raise VelkordError("utf8_text", velkord_api.VELKORD_FAILURE) from None


# -------------------------------------------------------------------------------------------------
# All others
# -------------------------------------------------------------------------------------------------


def _bind(name):
    signature = inspect.Signature([
        inspect.Parameter(parameter, inspect.Parameter.POSITIONAL_OR_KEYWORD)
        for parameter in _parameters(name)])

    def function(*values, **named):
        return _Call(name, signature.bind(*values, **named).args).run()

    function.__name__ = function.__qualname__ = name
    function.__signature__ = signature
    return function


for _name in velkord_api.FUNCTIONS.keys() - _FREE_NAMES:
    _function = globals().setdefault(_name, _bind(_name))
    _function.__doc__ = "\n\n".join(
        filter(None, [velkord_api.DOCUMENTATION[_name], _function.__doc__]))
