// SPDX-License-Identifier: MIT
/// @file
/// What every chart of the public interface can do.
#ifndef TOVANGL_GRAPH_H
#define TOVANGL_GRAPH_H

#include <tovangl/Color.h>
#include <tovangl/Compression.h>
#include <tovangl/Export.h>
#include <tovangl/Problem.h>
#include <tovangl/Rectangle.h>
#include <tovangl/Theme.h>

#include <cstddef>
#include <list>
#include <string>
#include <vector>

namespace tovangl {

class CGraph1dBase;

/// The base of the charts: settings, export as PNG or SVG, and the caption rectangles.
///
/// Use VerticalBarGraph, HorizontalBarGraph or PieGraph; a plain Graph holds no chart, and its
/// operations do nothing. Only one thread at a time can use a chart; different threads can use
/// different charts at once. Strings are UTF-8; invalid sequences become replacement characters.
///
/// Only std::bad_alloc can leave a call. The chart can be used again afterwards.
class TOVANGL_EXPORT Graph
{
public:
    Graph();
    virtual ~Graph();

    Graph(const Graph&) = delete;
    Graph& operator=(const Graph&) = delete;

    /// Removes all items. Settings, and the bytes of the last export, are kept.
    void clear();

    /// Frees the bytes of the last export. Calling it again is harmless.
    void freePixmap();

    /// Leaves out items whose share of the total is smaller than this.
    ///
    /// The total is the sum of all magnitudes. Nothing is drawn for an item left out. setOthers()
    /// adds one bar or slice for all of them.
    ///
    /// @param percent  per cent of the total; a negative value acts as 0, NaN leaves out every item
    void setThreshold(double percent);

    /// The threshold in per cent; 0 where there is no chart.
    double threshold() const;

    /// Sets the font of all texts. The default is "Tahoma" at 11 pixels.
    ///
    /// @param family     family name, of which the first 256 characters are used; a family of
    /// addFont()
    ///                   goes before an installed one; the system's best match replaces a
    ///                   family that is not there
    /// @param pixelSize  size in pixels before the print factor; below 1 the system's default size
    ///                   is used, above 30,000 it is 30,000
    void setFont(const std::string& family, int pixelSize);

    /// Sets how numbers are written: digits, group separators and decimal point.
    ///
    /// The default is the process's locale (LC_ALL, LC_NUMERIC, LANG in the environment).
    ///
    /// @param language  its first two characters count, e.g. "de"
    /// @param country   its first two characters count, e.g. "at"; an unknown pair gives the "C"
    ///                  locale
    void setLocale(const std::string& language, const std::string& country);

    /// Chooses between small files and a short time. The default is Compression::Balanced.
    ///
    /// The pixels are the same either way. The same picture with the same setting gives the same
    /// file.
    void setCompression(Compression compression);

    /// Sets a setting by its name, one row of settings().
    ///
    /// Where several are set, the order is that of the table: a theme replaces the colours that
    /// were set before it.
    ///
    /// @param name   such as "font_size"
    /// @param value  UTF-8, in the form of the setting's type
    /// @return empty, or why nothing was set: the value is not a whole number from 1 to 1000
    std::string setByName(const std::string& name, const std::string& value);

    /// Sets the palette and all colours at once, those of items with a colour of their own aside.
    ///
    /// It is the sum of settings that can be called one by one; what is set later replaces it.
    void setTheme(Theme theme);

    /// Sets the title: one line in bold type, centred above the chart, in the colour of the texts,
    /// and shortened to the picture's width. The chart has the room that it leaves. A picture
    /// without room for both shows the chart alone.
    ///
    /// @param text  UTF-8; empty, the default, for no title. White space in a row, line breaks and
    ///              control characters become one space
    void setTitle(const std::string& text);

    /// Where the last rendering drew the title; all zero where it drew none.
    Rectangle titleRectangle() const;

    /// Gathers what the threshold leaves out into one more item, in grey, drawn after all others
    /// whatever its share.
    ///
    /// Its value is the sum of theirs, of which a pie takes those above 0. A sum beyond the range
    /// of long is the nearest number in it. Where there is nothing to gather, nothing is drawn for
    /// the item. As long as a caption is set, the lists that have one record for each item have one
    /// more, the last, for this item: getRectangle(), getItemBarRectangle() of the bars, getSlice()
    /// of the pie. All its fields are 0 where the last rendering drew no such item.
    ///
    /// @param caption  UTF-8; empty, the default, drops what the threshold leaves out
    void setOthers(const std::string& caption);

    /// How many items the last rendering gathered; 0 where it drew no item for them.
    std::size_t othersCount() const;

    /// The value of the item that gathers them; 0 where there is none.
    long othersValue() const;

    /// Gives an item an address: its bar or slice and its caption in an SVG picture are a link to
    /// it.
    ///
    /// @param item     position in the order of adding, from 0; with setOthers(), the number of
    ///                 items is the position of the others
    /// @param address  UTF-8; begins with http:, https: or mailto:, or is relative to the page;
    ///                 empty for no link
    /// @return whether it was set: not where there is no such item, nor for any other address, such
    ///         as one with white space or control characters, or one that would run a script
    bool setLink(std::size_t item, const std::string& address);

    /// Sets the colours of items that have none of their own: the first is that of the first item,
    /// and after the last comes the first again. A colour that is not set leaves that item's
    /// colour to the default. An empty list is the default palette, of six colours.
    void setPalette(const std::vector<Color>& colors);

    /// Sets what the picture is filled with before anything is drawn. Not set: white.
    void setPictureColor(const Color& color);

    /// Fills the picture with nothing: the PNG is transparent where nothing is drawn.
    void setPictureTransparent();

    /// Sets the colour of captions, numbers and the title, and of axis lines that have none of
    /// their own. Not set: black.
    void setTextColor(const Color& color);

    /// Sets the colour of the background that the chart was constructed with, in place of its
    /// gradient. Not set: the gradient.
    void setPlotColor(const Color& color);

    /// Sets the colour of the background's border. Not set: shades of grey.
    void setBorderColor(const Color& color);

    /// Sets the colour of the outlines of slices, and of bars that have none of their own. Not set:
    /// slices have white ones, or dark grey ones in print; those of bars are darker than the bar.
    void setOutlineColor(const Color& color);

    /// Sets the size of a kilo for this chart: what a prefix such as K stands for, and the steps of
    /// the value scale.
    ///
    /// @param size  1024 or 1000; any other number is the default: 1024
    void setKilo(int size);

    /// Draws this many pixels each way for each pixel of the size, with the look of the screen, for
    /// displays of high density. The layout is that of scale 1, magnified: the same labels are
    /// shown, in the same words. Rectangles are in pixels of the picture. Print ignores it.
    ///
    /// @param scale  below 1 counts as 1, which is the default; above 1000 as 1000
    void setScale(int scale);

    /// Where the captions were drawn: one rectangle for each item, in the order of adding.
    ///
    /// The rectangles are those of the last rendering: all zero for a hidden caption and for an
    /// item never drawn, and those of an earlier rendering for an item that the threshold left out.
    /// With setOthers(), there is one more rectangle at the end.
    ///
    /// @return a list owned by this object and rewritten by the next call; never null
    std::list<Rectangle>* getRectangle();

    /// Describes the last rendering in one English sentence, for a picture's alternative text.
    ///
    /// It names the kind of chart, the number of items drawn, and the greatest and the least of
    /// these with their captions: Pie chart, 2 of 3 items drawn: the greatest is “Rent” with 1,200,
    /// the least is “Food” with 430. A title comes first, in a sentence of its own: “Spending”. Pie
    /// chart, 2 of 3 items drawn. What setOthers() gathers comes last: and 12 others with 340
    /// together. The items drawn are those that the threshold left in, or none
    /// if the picture had no room for the chart. Numbers follow the chart's locale. The sentence is
    /// one line: white space and control characters in texts become spaces, and only the first 256
    /// characters of a caption or title are used.
    ///
    /// @return UTF-8; empty where there is no chart
    std::string describe() const;

    /// What was wrong with the last rendering: why it gave no picture, a picture without the chart,
    /// or a chart whose texts are not in the font that was set. Problem::None where all is well,
    /// before the first rendering, and where there is no chart.
    ///
    /// A replaced family is reported only if setFont() has set it: the default is there on few
    /// machines. In a list of families, one that is there is enough. Names of kinds, such as
    /// "sans-serif", and names for which the machine's configuration has a family, are never
    /// reported.
    Problem problem() const;

    /// The problem in one English sentence, such as: The picture has no room for the chart.
    ///
    /// @return empty where nothing was wrong
    std::string problemText() const;

    /// Renders the chart as a PNG image.
    ///
    /// The bytes stay owned by this object: do not free them. They live until the next export,
    /// freePixmap() or the destructor. A picture that cannot be made gives a non-null pointer with
    /// *size 0: a width or height below 1 or above 1,000,000, more than 2^31 - 1 bytes at four
    /// bytes a pixel, no memory for the picture, no offscreen platform plugin of Qt on the machine,
    /// or a process that is ending. Exit handlers registered after the first picture may still
    /// draw; older ones, and the destructors of static objects, come too late. A picture that is
    /// too small for its chart is white. problem() says which of these it was.
    ///
    /// @param width, height  picture size in pixels
    /// @param data           receives the first byte; not null
    /// @param size           receives the number of bytes; not null
    void createPixmap(int width, int height, unsigned char** data, int* size);

    /// Renders the chart for print: factor times as many pixels each way, with fonts, margins and
    /// lines factor times as large, no gradient background, and slices in paler colours.
    ///
    /// @param width, height  size in pixels before the factor is applied
    /// @param factor         whole-number resolution; below 1 counts as 1
    /// @param data, size     as for createPixmap()
    void createPixmapForPrinter(int width, int height, int factor, unsigned char** data, int* size);

    /// Renders the chart as an SVG picture: the one that createPixmap() makes of that size, in
    /// shapes and texts instead of pixels.
    ///
    /// Every shape and text is where the PNG has it, and the rectangles are the same. The picture
    /// has the title and the description of the chart. Each item is a group with an id, the class
    /// "item", and its caption and value, which browsers show while the pointer rests on it. The
    /// ids of a picture begin with a few characters that are computed from the picture: in one
    /// page, only equal pictures share ids. That of an item ends in a hyphen and its number, from
    /// 0. It needs no script and runs none, whatever the captions hold.
    ///
    /// @param width, height  picture size in pixels
    /// @param data, size     as for createPixmap()
    void createSvg(int width, int height, unsigned char** data, int* size);

    /// Renders the chart as a PDF file of one page without margins, for paper: the picture that
    /// createPixmapForPrinter() makes with the factor 4, in shapes and texts instead of pixels.
    ///
    /// Texts can be selected and searched, and the file has the part of the font that they use. A
    /// font whose maker forbids that is drawn as outlines. The file has the chart's title, or else
    /// describe(), as its title, describe() for those who do not see it, and the language of the
    /// chart's locale, or else English. It has no date: the same chart gives the same file.
    ///
    /// @param width, height  page size in points, of which 72 are an inch: up to 14,400, because
    ///                       readers of PDF take no larger pages. *size is 0 beyond that
    /// @param data, size     as for createPixmap()
    void createPdf(int width, int height, unsigned char** data, int* size);

protected:
    CGraph1dBase* m_graph; ///< owned by the derived class; null in a plain Graph

private:
    std::list<Rectangle>* m_rectangles; // owned
};

} // namespace tovangl

#endif
