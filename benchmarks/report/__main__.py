# SPDX-License-Identifier: MIT
"""Measures and prints; scripts/bench builds everything first and then runs this."""
import argparse
import datetime
import os
import subprocess
import sys
from dataclasses import dataclass

import batch
import cases
import instructions
import resources
import tables
import times


@dataclass(frozen=True)
class Effort:
    passes: int  # over all programs and cases
    budget: int  # milliseconds for the rounds of a program in a pass
    cold_starts: int
    many_charts: int
    parallel_passes: int
    parallel_time: int  # milliseconds
    cases: int  # of those that are costly to measure
    batch_charts: int
    batch_passes: int


THOROUGH = Effort(passes=7, budget=600, cold_starts=25, many_charts=20000, parallel_passes=3,
                  parallel_time=3000, cases=100, batch_charts=1500, batch_passes=3)
QUICK = Effort(passes=2, budget=0, cold_starts=2, many_charts=400, parallel_passes=1,
               parallel_time=300, cases=1, batch_charts=50, batch_passes=1)


def read_arguments():
    parser = argparse.ArgumentParser(prog="scripts/bench", description=__doc__)
    parser.add_argument("--callgrind", action="store_true",
                        help="count instructions instead of time: repeatable on a busy machine")
    parser.add_argument("--batch", action="store_true",
                        help="measure tovangl-chart batch beside the library, and nothing else")
    parser.add_argument("--vectors", action="store_true",
                        help="measure SVG and PDF files, and nothing else")
    parser.add_argument("--quick", action="store_true",
                        help="one short round of everything, to see that it works")
    parser.add_argument("--no-peers", action="store_true",
                        help="measure this library alone, and install no others")
    return parser.parse_args()


def print_machine():
    with open("/proc/cpuinfo", encoding="utf-8") as file:
        model = next((line.split(":")[1].strip() for line in file if "model name" in line), "?")
    print(f"{datetime.date.today()}, {model}, {os.cpu_count()} processors, "
          f"load {os.getloadavg()[0]:.1f}")


def print_versions(with_peers):
    packages = ["libqt5gui5", "libdeflate0", "libpng16-16", "zlib1g"]
    if with_peers:
        packages += ["gnuplot-nox", "libqcustomplot2.1", "libqt5svg5", "libqwt-qt5-6",
                     "libplplot17", "python3-matplotlib"]
    query = ["dpkg-query", "--show", "--showformat=${Package} ${Version}\n", *packages]
    found = subprocess.run(query, capture_output=True, text=True, check=False).stdout
    print(", ".join(found.splitlines()))


def has_peers(programs):
    return any(program not in cases.BOTH_OF_OURS for program in programs)


def count(effort, programs):
    charts = cases.read_cases()[:effort.cases]
    if has_peers(programs):
        instructions.print_programs(programs, charts)
    instructions.print_instructions(charts)


def measure(effort, programs):
    charts = cases.read_cases()
    results = times.time_all(programs, charts, effort.passes, effort.budget)
    times.print_times(results, programs, charts)
    if has_peers(programs):
        times.print_ratios(results, charts)
    times.print_sizes(programs, charts)
    resources.print_stages()
    times.print_cold_starts(times.time_cold_starts(programs, charts[0], effort.cold_starts))
    resources.print_memory(charts)
    resources.print_growth()
    resources.print_process_growth(effort.many_charts)
    resources.print_throughput(charts[:effort.cases], effort.parallel_passes,
                               effort.parallel_time)


def measure_vectors(effort):
    charts = [chart for chart in cases.read_cases() if chart.name != "print"]
    for form in ("svg", "pdf"):
        programs = cases.vector_programs(form)
        results = times.time_all(programs, charts, effort.passes, effort.budget)
        times.print_times(results, programs, charts, f"Warm charts as {form.upper()}")
        times.print_sizes(programs, charts, f"{form.upper()} files")


def main():
    sys.stdout.reconfigure(line_buffering=True)
    arguments = read_arguments()
    programs = [*cases.BOTH_OF_OURS] + ([] if arguments.no_peers else cases.peers())
    os.makedirs(cases.PICTURES, exist_ok=True)
    print_machine()
    print_versions(not arguments.no_peers and not arguments.batch)
    effort = QUICK if arguments.quick else THOROUGH
    if arguments.vectors:
        measure_vectors(effort)
    elif arguments.batch:
        batch.print_batch(effort.batch_charts, effort.batch_passes, effort.parallel_time)
    else:
        (count if arguments.callgrind else measure)(effort, programs)
    if not arguments.batch:
        print(f"\nThe pictures are in {os.path.relpath(cases.PICTURES)}/.")
    if max(os.getloadavg()) > 1.5 * os.cpu_count():
        print("The machine was busy: compare ratios, not milliseconds.")


main()
