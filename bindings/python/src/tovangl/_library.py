# SPDX-License-Identifier: MIT
"""What belongs to no chart: failures as exceptions, the table of settings, fonts, the version."""

from __future__ import annotations

import os
from functools import lru_cache
from typing import Any, Dict, NamedTuple, NoReturn, Tuple, Type, Union

from tovangl._tovangl import ffi, lib

KINDS = {"pie": lib.TOVANGL_PIE, "bars": lib.TOVANGL_BARS, "hbars": lib.TOVANGL_HBARS}

_TYPES = {
    lib.TOVANGL_SETTING_BOOLEAN: "boolean",
    lib.TOVANGL_SETTING_WHOLE: "whole",
    lib.TOVANGL_SETTING_REAL: "real",
    lib.TOVANGL_SETTING_TEXT: "text",
    lib.TOVANGL_SETTING_COLOR: "color",
    lib.TOVANGL_SETTING_PICTURE_COLOR: "picture_color",
    lib.TOVANGL_SETTING_PALETTE: "palette",
    lib.TOVANGL_SETTING_LOCALE: "locale",
    lib.TOVANGL_SETTING_AXIS_PROPERTIES: "axis_properties",
    lib.TOVANGL_SETTING_POSITION: "position",
    lib.TOVANGL_SETTING_CHOICE: "choice",
    lib.TOVANGL_SETTING_LINK: "link",
}
_UNKNOWN_TYPE = "text"  # of a later library: every value can be written as text

_ROOM_FOR_FAMILIES = 4096  # bytes; nearly every font file has one family


class Error(Exception):
    """The library refuses something. The message says what, in English."""


class SettingError(Error, ValueError):
    """A setting does not accept the value."""


class ItemError(Error, ValueError):
    """An item cannot be drawn: its caption cannot be written as UTF-8, or its link leads nowhere."""


class PictureError(Error):
    """The picture cannot be made, because of its size or because of the machine."""


class FontError(Error):
    """The file cannot be read, or is not a font that can be used."""


class DescriptionError(Error, ValueError):
    """A text is not the JSON of a chart. The message begins with the place, as a JSON pointer."""


_EXCEPTIONS: Dict[int, Type[Exception]] = {
    lib.TOVANGL_NO_MEMORY: MemoryError,
    lib.TOVANGL_UNKNOWN_SETTING: SettingError,
    lib.TOVANGL_BAD_VALUE: SettingError,
    lib.TOVANGL_BAD_ARGUMENT: ItemError,
    lib.TOVANGL_NOT_UTF8: ItemError,
    lib.TOVANGL_NO_PICTURE: PictureError,
    lib.TOVANGL_NO_FONT: FontError,
}


class Setting(NamedTuple):
    """One row of the table of settings."""

    name: str
    """The keyword, such as ``font_size``."""
    type: str
    """One of boolean, whole, real, text, color, picture_color, palette, locale, axis_properties,
    position, choice and link."""
    charts: Tuple[str, ...]
    """Which of pie, bars and hbars have it."""
    minimum: int
    """The least value of a whole number."""
    maximum: int
    """The greatest value of a whole number."""
    choices: Tuple[str, ...]
    """What a choice accepts, or of what axis properties are made."""
    default: str
    """The value that every chart begins with, as text."""
    summary: str
    """What it does, in one English sentence."""


def text_of(pointer: Any) -> str:
    """A text of the library."""
    return bytes(ffi.string(pointer)).decode()


def fail(status: int, message: str) -> NoReturn:
    """Raises the exception of a failure."""
    raise _EXCEPTIONS.get(status, Error)(message or text_of(lib.tovangl_status_text(status)))


def _names(text: str) -> Tuple[str, ...]:
    return tuple(text.split(",")) if text else ()


def _setting_at(index: int) -> Setting:
    row = ffi.new("tovangl_setting *")
    lib.tovangl_setting_at(index, row)
    return Setting(
        name=text_of(row.name),
        type=_TYPES.get(row.type, _UNKNOWN_TYPE),
        charts=tuple(kind for kind, bit in KINDS.items() if row.charts & bit),
        minimum=row.minimum,
        maximum=row.maximum,
        choices=_names(text_of(row.choices)),
        default=text_of(row.default_value),
        summary=text_of(row.summary),
    )


@lru_cache(maxsize=None)
def settings() -> Tuple[Setting, ...]:
    """The table of all settings, in the order in which they are applied.

    >>> [setting.name for setting in settings()][:3]
    ['theme', 'title', 'font']
    """
    return tuple(_setting_at(index) for index in range(lib.tovangl_setting_count()))


def version() -> str:
    """The version of the library that the process has loaded."""
    return text_of(lib.tovangl_version())


def warm_up() -> None:
    """Draws one tiny chart, so that the fonts are loaded before the first one that matters.

    No call needs this before it. Raises PictureError where nothing can be drawn in this process.
    """
    status = lib.tovangl_warm_up()
    if status != lib.TOVANGL_OK:
        fail(status, "")


def add_font(font: Union[str, os.PathLike[str], bytes]) -> Tuple[str, ...]:
    """Makes the families of a font file usable by all charts of the process.

    The setting ``font`` then takes their names. Fonts stay until the process ends; a child that was
    forked has them, one that was spawned has not.

    :param font: the path of a TTF, OTF or TTC file, or its bytes
    :return: the names of the families
    """
    arguments = (font, len(font)) if isinstance(font, bytes) else (os.fsencode(font),)
    add = lib.tovangl_add_font if isinstance(font, bytes) else lib.tovangl_add_font_file
    room = _ROOM_FOR_FAMILIES
    length = ffi.new("size_t *")
    while True:
        families = ffi.new("char[]", room)
        status = add(*arguments, families, room, length)
        if status != lib.TOVANGL_OK:
            fail(status, "")
        if length[0] < room:
            return tuple(text_of(families).split("\n"))
        room = length[0] + 1
