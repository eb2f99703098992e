# SPDX-License-Identifier: MIT
"""Looks at the programs' pages in a browser: browse_pages.py TOVANGL-CHART TOVANGL-DU"""
import functools
import http.server
import os
import subprocess
import sys
import tempfile
import threading
import time
import unittest
import urllib.parse

from selenium.common.exceptions import WebDriverException

from reader import Reader

CHART, DISK_USAGE = sys.argv.pop(1), sys.argv.pop(1)

SKIPPED = 77  # the exit status that says so

HOSTILE_FOLDER = '"><script>'
HOSTILE_FILE = '"><img src=x onerror=alert(1)>'
HOSTILE_CAPTION = '"><script>alert(1)</script><img src=x onerror=alert(1)>'

# Bytes of the files, below the folder that the report is of.
FILES = {
    "music/song": 500_000,
    "music/old/tape": 150_000,
    f"{HOSTILE_FOLDER}/{HOSTILE_FILE}": 400_000,
    "letters & bills/letter": 200_000,
    "notes": 100_000,
}
DENSE = 2  # pixels of a display, each way, for each pixel of a page
NOW = int(time.time())  # when the files changed last, but every second one a year earlier
YEAR = 365 * 24 * 60 * 60

ITEMS = {"first": (60, [200, 30, 30]), HOSTILE_CAPTION: (40, [30, 30, 200]),
         "third": (25, [30, 150, 30])}


class QuietHandler(http.server.SimpleHTTPRequestHandler):
    """Serves a folder, and keeps what was asked for in vain."""
    missed = []

    def log_message(self, *_):
        pass

    def send_error(self, code, *arguments, **keywords):
        if self.path != "/favicon.ico":  # which a browser asks for by itself
            self.missed.append(self.path)
        super().send_error(code, *arguments, **keywords)


def make_tree(folder):
    for index, (name, size) in enumerate(FILES.items()):
        path = os.path.join(folder, name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "wb") as file:
            file.truncate(size)
        change = NOW - index % 2 * YEAR
        os.utime(path, (change, change))


def make_report(folder):
    make_tree(os.path.join(folder, "tree"))
    subprocess.run([DISK_USAGE, "tree", "-o", "report"], cwd=folder, check=True,
                   stdout=subprocess.DEVNULL)


def make_chart(folder, kind):
    lines = "".join("{} {}\t#{:02x}{:02x}{:02x}\n".format(value, caption, *color)
                    for caption, (value, color) in ITEMS.items())
    subprocess.run([CHART, kind, "--map", f"{kind}.html"], cwd=folder, input=lines.encode(),
                   check=True)


def open_reader(folder, density=1):
    """A container may forbid what a browser needs: that is no fault of the pages."""
    try:
        return Reader(folder, density)
    except WebDriverException as failure:
        print("skipped: the browser does not start here:", failure.msg.splitlines()[0])
        sys.exit(SKIPPED)


def setUpModule():
    """Writes all pages, serves them, and starts the browser."""
    temporary = tempfile.TemporaryDirectory(prefix="tovangl-test-")
    unittest.addModuleCleanup(temporary.cleanup)
    folder = temporary.name
    make_report(folder)
    for kind in ("pie", "bars", "hbars"):
        make_chart(folder, kind)
    with open(os.path.join(folder, "seeded.html"), "w", encoding="utf-8") as page:
        page.write("<!DOCTYPE html><img src=x onerror=alert(1)>")
    handler = functools.partial(QuietHandler, directory=folder)
    server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), handler)
    threading.Thread(target=server.serve_forever, daemon=True).start()
    unittest.addModuleCleanup(server.server_close)
    unittest.addModuleCleanup(server.shutdown)
    PageTest.site = f"http://127.0.0.1:{server.server_port}/"
    PageTest.folder = folder
    PageTest.reader = open_reader(folder)
    unittest.addModuleCleanup(PageTest.reader.close)


class PageTest(unittest.TestCase):
    """What the tests of all pages share."""
    site = folder = reader = None

    def regions(self, map_name, shape):
        return [region for region in self.reader.regions()
                if region.map_name == map_name and region.shape == shape]

    def point_at(self, region):
        self.assertEqual(self.reader.hover(region), [region.title])

    def follow(self, region):
        """Clicks a region, and expects to arrive where it leads."""
        self.point_at(region)
        self.reader.click()
        address = urllib.parse.urljoin(self.address, region.link)
        self.assertEqual(self.reader.driver.current_url, address)

    def open(self, address):
        self.address = address
        self.reader.open(address)

    def expect_harmless(self):
        """Texts are texts: no script ran, and none of them made an element."""
        self.assertFalse(self.reader.has_alert())
        self.assertEqual(self.reader.all("script, [onerror]"), [])

    def expect_text(self, region):
        colors = {tuple(color) for color in self.reader.pixels(region)}
        self.assertGreater(len(colors), 1, f"nothing is written at the caption of {region.title}")


class ReportTest(PageTest):
    """The report of tovangl-du, behind a web server."""

    def setUp(self):
        self.open(self.site + "report/index.html")

    def tearDown(self):
        self.expect_harmless()
        self.assertEqual(QuietHandler.missed, [])

    def swatch(self, region):
        """The colour of the table row that stands for a region."""
        color = self.reader.run("""
            const link = arguments[0];
            const row = link.startsWith('#') ? document.querySelector(link)
                : document.querySelector(`td a[href="${link}"]`).closest('tr');
            return getComputedStyle(row.querySelector('.swatch')).backgroundColor;
        """, region.link)
        return [int(channel) for channel in color[len("rgb("):-1].split(",")]

    def expect_page_of(self, name):
        self.assertEqual(self.reader.texts("h1 bdi")[-1], name)
        self.expect_harmless()

    def test_every_folder_has_a_slice_in_its_color(self):
        slices = self.regions("children", "poly")
        self.assertEqual([region.title.rsplit(":")[0] for region in slices],
                         ["music/", HOSTILE_FOLDER + "/", "letters & bills/", "notes"])
        for region in slices:
            self.assertEqual(self.reader.pixel(region), self.swatch(region), region.title)

    def test_slices_lead_to_the_pages_of_their_folders(self):
        for index, name in enumerate(("music", HOSTILE_FOLDER, "letters & bills")):
            self.open(self.site + "report/index.html")
            self.follow(self.regions("children", "poly")[index])
            self.expect_page_of(name)

    def test_captions_lead_to_the_pages_of_their_folders(self):
        for index, name in enumerate(("music", HOSTILE_FOLDER)):
            self.open(self.site + "report/index.html")
            caption = self.regions("children", "rect")[index]
            self.expect_text(caption)
            self.follow(caption)
            self.expect_page_of(name)

    def test_the_way_leads_down_and_up_again(self):
        self.follow(self.regions("children", "poly")[0])
        self.address = self.reader.driver.current_url
        self.follow(next(region for region in self.regions("children", "poly")
                         if region.title.startswith("old/")))
        self.expect_page_of("old")
        self.reader.click(self.reader.all("h1 a")[0])
        self.expect_page_of("tree")

    def test_bars_of_files_have_the_colors_of_their_folders(self):
        areas = self.regions("files", "rect")
        self.assertEqual(len(areas), 2 * len(FILES))
        for caption, bar in zip(areas, areas[len(FILES):]):
            self.assertEqual(caption.link, bar.link)
            self.expect_text(caption)
            self.assertEqual(self.reader.pixel(bar), self.swatch(bar), bar.title)

    def test_bars_lead_to_their_rows(self):
        for map_name in ("files", "months"):
            for region in self.regions(map_name, "rect"):
                self.follow(region)
                self.address = self.reader.driver.current_url
                row = self.reader.texts("tr:target td:first-child")
                self.assertEqual(row, [region.title[:region.title.rindex(": ")]])
                self.open(self.site + "report/index.html")

    def test_bars_of_months_have_the_color_of_months(self):
        bars = self.regions("months", "rect")[-2:]
        self.assertEqual([bar.title.split(":")[0] for bar in bars],
                         [time.strftime("%Y-%m", time.gmtime(t)) for t in (NOW - YEAR, NOW)])
        for bar in bars:
            self.assertEqual(self.reader.pixel(bar), self.swatch(bar), bar.title)

    def test_no_address_leads_away(self):
        for element in self.reader.all("[src], [href]"):
            target = element.get_attribute("src") or element.get_attribute("href")
            self.assertTrue(target.startswith(self.site), target)


class ChartPageTest(PageTest):
    """The page of tovangl-chart, as a file on its own."""

    def look_at(self, kind, shape):
        self.open(f"file://{self.folder}/{kind}.html")
        captions = self.regions("chart", "rect")[:len(ITEMS)]
        shapes = self.regions("chart", shape)[-len(ITEMS):]
        self.assertEqual(len(self.reader.regions()), 2 * len(ITEMS))
        for index, (caption, (value, color)) in enumerate(ITEMS.items()):
            self.expect_text(captions[index])
            self.assertEqual(self.reader.pixel(shapes[index]), color)
            for region in (captions[index], shapes[index]):
                self.assertEqual(region.title, f"{caption}: {value}")
                self.follow(region)
                self.assertEqual(self.reader.texts("tr:target td"), [caption, str(value)])
                self.open(f"file://{self.folder}/{kind}.html")
        self.expect_harmless()

    def test_pie(self):
        self.look_at("pie", "poly")

    def test_bars(self):
        self.look_at("bars", "rect")

    def test_hbars(self):
        self.look_at("hbars", "rect")

    def test_the_description_stands_for_the_picture(self):
        self.open(f"file://{self.folder}/bars.html")
        text = self.reader.all("img")[0].get_attribute("alt")
        self.assertIn("3 of 3 items drawn", text)
        self.assertIn("first", text)


class DenseDisplayTest(PageTest):
    """The pages on a display with two pixels, each way, for each of theirs."""

    @classmethod
    def setUpClass(cls):
        cls.reader = open_reader(cls.folder, DENSE)
        cls.addClassCleanup(cls.reader.close)

    def expect_crisp_pictures(self):
        for picture in self.reader.all("img"):
            source = self.reader.dense_source(picture)
            self.assertEqual(picture.get_property("currentSrc"), source)
            self.assertTrue(self.reader.is_shown_as(picture, source))
            self.assertFalse(self.reader.is_shown_as(picture, picture.get_attribute("src")))

    def test_charts_are_crisp(self):
        for kind in ("pie", "bars", "hbars"):
            self.open(f"file://{self.folder}/{kind}.html")
            self.expect_crisp_pictures()

    def test_reports_are_crisp(self):
        self.open(self.site + "report/index.html")
        self.expect_crisp_pictures()

    def test_regions_are_where_their_items_are_shown(self):
        for kind in ("pie", "bars", "hbars"):
            self.open(f"file://{self.folder}/{kind}.html")
            for region in self.reader.regions():
                self.point_at(region)
            shapes = self.reader.regions()[-len(ITEMS):]
            self.assertEqual([self.reader.pixel(region) for region in shapes],
                             [color for _, color in ITEMS.values()])


class SelfTest(PageTest):
    """The tests would notice."""

    def test_a_script_that_runs_is_told(self):
        self.reader.driver.get(self.site + "seeded.html")
        self.reader.wait(lambda _: self.reader.has_alert(), "the alert of a seeded script")
        self.reader.driver.switch_to.alert.accept()
        QuietHandler.missed.clear()

    def test_a_pixel_beside_a_region_has_another_color(self):
        self.open(f"file://{self.folder}/bars.html")
        region = self.regions("chart", "rect")[-1]
        color = self.reader.pixel(region)
        region.corners = [(x, y - 400) for x, y in region.corners]
        self.assertNotEqual(self.reader.pixel(region), color)


if __name__ == "__main__":
    unittest.main(verbosity=2)
