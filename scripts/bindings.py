"""Writes the declarations of the library for C#, Delphi and Python from its header.

They are bindings/csharp/Velkord.cs, bindings/delphi/Velkord.pas and
bindings/python/velkord_api.py. The list that the tests are built with comes from here too.
"""
import argparse
import difflib
import itertools
import pathlib
import re
import sys
import textwrap
from typing import NamedTuple

ROOT = pathlib.Path(__file__).resolve().parent.parent
HEADER = ROOT / "include" / "Velkord.h"
WIDTH = 100
ORIGIN = (
    "Made by scripts/make-bindings from include/Velkord.h, which tells what each function takes "
    "and gives, and who releases it."
)


class Type(NamedTuple):
    const: bool
    base: str
    stars: int
    size: int = 0  # Number of elements of an array.


class Named(NamedTuple):
    name: str
    type: Type


class Section(NamedTuple):
    text: str


class Constant(NamedTuple):
    name: str
    value: str
    text: str


class Record(NamedTuple):
    name: str
    fields: list[Named]
    text: str

    def is_flat(self):
        return not any(field.type.stars for field in self.fields)


class Function(NamedTuple):
    result: Type
    name: str
    arguments: list[Named]
    text: str
    documentation: str  # All of the comment, which functions that stand together share.


# -------------------------------------------------------------------------------------------------
# Reading the header
# -------------------------------------------------------------------------------------------------

RULE = r"// -+\n"
ITEMS = re.compile(
    rf"(?P<blank>\s+)"
    rf"|{RULE}/// @defgroup \w+ (?P<title>.*)\n(?P<about>(?:/// .*\n)*)"
    rf"|(?P<text>(?:///.*\n)+)"
    rf"|enum \{{(?P<constants>[^}}]*)\}};"
    rf"|typedef struct (?P<record>\w+) \{{(?P<fields>[^}}]*)\}} (?P=record);"
    rf"|VELKORD_API (?P<result>\w+\**) VELKORD_CALL\s+(?P<function>\w+)\((?P<arguments>[^)]*)\);"
)
CONSTANT = re.compile(r"\s*(\w+) = (-?\d+),?((?:\s*///<.*)*)")
DECLARATION = re.compile(r"\s*(const )?(?:struct )?(\w+)(\**) (\w+)(?:\[(\d+)\])?\s*")


def plain(comment):
    return " ".join(re.sub(r"^\s*//+<?", "", comment, flags=re.MULTILINE).split())


def section_text(title, about):
    """The title of a group, and what is said about all of it."""
    return title + (". " + plain(about) if about else "")


def first_sentence(comment):
    return re.match(r"(?:.*?[.](?= |$))?", plain(comment))[0]


def declarations(text, separator):
    parts = [part for part in re.sub(r"//.*", "", text).split(separator) if part.strip()]
    found = []
    for part in parts:
        match = DECLARATION.fullmatch(part)
        if not match:
            sys.exit(f"{HEADER}: no declaration: {part.strip()}")
        const, base, stars, name, size = match.groups()
        found.append(Named(name, Type(bool(const), base, len(stars), int(size or 0))))
    return found


def constants(text):
    position = 0
    while text[position:].strip():
        match = CONSTANT.match(text, position)
        if not match:
            sys.exit(f"{HEADER}: no constant: {text[position:].strip()}")
        yield Constant(match[1], match[2], first_sentence(match[3]))
        position = match.end()


def read_header():
    header = HEADER.read_text(encoding="utf-8")
    position = header.index('extern "C" {\n#endif\n') + len('extern "C" {\n#endif\n')
    end = header.index("#ifdef __cplusplus\n}")
    items = []
    text = documentation = ""
    while position < end:
        match = ITEMS.match(header, position)
        if not match:
            line = header.count("\n", 0, position) + 1
            sys.exit(f"{HEADER}:{line}: not understood: {header[position:].splitlines()[0]}")
        position = match.end()
        if match["title"]:
            items.append(Section(section_text(match["title"], match["about"])))
        elif match["text"]:
            text = first_sentence(match["text"])
            documentation = plain(match["text"])
        elif match["constants"]:
            items.extend(constants(match["constants"]))
        elif match["record"]:
            items.append(Record(match["record"], declarations(match["fields"], ";"), text))
        elif match["function"]:
            base = match["result"].rstrip("*")
            result = Type(False, base, len(match["result"]) - len(base))
            arguments = declarations(match["arguments"], ",")
            items.append(Function(result, match["function"], arguments, text, documentation))
        if not match["blank"] and not match["text"]:
            text = ""
    return items


def of_kind(items, kind):
    return [item for item in items if isinstance(item, kind)]


# -------------------------------------------------------------------------------------------------
# Writing
# -------------------------------------------------------------------------------------------------


def comment(mark, text, indent):
    if not text:
        return []
    start = " " * indent + mark
    return textwrap.wrap(text, WIDTH, initial_indent=start, subsequent_indent=start)


def statement(start, parts, end, indent, further=4):
    """Lines of a statement; a part is never broken."""
    lines = [" " * indent + start]
    for number, part in enumerate(parts):
        piece = part + (end if number == len(parts) - 1 else "")
        blank = "" if lines[-1].endswith("(") else " "
        if len(lines[-1]) + len(blank) + len(piece) > WIDTH:
            lines.append(" " * (indent + further) + piece)
        else:
            lines[-1] += blank + piece
    if not parts:
        lines[-1] += end
    return lines


def separated(parts, mark):
    return [part + mark for part in parts[:-1]] + parts[-1:]


class CSharp:
    path = ROOT / "bindings" / "csharp" / "Velkord.cs"
    numbers = {
        "int32_t": "int", "uint32_t": "uint", "uint8_t": "byte", "uintptr_t": "UIntPtr",
        "void": "void",
    }
    keywords = {"in", "out"}

    def __init__(self, items):
        self.items = items
        self.flat = {record.name for record in of_kind(items, Record) if record.is_flat()}

    def name(self, name):
        return "@" + name if name in self.keywords else name

    def field(self, field):
        kind = "IntPtr" if field.type.stars else self.numbers[field.type.base]
        if not field.type.size:
            return [f"        public {kind} {self.name(field.name)};"]
        return [
            f"        [MarshalAs(UnmanagedType.ByValArray, SizeConst = {field.type.size})]",
            f"        public {kind}[] {self.name(field.name)};",
        ]

    def argument(self, argument):
        const, base, stars, _ = argument.type
        if stars == 0:
            kind = self.numbers[base]
        elif stars == 1 and base in ("uint8_t", "char"):
            kind = "byte[]" if const else "[In, Out] byte[]"
        elif stars == 1 and (base in self.numbers or base in self.flat):
            kind = ("[In] ref " if const else "ref ") + self.numbers.get(base, base)
        else:
            kind = "IntPtr" if stars == 1 else "ref IntPtr"
        return f"{kind} {self.name(argument.name)}"

    def lines(self):
        yield from comment("// ", ORIGIN, 0)
        yield from comment(
            "// ",
            "Nodes, records and chains are IntPtr: Marshal.PtrToStructure reads one into its "
            "struct, and its Free function releases it. A record without pointers is the "
            "caller's own struct. What a function hands out goes to a ref argument, since a "
            "function that fails leaves it as it was: start with IntPtr.Zero or 0. A byte[] for "
            "a result has the room that the header asks for. Text without a length of its own "
            "ends with a zero byte.", 0)
        yield "using System;"
        yield "using System.Runtime.InteropServices;"
        yield ""
        yield "public static class Velkord"
        yield "{"
        yield '    private const string Library = "Velkord";'
        yield "    private const CallingConvention Cdecl = CallingConvention.Cdecl;"
        for item in self.items:
            if not isinstance(item, Constant):
                yield ""
            if isinstance(item, Section):
                yield from comment("// ==== ", item.text, 4)
                continue
            yield from comment("// ", item.text, 4)
            if isinstance(item, Constant):
                yield f"    public const int {item.name} = {item.value};"
            elif isinstance(item, Record):
                yield "    [StructLayout(LayoutKind.Sequential)]"
                yield f"    public struct {item.name}"
                yield "    {"
                for field in item.fields:
                    yield from self.field(field)
                yield "    }"
            else:
                result = "IntPtr" if item.result.stars else self.numbers[item.result.base]
                arguments = [self.argument(argument) for argument in item.arguments]
                yield "    [DllImport(Library, CallingConvention = Cdecl)]"
                yield from statement(f"public static extern {result} {item.name}(",
                                     separated(arguments, ","), ");", 4)
        yield "}"


class Delphi:
    path = ROOT / "bindings" / "delphi" / "Velkord.pas"
    numbers = {
        "int32_t": "Integer", "uint32_t": "Cardinal", "uint8_t": "Byte",
        "uintptr_t": "NativeUInt", "char": "AnsiChar",
    }
    reserved = {"as", "type"}

    def __init__(self, items):
        self.items = items

    def name(self, name):
        return "&" + name if name.lower() in self.reserved else name

    def kind(self, kind):
        if kind.size:
            return f"array[0..{kind.size - 1}] of {self.numbers[kind.base]}"
        base = self.numbers.get(kind.base, kind.base)
        if kind.stars == 0:
            return self.numbers[kind.base]
        return "P" * kind.stars + base

    def argument(self, argument):
        const, base, stars, _ = argument.type
        handed_out = stars == 2 or (stars == 1 and not const and base in ("int32_t", "uint32_t"))
        kind = argument.type._replace(stars=stars - 1) if handed_out else argument.type
        name = self.name("A" + argument.name[0].upper() + argument.name[1:])
        return f"{'var ' if handed_out else ''}{name}: {self.kind(kind)}"

    def record(self, record):
        yield f"  P{record.name} = ^T{record.name};"
        yield f"  T{record.name} = record"
        for field in record.fields:
            yield f"    {self.name(field.name)}: {self.kind(field.type)};"
        yield "  end;"

    def function(self, function):
        word, result = "procedure", ""
        if function.result.base != "void":
            word, result = "function", ": " + self.kind(function.result)
        arguments = separated([self.argument(argument) for argument in function.arguments], ";")
        ends = [f"cdecl; external VelkordLibrary name '{function.name}';"]
        arguments[-1] += f"){result};"
        yield from statement(f"{word} {function.name}(", arguments + ends, "", 0, 2)

    def lines(self):
        yield from comment("// ", ORIGIN, 0)
        yield from comment(
            "// ",
            "What a function hands out goes to a var argument, which a function that fails leaves "
            "as it was: start with nil or 0. A PByte or PAnsiChar for a result points to the room "
            "that the header asks for.", 0)
        yield "unit Velkord;"
        yield ""
        yield "{$IFDEF FPC}{$MODE DELPHI}{$PACKRECORDS C}{$ELSE}{$ALIGN 8}{$ENDIF}"
        yield ""
        yield "interface"
        yield ""
        yield "const"
        yield "  VelkordLibrary = {$IFDEF MSWINDOWS}'Velkord.dll'{$ELSE}'libVelkord.so'{$ENDIF};"
        in_types = False
        for item in self.items:
            if isinstance(item, Constant):
                yield from comment("// ", item.text, 2)
                yield f"  {item.name} = {item.value};"
                continue
            yield ""
            if isinstance(item, Section):
                yield from comment("// ==== ", item.text, 0)
            elif isinstance(item, Record):
                if not in_types:
                    yield "type"
                    in_types = True
                yield from comment("// ", item.text, 2)
                yield from self.record(item)
            else:
                yield from comment("// ", item.text, 0)
                yield from self.function(item)
        yield ""
        yield "implementation"
        yield ""
        yield "end."


class Python:
    path = ROOT / "bindings" / "python" / "velkord_api.py"
    numbers = {
        "int32_t": "c_int32", "uint32_t": "c_uint32", "uint8_t": "c_uint8",
        "uintptr_t": "c_size_t", "char": "c_char",
    }
    keywords = {"in"}

    def __init__(self, items):
        self.items = items

    def kind(self, kind):
        if kind.const and kind.base in ("uint8_t", "char"):
            return "c_char_p"
        base = self.numbers.get(kind.base, kind.base)
        if kind.size:
            return f"{base} * {kind.size}"
        return "P(" * kind.stars + base + ")" * kind.stars

    def record(self, record):
        fields = [f'("{name}", {self.kind(kind)}),' for name, kind in record.fields]
        yield f"class {record.name}(Structure):"
        # A record that points to its own kind can name it only once it is there.
        if record.name in (field.type.base for field in record.fields):
            yield "    pass"
            yield ""
            yield ""
            yield f"{record.name}._fields_ = ["
            yield from ("    " + field for field in fields)
            yield "]"
        else:
            yield "    _fields_ = ["
            yield from ("        " + field for field in fields)
            yield "    ]"

    def lines(self):
        yield from textwrap.wrap(ORIGIN, WIDTH, initial_indent='"""')
        yield '"""'
        yield "from ctypes import POINTER as P"
        yield "from ctypes import Structure, c_char, c_char_p, c_int32, c_size_t, c_uint32, c_uint8"
        yield ""
        for constant in of_kind(self.items, Constant):
            yield from comment("# ", constant.text, 0)
            yield f"{constant.name} = {constant.value}"
        for record in of_kind(self.items, Record):
            yield ""
            yield ""
            yield from comment("# ", record.text, 0)
            yield from self.record(record)
        yield ""
        yield ""
        yield "def _of(result, /, **arguments):"
        yield "    return result, arguments"
        yield ""
        yield ""
        yield "# The types of the result and of each argument."
        yield "FUNCTIONS = {"
        section = ""
        for item in self.items:
            if isinstance(item, Section):
                section = item.text
            elif isinstance(item, Function):
                yield from comment("# ==== ", section, 4)
                section = ""
                yield from self.function(item)
        yield "}"
        yield ""
        yield "# What the header says of each function, and of those that stand together once."
        yield "DOCUMENTATION = {name: text for names, text in ("
        for text, family in itertools.groupby(
                of_kind(self.items, Function), lambda function: function.documentation):
            yield from self.documentation([function.name for function in family], text)
        yield ") for name in names.split()}"
        yield ""
        yield ""
        yield "def declare(library):"
        yield '    """Gives all functions of a loaded library their types."""'
        yield "    for name, (result, arguments) in FUNCTIONS.items():"
        yield "        function = getattr(library, name)"
        yield "        function.restype = result"
        yield "        function.argtypes = list(arguments.values())"

    def strings(self, text):
        """Lines of literals that together are the text."""
        lines = textwrap.wrap(text, WIDTH - 12)
        return [repr(line + " ") for line in lines[:-1]] + [repr(lines[-1])]

    def documentation(self, names, text):
        lines = self.strings(" ".join(names))
        lines[-1] += ","
        lines += self.strings(text)
        lines[0] = "(" + lines[0]
        lines[-1] += "),"
        yield "    " + lines[0]
        yield from ("     " + line for line in lines[1:])

    def function(self, function):
        result = "None" if function.result.base == "void" else self.kind(function.result)
        arguments = [
            f"{name}_={self.kind(kind)}" if name in self.keywords else f"{name}={self.kind(kind)}"
            for name, kind in function.arguments
        ]
        yield from statement(f'"{function.name}": _of(', separated([result] + arguments, ","),
                             "),", 4)


def write_list(items, path):
    """Records and functions as macros; a function has its parameters' names."""
    lines = []
    for record in of_kind(items, Record):
        if not record.is_flat():
            lines.append(f"RECORD({record.name})")
            lines += [f"FIELD({record.name}, {field.name})" for field in record.fields]
    for function in of_kind(items, Function):
        names = " ".join(argument.name for argument in function.arguments)
        lines.append(f'FUNCTION({function.name}, "{names}")')
    path.write_text("\n".join(lines) + "\n")


def main():
    parser = argparse.ArgumentParser(
        prog="make-bindings", description=__doc__,
        formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--check", action="store_true",
                        help="write nothing, and fail when a file is not what would be written")
    parser.add_argument("--list", metavar="FILE", type=pathlib.Path,
                        help="write nothing but the list for the tests, to a file")
    arguments = parser.parse_args()
    check = arguments.check

    items = read_header()
    if arguments.list:
        write_list(items, arguments.list)
        return 0
    status = 0
    for language in (CSharp, Delphi, Python):
        text = "".join(line + "\n" for line in language(items).lines())
        path = language.path
        if not check:
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text, encoding="utf-8", newline="\n")
            continue
        present = path.read_bytes().decode() if path.exists() else ""
        if present != text:
            status = 1
            name = str(path.relative_to(ROOT))
            sys.stdout.writelines(difflib.unified_diff(
                present.splitlines(True), text.splitlines(True), name, "what would be written"))
    if status:
        print("Run scripts/make-bindings.", file=sys.stderr)
    return status


if __name__ == "__main__":
    sys.exit(main())
