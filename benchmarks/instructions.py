"""Counts the instructions and the heap allocations of one operation on a message or value, with valgrind: the
difference between two numbers of runs, so that what a process does once does not count.

    instructions.py SIPSN_COUNT [MESSAGE...]     a table of the messages, by default all that are measured
    instructions.py SIPSN_COUNT --budget         invite.sip alone, and status 1 when it takes more than it may
    instructions.py SIPSN_COUNT --values         a table of one value of each type, beside a scan of the same text

Objects use the memory of those that were released before, so that in the long run there are fewer allocations than
objects. "held" is how many there are when nothing is released: the blocks of memory that the result takes, and what its
making takes besides.
"""
import argparse
import concurrent.futures
import os
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
OPERATIONS = ("decode", "encode", "full", "typed", "reply")
RUNS = (10, 60)
NOT_POSSIBLE = 3

INSTRUCTIONS = (["--tool=callgrind", "--callgrind-out-file=/dev/null"], re.compile(r"Collected : (\d+)"))
ALLOCATIONS = (["--tool=memcheck", "--leak-check=no", "--undef-value-errors=no"],
               re.compile(r"total heap usage: ([\d,]+) allocs"))

# Of invite.sip: the most instructions and allocations, even when all is held, that an operation may take.
BUDGET = {"decode": (12_000, 45), "encode": (3_500, 3), "full": (22_000, 110), "typed": (52_000, 130), "reply": (9_000, 3)}


class NotPossible(Exception):
    """The message does not decode, or is not to be replied to."""


def count(program, tool, operation, message, runs):
    options, figure = tool
    result = subprocess.run(["valgrind", *options, program, operation, message, str(runs)],
                            stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
    if result.returncode == NOT_POSSIBLE:
        raise NotPossible
    if result.returncode != 0:
        sys.exit(result.stderr)
    return int(figure.search(result.stderr).group(1).replace(",", ""))


def per_run(program, tool, operation, subject):
    few, many = (count(program, tool, operation, subject, runs) for runs in RUNS)
    return round((many - few) / (RUNS[1] - RUNS[0]))


def per_operation(program, operation, message):
    """(instructions, allocations, allocations when held), or None."""
    try:
        return (per_run(program, INSTRUCTIONS, operation, message), per_run(program, ALLOCATIONS, operation, message),
                per_run(program, ALLOCATIONS, f"hold-{operation}", message))
    except NotPossible:
        return None


def value_types():
    text = (ROOT / "benchmarks/values.cpp").read_text()
    return re.findall(r"^    VALUE(?:_BY\( \w+,|\() (\w+),", text, re.MULTILINE)


def print_values(program):
    columns = {"scan": INSTRUCTIONS, "decode": INSTRUCTIONS, "encode": INSTRUCTIONS, "hold-decode": ALLOCATIONS}
    values = value_types()
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        rows = list(pool.map(lambda value: [per_run(program, tool, f"{operation}-value", value)
                                            for operation, tool in columns.items()], values))
    print(f"{'value':20}{'scan':>9}{'decode':>9}{'/ scan':>8}{'held':>6}{'encode':>9}")
    for value, (scan, decode, encode, held) in zip(values, rows):
        print(f"{value:20}{scan:9,}{decode:9,}{decode / scan:8.1f}{held:6}{encode:9,}")


def samples():
    files = [file for folder in ("benchmarks/messages", "examples/messages") for file in (ROOT / folder).iterdir()]
    return sorted(file for file in files if file.suffix != ".md")


def main():
    parser = argparse.ArgumentParser(usage=__doc__)
    parser.add_argument("program")
    parser.add_argument("messages", nargs="*", type=pathlib.Path)
    parser.add_argument("--budget", action="store_true")
    parser.add_argument("--values", action="store_true")
    arguments = parser.parse_args()
    if arguments.values:
        print_values(arguments.program)
        return 0

    messages = [ROOT / "benchmarks/messages/invite.sip"] if arguments.budget else arguments.messages or samples()
    jobs = [(message, operation) for message in messages for operation in OPERATIONS]
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        figures = dict(zip(jobs, pool.map(lambda job: per_operation(arguments.program, job[1], job[0]), jobs)))

    within = True
    print(f"{'message':34}{'bytes':>8}" + "".join(f"{name:>11}{'alloc.':>8}{'held':>6}" for name in OPERATIONS))
    for message in messages:
        row = [figures[message, operation] for operation in OPERATIONS]
        name = f"{message.parent.parent.name}/{message.name}"
        print(f"{name:34}{message.stat().st_size:8}" +
              "".join("{:11,}{:8}{:6}".format(*taken) if taken else f"{'-':>11}{'-':>8}{'-':>6}" for taken in row))
        if arguments.budget:
            within = within and all(taken and taken[0] <= BUDGET[operation][0] and taken[2] <= BUDGET[operation][1]
                                    for operation, taken in zip(OPERATIONS, row))
    if not within:
        print(f"More than it may take: {BUDGET}", file=sys.stderr)
    return 0 if within else 1


sys.exit(main())
