#!/usr/bin/env python3
"""Runs the commands of transcripts and compares what they print with what stands there.

    transcripts.py TOOL FILE...       with UPDATE=1 in the environment, writes the files anew

A transcript has lines "$ command", below each what it prints on standard output and standard error together, and
"[exit status N]" when that is not 0. Lines that begin with "# " are remarks. In a Markdown file only blocks that open
with ```console are transcripts. Commands are run by bash in the root of the project, with TOOL as sipsn and an empty
folder as $SCRATCH."""

import difflib
import os
import pathlib
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[2]


def run(command, environment):
    done = subprocess.run(
        ["bash", "-o", "pipefail", "-c", command],
        cwd=ROOT, env=environment, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=120,
    )
    printed = done.stdout.decode("utf-8").split("\n")
    if printed[-1] == "":
        printed.pop()
    return printed + ([f"[exit status {done.returncode}]"] if done.returncode else [])


def replay(lines, markdown, environment):
    """The transcript as it comes out now, with its remarks and the blank lines before remarks and commands."""
    result, commands = [], 0
    inside, skipping = not markdown, False
    for at, line in enumerate(lines):
        if markdown and line.startswith("```"):
            inside, skipping = line == "```console", False
            result.append(line)
        elif inside and line.startswith("$ "):
            result += [line] + run(line[2:], environment)
            commands += 1
            skipping = True
        elif inside and line.startswith("# "):
            result.append(line)
            skipping = False
        elif not skipping:
            result.append(line)
        elif line == "" and at + 1 < len(lines) and lines[at + 1].startswith(("$ ", "# ")):
            result.append(line)
    return result, commands


def check(path, environment):
    lines = path.read_bytes().decode("utf-8").removesuffix("\n").split("\n")
    now, commands = replay(lines, path.suffix == ".md", environment)
    if commands == 0:
        print(f"{path}: no commands")
        return False
    if now == lines:
        return True
    if os.environ.get("UPDATE"):
        path.write_bytes(("\n".join(now) + "\n").encode("utf-8"))
        print(f"{path}: written")
        return True
    print("\n".join(difflib.unified_diff(lines, now, f"{path.name} as it stands", "as it comes out", lineterm="")))
    return False


def main():
    tool, *files = [pathlib.Path(argument).resolve() for argument in sys.argv[1:]]
    passed = []
    for path in files:
        with tempfile.TemporaryDirectory() as scratch:
            search = f"{tool.parent}:{os.environ['PATH']}"
            passed.append(check(path, dict(os.environ, PATH=search, LC_ALL="C.UTF-8", SCRATCH=scratch)))
    sys.exit(0 if passed and all(passed) else 1)


main()
