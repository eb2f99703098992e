# SPDX-License-Identifier: MIT
"""What a rendering gives."""

import os
import pickle
import struct
import subprocess
from concurrent.futures import ThreadPoolExecutor
from xml.etree import ElementTree

import pytest

from tovangl import Item, Picture, PictureError, Rectangle, bars, hbars, pie

WEEK = {"Monday": 320, "Tuesday": 410, "Wednesday": 275, "Thursday": 180}


def size_of(png):
    return struct.unpack(">II", png[16:24])


def test_the_picture_is_that_of_the_c_example(tmp_path):
    path = tmp_path / "bars.png"
    bars(WEEK, background=True, width=400, height=250).render().save(path)
    probes = ["400x250", "90,170=#17347c", "335,200=#fe660d"]
    subprocess.run([os.environ["CHECK_PICTURE"], path, *probes], check=True)


def test_a_chart_for_print_has_more_pixels():
    assert size_of(pie(WEEK, width=100, height=80).render().png) == (100, 80)
    assert size_of(pie(WEEK, width=100, height=80, print=3).render().png) == (300, 240)
    assert size_of(pie(WEEK, width=100, height=80, scale=2).render().png) == (200, 160)


def test_bars_have_the_regions_of_bars():
    regions = bars(WEEK, title="Week").render().regions
    assert regions.title.width > 0
    assert len(regions.bars) == len(regions.captions) == 4
    assert regions.slices is None
    heights = [bar.height for bar in regions.bars]
    assert heights.index(max(heights)) == 1


def test_a_pie_has_the_regions_of_slices():
    regions = pie(WEEK).render().regions
    assert regions.title is None
    assert regions.bars is None
    assert sum(piece.span for piece in regions.slices) == pytest.approx(360)
    assert all(isinstance(caption, Rectangle) for caption in regions.captions)


def test_what_is_not_drawn_has_no_region():
    regions = pie({"a": 99, "b": 1}, threshold=5).render().regions
    assert regions.slices[1] is None
    assert regions.captions[1] is None


def test_the_others_have_a_region_of_their_own():
    assert len(pie({"a": 99, "b": 1}, threshold=5, others="rest").render().regions.slices) == 3


def test_the_regions_tell_where_items_lead():
    chart = pie([Item("a", 99, link="#a"), ("b", 1), ("c", 1)], threshold=5)
    assert chart.render().regions.links == ["#a", None, None]
    assert chart.render_svg().regions == chart.render().regions
    assert chart.render_pdf().regions.links == ["#a", None, None]
    assert pickle.loads(pickle.dumps(chart.render())).regions.links == ["#a", None, None]
    assert pie(WEEK).render().regions.links is None


def test_the_links_have_an_entry_for_the_others():
    chart = pie([Item("a", 99, link="#a"), ("b", 1)], threshold=5, others="rest")
    assert chart.render().regions.links == ["#a", None, None]


def test_the_regions_tell_where_the_others_lead():
    chart = pie({"a": 99, "b": 1}, threshold=5, others="rest", others_link="rest.html")
    assert chart.render().regions.links == [None, None, "rest.html"]
    assert 'href="rest.html"' in chart.render_svg().svg
    linked = chart.replace(items=[Item("a", 99, link="#a"), ("b", 1)])
    assert linked.render().regions.links == ["#a", None, "rest.html"]


def test_a_chart_without_others_has_no_link_for_them():
    chart = pie({"a": 99, "b": 1}, threshold=5, others_link="rest.html")
    assert chart.render().regions.links is None
    assert chart.replace(others="rest", others_link="").render().regions.links is None


def test_the_polygon_of_a_slice_begins_at_the_centre():
    piece = pie(WEEK).render().regions.slices[0]
    polygon = piece.polygon()
    assert polygon[0] == pytest.approx((piece.x + piece.width / 2, piece.y + piece.height / 2))
    assert len(polygon) > 3


def test_the_description_is_for_those_who_cannot_see_the_picture():
    description = hbars(WEEK, title="Week").render().description
    assert "Horizontal bar chart, 4 of 4 items drawn" in description
    assert "“Tuesday”" in description


def test_a_picture_without_room_tells_its_problem():
    assert pie(WEEK).render().problem == ""
    assert pie(WEEK, width=3, height=3).render().problem == "The picture has no room for the chart."


def test_a_picture_that_cannot_be_made_is_an_error():
    with pytest.raises(PictureError):
        pie(WEEK, width=1_000_000, height=1_000_000).render()


def test_a_picture_without_memory_is_an_error():
    with pytest.raises(PictureError):
        pie(WEEK, width=1000, height=1000, print=1_000_000).render()


def test_a_notebook_gets_the_picture_with_alternative_text():
    picture = pie(WEEK, width=400, height=300, scale=2).render()
    data, metadata = picture._repr_mimebundle_()
    assert data == {"image/png": picture.png, "text/plain": picture.description}
    alternative = {"alt": picture.description, "width": 400, "height": 300}
    assert metadata == {"image/png": alternative}
    assert pie(WEEK, width=400, height=300, scale=2)._repr_mimebundle_() == (data, metadata)


def test_an_svg_picture_tells_what_the_png_tells():
    chart = pie(WEEK, title="Week")
    svg, png = chart.render_svg(), chart.render()
    assert ElementTree.fromstring(svg.svg).tag.endswith("svg")
    assert "Tuesday" in svg.svg
    assert svg.regions == png.regions
    assert (svg.description, svg.problem) == (png.description, "")


def test_an_svg_picture_is_saved_compared_and_pickled(tmp_path):
    picture = bars(WEEK).render_svg()
    picture.save(tmp_path / "bars.svg")
    assert (tmp_path / "bars.svg").read_text(encoding="utf-8") == picture.svg
    assert pickle.loads(pickle.dumps(picture)) == picture
    assert picture != bars(WEEK, title="x").render_svg()
    assert picture != bars(WEEK).render()


def test_a_notebook_gets_an_svg_picture_with_alternative_text():
    picture = pie(WEEK, width=400, height=300).render_svg()
    alternative = {"alt": picture.description, "width": 400, "height": 300}
    assert picture._repr_mimebundle_() == (
        {"image/svg+xml": picture.svg, "text/plain": picture.description},
        {"image/svg+xml": alternative},
    )


def test_a_notebook_gets_a_chart_as_svg_if_it_asks_for_that_alone():
    chart = pie(WEEK, width=400, height=300)
    assert chart._repr_mimebundle_({"image/svg+xml"}) == chart.render_svg()._repr_mimebundle_()
    assert chart._repr_mimebundle_(["image/png"]) == chart.render()._repr_mimebundle_()


def test_an_svg_picture_that_cannot_be_made_is_an_error():
    with pytest.raises(PictureError):
        pie(WEEK, width=1_000_000, height=1_000_000).render_svg()


def test_a_pdf_file_tells_what_the_picture_for_print_tells(tmp_path):
    chart = bars(WEEK, title="Week", print=4, width=400, height=300)
    pdf, png = chart.render_pdf(), chart.render()
    assert pdf.regions == png.regions
    assert (pdf.description, pdf.problem) == (png.description, "")
    pdf.save(tmp_path / "week.pdf")
    assert (tmp_path / "week.pdf").read_bytes() == pdf.pdf
    assert pdf.pdf.startswith(b"%PDF-")
    assert pickle.loads(pickle.dumps(pdf)) == pdf != png


def test_a_page_larger_than_readers_take_is_an_error():
    with pytest.raises(PictureError):
        pie(WEEK, width=14_401, height=100).render_pdf()


def test_two_renderings_are_equal_and_survive_pickling():
    picture = pie(WEEK).render()
    assert picture == pie(WEEK).render()
    assert hash(picture) == hash(pie(WEEK).render())
    assert pickle.loads(pickle.dumps(picture)) == picture
    assert picture != pie(WEEK, title="x").render()
    assert picture != picture.png


def test_a_picture_outlives_its_chart():
    picture = pie({"a": 1}).render()
    for _ in range(100):
        pie(WEEK).render()
    assert "“a”" in picture.description


def test_many_threads_can_read_one_picture():
    expected = bars(WEEK).render()
    with ThreadPoolExecutor(8) as threads:
        for _ in range(50):
            picture = bars(WEEK).render()
            read = threads.map(
                lambda field: getattr(picture, field), ["regions", "description"] * 4
            )
            assert list(read) == [expected.regions, expected.description] * 4


def test_saving_to_a_folder_that_does_not_exist_is_an_error(tmp_path):
    with pytest.raises(FileNotFoundError):
        pie(WEEK).render().save(tmp_path / "none" / "a.png")


def test_the_text_of_a_picture_describes_it():
    picture = pie({"a": 1}).render()
    assert isinstance(picture, Picture)
    assert picture.description in repr(picture)
