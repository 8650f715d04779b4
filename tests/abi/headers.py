"""Compiles every header of a component alone: public ones as C11 and C++20, the component's own as C++20. Public ones must
all be reached from <component>.h.

    headers.py COMPONENT
"""
import concurrent.futures
import os
import pathlib
import subprocess
import sys

SOURCE = pathlib.Path(__file__).resolve().parent.parent.parent / "source"
WARNINGS = ["-Wall", "-Wextra", "-pedantic", "-Werror"]
C = ["gcc", "-std=c11", "-x", "c"]
CXX = ["g++", "-std=c++20", "-x", "c++"]


def compiler(command, header, *options):
    """A header is included, not given: some warnings are for files that are."""
    return subprocess.run([*command, *WARNINGS, "-I", SOURCE, *options, "-"], text=True, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, input=f'#include "{header.relative_to(SOURCE)}"\n')


def faults_of(job):
    command, header = job
    result = compiler(command, header, "-fsyntax-only")
    return f"{header.name} as {command[1]}:\n{result.stdout}" if result.returncode else ""


def main():
    folder = SOURCE / sys.argv[1]
    headers = sorted(folder.glob("*.h"))
    public = [header for header in headers if "#pragma once" not in header.read_text()]
    jobs = [(C, header) for header in public] + [(CXX, header) for header in headers]
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        faults = [fault for fault in pool.map(faults_of, jobs) if fault]

    reached = compiler(C, folder / f"{folder.name}.h", "-M").stdout
    faults += [f"{header.name} is public, but {folder.name}.h does not include it" for header in public
               if f"/{folder.name}/{header.name}" not in reached]
    print("\n".join(faults))
    return 1 if faults or not public else 0


if __name__ == "__main__":
    sys.exit(main())
