# SPDX-License-Identifier: MIT
"""Looks at pages in a browser: browse_pages.py TOVANGL-CHART TOVANGL-DU BROWSER_CHARTS [TEST...]"""
import contextlib
import sys
import unittest

from selenium.common.exceptions import WebDriverException

from page_test import PageTest
from reader import Reader
from served_pages import ServedPages

MODULES = ("report_tests", "chart_page_tests", "hostile_text_tests", "svg_pixel_tests")
SKIPPED = 77  # the exit status that says so


def open_reader(folder):
    """A container may forbid what a browser needs: that is no fault of the pages."""
    try:
        return Reader(folder)
    except WebDriverException as failure:
        print("skipped: the browser does not start here:", failure.msg.splitlines()[0])
        sys.exit(SKIPPED)


def main():
    """Writes and serves all pages, and starts one browser for all tests."""
    programs, tests = sys.argv[1:4], sys.argv[4:]
    with contextlib.closing(ServedPages(programs)) as pages, \
            contextlib.closing(open_reader(pages.folder)) as reader:
        PageTest.pages = pages
        PageTest.reader = reader
        suite = unittest.defaultTestLoader.loadTestsFromNames(tests or MODULES)
        result = unittest.TextTestRunner(verbosity=2).run(suite)
    sys.exit(not result.wasSuccessful())


if __name__ == "__main__":
    main()
