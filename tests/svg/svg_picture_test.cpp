// SPDX-License-Identifier: MIT
// SVG pictures as files, beside the PNG pictures of the same charts.
#include "support/CAnyChart.h"
#include "support/mixed_charts.h"
#include "support/public_records.h"
#include "svg/parsed_svg.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <cmath>
#include <gmock/gmock.h>
#include <set>

namespace tovangl {
namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr int kWidth = 400;
constexpr int kHeight = 300;

class SvgPicture : public ::testing::TestWithParam<ChartKind>
{
protected:
    SvgPicture()
    {
        chart.addItem(34000, "usr");
        chart.addItem(12000, "var & lib");
        chart.addItem(9000, "home");
    }

    CAnyChart chart{GetParam(), true};
};

INSTANTIATE_TEST_SUITE_P(Kinds, SvgPicture, ::testing::ValuesIn(kChartKinds), [](const auto& kind) {
    return ::testing::PrintToString(static_cast<int>(kind.param));
});

TEST_P(SvgPicture, IsTheSameEachTime)
{
    const std::string first = chart.createSvg(kWidth, kHeight).bytes();
    (void)chart.createPixmap(kWidth, kHeight);
    EXPECT_EQ(chart.createSvg(kWidth, kHeight).bytes(), first);
}

TEST_P(SvgPicture, HasTheRegionsOfThePng)
{
    (void)chart.createPixmap(kWidth, kHeight);
    const auto captions = chart.itemRectangles();
    const auto bars = chart.itemBarRectangles();
    const std::string description = chart.graph().describe();
    (void)chart.createSvg(kWidth, kHeight);
    EXPECT_EQ(chart.itemRectangles(), captions);
    EXPECT_EQ(chart.itemBarRectangles(), bars);
    EXPECT_EQ(chart.graph().describe(), description);
}

TEST_P(SvgPicture, LeavesThePngAsItIs)
{
    const std::string before = chart.createPixmap(kWidth, kHeight).bytes();
    (void)chart.createSvg(kWidth, kHeight);
    EXPECT_EQ(chart.createPixmap(kWidth, kHeight).bytes(), before);
}

TEST_P(SvgPicture, MeasuresWhatThePngDoes)
{
    chart.graph().setScale(3);
    const CParsedSvg svg(chart.createSvg(kWidth, kHeight).bytes());
    EXPECT_EQ(svg.elements().at(0).number("width"), 3 * kWidth);
    EXPECT_EQ(svg.elements().at(0).number("height"), 3 * kHeight);
}

TEST_P(SvgPicture, CannotBeMadeInASizeThatNoPngHas)
{
    for (const int width : {0, -1, 1000001}) {
        const CExport picture = chart.createSvg(width, kHeight);
        EXPECT_NE(picture.data, nullptr);
        EXPECT_EQ(picture.size, 0);
        EXPECT_EQ(chart.graph().problem(), Problem::SizeOutOfRange);
    }
}

TEST_P(SvgPicture, IsBlankWithoutRoomForTheChart)
{
    const CParsedSvg svg(chart.createSvg(12, 12).bytes());
    EXPECT_EQ(svg.error(), QString());
    EXPECT_EQ(chart.graph().problem(), Problem::TooSmallForChart);
    EXPECT_THAT(svg.items(), IsEmpty());
    EXPECT_THAT(svg.all("rect"), SizeIs(1));
}

TEST_P(SvgPicture, HasAnIdForEachItemAndNoneTwice)
{
    const CParsedSvg svg(chart.createSvg(kWidth, kHeight).bytes());
    std::set<QString> ids;
    int count = 0;
    for (const CSvgElement& element : svg.elements()) {
        if (!element["id"].isEmpty()) {
            ids.insert(element["id"]);
            ++count;
        }
    }
    EXPECT_THAT(svg.items(), SizeIs(3));
    EXPECT_TRUE(svg.items().at(2)["id"].endsWith("-2"));
    EXPECT_THAT(ids, SizeIs(static_cast<std::size_t>(count)));
}

TEST_P(SvgPicture, SharesNoIdWithAnotherPicture)
{
    const CParsedSvg one(chart.createSvg(kWidth, kHeight).bytes());
    const CParsedSvg other(chart.createSvg(kWidth, kHeight + 1).bytes());
    for (const CSvgElement& element : one.elements()) {
        for (const CSvgElement& second : other.elements())
            EXPECT_TRUE(element["id"].isEmpty() || element["id"] != second["id"]);
    }
}

TEST_P(SvgPicture, DefinesNothingThatItDoesNotUse)
{
    for (const bool hasBackground : {false, true}) {
        chart.graph().setByName("background", hasBackground ? "true" : "false");
        const std::string bytes = chart.createSvg(kWidth, kHeight).bytes();
        for (const CSvgElement& fade : CParsedSvg(bytes).all("linearGradient"))
            EXPECT_NE(bytes.find("url(#" + fade["id"].toStdString() + ')'), std::string::npos);
        EXPECT_TRUE(hasBackground || CParsedSvg(bytes).all("linearGradient").empty());
    }
}

TEST(SvgSize, OfTwelveBarsIsSixKilobytesAtMost)
{
    VerticalBarGraph bars(true);
    for (const char* month : {"January", "February", "March", "April", "May", "June", "July",
                              "August", "September", "October", "November", "December"})
        bars.addItem(100 + 37 * static_cast<long>(month[1]), month);
    unsigned char* data = nullptr;
    int size = 0;
    bars.createSvg(800, 400, &data, &size);
    EXPECT_GT(size, 1000);
    EXPECT_LE(size, 6 * 1024);
}

int sizeOfPie(const std::vector<long>& megabytes)
{
    constexpr std::array<const char*, 8> kFolders = {"documents", "music", "videos",    "pictures",
                                                     "backups",   "mail",  "downloads", "cache"};
    PieGraph pie(true);
    for (std::size_t i = 0; i < megabytes.size(); ++i)
        pie.addItem(megabytes[i] << 20, kFolders.at(i));
    unsigned char* data = nullptr;
    int size = 0;
    pie.createSvg(600, 400, &data, &size);
    return size;
}

TEST(SvgSize, OfEightSlicesIsFiveKilobytesAtMost)
{
    for (const auto& megabytes : {std::vector<long>{400, 1300, 2200, 1600, 200, 1300, 400, 300},
                                  std::vector<long>{700, 500, 900, 350, 250, 150, 100, 200}}) {
        const int size = sizeOfPie(megabytes);
        EXPECT_GT(size, 1000);
        EXPECT_LE(size, 5 * 1024);
    }
}

// A stroke of an odd width then covers whole pixels, and one of an even width too.
TEST(SvgBars, AreOutlinedAlongTheMiddleOfAnOddStroke)
{
    for (const int scale : {1, 2, 3}) {
        CAnyChart chart(ChartKind::HorizontalBars);
        chart.graph().setScale(scale);
        chart.addItem(3, "a");
        const CParsedSvg svg(chart.createSvg(kWidth, kHeight).bytes());
        const CSvgElement bar = svg.children(svg.items().at(0), "rect").at(0);
        const double beside = scale % 2 == 0 ? 0 : 0.5;
        EXPECT_EQ(bar.number("x") - std::floor(bar.number("x")), beside) << scale;
        EXPECT_EQ(bar.number("y") - std::floor(bar.number("y")), beside) << scale;
    }
}

TEST(SvgBars, HaveCrispEdgesInAViewOfAnySize)
{
    for (const ChartKind kind : {ChartKind::VerticalBars, ChartKind::HorizontalBars}) {
        CAnyChart chart(kind);
        chart.addItem(3, "a");
        const CParsedSvg svg(chart.createSvg(kWidth, kHeight).bytes());
        EXPECT_EQ(svg.all("g").at(0)["shape-rendering"], QString("crispEdges"));
    }
}

// Shapes in the colour of the outlines.
std::vector<CSvgElement> rimsOf(const CParsedSvg& svg, const QString& color)
{
    std::vector<CSvgElement> rims;
    for (const CSvgElement& path : svg.all("path")) {
        if (path["fill"] == color)
            rims.push_back(path);
    }
    return rims;
}

// Two level sides, one pixel wide, and half a circle, along which the width varies between that and
// the one of a diagonal: (2 + pi * 0.9003) / (2 + pi).
TEST(SvgPies, AreOutlinedInTheMeanWidthOfAPaintedSlice)
{
    CAnyChart chart(ChartKind::Pie);
    chart.graph().setByName("outline_color", "#8090a0");
    for (const char* caption : {"a", "b"})
        chart.addItem(3, caption, Color{0x60, 0x80, 0xa0}, Color());
    const CParsedSvg svg(chart.createSvg(kWidth, kHeight).bytes());
    for (const CSvgElement& item : svg.items())
        EXPECT_NEAR(svg.children(item, "path").at(0).number("stroke-width"), 0.94, 0.01);
    EXPECT_THAT(rimsOf(svg, "#8090a0"), IsEmpty());
}

TEST(SvgPies, HaveRimsOfTheirOwnWhereOutlinesStandOut)
{
    CAnyChart chart(ChartKind::Pie);
    chart.graph().setByName("outline_color", "#000000");
    for (const char* caption : {"a", "b"})
        chart.addItem(3, caption, Color{255, 255, 0}, Color());
    const CParsedSvg svg(chart.createSvg(kWidth, kHeight).bytes());
    EXPECT_THAT(rimsOf(svg, "#000"), SizeIs(2));
}

// Each slice has one level edge and one upright one, as long as half of the pie is wide.
TEST(SvgPies, StrokeTheirSlicesAlongTheEdgesAloneBelowSuchRims)
{
    CAnyChart chart(ChartKind::Pie);
    chart.graph().setByName("outline_color", "#000000");
    for (int i = 0; i < 4; ++i)
        chart.addItem(3, "a", Color{255, 255, 0}, Color());
    const CParsedSvg svg(chart.createSvg(kWidth, kHeight).bytes());
    const double radius = chart.slices().front().width / 2;
    for (const CSvgElement& item : svg.items()) {
        const QStringList dashes =
            svg.children(item, "path").at(0)["stroke-dasharray"].split(QLatin1Char(' '));
        ASSERT_THAT(dashes, SizeIs(2));
        EXPECT_NEAR(dashes[0].toDouble(), radius, 1);
        EXPECT_NEAR(dashes[1].toDouble(), radius * M_PI / 2, 1);
    }
}

TEST(SvgPies, HaveNoLineToACaptionThatIsHidden)
{
    constexpr int kSlices = 90;
    CAnyChart chart(ChartKind::Pie);
    for (int i = 0; i < kSlices; ++i)
        chart.addItem(1, "caption");
    const CParsedSvg svg(chart.createSvg(kWidth, kHeight).bytes());
    long lines = 0;
    for (const CSvgElement& path : svg.all("path"))
        lines += path["stroke-dasharray"].isEmpty() ? 0 : 1;
    const auto captions = chart.itemRectangles();
    const auto hidden = std::count_if(captions.begin(), captions.end(),
                                      [](const Rectangle& rect) { return rect.width == 0; });
    EXPECT_GT(hidden, 0);
    EXPECT_EQ(lines, kSlices - hidden);
}

TEST(SvgPies, HaveABackgroundThatIsAsRoundAtEveryScale)
{
    CAnyChart chart(ChartKind::Pie, true);
    chart.addItem(3, "a");
    const CParsedSvg once(chart.createSvg(kWidth, kHeight).bytes());
    chart.graph().setScale(3);
    const CParsedSvg thrice(chart.createSvg(kWidth, kHeight).bytes());
    ASSERT_GT(once.all("rect").back().number("rx"), 0);
    EXPECT_EQ(thrice.all("rect").back().number("rx"), 3 * once.all("rect").back().number("rx"));
}

TEST(SvgFont, HasTheSizeOfTheSystemWhereTheHostWantsThat)
{
    CAnyChart chart(ChartKind::Pie);
    chart.addItem(3, "a");
    chart.graph().setFont("DejaVu Sans", 0);
    const CParsedSvg svg(chart.createSvg(kWidth, kHeight).bytes());
    EXPECT_GT(svg.elements().at(0).number("font-size"), 5);
}

TEST(SvgNumbers, HaveAtMostTwoDecimals)
{
    PieGraph pie(true);
    for (int i = 1; i < 9; ++i)
        pie.addItem(i * i * 7, "item " + std::to_string(i));
    unsigned char* data = nullptr;
    int size = 0;
    pie.createSvg(333, 271, &data, &size);
    const std::string svg(reinterpret_cast<char*>(data), static_cast<std::size_t>(size));
    int digits = 0;
    bool isBehindPoint = false;
    for (const char character : svg) {
        const bool isDigit = character >= '0' && character <= '9';
        digits = isDigit && isBehindPoint ? digits + 1 : 0;
        isBehindPoint = character == '.' || (isDigit && isBehindPoint);
        ASSERT_LE(digits, 2);
    }
}

} // namespace
} // namespace tovangl
