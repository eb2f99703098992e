# SPDX-License-Identifier: MIT
"""Settings as Python values."""

import pytest

from setting_samples import other_value
from tovangl import Chart, SettingError, bars, pie, settings

ITEMS = {"a": 3, "b": 1}


@pytest.mark.parametrize("setting", settings(), ids=lambda setting: setting.name)
def test_every_setting_of_the_table_is_taken(setting):
    for kind in setting.charts:
        chart = Chart(kind, ITEMS, **{setting.name: other_value(setting)})
        assert list(chart.settings) == [setting.name]
        assert chart.render().png


def test_none_leaves_the_default():
    assert bars(ITEMS, title=None, scale=None) == bars(ITEMS)


def test_lists_become_texts_with_commas():
    chart = bars(ITEMS, palette=["#112233", "#445566"], position=(60, 200), value_axis=["line"])
    assert chart.settings["palette"] == "#112233,#445566"
    assert chart.settings["position"] == "60,200"
    assert chart.settings["value_axis"] == "line"


def test_a_theme_comes_before_the_colours_that_are_set_beside_it():
    one = pie(ITEMS, text_color="#ff0000", theme="dark")
    other = pie(ITEMS, theme="dark", text_color="#ff0000")
    assert list(one.settings) == ["theme", "text_color"]
    assert one.render().png == other.render().png


def test_a_setting_that_no_chart_has_is_refused():
    with pytest.raises(SettingError, match="loudness: pie has no such setting"):
        pie(ITEMS, loudness=3)


def test_a_setting_of_another_kind_is_told():
    with pytest.raises(SettingError, match="bold: bars has no such setting"):
        pie(ITEMS, bold=True).replace(kind="bars")


@pytest.mark.parametrize(
    ("name", "value", "reason"),
    [
        ("bold", 1, "is not True or False"),
        ("bold", "true", "is not True or False"),
        ("font_size", 1.5, "is not a whole number"),
        ("font_size", True, "is not a whole number"),
        ("threshold", "1", "is not a number"),
        ("threshold", True, "is not a number"),
        ("title", 5, "is not a text"),
        ("title", ["a"], "is not a text"),
        ("palette", 5, "is not a text"),
    ],
)
def test_a_value_of_another_type_names_its_setting(name, value, reason):
    with pytest.raises(TypeError, match=f"^{name}: .* {reason}$"):
        pie(ITEMS, **{name: value})


@pytest.mark.parametrize("value", [float("nan"), float("inf"), -float("inf")])
def test_a_number_without_digits_is_refused(value):
    with pytest.raises(SettingError, match="^threshold: "):
        pie(ITEMS, threshold=value)


@pytest.mark.parametrize(
    ("name", "value"),
    [
        ("theme", "loud"),
        ("scale", 0),
        ("font_size", 2**40),
        ("text_color", "red"),
        ("others_link", "javascript:alert(1)"),
        ("palette", []),
        ("title", "\ud800"),
        ("locale", "x"),
        ("title", "a\0\ud800"),
    ],
)
def test_what_the_library_refuses_is_told_in_its_words(name, value):
    with pytest.raises(SettingError, match=f"^{name}: the value is not "):
        pie(ITEMS, **{name: value}).render()


@pytest.mark.parametrize("title", ["May", "May\0June", "\0"])
def test_the_setting_that_is_refused_is_named_behind_others(title):
    with pytest.raises(SettingError, match="^text_color: the value is not a colour"):
        pie(ITEMS, theme="dark", title=title, text_color="red", scale=2).render()


def test_a_nul_in_a_value_is_a_character():
    picture = pie(ITEMS, title="May\0June", scale=2).render()
    assert picture.description.startswith("“May June”. Pie chart")
    assert picture.png[16:20] == (2 * 800).to_bytes(4, "big")


@pytest.mark.parametrize("threshold", [1e-7, 1e20, 3, 0.1])
def test_a_real_number_of_any_size_is_read(threshold):
    assert pie(ITEMS, threshold=threshold).render().png


def test_numbers_of_numpy_are_numbers():
    numpy = pytest.importorskip("numpy")
    chart = pie(ITEMS, font_size=numpy.int32(9), threshold=numpy.float64(2.5))
    assert chart == pie(ITEMS, font_size=9, threshold=2.5)
    assert type(chart.settings["threshold"]) is float
