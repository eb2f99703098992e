// SPDX-License-Identifier: MIT
// The pictures of the report, with their links.
#include "tovangl-du/report_pictures.h"

#include "common/CFailure.h"
#include "common/page_picture.h"
#include "tovangl-du/byte_text.h"
#include <tovangl/HorizontalBarGraph.h>
#include <tovangl/PieGraph.h>
#include <tovangl/VerticalBarGraph.h>

#include <utility>
#include <vector>

namespace tovangl::program {

namespace {

constexpr int kWidth = 800; // pixels, as all sizes here
constexpr int kPieHeight = 400;
constexpr int kUprightHeight = 240;
constexpr int kRowHeight = 24;
constexpr int kRoomAroundRows = 30;

constexpr int kFontSize = 11;

// Picture pixels, each way, for each pixel of the page, in the picture for dense displays.
constexpr int kDensity = 2;

using Create = void (Graph::*)(int, int, unsigned char**, int*);

// Bars have an outline two thirds as bright as they are.
Color outlineOf(const Color& color)
{
    constexpr int kTwo = 2;
    constexpr int kThirds = 3;
    return {color.red * kTwo / kThirds, color.green * kTwo / kThirds, color.blue * kTwo / kThirds};
}

// What the pointer shows on a row's shapes.
std::string titleOf(const ReportRow& row, long total)
{
    return row.name + ": " + formatBytes(row.bytes) + ", " + formatShare(row.bytes, total);
}

RegionLink linkOf(const ReportRow& row, long total)
{
    return {row.link, titleOf(row, total), row.name + ", " + formatBytes(row.bytes)};
}

// The page is in English, and so are its pictures.
void applyLook(Graph& chart, const std::string& fontFamily)
{
    chart.setFont(fontFamily, kFontSize);
    chart.setLocale("en", "us");
}

std::string render(Graph& chart, int height, Create create)
{
    unsigned char* bytes = nullptr;
    int size = 0;
    (chart.*create)(kWidth, height, &bytes, &size);
    if (size == 0)
        throw CFailure("cannot draw: " + chart.problemText());
    return {reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(size)};
}

ReportPicture embeddedPicture(Graph& chart, int height, const PictureRequest& request)
{
    std::vector<std::string> titles;
    for (const ReportRow& row : request.rows) {
        chart.setLink(titles.size(), row.link);
        titles.push_back(titleOf(row, request.total));
    }
    const std::string svg = render(chart, height, &Graph::createSvg);
    return {embeddedSvgHtml(withItemTitles(svg, titles)), {}};
}

// The picture that the page shows comes last, because a chart tells the regions of its last
// rendering.
ReportFiles pictureFiles(Graph& chart, int height, const std::string& stem)
{
    chart.setScale(kDensity);
    std::string dense = render(chart, height, &Graph::createPixmap);
    chart.setScale(1);
    return {{stem + kPictureEnding, render(chart, height, &Graph::createPixmap)},
            {stem + kDensePictureEnding, std::move(dense)}};
}

template <typename Regions, typename Add>
void addRegions(CImageMap& map, const Regions& regions, Add add, const PictureRequest& request)
{
    auto row = request.rows.begin();
    for (const auto& region : regions)
        (map.*add)(region, linkOf(*row++, request.total));
}

// Captions come first: where one overlaps a bar or a slice, the reader points at the caption.
template <typename AddShapes>
ReportPicture draw(Graph& chart, int height, const PictureRequest& request, AddShapes addShapes)
{
    if (request.look.isSvg)
        return embeddedPicture(chart, height, request);
    ReportFiles files = pictureFiles(chart, height, request.fileStem);
    CImageMap map(request.name);
    addRegions(map, *chart.getRectangle(), &CImageMap::addRectangle, request);
    addShapes(map);
    const std::string dense = denseSource(files[1].name, kDensity);
    return {mappedPictureHtml({files[0].name, dense, kWidth, height, chart.describe()}, map),
            std::move(files)};
}

template <typename BarChart>
ReportPicture drawBars(BarChart& chart, int height, const PictureRequest& request)
{
    applyLook(chart, request.look.fontFamily);
    for (const ReportRow& row : request.rows)
        chart.addItem(row.bytes, row.caption, row.color, outlineOf(row.color));
    return draw(chart, height, request, [&](CImageMap& map) {
        addRegions(map, *chart.getItemBarRectangle(), &CImageMap::addRectangle, request);
    });
}

} // namespace

std::string lackOfLetters(const std::string& fontFamily)
{
    PieGraph chart(false);
    applyLook(chart, fontFamily);
    static_cast<void>(render(chart, kPieHeight, &Graph::createPixmap));
    return chart.problem() == Problem::NoGlyphs ? chart.problemText() : std::string();
}

ReportPicture drawPie(const PictureRequest& request)
{
    PieGraph chart(false);
    applyLook(chart, request.look.fontFamily);
    for (const ReportRow& row : request.rows)
        chart.addItem(row.bytes, row.caption, row.color);
    return draw(chart, kPieHeight, request, [&](CImageMap& map) {
        addRegions(map, *chart.getSlice(), &CImageMap::addSlice, request);
    });
}

ReportPicture drawLyingBars(const PictureRequest& request)
{
    HorizontalBarGraph chart(true);
    const int height = kRoomAroundRows + kRowHeight * static_cast<int>(request.rows.size());
    return drawBars(chart, height, request);
}

ReportPicture drawUprightBars(const PictureRequest& request)
{
    VerticalBarGraph chart(true);
    return drawBars(chart, kUprightHeight, request);
}

} // namespace tovangl::program
