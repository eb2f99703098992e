#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Writes the functions pie, bars and hbars from the library's table of settings.

    write_kinds.py code     prints src/tovangl/_kinds.py
    write_kinds.py types    prints src/tovangl/_kinds.pyi, which has a keyword for each setting

The package has to be built: PYTHONPATH=build/dev/bindings/python.
"""

import sys
import textwrap
from typing import List

from tovangl import Setting, settings

# A function with the keywords of all settings would go through them in every call.
CODE_HEADER = '''\
# SPDX-License-Identifier: MIT
# Written by write_kinds.py from the table of settings; _kinds.pyi has the keywords.
"""The functions that make charts."""

from tovangl._chart import DEFAULT_HEIGHT, DEFAULT_WIDTH, make_chart
'''

TYPES_HEADER = """\
# SPDX-License-Identifier: MIT
# Written by write_kinds.py from the table of settings.

from typing import Iterable, Optional, Tuple, Union

from tovangl._chart import Chart
from tovangl._items import ItemsLike

"""

PURPOSES = {
    "pie": "A pie with a caption beside each slice. Slices are drawn for values above 0.",
    "bars": "Standing bars, with the value scale at the left.",
    "hbars": "Lying bars, one below the other, each with its value beside it.",
}

PYTHON_TYPES = {
    "boolean": "bool",
    "whole": "int",
    "real": "float",
    "palette": "Union[str, Iterable[str]]",
    "axis_properties": "Union[str, Iterable[str]]",
    "position": "Union[str, Tuple[int, int]]",
}

VALUES = {
    "color": "``#rrggbb`` or ``default``",
    "picture_color": "``#rrggbb``, ``default`` or ``transparent``",
    "palette": "colours ``#rrggbb``, the name of a theme, or ``default``",
    "locale": "a language and a country, such as ``de_AT``; or ``C`` or ``default``",
    "position": "two whole numbers",
    "link": "an address of http:, https: or mailto:, or one relative to the page",
}

COMMON_PARAMETERS = """\
:param items: pairs of caption and value, a dict, a Series, or Items
:param id: a name for the picture's file
:param width: pixels. Default: 800.
:param height: pixels. Default: 600.
:param print: for print: so many times as many pixels each way"""

LINE_LENGTH = 100
INDENT = "    "


def table_of(kind: str) -> List[Setting]:
    """The settings that one kind of chart has."""
    return [setting for setting in settings() if kind in setting.charts]


def values_of(setting: Setting) -> str:
    """What a setting accepts, for its documentation."""
    if setting.type == "axis_properties":
        return f"some of {', '.join(setting.choices)}; or ``none``"
    if setting.choices:
        return f"one of {', '.join(setting.choices)}"
    return VALUES.get(setting.type, "")


def documentation_of(setting: Setting) -> str:
    """The paragraph on one setting."""
    values = values_of(setting)
    default = f"Default: {setting.default}." if setting.default else ""
    sentences = [setting.summary, f"{values[0].upper()}{values[1:]}." if values else "", default]
    text = f":param {setting.name}: {' '.join(filter(None, sentences))}"
    return textwrap.fill(
        text, LINE_LENGTH - len(INDENT), subsequent_indent=INDENT, break_on_hyphens=False
    )


def code_of(kind: str) -> str:
    """The source of the function that makes one kind of chart."""
    paragraphs = "\n".join([COMMON_PARAMETERS, *map(documentation_of, table_of(kind))])
    documentation = textwrap.indent(f'"""{PURPOSES[kind]}\n\n{paragraphs}\n"""', INDENT)
    return f"""\
def {kind}(items, *, id=None, width=DEFAULT_WIDTH, height=DEFAULT_HEIGHT, print=None, **settings):
{documentation}
    return make_chart("{kind}", items, id, width, height, print, settings)
"""


def types_of(kind: str) -> str:
    """The function with its types."""
    keywords = "".join(
        f"{INDENT}{setting.name}: Optional[{PYTHON_TYPES.get(setting.type, 'str')}] = ...,\n"
        for setting in table_of(kind)
    )
    return f"""\
def {kind}(
    items: ItemsLike,
    *,
    id: Optional[str] = ...,
    width: int = ...,
    height: int = ...,
    print: Optional[int] = ...,
{keywords}) -> Chart: ...
"""


if __name__ == "__main__":
    if sys.argv[1:] == ["types"]:
        print(TYPES_HEADER + "".join(map(types_of, PURPOSES)), end="")
    else:
        print("\n\n".join([CODE_HEADER, *map(code_of, PURPOSES)]), end="")
