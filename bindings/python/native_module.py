# SPDX-License-Identifier: MIT
"""Describes the extension module tovangl._tovangl to cffi: the whole C header, and draw_chart.h.

As a program it writes the module's C source, for a build that compiles it itself:

    native_module.py FILE.c
"""

import os
import re
import subprocess
import sys
from pathlib import Path

from cffi import FFI

FOLDER = Path(__file__).resolve().parent
INCLUDE = FOLDER.parents[1] / "include"
HEADERS = (INCLUDE / "tovangl" / "tovangl_c.h", FOLDER / "draw_chart.h")
SOURCE = '#include "draw_chart.h"'


def declarations(header):
    """What cffi reads of a C header: no comments, no directives, nothing for C++."""
    for left_out in (r"(?s)#ifdef __cplusplus.*?#endif", r"//.*", r"(?m)^#.*$", r"TOVANGL_EXPORT"):
        header = re.sub(left_out, "", header)
    return header


def installed_library():
    """How to compile and link with the library that pkg-config finds."""
    found = subprocess.run(
        ["pkg-config", "--cflags", "--libs", "tovangl"], capture_output=True, text=True, check=False
    )
    if found.returncode != 0:
        sys.exit(
            "The library is not installed: pkg-config does not find tovangl.\n"
            "Install it, or name the folder of a build in TOVANGL_BUILD."
        )
    flags = found.stdout.split()
    is_for_compiler = [flag.startswith(("-I", "-D")) for flag in flags]
    return {
        "include_dirs": [str(FOLDER)],
        "extra_compile_args": [flag for flag, is_it in zip(flags, is_for_compiler) if is_it],
        "extra_link_args": [flag for flag, is_it in zip(flags, is_for_compiler) if not is_it],
    }


def built_library(build):
    """How to compile and link with the library in the build folder of this tree."""
    folder = str(Path(build).resolve() / "src")
    return {
        "include_dirs": [str(FOLDER), str(INCLUDE)],
        "libraries": ["tovangl"],
        "library_dirs": [folder],
        "runtime_library_dirs": [folder],
    }


def describe(**library):
    """The description of the module, with the arguments of a setuptools extension."""
    builder = FFI()
    for header in HEADERS:
        builder.cdef(declarations(header.read_text(encoding="utf-8")))
    builder.cdef("#define TOVANGL_NO_COLOR ...")
    builder.set_source("tovangl._tovangl", SOURCE, **library)
    return builder


def builder():
    """The description for setuptools, which compiles the module."""
    build = os.environ.get("TOVANGL_BUILD")
    library = built_library(build) if build else installed_library()
    return describe(sources=["draw_chart.c"], **library)


if __name__ == "__main__":
    describe().emit_c_code(sys.argv[1])
