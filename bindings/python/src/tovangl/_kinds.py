# SPDX-License-Identifier: MIT
# Written by write_kinds.py from the table of settings; _kinds.pyi has the keywords.
"""The functions that make charts."""

from tovangl._chart import DEFAULT_HEIGHT, DEFAULT_WIDTH, make_chart


def pie(items, *, id=None, width=DEFAULT_WIDTH, height=DEFAULT_HEIGHT, print=None, **settings):
    """A pie with a caption beside each slice. Slices are drawn for values above 0.

    :param items: pairs of caption and value, a dict, a Series, or Items
    :param id: a name for the picture's file
    :param width: pixels. Default: 800.
    :param height: pixels. Default: 600.
    :param print: for print: so many times as many pixels each way
    :param theme: Gives the chart a look: sets the palette and all colours. One of light, dark,
        high-contrast, colour-blind. Default: light.
    :param title: The chart's title, one bold line above it.
    :param font: The font family of all texts. Default: Tahoma.
    :param font_size: The font's size in pixels; below 1 it is the system's, and above 30,000 it is
        30,000. Default: 11.
    :param locale: How numbers are written; the default follows the process's locale. A language and
        a country, such as ``de_AT``; or ``C`` or ``default``. Default: default.
    :param threshold: Leaves out items whose share of the total, in per cent, is smaller. Default:
        0.
    :param others: Gathers what the threshold leaves out into one last item of this caption.
    :param others_link: Where the item that gathers the others leads in an SVG picture. An address
        of http:, https: or mailto:, or one relative to the page.
    :param palette: The colours of items without a colour of their own, in turn. Colours
        ``#rrggbb``, the name of a theme, or ``default``. Default: default.
    :param background: Paints a gradient behind the chart, and a border around bars. Default: false.
    :param picture_color: What the picture is filled with: white by default. ``#rrggbb``,
        ``default`` or ``transparent``. Default: default.
    :param text_color: The colour of captions, numbers and the title; also of axis lines, where
        their own is not set. ``#rrggbb`` or ``default``. Default: default.
    :param plot_color: The background's colour, in place of its gradient. ``#rrggbb`` or
        ``default``. Default: default.
    :param border_color: The colour of the background's border. ``#rrggbb`` or ``default``. Default:
        default.
    :param outline_color: The colour of the outlines of slices, and of bars without one of their
        own. ``#rrggbb`` or ``default``. Default: default.
    :param kilo: What a prefix such as K stands for, and whose multiples the value scale shows. One
        of default, 1024, 1000. Default: default.
    :param scale: Picture pixels, each way, for each pixel of the size: 2 for displays of high
        density. Default: 1.
    :param follow_display: Gives an SVG picture the colours of the theme dark on displays that are
        set to dark. Default: false.
    :param fast: Saves faster, in a larger file. Default: false.
    :param bold: Draws the captions in bold type. Default: false.
    :param shorten_left: Cuts long captions at their beginning. Default: false.
    :param keep_overlaps: Lets captions overlap instead of moving them apart. Default: false.
    :param without_sizes: Draws the captions without sizes. Default: false.
    :param unit: The unit of the sizes. Default: B.
    :param line_color: The colour of the lines that lead to the captions. ``#rrggbb`` or
        ``default``. Default: #000000.
    """
    return make_chart("pie", items, id, width, height, print, settings)


def bars(items, *, id=None, width=DEFAULT_WIDTH, height=DEFAULT_HEIGHT, print=None, **settings):
    """Standing bars, with the value scale at the left.

    :param items: pairs of caption and value, a dict, a Series, or Items
    :param id: a name for the picture's file
    :param width: pixels. Default: 800.
    :param height: pixels. Default: 600.
    :param print: for print: so many times as many pixels each way
    :param theme: Gives the chart a look: sets the palette and all colours. One of light, dark,
        high-contrast, colour-blind. Default: light.
    :param title: The chart's title, one bold line above it.
    :param font: The font family of all texts. Default: Tahoma.
    :param font_size: The font's size in pixels; below 1 it is the system's, and above 30,000 it is
        30,000. Default: 11.
    :param locale: How numbers are written; the default follows the process's locale. A language and
        a country, such as ``de_AT``; or ``C`` or ``default``. Default: default.
    :param threshold: Leaves out items whose share of the total, in per cent, is smaller. Default:
        0.
    :param others: Gathers what the threshold leaves out into one last item of this caption.
    :param others_link: Where the item that gathers the others leads in an SVG picture. An address
        of http:, https: or mailto:, or one relative to the page.
    :param palette: The colours of items without a colour of their own, in turn. Colours
        ``#rrggbb``, the name of a theme, or ``default``. Default: default.
    :param background: Paints a gradient behind the chart, and a border around bars. Default: false.
    :param picture_color: What the picture is filled with: white by default. ``#rrggbb``,
        ``default`` or ``transparent``. Default: default.
    :param text_color: The colour of captions, numbers and the title; also of axis lines, where
        their own is not set. ``#rrggbb`` or ``default``. Default: default.
    :param plot_color: The background's colour, in place of its gradient. ``#rrggbb`` or
        ``default``. Default: default.
    :param border_color: The colour of the background's border. ``#rrggbb`` or ``default``. Default:
        default.
    :param outline_color: The colour of the outlines of slices, and of bars without one of their
        own. ``#rrggbb`` or ``default``. Default: default.
    :param kilo: What a prefix such as K stands for, and whose multiples the value scale shows. One
        of default, 1024, 1000. Default: default.
    :param scale: Picture pixels, each way, for each pixel of the size: 2 for displays of high
        density. Default: 1.
    :param follow_display: Gives an SVG picture the colours of the theme dark on displays that are
        set to dark. Default: false.
    :param fast: Saves faster, in a larger file. Default: false.
    :param category_axis: What the axis with the captions shows. Some of line, labels, title,
        bold-labels, bold-title, prefixes, hide-overlapped, shift-last; or ``none``. Default:
        line,labels,hide-overlapped.
    :param category_title: The title of the axis with the captions.
    :param value_axis: What the value axis shows. Some of line, labels, title, bold-labels,
        bold-title, prefixes, hide-overlapped, shift-last; or ``none``. Default:
        line,labels,prefixes,hide-overlapped.
    :param value_title: The title of the value axis.
    :param bar_width: The width of every bar in pixels; 0 or less lets the bars share the axis.
        Default: 0.
    :param position: Where the axis lines stand, in pixels from the left and the top; -1 leaves one
        to the layout. Two whole numbers. Default: -1,-1.
    :param axis_color: The colour of the axis lines. ``#rrggbb`` or ``default``. Default: default.
    :param axis_title_color: The colour of the axis titles. ``#rrggbb`` or ``default``. Default:
        default.
    :param grid_color: The colour of the grid lines. ``#rrggbb`` or ``default``. Default: default.
    """
    return make_chart("bars", items, id, width, height, print, settings)


def hbars(items, *, id=None, width=DEFAULT_WIDTH, height=DEFAULT_HEIGHT, print=None, **settings):
    """Lying bars, one below the other, each with its value beside it.

    :param items: pairs of caption and value, a dict, a Series, or Items
    :param id: a name for the picture's file
    :param width: pixels. Default: 800.
    :param height: pixels. Default: 600.
    :param print: for print: so many times as many pixels each way
    :param theme: Gives the chart a look: sets the palette and all colours. One of light, dark,
        high-contrast, colour-blind. Default: light.
    :param title: The chart's title, one bold line above it.
    :param font: The font family of all texts. Default: Tahoma.
    :param font_size: The font's size in pixels; below 1 it is the system's, and above 30,000 it is
        30,000. Default: 11.
    :param locale: How numbers are written; the default follows the process's locale. A language and
        a country, such as ``de_AT``; or ``C`` or ``default``. Default: default.
    :param threshold: Leaves out items whose share of the total, in per cent, is smaller. Default:
        0.
    :param others: Gathers what the threshold leaves out into one last item of this caption.
    :param others_link: Where the item that gathers the others leads in an SVG picture. An address
        of http:, https: or mailto:, or one relative to the page.
    :param palette: The colours of items without a colour of their own, in turn. Colours
        ``#rrggbb``, the name of a theme, or ``default``. Default: default.
    :param background: Paints a gradient behind the chart, and a border around bars. Default: false.
    :param picture_color: What the picture is filled with: white by default. ``#rrggbb``,
        ``default`` or ``transparent``. Default: default.
    :param text_color: The colour of captions, numbers and the title; also of axis lines, where
        their own is not set. ``#rrggbb`` or ``default``. Default: default.
    :param plot_color: The background's colour, in place of its gradient. ``#rrggbb`` or
        ``default``. Default: default.
    :param border_color: The colour of the background's border. ``#rrggbb`` or ``default``. Default:
        default.
    :param outline_color: The colour of the outlines of slices, and of bars without one of their
        own. ``#rrggbb`` or ``default``. Default: default.
    :param kilo: What a prefix such as K stands for, and whose multiples the value scale shows. One
        of default, 1024, 1000. Default: default.
    :param scale: Picture pixels, each way, for each pixel of the size: 2 for displays of high
        density. Default: 1.
    :param follow_display: Gives an SVG picture the colours of the theme dark on displays that are
        set to dark. Default: false.
    :param fast: Saves faster, in a larger file. Default: false.
    :param category_axis: What the axis with the captions shows. Some of line, labels, title,
        bold-labels, bold-title, prefixes, hide-overlapped, shift-last; or ``none``. Default:
        line,labels,hide-overlapped.
    :param category_title: The title of the axis with the captions.
    :param bar_width: The width of every bar in pixels; 0 or less lets the bars share the axis.
        Default: 0.
    :param position: Where the axis lines stand, in pixels from the left and the top; -1 leaves one
        to the layout. Two whole numbers. Default: -1,-1.
    :param axis_color: The colour of the axis lines. ``#rrggbb`` or ``default``. Default: default.
    :param axis_title_color: The colour of the axis titles. ``#rrggbb`` or ``default``. Default:
        default.
    :param value_color: The colour of the values beside the bars. ``#rrggbb`` or ``default``.
        Default: default.
    """
    return make_chart("hbars", items, id, width, height, print, settings)
