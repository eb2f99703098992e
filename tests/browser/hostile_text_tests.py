# SPDX-License-Identifier: MIT
"""SVG pictures whose titles, captions, fonts and links would like to be more than that."""
from page_test import PageTest
from served_pages import TRAP, QuietHandler

# All that a picture is made of.
ELEMENTS = {"svg", "title", "desc", "defs", "linearGradient", "stop", "style", "g", "a",
            "rect", "path", "text"}

HOSTILE_LINKS = 3  # of each picture, which its chart has taken
PLACES = ((60, 60), (150, 200), (250, 250))  # in the first picture


class HostileTextTest(PageTest):
    """A page of charts of every kind, with every hostile text in every place."""

    def setUp(self):
        super().setUp()
        self.open(self.pages.address + "hostile.html")
        self.addCleanup(self.expect_harmless)

    def of_all(self, selector, expression):
        """What an expression gives for each of the elements, "e"."""
        return self.reader.run(
            f"return Array.from(document.querySelectorAll(arguments[0]), e => {expression})",
            selector)

    def test_no_text_becomes_an_element_or_an_attribute(self):
        self.assertLessEqual(set(self.of_all(".picture *", "e.localName")), ELEMENTS)
        names = self.of_all(".picture *", "e.getAttributeNames().join()")
        self.assertEqual([name for name in ",".join(names).split(",")
                          if name.startswith(("on", "src", "style"))], [])

    def test_no_text_is_a_request(self):
        requests = self.reader.run("return performance.getEntriesByType('resource')")
        self.assertEqual([request["name"] for request in requests], [])

    def test_texts_are_told_as_they_are(self):
        for selector in (".picture > svg > title", ".item > title"):
            titles = "\n".join(self.of_all(selector, "e.textContent"))
            self.assertIn("</title></svg><script>alert(1)</script>", titles)
            self.assertIn("&lt;script&gt;alert(1)&lt;/script&gt;", titles)
            self.assertIn(self.pages.address + TRAP, titles)

    def test_links_are_as_they_were_given_and_none_is_a_script(self):
        self.assertIn('#"onmouseover="alert(1)', self.of_all("a", "e.getAttribute('href')"))
        schemes = self.of_all("a", "new URL(e.href.baseVal, e.baseURI).protocol")
        self.assertEqual(set(schemes), {"http:"})

    def test_pointer_and_keyboard_run_nothing(self):
        self.reader.run("scrollTo(0, 0)")
        for place in PLACES:
            self.reader.rest_at(*place)
        for _ in range(HOSTILE_LINKS):
            self.reader.focus_next()
            self.reader.enter()
            self.expect_harmless()


class SelfTest(PageTest):
    """The tests would notice."""

    def test_a_script_that_runs_and_a_request_are_told(self):
        self.reader.driver.get(self.pages.address + "seeded.html")
        self.reader.wait(lambda _: self.reader.has_alert(), "the alert of a seeded script")
        self.reader.driver.switch_to.alert.accept()
        self.assertEqual(QuietHandler.missed, ["/" + TRAP])
