"""Runs clang-tidy over the sources of the libraries and the tool.

    tidy.py BUILD [--deep]    the folder whose compile_commands.json says how they are compiled

The analyzer looks at functions by themselves; with --deep it follows calls too, which takes several times as
long.

A file that has passed is not looked at again until it changes, or a header that it includes, or the checks: build/tidy has
an empty file for each that passed, named by a hash of all that counts.
"""
import concurrent.futures
import hashlib
import json
import os
import pathlib
import shlex
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
PASSED = ROOT / "build/tidy"
CLANG_TIDY = ["clang-tidy-14", "--quiet", "--warnings-as-errors=*"]
SHALLOW = [f"--extra-arg={word}" for word in ("-Xclang", "-analyzer-config", "-Xclang", "mode=shallow")]


def output(command, folder):
    return subprocess.run(command, cwd=folder, stdout=subprocess.PIPE, check=True).stdout


def stamp(entry, checks):
    """The file that says that a source has passed as it stands: its text and those of its headers, system headers left
    out."""
    command = shlex.split(entry["command"])
    del command[command.index("-o"):command.index("-o") + 2]
    _, *files = output([*command, "-MM"], entry["directory"]).decode().replace("\\\n", "").split()
    state = hashlib.sha256(checks + entry["command"].encode())
    for name in files:
        state.update((pathlib.Path(entry["directory"]) / name).read_bytes())
    return PASSED / state.hexdigest()


def faults_of(entry, command, checks):
    passed = stamp(entry, checks)
    if passed.exists():
        return ""
    result = subprocess.run([*command, entry["file"]], text=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    if result.returncode:
        return result.stdout or f"{entry['file']}: clang-tidy failed"
    passed.touch()
    return ""


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    command = [*CLANG_TIDY, *([] if "--deep" in sys.argv[2:] else SHALLOW), "-p", build]
    PASSED.mkdir(parents=True, exist_ok=True)
    checks = repr(command).encode() + (ROOT / ".clang-tidy").read_bytes() + output([CLANG_TIDY[0], "--version"], ROOT)
    entries = [entry for entry in json.loads((build / "compile_commands.json").read_text())
               if pathlib.Path(entry["file"]).is_relative_to(ROOT / "source")
               or pathlib.Path(entry["file"]).is_relative_to(ROOT / "tools")]
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        faults = [fault for fault in pool.map(lambda entry: faults_of(entry, command, checks), entries) if fault]
    print("\n".join(faults))
    return 1 if faults or not entries else 0


if __name__ == "__main__":
    sys.exit(main())
