"""What the headers of a component say: the names that they export, the directives to ./dev lists, and the types of sipsn.

What does not have the expected form is an error, and never left out.
"""
import dataclasses
import functools
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
SOURCE = ROOT / "source"
COMPONENTS = sorted(path.parent.name for path in SOURCE.glob("*/CMakeLists.txt"))


def fail(where, what):
    sys.exit(f"{where}: {what}")


def snake(name):
    """sipsn_header_p_early_media of SipsnHeaderPEarlyMedia."""
    return re.sub(r"(?<!^)(?=[A-Z])", "_", name).lower()


def public_headers(component):
    """Those with include guards; `#pragma once` makes a header the libraries' own."""
    headers = sorted((SOURCE / component).glob("*.h"))
    return [header for header in headers if "#pragma once" not in header.read_text()]


@functools.cache
def words(header):
    """The words of a header outside of comments."""
    return set(re.findall(r"\w+", re.sub(r"/\*.*?\*/", "", header.read_text(), flags=re.DOTALL)))


# ---- Exported names --------------------------------------------------------------------------------

LINE_MARK = re.compile(r'# \d+ "(.*?)"')
ATTRIBUTE = re.compile(r"__attribute__\s*\(\s*\(.*?\)\s*\)(?:\s*\))?")
EXPORT = re.compile(r'__attribute__\s*\(\s*\(\s*visibility\s*\(\s*"default"\s*\)\s*\)\s*\)([^;{]*)[;{]')
DECLARED_NAME = re.compile(r"(\w+)\s*(?:\(|\[|$)")
SORT_FUNCTION = re.compile(r"PbSort\s*\*\s*(\w+)Sort\s*\(\s*void\s*\)")


def own_declarations(component):
    """The text of the component's headers after preprocessing, without what they include from elsewhere."""
    folder = SOURCE / component
    includes = "".join(f'#include "{component}/{header.name}"\n' for header in sorted(folder.glob("*.h")))
    result = subprocess.run(["g++", "-std=c++20", "-E", "-I", SOURCE, "-x", "c++", "-"], input=includes,
                            stdout=subprocess.PIPE, text=True)
    if result.returncode:
        fail(component, "the headers have errors")
    kept, inside = [], False
    for line in result.stdout.splitlines():
        mark = LINE_MARK.match(line)
        if mark:
            inside = pathlib.Path(mark.group(1)).parent == folder
        elif inside:
            kept.append(line)
    return "\n".join(kept)


@functools.cache
def exports(component):
    """The names that the component's headers declare with default visibility, the sort records of its types (that of
    `sipsnReasonSort( void )` has the record sipsn___sort_SIPSN_REASON), and what the types' own files declare."""
    text = own_declarations(component)
    names = set()
    for declaration in EXPORT.findall(text):
        names.add(DECLARED_NAME.search(ATTRIBUTE.sub("", declaration).strip()).group(1))
    for type_name in SORT_FUNCTION.findall(text):
        names.add(f"{component}___sort_" + snake(type_name).upper())
    if component == "sipsn":
        names |= declared_by_files()
    written = set().union(*map(words, public_headers(component)))
    for name in sorted(names):
        # "spisn" begins one name of sipsn that has been misspelt since it was first exported.
        if not re.match(rf"{component}(?=[A-Z_])|spisn", name):
            fail(component, f"{name} is declared here, but named as if it were not")
        if "___" not in name and name not in written:
            fail(component, f"{name} is public, but made by a macro: it stands in no header")
    return sorted(names)


# ---- Directives ------------------------------------------------------------------------------------

# A line /* ./dev lists: LIST( Vias, Via, SipsnVia ) */, or the same as a comment of another language.
DIRECTIVE = re.compile(r"^(?P<open>/\*|//|<!--) \./dev lists: (?!end)(?P<word>\w+)(?:\( (?P<arguments>[\w, ]+) \))?"
                       r"(?:, see [\w.]+)?(?P<close> \*/| -->|)\n", re.MULTILINE)


@functools.cache
def directives(path):
    """What a file asks for: the arguments by the directive's word."""
    text = path.read_text()
    found = {match["word"]: (match["arguments"] or "").split(", ") for match in DIRECTIVE.finditer(text)}
    if len(found) != len(re.findall(r"\./dev lists: (?!end)", text)):
        fail(path.name, "has a directive that is not understood, or one twice")
    return found


# ---- Types of sipsn --------------------------------------------------------------------------------

@dataclasses.dataclass
class Type:
    """A type as its header tells. SipsnHeaderVia is of the kind HEADER; SipsnVia, which has an example of its text, of
    the kind VALUE; SipsnMessage of the kind OBJECT."""
    header: pathlib.Path
    kind: str
    struct: str    # "SipsnHeaderVia"
    short: str     # "Via"
    name: str      # the canonical name of a header field, "Call-Id"; of every other type, "warning-value"
    field: str     # the header field in the spelling of its RFC, "Call-ID"
    rfc: str
    example: str

    def items(self):
        """What a family holds: its word in the register, and the columns there beyond those of all families."""
        asked = directives(self.header)
        if "SET" in asked:
            return "TOKENS", [*asked["SET"], "set"]
        if "LIST" not in asked:
            return "SINGLE", []
        items, item, value = asked["LIST"]
        return ("TOKENS", [items, item, "list"]) if value == "PbString" else ("VALUES", [items, item, value[5:]])


def read_type(header, word):
    """The type that a header declares by TYPE, OBJECT or HEADER, from the block that the header begins with."""
    struct, = directives(header)[word]
    block = re.match(rf"/\* {struct}: .*?\*/$", header.read_text(), re.MULTILINE | re.DOTALL)
    rfc = block and re.search(r"RFC \d+|draft-[\w-]+|3GPP TS [\d.]+", block.group())
    if not rfc or header.stem != snake(struct):
        fail(header.name, f"is not named after {struct}, or does not begin with that name and an RFC")
    found = re.search(r"^ \* Example:(?: |\n \* )(.*(?:\n \* \S.*)*)", block.group(), re.MULTILINE)
    example = found.group(1).replace("\n *", "") if found else ""
    if word != "HEADER":
        short = struct.removeprefix("Sipsn")
        return Type(header, "VALUE" if example else "OBJECT", struct, short, snake(short).replace("_", "-"), "",
                    rfc.group(), example)
    short = struct.removeprefix("SipsnHeader")
    name = snake(short).replace("_", "-").title()
    field = re.match(r"/\* \w+: the ([\w-]+) header field, ", block.group())
    if not field or field.group(1).lower() != name.lower() or not example.startswith(f"{name}: "):
        fail(header.name, f"does not begin with the {name} header field, or its example does not")
    return Type(header, "HEADER", struct, short, name, field.group(1), rfc.group(), example)


@functools.cache
def types(kind):
    """The types of a kind, by name."""
    found = [read_type(header, word) for header in public_headers("sipsn") for word in ("TYPE", "OBJECT", "HEADER")
             if word in directives(header)]
    return [entry for entry in found if entry.kind == kind]


def declared_by_files():
    """What SIPSN_DECLARE_TEXT of a value and SIPSN_DECLARE_NAME of a header family declare."""
    return {f"sipsn___{name}" for value in types("VALUE") for name in (f"{value.short}TryDecode", f"{value.short}Encode")
            } | {f"sipsn___{name}" for family in types("HEADER")
                 for name in (f"Pbs{family.short}", f"Header{family.short}Startup", f"Header{family.short}Shutdown")}


@functools.cache
def compact_names():
    """The letter that stands for a header field, by its canonical name."""
    rows = re.findall(r"^    \{ '(\w)', \"([\w-]+)\" \},$", (SOURCE / "sipsn/sipsn_header_names.cpp").read_text(), re.MULTILINE)
    return {name: letter for letter, name in rows} or fail("sipsn_header_names.cpp", "has no compact names")
