# SPDX-License-Identifier: MIT
"""A chart as one line of JSON."""

from __future__ import annotations

import json
from functools import partial
from typing import Any, Callable, Dict, List, NoReturn, Optional, Tuple, Union

from tovangl._chart import DEFAULT_HEIGHT, DEFAULT_WIDTH, Chart, apply_setting
from tovangl._items import Item, Items, checked_color
from tovangl._library import KINDS, DescriptionError, ItemError
from tovangl._picture import new_chart
from tovangl._settings import checked_value, table_of

_CHART_KEYS = ("chart", "id", "width", "height", "print", "items")
_ITEM_KEYS = ("value", "caption", "color", "outline", "link")
_BYTE_ORDER_MARK = "\ufeff"


class _Object(Dict[str, Any]):
    """A JSON object that remembers a key that it has twice."""

    twice: Optional[str] = None


def write_description(chart: Chart) -> str:
    """The chart as JSON. What is as a new chart has it is left out."""
    description: Dict[str, Any] = {"chart": chart.kind}
    if chart.id is not None:
        description["id"] = chart.id
    if (chart.width, chart.height) != (DEFAULT_WIDTH, DEFAULT_HEIGHT):
        description["width"] = chart.width
        description["height"] = chart.height
    if chart.print is not None:
        description["print"] = chart.print
    description["items"] = [_item_object(item) for item in chart.items]
    description.update(chart.settings)
    return json.dumps(description, ensure_ascii=False)


def read_description(line: Union[str, bytes]) -> Dict[str, Any]:
    """The arguments of Chart."""
    description = _parse(line)
    if not isinstance(description, _Object):
        raise DescriptionError('a chart is a JSON object: {"chart": ..., "items": [...]}')
    _require_once(description, "")
    for key in ("chart", "items"):
        if key not in description:
            _refuse("/" + key, "is missing")
    kind = description["chart"]
    if not isinstance(kind, str) or kind not in KINDS:
        _refuse("/chart", f"{_shown(kind)} is not pie, bars or hbars")
    trial = new_chart(KINDS[kind])
    arguments = {key: _read_field(trial, kind, key, value) for key, value in description.items()}
    arguments["kind"] = arguments.pop("chart")
    return arguments


def _item_object(item: Item) -> Dict[str, Any]:
    entry: Dict[str, Any] = {"value": item.value, "caption": item.caption}
    if item.color is not None:
        entry["color"] = item.color
    if item.outline is not None:
        entry["outline"] = item.outline
    if item.link is not None:
        entry["link"] = item.link
    return entry


def _parse(line: Union[str, bytes]) -> Any:
    try:
        text = line if isinstance(line, str) else line.decode()
        text = text.removeprefix(_BYTE_ORDER_MARK)  # as the program does
        parsed = json.loads(text, object_pairs_hook=_make_object, parse_constant=_refuse_constant)
        _require_characters(text, parsed)
    except (ValueError, RecursionError) as error:
        raise DescriptionError(f"not JSON: {error}") from None
    return parsed


def _require_characters(text: str, parsed: Any) -> None:
    """Raises UnicodeEncodeError for one half of a pair of UTF-16, which is no character."""
    has_escapes = "\\u" in text
    (json.dumps(parsed, ensure_ascii=False) if has_escapes else text).encode()


def _make_object(pairs: List[Tuple[str, Any]]) -> _Object:
    made = _Object()
    for key, value in pairs:
        if key in made:
            made.twice = key
        made[key] = value
    return made


def _refuse_constant(name: str) -> NoReturn:
    raise ValueError(f"{name} is no number")


def _refuse(place: str, reason: str) -> NoReturn:
    raise DescriptionError(f"{place}: {reason}")


def _shown(value: Any) -> str:
    if isinstance(value, dict):
        return "an object"
    return "an array" if isinstance(value, list) else json.dumps(value, ensure_ascii=False)


def _pointer_part(key: str) -> str:
    return "/" + key.replace("~", "~0").replace("/", "~1")


def _require_once(described: _Object, place: str) -> None:
    if described.twice is not None:
        _refuse(place + _pointer_part(described.twice), "stands there twice")


def _read_field(trial: Any, kind: str, key: str, value: Any) -> Any:
    if key == "items":
        return _read_items(trial, kind, value)
    if key in _CHART_KEYS:
        return _read_chart_field(kind, key, value)
    table = table_of(kind)
    if key not in table:
        _refuse(_pointer_part(key), f"{kind} has no such setting")
    if isinstance(value, (dict, list)) or value is None:
        _refuse("/" + key, f"{_shown(value)} is no value")
    checked = _at("/" + key, lambda: checked_value(table[key], value))
    _at("/" + key, lambda: apply_setting(trial, key, checked))
    return checked


def _read_chart_field(kind: str, key: str, value: Any) -> Any:
    if value is None:
        _refuse("/" + key, "null is no value")
    if key != "chart":
        _at("/" + key, lambda: Chart(kind, [], **{key: value}))
    return value


def _at(place: str, make: Callable[[], Any]) -> Any:
    """What make() gives; what it refuses is told with its place instead of its name."""
    try:
        return make()
    except (TypeError, ValueError) as error:
        reason = str(error).partition(": ")[2]
        raise DescriptionError(f"{place}: {reason}") from None


def _read_items(trial: Any, kind: str, entries: Any) -> Items:
    if not isinstance(entries, list):
        _refuse("/items", f"{_shown(entries)} is not an array of items")
    for place, entry in enumerate(entries):
        _require_item(kind, entry, f"/items/{place}")
    items = Items(
        [entry["value"] for entry in entries],
        [entry.get("caption", "") for entry in entries],
        [entry.get("color") for entry in entries],
        [entry.get("outline") for entry in entries],
        [entry.get("link") for entry in entries],
    )
    if items.links is not None:
        _require_links(trial, items)
    return items


def _require_links(trial: Any, items: Items) -> None:
    try:
        items.add_to(trial)
    except ItemError as error:
        item, _, reason = str(error).partition(": ")
        _refuse(f"/items/{item.split()[-1]}/link", reason)


def _require_item(kind: str, entry: Any, place: str) -> None:
    if not isinstance(entry, _Object):
        _refuse(place, "is not an object")
    _require_once(entry, place)
    for key in entry:
        if key not in _ITEM_KEYS:
            reason = "an item has a value, a caption, a color, an outline and a link"
            _refuse(place + _pointer_part(key), reason)
    if "value" not in entry:
        _refuse(place, "has no value")
    _require_value(entry["value"], place + "/value")
    for key in ("caption", "color", "outline", "link"):
        if key in entry and not isinstance(entry[key], str):
            _refuse(f"{place}/{key}", f"{_shown(entry[key])} is not a text")
    _require_colors(kind, entry, place)


def _require_colors(kind: str, entry: _Object, place: str) -> None:
    for key in ("color", "outline"):
        if key in entry:
            _at(f"{place}/{key}", partial(checked_color, entry[key], key, 0))
    if "outline" in entry and kind == "pie":
        _refuse(place + "/outline", "slices share the setting outline_color")
    if "outline" in entry and "color" not in entry:
        _refuse(place, "has an outline, but no color")


def _require_value(value: Any, place: str) -> None:
    if type(value) is not int or not -(2**63) <= value < 2**63:
        _refuse(place, f"{_shown(value)} is not a whole number of 64 bits")
