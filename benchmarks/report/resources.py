# SPDX-License-Identifier: MIT
"""What charts need besides time: memory, and the processors of a machine."""
import json
import statistics
import subprocess
import time

import cases
import tables

KILO = 1024


def print_memory(charts):
    rows = []
    for chart in charts:
        output = cases.run([cases.built("programs", "chart_memory"), *chart.arguments])
        picture, png, peak = (int(word) / KILO for word in output.split())
        rows.append([chart.name, *(f"{size:,.0f}" for size in
                                   (picture, png, peak, peak - picture - png))])
    tables.print_table("Heap of one warm chart, KB: the peak is picture, PNG and the rest",
                       ["", "picture", "PNG", "peak", "rest"], rows)


def print_process_growth(charts):
    output = cases.run([cases.built("programs", "chart_growth"), str(charts)])
    early, late, heap = map(int, output.split())
    tables.print_table(f"A process that draws {charts:,} different charts",
                       [f"resident after {charts // 20:,}, KB", "at the end, KB",
                        "heap grew by, bytes"],
                       [[f"{early:,}", f"{late:,}", f"{heap:,}"]])


def print_throughput(charts, passes, milliseconds):
    """Two threads of one process against two processes, in turn, in the same time."""
    rows = []
    for chart in charts:
        ratios, threads, processes = [], [], []
        for _ in range(passes):
            threads.append(draw_together(chart, 1, 2, milliseconds))
            processes.append(draw_together(chart, 2, 1, milliseconds))
            ratios.append(threads[-1] / processes[-1])
        rows.append([chart.name, max(threads), max(processes),
                     f"{statistics.median(ratios):.2f}", f"{max(threads) / max(processes):.2f}"])
    tables.print_table(f"Two threads against two processes: charts in {milliseconds} ms",
                       ["", "threads, most", "processes, most", "median ratio",
                        "ratio of the most"], rows)


def draw_together(chart, processes, threads, milliseconds):
    start = int(time.time()) + 2
    command = [cases.built("programs", "chart_throughput"), *chart.arguments, str(threads),
               str(start), str(milliseconds)]
    running = [subprocess.Popen(command, stdout=subprocess.PIPE, text=True)
               for _ in range(processes)]
    return sum(int(process.communicate()[0]) for process in running)


GROWTH = {
    "growingBars": "upright bars",
    "growingLyingBars": "lying bars",
    "growingPie": "slices of a pie",
    "growingItems": "items added, nothing drawn",
    "growingAxisLabels": "labels of a value axis",
    "growingBarCaptions": "characters in each of 12 captions of bars",
    "growingPieCaptions": "characters in each of 8 captions of a pie",
}


def print_growth():
    output = cases.run([cases.built("charts", "tovangl_charts"), "--benchmark_filter=^growing",
                        "--benchmark_min_time=0.05", "--benchmark_format=json"])
    times = {}
    for result in json.loads(output)["benchmarks"]:
        name, size = result["name"].split("/")
        times.setdefault(name, {})[int(size)] = result["cpu_time"] / 1e6
    sizes = sorted({size for series in times.values() for size in series})
    rows = [[GROWTH[name], *(growth_cell(series.get(size)) for size in sizes)]
            for name, series in times.items()]
    tables.print_table("Growth of an 800 x 600 chart, milliseconds of processor time",
                       ["", *(f"{size:,}" for size in sizes)], rows)


STAGES = ("layout", "picture", "packing", "compressing", "compressingFast")


def print_stages():
    output = cases.run([cases.built("charts", "tovangl_charts"),
                        f"--benchmark_filter=/({'|'.join(STAGES)})$",
                        "--benchmark_min_time=0.05", "--benchmark_repetitions=5",
                        "--benchmark_format=json"])
    times = {}
    for result in json.loads(output)["benchmarks"]:
        if result["run_type"] == "iteration":
            name, stage = result["name"].split("/")[:2]
            known = times.setdefault(name, {}).get(stage, result["cpu_time"])
            times[name][stage] = min(known, result["cpu_time"])
    rows = [[name, *(growth_cell(None if stage not in stages else stages[stage] / 1e6)
                     for stage in STAGES)] for name, stages in times.items()]
    tables.print_table("Stages of a chart, milliseconds of processor time (the picture is layout "
                       "and painting; layout alone only at factor 1)", ["", *STAGES], rows)


def growth_cell(time_taken):
    if time_taken is None:
        return ""
    return tables.significant(time_taken) if time_taken >= 0.1 else f"{time_taken:.4f}"
