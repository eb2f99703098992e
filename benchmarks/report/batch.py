# SPDX-License-Identifier: MIT
"""Many charts by one process of the library and by tovangl-chart batch."""
import json
import os
import resource
import shutil
import statistics
import subprocess
import time
from dataclasses import dataclass

import cases
import tables

PLACE = os.path.join(cases.BUILD, "batch")
PROGRAM = os.path.join(cases.BUILD, "apps", "tovangl-chart", "tovangl-chart")
TEN_MILLION = 10_000_000
SECONDS_OF_AN_HOUR = 3600
KINDS = ("V12", "H12", "P8")


@dataclass(frozen=True)
class Cost:
    """Of one chart, in seconds."""
    time: float
    processor: float  # of all processors together


def charts_of_batch():
    return [chart for chart in cases.read_cases() if chart.name in KINDS]


def write_lines(chart, count):
    kind, data, width, height, _ = chart.arguments
    with open(data, encoding="utf-8") as file:
        pairs = [line.rstrip("\n").split("\t") for line in file]
    items = [{"value": int(value), "caption": caption} for value, caption in pairs]
    path = os.path.join(PLACE, f"{chart.name}.jsonl")
    with open(path, "w", encoding="utf-8") as file:
        for i in range(count):
            line = {"chart": kind, "id": f"{chart.name}-{i}", "width": int(width),
                    "height": int(height), "items": items}
            file.write(json.dumps(line) + "\n")
    return path


def processor_time():
    used = resource.getrusage(resource.RUSAGE_CHILDREN)
    return used.ru_utime + used.ru_stime


def cost_of_library(chart, threads, milliseconds):
    before = processor_time()
    start = int(time.time()) + 2
    command = [cases.built("programs", "chart_throughput"), *chart.arguments, str(threads),
               str(start), str(milliseconds)]
    charts = int(cases.run(command))
    return Cost(milliseconds / 1000 / charts, (processor_time() - before) / charts)


def cost_of_batch(lines, count, jobs, output):
    before, start = processor_time(), time.monotonic()
    subprocess.run([PROGRAM, "batch", lines, "--jobs", str(jobs), *output], check=True)
    return Cost((time.monotonic() - start) / count, (processor_time() - before) / count)


def clear_place():
    shutil.rmtree(PLACE, ignore_errors=True)
    os.makedirs(PLACE)


def measure(chart, count, milliseconds):
    """One pass over every way, one right after the other."""
    lines = os.path.join(PLACE, f"{chart.name}.jsonl")
    folder, archive = os.path.join(PLACE, "pictures"), os.path.join(PLACE, "pictures.tar")
    shutil.rmtree(folder, ignore_errors=True)
    nowhere = ("--tar", "/dev/null")
    return {
        "library": cost_of_library(chart, 1, milliseconds),
        "one job": cost_of_batch(lines, count, 1, nowhere),
        "library, two threads": cost_of_library(chart, 2, milliseconds),
        "two jobs": cost_of_batch(lines, count, 2, nowhere),
        "tar": cost_of_batch(lines, count, 1, ("--tar", archive)),
        "files": cost_of_batch(lines, count, 1, ("-o", folder)),
    }


def lowest(passes, way, field):
    return min(getattr(costs[way], field) for costs in passes)


def rate(passes, way):
    """Charts a second, and in brackets those that one processor draws in a second of its own."""
    return (f"{1 / lowest(passes, way, 'time'):.0f} "
            f"({1 / lowest(passes, way, 'processor'):.0f})")


def ratio(passes, way, other):
    """How many charts one way draws for each of the other with the same processor time."""
    return statistics.median(costs[other].processor / costs[way].processor for costs in passes)


def bytes_on_disk():
    """Of the archive, and of the files with what the file system adds to each."""
    folder, archive = os.path.join(PLACE, "pictures"), os.path.join(PLACE, "pictures.tar")
    files = sum(entry.stat().st_blocks * 512 for entry in os.scandir(folder))
    return os.path.getsize(archive), files


def print_batch(count, passes, milliseconds):
    clear_place()
    rates, hours, places = [], [], []
    for chart in charts_of_batch():
        write_lines(chart, count)
        results = [measure(chart, count, milliseconds) for _ in range(passes)]
        ways = ("library", "one job", "library, two threads", "two jobs")
        rates.append([chart.name, *(rate(results, way) for way in ways)])
        core = lowest(results, "one job", "processor")
        archive, files = (size / count for size in bytes_on_disk())
        hours.append([chart.name, f"{core * 1000:.2f}",
                      f"{ratio(results, 'one job', 'library'):.2f}",
                      f"{core * TEN_MILLION / SECONDS_OF_AN_HOUR:.1f}",
                      f"{archive * TEN_MILLION / 1e9:.0f}", f"{archive / core / 1e6:.1f}"])
        places.append([chart.name, rate(results, "tar"), rate(results, "files"),
                       *(f"{size * TEN_MILLION / 1e9:.0f}" for size in (archive, files))])
    tables.print_table(
        "Charts a second, and for each second of a processor: the most of all passes",
        ["", "library", "batch, 1 job", "library, 2 threads", "batch, 2 jobs"], rates)
    tables.print_table("Ten million charts by batch, into an archive",
                       ["", "ms of a processor a chart", "charts, to the library's",
                        "core-hours", "GB", "MB a second of a processor"], hours)
    tables.print_table("An archive, or a file for each chart, by 1 job",
                       ["", "charts a second, tar", "charts a second, files",
                        "GB of ten million, tar", "GB, files"], places)
    clear_place()
