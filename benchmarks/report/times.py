# SPDX-License-Identifier: MIT
"""How long charts take: warm, and from the start of a process."""
import itertools
import os
import statistics
import time

import cases
import tables

WARM_UP = 2  # rounds that are not counted


def time_all(programs, charts, passes, budget):
    """Every pass runs all programs in turn on each case, so that a slow moment of the machine meets
    all of them. Returns, by (program, case), each pass's list of the milliseconds of its rounds."""
    results = {}
    for number in range(passes):
        for chart in charts:
            able = [program for program in programs if program.draws(chart)]
            turn = number % len(able)
            for program in able[turn:] + able[:turn]:
                rounds = rounds_for(results.get((program, chart)), budget)
                results.setdefault((program, chart), []).append(
                    time_rounds(program, chart, rounds))
    return results


def rounds_for(known, budget):
    """As many rounds as fit into the milliseconds of the budget, at least three."""
    if not known:
        return 3
    return max(3, min(100, int(budget / lowest(known))))


def lowest(passes):
    return min(map(min, passes))


def time_rounds(program, chart, rounds):
    cases.forget_picture(program, chart)
    output = cases.run(command_of(program, chart, rounds + WARM_UP)).split("\n")
    cases.check_picture(program, chart)
    return [float(line) for line in output[1 + WARM_UP:] if line]


def command_of(program, chart, rounds):
    return [*program.command, *chart.arguments, str(rounds), cases.picture_of(program, chart),
            *program.settings]


def print_times(results, programs, charts, what="Warm charts"):
    rows = [[program.name, *(times_cell(results.get((program, chart))) for chart in charts)]
            for program in programs]
    tables.print_table(f"{what}: lowest (median), milliseconds",
                       ["", *(chart.name for chart in charts)], rows)


def times_cell(passes):
    if not passes:
        return "-"
    median = statistics.median(itertools.chain.from_iterable(passes))
    return f"{tables.significant(lowest(passes))} ({tables.significant(median)})"


def print_ratios(results, charts):
    """Each case against the fastest peer, and pies also against the fastest that antialiases them,
    as this library does."""
    rows = []
    for chart in charts:
        peers = {program: passes for (program, of), passes in results.items()
                 if of == chart and program not in cases.BOTH_OF_OURS}
        rows.append(ratio_row(results, chart, peers, chart.name))
        if chart.kind == "pie":
            smooth = {program: passes for program, passes in peers.items()
                      if program.antialiases}
            rows.append(ratio_row(results, chart, smooth, f"{chart.name}, antialiased"))
    tables.print_table("Against the fastest peer: ratios of the lowest, and of medians in a pass",
                       ["", "peer", "its ms", *(program.name for program in cases.BOTH_OF_OURS)],
                       rows)


def ratio_row(results, chart, peers, name):
    fastest = min(peers, key=lambda program: lowest(peers[program]))
    theirs = peers[fastest]
    return [name, fastest.name, tables.significant(lowest(theirs)),
            *(ratio_cell(results[program, chart], theirs) for program in cases.BOTH_OF_OURS)]


def ratio_cell(ours, theirs):
    return (f"{lowest(ours) / lowest(theirs):.2f} "
            f"({ratio_within_passes(ours, theirs):.2f})")


def print_sizes(programs, charts, what="Files"):
    """Of the pictures that the programs left behind."""
    rows = [[program.name, *(size_cell(program, chart) for chart in charts)]
            for program in programs]
    tables.print_table(f"{what}, bytes", ["", *(chart.name for chart in charts)], rows)


def size_cell(program, chart):
    if not program.draws(chart):
        return "-"
    return f"{os.path.getsize(cases.picture_of(program, chart)):,}"


def ratio_within_passes(ours, theirs):
    """Programs that ran right after each other met the same load, whatever it was."""
    return statistics.median(min(a) / min(b) for a, b in zip(ours, theirs))


def time_cold_starts(programs, chart, passes):
    """Milliseconds from starting the process to its first finished chart, by program."""
    results = {}
    for number in range(passes):
        turn = number % len(programs)
        for program in programs[turn:] + programs[:turn]:
            results.setdefault(program, []).append(time_cold_start(program, chart))
    return results


def time_cold_start(program, chart):
    command = command_of(program, chart, 1)
    read_end, write_end = os.pipe()
    redirections = [(os.POSIX_SPAWN_DUP2, write_end, 1),
                    (os.POSIX_SPAWN_OPEN, 2, os.devnull, os.O_WRONLY, 0)]
    start = time.time()
    process = os.posix_spawnp(command[0], command, os.environ, file_actions=redirections)
    os.close(write_end)
    with os.fdopen(read_end) as output:
        first = float(output.readline().split()[1])
    os.waitpid(process, 0)
    return 1000 * (first - start)


def print_cold_starts(results):
    rows = [[program.name, tables.significant(min(times)),
             tables.significant(statistics.median(times))]
            for program, times in results.items()]
    tables.print_table("Cold start: from starting a process to its first chart, V12, milliseconds",
                       ["", "lowest", "median"], rows)
