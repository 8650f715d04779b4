"""Writes what follows from the headers of the libraries, so that nobody lists it by hand.

    lists.py                    compares everything with what it should be; status 1 and the differences when they part
    lists.py --write            writes it anew
    lists.py --library FILE...  compares the export lists with what built libraries export

It writes <component>.exports, the names that the headers of a component export; the numbers in README and documents that
say how many there are of something; and, in headers, registers and documents, what belongs between a line

    /* ./dev lists: TYPE( SipsnVia ) */

and a line /* ./dev lists: end */, which it adds where it is not yet.
"""
import argparse
import functools
import pathlib
import re
import subprocess
import sys

sys.dont_write_bytecode = True
from headers import (COMPONENTS, DIRECTIVE, ROOT, SOURCE, compact_names, directives, exports, fail, public_headers, snake,
                     types, words)

# The families start in the order of their names, but for these, which start behind another one.
STARTS_BEHIND = {"Accept": "AcceptResourcePriority", "SessionExpires": "SessionId"}


# ---- Declarations ----------------------------------------------------------------------------------
#
# A directive such as TYPE( SipsnVia ) stands for declarations that many headers have: those that pb_types.h,
# sipsn_header.h or sipsn_uri.h describes under that word for one type, with the names replaced.

DESCRIPTION = re.compile(r"^/\* (\w+)\( ([\w, ]+) \)(?: of (\w+))? declares(.*?)\*/$", re.MULTILINE | re.DOTALL)
DESCRIBED_LINE = re.compile(r"^ \*(?:     (\S.*;).*)?$", re.MULTILINE)


def lower_first(name):
    return name[:1].lower() + name[1:]


def spellings(type_name, arguments):
    """The names in declarations: of the type, of its functions, the arguments, and of a parameter."""
    value = next((name for name in reversed(arguments) if name != "PbString"), "")
    return [type_name, lower_first(type_name), *arguments, lower_first(value.removeprefix("Sipsn"))]


@functools.cache
def descriptions():
    """By the directive's word: the header that describes it, the names there, and the declarations."""
    found = {}
    for path in (SOURCE / name for name in (
            "pb/pb_types.h", "sipsn/sipsn_header.h", "sipsn/sipsn_member.h", "sipsn/sipsn_uri.h")):
        for word, arguments, type_name, text in DESCRIPTION.findall(path.read_text()):
            names = spellings(type_name, arguments.split(", ")) if type_name else spellings(arguments, [])
            found[word] = path.name, names, "\n".join(DESCRIBED_LINE.findall(text)).strip().split("\n")
    where, names, lines = found["TYPE"]
    found["OBJECT"] = where, names, [line for line in lines if "CreateFrom(" not in line]
    return found


def declarations(word, type_name, arguments):
    """The declarations that a directive stands for."""
    _, described, lines = descriptions()[word]
    spelt = dict(zip(described, spellings(type_name, arguments)))
    pattern = re.compile("|".join(sorted(filter(None, spelt), key=len, reverse=True)))
    text = ""
    for line in lines:
        text += "PB_API " if line and not line.startswith("typedef") else ""
        text += pattern.sub(lambda name: spelt[name.group()], line) + "\n"
    return declarations("TYPE", type_name, arguments) + "\n" + text if word == "HEADER" else text


# The lines of a type's own file that define the functions of members: SIPSN_TEXT( HeaderJoin, hdr, CallId, callId, ... )
MEMBER = re.compile(r"^SIPSN_(\w+)\( ([^()]+?) \)$", re.MULTILINE)


def members(path, type_name):
    """The declarations of the functions that a type's file defines for its members."""
    found = []
    for word, arguments in MEMBER.findall(path.with_suffix(".cpp").read_text()):
        if word in descriptions():
            wanted = len(descriptions()[word][1]) - 3 # beyond the two names of the type and that of a parameter
            found.append(declarations(word, type_name, re.split(r",\s+", arguments)[1:][:wanted]))
    return "\n".join(found) or fail(path.name, "has no functions of members")


# ---- Registers and tables --------------------------------------------------------------------------

def quoted(text):
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"') + '"'


def register(rows):
    """One macro call a line, the arguments in columns."""
    rows = [(f"{macro}( {first}", *cells) for macro, first, *cells in rows]
    columns = max(map(len, rows))
    widths = [max(len(row[at]) for row in rows if len(row) > at + 1) + 2 for at in range(columns - 1)]
    lines = ("".join(f"{cell}, ".ljust(width) for cell, width in zip(row[:-1], widths)) + row[-1] for row in rows)
    return "".join(f"{line} )\n" for line in lines)


def families_register():
    families = {family.short: family for family in types("HEADER")}
    order = [short for short in families if short not in STARTS_BEHIND]
    for late, other in STARTS_BEHIND.items():
        order.insert(order.index(other) + 1, late)
    rows = []
    for family in map(families.get, order):
        word, columns = family.items()
        compact = compact_names().get(family.name, "")
        rows.append([word, family.short, quoted(family.name), quoted(compact), quoted(family.rfc), *columns])
    return register(rows)


def values_register():
    return register([["VALUE", value.short, quoted(value.name), quoted(value.rfc)] for value in types("VALUE")])


def types_register():
    return register([[entry.kind, entry.short, *([quoted(entry.example)] if entry.example else [])]
                     for kind in ("HEADER", "VALUE", "OBJECT") for entry in types(kind)])


def link(entry):
    return f"[{entry.struct}](../{entry.header.relative_to(ROOT)})"


def families_table():
    text = "| header field | compact | holds | type | RFC | example |\n|---|---|---|---|---|---|\n"
    for family in types("HEADER"):
        word, columns = family.items()
        holds = {"SINGLE": "value", "VALUES": "list: Sipsn{2}", "TOKENS": "token {2}: {items}"}[word].format(
            *columns, items=snake(columns[0]).replace("_", " ") if columns else "")
        compact = compact_names().get(family.name, "")
        text += f"| {family.field} | {compact} | {holds} | {link(family)} | {family.rfc} | `{family.example}` |\n"
    return text


def values_table():
    return "| value | type | RFC | example |\n|---|---|---|---|\n" + "".join(
        f"| {value.name} | {link(value)} | {value.rfc} | `{value.example}` |\n" for value in types("VALUE"))


# ---- Numbers ---------------------------------------------------------------------------------------

@functools.cache
def numbers():
    """By document, the phrases that tell a number, with # in its place, and the number."""
    names = exports("sipsn")
    public = {name for name in names if "___" not in name}

    def declared_in(headers):
        return sum(len(public & words(header)) for header in headers)

    def internal(pattern):
        return len([name for name in names if re.fullmatch(f"sipsn___{pattern}", name)])

    headers, values = (declared_in(entry.header for entry in types(kind)) for kind in ("HEADER", "VALUE"))
    messages = declared_in(header for header in public_headers("sipsn")
                           if re.match("sipsn_(message|version|module|fault)", header.stem))
    schema = declared_in([SOURCE / "sipsn/sipsn_schema.h"])
    productions, classes = internal(r"Skip\w+"), internal(r"CharIs\w+")
    files, coders = internal(r"\w+(?:Startup|Shutdown)"), internal(r"\w+(?:Encode|Decode)")
    sorts, constants, module = internal(r"sort_\w+"), internal(r"Pbs\w+"), internal(r"module\w*")
    if len(public) + productions + classes + files + coders + sorts + constants + module != len(names):
        fail("sipsn.exports", "has a name that is in no class that docs/architecture.md counts")
    return {"README.md": {"# header fields have a type of": len(types("HEADER"))}, "docs/architecture.md": {
        "# header fields, decoded": len(types("HEADER")),
        "sipsn_skip (# productions)": productions,
        "libsipsn exports # names": len(names),
        "| header types, `sipsnHeader...` | # |": headers,
        "| structured values | # |": values,
        "| messages, header fields, versions, the stream decoder, the reader, the module | # |": messages,
        "| the schema, `sipsnSchema...` | # |": schema,
        "| token families | # |": len(public) - headers - values - messages - schema,
        "| **public functions** | **#** |": len(public),
        "| productions, `sipsn___Skip...` | # |": productions,
        "| character classes, `sipsn___CharIs...` | # |": classes,
        "| start-up and shutdown of files | # |": files,
        "| encoders and decoders of values and tokens | # |": coders,
        "| **internal functions** | **#** |": productions + classes + files + coders,
        "| sort records, `sipsn___sort_...` | # |": sorts,
        "| name constants, `sipsn___Pbs...` | # |": constants,
        "| module object, record and version string | # |": module,
    }}


def counted(path, text):
    """A document with its numbers."""
    for phrase, number in numbers().get(str(path.relative_to(ROOT)), {}).items():
        before, after = map(re.escape, phrase.split("#"))
        text, found = re.subn(rf"({before})\d[\d,]*({after})", rf"\g<1>{number:,}\2", text)
        if found != 1:
            fail(path.name, f"says {found} times instead of once: {phrase}")
    return text


# ---- All of it -------------------------------------------------------------------------------------

WRITERS = {"families": families_register, "values": values_register, "types": types_register,
           "families_table": families_table, "values_table": values_table}
BLOCK = re.compile(DIRECTIVE.pattern + r"(?P<old>(?:(?!.*\./dev lists: ).*\n)*.*\./dev lists: end.*\n)?", re.MULTILINE)


def filled(path):
    """The text of a file with what its directives stand for."""
    asked = directives(path)
    type_name = next((asked[word][0] for word in ("TYPE", "OBJECT", "HEADER") if word in asked), None)

    def fill(match):
        word, arguments = match["word"], match["arguments"] or ""
        if match["old"] is None and match.string[match.end():match.end() + 1].strip():
            fail(path.name, f"has lines behind {word}, but no ./dev lists: end")
        heading = f"{word}( {arguments} )" if arguments else word
        if word in WRITERS:
            text = WRITERS[word]()
        elif word == "includes":
            text = "".join(f'#include "{header.name}"\n' for header in public_headers(path.parent.name) if header != path)
        elif word == "members":
            heading += ", see sipsn_member.h"
            text = members(path, type_name)
        elif word in descriptions():
            heading += f", see {descriptions()[word][0]}"
            text = declarations(word, type_name, [] if arguments == type_name else arguments.split(", "))
        else:
            fail(path.name, f"asks for {word}, which is not known")
        begin, end = (f"{match['open']} ./dev lists: {mark}{match['close']}\n" for mark in (heading, "end"))
        return begin + text + end

    return BLOCK.sub(fill, path.read_text())


def made():
    """Every file that is written, as pairs of its path and its text. The export lists follow from the headers."""
    for component in COMPONENTS:
        for path in [*public_headers(component), *sorted((SOURCE / component).glob("*.inc"))]:
            yield path, filled(path)
        yield SOURCE / component / f"{component}.exports", "".join(name + "\n" for name in exports(component))
    for path in [ROOT / "README.md", *sorted((ROOT / "docs").glob("*.md"))]:
        yield path, counted(path, filled(path))


def stands(path, text):
    """Whether a file holds a text; the blanks of a header are the formatter's."""
    standing = path.read_text() if path.exists() else ""
    return standing == text or path.suffix == ".h" and standing.split() == text.split()


def write(path, text):
    print(f"Writing {path.relative_to(ROOT)}")
    path.write_text(text)
    if path.suffix == ".h":
        subprocess.run(["clang-format-14", "-i", path], check=True)


def differences(path, text):
    """What tells a file from what it should be, shortly."""
    standing, wanted = ([" ".join(line.split()) for line in whole.split("\n")]
                        for whole in (path.read_text() if path.exists() else "", text))
    lines = [f"+ {line}" for line in wanted if line not in standing] + [f"- {line}" for line in standing if line not in wanted]
    return [f"{path.relative_to(ROOT)} is not what ./dev lists writes:", *(lines[:20] or ["the order of its lines"])]


def compare_library(library):
    """The differences between an export list and the dynamic symbols that a shared library defines."""
    component = pathlib.Path(library).name.split(".")[0].removeprefix("lib")
    lines = subprocess.run(["nm", "-D", "--defined-only", library], stdout=subprocess.PIPE, text=True,
                           check=True).stdout.splitlines()
    built = {line.split()[-1].split("@")[0] for line in lines if line.strip()}
    listed = set((SOURCE / component / f"{component}.exports").read_text().split())
    return [f"{name}: listed, but lib{component} does not export it" for name in sorted(listed - built)] + \
           [f"{name}: exported by lib{component}, but not listed" for name in sorted(built - listed)]


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
