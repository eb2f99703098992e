// SPDX-License-Identifier: MIT
// For a display of high density, a chart looks the same, with more pixels.
#include "layout/captions.h"
#include "looks/chart_decisions.h"
#include "support/CBarChart.h"
#include "support/CDice.h"
#include "support/CTestPie.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>

namespace tovangl {
namespace {

constexpr int kCharts = 500;
constexpr std::array<const char*, 9> kCaptions = {
    "",      "usr", "January",           "Größe", "/var/lib/a rather long folder name",
    "Αθήνα", "Q3",  "Wien Hauptbahnhof", "a b"};

CRequest scaled(const CRequest& request, int scale)
{
    return {request.width * scale, request.height * scale, scale, request.device, request.kilo};
}

// Half of an even width is whole at any scale.
CRequest rollRequest(CDice& dice)
{
    return onScreen(2 * dice.roll(30, 350), 2 * dice.roll(20, 200));
}

void rollItems(CGraph1dInput& input, CDice& dice)
{
    input.settings.setFont(dice.oneIn(2) ? QString("Tahoma") : QString("DejaVu Sans"),
                           dice.roll(8, 20));
    input.settings.setLocale(QString("en"), QString("us"));
    const int count = dice.roll(1, 24);
    for (int i = 0; i < count; ++i) {
        const int value = dice.oneIn(9) ? -dice.roll(0, 5000) : dice.roll(1, 90000);
        input.addItem(value, QString::fromUtf8(dice.pick(kCaptions)), QColor(), QColor());
    }
}

CBarChart rollBars(CDice& dice)
{
    CBarChart chart(dice.oneIn(2) ? BarKind::Standing : BarKind::Lying, dice.oneIn(2));
    rollItems(chart.input, dice);
    if (dice.oneIn(3)) {
        chart.input.verticalAxis.properties |= CAxisSettings::ShowTitle;
        chart.input.verticalAxis.title = QString("Title of the axis");
    }
    if (dice.oneIn(4))
        chart.input.setBarWidth(dice.roll(1, 40));
    return chart;
}

CPieInput rollPie(CDice& dice)
{
    CPieInput pie(dice.oneIn(2));
    rollItems(pie, dice);
    for (const CPieInput::Option option :
         {CPieInput::ShortenFromLeft, CPieInput::RemoveLabelOverlaps, CPieInput::ShowSizes})
        pie.options.setFlag(option, dice.oneIn(2));
    return pie;
}

TEST(Scale, MeasuresTextsAsMuchLargerThoughGlyphsAreWholePixelsWide)
{
    QImage image(1, 1, QImage::Format_ARGB32);
    CCanvas once(image, CGraph1dSettings(), CRequest());
    QImage other(1, 1, QImage::Format_ARGB32);
    CCanvas twice(other, CGraph1dSettings(), scaled(CRequest(), 2));
    for (const bool isBold : {false, true}) {
        const QString text("January");
        const QSizeF size = once.measurer().boundingRect(text, isBold).size();
        EXPECT_EQ(twice.measurer().boundingRect(text, isBold).size(), 2 * size);
    }
    EXPECT_EQ(twice.measurer().fontHeight(), 2 * once.measurer().fontHeight());
}

TEST(Scale, ChangesNoDecisionOfAPie)
{
    for (unsigned seed = 0; seed < kCharts; ++seed) {
        CDice dice(seed);
        const CPieInput pie = rollPie(dice);
        const CRequest request = rollRequest(dice);
        EXPECT_EQ(decisionsOf(layOut(pie, request)), decisionsOf(layOut(pie, scaled(request, 2))))
            << "chart " << seed;
    }
}

// Axes end on a pixel, not at its far edge, so a span is twice as long less one: a label that just
// fits at one scale can just miss at the other.
TEST(Scale, ChangesADecisionOfBarsOnlyWhereOnePixelTipsIt)
{
    constexpr int kMostTipped = kCharts * 3 / 100;
    int tipped = 0;
    for (unsigned seed = 0; seed < kCharts; ++seed) {
        CDice dice(seed);
        const CBarChart chart = rollBars(dice);
        const CRequest request = rollRequest(dice);
        const bool isSame =
            decisionsOf(chart.layout(request)) == decisionsOf(chart.layout(scaled(request, 2)));
        tipped += isSame ? 0 : 1;
    }
    EXPECT_LE(tipped, kMostTipped);
}

// How far the edges of a rectangle are from twice those of the other.
int distanceFromTwice(const QRect& once, const QRect& twice)
{
    if (once.isNull() || twice.isNull())
        return once.isNull() == twice.isNull() ? 0 : twice.width() + once.width();
    return std::max({std::abs(twice.left() - 2 * once.left()),
                     std::abs(twice.top() - 2 * once.top()),
                     std::abs(twice.right() + 1 - 2 * (once.right() + 1)),
                     std::abs(twice.bottom() + 1 - 2 * (once.bottom() + 1))});
}

// Of edges that are truncated to whole pixels in several steps.
constexpr int kRounding = 5; // pixels at scale 2

TEST(Scale, DoublesTheRectanglesOfBars)
{
    for (unsigned seed = 0; seed < kCharts; ++seed) {
        CDice dice(seed);
        const CBarChart chart = rollBars(dice);
        const CRequest request = rollRequest(dice);
        const CBarLayout once = chart.layout(request);
        const CBarLayout twice = chart.layout(scaled(request, 2));
        if (decisionsOf(once) != decisionsOf(twice) || !once.fits())
            continue;
        EXPECT_LE(distanceFromTwice(once.plotRect, twice.plotRect), kRounding) << seed;
        const std::vector<QRect> captions = captionRects(once);
        const std::vector<QRect> captionsTwice = captionRects(twice);
        for (std::size_t i = 0; i < once.bars.size(); ++i) {
            EXPECT_LE(distanceFromTwice(once.bars[i].rect, twice.bars[i].rect), kRounding) << seed;
            EXPECT_LE(distanceFromTwice(captions[i], captionsTwice[i]), kRounding) << seed;
        }
    }
}

TEST(Scale, DoublesThePieAndTheRectanglesOfItsCaptions)
{
    for (unsigned seed = 0; seed < kCharts; ++seed) {
        CDice dice(seed);
        const CPieInput pie = rollPie(dice);
        const CRequest request = rollRequest(dice);
        const CPieLayout once = layOut(pie, request);
        const CPieLayout twice = layOut(pie, scaled(request, 2));
        EXPECT_NEAR(twice.drawnPieRect.width(), 2 * once.drawnPieRect.width(), 1e-6) << seed;
        EXPECT_NEAR(twice.drawnPieRect.x(), 2 * once.drawnPieRect.x(), 1e-6) << seed;
        for (std::size_t i = 0; i < once.labels.size(); ++i)
            EXPECT_LE(distanceFromTwice(once.labels[i].itemRect, twice.labels[i].itemRect),
                      kRounding)
                << seed;
    }
}

// Letters of a magnified text can be wider than twice the small ones, and a title has one line.
TEST(Scale, LeavesATitleRoomToGrowToEitherSide)
{
    CPieInput pie(false);
    pie.addItem(1, "one", QColor(), QColor());
    pie.settings.title = QString("Sales and losses");
    const CPieLayout once = layOut(pie, onScreen(400, 300));
    EXPECT_EQ(roomWithSlack(once.title->text), toRoom(once.title->rect));
    const CPieLayout twice = layOut(pie, scaled(onScreen(400, 300), 2));
    const QRectF room = roomWithSlack(twice.title->text);
    EXPECT_GT(room.width(), 1.1 * twice.title->rect.width());
    EXPECT_EQ(room.center(), toRoom(twice.title->rect).center());
}

TEST(Scale, DoublesTheWidthsOfAllLines)
{
    CDice dice(1);
    CBarChart bars(BarKind::Standing, true);
    rollItems(bars.input, dice);
    const CBarLayout barLayout = bars.layout(scaled(onScreen(400, 300), 2));
    EXPECT_EQ(barLayout.lineWidth, 2);
    EXPECT_EQ(barLayout.categoryAxis->line->width, 2);
    EXPECT_EQ(barLayout.gridLines.front().width, 2);
    const CPieInput pie = rollPie(dice);
    const CPieLayout once = layOut(pie, onScreen(400, 300));
    const CPieLayout twice = layOut(pie, scaled(onScreen(400, 300), 2));
    EXPECT_EQ(twice.outlineWidth, 2 * once.outlineWidth);
    EXPECT_EQ(twice.beamWidth, 2 * once.beamWidth);
    EXPECT_EQ(twice.textLineWidth, 2 * once.textLineWidth);
}

// The mean of the four pixels that stand for one.
int meanRed(const QImage& twice, int x, int y)
{
    int sum = 0;
    for (const QPoint& offset : {QPoint(0, 0), QPoint(1, 0), QPoint(0, 1), QPoint(1, 1)})
        sum += qRed(twice.pixel(QPoint(2 * x, 2 * y) + offset));
    return sum / 4;
}

double meanDifference(const QImage& once, const QImage& twice)
{
    double sum = 0;
    for (int y = 0; y < once.height(); ++y) {
        for (int x = 0; x < once.width(); ++x)
            sum += std::abs(qRed(once.pixel(x, y)) - meanRed(twice, x, y));
    }
    return sum / once.width() / once.height();
}

// Without texts, which the font above draws as boxes.
CPieInput pieWithoutTexts(bool hasBackground)
{
    CPieInput pie(hasBackground);
    pie.options = CPieInput::Options();
    for (const int value : {10, 20, 30, 40})
        pie.addItem(value, QString(), QColor(), QColor());
    return pie;
}

CBarChart barsWithoutTexts(BarKind kind, bool hasBackground)
{
    CBarChart chart(kind, hasBackground);
    for (const int value : {10, 20, 30, 40})
        chart.add(value, "");
    chart.input.verticalAxis.properties = CAxisSettings::ShowLine;
    return chart;
}

// Gradients, round corners, dotted lines and all.
TEST(Scale, GivesThePictureOfScaleOneWhenItIsShrunkAgain)
{
    constexpr double kAlike = 1; // of 255
    constexpr double kShiftedByRounding = 3;
    const CRequest request = onScreen(300, 200);
    for (const bool hasBackground : {false, true}) {
        const CPieInput pie = pieWithoutTexts(hasBackground);
        EXPECT_LT(meanDifference(drawn(pie, request).image, drawn(pie, scaled(request, 2)).image),
                  kAlike);
        for (const BarKind kind : {BarKind::Standing, BarKind::Lying}) {
            const CBarChart bars = barsWithoutTexts(kind, hasBackground);
            EXPECT_LT(
                meanDifference(bars.drawn(request).image, bars.drawn(scaled(request, 2)).image),
                kShiftedByRounding);
        }
    }
}

} // namespace
} // namespace tovangl
