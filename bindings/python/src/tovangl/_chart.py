# SPDX-License-Identifier: MIT
"""A chart as plain data, and its rendering."""

from __future__ import annotations

import re
from types import MappingProxyType
from typing import TYPE_CHECKING, Any, Dict, Mapping, Optional, Tuple, Type, Union

from tovangl._items import Items
from tovangl._library import KINDS
from tovangl._picture import PNG, SVG, Links, PdfPicture, Picture, Rendering, SvgPicture, check
from tovangl._settings import Value, checked_settings, setting_text, settings_column
from tovangl._tovangl import ffi, lib

if TYPE_CHECKING:
    from tovangl._items import ItemsLike

DEFAULT_WIDTH = 800  # pixels
DEFAULT_HEIGHT = 600
GREATEST_SIDE = 1_000_000  # pixels; of the factor for print as well

# An id becomes a file's name: no separators, nothing hidden, nothing that looks like an option.
_ID = re.compile(r"[A-Za-z0-9_][A-Za-z0-9_.-]{0,199}")

# After a drawing, each name that has to be looked up in the library costs.
_draw_chart = lib.draw_chart
_free_picture = lib.tovangl_chart_free_picture
_destroy = lib.tovangl_chart_destroy
_when_gone = ffi.gc
_unpack = ffi.unpack
_NO_LINKS = (ffi.NULL, 0, ffi.NULL)
_RENDER_PNG = ffi.addressof(lib, "tovangl_chart_render")
_RENDER_SVG = ffi.addressof(lib, "tovangl_chart_render_svg")
_RENDER_PDF = ffi.addressof(lib, "tovangl_chart_render_pdf")

# A tuple with names would take a call to be made.
_FIELDS = ("kind", "items", "id", "width", "height", "print", "settings")
if TYPE_CHECKING:
    _Fields = Tuple[str, Items, Optional[str], int, int, Optional[int], Dict[str, Value]]


class Chart:
    """A chart as data: its kind, items, size and settings.

    Charts cannot be changed. They can be compared, pickled, and written as JSON. tovangl.pie(),
    tovangl.bars() and tovangl.hbars() make them.
    """

    __slots__ = ("_fields",)

    def __init__(
        self,
        kind: str,
        items: ItemsLike,
        *,
        id: Optional[str] = None,
        width: int = DEFAULT_WIDTH,
        height: int = DEFAULT_HEIGHT,
        print: Optional[int] = None,
        **settings: Any,
    ) -> None:
        """The same as the function of that kind.

        :param settings: by their names; None leaves one at its default
        """
        if kind not in KINDS:
            raise ValueError(f"{kind!r} is not pie, bars or hbars")
        self._fields: _Fields = make_chart(kind, items, id, width, height, print, settings)._fields

    @property
    def kind(self) -> str:
        """``pie``, ``bars`` or ``hbars``."""
        return self._fields[0]

    @property
    def items(self) -> Items:
        """The bars or slices."""
        return self._fields[1]

    @property
    def id(self) -> Optional[str]:
        """A name for the picture's file."""
        return self._fields[2]

    @property
    def width(self) -> int:
        """The picture's width in pixels, before ``scale`` or ``print`` are applied."""
        return self._fields[3]

    @property
    def height(self) -> int:
        """The same for its height."""
        return self._fields[4]

    @property
    def print(self) -> Optional[int]:
        """For print: so many times as many pixels each way, and slices in paler colours."""
        return self._fields[5]

    @property
    def settings(self) -> Mapping[str, Value]:
        """The settings that were given, in the order in which they are applied."""
        return MappingProxyType(self._fields[6])

    def render(self) -> Picture:
        """Draws the chart.

        Other threads of Python run meanwhile. Raises SettingError where a setting does not accept
        its value, PictureError where the picture cannot be made, and MemoryError.
        """
        return self._rendered(Picture, _RENDER_PNG, self._fields[5] or 0)

    def render_svg(self) -> SvgPicture:
        """Draws the chart as SVG: shapes and texts instead of pixels, with nothing for ``print``.

        The same as render() otherwise.

        >>> Chart("pie", {"Rent": 1200}).render_svg().svg.startswith("<svg ")
        True
        """
        return self._rendered(SvgPicture, _RENDER_SVG)

    def render_pdf(self) -> PdfPicture:
        """Draws the chart as a PDF page for paper, whose size is ``width`` and ``height`` in points.

        PictureError where a side has more than 14,400 points. The same as render() otherwise.

        >>> Chart("pie", {"Rent": 1200}).render_pdf().pdf.startswith(b"%PDF-")
        True
        """
        return self._rendered(PdfPicture, _RENDER_PDF)

    def _rendered(self, picture: Type[Rendering], render: Any, factor: int = 0) -> Rendering:
        """A picture by one of the library's functions, or for print."""
        kind, items, _, width, height, _, settings = self._fields
        links = items.links
        drawing = _draw_chart(
            KINDS[kind],
            *settings_column(settings),
            *items.columns(),
            *(_NO_LINKS if links is None else items.link_columns()),
            render,
            width,
            height,
            factor,
        )
        chart = _when_gone(drawing.chart, _destroy)
        if drawing.status:
            _fail(chart, drawing, settings)
        data: bytes = _unpack(drawing.data, drawing.size)
        _free_picture(chart)
        if "others_link" in settings:
            links = _links_with_others(items, settings)
        return picture(data, width, height, chart, links)

    def to_json(self) -> str:
        """The chart as one line of JSON.

        >>> Chart("pie", {"Rent": 1200}, title="May").to_json()
        '{"chart": "pie", "items": [{"value": 1200, "caption": "Rent"}], "title": "May"}'
        """
        from tovangl._description import write_description

        return write_description(self)

    @classmethod
    def from_json(cls, line: Union[str, bytes]) -> Chart:
        """The chart that is written in JSON.

        Raises DescriptionError, whose message begins with the place: ``/items/3/value``.
        """
        from tovangl._description import read_description

        return cls(**read_description(line))

    def replace(self, **changes: Any) -> Chart:
        """The same chart with other settings, items, or size; a setting of None is the default."""
        return Chart(**{**self._arguments(), **changes})

    def __eq__(self, other: object) -> bool:
        if not isinstance(other, Chart):
            return NotImplemented
        return self._fields == other._fields

    __hash__ = None  # type: ignore[assignment]

    def __repr__(self) -> str:
        arguments = self._arguments()
        given = ", ".join(
            f"{name}={value!r}" for name, value in arguments.items() if name != "kind"
        )
        return f"Chart({self.kind!r}, {given})"

    def __reduce__(self) -> Tuple[Any, ...]:
        return _make_chart, (self._arguments(),)

    def _arguments(self) -> Dict[str, Any]:
        """What the constructor makes the same chart of."""
        fields = dict(zip(_FIELDS, self._fields))
        fields.pop("settings")
        return {**fields, **self.settings}

    def _repr_mimebundle_(
        self, include: Any = None, exclude: Any = None
    ) -> Tuple[Dict[str, Any], Dict[str, Any]]:
        """What a notebook shows: the picture, as SVG where that alone is wanted."""
        if include is not None and SVG in include and PNG not in include:
            return self.render_svg()._repr_mimebundle_(include, exclude)
        return self.render()._repr_mimebundle_(include, exclude)


def make_chart(
    kind: str,
    items: ItemsLike,
    id: Optional[str],
    width: int,
    height: int,
    print: Optional[int],
    settings: Dict[str, Any],
) -> Chart:
    """The same as Chart(), of a kind that there is, without going through the keywords again."""
    # The usual sizes need no call: after a drawing, each function that runs is far from the
    # processor.
    if not (
        type(width) is type(height) is int
        and 1 <= width <= GREATEST_SIDE
        and 1 <= height <= GREATEST_SIDE
        and print is None
    ):
        _check_sizes(width, height, print)
    if id is not None:
        _check_id(id)
    columns = Items.of(items)
    if kind == "pie" and columns.has_outlines:
        raise ValueError("slices have no outlines of their own; set outline_color")
    given = checked_settings(kind, settings) if settings else settings
    chart = Chart.__new__(Chart)
    chart._fields = (kind, columns, id, width, height, print, given)
    return chart


def _make_chart(arguments: Dict[str, Any]) -> Chart:
    return Chart(**arguments)


def _links_with_others(items: Items, settings: Dict[str, Value]) -> Optional[Links]:
    """Where the items lead and, last, the others, if the chart has an item for them."""
    if not settings.get("others") or not settings["others_link"]:
        return items.links
    return (*(items.links or [None] * len(items)), str(settings["others_link"]))


def apply_setting(chart: Any, name: str, value: Value) -> None:
    """Sets a checked value in a chart of the library."""
    text = setting_text(value).encode("utf-8", "surrogatepass")
    status = lib.tovangl_chart_set_sized(chart, name.encode(), text, len(text))
    _check_setting(chart, name, status)


def _check_setting(chart: Any, name: str, status: int) -> None:
    try:
        check(chart, status)
    except ValueError as error:
        raise type(error)(f"{name}: {error}") from None


def _fail(chart: Any, drawing: Any, settings: Dict[str, Value]) -> None:
    """Raises the exception of a drawing that failed."""
    if drawing.settings < len(settings):
        _check_setting(chart, list(settings)[drawing.settings], drawing.status)
    check(chart, drawing.status)


def _check_id(name: str) -> None:
    if not isinstance(name, str):
        raise TypeError(f"id: {name!r} is not a text")
    if not _ID.fullmatch(name):
        raise ValueError(
            f"id: {name!r} is not 1 to 200 ASCII letters, digits, _, "
            "and after the first one . and -"
        )


def _check_sizes(width: int, height: int, factor: Optional[int]) -> None:
    for name, number in (("width", width), ("height", height), ("print", factor)):
        if number is None and name == "print":
            continue
        if not isinstance(number, int) or isinstance(number, bool):
            raise TypeError(f"{name}: {number!r} is not a whole number")
        if not 1 <= number <= GREATEST_SIDE:
            raise ValueError(f"{name}: {number} is not from 1 to {GREATEST_SIDE}")
