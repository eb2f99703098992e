// SPDX-License-Identifier: MIT
// Draws a chart in every way that the public interface offers.
#include "hostile/hostile_input.h"

#include <QXmlStreamReader>

#include <cstdint>
#include <stdexcept>
#include <string>

namespace tovangl {

namespace {

void require(bool isKept, const char* promise)
{
    if (!isKept)
        throw std::logic_error(promise);
}

// A big-endian number of a PNG header.
std::int64_t headerNumber(const CExport& picture, int offset)
{
    std::int64_t number = 0;
    for (int i = 0; i < 4; ++i)
        number = number * 256 + picture.data[offset + i];
    return number;
}

void checkSize(const CExport& picture, std::int64_t width, std::int64_t height)
{
    constexpr int kWidthOffset = 16;
    constexpr int kHeightOffset = 20;
    constexpr int kHeaderSize = 33;
    require(picture.data != nullptr, "an export gives a pointer, whatever the picture");
    require(picture.size == 0 || picture.size > kHeaderSize, "an export is empty or a picture");
    if (picture.size == 0)
        return;
    require(headerNumber(picture, kWidthOffset) == width, "a picture is as wide as asked for");
    require(headerNumber(picture, kHeightOffset) == height, "a picture is as high as asked for");
}

void checkSvg(const CExport& picture)
{
    require(picture.data != nullptr, "an export gives a pointer, whatever the picture");
    QXmlStreamReader reader(QByteArray(reinterpret_cast<const char*>(picture.data), picture.size));
    while (!reader.atEnd())
        reader.readNext();
    require(picture.size == 0 || !reader.hasError(), "an SVG picture is well-formed");
}

// A PDF file from its first line to its last.
void checkPdf(const CExport& file)
{
    require(file.data != nullptr, "an export gives a pointer, whatever the file");
    const std::string bytes = file.bytes();
    const std::string end = "\n%%EOF\n";
    require(bytes.empty() || (bytes.compare(0, 5, "%PDF-") == 0 &&
                              bytes.compare(bytes.size() - end.size(), end.size(), end) == 0),
            "a PDF file is empty or whole");
}

void checkProblem(const CExport& picture, const Graph& graph)
{
    const Problem problem = graph.problem();
    const bool isMade = problem == Problem::None || problem >= Problem::TooSmallForChart;
    require(isMade == (picture.size > 0), "a chart says why there is no picture");
    require(graph.problemText().empty() == (problem == Problem::None),
            "a problem is told in words as well");
}

// A bar that has no room is as much below no width as its outline is wide.
void checkRectangles(CAnyChart& chart, std::int64_t scale)
{
    (void)chart.itemRectangles();
    (void)chart.itemBarRectangles();
    (void)chart.graph().titleRectangle();
    for (const Slice& slice : chart.slices())
        (void)getPolygon(slice);
    require(!chart.graph().describe().empty(), "every chart has a description");
    for (const Rectangle& bar : chart.barRectangles())
        require(bar.width >= -scale && bar.height >= -scale, "a bar covers no negative area");
}

} // namespace

void drawEverything(CAnyChart& chart, int width, int height, int factor)
{
    constexpr std::int64_t kOnScreen = 1;
    constexpr std::int64_t kOnPaper = 4;
    const std::int64_t scale = factor < 1 ? 1 : factor;
    CExport picture = chart.createPixmap(width, height);
    checkSize(picture, width, height);
    checkProblem(picture, chart.graph());
    checkRectangles(chart, kOnScreen);
    picture = chart.createSvg(width, height);
    checkSvg(picture);
    checkProblem(picture, chart.graph());
    checkRectangles(chart, kOnScreen);
    chart.graph().setCompression(Compression::Fast);
    picture = chart.createPixmapForPrinter(width, height, factor);
    checkSize(picture, width * scale, height * scale);
    checkProblem(picture, chart.graph());
    chart.graph().setCompression(Compression::Balanced);
    checkRectangles(chart, scale);
    picture = chart.createPdf(width, height);
    checkPdf(picture);
    checkProblem(picture, chart.graph());
    checkRectangles(chart, kOnPaper);
}

void addOrdinaryItems(CAnyChart& chart)
{
    chart.addItem(120, "usr");
    chart.addItem(45000, "var");
    chart.addItem(3, "a folder with a rather long name");
    chart.addItem(7000, "home", Color{200, 30, 30}, Color{0, 0, 0});
}

} // namespace tovangl
