# SPDX-License-Identifier: MIT
"""Charts as plain data."""

import copy
import pickle

import pytest

import tovangl
from tovangl import Chart, Item, bars, hbars, pie


def test_each_function_makes_a_chart_of_its_kind():
    assert [make({}).kind for make in (pie, bars, hbars)] == ["pie", "bars", "hbars"]


def test_a_kind_that_does_not_exist_is_refused():
    with pytest.raises(ValueError, match="'lines' is not pie, bars or hbars"):
        Chart("lines", {})


def test_a_chart_keeps_what_it_was_made_of():
    chart = bars({"Rent": 1200}, id="may", width=400, height=300, print=2, title="May")
    assert list(chart.items) == [Item("Rent", 1200)]
    assert (chart.id, chart.width, chart.height, chart.print) == ("may", 400, 300, 2)
    assert chart.settings == {"title": "May"}


def test_charts_of_equal_parts_are_equal():
    assert pie({"a": 1}, title="x") == pie([("a", 1)], title="x")
    assert pie({"a": 1}) != bars({"a": 1})
    assert pie({"a": 1}) != pie({"a": 2})
    assert pie({"a": 1}) != pie({"a": 1}, title="x")
    assert pie({"a": 1}) != pie({"a": 1}, width=400)
    assert pie({"a": 1}) != "a chart"


@pytest.mark.parametrize(
    "copied", [copy.copy, copy.deepcopy, lambda c: pickle.loads(pickle.dumps(c))]
)
def test_a_copy_of_a_chart_is_equal_and_draws_the_same(copied):
    chart = bars([("a", 1, "#ff0000", "#00ff00"), ("b", 2)], id="x", width=300, title="é", scale=2)
    assert copied(chart) == chart
    assert copied(chart).render().png == chart.render().png


def test_a_chart_cannot_be_changed():
    chart = pie({"a": 1})
    with pytest.raises(AttributeError, match="no setter"):
        chart.width = 10
    with pytest.raises(AttributeError, match="no deleter"):
        del chart.width
    with pytest.raises(TypeError):
        chart.settings["title"] = "x"


def test_replacing_makes_another_chart():
    chart = pie({"a": 1}, title="x", width=300)
    other = chart.replace(title=None, threshold=2, items={"b": 2})
    assert other == pie({"b": 2}, threshold=2, width=300)
    assert chart == pie({"a": 1}, title="x", width=300)


def test_the_text_of_a_chart_makes_it_again():
    chart = hbars([("a", 1, "#ff0000"), ("b", 2)], id="x", width=300, title="y", fast=True)
    assert eval(repr(chart), vars(tovangl)) == chart


@pytest.mark.parametrize("name", ["", "a/b", ".hidden", "-o", "é", "a b", "x" * 201, "a\n"])
def test_an_id_that_is_no_file_name_is_refused(name):
    with pytest.raises(ValueError, match="^id: "):
        pie({}, id=name)


@pytest.mark.parametrize("name", ["a", "_", "0", "May-2024.v1", "x" * 200])
def test_an_id_that_is_a_file_name_is_taken(name):
    assert pie({}, id=name).id == name


@pytest.mark.parametrize("field", ["width", "height", "print"])
@pytest.mark.parametrize("number", [0, -1, 1_000_001, 2**70])
def test_a_size_out_of_range_names_its_field(field, number):
    with pytest.raises(ValueError, match=f"^{field}: {number} is not from 1 to 1000000"):
        pie({}, **{field: number})


@pytest.mark.parametrize("number", [1.5, "10", True])
def test_a_size_that_is_no_whole_number_is_refused(number):
    with pytest.raises(TypeError, match="^width: "):
        pie({}, width=number)
