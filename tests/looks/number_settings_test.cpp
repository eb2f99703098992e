// SPDX-License-Identifier: MIT
// What kilo and unit do to the pictures that a host gets.
#include "base/kilo_guard.h"
#include "support/host_pictures.h"
#include <tovangl/tovangl.h>

#include <gtest/gtest.h>
#include <string>

namespace tovangl {
namespace {

template <typename Chart>
Chart& withItems(Chart& chart)
{
    chart.setLocale("en", "us");
    for (const long value : {600L, 1500L, 1100L})
        chart.addItem(value, "item");
    return chart;
}

QImage barsWithKilo(int size)
{
    VerticalBarGraph chart(false);
    withItems(chart).setKilo(size);
    return render(chart);
}

QImage pieWithUnit(const std::string& unit)
{
    PieGraph chart(false);
    withItems(chart).setUnit(unit);
    return render(chart);
}

TEST(Kilo, ChangesStepsAndPrefixes)
{
    EXPECT_NE(barsWithKilo(1000), barsWithKilo(1024));
}

TEST(Kilo, IsTheDefaultForAnyOtherNumber)
{
    VerticalBarGraph plain(false);
    const QImage picture = render(withItems(plain));
    for (const int size : {0, -1000, 1, 999, 1001, 1023, 2147483647})
        EXPECT_EQ(barsWithKilo(size), picture) << size;
    EXPECT_EQ(barsWithKilo(1024), picture);
}

TEST(Kilo, OfAChartWinsOverThatOfTheProcess)
{
    const QImage thousand = barsWithKilo(1000);
    const QImage binary = barsWithKilo(1024);
    const CKiloGuard guard(CGlobal::Base1000);
    EXPECT_EQ(barsWithKilo(1024), binary);
    EXPECT_EQ(barsWithKilo(0), thousand) << "not set, it is that of the process";
}

TEST(Kilo, IsSetByItsNameLikewise)
{
    VerticalBarGraph chart(false);
    withItems(chart);
    EXPECT_EQ(chart.setByName("kilo", "1000"), "");
    EXPECT_EQ(render(chart), barsWithKilo(1000));
    EXPECT_EQ(chart.setByName("kilo", "default"), "");
    EXPECT_EQ(render(chart), barsWithKilo(0));
}

TEST(Unit, IsBytesByDefault)
{
    PieGraph plain(false);
    EXPECT_EQ(render(withItems(plain)), pieWithUnit("B"));
    EXPECT_NE(pieWithUnit("bit"), pieWithUnit("B"));
}

TEST(Unit, IsSetByItsNameLikewise)
{
    for (const char* unit : {"", "bit", "Öre", "a unit of many words"}) {
        PieGraph chart(false);
        EXPECT_EQ(withItems(chart).setByName("unit", unit), "");
        EXPECT_EQ(render(chart), pieWithUnit(unit)) << unit;
    }
}

TEST(Unit, OfBrokenUtf8IsDrawnButNotTakenByName)
{
    PieGraph chart(false);
    EXPECT_NE(withItems(chart).setByName("unit", "\xff"), "");
    EXPECT_EQ(render(chart), pieWithUnit("B"));
    EXPECT_EQ(pieWithUnit("\xff"), pieWithUnit("\xef\xbf\xbd"));
}

TEST(Unit, OfAnyLengthLeavesAPictureWithAPie)
{
    PieGraph chart(false);
    withItems(chart).setUnit(std::string(1000, 'x'));
    EXPECT_FALSE(render(chart).isNull());
    EXPECT_EQ(chart.problem(), Problem::None);
}

TEST(ScaleSetting, IsSetByItsNameLikewise)
{
    PieGraph bySetter(true);
    PieGraph byName(true);
    withItems(bySetter).setScale(2);
    EXPECT_EQ(withItems(byName).setByName("scale", "2"), "");
    const QImage picture = render(bySetter, 200, 100);
    EXPECT_EQ(picture.size(), QSize(400, 200));
    EXPECT_EQ(render(byName, 200, 100), picture);
}

TEST(ScaleSetting, IsIgnoredInPrint)
{
    PieGraph plain(true);
    PieGraph scaled(true);
    withItems(scaled).setScale(3);
    EXPECT_EQ(printed(scaled, 200, 100, 2).decoded(),
              printed(withItems(plain), 200, 100, 2).decoded());
}

TEST(ScaleSetting, IsBroughtIntoItsRange)
{
    PieGraph chart(false);
    withItems(chart).setScale(-5);
    EXPECT_EQ(render(chart, 200, 100).size(), QSize(200, 100));
    chart.setScale(5000);
    EXPECT_EQ(render(chart, 2, 1).size(), QSize(2000, 1000));
}

TEST(ScaleSetting, HasRectanglesInPixelsOfThePicture)
{
    PieGraph chart(false);
    withItems(chart);
    render(chart, 300, 150);
    const Slice once = chart.getSlice()->front();
    chart.setScale(2);
    render(chart, 300, 150);
    const Slice twice = chart.getSlice()->front();
    EXPECT_NEAR(twice.width, 2 * once.width, 4);
    EXPECT_EQ(twice.span, once.span);
}

TEST(ScaleSetting, ThatMakesThePictureTooLargeIsAProblem)
{
    PieGraph chart(false);
    withItems(chart).setScale(1000);
    EXPECT_TRUE(render(chart, 2000, 100).isNull());
    EXPECT_EQ(chart.problem(), Problem::SizeOutOfRange);
}

} // namespace
} // namespace tovangl
