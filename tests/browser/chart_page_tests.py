# SPDX-License-Identifier: MIT
"""The pages of tovangl-chart, as files on their own."""
import os
import subprocess

from page_test import PageTest
from served_pages import ITEMS, KINDS

LIGHT, DARK = [255, 255, 255], [27, 31, 39]  # the grounds of the default look and of the theme dark
BEYOND_EDGE = 100  # pixels from the middle of a bar to a place outside of it
COLORS = [color for _, color in ITEMS.values()]


def output_of(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


class ChartPageChecks:
    """What holds for both kinds of pages: pixels with an image map, and shapes with links."""

    ending = None  # of the names of the pages

    def open_kind(self, kind):
        self.open_chart(kind + self.ending)

    def titles(self):
        return {f"{caption}: {value}": caption for caption, (value, _) in ITEMS.items()}

    def test_the_pointer_is_told_every_item(self):
        for kind in KINDS:
            self.open_kind(kind)
            regions = self.reader.regions()
            self.assertEqual({region.title for region in regions}, set(self.titles()))
            for region in regions:
                self.point_at(region)
            self.expect_harmless()

    def test_bars_slices_and_captions_have_their_colors_and_lead_to_their_rows(self):
        for kind in KINDS:
            self.open_kind(kind)
            shapes, captions = self.shapes(), self.captions()
            self.assertEqual([self.reader.shown_pixel(shape) for shape in shapes], COLORS)
            for region in shapes + captions:
                self.follow(region)
                caption = self.titles()[region.title]
                self.assertEqual(self.reader.texts("tr:target td"),
                                 [caption, str(ITEMS[caption][0])])
            self.expect_harmless()

    def test_the_keyboard_reaches_every_link_and_follows_it(self):
        for kind in KINDS:
            self.open_kind(kind)
            links = self.links()
            self.assertEqual([self.reader.focus_next() for _ in links], links)
            self.reader.enter()
            self.expect_to_be_at(links[-1])

    def test_regions_are_where_their_items_are_shown_where_the_page_is_zoomed(self):
        for kind in KINDS:
            self.open_kind(kind)
            shapes = self.shapes()
            with self.reader.zoomed():
                for shape, color in zip(shapes, COLORS):
                    self.point_at(shape)
                    self.assertEqual(self.reader.shown_pixel(shape), color)

    def colors_across_an_edge(self):
        """The colours of a bar and above it, of a page of lying bars that is zoomed."""
        self.open_kind("hbars")
        bar = self.shapes()[0]
        x, y = bar.place
        with self.reader.zoomed():
            return set(map(tuple, self.reader.shown_pixels(
                self.reader.picture(bar), x, y - BEYOND_EDGE, 1, BEYOND_EDGE)))

    def printed_text(self):
        return output_of("pdftotext", self.print_page(), "-")

    def printed_images(self):
        """A line for each image of the open page, printed."""
        heading = 2  # lines
        return output_of("pdfimages", "-list", self.print_page()).splitlines()[heading:]

    def print_page(self):
        path = os.path.join(self.pages.folder, "printed.pdf")
        with open(path, "wb") as file:
            file.write(self.reader.printed())
        return path


class MapPageTest(ChartPageChecks, PageTest):
    """The pages with pictures of pixels."""

    ending = ""

    def captions(self):
        return self.reader.regions()[:len(ITEMS)]

    def shapes(self):
        return self.reader.regions()[len(ITEMS):]

    def links(self):
        return [region.link for region in self.reader.regions()]

    def test_the_description_stands_for_the_picture(self):
        self.open_kind("bars")
        text = self.reader.all("img")[0].get_attribute("alt")
        self.assertIn("3 of 3 items drawn", text)
        self.assertIn("first", text)

    def test_dense_displays_show_the_dense_picture(self):
        with self.reader.dense_display():
            for kind in KINDS:
                self.open_kind(kind)
                self.expect_crisp_pictures()
            self.open_report("report")
            self.expect_crisp_pictures()

    def expect_crisp_pictures(self):
        for picture in self.reader.all("img"):
            source = self.reader.dense_source(picture)
            self.assertEqual(picture.get_property("currentSrc"), source)
            self.assertTrue(self.reader.is_shown_as(picture, source))
            self.assertFalse(self.reader.is_shown_as(picture, picture.get_attribute("src")))

    def test_a_pixel_beside_a_region_has_another_color(self):
        self.open_kind("bars")
        region = self.shapes()[-1]
        color = self.reader.pixel(region)
        region.corners = [(x, y - 400) for x, y in region.corners]
        self.assertNotEqual(self.reader.pixel(region), color)

    def test_edges_blur_where_the_page_is_zoomed(self):
        self.assertGreater(len(self.colors_across_an_edge()), len(("ground", "outline", "bar")))

    def test_prints_an_image_and_the_table(self):
        self.open_kind("hbars")
        self.assertEqual(len(self.printed_images()), 1)
        self.assertEqual(self.printed_text().count("first"), 1)


class SvgPageTest(ChartPageChecks, PageTest):
    """The pages with pictures of shapes and texts."""

    ending = "-svg"

    def captions(self):
        texts = {region.title: region for region in self.regions(0, "text")}
        return list(texts.values())

    def shapes(self):
        return self.regions(0, "rect", "path")

    def links(self):
        return [shape.link for shape in self.shapes()]

    def test_name_and_description_are_told_to_those_who_do_not_see_the_picture(self):
        self.open_kind("bars")
        name, description = self.reader.accessible_texts(".picture > svg")
        self.assertEqual(name, "Vertical bar chart")
        self.assertIn("3 of 3 items drawn", description)

    def test_edges_stay_sharp_where_the_page_is_zoomed(self):
        outline = tuple(channel * 2 // 3 for channel in COLORS[0])
        self.assertEqual(self.colors_across_an_edge(),
                         {(255, 255, 255), outline, tuple(COLORS[0])})

    def test_prints_shapes_and_texts(self):
        self.open_kind("hbars")
        self.assertEqual(self.printed_images(), [])
        self.assertEqual(self.printed_text().count("first"), 2)

    def test_picture_and_page_follow_the_scheme_of_the_display_where_asked_for(self):
        for name, ground in (("following", DARK), ("bars-svg", LIGHT)):
            self.open_chart(name)
            self.assertEqual(self.grounds(), [LIGHT, LIGHT])
            with self.reader.color_scheme("dark"):
                self.assertEqual(self.grounds(), [ground, ground])

    def test_items_keep_their_colors_on_dark_displays(self):
        self.open_chart("following")
        with self.reader.color_scheme("dark"):
            self.assertEqual([self.reader.shown_pixel(bar) for bar in self.shapes()], COLORS)

    def grounds(self):
        """The colours in the corners of the picture and of the page."""
        corners = (self.reader.all(selector)[0] for selector in ("svg", "body"))
        return [self.reader.shown_pixels(corner, 1, 1, 1, 1)[0] for corner in corners]
