# SPDX-License-Identifier: MIT
"""The table of settings, and the keywords that are made from it."""

import ast
import os
import re
import subprocess
import sys
from pathlib import Path

import pytest

import tovangl

SOURCES = Path(os.environ["TOVANGL_PYTHON_SOURCES"])
HEADER = SOURCES.parents[1] / "include" / "tovangl" / "tovangl_c.h"
BUILD = Path(os.environ["TOVANGL_BUILD"])
COMMON_KEYWORDS = ["items", "id", "width", "height", "print"]


@pytest.mark.parametrize(("part", "name"), [("code", "_kinds.py"), ("types", "_kinds.pyi")])
def test_the_functions_are_written_from_the_table(part, name):
    command = [sys.executable, SOURCES / "write_kinds.py", part]
    written = subprocess.run(command, capture_output=True, text=True, check=True)
    assert (SOURCES / "src" / "tovangl" / name).read_text() == written.stdout


def keywords_of(make):
    """What the types have between the parentheses of the function, without their types."""
    types = ast.parse((SOURCES / "src" / "tovangl" / "_kinds.pyi").read_text())
    (function,) = [node for node in types.body if getattr(node, "name", "") == make.__name__]
    return [argument.arg for argument in function.args.args + function.args.kwonlyargs]


@pytest.mark.parametrize("make", [tovangl.pie, tovangl.bars, tovangl.hbars])
def test_every_setting_of_a_kind_is_a_keyword_with_its_sentence(make):
    table = [setting for setting in tovangl.settings() if make.__name__ in setting.charts]
    assert keywords_of(make) == [*COMMON_KEYWORDS, *(setting.name for setting in table)]
    documentation = re.sub(r"\s+", " ", make.__doc__)
    for setting in table:
        assert f":param {setting.name}: {setting.summary}" in documentation


def test_every_function_of_the_c_interface_is_declared():
    from tovangl._tovangl import lib

    declared = set(re.findall(r"\b(tovangl_\w+)\(", re.sub(r"//.*", "", HEADER.read_text())))
    assert len(declared) > 20
    assert declared <= set(dir(lib))


def test_the_options_of_the_program_are_the_keywords():
    program = BUILD / "apps" / "tovangl-chart" / "tovangl-chart"
    if not program.exists():
        pytest.skip("tovangl-chart is not built")
    for make in (tovangl.pie, tovangl.bars, tovangl.hbars):
        usage = subprocess.run(
            [program, make.__name__, "--help"], capture_output=True, text=True, check=True
        )
        options = re.findall(r"^ +(?:-\w,)?--([a-z-]+)", usage.stdout, re.MULTILINE)
        names = set(keywords_of(make)) - {"items", "id", "width", "height"}
        assert names <= {option.replace("-", "_") for option in options}


def test_every_public_name_is_documented():
    for name in tovangl.__all__:
        assert getattr(tovangl, name).__doc__, name


def test_the_table_tells_types_and_ranges():
    table = {setting.name: setting for setting in tovangl.settings()}
    assert table["bold"].type == "boolean"
    assert table["bold"].charts == ("pie",)
    assert (table["scale"].type, table["scale"].minimum) == ("whole", 1)
    assert "dark" in table["theme"].choices


def test_the_version_is_that_of_the_header():
    header = HEADER.with_name("Version.h").read_text()
    assert f'TOVANGL_VERSION_STRING "{tovangl.version()}"' in header
