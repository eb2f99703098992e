# SPDX-License-Identifier: MIT
"""A reader of pages: a browser that looks, points and clicks."""
import os
import urllib.parse

from selenium import webdriver
from selenium.webdriver.chrome.service import Service
from selenium.webdriver.common.action_chains import ActionChains
from selenium.webdriver.support import expected_conditions
from selenium.webdriver.support.ui import WebDriverWait

PATIENCE = 30  # seconds; only a machine that is busy with other things comes near it
GLANCE = 0.02  # seconds between two looks at what is waited for

ARGUMENTS = (
    "--headless=new",
    "--window-size=1000,1000",
    "--disable-gpu",
    "--disable-dev-shm-usage",
    "--disable-background-networking",
    "--no-first-run",
    "--no-proxy-server",
)

# The colours in a rectangle of a picture, as [red, green, blue].
READ_PIXELS = """
    const [picture, left, top, width, height] = arguments;
    const canvas = document.createElement('canvas');
    canvas.width = picture.naturalWidth;
    canvas.height = picture.naturalHeight;
    const context = canvas.getContext('2d');
    context.drawImage(picture, 0, 0);
    const bytes = context.getImageData(left, top, width, height).data;
    const pixels = [];
    for (let i = 0; i < bytes.length; i += 4)
        pixels.push(Array.from(bytes.slice(i, i + 3)));
    return pixels;
"""

# Whether two sources of pictures have the same size and pixels.
COMPARE_PICTURES = """
    const read = async source => {
        const picture = new Image();
        picture.src = source;
        await picture.decode();
        const canvas = document.createElement('canvas');
        canvas.width = picture.naturalWidth;
        canvas.height = picture.naturalHeight;
        const context = canvas.getContext('2d');
        context.drawImage(picture, 0, 0);
        return context.getImageData(0, 0, canvas.width, canvas.height);
    };
    return Promise.all(Array.from(arguments).slice(0, 2).map(read))
        .then(([a, b]) => a.width === b.width && a.height === b.height &&
                          a.data.every((channel, index) => channel === b.data[index]));
"""


class Region:
    """An area of an image map: what it says, where it leads, and a place well inside it."""

    def __init__(self, map_name, shape, coordinates, link, title, text):
        self.map_name = map_name
        self.shape = shape
        self.link = link
        self.title = title
        self.text = text
        numbers = [float(number) for number in coordinates.split(",")]
        self.corners = list(zip(numbers[::2], numbers[1::2]))

    def inside(self):
        """The middle of a rectangle; of a slice, the middle between its tip and its arc."""
        first, last = self.corners[0], self.corners[len(self.corners) // 2]
        return int((first[0] + last[0]) / 2), int((first[1] + last[1]) / 2)


class Reader:
    """Opens pages in a headless Chromium whose files all lie in one folder.

    The density is that of the display: its pixels, each way, for each pixel of a page.
    """

    def __init__(self, folder, density=1):
        options = webdriver.ChromeOptions()
        for argument in ARGUMENTS + (f"--force-device-scale-factor={density}",
                                     f"--user-data-dir={folder}/browser{density}"):
            options.add_argument(argument)
        if os.getuid() == 0:  # the sandbox does not work for root
            options.add_argument("--no-sandbox")
        for variable in ("http_proxy", "HTTP_PROXY"):  # not on the way to the driver
            os.environ.pop(variable, None)
        service = Service("chromedriver", env={**os.environ, "HOME": folder})
        self.driver = webdriver.Chrome(service=service, options=options)

    def close(self):
        self.driver.quit()

    def wait(self, condition, message):
        return WebDriverWait(self.driver, PATIENCE, GLANCE).until(condition, message)

    def open(self, address):
        self.driver.get(address)
        self.wait(lambda driver: driver.execute_script(
            "return Array.from(document.images).every(i => i.complete && i.naturalWidth > 0)"),
            f"the pictures of {address}")

    def run(self, script, *arguments):
        return self.driver.execute_script(script, *arguments)

    def all(self, selector):
        return self.driver.find_elements("css selector", selector)

    def texts(self, selector):
        return [element.text for element in self.all(selector)]

    def regions(self):
        """The areas of all maps, in their order."""
        return [Region(*fields) for fields in self.run("""
            return Array.from(document.querySelectorAll('area')).map(area =>
                [area.parentElement.name, ...['shape', 'coords', 'href', 'title', 'alt'].map(
                    name => area.getAttribute(name))]);
        """)]

    def picture(self, region):
        return self.all(f'img[usemap="#{region.map_name}"]')[0]

    def pixels(self, region):
        """The colours in a rectangular region."""
        (left, top), (right, bottom) = region.corners
        return self.run(READ_PIXELS, self.picture(region), left, top, right - left, bottom - top)

    def pixel(self, region):
        """The colour at the place inside the region."""
        return self.run(READ_PIXELS, self.picture(region), *region.inside(), 1, 1)[0]

    def dense_source(self, picture):
        """The address of the picture for dense displays."""
        source = picture.get_attribute("srcset").split(" ")[0]
        return urllib.parse.urljoin(self.driver.current_url, source)

    def is_shown_as(self, picture, source):
        """Whether the display shows just the pixels of a source, not scaled in any way.

        For that the picture moves to the corner of the window, on whole pixels.
        """
        self.run("arguments[0].style = 'position: fixed; left: 0; top: 0; z-index: 1';", picture)
        return self.run(COMPARE_PICTURES, f"data:image/png;base64,{picture.screenshot_as_base64}",
                        source)

    def hover(self, region):
        """Rests on a place inside the region; returns the titles that the browser shows for it."""
        picture = self.picture(region)
        left, top = self.run("""
            arguments[0].scrollIntoView();
            const box = arguments[0].getBoundingClientRect();
            return [box.left, box.top];
        """, picture)
        x, y = region.inside()
        actions = ActionChains(self.driver, duration=0)
        actions.w3c_actions.pointer_action.move_to_location(round(left + x), round(top + y))
        actions.perform()
        return self.wait(lambda _: self.run(
            "return Array.from(document.querySelectorAll('area:hover')).map(area => area.title)"),
            f"the pointer to rest on {region.title}")

    def click(self, element=None):
        """Clicks the element, or where the pointer rests, and waits for where that leads."""
        before = self.driver.current_url
        ActionChains(self.driver, duration=0).click(element).perform()
        self.wait(expected_conditions.url_changes(before), f"a click on {before}")
        self.wait(lambda _: self.run("return document.readyState === 'complete'"),
                  f"the page that a click on {before} leads to")

    def has_alert(self):
        return bool(expected_conditions.alert_is_present()(self.driver))
