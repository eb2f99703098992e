# SPDX-License-Identifier: MIT
"""A reader of pages: a browser that looks, points and clicks."""
import base64
import contextlib
import os
import urllib.parse

from selenium import webdriver
from selenium.webdriver.chrome.service import Service
from selenium.webdriver.common.action_chains import ActionChains
from selenium.webdriver.common.keys import Keys
from selenium.webdriver.support import expected_conditions
from selenium.webdriver.support.ui import WebDriverWait

PATIENCE = 30  # seconds; only a machine that is busy with other things comes near it
GLANCE = 0.02  # seconds between two looks at what is waited for

WINDOW = 1000  # pixels of the display, each way
DENSE = 2  # pixels of a dense display, each way, for each pixel of a page
ZOOMED = 4  # the same at 400 %

ARGUMENTS = (
    "--headless=new",
    f"--window-size={WINDOW},{WINDOW}",
    "--disable-gpu",
    "--disable-dev-shm-usage",
    "--disable-background-networking",
    "--force-device-scale-factor=1",
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


# The places of all items of the SVG pictures: which picture, what is there, where that leads, what
# the pointer is told there, and a place that belongs to it with some room around.
FIND_PLACES = """
    const room = [[0, 0], [-2, 0], [2, 0], [0, -2], [0, 2]];
    const shares = [0.5, 0.4, 0.6, 0.3, 0.7, 0.2, 0.8];
    const isInside = (element, x, y) =>
        room.every(([right, down]) => document.elementFromPoint(x + right, y + down) === element);
    const findPlace = element => {
        const box = element.getBoundingClientRect();
        for (const across of shares)
            for (const along of shares) {
                const x = box.left + across * box.width, y = box.top + along * box.height;
                if (isInside(element, x, y))
                    return [x, y];
            }
        throw new Error('nothing shows of ' + element.outerHTML);
    };
    return Array.from(document.querySelectorAll('.picture > svg')).flatMap((picture, index) => {
        picture.scrollIntoView();
        const {left, top} = picture.getBoundingClientRect();
        const parts = picture.querySelectorAll('a.item :is(text, rect[fill], path[fill])');
        return Array.from(parts).map(part => {
            const item = part.closest('a'), [x, y] = findPlace(part);
            return [index, part.localName, item.getAttribute('href'),
                    item.querySelector('title').textContent, [x - left, y - top]];
        });
    });
"""

# What a pointer is told where it rests: of an area, and of an item of an SVG picture.
READ_TITLES = """
    return Array.from(document.querySelectorAll('area:hover, .item:hover')).map(
        element => element.title ?? element.querySelector('title').textContent);
"""

# Scrolls a place of a picture into the middle of the window, as far as that goes; where it is then.
SCROLL_TO = """
    const [picture, x, y] = arguments;
    const frame = picture.parentElement;
    frame.scrollLeft = x - frame.clientWidth / 2;
    window.scrollBy(0, picture.getBoundingClientRect().top + y - window.innerHeight / 2);
    const box = picture.getBoundingClientRect();
    return [box.left + x, box.top + y];
"""


class Region:
    """A part of a picture: what it says, where it leads, and a place well inside it."""

    def __init__(self, picture, shape, link, title, place):
        self.picture = picture  # its number in the page
        self.shape = shape
        self.link = link
        self.title = title
        self.place = place


class Area(Region):
    """An area of an image map."""

    def __init__(self, picture, shape, coordinates, link, title):
        numbers = [float(number) for number in coordinates.split(",")]
        self.corners = list(zip(numbers[::2], numbers[1::2]))
        super().__init__(picture, shape, link, title, self.middle())

    def middle(self):
        """The middle of a rectangle; of a slice, the middle between its tip and its arc."""
        first, last = self.corners[0], self.corners[len(self.corners) // 2]
        return int((first[0] + last[0]) / 2), int((first[1] + last[1]) / 2)


class Reader:
    """Opens pages in a headless Chromium whose files all lie in one folder."""

    def __init__(self, folder):
        options = webdriver.ChromeOptions()
        for argument in ARGUMENTS + (f"--user-data-dir={folder}/browser",):
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
        """The areas of all maps, or the captions and shapes of all items, in their order."""
        areas = self.run("""
            return Array.from(document.querySelectorAll('map')).flatMap((map, index) =>
                Array.from(map.querySelectorAll('area')).map(area =>
                    [index, ...['shape', 'coords', 'href', 'title'].map(
                        name => area.getAttribute(name))]));
        """)
        return ([Area(*fields) for fields in areas] +
                [Region(*fields) for fields in self.run(FIND_PLACES)])

    def picture(self, region):
        return self.all(".picture > *")[region.picture]

    def pixels(self, area):
        """The colours in a rectangular area."""
        (left, top), (right, bottom) = area.corners
        return self.run(READ_PIXELS, self.picture(area), left, top, right - left, bottom - top)

    def pixel(self, area):
        """The colour at the place inside the area."""
        return self.run(READ_PIXELS, self.picture(area), *area.middle(), 1, 1)[0]

    def shown_pixels(self, picture, left, top, width, height):
        """The colours that the display has in a part of a picture, which fits into the window."""
        x, y = self.run(SCROLL_TO, picture, left + width / 2, top + height / 2)
        return self.run(f"""
            const [png, ...rectangle] = arguments;
            const shown = new Image();
            shown.src = 'data:image/png;base64,' + png;
            return shown.decode().then(() => (function() {{ {READ_PIXELS} }})(
                shown, ...rectangle.map(number => Math.round(number * devicePixelRatio))));
        """, self.driver.get_screenshot_as_base64(), x - width / 2, y - height / 2, width, height)

    def shown_pixel(self, region):
        """The colour that the display has at the place inside a region."""
        return self.shown_pixels(self.picture(region), *region.place, 1, 1)[0]

    def screenshot(self, width, height):
        """A PNG picture, in base 64, of the page from its corner, wherever the window ends."""
        clip = {"x": 0, "y": 0, "width": width, "height": height, "scale": 1}
        return self.driver.execute_cdp_cmd(
            "Page.captureScreenshot", {"clip": clip, "captureBeyondViewport": True})["data"]

    def accessible_texts(self, selector):
        """The name and the description that are read aloud for an element."""
        root = self.driver.execute_cdp_cmd("DOM.getDocument", {})["root"]["nodeId"]
        element = self.driver.execute_cdp_cmd(
            "DOM.querySelector", {"nodeId": root, "selector": selector})["nodeId"]
        answer = self.driver.execute_cdp_cmd(
            "Accessibility.getPartialAXTree", {"nodeId": element, "fetchRelatives": False})
        node = answer["nodes"][0]
        return [node.get(text, {}).get("value") for text in ("name", "description")]

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
        x, y = self.run(SCROLL_TO, self.picture(region), *region.place)
        self.rest_at(round(x), round(y))
        return self.wait(lambda _: self.run(READ_TITLES),
                         f"the pointer to rest on {region.title}")

    def rest_at(self, x, y):
        """Moves the pointer to a place in the window."""
        actions = ActionChains(self.driver, duration=0)
        actions.w3c_actions.pointer_action.move_to_location(x, y)
        actions.perform()

    def click(self, element=None):
        """Clicks the element, or where the pointer rests, and waits for where that leads."""
        self.follow(ActionChains(self.driver, duration=0).click(element))

    def focus_next(self):
        """Presses the key that moves the focus on; returns where the link that has it leads."""
        ActionChains(self.driver, duration=0).send_keys(Keys.TAB).perform()
        return self.run("return document.activeElement.getAttribute('href')")

    def enter(self):
        """Presses the key that follows the link with the focus, and waits for where it leads."""
        self.follow(ActionChains(self.driver, duration=0).send_keys(Keys.ENTER))

    def follow(self, actions):
        before = self.driver.current_url
        actions.perform()
        self.wait(expected_conditions.url_changes(before), f"a link on {before}")
        self.wait(lambda _: self.run("return document.readyState === 'complete'"),
                  f"the page that a link on {before} leads to")

    @contextlib.contextmanager
    def display(self, density, width=WINDOW):
        """Meanwhile the window shows so many pixels of a page, each way, and the display has the
        density times as many.
        """
        self.driver.execute_cdp_cmd("Emulation.setDeviceMetricsOverride", {
            "width": width, "height": width, "deviceScaleFactor": density, "mobile": False})
        try:
            yield
        finally:
            self.driver.execute_cdp_cmd("Emulation.clearDeviceMetricsOverride", {})

    def dense_display(self):
        return self.display(DENSE)

    def zoomed(self):
        """Meanwhile the page is zoomed, so that less of it fits in."""
        return self.display(ZOOMED, WINDOW // ZOOMED)

    @contextlib.contextmanager
    def color_scheme(self, name):
        """Meanwhile the display is set to the scheme light or dark."""
        def emulate(value):
            self.driver.execute_cdp_cmd("Emulation.setEmulatedMedia", {
                "features": [{"name": "prefers-color-scheme", "value": value}]})
        emulate(name)
        try:
            yield
        finally:
            emulate("")

    def printed(self):
        """The bytes of the PDF file that the page is printed to."""
        return base64.b64decode(self.driver.print_page())

    def has_alert(self):
        return bool(expected_conditions.alert_is_present()(self.driver))
