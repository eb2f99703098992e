# SPDX-License-Identifier: MIT
"""The package in processes of every kind."""

import multiprocessing
import os
import signal
import subprocess
import sys

import pytest

from tovangl import bars, pie, render_many, warm_up

CHARTS = [pie({"a": 1, "b": i}, width=200, height=150) for i in range(1, 9)]


def png_of(chart):
    return chart.render().png


def run(program):
    finished = subprocess.run(
        [sys.executable, "-c", program], capture_output=True, text=True, check=True, timeout=60
    )
    return finished.stdout + finished.stderr


def test_importing_starts_no_threads_and_loads_no_fonts():
    assert (
        run(
            """
import os
environment = dict(os.environ)
import tovangl
assert len(os.listdir("/proc/self/task")) == 1
assert dict(os.environ) == environment
assert "fontconfig/" not in open("/proc/self/maps").read()
"""
        )
        == ""
    )


def test_what_most_charts_do_not_need_is_not_imported():
    assert (
        run(
            """
import sys, tovangl
tovangl.pie({"a": 1}).render()
print(sorted({"json", "concurrent.futures", "cffi", "numpy", "dataclasses"} & set(sys.modules)))
"""
        )
        == "[]\n"
    )


@pytest.mark.parametrize("method", ["fork", "spawn", "forkserver"])
def test_worker_processes_draw_the_same(method):
    expected = [png_of(chart) for chart in CHARTS]
    with multiprocessing.get_context(method).Pool(2) as pool:
        assert pool.map(png_of, CHARTS) == expected


def test_a_child_draws_after_threads_of_its_parent_have_drawn():
    expected = [result.png for result in render_many(CHARTS, 3)]
    child = os.fork()
    if child == 0:
        drawn = [result.png for result in render_many(CHARTS, 2)]
        os._exit(0 if drawn == expected else 1)
    assert os.waitpid(child, 0)[1] == 0


def test_children_draw_although_threads_of_their_parent_draw():
    expected = png_of(CHARTS[0])
    pictures = render_many(CHARTS * 50, 3)
    for _ in range(10):
        next(pictures)
        child = os.fork()
        if child == 0:
            os._exit(0 if png_of(CHARTS[0]) == expected else 1)
        assert os.waitpid(child, 0)[1] == 0
    pictures.close()


def test_a_child_goes_on_with_the_results_of_its_parent():
    results = render_many(CHARTS * 8, 3)
    begun = [next(results).png for _ in range(3)]
    child = os.fork()
    if child == 0:
        signal.alarm(60)
        drawn = begun + [result.png for result in results]
        os._exit(0 if drawn == [png_of(chart) for chart in CHARTS * 8] else 1)
    assert os.waitpid(child, 0)[1] == 0
    assert len(begun + list(results)) == len(CHARTS * 8)


def test_charts_are_drawn_at_exit_where_no_thread_can_be_started():
    assert (
        run(
            """
import atexit, tovangl
def draw():
    print(len(list(tovangl.render_many([tovangl.pie({"a": 1})] * 50, 3))))
draw()
atexit.register(draw)
"""
        )
        == "50\n50\n"
    )


def test_a_child_reads_a_picture_of_its_parent():
    picture = bars({"a": 1}).render()
    child = os.fork()
    if child == 0:
        os._exit(0 if "“a”" in picture.description else 1)
    assert os.waitpid(child, 0)[1] == 0
    assert "“a”" in picture.description


def test_a_process_ends_while_pictures_are_alive():
    assert (
        run(
            """
import tovangl
picture = tovangl.pie({"a": 1}).render()
results = tovangl.render_many([tovangl.pie({"a": 1})] * 50, 2)
next(results)
"""
        )
        == ""
    )


def test_a_machine_without_the_plugin_of_qt_gives_an_error_of_python(tmp_path):
    assert (
        run(
            f"""
import os, shutil, subprocess, sys
os.makedirs({str(tmp_path / "plugins")!r})
python = shutil.copy(os.path.realpath(sys.executable), {str(tmp_path)!r})
open({str(tmp_path / "qt.conf")!r}, "w").write("[Paths]\\nPrefix = .\\nPlugins = plugins\\n")
program = '''
import tovangl
for draw in (tovangl.warm_up, tovangl.pie({{"a": 1}}).render):
    try:
        draw()
    except tovangl.PictureError:
        print("refused")
'''
subprocess.run([python, "-c", program], check=True, env={{**os.environ, "PYTHONHOME": sys.prefix}})
"""
        )
        == "refused\nrefused\n"
    )


def test_warming_up_can_be_repeated():
    warm_up()
    warm_up()
    assert pie({"a": 1}).render().png


def test_memory_does_not_grow_with_the_number_of_charts():
    assert (
        run(
            """
import gc, tovangl
def resident():
    gc.collect()
    return int(open("/proc/self/statm").read().split()[1]) * 4096
chart = tovangl.bars([(str(i), i, "#ff0000") for i in range(50)], width=300, height=200)
def draw(count):
    for _ in range(count):
        chart.render().regions
draw(200)
before = resident()
draw(1000)
assert resident() - before < 2_000_000, resident() - before
"""
        )
        == ""
    )
