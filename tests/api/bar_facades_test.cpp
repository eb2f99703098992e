// SPDX-License-Identifier: MIT
// The facades of the two bar charts.
#include "chart/CBarBase.h"
#include "support/host_pictures.h"
#include <tovangl/tovangl.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <type_traits>

namespace tovangl {
namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr Color kRed{255, 0, 0};
constexpr Color kBlack{0, 0, 0};
constexpr Color kBlue{0, 0, 255};
constexpr Color kNoColor{256, 0, 0};

// The facade, with its chart in sight.
template <typename Facade>
class CShownFacade : public Facade
{
public:
    explicit CShownFacade(bool background = false)
        : Facade(background)
    {}
    using Facade::getGraph;

    [[nodiscard]] const CBarInput& input() const { return getGraph()->input(); }
    // The one that was added last.
    [[nodiscard]] const CGraph1dItem& item() const { return input().items.back(); }
    [[nodiscard]] QColor fillColor() const { return input().fillColor(input().items.size() - 1); }
    [[nodiscard]] QColor outlineColor() const
    {
        return input().outlineColor(input().items.size() - 1);
    }
};

using CVerticalFacade = CShownFacade<VerticalBarGraph>;
using CHorizontalFacade = CShownFacade<HorizontalBarGraph>;

template <typename Facade>
class BarFacade : public ::testing::Test
{};

struct CFacadeNames
{
    template <typename Facade>
    static std::string GetName(int)
    {
        return std::is_same_v<Facade, CVerticalFacade> ? "Vertical" : "Horizontal";
    }
};

using Facades = ::testing::Types<CVerticalFacade, CHorizontalFacade>;
TYPED_TEST_SUITE(BarFacade, Facades, CFacadeNames);

int pixelsOf(const QImage& image, QRgb color)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixel(x, y) == color;
    }
    return count;
}

TYPED_TEST(BarFacade, CannotBeCopied)
{
    static_assert(!std::is_copy_constructible_v<TypeParam>);
    static_assert(!std::is_copy_assignable_v<TypeParam>);
    static_assert(std::has_virtual_destructor_v<TypeParam>);
}

TYPED_TEST(BarFacade, HasAChartFromItsConstructionOn)
{
    const TypeParam plain(false);
    const TypeParam decorated(true);
    EXPECT_FALSE(plain.input().settings.hasBackground);
    EXPECT_TRUE(decorated.input().settings.hasBackground);
}

TYPED_TEST(BarFacade, FirstThreeBarsHaveTheFirstThreeDefaultColours)
{
    TypeParam chart;
    EXPECT_TRUE(chart.addItem(3, "a"));
    EXPECT_EQ(chart.fillColor(), QColor(23, 52, 124));
    chart.addItem(2, "b");
    EXPECT_EQ(chart.fillColor(), QColor(91, 115, 176));
    chart.addItem(1, "c");
    EXPECT_EQ(chart.fillColor(), QColor(174, 191, 234));
    EXPECT_EQ(chart.outlineColor(), QColor(174, 191, 234).darker(150));
}

TYPED_TEST(BarFacade, OwnColoursAreDrawn)
{
    TypeParam chart;
    EXPECT_TRUE(chart.addItem(3, "", kRed, kBlue));
    const QImage image = render(chart);
    const Rectangle bar = chart.getBarRectangle()->front();
    EXPECT_EQ(image.pixel(bar.x + bar.width / 2, bar.y + bar.height / 2), 0xffff0000);
    EXPECT_EQ(image.pixel(bar.x + bar.width / 2, bar.y), 0xff0000ff);
}

TYPED_TEST(BarFacade, ColourOutOfRangeCountsAsNotSet)
{
    TypeParam chart;
    chart.addItem(3, "", kNoColor, kNoColor);
    EXPECT_EQ(chart.fillColor(), QColor(23, 52, 124));
    EXPECT_EQ(chart.outlineColor(), QColor(23, 52, 124).darker(150));
}

TYPED_TEST(BarFacade, CaptionIsUtf8OfItsWholeLength)
{
    TypeParam chart;
    chart.addItem(3, std::string("\xC3\xA9\0b", 4));
    EXPECT_EQ(chart.item().text, QString::fromUtf8("\xC3\xA9\0b", 4));
}

TYPED_TEST(BarFacade, NegativeBarWidthIsZero)
{
    TypeParam chart;
    EXPECT_EQ(chart.barWidth(), 0);
    chart.setBarWidth(12);
    EXPECT_EQ(chart.barWidth(), 12);
    chart.setBarWidth(-4);
    EXPECT_EQ(chart.barWidth(), 0);
}

TYPED_TEST(BarFacade, PositionReachesTheChart)
{
    TypeParam chart;
    chart.setPosition(-5, 3);
    EXPECT_EQ(chart.input().position, QPoint(-1, 3));
}

TYPED_TEST(BarFacade, VerticalAxisReachesTheChart)
{
    TypeParam chart;
    chart.setVerticalAxis(AxisProperty::ShowTitle + AxisProperty::BoldTitle, "t\xC3\xA9");
    EXPECT_EQ(chart.input().verticalAxis.properties,
              CAxisSettings::ShowTitle | CAxisSettings::BoldTitle);
    EXPECT_EQ(chart.input().verticalAxis.title, QString::fromUtf8("t\xC3\xA9"));
}

TYPED_TEST(BarFacade, BitsWithoutAMeaningAreKept)
{
    TypeParam chart;
    chart.setVerticalAxis(-1, "");
    EXPECT_EQ(int(chart.input().verticalAxis.properties), -1);
    EXPECT_FALSE(render(chart).isNull());
}

TYPED_TEST(BarFacade, TextColourReachesAxesAndValues)
{
    TypeParam chart;
    chart.addItem(3, "caption", {255, 255, 255}, {255, 255, 255});
    EXPECT_GT(pixelsOf(render(chart), 0xff000000), 100);
    chart.setColor(kRed);
    const QImage red = render(chart);
    EXPECT_EQ(pixelsOf(red, 0xff000000), 0);
    EXPECT_GT(pixelsOf(red, 0xffff0000), 100);
    chart.setColor(kBlack);
    EXPECT_EQ(pixelsOf(render(chart), 0xffff0000), 0);
}

TYPED_TEST(BarFacade, HasNoBarRectanglesBeforeAnExport)
{
    TypeParam chart;
    chart.addItem(3, "a");
    EXPECT_THAT(copied(chart.getBarRectangle()), IsEmpty());
    EXPECT_EQ(copied(chart.getRectangle()), std::vector<Rectangle>{kNoRectangle});
}

TYPED_TEST(BarFacade, BarRectanglesAreThoseOfTheChart)
{
    TypeParam chart;
    chart.addItem(100, "a");
    (void)render(chart);
    const QRect bar = chart.getGraph()->layout().bars.front().rect;
    EXPECT_EQ(copied(chart.getBarRectangle()),
              (std::vector<Rectangle>{{bar.left(), bar.top(), bar.width(), bar.height()}}));
}

TYPED_TEST(BarFacade, BarRectangleListIsOneAndTheSame)
{
    TypeParam chart;
    chart.addItem(3, "a");
    const std::list<Rectangle>* before = chart.getBarRectangle();
    (void)render(chart);
    EXPECT_EQ(chart.getBarRectangle(), before);
    EXPECT_THAT(copied(before), SizeIs(1));
}

TYPED_TEST(BarFacade, ClearRemovesTheBarsAndKeepsTheSettings)
{
    TypeParam chart;
    chart.addItem(3, "a");
    chart.setBarWidth(12);
    (void)render(chart);
    chart.clear();
    EXPECT_THAT(copied(chart.getBarRectangle()), IsEmpty());
    EXPECT_THAT(copied(chart.getRectangle()), IsEmpty());
    EXPECT_EQ(chart.barWidth(), 12);
}

TYPED_TEST(BarFacade, LocaleCanChangeBetweenTwoExports)
{
    TypeParam chart;
    chart.addItem(1234567, "a");
    chart.setLocale("en", "us");
    const QImage english = render(chart);
    chart.setLocale("de", "de");
    EXPECT_FALSE(render(chart).isNull());
    chart.setLocale("en", "us");
    EXPECT_EQ(render(chart), english);
}

TYPED_TEST(BarFacade, TakesAnyNumber)
{
    TypeParam chart(true);
    constexpr int kMost = std::numeric_limits<int>::max();
    constexpr int kLeast = std::numeric_limits<int>::min();
    chart.addItem(std::numeric_limits<long>::min(), "a");
    chart.addItem(std::numeric_limits<long>::max(), "b");
    chart.setVerticalAxis(kLeast, "");
    for (const int extreme : {kLeast, -1, 0, kMost}) {
        chart.setPosition(extreme, extreme);
        chart.setBarWidth(extreme);
        EXPECT_FALSE(render(chart, 60, 50).isNull());
    }
}

// --- each kind for itself

TEST(VerticalBarGraph, HasAChartOfStandingBars)
{
    CVerticalFacade chart;
    chart.addItem(3, "a");
    chart.addItem(3, "b");
    (void)render(chart);
    const Rectangle first = chart.getBarRectangle()->front();
    const Rectangle second = chart.getBarRectangle()->back();
    EXPECT_EQ(first.y, second.y);
    EXPECT_LT(first.x + first.width, second.x);
}

TEST(VerticalBarGraph, HorizontalAxisIsThatOfTheCategories)
{
    CVerticalFacade chart;
    chart.addItem(3, "a");
    chart.setHorizontalAxis(AxisProperty::ShowTitle, "categories");
    chart.setVerticalAxis(AxisProperty::ShowLine, "values");
    (void)render(chart);
    const CBarLayout& layout = chart.getGraph()->layout();
    EXPECT_EQ(layout.categoryAxis->title.getText(), QString("categories"));
    EXPECT_FALSE(layout.categoryAxis->line);
    EXPECT_TRUE(layout.numberAxis->line);
    EXPECT_TRUE(layout.numberAxis->texts.empty());
    EXPECT_EQ(chart.input().verticalAxis.title, QString("values"));
}

TEST(VerticalBarGraph, CaptionsStandBelowTheirBars)
{
    CVerticalFacade chart;
    chart.addItem(3, "a");
    (void)render(chart);
    const Rectangle bar = chart.getBarRectangle()->front();
    const Rectangle caption = chart.getRectangle()->front();
    EXPECT_GT(caption.y, bar.y + bar.height);
    EXPECT_NEAR(caption.x + caption.width / 2, bar.x + bar.width / 2, 1);
}

// Whether a facade lets the host change its horizontal axis.
template <typename Facade, typename = void>
struct HasHorizontalAxis : std::false_type
{};

template <typename Facade>
struct HasHorizontalAxis<
    Facade, std::void_t<decltype(std::declval<Facade>().setHorizontalAxis(0, std::string()))>>
    : std::true_type
{};

static_assert(HasHorizontalAxis<VerticalBarGraph>::value);
static_assert(!HasHorizontalAxis<HorizontalBarGraph>::value,
              "the values stand beside the bars, and the scale cannot be changed");

TEST(HorizontalBarGraph, HasAChartOfLyingBars)
{
    CHorizontalFacade chart;
    chart.addItem(3, "a");
    chart.addItem(3, "b");
    (void)render(chart);
    const Rectangle first = chart.getBarRectangle()->front();
    const Rectangle second = chart.getBarRectangle()->back();
    EXPECT_EQ(first.x, second.x);
    EXPECT_LT(first.y + first.height, second.y);
}

TEST(HorizontalBarGraph, VerticalAxisIsThatOfTheCategories)
{
    CHorizontalFacade chart;
    chart.addItem(3, "a");
    chart.setVerticalAxis(AxisProperty::ShowTitle, "categories");
    (void)render(chart);
    const CBarLayout& layout = chart.getGraph()->layout();
    EXPECT_EQ(layout.categoryAxis->title.getText(), QString("categories"));
    EXPECT_EQ(layout.numberAxis->title.getText(), QString());
    EXPECT_TRUE(layout.numberAxis->line);
    EXPECT_TRUE(layout.numberAxis->texts.empty());
}

TEST(HorizontalBarGraph, CaptionsStandLeftOfTheirBars)
{
    CHorizontalFacade chart;
    chart.addItem(3, "a");
    (void)render(chart);
    const Rectangle bar = chart.getBarRectangle()->front();
    const Rectangle caption = chart.getRectangle()->front();
    EXPECT_LT(caption.x + caption.width, bar.x);
    EXPECT_NEAR(caption.y + caption.height / 2, bar.y + bar.height / 2, 1);
}

} // namespace
} // namespace tovangl
