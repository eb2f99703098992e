# SPDX-License-Identifier: MIT
"""What the tests of all pages share."""
import unittest
import urllib.parse

from served_pages import QuietHandler

CHILDREN, LARGEST_FILES, MONTHS = range(3)  # the pictures of a report's page


class PageTest(unittest.TestCase):
    """Looks at pages that are served already, with a browser that runs already."""

    pages = reader = None

    def setUp(self):
        QuietHandler.missed.clear()

    def open(self, address):
        self.address = address
        self.reader.open(address)

    def open_report(self, folder):
        self.open(f"{self.pages.address}{folder}/index.html")

    def open_chart(self, name):
        self.open(f"file://{self.pages.folder}/{name}.html")

    def regions(self, picture, *shapes):
        return [region for region in self.reader.regions()
                if region.picture == picture and region.shape in shapes]

    def point_at(self, region):
        self.assertEqual(self.reader.hover(region), [region.title])

    def follow(self, region):
        """Clicks a region, and expects to arrive where it leads."""
        self.point_at(region)
        self.reader.click()
        self.expect_to_be_at(region.link)

    def expect_to_be_at(self, link):
        address = urllib.parse.urljoin(self.address, link)
        self.assertEqual(self.reader.driver.current_url, address)

    def expect_page_of(self, name):
        self.assertEqual(self.reader.texts("h1 bdi")[-1], name)
        self.expect_harmless()

    def expect_harmless(self):
        """Texts are texts: no script ran, and none of them made an element or a request."""
        self.assertFalse(self.reader.has_alert())
        self.assertEqual(self.reader.all("script, [onerror]"), [])
        self.assertEqual(QuietHandler.missed, [])

    def swatch(self, region):
        """The colour of the table row that stands for a region of a report."""
        color = self.reader.run("""
            const link = arguments[0];
            const row = link.startsWith('#') ? document.querySelector(link)
                : document.querySelector(`td a[href="${link}"]`).closest('tr');
            return getComputedStyle(row.querySelector('.swatch')).backgroundColor;
        """, region.link)
        return [int(channel) for channel in color[len("rgb("):-1].split(",")]
