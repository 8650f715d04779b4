"""Lists what a component's headers declare for export, and keeps <component>.exports in step with it.

    exports.py COMPONENT                  compares the list with the headers; status 1 and the differences when they part
    exports.py COMPONENT --library FILE   also compares it with what the built library exports
    exports.py COMPONENT --write          writes the list anew
"""
import argparse
import pathlib
import re
import subprocess
import sys

SOURCE = pathlib.Path(__file__).resolve().parent.parent / "source"

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
        sys.exit(f"{component}: the headers have errors")
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
        names.add(f"{component}___sort_" + re.sub(r"(?<!^)(?=[A-Z])", "_", type_name).upper())
    return sorted(names)


def exported(library):
    """The dynamic symbols that a shared library defines."""
    lines = subprocess.run(["nm", "-D", "--defined-only", library], stdout=subprocess.PIPE, text=True,
                           check=True).stdout.splitlines()
    return sorted({line.split()[-1].split("@")[0] for line in lines if line.strip()})


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("component")
    parser.add_argument("--write", action="store_true")
    parser.add_argument("--library")
    arguments = parser.parse_args()

    path = SOURCE / arguments.component / f"{arguments.component}.exports"
    names = declared(arguments.component)
    if arguments.write:
        text = "".join(name + "\n" for name in names)
        if not path.exists() or path.read_text() != text:
            path.write_text(text)
        return 0

    if not path.exists():
        print(f"{path.name} is missing")
        return 1
    listed = path.read_text().split()
    faults = []

    def differ(left, right, what):
        faults.extend(f"{name}: {what}" for name in sorted(set(left) - set(right)))

    if listed != sorted(set(listed)):
        faults.append(f"{path.name} is not sorted, or lists a name twice")
    differ(names, [name for name in names if re.match(rf"{arguments.component}(?=[A-Z_])|spisn", name)],
           f"declared in {arguments.component}, but named as if it were not")
    differ(listed, names, "listed, but no header declares it")
    differ(names, listed, "declared, but not listed")
    if arguments.library:
        built = exported(arguments.library)
        differ(listed, built, "listed, but the library does not export it")
        differ(built, listed, "exported by the library, but not listed")
    print("\n".join(faults), end="\n" if faults else "")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
