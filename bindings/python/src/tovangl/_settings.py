# SPDX-License-Identifier: MIT
"""Settings as Python values: checked against the table, and written as the library reads them."""

from __future__ import annotations

import math
from collections.abc import Iterable, Mapping
from functools import lru_cache
from operator import index
from typing import Any, Dict, List, Tuple, Union

from tovangl._library import Setting, SettingError, settings
from tovangl._tovangl import ffi

Value = Union[bool, int, float, str]

_NULL = ffi.NULL
_PLAIN_TYPES = {"boolean": bool, "whole": int}
_LISTS = ("palette", "axis_properties", "position")


@lru_cache(maxsize=None)
def table_of(kind: str) -> Dict[str, Setting]:
    """The settings that charts of this kind have, in the order in which they are applied."""
    return {setting.name: setting for setting in settings() if kind in setting.charts}


class _PlainTypes(Dict[str, Dict[str, type]]):
    """For each kind: the types whose values need no check. Real numbers do, being perhaps infinite."""

    def __missing__(self, kind: str) -> Dict[str, type]:
        types = self[kind] = {
            name: _PLAIN_TYPES.get(setting.type, str)
            for name, setting in table_of(kind).items()
            if setting.type != "real"
        }
        return types


_plain_types = _PlainTypes()


def checked_settings(kind: str, given: Mapping[str, Any]) -> Dict[str, Value]:
    """The settings that are not None, in the order in which they are applied.

    A list of colours, of axis properties or of two numbers becomes a text with commas.
    """
    plain_types = _plain_types[kind]
    checked: Dict[str, Value] = {}
    for name, value in given.items():
        if type(value) is plain_types.get(name):
            checked[name] = value
        elif value is not None:
            checked[name] = checked_value(_setting_of(kind, name), value)
    return checked if len(checked) < 2 else _in_order(kind, checked)


def _setting_of(kind: str, name: str) -> Setting:
    table = table_of(kind)
    if name not in table:
        raise SettingError(f"{name}: {kind} has no such setting")
    return table[name]


def _in_order(kind: str, checked: Dict[str, Value]) -> Dict[str, Value]:
    return {name: checked[name] for name in table_of(kind) if name in checked}


def checked_value(setting: Setting, value: Any) -> Value:
    """The value as the plain type that the setting has in every language."""
    if setting.type == "boolean":
        if isinstance(value, bool):
            return value
        raise TypeError(f"{setting.name}: {value!r} is not True or False")
    if setting.type == "whole":
        if not isinstance(value, bool) and hasattr(value, "__index__"):
            return index(value)
        raise TypeError(f"{setting.name}: {value!r} is not a whole number")
    if setting.type == "real":
        return _checked_number(setting.name, value)
    if setting.type in _LISTS and isinstance(value, Iterable) and not isinstance(value, str):
        return ",".join(map(str, value))
    if isinstance(value, str):
        return str(value)
    raise TypeError(f"{setting.name}: {value!r} is not a text")


def _checked_number(name: str, value: Any) -> Value:
    if isinstance(value, bool) or not (hasattr(value, "__float__") or hasattr(value, "__index__")):
        raise TypeError(f"{name}: {value!r} is not a number")
    number: Union[int, float] = index(value) if hasattr(value, "__index__") else float(value)
    if not math.isfinite(number):
        raise SettingError(f"{name}: {value!r} is not a number")
    return number


def setting_text(value: Value) -> str:
    """A checked value as the library reads it."""
    if isinstance(value, bool):
        return "true" if value else "false"
    return str(value)


def settings_column(given: Mapping[str, Value]) -> Tuple[Any, ...]:
    """Checked values as draw_chart() takes them."""
    texts: List[str] = []
    for name, value in given.items():
        texts.append(name)
        texts.append(value if type(value) is str else setting_text(value))
    joined = "\0".join(texts)
    column = joined.encode("utf-8", "surrogatepass")
    has_nul_inside = joined.count("\0") >= len(texts) > 0
    return column, len(given), _lengths(texts[1::2]) if has_nul_inside else _NULL


def _lengths(texts: List[str]) -> List[int]:
    return [len(text.encode("utf-8", "surrogatepass")) for text in texts]
