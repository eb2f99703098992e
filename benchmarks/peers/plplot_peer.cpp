// SPDX-License-Identifier: MIT
// Times PLplot's charts, drawn by its cairo driver.
#include "peers/palette.h"
#include "support/timed_rounds.h"

#include <cmath>
#include <cstdio>
#include <plplot.h>

namespace tovangl {
namespace bench {

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr int kDotsPerInch = 90;
constexpr double kMillimetresPerInch = 25.4;
constexpr double kCharacterShare = 0.93; // gives DejaVu Sans the width that it has elsewhere
constexpr long kMegabyte = 1048576;

// Places in the driver's colour table; 0 is the background.
enum ColorPlace
{
    Paper = 0,
    Ink = 1,
    GridInk = 2,
    FirstFill = 3,
    FirstOutline = FirstFill + kColors,
    AllColors = FirstOutline + kColors
};

void setColor(int place, const CRgb& color)
{
    plscol0(place, color.red, color.green, color.blue);
}

void setColors()
{
    plscmap0n(AllColors);
    setColor(Paper, {255, 255, 255});
    setColor(Ink, {0, 0, 0});
    setColor(GridInk, kGrid);
    for (int i = 0; i < kColors; ++i) {
        setColor(FirstFill + i, kFill[i]);
        setColor(FirstOutline + i, kOutline[i]);
    }
}

// Fractions of the picture, counted from the bottom left.
struct CMargins
{
    double left, right, bottom, top;
};

void setPlot(const CMargins& margins, const CMargins& world)
{
    plvpor(margins.left, margins.right, margins.bottom, margins.top);
    plwind(world.left, world.right, world.bottom, world.top);
}

void drawBox(const CMargins& box, int color)
{
    double xs[] = {box.left, box.right, box.right, box.left};
    double ys[] = {box.bottom, box.bottom, box.top, box.top};
    plcol0(FirstFill + color);
    plfill(4, xs, ys);
    double outlineXs[] = {box.left, box.right, box.right, box.left, box.left};
    double outlineYs[] = {box.bottom, box.bottom, box.top, box.top, box.bottom};
    plcol0(FirstOutline + color);
    plline(5, outlineXs, outlineYs);
}

void drawGrid(double end)
{
    for (int value = kScaleStep; value <= kScaleEnd; value += kScaleStep) {
        plcol0(GridInk);
        pljoin(-0.75, value, end, value);
    }
}

void drawScale()
{
    plcol0(Ink);
    pljoin(-0.75, 0, -0.75, kScaleEnd);
    for (int value = 0; value <= kScaleEnd; value += kScaleStep) {
        const double place = static_cast<double>(value) / kScaleEnd;
        plmtex("lv", 0.6, place, 1.0, std::to_string(value).c_str());
    }
}

void drawCaptions(const CChartCase& chart, double end)
{
    const bool turned = areCaptionsTurned(chart);
    plcol0(Ink);
    pljoin(-0.75, 0, end, 0);
    double at = 0.75;
    for (const CCaseItem& item : chart.items) {
        const double place = at / (end + 0.75);
        if (turned)
            plmtex("bv", 0.6, place, 1.0, item.caption.c_str());
        else
            plmtex("b", 1.2, place, 0.5, item.caption.c_str());
        at += 1.0;
    }
}

void drawUpright(const CChartCase& chart)
{
    const double end = static_cast<double>(chart.items.size()) - 0.25;
    const double bottom = areCaptionsTurned(chart) ? 62.0 : 29.0;
    setPlot({37.0 / chart.width, 1 - 10.0 / chart.width, bottom / chart.height,
             1 - 17.0 / chart.height},
            {-0.75, end, 0, kScaleEnd});
    drawGrid(end);
    int place = 0;
    for (const CCaseItem& item : chart.items) {
        drawBox({place - kBarWidth / 2, place + kBarWidth / 2, 0, static_cast<double>(item.value)},
                place % kColors);
        ++place;
    }
    drawScale();
    drawCaptions(chart, end);
}

void drawLying(const CChartCase& chart)
{
    const double end = static_cast<double>(chart.items.size()) - 0.35;
    setPlot(
        {77.0 / chart.width, 1 - 10.0 / chart.width, 10.0 / chart.height, 1 - 11.0 / chart.height},
        {0, kLyingScaleEnd, end, -0.65});
    const double gap = kValueGap * kLyingScaleEnd / (chart.width - 87.0);
    int place = 0;
    for (const CCaseItem& item : chart.items) {
        const double value = static_cast<double>(item.value);
        drawBox({0, value, place - kBarWidth / 2, place + kBarWidth / 2}, place % kColors);
        plcol0(Ink);
        plptex(value + gap, place, 1, 0, 0, std::to_string(item.value).c_str());
        plmtex("lv", 0.6, (end - place) / (end + 0.65), 1.0, item.caption.c_str());
        ++place;
    }
    pljoin(0, end, 0, -0.65);
    pljoin(0, -0.65, kLyingScaleEnd, -0.65);
}

struct CPoint
{
    double x, y;
};

CPoint onCircle(double radius, double angle)
{
    return {radius * std::cos(angle), radius * std::sin(angle)};
}

void drawSlice(double radius, double from, double to, int color)
{
    constexpr double kStep = kPi / 180;
    std::vector<double> xs = {0};
    std::vector<double> ys = {0};
    const int steps = static_cast<int>((from - to) / kStep) + 1;
    for (int i = 0; i <= steps; ++i) {
        const CPoint point = onCircle(radius, from + (to - from) * i / steps);
        xs.push_back(point.x);
        ys.push_back(point.y);
    }
    const int count = static_cast<int>(xs.size());
    plcol0(FirstFill + color);
    plfill(count, xs.data(), ys.data());
    plcol0(Paper);
    plline(count, xs.data(), ys.data());
    pljoin(xs.back(), ys.back(), 0, 0);
}

void drawSliceLabel(const CCaseItem& item, double ring, double angle)
{
    const CPoint start = onCircle(0.74 * ring, angle);
    const CPoint elbow = onCircle(ring, angle);
    const int side = elbow.x < 0 ? -1 : 1;
    plcol0(Ink);
    pllsty(2);
    pljoin(start.x, start.y, elbow.x, elbow.y);
    pllsty(1);
    pljoin(elbow.x, elbow.y, elbow.x + side * 18, elbow.y);
    const std::string text = item.caption + " [" + std::to_string(item.value / kMegabyte) + " MB]";
    plptex(elbow.x + side * 21, elbow.y, 1, 0, side < 0 ? 1.0 : 0.0, text.c_str());
}

void drawPie(const CChartCase& chart)
{
    const double halfWidth = chart.width / 2.0;
    const double halfHeight = chart.height / 2.0;
    setPlot({0, 1, 0, 1}, {-halfWidth, halfWidth, -halfHeight, halfHeight});
    const double ring = halfHeight - 18;
    double total = 0;
    for (const CCaseItem& item : chart.items)
        total += static_cast<double>(item.value);
    std::vector<double> ends = {kPi};
    for (const CCaseItem& item : chart.items)
        ends.push_back(ends.back() - 2 * kPi * static_cast<double>(item.value) / total);
    for (std::size_t i = 0; i < chart.items.size(); ++i)
        drawSlice(0.87 * ring, ends[i], ends[i + 1], static_cast<int>(i) % kColors);
    for (std::size_t i = 0; i < chart.items.size(); ++i)
        drawSliceLabel(chart.items[i], ring, (ends[i] + ends[i + 1]) / 2);
}

// Bars and texts are drawn with hard edges, as in this library's charts; a pie's are smooth. The
// numbers are cairo's: 0 is its default and 1 is none.
void setDriver(const CChartCase& chart, const std::string& picture)
{
    plsdev("pngcairo");
    plsfnam(picture.c_str());
    plspage(kDotsPerInch, kDotsPerInch, chart.width * chart.factor, chart.height * chart.factor, 0,
            0);
    plsetopt("drvopt", chart.kind == Pie ? "text_anti_aliasing=1,graphics_anti_aliasing=0"
                                         : "text_anti_aliasing=1,graphics_anti_aliasing=1");
}

CPictureBytes drawRound(const CChartCase& chart, const std::string& picture)
{
    setDriver(chart, picture);
    setColors();
    plinit();
    pladv(0);
    const double fontHeight = kFontPixels * chart.factor * kMillimetresPerInch / kDotsPerInch;
    plschr(kCharacterShare * fontHeight, 1.0);
    plwidth(chart.factor);
    switch (chart.kind) {
    case Bars:
        drawUpright(chart);
        break;
    case LyingBars:
        drawLying(chart);
        break;
    case Pie:
        drawPie(chart);
        break;
    }
    plend();
    return {};
}

} // namespace

} // namespace bench
} // namespace tovangl

int main(int count, char** arguments)
{
    return tovangl::bench::timeRounds(count, arguments, tovangl::bench::drawRound);
}
