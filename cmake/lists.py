"""Writes what follows from the sources of the libraries, so that nobody lists it by hand.

    lists.py                    compares everything with what it should be; status 1 and the differences when they part
    lists.py --write            writes it anew
    lists.py --library FILE...  compares the export lists with what built libraries export

Of every component: <component>.exports, the names that its headers export; in its headers, the declarations that are
the same for many types; the includes of <component>.h. Of sipsn: sipsn_families.inc, sipsn_values.inc, the registers of
header families and of structured values. All follows from the headers. What does not have the expected form is an error,
and never left out.
"""
import argparse
import dataclasses
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
SOURCE = ROOT / "source"
COMPONENTS = sorted(path.parent.name for path in SOURCE.glob("*/CMakeLists.txt"))

# The families start in the order of their names, but for these, which start behind another one. That order can be
# observed, by a tracer of allocations say, and is kept for those who do.
STARTS_BEHIND = {"Accept": "AcceptResourcePriority", "SessionExpires": "SessionId"}


def fail(where, what):
    sys.exit(f"{where}: {what}")


def find(pattern, text, where, what):
    """The groups of a pattern that must occur."""
    match = re.search(pattern, text, re.MULTILINE)
    return match.groups() if match else fail(where, f"has no {what}")


def snake(name):
    """sipsn_header_p_early_media of SipsnHeaderPEarlyMedia."""
    return re.sub(r"(?<!^)(?=[A-Z])", "_", name).lower()


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


def declared(component):
    """The names that the component's headers declare with default visibility, and the sort records of its types: the
    type of `sipsnReasonSort( void )` has the record sipsn___sort_SIPSN_REASON."""
    text = own_declarations(component)
    names = set()
    for declaration in EXPORT.findall(text):
        names.add(DECLARED_NAME.search(ATTRIBUTE.sub("", declaration).strip()).group(1))
    for type_name in SORT_FUNCTION.findall(text):
        names.add(f"{component}___sort_" + snake(type_name).upper())
    comment = re.compile(r"/\*.*?\*/", re.DOTALL)
    written = set(re.findall(r"\w+", "".join(comment.sub("", header.read_text()) for header in public_headers(component))))
    for name in sorted(names - written):
        if "___" not in name:
            fail(component, f"{name} is public, but a macro makes it: it stands in no header")
    # "spisn" begins one name of sipsn that has been misspelt since it was first exported.
    for name in sorted(names):
        if not re.match(rf"{component}(?=[A-Z_])|spisn", name):
            fail(component, f"{name} is declared here, but named as if it were not")
    return sorted(names)


def exports_path(component):
    return SOURCE / component / f"{component}.exports"


def compare_library(library):
    """The differences between an export list and the dynamic symbols that a shared library defines."""
    component = pathlib.Path(library).name.split(".")[0].removeprefix("lib")
    lines = subprocess.run(["nm", "-D", "--defined-only", library], stdout=subprocess.PIPE, text=True,
                           check=True).stdout.splitlines()
    built = {line.split()[-1].split("@")[0] for line in lines if line.strip()}
    listed = set(exports_path(component).read_text().split())
    return [f"{name}: listed, but lib{component} does not export it" for name in sorted(listed - built)] + \
           [f"{name}: exported by lib{component}, but not listed" for name in sorted(built - listed)]


# ---- Headers ---------------------------------------------------------------------------------------
#
# A line /* ./dev lists: TYPE( SipsnVia ) */ in a public header stands for declarations, which follow it in full, up to a
# line /* ./dev lists: end */. They are those that pb_types.h or sipsn_header.h describes, with the names replaced.

DIRECTIVE = r"^/\* \./dev lists: (?!end)(\w+)(?:\( ([\w, ]+) \))?(?:, see [\w.]+)? \*/\n"
BLOCK = re.compile(DIRECTIVE + r"(?:(?:(?!/\* \./dev lists: ).*\n)*/\* \./dev lists: end \*/\n)?", re.MULTILINE)
DESCRIPTION = re.compile(r"^/\* (\w+)\( ([\w, ]+) \)(?: of (\w+))? declares(.*?)\*/$", re.MULTILINE | re.DOTALL)
DESCRIBED_LINE = re.compile(r"^ \*(?:     (\S.*;).*)?$", re.MULTILINE)


def public_headers(component):
    """Those with include guards; `#pragma once` makes a header the libraries' own."""
    headers = sorted((SOURCE / component).glob("*.h"))
    return [header for header in headers if "#pragma once" not in header.read_text()]


def directives(header):
    """What a header asks for: the arguments by the directive's word."""
    found = re.findall(DIRECTIVE, header.read_text(), re.MULTILINE)
    if len(found) != len(re.findall(r"\./dev lists: (?!end)", header.read_text())):
        fail(header.name, "has a directive that is not understood")
    return {word: arguments.split(", ") for word, arguments in found}


def lower_first(name):
    return name[:1].lower() + name[1:]


def spellings(type_name, arguments):
    """The names that declarations are made of: of the type, of its functions, the arguments, and of a parameter."""
    last = next((name for name in reversed(arguments) if name != "PbString"), "")
    return [type_name, lower_first(type_name), *arguments, lower_first(last.removeprefix("Sipsn"))]


def descriptions():
    """By the directive's word: the header that describes it, the names there, and the declarations."""
    found = {}
    for path in SOURCE / "pb/pb_types.h", SOURCE / "sipsn/sipsn_header.h":
        for word, arguments, type_name, text in DESCRIPTION.findall(path.read_text()):
            names = spellings(type_name, arguments.split(", ")) if type_name else spellings(arguments, [])
            found[word] = path.name, names, "\n".join(DESCRIBED_LINE.findall(text)).strip().split("\n")
    where, names, lines = found["TYPE"]
    found["OBJECT"] = where, names, [line for line in lines if "CreateFrom(" not in line]
    return found


DESCRIPTIONS = descriptions()


def declarations(word, type_name, arguments):
    """The declarations that a directive stands for."""
    where, described, lines = DESCRIPTIONS[word]
    spelt = dict(zip(described, spellings(type_name, arguments)))
    pattern = re.compile("|".join(sorted(filter(None, spelt), key=len, reverse=True)))
    text = ""
    for line in lines:
        text += "PB_API " if line and not line.startswith("typedef") else ""
        text += pattern.sub(lambda name: spelt[name.group()], line) + "\n"
    return declarations("TYPE", type_name, arguments) + "\n" + text if word == "HEADER" else text


def filled(header):
    """The text of a public header with what its directives stand for."""
    asked = directives(header)
    type_name = next((asked[word][0] for word in ("TYPE", "OBJECT", "HEADER") if word in asked), None)

    def fill(match):
        word, arguments = match.groups()
        if word == "includes":
            mark, text = word, "".join(f'#include "{other.name}"\n' for other in public_headers(header.parent.name)
                                       if other != header)
        else:
            mark = f"{word}( {arguments} ), see {DESCRIPTIONS[word][0]}"
            text = declarations(word, type_name, arguments.split(", ") if arguments != type_name else [])
        return f"/* ./dev lists: {mark} */\n{text}/* ./dev lists: end */\n"

    return BLOCK.sub(fill, header.read_text())


# ---- The registers of sipsn ------------------------------------------------------------------------

@dataclasses.dataclass
class Family:
    """A header family: SipsnHeader<type>, the field's canonical and compact name, and how its items are declared."""
    type: str
    name: str
    compact: str
    rfc: str
    kind: str
    items: list

    def row(self):
        return self.kind, [self.type, f'"{self.name}"', f'"{self.compact}"', f'"{self.rfc}"', *self.items]


@dataclasses.dataclass
class Value:
    """A structured value: Sipsn<type>, and its name in running text."""
    type: str
    name: str
    rfc: str

    def row(self):
        return "VALUE", [self.type, f'"{self.name}"', f'"{self.rfc}"']


def items_of(declared_by):
    """The kind of a family and its further columns."""
    if "SET" in declared_by:
        return "TOKENS", [*declared_by["SET"], "set"]
    if "LIST" not in declared_by:
        return "SINGLE", []
    items, item, value = declared_by["LIST"]
    return ("TOKENS", [items, item, "list"]) if value == "PbString" else ("VALUES", [items, item, value[5:]])


def families():
    """All header families, by name."""
    compact = {name: letter for letter, name in re.findall(
        r"^    \{ '(\w)', \"([\w-]+)\" \},$", (SOURCE / "sipsn/sipsn_header_names.cpp").read_text(), re.MULTILINE)}
    found = []
    for header in public_headers("sipsn"):
        declared_by = directives(header)
        if "HEADER" not in declared_by:
            continue
        struct, field, rfc = find(r"\A/\* (\w+): the ([\w-]+) header field, (RFC \d+|draft-[\w-]+)", header.read_text(),
                                  header.name, "first line that names the type, the header field and its RFC")
        name = snake(struct.removeprefix("SipsnHeader")).replace("_", "-").title()
        if declared_by["HEADER"][0] != struct or header.stem != snake(struct) or name.lower() != field.lower():
            fail(header.name, f"is named otherwise than {struct}, or than the header field {field}")
        found.append(Family(struct[11:], name, compact.get(name, ""), rfc, *items_of(declared_by)))
    return found


def values():
    """All structured values, by name: the types that have an example of their text."""
    found = []
    for header in public_headers("sipsn"):
        text = header.read_text()
        if "TYPE" not in directives(header) or not re.search(r"^ \* Example: ", text, re.MULTILINE):
            continue
        struct, rfc = find(r"\A/\* (\w+): (?:.*\n)*?.*?(RFC \d+)", text, header.name, "first line that names the type")
        if header.stem != snake(struct):
            fail(header.name, f"is named otherwise than {struct}")
        found.append(Value(struct[5:], snake(struct)[6:].replace("_", "-"), rfc))
    return found


def in_start_order(found):
    ordered = [family for family in found if family.type not in STARTS_BEHIND]
    for late, other in STARTS_BEHIND.items():
        place = [family.type for family in ordered].index(other)
        ordered.insert(place + 1, next(family for family in found if family.type == late))
    return ordered


def table(entries):
    """One macro call a line, the arguments in columns."""
    rows = [entry.row() for entry in entries]
    widths = {}
    for _, cells in rows:
        for at, cell in enumerate(cells):
            widths[at] = max(widths.get(at, 0), len(cell) + 2)
    return "".join(f"{macro}( " + "".join(f"{cell}, ".ljust(widths[at]) for at, cell in enumerate(cells)).rstrip(", ")
                   + " )\n" for macro, cells in rows)


FAMILIES = """\
// Every header family, one a line, in the order in which they start. Written by ./dev lists.
//
// Define FAMILY, or the three macros that it stands for, and include this file; it undefines them again.
//
//     FAMILY( Type, name, compact, rfc )                         any family
//     VALUES( Type, name, compact, rfc, Items, Item, Value )     a list of structured values
//     TOKENS( Type, name, compact, rfc, Items, Item, shape )     tokens: a list, in order, or a set, each once
//     SINGLE( Type, name, compact, rfc )                         every other
//
// So this calls sipsn___HeaderAcceptEncodingStartup(), sipsn___HeaderAcceptResourcePriorityStartup() and so on:
//
//     #define FAMILY( Type, ... ) sipsn___Header##Type##Startup();
//     #include "sipsn_families.inc"
#ifdef FAMILY
#define VALUES( Type, name, compact, rfc, Items, Item, Value ) FAMILY( Type, name, compact, rfc )
#define TOKENS( Type, name, compact, rfc, Items, Item, shape ) FAMILY( Type, name, compact, rfc )
#define SINGLE( Type, name, compact, rfc )                     FAMILY( Type, name, compact, rfc )
#endif

"""
FAMILIES_END = """
#undef FAMILY
#undef VALUES
#undef TOKENS
#undef SINGLE
"""
VALUES = """\
// Every structured value, one a line, by name. Written by ./dev lists.
//
// Define VALUE( Type, name, rfc ) and include this file; it undefines it again. So this declares struct SipsnAccept,
// struct SipsnAcceptEncoding and so on:
//
//     #define VALUE( Type, ... ) struct Sipsn##Type;
//     #include "sipsn_values.inc"

"""
VALUES_END = """
#undef VALUE
"""


# ---- All of it -------------------------------------------------------------------------------------

def made():
    """Every file that is written, as pairs of its path and its text."""
    for component in COMPONENTS:
        yield from ((header, filled(header)) for header in public_headers(component) if directives(header))
        yield exports_path(component), "".join(name + "\n" for name in declared(component))
    yield SOURCE / "sipsn/sipsn_families.inc", FAMILIES + table(in_start_order(families())) + FAMILIES_END
    yield SOURCE / "sipsn/sipsn_values.inc", VALUES + table(values()) + VALUES_END


def stands(path, text):
    """Whether a file holds a text; the blanks of a header are the formatter's."""
    if not path.exists():
        return False
    standing = path.read_text()
    return standing == text or path.suffix == ".h" and standing.split() == text.split()


def write(path, text):
    path.write_text(text)
    if path.suffix == ".h":
        subprocess.run(["clang-format-14", "-i", path], check=True)


def differences(path, text):
    """What tells a file from what it should be, shortly."""
    standing = path.read_text().splitlines() if path.exists() else []
    wanted = text.splitlines()
    lines = [f"+ {line}" for line in wanted if line not in standing] + [f"- {line}" for line in standing if line not in wanted]
    return [f"{path.relative_to(ROOT)} is not what ./dev lists writes:", *(lines[:20] or ["the order of its lines"])]


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--write", action="store_true")
    parser.add_argument("--library", nargs="+", default=[])
    arguments = parser.parse_args()

    faults = [fault for library in arguments.library for fault in compare_library(library)]
    for path, text in made() if not arguments.library else []:
        if stands(path, text):
            continue
        if arguments.write:
            write(path, text)
        else:
            faults += differences(path, text)
    print("\n".join(faults), end="\n" if faults else "")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
