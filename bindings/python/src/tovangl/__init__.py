# SPDX-License-Identifier: MIT
"""Bar and pie charts as PNG images, on Linux machines without a display.

>>> import tovangl
>>> chart = tovangl.pie({"Rent": 1200, "Food": 430}, title="May")
>>> picture = chart.render()
>>> picture.description.startswith("“May”. Pie chart, 2 of 2 items drawn: ")
True
>>> picture.save("may.png")

pie(), bars() and hbars() make a Chart, which is plain data; its render() gives a Picture, and its
render_svg() an SvgPicture, its render_pdf() a PdfPicture.
render_many() draws many charts with several threads. Importing the package starts nothing; the
first picture of a process loads the fonts, or warm_up() before it.
"""

from tovangl._chart import Chart
from tovangl._items import Item, Items
from tovangl._kinds import bars, hbars, pie
from tovangl._library import (
    DescriptionError,
    Error,
    FontError,
    ItemError,
    PictureError,
    Setting,
    SettingError,
    add_font,
    settings,
    version,
    warm_up,
)
from tovangl._picture import PdfPicture, Picture, Rectangle, Regions, Slice, SvgPicture
from tovangl._render_many import render_many

__all__ = [
    "Chart",
    "DescriptionError",
    "Error",
    "FontError",
    "Item",
    "ItemError",
    "Items",
    "PdfPicture",
    "Picture",
    "PictureError",
    "Rectangle",
    "Regions",
    "Setting",
    "SettingError",
    "Slice",
    "SvgPicture",
    "add_font",
    "bars",
    "hbars",
    "pie",
    "render_many",
    "settings",
    "version",
    "warm_up",
]
