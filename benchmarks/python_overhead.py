#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Measures what Python adds to a chart, on a machine that does nothing else:

    PYTHONPATH=build/release/bindings/python python3 benchmarks/python_overhead.py

The yardstick is what a host in C++ does for the same chart: it makes the chart, sets it, adds the
items, draws them, keeps a copy of the bytes, and frees the chart. Its texts and numbers are there
beforehand as C takes them; Python makes its own of a list of pairs each time, and keeps the chart as
well, to be asked for regions. The two are drawn in turn, so that each finds the caches as a drawing
leaves them.

Two threads of Python are compared with two processes that draw by such plain calls: how much faster
these are than one is what the machine's processors give.

With --instructions it counts them by valgrind, on any machine: all of a chart, and those inside the
library's C functions.
"""

import os
import re
import resource
import statistics
import subprocess
import sys
import time

import tovangl
from tovangl._tovangl import ffi, lib

WIDTH, HEIGHT = 800, 600  # pixels, of 12 upright bars: the size of a chart that sets none
PAIRS = [(f"Item {i}", 1000 + 137 * i) for i in range(12)]

ROUNDS = 2000
CHARTS_OF_FAULTS = 200
CHARTS_IN_THREADS = 1000
PASSES_OF_THREADS = 5
FRESH_PROCESSES = 20

INSTRUCTION_CASES = {  # function, items, size in pixels
    "V12": (tovangl.bars, 12, 800, 400),
    "P8": (tovangl.pie, 8, 600, 400),
    "V100": (tovangl.bars, 100, 1600, 600),
}
FEW_CHARTS, MANY_CHARTS = 20, 60  # the difference is without the start of the process

FIRST_PICTURE = """
import time
begin = time.perf_counter()
import tovangl
tovangl.bars({"a": 1, "b": 2}).render()
print(1000 * (time.perf_counter() - begin))
"""


def first_picture_times():
    """Milliseconds from the import to the first picture, each in a process of its own."""
    command = [sys.executable, "-c", FIRST_PICTURE]
    return sorted(float(subprocess.check_output(command)) for _ in range(FRESH_PROCESSES))


def python_chart(fast):
    """One chart as a program in Python draws it."""
    return tovangl.bars(PAIRS, width=WIDTH, height=HEIGHT, fast=fast).render().png


class PlainCalls:
    """The same chart by calls of the C interface, with all arguments made beforehand."""

    def __init__(self):
        self.captions = [ffi.new("char[]", caption.encode()) for caption, _ in PAIRS]
        self.caption_column = ffi.new("char *[]", self.captions)
        self.values = ffi.new("int64_t[]", [value for _, value in PAIRS])
        self.chart = ffi.new("tovangl_chart **")
        self.data = ffi.new("unsigned char **")
        self.size = ffi.new("size_t *")

    def draw(self, fast):
        """The bytes of the picture, which are the caller's."""
        lib.tovangl_chart_create(lib.TOVANGL_BARS, self.chart)
        chart = self.chart[0]
        lib.tovangl_chart_set(chart, b"fast", b"true" if fast else b"false")
        lib.tovangl_chart_add_items(
            chart, len(PAIRS), self.values, self.caption_column, ffi.NULL, ffi.NULL
        )
        lib.tovangl_chart_render(chart, WIDTH, HEIGHT, self.data, self.size)
        png = ffi.buffer(self.data[0], self.size[0])[:]
        lib.tovangl_chart_destroy(chart)
        return png


def processor_time(draw, fast):
    """Microseconds of this thread."""
    begin = time.thread_time_ns()
    draw(fast)
    return (time.thread_time_ns() - begin) / 1000


def page_faults(draw, fast):
    """Pages of memory that the system hands out for a chart, whether new or given back before."""
    before = resource.getrusage(resource.RUSAGE_THREAD).ru_minflt
    for _ in range(CHARTS_OF_FAULTS):
        draw(fast)
    return (resource.getrusage(resource.RUSAGE_THREAD).ru_minflt - before) / CHARTS_OF_FAULTS


def overhead(fast):
    """The times of a chart by plain calls, and in Python; in turn."""
    plain_calls = PlainCalls()
    plain, python = [], []
    for _ in range(ROUNDS):
        plain.append(processor_time(plain_calls.draw, fast))
        python.append(processor_time(python_chart, fast))
    faults = [page_faults(draw, fast) for draw in (plain_calls.draw, python_chart)]
    return plain, python, faults


def seconds_in_threads(jobs):
    """How long render_many() takes with so many threads."""
    charts = (
        tovangl.bars(PAIRS, width=WIDTH, height=HEIGHT, fast=False)
        for _ in range(CHARTS_IN_THREADS)
    )
    begin = time.perf_counter()
    for _ in tovangl.render_many(charts, jobs):
        pass
    return time.perf_counter() - begin


def seconds_in_processes(count):
    """How long so many processes take for as many charts each as all threads have, by plain calls."""
    command = [sys.executable, __file__, "--draw-plain"]
    workers = [
        subprocess.Popen(command, stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        for _ in range(count)
    ]
    for worker in workers:
        worker.stdout.readline()  # it has drawn a chart
    begin = time.perf_counter()
    for worker in workers:
        worker.stdin.write(b"\n")
        worker.stdin.flush()
    for worker in workers:
        worker.stdout.readline()
    seconds = time.perf_counter() - begin
    for worker in workers:
        worker.communicate()
    return seconds


def draw_plain():
    """A process of seconds_in_processes()."""
    plain_calls = PlainCalls()
    plain_calls.draw(False)
    print("ready", flush=True)
    sys.stdin.readline()
    for _ in range(CHARTS_IN_THREADS):
        plain_calls.draw(False)
    print("drawn", flush=True)


def print_threads():
    """What two threads give, and what two processors give; of many passes the shortest times."""
    passes = [
        (
            seconds_in_threads(1),
            seconds_in_threads(2),
            seconds_in_processes(1),
            seconds_in_processes(2),
        )
        for _ in range(PASSES_OF_THREADS)
    ]
    one, two, process, processes = map(min, zip(*passes))
    gain, possible = one / two, 2 * process / processes
    print(
        f"two threads: {gain:.2f} times one, {CHARTS_IN_THREADS / two:.0f} charts a second; two "
        f"processes by plain calls: {possible:.2f} times one; {100 * gain / possible:.0f} % of that"
    )


def print_overhead(name, fast):
    """One line for one way of saving."""
    plain, python, faults = overhead(fast)
    plain_median = statistics.median(plain)
    added = statistics.median(map(float.__sub__, python, plain))
    print(
        f"{name}: {min(plain):.0f} ({plain_median:.0f}) us by plain calls, "
        f"{min(python):.0f} ({statistics.median(python):.0f}) us in Python, which adds "
        f"{added:.0f} us to the chart before it, in the median: {100 * added / plain_median:.1f} %; "
        f"page faults {faults[0]:.2f} and {faults[1]:.2f}"
    )


def draw_for_counting(case, way, charts):
    """What a process does whose instructions are counted."""
    make, items, width, height = INSTRUCTION_CASES[case]
    pairs = [(f"Item {i}", 1000 + 137 * i) for i in range(items)]
    settings = {"fast": True} if way == "fast" else {}
    for _ in range(int(charts)):
        make(pairs, width=width, height=height, **settings).render()


def instructions_of_a_chart(case, way, *options):
    """Those of the whole process, or as the options of callgrind limit them."""
    counts = []
    for charts in (FEW_CHARTS, MANY_CHARTS):
        command = ["valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null", *options]
        command += [sys.executable, __file__, "--draw", case, way, str(charts)]
        told = subprocess.run(command, check=True, capture_output=True, text=True).stderr
        counts.append(int(re.search(r"Collected : (\d+)", told)[1]))
    return (counts[1] - counts[0]) / (MANY_CHARTS - FEW_CHARTS)


def print_instructions():
    """One line for each chart and way of saving."""
    for case in INSTRUCTION_CASES:
        for way in ("default", "fast"):
            inside = instructions_of_a_chart(case, way, "--toggle-collect=tovangl_chart_*")
            added = instructions_of_a_chart(case, way) - inside
            print(
                f"{case}, {way}: {inside / 1e6:.3f} million in the library, "
                f"{added / 1e6:.3f} million around it: {100 * added / inside:.1f} %",
                flush=True,
            )


def main():
    if sys.argv[1:2] == ["--draw"]:
        draw_for_counting(*sys.argv[2:])
    elif sys.argv[1:] == ["--draw-plain"]:
        draw_plain()
    elif sys.argv[1:] == ["--instructions"]:
        print_instructions()
    else:
        print_times()


def print_times():
    """All that a clock measures."""
    print(f"load: {os.getloadavg()[0]:.1f}; lowest (median)")
    times = first_picture_times()
    print(f"import to first picture: {times[0]:.0f} ({statistics.median(times):.0f}) ms")
    print_overhead("a chart", False)
    print_overhead("a chart, fast", True)
    print_threads()


if __name__ == "__main__":
    main()
