# SPDX-License-Identifier: MIT
"""The example that draws on several processes, and on several machines, with Dask."""

import hashlib
import os
import subprocess
import sys
import tarfile
import time
from pathlib import Path

import pytest

pytest.importorskip("distributed")
psutil = pytest.importorskip("psutil")

EXAMPLE = Path(os.environ["TOVANGL_PYTHON_SOURCES"]).parents[1] / "examples" / "dask_charts.py"
CHARTS = 2000
ARCHIVES = 4
PATIENCE = 600  # seconds, for machines that do much else


def start(folder):
    command = [sys.executable, EXAMPLE, folder, str(CHARTS)]
    return subprocess.Popen(
        command, cwd=folder.parent, stdout=subprocess.PIPE, stderr=subprocess.PIPE
    )


def finish(run):
    try:
        output, messages = run.communicate(timeout=PATIENCE)
    finally:
        run.kill()
    assert (run.returncode, output) == (0, b"[]\n"), messages.decode()


def archives_in(folder):
    return sorted(folder.glob("*.tar"))


def workers_of(run):
    processes = psutil.Process(run.pid).children(recursive=True)
    return [process for process in processes if "spawn_main" in " ".join(process.cmdline())]


def hashes_in(folder):
    """The hash of each picture by the name of its file."""
    hashes = {}
    for path in archives_in(folder):
        with tarfile.open(path) as archive:
            for member in archive:
                png = archive.extractfile(member).read()
                hashes[member.name] = hashlib.sha256(png).hexdigest()
    return hashes


@pytest.fixture(scope="module", name="hashes_of_one_process")
def make_hashes_of_one_process(tmp_path_factory):
    folder = tmp_path_factory.mktemp("one")
    program = """
import sys
from dask_charts import draw_archive
folder, count = sys.argv[1:]
print(draw_archive(range(int(count)), folder))
"""
    subprocess.run(
        [sys.executable, "-c", program, folder, str(CHARTS)],
        env={**os.environ, "PYTHONPATH": f"{os.environ['PYTHONPATH']}:{EXAMPLE.parent}"},
        check=True,
    )
    return hashes_in(folder)


def test_two_processes_draw_the_pictures_of_one_into_a_new_folder(tmp_path, hashes_of_one_process):
    folder = tmp_path / "new"
    finish(start(folder))
    assert len(archives_in(folder)) == ARCHIVES
    assert len(hashes_of_one_process) == CHARTS
    assert hashes_in(folder) == hashes_of_one_process


def test_a_worker_that_is_killed_midway_loses_nothing(tmp_path, hashes_of_one_process):
    run = start(tmp_path)
    while not archives_in(tmp_path):
        assert run.poll() is None
        time.sleep(0.01)
    workers = workers_of(run)
    assert len(workers) == 2
    workers[0].kill()
    assert len(archives_in(tmp_path)) < ARCHIVES
    finish(run)
    assert hashes_in(tmp_path) == hashes_of_one_process
