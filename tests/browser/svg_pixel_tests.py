# SPDX-License-Identifier: MIT
"""SVG pictures as a browser draws them, beside the PNG pictures of the same charts."""
from page_test import PageTest

PAGE = 1600, 2100  # pixels: four pictures in each row
KINDS, PIE = 3, 2  # every third picture is a pie, and the last one is an ordinary one

LEAST_SHARE_OF_BARS = 99.98  # per cent of the pixels; a letter can reach out of its box
LEAST_SHARE_OF_PIES = 99.3  # pies have smoothed edges, and two renderers smooth them

# Compares what the display has of each picture with its PNG, outside of the texts: how many pixels
# there are, how many of them differ by more than 16 of 255 in some channel, and how many of those
# have nothing like them at their place or beside it in the other picture.
COMPARE = """
    const WIDTH = 400, HEIGHT = 300, COLUMNS = 4;
    const TOLERANCE = 16, EDGE_TOLERANCE = 64; // of 255; an edge is between two pixels
    const BESIDE = 2; // pixels by which letters may reach beyond their lines
    const read = async source => {
        const picture = new Image();
        picture.src = source;
        await picture.decode();
        const context = new OffscreenCanvas(picture.naturalWidth, picture.naturalHeight)
            .getContext('2d');
        context.drawImage(picture, 0, 0);
        return context;
    };
    const outsideOfTexts = picture => {
        const {left, top} = picture.getBoundingClientRect();
        const outside = new Uint8Array(WIDTH * HEIGHT).fill(1);
        for (const text of picture.querySelectorAll('text')) {
            const box = text.getBoundingClientRect();
            const first = Math.max(0, Math.floor(box.left - left - BESIDE));
            const end = Math.min(WIDTH, Math.ceil(box.right - left + BESIDE));
            const last = Math.min(HEIGHT, Math.ceil(box.bottom - top + BESIDE));
            for (let y = Math.max(0, Math.floor(box.top - top - BESIDE)); y < last; ++y)
                outside.fill(0, y * WIDTH + first, y * WIDTH + Math.max(first, end));
        }
        return outside;
    };
    const difference = (one, i, other, j) => Math.max(
        Math.abs(one[4 * i] - other[4 * j]), Math.abs(one[4 * i + 1] - other[4 * j + 1]),
        Math.abs(one[4 * i + 2] - other[4 * j + 2]));
    const isNear = (one, i, other) => {
        const x = i % WIDTH, y = Math.floor(i / WIDTH);
        for (let row = Math.max(0, y - 1); row <= Math.min(HEIGHT - 1, y + 1); ++row)
            for (let column = Math.max(0, x - 1); column <= Math.min(WIDTH - 1, x + 1); ++column)
                if (difference(one, i, other, row * WIDTH + column) <= EDGE_TOLERANCE)
                    return true;
        return false;
    };
    const compare = (drawn, painted, outside) => {
        const result = {compared: 0, different: 0, moved: 0};
        for (let i = 0; i < WIDTH * HEIGHT; ++i) {
            result.compared += outside[i];
            if (!outside[i] || difference(drawn, i, painted, i) <= TOLERANCE)
                continue;
            ++result.different;
            result.moved += !isNear(drawn, i, painted) || !isNear(painted, i, drawn);
        }
        return result;
    };
    return (async shown => {
        const display = await read('data:image/png;base64,' + shown);
        const pictures = Array.from(document.querySelectorAll('.picture > svg'));
        return Promise.all(pictures.map(async (picture, number) => {
            const left = number % COLUMNS * WIDTH, top = Math.floor(number / COLUMNS) * HEIGHT;
            const painted = await read(number + '.png');
            return compare(display.getImageData(left, top, WIDTH, HEIGHT).data,
                           painted.getImageData(0, 0, WIDTH, HEIGHT).data,
                           outsideOfTexts(picture));
        }));
    })(arguments[0]);
"""


class SvgPixelTest(PageTest):
    """Charts of every kind and many settings, at one pixel of the display for each of theirs."""

    @classmethod
    def setUpClass(cls):
        cls.reader.open(cls.pages.address + "pairs.html")
        results = cls.reader.run(COMPARE, cls.reader.screenshot(*PAGE))
        cls.pies = results[PIE::KINDS]
        cls.bars = [result for number, result in enumerate(results) if number % KINDS != PIE]

    def share(self, result):
        """The pixels that are equal, in per cent."""
        self.assertGreater(result["compared"], 50_000)
        return 100 - 100 * result["different"] / result["compared"]

    def test_bars_are_those_of_the_png_pictures(self):
        for result in self.bars:
            self.assertGreaterEqual(self.share(result), LEAST_SHARE_OF_BARS)

    def test_pies_are_those_of_the_png_pictures_but_for_smoothed_edges(self):
        for result in self.pies:
            self.assertGreaterEqual(self.share(result), LEAST_SHARE_OF_PIES)
            self.assertLessEqual(result["moved"], 0.001 * result["compared"])

    def test_an_ordinary_pie_is_nearly_that_of_the_png_picture(self):
        self.assertGreaterEqual(self.share(self.pies[-1]), 99.8)

    def test_texts_keep_the_spaces_that_they_are_measured_with(self):
        counts = self.reader.run("""
            return Array.from(document.querySelectorAll('.picture text'),
                              text => [text.textContent.length, text.getNumberOfChars()]);
        """)
        self.assertGreater(len(counts), 100)
        for length, shown in counts:
            self.assertEqual(shown, length)
