"""Measures what an item of hostile inputs costs in a small input and in one a hundred times as large, and prints a table.
Status 1 when a shape grows by more than three times: in instructions, which caches and other work on the machine do not
change, or in time, beyond what its reference grows by in the same run.

    growth.py SIPSN_GROWTH [--time] [SHAPE...]     all shapes or those named; --time: without valgrind

A quadratic cost grows by up to a hundred times, one of n log n by less than two. A shape whose time grows too much is
measured again, for other work on the machine may have taken it. The last columns are nanoseconds a byte from the wire, in
the small input and in the large one; what is dearest stands below.
"""
import argparse
import math
import pathlib
import subprocess
import sys
import tempfile

LIMIT = 3
COUNTED = (100, 10_000)
TIMED = (1_000, 100_000)
ATTEMPTS = 5
REFERENCES = ("MakeAndSee", "SortAndFind", "SeeShuffled")


def run(program, items, runs, shapes, tool=()):
    """A list of (shape, reference, bytes, nanoseconds)."""
    lines = subprocess.run([*tool, program, str(items), str(runs), *shapes], text=True, check=True,
                           stdout=subprocess.PIPE, stderr=subprocess.PIPE).stdout.splitlines()
    return [(name, reference, int(size), float(time)) for name, reference, size, time in map(str.split, lines)]


def instructions(program, items, shapes):
    """{shape: instructions an item}. Callgrind writes a file for each time that the measured function returns."""
    with tempfile.TemporaryDirectory() as folder:
        out = pathlib.Path(folder) / "out"
        found = run(program, items, 1, shapes,
                    ("valgrind", "--tool=callgrind", f"--callgrind-out-file={out}", "--collect-atstart=no",
                     "--toggle-collect=MeasuredOperation", "--dump-after=MeasuredOperation"))
        figures = {}
        for number, (name, *_) in enumerate(found, 1):
            lines = out.with_suffix(f".{number}").read_text().splitlines()
            figures[name] = next(int(line.split()[1]) for line in lines if line.startswith("totals:")) / items
        return figures


class Times:
    """The least nanoseconds of an item in any run so far, by shape; and the bytes of an item and the reference."""

    def __init__(self):
        self.least, self.bytes, self.reference = {}, {}, {}

    def measure(self, program, shapes):
        for place, items in enumerate(TIMED):
            for name, reference, size, time in run(program, items, 3, shapes):
                least = self.least.setdefault(name, [math.inf, math.inf])
                least[place] = min(least[place], time / items)
                self.bytes[name], self.reference[name] = size / items, reference

    def growth(self, name):
        return self.least[name][1] / self.least[name][0]

    def allowed(self, name):
        return max(1, self.growth(self.reference[name]))

    def slow(self):
        return [name for name in self.least if self.growth(name) > LIMIT * self.allowed(name)]


def main():
    parser = argparse.ArgumentParser(usage=__doc__)
    parser.add_argument("program")
    parser.add_argument("shapes", nargs="*")
    parser.add_argument("--time", action="store_true")
    arguments = parser.parse_args()
    program, shapes = arguments.program, arguments.shapes and [*REFERENCES, *arguments.shapes]

    small, large = ({}, {}) if arguments.time else (instructions(program, items, shapes) for items in COUNTED)
    counts = {name: (small[name], large[name], large[name] / small[name]) for name in small}
    times = Times()
    times.measure(program, shapes)
    for _ in range(1, ATTEMPTS):
        if times.slow():
            times.measure(program, [*REFERENCES, *times.slow()])

    print(f"{'shape':26}{'instructions an item':>22}{'grows':>8}{'ns an item':>22}{'grows':>8}{'allowed':>9}{'ns a byte':>16}")
    failed = False
    dearest = []
    for name, least in times.least.items():
        row = f"{name:26}"
        row += "{:11,.0f}{:11,.0f}{:8.2f}".format(*counts[name]) if counts else " " * 30
        row += f"{least[0]:11,.1f}{least[1]:11,.1f}{times.growth(name):8.2f}{LIMIT * times.allowed(name):9.1f}"
        if times.bytes[name]:
            dearest.append((least[1] / times.bytes[name], name))
            row += "".join(f"{time / times.bytes[name]:8.1f}" for time in least)
        if counts and counts[name][2] > LIMIT:
            row += "  too many instructions"
            failed = True
        if name in times.slow():
            row += "  too much time"
            failed = True
        print(row)
    print("The dearest byte of a large input: {:.1f} ns, {}".format(*max(dearest, default=(0, "none"))))
    return 1 if failed else 0


sys.exit(main())
