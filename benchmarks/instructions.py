"""Counts what one operation on a message or value takes: instructions, and those of them that lock the bus, with
valgrind; calls of the allocator and what stays taken of the heap.

    instructions.py FOLDER [MESSAGE...]     a table of the messages, by default invite.sip and ims_invite.sip
    instructions.py FOLDER --check          compares with expected.tsv, and status 1 when a figure rose
    instructions.py FOLDER --expect         writes expected.tsv anew
    instructions.py FOLDER --budget         invite.sip alone, and status 1 when it takes more than it may
    instructions.py FOLDER --values         a table of one value of each type, beside a scan of the same text

FOLDER is that of sipsn_count and sipsn_heap. Instructions are the difference between two numbers of runs, so that what a
process does once does not count. Locked ones are those with the lock prefix and exchanges with memory, in a process of one
thread, in which the C library locks little. Objects use the memory of those that were released before, so that in the long run there
are fewer calls of the allocator ("alloc.") than objects; "held" is how many there are when nothing is released, "blocks"
and "bytes" what then stays taken, with what the allocator adds to a block.
"""
import argparse
import collections
import concurrent.futures
import functools
import os
import pathlib
import platform
import re
import subprocess
import sys
import tempfile
import threading

ROOT = pathlib.Path(__file__).resolve().parent.parent
MESSAGES = ROOT / "benchmarks/messages"
EXPECTED = ROOT / "benchmarks/expected.tsv"
OPERATIONS = ("decode", "find", "full", "all", "typed", "encode", "encode-typed", "full-encode", "reply", "forward", "stream")
# The messages of the stream whose average message has 1,179 bytes.
MIXED = ("invite", "ok200", "register", "options", "ims_invite", "notify")
RUNS = (12, 60)  # the stream holds six messages
NOT_POSSIBLE = 3
MAY_RISE = 1.03

# Of invite.sip: the most instructions, and calls of the allocator when all is held, that an operation may take.
BUDGET = {"decode": (5_010, 5), "full": (21_100, 32), "all": (23_300, 35), "typed": (50_050, 38),
          "encode": (1_530, 1), "encode-typed": (14_310, 3), "full-encode": (22_640, 1), "reply": (11_360, 1),
          "forward": (14_270, 1)}

Figures = collections.namedtuple("Figures", "instructions locked allocations held blocks bytes")


class NotPossible(Exception):
    """The message does not decode, or is not to be replied to."""


def run(*command):
    result = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
    if result.returncode == NOT_POSSIBLE:
        raise NotPossible
    if result.returncode != 0:
        sys.exit(f"{' '.join(map(str, command))}\n{result.stderr}")
    return result.stdout


# ---- Counting --------------------------------------------------------------------------------------

LOCKED = re.compile(r"^ *([0-9a-f]+):\t(?:lock |xchg[bwlq]? .*\()", re.MULTILINE)
disassembling = threading.Lock()


@functools.cache
def locked_addresses(binary):
    """Where a program or library has instructions that lock the bus: the prefix, and an exchange with memory."""
    listing = run("objdump", "--disassemble", "--no-show-raw-insn", binary)
    return frozenset(int(address, 16) for address in LOCKED.findall(listing))


def locked_in(profile):
    """How many of the instructions in callgrind's profile were locked ones."""
    count, addresses, inclusive = 0, frozenset(), False
    for line in profile:
        if line.startswith("0x") and not inclusive:
            address, _, cost = line.split()
            if int(address, 16) in addresses:
                count += int(cost)
        elif line.startswith("ob="):
            binary = line[len("ob="):].strip()
            with disassembling:
                addresses = locked_addresses(binary) if os.path.exists(binary) else frozenset()
        inclusive = line.startswith("calls=")  # the next line is what the called function took, which stands there as well
    return count


def profiled(folder, operation, subject, runs):
    """(instructions, locked instructions) of a process."""
    with tempfile.NamedTemporaryFile("r") as profile:
        run("valgrind", "--tool=callgrind", f"--callgrind-out-file={profile.name}", "--dump-instr=yes",
            "--compress-strings=no", "--compress-pos=no", folder / "sipsn_count", operation, subject, str(runs))
        lines = profile.readlines()
    return int(lines[-1].removeprefix("totals: ")), locked_in(lines)


def per_run(folder, operation, subject):
    few, many = (profiled(folder, operation, subject, runs) for runs in RUNS)
    return [round((more - less) / (RUNS[1] - RUNS[0])) for less, more in zip(few, many)]


def heap(folder, operation, subject):
    return [round(float(figure)) for figure in run(folder / "sipsn_heap", operation, subject).split()]


def figures_of(folder, operation, message):
    """The figures, or None."""
    try:
        return Figures(*per_run(folder, operation, message), *heap(folder, operation, message))
    except NotPossible:
        return None


def at_once(function, *jobs):
    with concurrent.futures.ThreadPoolExecutor(min(2, os.cpu_count())) as pool:
        return list(pool.map(function, *jobs))


def measured(folder, jobs):
    """{ (operation, message): figures } of those that are possible."""
    figures = at_once(lambda job: figures_of(folder, *job), jobs)
    return {job: taken for job, taken in zip(jobs, figures) if taken}


# ---- Tables ----------------------------------------------------------------------------------------

def print_messages(figures):
    for message in dict.fromkeys(message for _, message in figures):
        wire = message.stat().st_size / (len(MIXED) if message.stem == "mixed" else 1)
        print(f"{message.name}, {wire:,.0f} bytes\n"
              f"{'':14}{'instructions':>13}{'locked':>8}{'alloc.':>8}{'held':>6}{'blocks':>8}{'bytes':>8}{'a wire byte':>13}")
        for (operation, of), taken in figures.items():
            if of == message:
                print("{:14}{:13,}{:8,}{:8}{:6}{:8}{:8,}".format(operation, *taken) + f"{taken.bytes / wire:13.1f}")
        print()


def value_types():
    text = (ROOT / "benchmarks/values.cpp").read_text()
    return re.findall(r"^    VALUE(?:_BY\( \w+,|\() (\w+),", text, re.MULTILINE)


def print_values(folder):
    values = value_types()
    rows = at_once(lambda value: [per_run(folder, f"{operation}-value", value)[0] for operation in ("scan", "decode", "encode")]
                   + [heap(folder, "decode-value", value)[1]], values)
    print(f"{'value':20}{'scan':>9}{'decode':>9}{'/ scan':>8}{'held':>6}{'encode':>9}")
    for value, (scan, decode, encode, held) in zip(values, rows):
        print(f"{value:20}{scan:9,}{decode:9,}{decode / scan:8.1f}{held:6}{encode:9,}")


# ---- Comparing -------------------------------------------------------------------------------------

COLUMNS = ("operation", "message", "instructions", "locked", "blocks", "bytes")


def tools(folder):
    """What the figures depend on besides the sources."""
    compiler = re.search(r"GCC: \(.*?\) (\S+)", run("readelf", "--string-dump=.comment", folder / "sipsn_count"))
    valgrind = run("valgrind", "--version").strip().removeprefix("valgrind-")
    flags = pathlib.Path("/proc/cpuinfo").read_text().split()
    return (f"# g++ {compiler.group(1) if compiler else 'unknown'}, valgrind {valgrind}, glibc {platform.libc_ver()[1]},"
            f" {platform.machine()}{' with AVX2' if 'avx2' in flags else ''}")


def compared(figures):
    """The figures of the file, by operation and message."""
    return {(operation, message.stem): {column: getattr(taken, column) for column in COLUMNS[2:]}
            for (operation, message), taken in figures.items()}


def write_expected(folder, figures):
    lines = [tools(folder), "\t".join(COLUMNS)]
    lines += ["\t".join(map(str, [*job, *taken.values()])) for job, taken in compared(figures).items()]
    EXPECTED.write_text("\n".join(lines) + "\n")
    print(f"Written: {EXPECTED.relative_to(ROOT)}")


def read_expected():
    if not EXPECTED.exists():
        sys.exit(f"There is no {EXPECTED.relative_to(ROOT)}; write it: ./dev bench --expect")
    made_with, header, *lines = EXPECTED.read_text().splitlines()
    if header.split("\t") != list(COLUMNS):
        sys.exit(f"{EXPECTED.relative_to(ROOT)} has other columns; write it anew: ./dev bench --expect")
    rows = (line.split("\t") for line in lines)
    return made_with, {(row[0], row[1]): dict(zip(COLUMNS[2:], map(int, row[2:]))) for row in rows}


def check(folder, figures):
    made_with, expected = read_expected()
    now, rose, fell = compared(figures), [], 0
    for job in dict.fromkeys([*expected, *now]):
        if job not in now or job not in expected:
            rose.append(f"{' '.join(job)}: {'not measured' if job not in now else 'not expected'}")
            continue
        for column, before in expected[job].items():
            after, factor = now[job][column], MAY_RISE if column in ("instructions", "bytes") else 1
            fell += after * factor < before
            if after > before * factor:
                rose.append(f"{' '.join(job)}: {column} {before:,} -> {after:,}"
                            + (f" ({after / before - 1:+.1%})" if before else ""))
    for line in rose:
        print(line)
    if made_with != tools(folder):
        print(f"The expected figures were made with {made_with[2:]}; these with {tools(folder)[2:]}. They are compared all the"
              " same: where the tools differ and not the sources, write them anew with ./dev bench --expect.")
    if fell:
        print(f"{fell} figures fell: ./dev bench --expect keeps them low.")
    print(f"{len(now)} operations compared, {len(rose)} figures rose" if rose else f"{len(now)} operations compared, none rose")
    return not rose


def within_budget(figures):
    taken = {operation: (figure.instructions, figure.held) for (operation, _), figure in figures.items()}
    over = [operation for operation, (instructions, held) in BUDGET.items()
            if operation not in taken or taken[operation][0] > instructions or taken[operation][1] > held]
    for operation in over:
        print(f"{operation} may take {BUDGET[operation]}, takes {taken.get(operation)}", file=sys.stderr)
    return not over


def main():
    parser = argparse.ArgumentParser(usage=__doc__)
    parser.add_argument("folder", type=pathlib.Path)
    parser.add_argument("messages", nargs="*", type=pathlib.Path)
    for name in ("check", "expect", "budget", "values"):
        parser.add_argument(f"--{name}", action="store_true")
    arguments = parser.parse_args()
    folder = arguments.folder
    if arguments.values:
        print_values(folder)
        return 0
    if arguments.budget:
        figures = measured(folder, [(operation, MESSAGES / "invite.sip") for operation in BUDGET])
        print_messages(figures)
        return 0 if within_budget(figures) else 1

    with tempfile.TemporaryDirectory() as scratch:
        messages = arguments.messages or [MESSAGES / "invite.sip", MESSAGES / "ims_invite.sip"]
        jobs = [(operation, message) for message in messages for operation in OPERATIONS]
        if not arguments.messages:
            mixed = pathlib.Path(scratch, "mixed.sip")
            mixed.write_bytes(b"".join((MESSAGES / f"{name}.sip").read_bytes() for name in MIXED))
            jobs.append(("stream", mixed))
        figures = measured(folder, jobs)
        if arguments.check:
            return 0 if check(folder, figures) else 1
        print_messages(figures)
        if arguments.expect:
            write_expected(folder, figures)
    return 0


sys.exit(main())
