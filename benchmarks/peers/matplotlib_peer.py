#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Times matplotlib's charts, drawn by its Agg backend.

Arguments and output are those of every measuring program: KIND DATA WIDTH HEIGHT FACTOR ROUNDS
PICTURE; "first SECONDS", then each round's milliseconds. A last argument "svg" or "pdf" has those
backends draw.
"""
import io
import math
import sys
import time

import matplotlib
from matplotlib.backends.backend_agg import FigureCanvasAgg
from matplotlib.backends.backend_pdf import FigureCanvasPdf
from matplotlib.backends.backend_svg import FigureCanvasSVG
from matplotlib.collections import LineCollection
from matplotlib.figure import Figure

FILL = ["#17347c", "#5b73b0", "#aebfea", "#fe660d", "#feb86d", "#ffe2b6"]
OUTLINE = ["#0f2252", "#3c4c75", "#747f9c", "#a94408", "#a97a48", "#aa9679"]
GRID = "#b3becc"
DOTS_PER_INCH = 72  # so that a point is a pixel
MEGABYTE = 1048576


def read_items(path):
    with open(path, encoding="utf-8") as file:
        lines = [line.rstrip("\n").split("\t") for line in file]
    return [int(value) for value, _ in lines], [caption for _, caption in lines]


def cycle(colors, count):
    return [colors[i % len(colors)] for i in range(count)]


def hide_spines(axes, *sides):
    for side in sides:
        axes.spines[side].set_visible(False)


def draw_upright(figure, width, height, values, captions):
    count = len(values)
    turned = count > 20
    bottom = 62 if turned else 29
    axes = figure.add_axes(
        (37 / width, bottom / height, 1 - 47 / width, 1 - (bottom + 17) / height))
    axes.bar(range(count), values, 0.7, color=cycle(FILL, count), edgecolor=cycle(OUTLINE, count),
             linewidth=1, zorder=2)
    axes.set_xlim(-0.75, count - 0.25)
    axes.set_ylim(0, 800)
    axes.set_yticks(range(0, 801, 200))
    axes.set_xticks(range(count), captions, rotation=90 if turned else 0)
    axes.tick_params(length=0)
    axes.grid(axis="y", color=GRID, linewidth=1)
    axes.set_axisbelow(True)
    hide_spines(axes, "top", "right")


def draw_lying(figure, width, height, values, captions):
    count = len(values)
    axes = figure.add_axes((77 / width, 10 / height, 1 - 87 / width, 1 - 21 / height))
    bars = axes.barh(range(count), values, 0.7, color=cycle(FILL, count),
                     edgecolor=cycle(OUTLINE, count), linewidth=1)
    axes.bar_label(bars, padding=10)
    axes.set_xlim(0, 828)
    axes.set_ylim(count - 0.35, -0.65)
    axes.set_xticks([])
    axes.set_yticks(range(count), captions)
    axes.tick_params(length=0)
    hide_spines(axes, "bottom", "right")


def draw_pie(figure, width, height, values, captions):
    axes = figure.add_axes((0, 0, 1, 1))
    ring = height / 2 - 18
    wedges, _ = axes.pie(values, radius=0.87 * ring, startangle=180, counterclock=False,
                         colors=FILL, wedgeprops={"edgecolor": "white", "linewidth": 1})
    beams, lines = [], []
    for wedge, value, caption in zip(wedges, values, captions):
        angle = math.radians((wedge.theta1 + wedge.theta2) / 2)
        x, y = ring * math.cos(angle), ring * math.sin(angle)
        side = -1 if x < 0 else 1
        beams.append(((0.74 * x, 0.74 * y), (x, y)))
        lines.append(((x, y), (x + side * 18, y)))
        axes.text(x + side * 21, y, f"{caption} [{value // MEGABYTE} MB]",
                  horizontalalignment="right" if side < 0 else "left",
                  verticalalignment="center")
    axes.add_collection(LineCollection(beams, colors="black", linestyles=":", linewidths=1))
    axes.add_collection(LineCollection(lines, colors="black", linewidths=0.6))
    axes.set_xlim(-width / 2, width / 2)
    axes.set_ylim(-height / 2, height / 2)


DRAW = {"bars": draw_upright, "hbars": draw_lying, "pie": draw_pie}


CANVAS = {"png": FigureCanvasAgg, "svg": FigureCanvasSVG, "pdf": FigureCanvasPdf}


def draw_round(form, kind, items, width, height, factor):
    figure = Figure(figsize=(width / DOTS_PER_INCH, height / DOTS_PER_INCH),
                    dpi=DOTS_PER_INCH * factor)
    canvas = CANVAS[form](figure)
    DRAW[kind](figure, width, height, *items)
    file = io.BytesIO()
    getattr(canvas, f"print_{form}")(file)
    return file


def main():
    kind, data, width, height, factor, rounds, picture, *form = sys.argv[1:]
    form = form[0] if form else "png"
    width, height, factor, rounds = map(int, (width, height, factor, rounds))
    # Texts in SVG are texts, as in the other programs' files, rather than outlines.
    matplotlib.rcParams.update({"font.family": "DejaVu Sans", "font.size": 11,
                                "text.antialiased": False, "svg.fonttype": "none",
                                "patch.antialiased": kind == "pie"})
    items = read_items(data)
    first = 0.0
    times = []
    for place in range(rounds):
        start = time.perf_counter()
        drawn = draw_round(form, kind, items, width, height, factor)
        times.append(1000 * (time.perf_counter() - start))
        if place == 0:
            first = time.time()
    with open(picture, "wb") as file:
        file.write(drawn.getvalue())
    print(f"first {first:.6f}")
    print(*(f"{time:.4f}" for time in times), sep="\n")


main()
