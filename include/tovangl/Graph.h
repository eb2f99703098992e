// SPDX-License-Identifier: MIT
/// @file
/// What every chart of the public interface can do.
#ifndef TOVANGL_GRAPH_H
#define TOVANGL_GRAPH_H

#include <tovangl/Compression.h>
#include <tovangl/Export.h>
#include <tovangl/Problem.h>
#include <tovangl/Rectangle.h>

#include <list>
#include <string>

namespace tovangl {

class CGraph1dBase;

/// The base of the charts: settings, export as PNG, and the caption rectangles.
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
    /// The total is the sum of all magnitudes. Nothing is drawn for an item left out, and the chart
    /// has no bar or slice for the rest.
    ///
    /// @param percent  per cent of the total; a negative value acts as 0, NaN leaves out every item
    void setThreshold(double percent);

    /// The threshold in per cent; 0 where there is no chart.
    double threshold() const;

    /// Sets the font of all texts. The default is "Tahoma" at 11 pixels.
    ///
    /// @param family     family name, of which the first 256 characters are used; the system's best
    ///                   match replaces a family that is not installed
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

    /// Where the captions were drawn: one rectangle for each item, in the order of adding.
    ///
    /// The rectangles are those of the last rendering: all zero for a hidden caption and for an
    /// item never drawn, and those of an earlier rendering for an item that the threshold left out.
    ///
    /// @return a list owned by this object and rewritten by the next call; never null
    std::list<Rectangle>* getRectangle();

    /// Describes the last rendering in one English sentence, for a picture's alternative text.
    ///
    /// It names the kind of chart, the number of items drawn, and the greatest and the least of
    /// these with their captions: Pie chart, 2 of 3 items drawn: the greatest is “Rent” with 1,200,
    /// the least is “Food” with 430. The items drawn are those that the threshold left in, or none
    /// if the picture had no room for the chart. Numbers follow the chart's locale. The sentence is
    /// one line: white space and control characters in captions become spaces, and only the first
    /// 256 characters of a caption are used.
    ///
    /// @return UTF-8; empty where there is no chart
    std::string describe() const;

    /// What was wrong with the last rendering: why it gave no picture, or a picture without the
    /// chart. Problem::None where the chart was drawn, before the first rendering, and where there
    /// is no chart.
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

protected:
    CGraph1dBase* m_graph; ///< owned by the derived class; null in a plain Graph

private:
    template <typename Surface>
    void paintDevice2Bytes(Surface& surface, unsigned char** data, int* size);

    unsigned char* m_pixmapData;        // owned
    std::list<Rectangle>* m_rectangles; // owned
    Compression m_compression;
};

} // namespace tovangl

#endif
