# SPDX-License-Identifier: MIT
"""Instruction counts, which are the same from run to run on a busy machine too."""
import os
import re
import subprocess

import cases
import tables

ROUNDS = 3
MOST_LIBRARIES = 6
MOST_FUNCTIONS = 8
MOST_STEPS = 16

# The parts of a chart by the functions that do them. A part is what its functions take together,
# without the parts named before it that run inside them.
PARTS = {
    "layout": r"C(Bar|LabeledBar)Graph::(createAxes|computeLayout)\(|CPieGraph::computeLayout\(",
    "painting": r"::getImage(ForPrinter)?\(",
    "narrowing": r"tovangl::narrowImage\(",
    "saving": r"^QImage::save\(QIODevice",
}


def print_instructions(charts):
    profiles = {chart: Profile(count(chart)) for chart in charts}
    rows = []
    for chart, profile in profiles.items():
        parts = split(profile.inclusive)
        rest = profile.total - sum(parts.values())
        rows.append([chart.name, *map(millions, (profile.total, *parts.values(), rest))])
    tables.print_table("Instructions of one warm chart, millions",
                       ["", "all", *PARTS, "rest"], rows)
    for chart, profile in profiles.items():
        print_steps(chart, profile)
        print_functions(chart, profile)


class Profile:
    """Instructions of a round: in all, and by (function, library)."""

    def __init__(self, file):
        self.total, self.inclusive = read_functions(file, inclusive=True)
        _, self.own = read_functions(file, inclusive=False)


def count(chart):
    """Runs a case under callgrind, in an environment that does not vary."""
    profile = os.path.join(cases.BUILD, f"callgrind.{chart.name}")
    command = ["valgrind", "-q", "--tool=callgrind", "--collect-atstart=no",
               f"--callgrind-out-file={profile}", cases.built("programs", "chart_instructions"),
               *chart.arguments, str(ROUNDS)]
    environment = {"PATH": os.environ["PATH"], "HOME": os.environ.get("HOME", "/"),
                   "LC_ALL": "C.UTF-8", "QT_HASH_SEED": "0"}
    subprocess.run(command, env=environment, check=True)
    return profile


def read_functions(profile, inclusive):
    output = cases.run(["callgrind_annotate", "--threshold=100", "--show-percs=no",
                        f"--inclusive={'yes' if inclusive else 'no'}", profile])
    total, functions = 0, {}
    for line in output.split("\n"):
        match = re.match(r"\s*([\d,]+)\s+(.*)", line)
        if not match:
            continue
        instructions = int(match[1].replace(",", "")) / ROUNDS
        if match[2].startswith("PROGRAM TOTALS"):
            total = instructions
        else:
            functions[readable(match[2])] = functions.get(readable(match[2]), 0) + instructions
    return total, functions


def readable(location):
    """callgrind_annotate writes FILE:FUNCTION [LIBRARY]."""
    match = re.match(r"(?:[^:\s]*|\?\?\?):(.*?)(?: \[(.*)\])?$", location)
    return match[1], os.path.basename(match[2] or "")


def split(inclusive):
    layout = sum_of(inclusive, PARTS["layout"])
    picture = greatest_of(inclusive, PARTS["painting"])
    return {
        "layout": layout,
        "painting": picture - layout,
        "narrowing": greatest_of(inclusive, PARTS["narrowing"]),
        "saving": greatest_of(inclusive, PARTS["saving"]),
    }


def matching(functions, pattern):
    found = [value for (name, _), value in functions.items() if re.search(pattern, name)]
    if not found:
        raise SystemExit(f"no function matches {pattern}")
    return found


def sum_of(functions, pattern):
    return sum(matching(functions, pattern))


def greatest_of(functions, pattern):
    return max(matching(functions, pattern))


def print_steps(chart, profile):
    """Our own functions with everything that they call."""
    steps = {name: value for (name, library), value in profile.inclusive.items()
             if library.startswith("libtovangl") and value >= profile.total / 1000}
    rows = [[short(name), millions(value), percent(value, profile.total)]
            for name, value in greatest(steps, MOST_STEPS)]
    tables.print_table(f"{chart.name}: our functions, with all that they call",
                       ["", "millions", "%"], rows)


def print_functions(chart, profile):
    """Where the instructions themselves are. Stripped libraries tell addresses."""
    libraries = {}
    for (_, library), value in profile.own.items():
        libraries[library] = libraries.get(library, 0) + value
    rows = [[f"all of {library or 'the program'}", millions(value), percent(value, profile.total)]
            for library, value in greatest(libraries, MOST_LIBRARIES)]
    rows += [[f"{short(name)} ({library})", millions(value), percent(value, profile.total)]
             for (name, library), value in greatest(profile.own, MOST_FUNCTIONS)]
    tables.print_table(f"{chart.name}: where the instructions are", ["", "millions", "%"], rows)


def greatest(counts, most):
    return sorted(counts.items(), key=lambda item: -item[1])[:most]


def short(name):
    """Without arguments, template arguments and our own namespaces."""
    name = re.sub(r"\(anonymous namespace\)::|tovangl::", "", name)
    name = name.split("(")[0].replace("void ", "")
    while "<" in name and ">" in name:
        name = re.sub(r"<[^<>]*>", "", name)
    return name.replace("0x0000000000", "0x")


def millions(value):
    return f"{value / 1e6:,.3f}"


def percent(value, total):
    return f"{100 * value / total:.1f}"
