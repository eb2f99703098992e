# SPDX-License-Identifier: MIT
"""The charts that are measured and the programs that draw them."""
import os
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


def run(command):
    """Runs a program and returns what it printed; its complaints end the run."""
    done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True,
                          check=False)
    if done.returncode != 0 or not done.stdout:
        raise SystemExit(f"{' '.join(command)}\nfailed: {done.stderr}")
    return done.stdout


def picture_of(program, case):
    name = f"{case.name}-{program.name}.png"
    return os.path.join(PICTURES, name.replace(", ", "-"))


def forget_picture(program, case):
    if os.path.exists(picture_of(program, case)):
        os.remove(picture_of(program, case))


def check_picture(program, case):
    """Ends the run where a program did not draw what its time was taken for."""
    with open(picture_of(program, case), "rb") as file:
        head = file.read(24)
    size = (int.from_bytes(head[16:20], "big"), int.from_bytes(head[20:24], "big"))
    if head[:8] != b"\x89PNG\r\n\x1a\n" or size != case.size:
        raise SystemExit(f"{picture_of(program, case)} is no PNG of {case.size} pixels")
