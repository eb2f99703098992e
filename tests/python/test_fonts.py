# SPDX-License-Identifier: MIT
"""Fonts that a program brings along."""

import os
from pathlib import Path

import pytest

from tovangl import FontError, add_font, pie

FONT = Path(os.environ["TOVANGL_TEST_FONT"])


def test_an_added_font_is_used_by_charts():
    before = pie({"a": 1}).render()
    (family,) = add_font(FONT)
    assert pie({"a": 1}, font=family).render().png != before.png
    assert pie({"a": 1}, font=family).render().problem == ""


def test_paths_and_bytes_add_the_same_font():
    assert add_font(FONT) == add_font(str(FONT)) == add_font(FONT.read_bytes())


@pytest.mark.parametrize("font", ["/nonexistent.ttf", "/", __file__, b"", b"no font"])
def test_what_is_no_font_is_an_error(font):
    with pytest.raises(FontError, match="cannot be read, or is not a font"):
        add_font(font)


def test_a_font_of_another_type_is_refused():
    with pytest.raises(TypeError):
        add_font(5)
