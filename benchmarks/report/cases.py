# SPDX-License-Identifier: MIT
"""The charts that are measured and the programs that draw them."""
import os
import re
import subprocess
from dataclasses import dataclass

BENCHMARKS = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
BUILD = os.path.join(os.path.dirname(BENCHMARKS), "build", "bench")
PICTURES = os.path.join(BUILD, "pictures")
CASES = os.path.join(BENCHMARKS, "cases")
PEERS = os.path.join(BENCHMARKS, "peers")


@dataclass(frozen=True)
class Case:
    name: str
    kind: str
    arguments: tuple  # what every measuring program takes first
    size: tuple  # pixels of the picture


@dataclass(frozen=True)
class Program:
    name: str
    command: tuple
    draws_pies: bool = True
    antialiases: bool = True  # edges of slices
    interpreted: bool = False  # takes minutes under callgrind
    settings: tuple = ()  # what goes behind the arguments that all programs take
    form: str = "png"  # of the pictures

    def draws(self, case):
        return self.draws_pies or case.kind != "pie"


def read_cases():
    cases = []
    with open(os.path.join(CASES, "list.tsv"), encoding="utf-8") as file:
        for line in file:
            name, kind, data, width, height, factor = line.split()
            arguments = (kind, os.path.join(CASES, data), width, height, factor)
            size = (int(width) * int(factor), int(height) * int(factor))
            cases.append(Case(name, kind, arguments, size))
    return cases


def built(*path):
    return os.path.join(BUILD, "benchmarks", *path)


OURS = Program("tovangl", (built("programs", "chart_times"),))
OURS_FAST = Program("tovangl, fast", OURS.command, settings=("fast",))
BOTH_OF_OURS = (OURS, OURS_FAST)


def peers():
    gnuplot = ("gnuplot", "-c", os.path.join(PEERS, "gnuplot.gp"))
    return [
        Program("gnuplot, gd", gnuplot + ("png",), antialiases=False),
        Program("gnuplot, cairo", gnuplot + ("pngcairo",)),
        Program("QCustomPlot", (built("peers", "qcustomplot_peer"),), draws_pies=False),
        Program("Qwt", (built("peers", "qwt_peer"),), draws_pies=False),
        Program("PLplot, cairo", (built("peers", "plplot_peer"),)),
        Program("matplotlib", (os.path.join(PEERS, "matplotlib_peer.py"),),
                interpreted=True),
    ]


def vector_programs(form):
    """Those that write SVG or PDF files, this library first."""
    gnuplot = ("gnuplot", "-c", os.path.join(PEERS, "gnuplot.gp"))
    terminal = {"svg": "svg", "pdf": "pdfcairo"}[form]
    writer = {"svg": "QSvgGenerator", "pdf": "QPdfWriter"}[form]
    matplotlib = (os.path.join(PEERS, "matplotlib_peer.py"),)
    return [
        Program("tovangl", OURS.command, settings=(form,), form=form),
        Program(f"Qt, {writer}", (built("peers", "qt_vector_peer"),), settings=(form,), form=form),
        Program(f"gnuplot, {terminal}", gnuplot + (terminal,), form=form),
        Program("matplotlib", matplotlib, settings=(form,), form=form),
    ]


def run(command):
    """Runs a program and returns what it printed; its complaints end the run."""
    done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True,
                          check=False)
    if done.returncode != 0 or not done.stdout:
        raise SystemExit(f"{' '.join(command)}\nfailed: {done.stderr}")
    return done.stdout


def picture_of(program, case):
    name = f"{case.name}-{program.name}.{program.form}"
    return os.path.join(PICTURES, name.replace(", ", "-"))


def forget_picture(program, case):
    if os.path.exists(picture_of(program, case)):
        os.remove(picture_of(program, case))


def check_picture(program, case):
    """Ends the run where a program did not draw what its time was taken for."""
    with open(picture_of(program, case), "rb") as file:
        content = file.read()
    if not IS_PICTURE[program.form](content, case.size):
        raise SystemExit(f"{picture_of(program, case)} is no {program.form} of {case.size} pixels")


def is_png(content, size):
    found = (int.from_bytes(content[16:20], "big"), int.from_bytes(content[20:24], "big"))
    return content[:8] == b"\x89PNG\r\n\x1a\n" and found == size


def is_svg(content, size):
    return b"<svg" in content and f"0 0 {size[0]} {size[1]}".encode() in content


def is_pdf(content, size):
    box = re.search(rb"/MediaBox *\[ *0 0 ([\d.]+) ([\d.]+)", content)
    found = tuple(round(float(side)) for side in box.groups()) if box else None
    return content.startswith(b"%PDF-") and found == size


IS_PICTURE = {"png": is_png, "svg": is_svg, "pdf": is_pdf}
