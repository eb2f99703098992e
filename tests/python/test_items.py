# SPDX-License-Identifier: MIT
"""What items can be written as."""

import ctypes
import pickle
from array import array
from collections import Counter

import pytest

from tovangl import Item, ItemError, Items, bars, pie

GREATEST = 2**63 - 1
LEAST = -(2**63)


class Series:
    """A column with captions, such as a Series of pandas."""

    def __init__(self, values, index):
        self.values = values
        self.index = index

    def to_numpy(self):
        return self.values


@pytest.mark.parametrize(
    "items",
    [
        {"a": 1, "b": 2},
        [("a", 1), ("b", 2)],
        (["a", 1], ["b", 2]),
        iter([("a", 1), ("b", 2)]),
        [iter(("a", 1)), iter(("b", 2))],
        {"a": 1, "b": 2}.items(),
        [Item("a", 1), Item("b", 2)],
        [("a", 1), ("b", 2, None)],
        [("a", 1, None, None, None), Item("b", 2, link="")],
        Items([1, 2], ["a", "b"]),
        Items(array("q", [1, 2]), ("a", "b")),
        Items(array("i", [1, 2]), iter("ab")),
        Items(memoryview(array("q", [1, 0, 2, 0]))[::2], "ab"),
        Items(b"\1\2", "ab"),
        Items((ctypes.c_int64 * 2)(1, 2), "ab"),
        Items(memoryview((ctypes.c_int64 * 2)(1, 2)), "ab"),
        Items(memoryview((ctypes.c_int16.__ctype_be__ * 4)(1, 0, 2, 0))[::2], "ab"),
        Series(array("q", [1, 2]), ["a", "b"]),
        Series([1, 2], "ab"),
    ],
)
def test_every_form_gives_the_same_items(items):
    assert list(pie(items).items) == [Item("a", 1), Item("b", 2)]
    assert pie({"a": 1, "b": 2}).items == Items([1, 2], "ab")


def test_counts_are_items():
    assert list(pie(Counter("abb").most_common()).items) == [Item("b", 2), Item("a", 1)]


def test_no_items_are_items():
    for empty in ({}, [], (), iter([]), Items([], []), Items(array("q"), [])):
        assert len(pie(empty).items) == 0
        assert pie(empty).render().png


def test_the_captions_of_a_series_can_be_anything():
    assert [item.caption for item in Items.of(Series([1, 2], [2024, None]))] == ["2024", "None"]


def test_an_array_of_64_bits_is_used_where_it_is():
    values = array("q", [1, 2])
    chart = pie(Items(values, "ab"))
    values[0] = 7
    assert chart.items[0].value == 7


def test_an_array_of_numpy_is_used_where_it_is():
    numpy = pytest.importorskip("numpy")
    values = numpy.array([1, 2])
    chart = pie(Items(values, numpy.array(["a", "b"])))
    values[0] = 7
    assert list(chart.items) == [Item("a", 7), Item("b", 2)]
    assert "“a” with 7" in chart.render().description


@pytest.mark.parametrize(
    "kind", ["int8", "uint8", "int16", "int32", "uint32", "uint64", ">i8", "O"]
)
def test_other_whole_numbers_of_numpy_are_converted(kind):
    numpy = pytest.importorskip("numpy")
    assert Items(numpy.array([1, 2], kind), "ab") == Items([1, 2], "ab")


@pytest.mark.parametrize("kind", ["float64", "datetime64[s]", "complex64", "U1", "S1"])
def test_columns_of_numpy_without_whole_numbers_are_refused(kind):
    numpy = pytest.importorskip("numpy")
    with pytest.raises(TypeError):
        Items(numpy.array([1, 2]).astype(kind), "ab")


def test_a_table_is_no_column():
    numpy = pytest.importorskip("numpy")
    with pytest.raises(TypeError, match="one column"):
        Items(numpy.zeros((2, 2), int), "ab")


def test_a_series_of_pandas_brings_its_index():
    pandas = pytest.importorskip("pandas")
    assert Items.of(pandas.Series({"a": 1, "b": 2})) == Items([1, 2], "ab")


@pytest.mark.parametrize("value", [GREATEST, LEAST, 0, True])
def test_values_of_64_bits_are_exact(value):
    assert bars({"a": value}).items[0].value == int(value)
    assert f"{int(value):,}" in bars({"a": value}, locale="en_US").render().description.replace(
        "−", "-"
    )


@pytest.mark.parametrize("value", [GREATEST + 1, LEAST - 1, 10**30])
def test_values_beyond_64_bits_are_an_overflow(value):
    with pytest.raises(OverflowError, match=f"item 1: {value} does not fit into 64 bits"):
        bars([("a", 1), ("b", value)])


def test_a_column_beyond_64_bits_is_an_overflow():
    with pytest.raises(OverflowError, match="item 0: "):
        Items(array("Q", [2**64 - 1]), "a")


@pytest.mark.parametrize("value", [1.5, 1.0, "1", None, [1], b"1"])
def test_a_value_that_is_no_whole_number_names_its_item(value):
    with pytest.raises(TypeError, match="item 1: the value .* is not a whole number"):
        bars([("a", 1), ("b", value)])


@pytest.mark.parametrize("caption", [1, None, b"b", ["b"]])
def test_a_caption_that_is_no_text_names_its_item(caption):
    with pytest.raises(TypeError, match="item 1: the caption .* is not a text"):
        bars([("a", 1), (caption, 1)])


@pytest.mark.parametrize(
    "items", ["ab", b"ab", 3, None, [1, 2], ["ab"], [("a",)], [("a", 1, None, None, None, 6)]]
)
def test_what_is_no_items_is_refused(items):
    with pytest.raises(TypeError):
        bars(items)


def test_a_surrogate_is_refused_when_the_chart_is_drawn():
    with pytest.raises(ItemError, match="item 1: the caption is not UTF-8"):
        bars({"a": 1, "\ud800": 1}).render()


@pytest.mark.parametrize("caption", ["", "a\0b", "日本", "🎉", "x" * 100_000])
def test_every_text_is_a_caption(caption):
    assert bars({caption: 1}).items[0].caption == caption
    assert bars({caption: 1}).render().png


def test_a_colour_is_drawn_and_the_others_come_from_the_palette():
    red = bars([("a", 1, "#FF0000"), ("b", 2)])
    assert [item.color for item in red.items] == ["#ff0000", None]
    assert red.render().png != bars([("a", 1), ("b", 2)]).render().png


@pytest.mark.parametrize("color", ["red", "#fff", "#gg0000", "#ff00000", "ff0000", ""])
def test_a_colour_of_another_form_names_its_item(color):
    with pytest.raises(ValueError, match="item 0: the color .* is not #rrggbb"):
        bars([("a", 1, color), ("b", 1, "#000000")])


def test_an_outline_stands_beside_a_colour_of_a_bar():
    assert bars([("a", 1, "#ffffff", "#ff0000")]).items[0].outline == "#ff0000"
    with pytest.raises(ValueError, match="item 0: it has an outline, but no color"):
        bars([("a", 1, None, "#ff0000")])
    with pytest.raises(ValueError, match="outline_color"):
        pie([("a", 1, "#ffffff", "#ff0000")])


def test_a_link_is_an_address_in_an_svg_picture():
    rows = bars([Item("a", 1, link="https://example.org/?a&b"), ("b", 2)])
    assert [item.link for item in rows.items] == ["https://example.org/?a&b", None]
    assert 'href="https://example.org/?a&amp;b"' in rows.render_svg().svg
    assert rows == bars(Items([1, 2], "ab", links=["https://example.org/?a&b", None]))
    assert rows != bars({"a": 1, "b": 2})
    assert "href=" not in bars({"a": 1, "b": 2}).render_svg().svg


@pytest.mark.parametrize(
    "link", ["javascript:alert(1)", "//example.org", "a b", "a.html\0", " js:x", "x" * 10_000]
)
def test_a_link_to_nowhere_is_refused_when_the_chart_is_drawn(link):
    chart = bars([("a", 1), Item("b", 1, link=link)])
    with pytest.raises(ItemError, match="item 1: the address is none that a link can have"):
        chart.render()


def test_a_surrogate_in_a_link_is_refused_when_the_chart_is_drawn():
    with pytest.raises(ItemError, match="item 1: the address is not UTF-8"):
        bars([("a", 1), Item("b", 1, link="\ud800")]).render()


@pytest.mark.parametrize("link", [1, b"a", ["a"]])
def test_a_link_that_is_no_text_names_its_item(link):
    with pytest.raises(TypeError, match="item 0: the link .* is not a text"):
        bars([Item("a", 1, link=link)])


def test_columns_of_different_lengths_are_refused():
    with pytest.raises(ValueError, match="2 values, but a column of 3"):
        Items([1, 2], "abc")
    with pytest.raises(ValueError, match="2 values, but a column of 1"):
        Items([1, 2], "ab", ["#ffffff"])
    with pytest.raises(ValueError, match="2 values, but a column of 1"):
        Items([1, 2], "ab", links=["a"])


def test_items_can_be_taken_apart_and_pickled():
    items = Items([1, 2, 3], "abc", ["#ffffff", None, None])
    assert items[-1] == Item("c", 3)
    assert items[:1] == Items([1], "a", ["#ffffff"])
    assert Items([1, 2], "ab", links=["x", None])[:1] == Items([1], "a", links=["x"])
    assert pickle.loads(pickle.dumps(items)) == items
    assert items != [1, 2, 3]
    with pytest.raises(IndexError):
        items[3]


class ChangesItsMind:
    """A value that is no number when it is read for the first time."""

    def __init__(self):
        self.reads = 0

    def __index__(self):
        self.reads += 1
        if self.reads == 1:
            raise TypeError("not yet")
        return 7


def test_a_value_that_is_a_number_only_when_read_again_is_that_number():
    assert [item.value for item in Items.of([("a", 1), ("b", ChangesItsMind())])] == [1, 7]
