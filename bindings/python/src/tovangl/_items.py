# SPDX-License-Identifier: MIT
"""The items of a chart, kept in columns, and what a caller may write them as."""

from __future__ import annotations

import re
import struct
from array import array
from collections.abc import Iterable, Iterator, Mapping, Sequence
from itertools import accumulate
from typing import TYPE_CHECKING, Any, List, NamedTuple, NoReturn, Optional, Tuple, Union, overload

from tovangl._library import fail, text_of
from tovangl._tovangl import ffi, lib

if TYPE_CHECKING:
    from typing import Protocol, SupportsIndex

    class SeriesLike(Protocol):
        """A column with a caption for each value, such as a Series of pandas."""

        @property
        def index(self) -> Any:
            ...

        def to_numpy(self) -> Any:
            ...

    Pair = Union[
        Tuple[str, SupportsIndex],
        Tuple[str, SupportsIndex, Optional[str]],
        Tuple[str, SupportsIndex, Optional[str], Optional[str]],
        Tuple[str, SupportsIndex, Optional[str], Optional[str], Optional[str]],
    ]
    ItemsLike = Union["Items", Mapping[str, SupportsIndex], Iterable[Pair], SeriesLike]

_from_buffer = ffi.from_buffer
_NULL = ffi.NULL
_VALUES = ffi.typeof("int64_t[]")
_VALUE_TYPE = "q"  # 64 bits with a sign
_VALUE_FORMATS = ("q", "l")
_VALUE_SIZE = 8  # bytes
_WHOLE_FORMATS = "bBhHiIlLqQ"
_BYTE_ORDERS = "@=<>!"
_ROW = "(caption, value[, color[, outline[, link]]])"
_LEAST_FIELDS = 2
_MOST_FIELDS = 5
_COLOR = re.compile(r"#[0-9a-fA-F]{6}")


class Item(NamedTuple):
    """One bar or slice."""

    caption: str
    value: int
    color: Optional[str] = None
    """Such as ``#4070c0``; None for the palette's next colour."""
    outline: Optional[str] = None
    """The same for a bar's outline, beside a color; None for one that is darker than the bar."""
    link: Optional[str] = None
    """An address that the item leads to in an SVG picture."""


class Items(Sequence[Item]):
    """Items in columns.

    A column of values with the buffer protocol and whole numbers of 64 bits, such as an array of
    numpy, is used where it is, without a copy: a later change of it changes the chart. Everything
    else is copied.

    >>> from array import array
    >>> Items(array("q", [3, 1]), ["three", "one"])[1]
    Item(caption='one', value=1, color=None, outline=None, link=None)

    :param values: whole numbers from -2**63 to 2**63 - 1
    :param captions: one for each value
    :param colors: one for each value, such as ``#4070c0`` or None; or None: no colours
    :param outlines: the same for the outlines of bars
    :param links: one for each value: an address of http:, https: or mailto:, or one that is relative
        to the page of an SVG picture; or None
    """

    __slots__ = ("_values", "_captions", "_text", "_colors", "_outlines", "_links")

    def __init__(
        self,
        values: Any,
        captions: Iterable[str],
        colors: Optional[Iterable[Optional[str]]] = None,
        outlines: Optional[Iterable[Optional[str]]] = None,
        links: Optional[Iterable[Optional[str]]] = None,
    ) -> None:
        self._values = _value_column(values)
        self._captions = tuple(captions)
        self._text = _joined(self._captions)
        self._colors = None if colors is None else _color_column(colors, "color")
        self._outlines = None if outlines is None else _color_column(outlines, "outline")
        self._links = None if links is None else _link_column(links)
        for column in (self._captions, self._colors, self._outlines, self._links):
            if column is not None and len(column) != len(self._values):
                raise ValueError(f"{len(self._values)} values, but a column of {len(column)}")
        if self._outlines is not None:
            _require_colors(self._colors, self._outlines)

    @classmethod
    def of(cls, items: ItemsLike) -> Items:
        """Items from anything that a chart takes them as."""
        # The most common form comes first, and without the constructor: after a drawing, each
        # function that runs is far from the processor.
        if isinstance(items, list):
            captions: List[str] = []
            values: List[Any] = []
            try:
                for caption, value in items:
                    captions.append(caption)
                    values.append(value)
                packed = array(_VALUE_TYPE, values)
                text = "\0".join(captions)
            except (TypeError, ValueError, OverflowError):
                pass
            else:
                pairs = cls.__new__(cls)
                pairs._values = packed
                pairs._captions = tuple(captions)
                pairs._text = text
                pairs._colors = pairs._outlines = pairs._links = None
                return pairs
            return cls._of_long_rows(items)
        if isinstance(items, Items):
            return items
        if isinstance(items, Mapping):
            return cls(list(items.values()), items)
        if hasattr(items, "to_numpy") and hasattr(items, "index"):
            return cls(items, map(str, items.index))
        if isinstance(items, (str, bytes)) or not isinstance(items, Iterable):
            raise TypeError(
                f"items are pairs, a dict, a Series or Items, not {type(items).__name__}"
            )
        rows: Iterable[Any] = items
        return cls.of(list(rows))

    @classmethod
    def _of_long_rows(cls, rows: List[Any]) -> Items:
        """Rows of which some have colours, or some are wrong."""
        try:
            columns = tuple(zip(*rows, strict=True))
        except ValueError:
            columns = tuple(zip(*map(_full_row, rows)))
        if rows and not _LEAST_FIELDS <= len(columns) <= _MOST_FIELDS:
            raise TypeError(f"{rows[0]!r} is not {_ROW}")
        captions, values, *others = columns or ((), ())
        return cls(values, captions, *others)

    @property
    def has_outlines(self) -> bool:
        """Whether an item has an outline of its own."""
        return self._outlines is not None

    @property
    def links(self) -> Optional[Tuple[Optional[str], ...]]:
        """The address that each item leads to, with None where there is none; or None: no links."""
        return self._links

    def __len__(self) -> int:
        return len(self._captions)

    @overload
    def __getitem__(self, place: int) -> Item:
        ...

    @overload
    def __getitem__(self, place: slice) -> Items:
        ...

    def __getitem__(self, place: Union[int, slice]) -> Union[Item, Items]:
        columns = (self._values, self._captions, self._colors, self._outlines, self._links)
        parts: List[Any] = [None if column is None else column[place] for column in columns]
        if isinstance(place, slice):
            return Items(*parts)
        value, caption, *others = parts
        return Item(caption, int(value), *others)

    def __iter__(self) -> Iterator[Item]:
        return map(self.__getitem__, range(len(self)))

    def __eq__(self, other: object) -> bool:
        if not isinstance(other, Items):
            return NotImplemented
        return self._plain() == other._plain()

    __hash__ = None  # type: ignore[assignment]

    def __repr__(self) -> str:
        return f"Items.of({list(map(_shortest_row, self))!r})"

    def __reduce__(self) -> Tuple[Any, ...]:
        return Items, self._plain()

    def _plain(self) -> Tuple[Any, ...]:
        values = array(_VALUE_TYPE, bytes(self._values))
        return values, self._captions, self._colors, self._outlines, self._links

    def columns(self) -> Tuple[Any, ...]:
        """The items as the library takes them, without their links."""
        count = len(self._captions)
        if self._text.count("\0") < count:
            text, offsets = self._text.encode("utf-8", "surrogatepass"), _NULL
        else:
            text, offsets = _text_with_offsets(self._captions)
        return (
            count,
            _from_buffer(_VALUES, self._values),
            text,
            len(text),
            offsets,
            _NULL if self._colors is None else _color_numbers(self._colors),
            _NULL if self._outlines is None else _color_numbers(self._outlines),
        )

    def link_columns(self) -> Tuple[Any, ...]:
        """The links likewise."""
        text, offsets = _text_with_offsets([link or "" for link in self._links or ()])
        return text, len(text), offsets

    def add_to(self, chart: Any) -> None:
        """Adds the items to a chart of the library."""
        status = lib.tovangl_chart_add_columns(chart, *self.columns())
        if status == lib.TOVANGL_OK and self._links is not None:
            status = lib.tovangl_chart_set_links(chart, len(self._links), *self.link_columns())
        if status != lib.TOVANGL_OK:
            fail(status, text_of(lib.tovangl_chart_error(chart)))


def _value_column(values: Any) -> Any:
    if isinstance(values, (tuple, list)):
        return _packed_values(values)
    if hasattr(values, "to_numpy"):
        values = values.to_numpy()
    try:
        view = memoryview(values)
    except (TypeError, ValueError):
        return _packed_values(list(values))
    if view.ndim != 1 or view.format.lstrip(_BYTE_ORDERS) not in (*_WHOLE_FORMATS, "O"):
        raise TypeError(f"values are one column of whole numbers, not {values!r}")
    if view.format in _VALUE_FORMATS and view.itemsize == _VALUE_SIZE and view.c_contiguous:
        return view
    return _packed_values(_numbers(values) if isinstance(values, memoryview) else list(values))


def _numbers(view: memoryview) -> Sequence[int]:
    """The numbers of a view, which itself reads none whose format names a byte order."""
    try:
        return view.tolist()
    except NotImplementedError:
        order, code = view.format[:-1], view.format[-1]
        if code not in _WHOLE_FORMATS:
            raise TypeError("a view of objects has no whole numbers to read") from None
        return struct.unpack(f"{order}{len(view)}{code}", view.tobytes())


def _packed_values(values: Sequence[Any]) -> array[int]:
    try:
        return array(_VALUE_TYPE, values)
    except (TypeError, OverflowError):
        pass
    for place, value in enumerate(values):
        try:
            array(_VALUE_TYPE, [value])
        except OverflowError:
            raise OverflowError(f"item {place}: {value} does not fit into 64 bits") from None
        except TypeError:
            raise TypeError(f"item {place}: the value {value!r} is not a whole number") from None
    # Each was read this time: the column must still be as long as the captions beside it.
    return array(_VALUE_TYPE, values)


def _joined(captions: Sequence[str]) -> str:
    try:
        return "\0".join(captions)
    except TypeError:
        _refuse_caption(captions)


def _refuse_caption(captions: Sequence[Any]) -> NoReturn:
    for place, caption in enumerate(captions):
        if not isinstance(caption, str):
            raise TypeError(f"item {place}: the caption {caption!r} is not a text")
    raise TypeError("a caption is not a text")


def _full_row(row: Any) -> Tuple[Any, ...]:
    if not _LEAST_FIELDS <= len(row) <= _MOST_FIELDS:
        raise TypeError(f"{row!r} is not {_ROW}")
    return (*row, None, None, None)[:_MOST_FIELDS]


def _color_column(
    colors: Iterable[Optional[str]], name: str
) -> Optional[Tuple[Optional[str], ...]]:
    column = tuple(colors)
    if not any(column):
        return None
    return tuple(checked_color(color, name, place) for place, color in enumerate(column))


def _shortest_row(item: Item) -> Tuple[Any, ...]:
    """The row without what it lacks at its end."""
    fields = list(item)
    while fields[-1] is None:
        fields.pop()
    return tuple(fields)


def _link_column(links: Iterable[Optional[str]]) -> Optional[Tuple[Optional[str], ...]]:
    column = tuple(links)
    if not any(column):
        return None
    for place, link in enumerate(column):
        if link is not None and not isinstance(link, str):
            raise TypeError(f"item {place}: the link {link!r} is not a text")
    return tuple(link or None for link in column)


def checked_color(color: Optional[str], name: str, place: int) -> Optional[str]:
    """The colour in small letters; what is none is refused with the item's place."""
    if color is None:
        return None
    if not isinstance(color, str):
        raise TypeError(f"item {place}: the {name} {color!r} is not a text")
    if not _COLOR.fullmatch(color):
        raise ValueError(f"item {place}: the {name} {color!r} is not #rrggbb")
    return color.lower()


def _text_with_offsets(texts: Sequence[str]) -> Tuple[bytes, Any]:
    """The texts as the library takes them where one can have a NUL itself."""
    encoded = [text.encode("utf-8", "surrogatepass") for text in texts]
    return b"".join(encoded), [0, *accumulate(map(len, encoded))]


def _require_colors(
    colors: Optional[Sequence[Optional[str]]], outlines: Sequence[Optional[str]]
) -> None:
    for place, outline in enumerate(outlines):
        if outline is not None and (colors is None or colors[place] is None):
            raise ValueError(f"item {place}: it has an outline, but no color")


def _color_numbers(colors: Sequence[Optional[str]]) -> List[int]:
    return [lib.TOVANGL_NO_COLOR if color is None else int(color[1:], 16) for color in colors]
