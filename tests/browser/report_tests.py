# SPDX-License-Identifier: MIT
"""The report of tovangl-du, behind a web server."""
import time

from page_test import CHILDREN, LARGEST_FILES, MONTHS, PageTest
from served_pages import FILES, HOSTILE_FOLDER, NOW, YEAR


class MapReportTest(PageTest):
    """The pages with pictures of pixels, and image maps."""

    def setUp(self):
        super().setUp()
        self.open_report("report")
        self.addCleanup(self.expect_harmless)

    def test_every_folder_has_a_slice_in_its_color(self):
        slices = self.regions(CHILDREN, "poly")
        self.assertEqual([region.title.rsplit(":")[0] for region in slices],
                         ["music/", HOSTILE_FOLDER + "/", "letters & bills/", "notes"])
        for region in slices:
            self.assertEqual(self.reader.pixel(region), self.swatch(region), region.title)

    def test_slices_lead_to_the_pages_of_their_folders(self):
        for index, name in enumerate(("music", HOSTILE_FOLDER, "letters & bills")):
            self.open_report("report")
            self.follow(self.regions(CHILDREN, "poly")[index])
            self.expect_page_of(name)

    def test_captions_lead_to_the_pages_of_their_folders(self):
        for index, name in enumerate(("music", HOSTILE_FOLDER)):
            self.open_report("report")
            caption = self.regions(CHILDREN, "rect")[index]
            self.expect_text(caption)
            self.follow(caption)
            self.expect_page_of(name)

    def test_the_way_leads_down_and_up_again(self):
        self.follow(self.regions(CHILDREN, "poly")[0])
        self.address = self.reader.driver.current_url
        self.follow(next(region for region in self.regions(CHILDREN, "poly")
                         if region.title.startswith("old/")))
        self.expect_page_of("old")
        self.reader.click(self.reader.all("h1 a")[0])
        self.expect_page_of("tree")

    def test_bars_of_files_have_the_colors_of_their_folders(self):
        areas = self.regions(LARGEST_FILES, "rect")
        self.assertEqual(len(areas), 2 * len(FILES))
        for caption, bar in zip(areas, areas[len(FILES):]):
            self.assertEqual(caption.link, bar.link)
            self.expect_text(caption)
            self.assertEqual(self.reader.pixel(bar), self.swatch(bar), bar.title)

    def test_bars_lead_to_their_rows(self):
        for picture in (LARGEST_FILES, MONTHS):
            for region in self.regions(picture, "rect"):
                self.follow(region)
                row = self.reader.texts("tr:target td:first-child")
                self.assertEqual(row, [region.title[:region.title.rindex(": ")]])

    def test_bars_of_months_have_the_color_of_months(self):
        bars = self.regions(MONTHS, "rect")[-2:]
        self.assertEqual([bar.title.split(":")[0] for bar in bars],
                         [time.strftime("%Y-%m", time.gmtime(t)) for t in (NOW - YEAR, NOW)])
        for bar in bars:
            self.assertEqual(self.reader.pixel(bar), self.swatch(bar), bar.title)

    def test_no_address_leads_away(self):
        for element in self.reader.all("[src], [href]"):
            target = element.get_attribute("src") or element.get_attribute("href")
            self.assertTrue(target.startswith(self.pages.address), target)

    def expect_text(self, area):
        self.assertGreater(len(set(map(tuple, self.reader.pixels(area)))), 1,
                           f"nothing is written at the caption of {area.title}")


class SvgReportTest(PageTest):
    """The pages with pictures of shapes."""

    def setUp(self):
        super().setUp()
        self.open_report("report-svg")
        self.addCleanup(self.expect_harmless)

    def test_every_folder_has_a_slice_in_its_color(self):
        slices = self.regions(CHILDREN, "path")
        self.assertEqual([region.title for region in slices],
                         ["music/: 634 KB, 48.1 %", HOSTILE_FOLDER + "/: 390 KB, 29.6 %",
                          "letters & bills/: 195 KB, 14.8 %", "notes: 97.7 KB, 7.4 %"])
        for region in slices:
            self.assertEqual(self.reader.shown_pixel(region), self.swatch(region), region.title)

    def test_slices_and_captions_lead_to_the_pages_of_their_folders(self):
        regions = {shape: self.regions(CHILDREN, shape)[0] for shape in ("path", "text")}
        for region in regions.values():
            self.open_report("report-svg")
            self.follow(region)
            self.expect_page_of("music")

    def test_bars_have_the_colors_of_their_rows_and_lead_there(self):
        bars = self.regions(LARGEST_FILES, "rect") + self.regions(MONTHS, "rect")
        self.assertEqual(len(bars), len(FILES) + 2)
        for bar in bars:
            self.assertEqual(self.reader.shown_pixel(bar), self.swatch(bar), bar.title)
            self.follow(bar)
            self.assertEqual(len(self.reader.all("tr:target")), 1, bar.title)

    def test_the_keyboard_reaches_every_link_of_the_first_picture(self):
        links = [region.link for region in self.regions(CHILDREN, "path")]
        self.assertEqual([self.reader.focus_next() for _ in links], links)

    def test_no_address_leads_away(self):
        links = self.reader.run("""
            return Array.from(document.links, link => link.href).concat(
                Array.from(document.querySelectorAll('svg a'),
                           link => new URL(link.href.baseVal, link.baseURI).href));
        """)
        self.assertGreater(len(links), len(FILES))
        for link in links:
            self.assertTrue(link.startswith(self.pages.address), link)
