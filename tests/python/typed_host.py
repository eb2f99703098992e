# SPDX-License-Identifier: MIT
"""A host whose types are checked, and which is never run."""

from array import array
from collections import Counter
from typing import List, Tuple

import tovangl


def charts() -> List[tovangl.Chart]:
    rows: List[Tuple[str, int]] = [("Rent", 1200)]
    return [
        tovangl.pie({"Rent": 1200}, title="May", threshold=0.5, bold=True),
        tovangl.bars(rows, position=(60, 200), palette=["#17347c"]),
        tovangl.hbars([tovangl.Item("Rent", 1200, "#17347c")], id="may", print=4),
        tovangl.hbars(tovangl.Items(array("q", [1]), ["Rent"])),
        tovangl.pie(Counter("rent").most_common()),
        tovangl.pie([tovangl.Item("Rent", 1200, link="rent.html"), ("Food", 430)]),
        tovangl.pie(tovangl.Items([1, 2], ["a", "b"], links=["a.html", None])),
    ]


def areas() -> List[int]:
    areas: List[int] = []
    for result in tovangl.render_many(charts(), jobs=2):
        if isinstance(result, tovangl.Picture):
            areas += [bar.width * bar.height for bar in result.regions.bars or [] if bar]
    return areas


def shapes() -> List[str]:
    results = tovangl.render_many(charts(), format="svg")
    return [result.svg for result in results if not isinstance(result, Exception)]


def pages() -> List[bytes]:
    results = tovangl.render_many(charts(), jobs=1, format="pdf")
    return [result.pdf for result in results if not isinstance(result, Exception)]
