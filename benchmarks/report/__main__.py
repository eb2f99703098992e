# SPDX-License-Identifier: MIT
"""Measures and prints; scripts/bench builds everything first and then runs this."""
import argparse
import datetime
import os
import subprocess

import cases
import instructions
import resources
import tables
import times


def read_arguments():
    parser = argparse.ArgumentParser(prog="scripts/bench", description=__doc__)
    parser.add_argument("--callgrind", action="store_true",
                        help="count instructions instead of time: repeatable on a busy machine")
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
    packages = ["libqt5gui5", "libpng16-16", "zlib1g"]
    if with_peers:
        packages += ["gnuplot-nox", "libqcustomplot2.1", "libqwt-qt5-6", "libplplot17",
                     "python3-matplotlib"]
    query = ["dpkg-query", "--show", "--showformat=${Package} ${Version}\n", *packages]
    found = subprocess.run(query, capture_output=True, text=True, check=False).stdout
    print(", ".join(found.splitlines()))


def measure(quick, with_peers):
    charts = cases.read_cases()
    programs = [cases.OURS] + (cases.peers() if with_peers else [])
    results = times.time_all(programs, charts, *((2, 0) if quick else (7, 600)))
    times.print_times(results, programs, charts)
    if with_peers:
        times.print_ratios(results, charts)
    times.print_cold_starts(times.time_cold_starts(programs, charts[0], 2 if quick else 25))
    resources.print_memory(charts)
    resources.print_growth(1000000)
    resources.print_process_growth(400 if quick else 20000)
    resources.print_throughput(charts[:1] if quick else charts, *((1, 300) if quick else (3, 3000)))


def main():
    arguments = read_arguments()
    os.makedirs(cases.PICTURES, exist_ok=True)
    print_machine()
    print_versions(not (arguments.no_peers or arguments.callgrind))
    if arguments.callgrind:
        charts = cases.read_cases()
        instructions.print_instructions(charts[:1] if arguments.quick else charts)
    else:
        measure(arguments.quick, not arguments.no_peers)
        print(f"\nThe pictures are in {os.path.relpath(cases.PICTURES)}/.")
    if max(os.getloadavg()) > 1.5 * os.cpu_count():
        print("The machine was busy: compare ratios, not milliseconds.")


main()
