"""Runs the benchmarks of hostile inputs and prints the time for one item of each at every size. Status 1 when an item of the
largest input, which is 64 or 100 times the smallest, takes more than ten times what one of the smallest does, and more
than 10 microseconds. Quadratic cost does both; memory that no longer fits the caches does the first alone.

    growth.py SIPSN_BENCH
"""
import json
import subprocess
import sys

GROWTH = 10
NANOSECONDS = 10_000


def main():
    report = json.loads(subprocess.run([sys.argv[1], "--benchmark_filter=^Hostile", "--benchmark_min_time=0.02",
                                        "--benchmark_format=json"], stdout=subprocess.PIPE, check=True).stdout)
    families = {}
    for run in report["benchmarks"]:
        family, size = run["name"].removeprefix("Hostile").split("/")
        families.setdefault(family, {})[int(size)] = run["per_item"] * 1e9

    linear = True
    for family, times in families.items():
        smallest, *_, largest = sorted(times)
        growth = times[largest] / times[smallest]
        linear = linear and (growth <= GROWTH or times[largest] <= NANOSECONDS)
        print(f"{family:30}" + "".join(f"{size:>10}: {times[size]:8.2f} ns" for size in sorted(times)) +
              f"   grows {growth:.2f} times")
    return 0 if families and linear else 1


sys.exit(main())
