# SPDX-License-Identifier: MIT
"""A rendered chart: the bytes of its picture, and what the library tells of it."""

from __future__ import annotations

import os
from threading import Lock
from typing import TYPE_CHECKING, Any, Dict, List, NamedTuple, Optional, Tuple, TypeVar, Union

from tovangl._library import fail, text_of
from tovangl._tovangl import ffi, lib

if TYPE_CHECKING:
    from collections.abc import Callable

Record = TypeVar("Record")
Rendering = TypeVar("Rendering", bound="_Rendering")
Links = Tuple[Optional[str], ...]

PNG = "image/png"
SVG = "image/svg+xml"

_CHART = ffi.typeof("tovangl_chart **")


class Rectangle(NamedTuple):
    """A rectangle in pixels of the picture, whose top-left pixel is (0, 0)."""

    x: int
    y: int
    width: int
    height: int


class Slice(NamedTuple):
    """Where a slice was drawn: the box of the whole pie in pixels, and the slice's angles."""

    x: float
    y: float
    width: float
    height: float
    start: float
    """Degrees counter-clockwise from three o'clock."""
    span: float
    """Degrees counter-clockwise, above 0 and up to 360."""

    def polygon(self) -> List[Tuple[float, float]]:
        """The slice's outline in pixels, for an image map.

        It starts at the pie's centre, unless the slice is the whole pie, and follows the arc.
        """
        chart = new_chart(lib.TOVANGL_PIE)
        points = ffi.new("tovangl_point **")
        count = ffi.new("size_t *")
        outline = ffi.new("tovangl_slice *", tuple(self))
        check(chart, lib.tovangl_chart_slice_polygon(chart, outline, points, count))
        return [(point.x, point.y) for point in points[0][0 : count[0]]] if count[0] else []


class Regions(NamedTuple):
    """Where everything was drawn, with None for what was not.

    The lists have an entry for each item, in the same order, and with the setting ``others`` one
    more for the item that it draws.
    """

    title: Optional[Rectangle]
    captions: List[Optional[Rectangle]]
    bars: Optional[List[Optional[Rectangle]]]
    """None for a pie."""
    slices: Optional[List[Optional[Slice]]]
    """None for bars."""
    links: Optional[List[Optional[str]]] = None
    """The addresses that items lead to, and the others; None where nothing has one."""


class _Facts(NamedTuple):
    regions: Regions
    description: str
    problem: str


class _Rendering:
    """A rendered chart: the bytes of a file, and what the library tells of it."""

    __slots__ = ("width", "height", "_bytes", "_source", "_links", "_lock")

    width: int
    """The width to show it with, in points for a PDF file; a PNG has ``scale`` or ``print`` times as
    many pixels."""
    height: int
    """The same for its height."""

    def __init__(
        self, data: bytes, width: int, height: int, source: Any, links: Optional[Links] = None
    ) -> None:
        """Made by the functions of Chart.

        :param source: the library's chart, which has rendered the picture and is the picture's now
        :param links: of its items and, behind them, the others, if these have one
        """
        self.width = width
        self.height = height
        self._bytes = data
        self._source = source
        self._links = links
        self._lock = Lock()

    @property
    def regions(self) -> Regions:
        """Where the title, the captions, and the bars or slices were drawn, and where they lead."""
        return self._facts().regions

    @property
    def description(self) -> str:
        """One English sentence for the picture's alternative text."""
        return self._facts().description

    @property
    def problem(self) -> str:
        """What is wrong with the picture, in one English sentence; empty where nothing is.

        There may be no room for the chart, no font on the machine, or another font than the one
        that was set.
        """
        return self._facts().problem

    def save(self, path: Union[str, os.PathLike[str]]) -> None:
        """Writes the file."""
        with open(path, "wb") as file:
            file.write(self._bytes)

    def __eq__(self, other: object) -> bool:
        if not isinstance(other, _Rendering) or type(self) is not type(other):
            return NotImplemented
        return self._state() == other._state()

    def __hash__(self) -> int:
        return hash(self._bytes)

    def __repr__(self) -> str:
        return f"<{type(self).__name__} of {len(self._bytes)} bytes: {self.description}>"

    def __reduce__(self) -> Tuple[Any, ...]:
        return type(self), self._state()

    def _bundle(self, name: str, data: Any) -> Tuple[Dict[str, Any], Dict[str, Any]]:
        """What a notebook shows: the picture, with its description for those who cannot see it."""
        alternative = {"alt": self.description, "width": self.width, "height": self.height}
        return {name: data, "text/plain": self.description}, {name: alternative}

    def _state(self) -> Tuple[Any, ...]:
        return self._bytes, self.width, self.height, self._facts()

    # Most pictures are only saved, so the rest is asked for when somebody wants it. Only one thread
    # at a time may ask the library's chart.
    def _facts(self) -> _Facts:
        with self._lock:
            if not isinstance(self._source, _Facts):
                self._source = _ask(self._source, self._links)
            facts: _Facts = self._source
            return facts


class Picture(_Rendering):
    """A PNG file in memory, with the regions of the items.

    Pictures can be compared and pickled.
    """

    __slots__ = ()

    @property
    def png(self) -> bytes:
        """The bytes of the PNG file."""
        return self._bytes

    def _repr_mimebundle_(
        self, include: Any = None, exclude: Any = None
    ) -> Tuple[Dict[str, Any], Dict[str, Any]]:
        return self._bundle(PNG, self.png)


class SvgPicture(_Rendering):
    """An SVG picture in memory, with the same regions as the PNG file of that size.

    Such pictures can be compared and pickled.
    """

    __slots__ = ()

    @property
    def svg(self) -> str:
        """The picture as XML, for a file or to stand in a page."""
        return self._bytes.decode()

    def _repr_mimebundle_(
        self, include: Any = None, exclude: Any = None
    ) -> Tuple[Dict[str, Any], Dict[str, Any]]:
        return self._bundle(SVG, self.svg)


class PdfPicture(_Rendering):
    """A PDF file of one page in memory.

    Its regions are those of the PNG file for print with a factor of 4: a point has 4 of their
    pixels. Such pictures can be compared and pickled.
    """

    __slots__ = ()

    @property
    def pdf(self) -> bytes:
        """The bytes of the PDF file."""
        return self._bytes


def new_chart(kind: int) -> Any:
    """An empty chart of the library, which frees itself."""
    chart = ffi.new(_CHART)
    status = lib.tovangl_chart_create(kind, chart)
    if status != lib.TOVANGL_OK:
        fail(status, "")
    return ffi.gc(chart[0], lib.tovangl_chart_destroy)


def check(chart: Any, status: int) -> None:
    """Raises the exception of a call on a chart that failed."""
    if status != lib.TOVANGL_OK:
        fail(status, text_of(lib.tovangl_chart_error(chart)))


def _ask(chart: Any, links: Optional[Links]) -> _Facts:
    description = ffi.new("const char **")
    check(chart, lib.tovangl_chart_describe(chart, description))
    captions = _rectangles(chart, lib.tovangl_chart_caption_rectangles) or []
    return _Facts(
        Regions(
            title=_title(chart),
            captions=captions,
            bars=_rectangles(chart, lib.tovangl_chart_bar_rectangles),
            slices=_slices(chart),
            links=None if links is None else _links_of_regions(links, len(captions)),
        ),
        text_of(description[0]),
        text_of(lib.tovangl_chart_problem_text(chart)),
    )


def _links_of_regions(links: Links, regions: int) -> List[Optional[str]]:
    """One for each item and for the others, which stand behind the items."""
    return [*links, *[None] * (regions - len(links))]


def _title(chart: Any) -> Optional[Rectangle]:
    rectangle = ffi.new("tovangl_rectangle *")
    check(chart, lib.tovangl_chart_title_rectangle(chart, rectangle))
    return _rectangle(rectangle)


def _rectangles(chart: Any, read: Any) -> Optional[List[Optional[Rectangle]]]:
    return _records(chart, read, ffi.new("tovangl_rectangle **"), _rectangle)


def _slices(chart: Any) -> Optional[List[Optional[Slice]]]:
    return _records(chart, lib.tovangl_chart_slices, ffi.new("tovangl_slice **"), _slice)


def _records(
    chart: Any, read: Any, records: Any, convert: Callable[[Any], Optional[Record]]
) -> Optional[List[Optional[Record]]]:
    count = ffi.new("size_t *")
    status = read(chart, records, count)
    if status == lib.TOVANGL_WRONG_KIND:
        return None
    check(chart, status)
    return [convert(record) for record in records[0][0 : count[0]]] if count[0] else []


def _rectangle(record: Any) -> Optional[Rectangle]:
    if record.width == 0 or record.height == 0:
        return None
    return Rectangle(record.x, record.y, record.width, record.height)


def _slice(record: Any) -> Optional[Slice]:
    if record.span == 0:
        return None
    return Slice(record.x, record.y, record.width, record.height, record.start, record.span)
