# SPDX-License-Identifier: MIT
"""Instruction counts: the same within a thousandth from run to run, on a busy machine too."""
import os
import re
import subprocess

import cases
import tables

WARM_ROUNDS = 2
ROUNDS = 3
MOST_LIBRARIES = 6
MOST_FUNCTIONS = 8
MOST_STEPS = 16

# The parts of a chart by the functions that do them. A part is what its functions take together,
# without the parts named before it that run inside them.
PARTS = {
    "layout": r"CGraph1dBase::layOut\(",
    "painting": r"::getImage(ForPrinter)?\(",
    "packing": r"tovangl::packPicture\(",
    "compressing": r"tovangl::CDeflater::deflate\(",
}


def print_instructions(charts):
    for program in cases.BOTH_OF_OURS:
        profiles = {chart: profile_warm(program, chart) for chart in charts}
        print_parts(program, profiles)
        print_profiles(profiles)
    cold = profile_cold(charts[0])
    print_functions(f"A whole process that draws one {charts[0].name}", cold)


def print_parts(program, profiles):
    rows = []
    for chart, profile in profiles.items():
        parts = split(profile.inclusive)
        rest = profile.total - sum(parts.values())
        rows.append([chart.name, *map(millions, (profile.total, *parts.values(), rest))])
    tables.print_table(f"{program.name}: instructions of one warm chart, millions",
                       ["", "all", *PARTS, "rest"], rows)


def print_profiles(profiles):
    for chart, profile in profiles.items():
        print_steps(chart.name, profile)
        print_functions(chart.name, profile)


def print_programs(programs, charts):
    counted = [program for program in programs if not program.interpreted]
    rows = [[program.name, *(warm_cell(program, chart) for chart in charts)]
            for program in counted]
    tables.print_table("Instructions of one warm chart by program, millions",
                       ["", *(chart.name for chart in charts)], rows)


def warm_cell(program, chart):
    """The peers cannot say when they are warm: some rounds more, less some rounds."""
    if not program.draws(chart):
        return "-"
    more = count_process(program, chart, WARM_ROUNDS + ROUNDS)
    return millions((more - count_process(program, chart, WARM_ROUNDS)) / ROUNDS)


def count_process(program, chart, rounds):
    command = [*program.command, *chart.arguments, str(rounds), cases.picture_of(program, chart),
               *program.settings]
    file = os.path.join(cases.BUILD, "callgrind.program")
    run_callgrind(file, "--collect-atstart=yes", command)
    with open(file, encoding="utf-8") as profile:
        return next(int(line.split()[1]) for line in profile if line.startswith("totals:"))


def profile_warm(program, chart):
    command = cases.built("programs", "chart_instructions")
    return Profile(chart.name, ROUNDS, "--collect-atstart=no",
                   [command, *chart.arguments, str(ROUNDS), *program.settings])


def profile_cold(chart):
    picture = cases.picture_of(cases.OURS, chart)
    return Profile("cold", 1, "--collect-atstart=yes",
                   [*cases.OURS.command, *chart.arguments, "1", picture])


class Profile:
    """The instructions of one round: in all, and by (function, library)."""

    def __init__(self, name, rounds, option, command):
        file = os.path.join(cases.BUILD, f"callgrind.{name}")
        run_callgrind(file, option, command)
        self.total, self.inclusive = read_functions(file, rounds, inclusive=True)
        _, self.own = read_functions(file, rounds, inclusive=False)


def run_callgrind(file, option, command):
    """In an environment that does not vary."""
    environment = {"PATH": os.environ["PATH"], "HOME": os.environ.get("HOME", "/"),
                   "LC_ALL": "C.UTF-8", "QT_HASH_SEED": "0"}
    subprocess.run(["valgrind", "-q", "--tool=callgrind", option,
                    f"--callgrind-out-file={file}", *command],
                   env=environment, stdout=subprocess.DEVNULL, check=True)


def read_functions(file, rounds, inclusive):
    output = cases.run(["callgrind_annotate", "--threshold=100", "--show-percs=no",
                        f"--inclusive={'yes' if inclusive else 'no'}", file])
    total, functions = 0, {}
    for line in output.split("\n"):
        match = re.match(r"\s*([\d,]+)\s+(.*)", line)
        if not match:
            continue
        instructions = int(match[1].replace(",", "")) / rounds
        if match[2].startswith("PROGRAM TOTALS"):
            total = instructions
        else:
            function = readable(match[2])
            functions[function] = functions.get(function, 0) + instructions
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
        "packing": greatest_of(inclusive, PARTS["packing"]),
        "compressing": greatest_of(inclusive, PARTS["compressing"]),
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


def print_steps(name, profile):
    """Our own functions with everything that they call."""
    steps = {name: value for (name, library), value in profile.inclusive.items()
             if library.startswith("libtovangl") and value >= profile.total / 1000}
    rows = [[short(step), millions(value), percent(value, profile.total)]
            for step, value in greatest(steps, MOST_STEPS)]
    tables.print_table(f"{name}: our functions, with all that they call",
                       ["", "millions", "%"], rows)


def print_functions(title, profile):
    """Where the instructions themselves are. Stripped libraries tell addresses."""
    libraries = {}
    for (_, library), value in profile.own.items():
        libraries[library] = libraries.get(library, 0) + value
    rows = [[f"all of {library or 'the program'}", millions(value), percent(value, profile.total)]
            for library, value in greatest(libraries, MOST_LIBRARIES)]
    rows += [[f"{short(name)} ({library})", millions(value), percent(value, profile.total)]
             for (name, library), value in greatest(profile.own, MOST_FUNCTIONS)]
    tables.print_table(f"{title}: where the instructions are", ["", "millions", "%"], rows)


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
