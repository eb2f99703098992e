# SPDX-License-Identifier: MIT
"""What setuptools cannot read from pyproject.toml: the version of the library, and its module."""

import re
from pathlib import Path

from setuptools import setup

VERSION_HEADER = Path(__file__).resolve().parents[2] / "include" / "tovangl" / "Version.h"


def version():
    """The version as the header has it."""
    text = VERSION_HEADER.read_text(encoding="utf-8")
    return re.search(r'TOVANGL_VERSION_STRING "(.+?)"', text).group(1)


setup(version=version(), cffi_modules=["native_module.py:builder"])
