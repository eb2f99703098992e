// SPDX-License-Identifier: MIT
// What both bar chart facades do alike.
#include "api/bar_facade_support.h"

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
constexpr Rectangle kNothing{0, 0, 0, 0};

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

// The rectangles as a value.
std::vector<Rectangle> copied(const std::list<Rectangle>* list)
{
    return {list->begin(), list->end()};
}

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
    ASSERT_NE(plain.getGraph(), nullptr);
    EXPECT_FALSE(plain.getGraph()->hasBackground());
    EXPECT_TRUE(decorated.getGraph()->hasBackground());
}

TYPED_TEST(BarFacade, FirstThreeBarsHaveTheFirstThreeDefaultColours)
{
    TypeParam chart;
    EXPECT_TRUE(chart.addItem(3, "a"));
    EXPECT_EQ(chart.item().color(), QColor(23, 52, 124));
    chart.addItem(2, "b");
    EXPECT_EQ(chart.item().color(), QColor(91, 115, 176));
    chart.addItem(1, "c");
    EXPECT_EQ(chart.item().color(), QColor(174, 191, 234));
    EXPECT_EQ(chart.item().outlineColor(), QColor(174, 191, 234).darker(150));
}

TYPED_TEST(BarFacade, OwnColoursAreDrawn)
{
    TypeParam chart;
    EXPECT_TRUE(chart.addItem(3, "", kRed, kBlue));
    const QImage image = chart.exported();
    const Rectangle bar = chart.getBarRectangle()->front();
    EXPECT_EQ(image.pixel(bar.x + bar.width / 2, bar.y + bar.height / 2), 0xffff0000);
    EXPECT_EQ(image.pixel(bar.x + bar.width / 2, bar.y), 0xff0000ff);
}

TYPED_TEST(BarFacade, ColourOutOfRangeCountsAsNotSet)
{
    TypeParam chart;
    chart.addItem(3, "", kNoColor, kNoColor);
    EXPECT_EQ(chart.item().color(), QColor(23, 52, 124));
    EXPECT_EQ(chart.item().outlineColor(), QColor(23, 52, 124).darker(150));
}

TYPED_TEST(BarFacade, CaptionIsUtf8OfItsWholeLength)
{
    TypeParam chart;
    chart.addItem(3, std::string("\xC3\xA9\0b", 4));
    EXPECT_EQ(chart.item().text(), QString::fromUtf8("\xC3\xA9\0b", 4));
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
    EXPECT_EQ(chart.getGraph()->position(), QPoint(-1, 3));
}

TYPED_TEST(BarFacade, VerticalAxisReachesTheChart)
{
    TypeParam chart;
    chart.setVerticalAxis(AxisProperty::ShowTitle + AxisProperty::BoldTitle, "t\xC3\xA9");
    EXPECT_EQ(chart.getGraph()->verticalAxisProperties(),
              CAxis::Properties(CAxis::ShowTitle | CAxis::BoldTitle));
}

TYPED_TEST(BarFacade, BitsWithoutAMeaningAreKept)
{
    TypeParam chart;
    chart.setVerticalAxis(-1, "");
    EXPECT_EQ(int(chart.getGraph()->verticalAxisProperties()), -1);
    EXPECT_FALSE(chart.exported().isNull());
}

TYPED_TEST(BarFacade, TextColourReachesAxesAndValues)
{
    TypeParam chart;
    chart.addItem(3, "caption", {255, 255, 255}, {255, 255, 255});
    EXPECT_GT(pixelsOf(chart.exported(), 0xff000000), 100);
    chart.setColor(kRed);
    const QImage red = chart.exported();
    EXPECT_EQ(pixelsOf(red, 0xff000000), 0);
    EXPECT_GT(pixelsOf(red, 0xffff0000), 100);
    chart.setColor(kBlack);
    EXPECT_EQ(pixelsOf(chart.exported(), 0xffff0000), 0);
}

TYPED_TEST(BarFacade, HasNoBarRectanglesBeforeAnExport)
{
    TypeParam chart;
    chart.addItem(3, "a");
    EXPECT_THAT(copied(chart.getBarRectangle()), IsEmpty());
    EXPECT_EQ(copied(chart.getRectangle()), std::vector<Rectangle>{kNothing});
}

TYPED_TEST(BarFacade, HasOneBarRectangleForEveryBarDrawn)
{
    TypeParam chart;
    chart.addItem(100, "a");
    chart.addItem(1, "b");
    chart.addItem(90, "c");
    chart.setThreshold(5);
    chart.exported();
    EXPECT_THAT(copied(chart.getBarRectangle()), SizeIs(2));
    EXPECT_THAT(copied(chart.getRectangle()), SizeIs(3));
    EXPECT_EQ(copied(chart.getRectangle())[1], kNothing);
}

TYPED_TEST(BarFacade, BarRectanglesAreThoseOfTheChart)
{
    TypeParam chart;
    chart.addItem(100, "a");
    chart.exported();
    const QRect bar = chart.item().barRect();
    EXPECT_EQ(copied(chart.getBarRectangle()),
              (std::vector<Rectangle>{{bar.left(), bar.top(), bar.width(), bar.height()}}));
}

TYPED_TEST(BarFacade, BarRectangleListIsOneAndTheSame)
{
    TypeParam chart;
    chart.addItem(3, "a");
    const std::list<Rectangle>* before = chart.getBarRectangle();
    chart.exported();
    EXPECT_EQ(chart.getBarRectangle(), before);
    EXPECT_THAT(copied(before), SizeIs(1));
}

TYPED_TEST(BarFacade, ClearRemovesTheBarsAndKeepsTheSettings)
{
    TypeParam chart;
    chart.addItem(3, "a");
    chart.setBarWidth(12);
    chart.exported();
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
    const QImage english = chart.exported();
    chart.setLocale("de", "de");
    EXPECT_NE(chart.exported().isNull(), true);
    chart.setLocale("en", "us");
    EXPECT_EQ(chart.exported(), english);
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
        EXPECT_FALSE(chart.exported(60, 50).isNull());
    }
}

} // namespace
} // namespace tovangl
