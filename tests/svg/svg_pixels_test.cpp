// SPDX-License-Identifier: MIT
// Where the shapes of SVG pictures are, as another renderer draws them.
#include "support/CAnyChart.h"
#include "support/CDice.h"
#include "support/png_decoding.h"
#include "svg/parsed_svg.h"
#include "svg/rendered_svg.h"

#include <gtest/gtest.h>

namespace tovangl {
namespace {

constexpr double kMostBars = 99.98;  // per cent of the pixels; a letter can reach out of its box
constexpr double kMostPies = 99.7;   // pies have smoothed edges, and two renderers smooth them
constexpr double kMostDiscs = 99.65; // with black outlines
constexpr double kMostOrdinaryPies = 99.8;

CAnyChart randomChart(ChartKind kind, CDice& dice)
{
    constexpr std::array<const char*, 5> kCaptions = {"usr", "/var/lib/a long folder name",
                                                      "two\nlines", "Größe & Maß",
                                                      "\xd8\xa7\xd9\x84\xd8\xb9"};
    CAnyChart chart(kind, dice.oneIn(2));
    for (int count = dice.roll(1, 12); count > 0; --count) {
        const char* caption = dice.pick(kCaptions); // first, whichever compiler it is
        chart.addItem(dice.roll(0, 90000), caption);
    }
    if (dice.oneIn(3))
        chart.graph().setTitle("A title");
    if (dice.oneIn(3))
        chart.setProperties(0x1ff, "Megabytes");
    if (dice.oneIn(4))
        chart.graph().setScale(dice.roll(2, 4));
    if (dice.oneIn(4))
        chart.graph().setTheme(static_cast<Theme>(dice.roll(0, 3)));
    return chart;
}

CPixelComparison compare(CAnyChart& chart, int width, int height)
{
    const QImage painted = decodePng(chart.createPixmap(width, height).bytes());
    const std::string svg = chart.createSvg(width, height).bytes();
    const QImage drawn = renderedSvg(svg);
    EXPECT_EQ(drawn.size(), painted.size());
    return drawn.size() == painted.size()
               ? comparePixels(painted, drawn, textBoxes(CParsedSvg(svg)))
               : CPixelComparison();
}

class SvgPixels : public ::testing::TestWithParam<unsigned>
{};

INSTANTIATE_TEST_SUITE_P(Charts, SvgPixels, ::testing::Range(0U, 20U));

TEST_P(SvgPixels, OfBarsAreThoseOfThePng)
{
    for (const ChartKind kind : {ChartKind::VerticalBars, ChartKind::HorizontalBars}) {
        CDice dice(GetParam());
        CAnyChart chart = randomChart(kind, dice);
        const int width = dice.roll(200, 640);
        const CPixelComparison result = compare(chart, width, dice.roll(150, 480));
        EXPECT_GT(result.compared, 1000);
        EXPECT_GE(result.share(), kMostBars) << nameOf(kind);
    }
}

// A random pie beside its PNG.
CPixelComparison comparePies(unsigned seed)
{
    CDice dice(seed);
    CAnyChart chart = randomChart(ChartKind::Pie, dice);
    const int width = dice.roll(300, 640);
    return compare(chart, width, dice.roll(250, 480));
}

TEST_P(SvgPixels, OfPiesAreThoseOfThePngButForSmoothing)
{
    const CPixelComparison result = comparePies(GetParam());
    EXPECT_GT(result.compared, 1000);
    EXPECT_GE(result.share(), kMostPies);
    EXPECT_LE(static_cast<double>(result.moved), 0.001 * static_cast<double>(result.compared));
}

// Some lines of these pies are upright or level, and others are diagonals, which are thinner.
TEST(SvgPixelsOfPiesWithLinesOfManyDirections, AreNearlyAllThoseOfThePng)
{
    for (const unsigned seed : {42U, 83U, 126U, 181U})
        EXPECT_GE(comparePies(seed).share(), kMostOrdinaryPies) << seed;
}

// Dark outlines on light slices, which are painted in another thickness in each direction.
TEST(SvgPixelsOfPiesWithOutlinesThatStandOut, AreNearlyAllThoseOfThePng)
{
    for (const unsigned seed : {46U, 140U, 148U, 185U})
        EXPECT_GE(comparePies(seed).share(), kMostOrdinaryPies) << seed;
}

// A reader that looked for the centre of half a turn would not always find it.
TEST(SvgPixelsOfAWholeDisc, AreThoseOfThePngButForSmoothing)
{
    CAnyChart pie(ChartKind::Pie);
    pie.addItem(5, "all");
    pie.graph().setByName("outline_color", "#000000");
    for (int width = 300; width < 460; width += 8)
        EXPECT_GE(compare(pie, width, 3 * width / 4 + width % 7).share(), kMostDiscs) << width;
}

TEST(SvgPixelsOfOrdinaryBars, AreAllThoseOfThePng)
{
    for (const ChartKind kind : {ChartKind::VerticalBars, ChartKind::HorizontalBars}) {
        for (const int scale : {1, 2, 3}) {
            CAnyChart bars(kind, true);
            bars.graph().setScale(scale);
            for (const long value : {734L, 524L, 943L})
                bars.addItem(value, "");
            EXPECT_EQ(compare(bars, 300, 200).different, 0) << nameOf(kind) << ' ' << scale;
        }
    }
}

// Most lines between such a pie and its texts are slanted.
TEST(SvgPixelsOfACrowdedPie, AreNearlyAllThoseOfThePng)
{
    CAnyChart pie(ChartKind::Pie);
    for (const long megabytes : {421L, 127L, 37L, 118L, 493L, 732L, 208L, 457L})
        pie.addItem(megabytes << 20, "a folder");
    EXPECT_GE(compare(pie, 340, 240).share(), kMostOrdinaryPies);
}

TEST(SvgPixelsOfAnOrdinaryPie, AreNearlyAllThoseOfThePng)
{
    CAnyChart pie(ChartKind::Pie, true);
    for (const long megabytes : {734L, 524L, 943L, 310L, 250L, 205L, 120L, 104L})
        pie.addItem(megabytes << 20, "a folder");
    EXPECT_GE(compare(pie, 600, 400).share(), kMostOrdinaryPies);
}

} // namespace
} // namespace tovangl
