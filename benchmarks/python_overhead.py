#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Measures what Python adds to a chart, on a machine that does nothing else:

    PYTHONPATH=build/release/bindings/python python3 benchmarks/python_overhead.py

With --instructions it counts them by valgrind, on any machine: all of a chart, and those inside the
library's C functions.
"""

import os
import re
import statistics
import subprocess
import sys
import time

import tovangl
from tovangl._tovangl import ffi, lib

WIDTH, HEIGHT = 800, 600  # pixels, of 12 upright bars: the size of a chart that sets none
PAIRS = [(f"Item {i}", 1000 + 137 * i) for i in range(12)]

ROUNDS = 2000
CHARTS_IN_THREADS = 3000
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
        lib.tovangl_chart_create(lib.TOVANGL_BARS, self.chart)
        chart = self.chart[0]
        lib.tovangl_chart_set(chart, b"fast", b"true" if fast else b"false")
        lib.tovangl_chart_add_items(
            chart, len(PAIRS), self.values, self.caption_column, ffi.NULL, ffi.NULL
        )
        lib.tovangl_chart_render(chart, WIDTH, HEIGHT, self.data, self.size)
        lib.tovangl_chart_destroy(chart)


def processor_time(draw, fast):
    """Microseconds of this thread."""
    begin = time.thread_time_ns()
    draw(fast)
    return (time.thread_time_ns() - begin) / 1000


def overhead(fast):
    """The lowest and the median time of a chart by plain calls, and in Python; in turn."""
    plain_calls = PlainCalls()
    plain, python = [], []
    for _ in range(ROUNDS):
        plain.append(processor_time(plain_calls.draw, fast))
        python.append(processor_time(python_chart, fast))
    return [(min(times), statistics.median(times)) for times in (plain, python)]


def seconds_in_threads(jobs):
    """How long render_many() takes with so many threads."""
    charts = (
        tovangl.bars(PAIRS, width=WIDTH, height=HEIGHT, threshold=0)
        for _ in range(CHARTS_IN_THREADS)
    )
    begin = time.perf_counter()
    for _ in tovangl.render_many(charts, jobs):
        pass
    return time.perf_counter() - begin


def print_overhead(name, fast):
    """One line for one way of saving."""
    (plain_low, plain_median), (python_low, python_median) = overhead(fast)
    print(
        f"{name}: {plain_low:.0f} ({plain_median:.0f}) us by plain calls, "
        f"{python_low:.0f} ({python_median:.0f}) us in Python: "
        f"{100 * (python_low / plain_low - 1):.1f} ({100 * (python_median / plain_median - 1):.1f}) %"
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
    one, two = seconds_in_threads(1), seconds_in_threads(2)
    print(f"two threads: {one / two:.2f} times one, {CHARTS_IN_THREADS / two:.0f} charts a second")


if __name__ == "__main__":
    main()
