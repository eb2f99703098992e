# SPDX-License-Identifier: MIT
"""Charts as JSON."""

import json
import os
import subprocess
from io import BytesIO
from pathlib import Path

import pytest

from setting_samples import other_value
from tovangl import Chart, DescriptionError, Item, bars, hbars, pie, settings

PROGRAM = Path(os.environ["TOVANGL_BUILD"]) / "apps" / "tovangl-chart" / "tovangl-chart"
LINES = Path(os.environ["TOVANGL_PYTHON_SOURCES"]).parents[1] / "tests" / "apps" / "descriptions"


def test_a_chart_is_one_line_with_its_settings_beside_it():
    chart = bars(
        [("a", 1, "#ff0000", "#00ff00", "#a"), ("é\n", -2)], id="x", width=400, height=300, print=2,
        title="T", background=True, scale=2, threshold=0.5, position=(60, 200),
    )  # fmt: skip
    line = chart.to_json()
    assert "\n" not in line
    assert json.loads(line) == {
        "chart": "bars",
        "id": "x",
        "width": 400,
        "height": 300,
        "print": 2,
        "items": [
            {
                "value": 1,
                "caption": "a",
                "color": "#ff0000",
                "outline": "#00ff00",
                "link": "#a",
            },
            {"value": -2, "caption": "é\n"},
        ],
        "title": "T",
        "background": True,
        "scale": 2,
        "threshold": 0.5,
        "position": "60,200",
    }


def test_what_is_as_in_a_new_chart_is_left_out():
    assert pie({}).to_json() == '{"chart": "pie", "items": []}'


@pytest.mark.parametrize(
    "chart",
    [
        pie({}),
        hbars({"a": 2**63 - 1, "b": -(2**63), "日本": 0}, id="x", print=1),
        bars([("a", 1, "#ff0000", "#00ff00"), ("b", 2)], width=300, title='"', fast=False),
        hbars([("a", 1, None, None, "a.html"), ("b", 2)]),
    ],
)
def test_a_chart_comes_back_from_its_json(chart):
    assert Chart.from_json(chart.to_json()) == chart


def test_lines_can_be_bytes_and_have_every_character():
    chart = pie({"a\n\0": 1, "🎉": 2}, title="日本")
    assert Chart.from_json(chart.to_json().encode()) == chart
    assert Chart.from_json(json.dumps(json.loads(chart.to_json()))) == chart


def test_the_first_line_of_a_file_can_begin_with_a_byte_order_mark():
    chart = pie({"a": 1})
    assert Chart.from_json("\ufeff" + chart.to_json()) == chart
    assert Chart.from_json(b"\xef\xbb\xbf" + chart.to_json().encode()) == chart


def test_an_item_needs_no_caption():
    assert Chart.from_json('{"chart": "pie", "items": [{"value": 1}]}') == pie({"": 1})


def wrong_lines():
    def line(rest, kind="bars"):
        return f'{{"chart": "{kind}", "items": [{{"value": 1, "caption": "a"}}], {rest}}}'

    def items(*entries):
        return f'{{"chart": "bars", "items": [{", ".join(entries)}]}}'

    good = '{"value": 1}'
    return [
        ("", "not JSON: "),
        ("{", "not JSON: "),
        ("[" * 100_000, "not JSON: "),
        ("1" * 10_000, "not JSON: "),
        (b'{"chart": "pie", "items": [], "title": "\xff"}', "not JSON: "),
        (line(r'"title": "\ud800"'), "not JSON: "),
        (line('"title": "\ud800"'), "not JSON: "),
        ("[]", "a chart is a JSON object: "),
        ("null", "a chart is a JSON object: "),
        ("{}", "/chart: is missing"),
        ('{"chart": "bars"}', "/items: is missing"),
        ('{"chart": "lines", "items": []}', '/chart: "lines" is not pie, bars or hbars'),
        ('{"chart": [], "items": []}', "/chart: an array is not pie, bars or hbars"),
        ('{"chart": "pie", "items": {}}', "/items: an object is not an array of items"),
        ('{"chart": "pie", "items": [], "chart": "pie"}', "/chart: stands there twice"),
        (line('"loud": 1'), "/loud: bars has no such setting"),
        (line('"a/b~c": 1'), "/a~1b~0c: bars has no such setting"),
        (line('"kind": "pie"'), "/kind: bars has no such setting"),
        (line('"bold": true'), "/bold: bars has no such setting"),
        (line('"background": 1'), "/background: 1 is not True or False"),
        (line('"scale": 1.5'), "/scale: 1.5 is not a whole number"),
        (line('"scale": "2"'), "/scale: '2' is not a whole number"),
        (line('"threshold": "2"'), "/threshold: '2' is not a number"),
        (line('"threshold": NaN'), "not JSON: NaN is no number"),
        (line('"threshold": 1e400'), "/threshold: inf is not a number"),
        (line('"theme": "loud"'), "/theme: the value is not one of "),
        (line('"text_color": "red"'), "/text_color: the value is not "),
        (line('"font_size": 2147483648'), "/font_size: the value is not a whole number "),
        (line('"title": 5'), "/title: 5 is not a text"),
        (line('"title": null'), "/title: null is no value"),
        (line('"palette": ["#ffffff"]'), "/palette: an array is no value"),
        (line('"position": {"x": 1}'), "/position: an object is no value"),
        (line('"id": "a/b"'), "/id: 'a/b' is not 1 to 200 "),
        (line('"id": 5'), "/id: 5 is not a text"),
        (line('"width": 0'), "/width: 0 is not from 1 to 1000000"),
        (line('"width": 10.0'), "/width: 10.0 is not a whole number"),
        (line('"height": null'), "/height: null is no value"),
        (line('"print": true'), "/print: True is not a whole number"),
        (items(good, "5"), "/items/1: is not an object"),
        (items(good, "{}"), "/items/1: has no value"),
        (items(good, '{"value": 1.5}'), "/items/1/value: 1.5 is not a whole number of 64 bits"),
        (items('{"value": 1e3}'), "/items/0/value: 1000.0 is not a whole number of 64 bits"),
        (items('{"value": 9223372036854775808}'), "/items/0/value: 9223372036854775808 is not "),
        (items('{"value": true}'), "/items/0/value: true is not a whole number of 64 bits"),
        (items('{"value": "1"}'), '/items/0/value: "1" is not a whole number of 64 bits'),
        (items('{"value": 1, "value": 1}'), "/items/0/value: stands there twice"),
        (items('{"value": 1, "text": ""}'), "/items/0/text: an item has a value, "),
        (items('{"value": 1, "caption": 1}'), "/items/0/caption: 1 is not a text"),
        (items('{"value": 1, "color": "red"}'), "/items/0/color: the color 'red' is not #rrggbb"),
        (items('{"value": 1, "color": null}'), "/items/0/color: null is not a text"),
        (items('{"value": 1, "link": null}'), "/items/0/link: null is not a text"),
        (items(good, '{"value": 1, "link": "js:x"}'), "/items/1/link: the address is none "),
        (items('{"value": 1, "link": "a\\u0000"}'), "/items/0/link: the address is none "),
        (items('{"value": 1, "outline": "#ffffff"}'), "/items/0: has an outline, but no color"),
        (
            '{"chart": "pie", "items": [{"value": 1, "color": "#ffffff", "outline": "#ffffff"}]}',
            "/items/0/outline: slices share the setting outline_color",
        ),
    ]


@pytest.mark.parametrize(("line", "message"), wrong_lines())
def test_a_wrong_line_names_the_place(line, message):
    with pytest.raises(DescriptionError) as error:
        Chart.from_json(line)
    assert str(error.value).startswith(message)


def charts_of_every_setting():
    for setting in settings():
        for kind in setting.charts:
            value = {setting.name: other_value(setting)}
            yield Chart(kind, {"a": 3, "é": -1}, id=f"{kind}-{setting.name}", width=200, **value)
    yield bars([("a\n\0", 2**63 - 1, "#ff0000", "#00ff00")], id="print", width=200, print=2)


@pytest.fixture(name="answers")
def make_answers():
    """The program's answers to lines: the header of each, and the picture."""
    if not PROGRAM.exists():
        pytest.skip("tovangl-chart is not built")

    def answers(lines, *options):
        text = b"".join(line.encode() + b"\n" for line in lines)
        command = [PROGRAM, "batch", "--frames", *options]
        frames = subprocess.run(command, input=text, capture_output=True)
        stream = BytesIO(frames.stdout)
        while header := stream.readline():
            described = json.loads(header)
            yield described, stream.read(described["bytes"])

    return answers


def lines_of(name):
    return (LINES / name).read_text(encoding="utf-8").splitlines()


def test_the_program_draws_the_same_from_the_json_of_a_chart(answers):
    charts = list(charts_of_every_setting())
    drawn = list(answers(chart.to_json() for chart in charts))
    assert [header["id"] for header, _ in drawn] == [chart.id for chart in charts]
    for chart, (header, png) in zip(charts, drawn):
        picture = chart.render()
        assert (png, header["description"]) == (picture.png, picture.description), chart.id


def test_a_line_of_the_program_is_the_same_chart_here(answers):
    lines = lines_of("good.jsonl")
    drawn = [png for _, png in answers(lines)]
    assert drawn == [Chart.from_json(line).render().png for line in lines]


def test_the_program_draws_shapes_and_pages_as_they_are_here(answers):
    lines = lines_of("good.jsonl")
    charts = [Chart.from_json(line) for line in lines]
    svg = [picture.decode() for _, picture in answers(lines, "--format", "svg")]
    assert svg == [chart.render_svg().svg for chart in charts]
    pdf = [picture for _, picture in answers(lines, "--format", "pdf")]
    assert pdf == [chart.render_pdf().pdf for chart in charts]


def place_in(message):
    """The JSON pointer that a message begins with, if it does."""
    return message.partition(": ")[0] if message.startswith("/") else ""


def refusal(line):
    with pytest.raises(DescriptionError) as error:
        Chart.from_json(line)
    return str(error.value)


def test_both_refuse_the_same_lines_and_name_the_same_place(answers):
    own_lines = [line for line, _ in wrong_lines() if line and isinstance(line, str)]
    lines = [line for line in own_lines if line.isprintable()] + lines_of("bad.jsonl")
    headers = [header for header, _ in answers(lines)]
    assert [header["bytes"] for header in headers] == [0] * len(lines)
    for line, header in zip(lines, headers):
        assert place_in(header["problem"]) == place_in(refusal(line)), line


def test_the_schema_has_the_keys_of_every_chart():
    schema = PROGRAM.with_name("chart.schema.json")
    if not PROGRAM.exists():
        pytest.skip("tovangl-chart is not built")
    keys = json.loads(schema.read_text(encoding="utf-8"))["properties"]
    names = {setting.name for setting in settings()}
    assert set(keys) == names | {"chart", "id", "width", "height", "print", "items"}
    assert set(keys["items"]["items"]["properties"]) == set(Item._fields)
