// SPDX-License-Identifier: MIT
// The pictures of the report, with their image maps.
#include "tovangl-du/report_pictures.h"

#include "common/CFailure.h"
#include "tovangl-du/byte_text.h"
#include <tovangl/HorizontalBarGraph.h>
#include <tovangl/PieGraph.h>
#include <tovangl/VerticalBarGraph.h>

#include <utility>

namespace tovangl::program {

namespace {

constexpr int kWidth = 800; // pixels, as all sizes here
constexpr int kPieHeight = 400;
constexpr int kUprightHeight = 240;
constexpr int kRowHeight = 24;
constexpr int kRoomAroundRows = 30;

constexpr int kFontSize = 11;

// Bars have an outline two thirds as bright as they are.
Color outlineOf(const Color& color)
{
    constexpr int kTwo = 2;
    constexpr int kThirds = 3;
    return {color.red * kTwo / kThirds, color.green * kTwo / kThirds, color.blue * kTwo / kThirds};
}

RegionLink linkOf(const ReportRow& row, long total)
{
    const std::string size = formatBytes(row.bytes);
    return {row.link, row.name + ": " + size + ", " + formatShare(row.bytes, total),
            row.name + ", " + size};
}

// The page is in English, and so are its pictures.
void applyLook(Graph& chart, const std::string& fontFamily)
{
    chart.setFont(fontFamily, kFontSize);
    chart.setLocale("en", "us");
}

std::string renderPng(Graph& chart, int height, int scale)
{
    unsigned char* bytes = nullptr;
    int size = 0;
    chart.setScale(scale);
    chart.createPixmap(kWidth, height, &bytes, &size);
    if (size == 0)
        throw CFailure("cannot draw: " + chart.problemText());
    return {reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(size)};
}

// The map is in pixels of the page, and a chart tells the regions of its last rendering.
ReportPicture render(Graph& chart, int height, const char* name)
{
    std::string dense = renderPng(chart, height, kDensity);
    std::string png = renderPng(chart, height, 1);
    return {std::move(png), std::move(dense), kWidth, height, chart.describe(), CImageMap(name)};
}

// Captions come first: where one overlaps a bar or a slice, the reader points at the caption.
void addCaptions(ReportPicture& picture, Graph& chart, const ReportRows& rows, long total)
{
    auto row = rows.begin();
    for (const Rectangle& caption : *chart.getRectangle())
        picture.map.addRectangle(caption, linkOf(*row++, total));
}

template <typename BarChart>
ReportPicture drawBars(BarChart& chart, const ReportRows& rows, int height, long total,
                       const char* name, const std::string& fontFamily)
{
    applyLook(chart, fontFamily);
    for (const ReportRow& row : rows)
        chart.addItem(row.bytes, row.caption, row.color, outlineOf(row.color));
    ReportPicture picture = render(chart, height, name);
    addCaptions(picture, chart, rows, total);
    auto row = rows.begin();
    for (const Rectangle& bar : *chart.getItemBarRectangle())
        picture.map.addRectangle(bar, linkOf(*row++, total));
    return picture;
}

} // namespace

std::string lackOfLetters(const std::string& fontFamily)
{
    PieGraph chart(false);
    applyLook(chart, fontFamily);
    static_cast<void>(render(chart, kPieHeight, ""));
    return chart.problem() == Problem::NoGlyphs ? chart.problemText() : std::string();
}

ReportPicture drawPie(const ReportRows& rows, long total, const char* name,
                      const std::string& fontFamily)
{
    PieGraph chart(false);
    applyLook(chart, fontFamily);
    for (const ReportRow& row : rows)
        chart.addItem(row.bytes, row.caption, row.color);
    ReportPicture picture = render(chart, kPieHeight, name);
    addCaptions(picture, chart, rows, total);
    auto row = rows.begin();
    for (const Slice& slice : *chart.getSlice())
        picture.map.addSlice(slice, linkOf(*row++, total));
    return picture;
}

ReportPicture drawLyingBars(const ReportRows& rows, long total, const char* name,
                            const std::string& fontFamily)
{
    HorizontalBarGraph chart(true);
    const int height = kRoomAroundRows + kRowHeight * static_cast<int>(rows.size());
    return drawBars(chart, rows, height, total, name, fontFamily);
}

ReportPicture drawUprightBars(const ReportRows& rows, long total, const char* name,
                              const std::string& fontFamily)
{
    VerticalBarGraph chart(true);
    return drawBars(chart, rows, kUprightHeight, total, name, fontFamily);
}

} // namespace tovangl::program
