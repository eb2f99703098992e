// SPDX-License-Identifier: MIT
// The items of a chart: adding, default colours, choosing, removing.
#include "core/CPieBaseItem.h"
#include "support/CTestChart.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tovangl {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const QColor kPalette[] = {
    QColor(23, 52, 124),  QColor(91, 115, 176),  QColor(174, 191, 234),
    QColor(254, 102, 13), QColor(254, 184, 109), QColor(255, 226, 182),
};

CTestChart& filled(CTestChart& chart, const std::vector<long long>& values)
{
    for (const long long value : values)
        chart.add(value);
    return chart;
}

// Counts the items that their owner deletes.
class CCountedItem : public CBarGraphItem
{
public:
    explicit CCountedItem(int& deaths)
        : CBarGraphItem(1, QString(), Qt::red)
        , m_deaths(deaths)
    {}
    ~CCountedItem() override { ++m_deaths; }

private:
    int& m_deaths;
};

class CCountingChart : public CTestChart
{
public:
    void addCounted(int& deaths) { appendItem(std::make_unique<CCountedItem>(deaths)); }
};

TEST(AddItem, KeepsValueCaptionAndColor)
{
    CTestChart chart;
    EXPECT_TRUE(chart.add(-42, "caption", QColor(1, 2, 3)));
    EXPECT_EQ(chart.item(0)->value(), -42);
    EXPECT_EQ(chart.item(0)->text(), QString("caption"));
    EXPECT_EQ(chart.item(0)->color(), QColor(1, 2, 3));
}

TEST(AddItem, AppendsAtTheEnd)
{
    CTestChart chart;
    filled(chart, {3, 1, 2}).selectItems();
    EXPECT_THAT(chart.selectedValues(), ElementsAre(3, 1, 2));
}

TEST(AddItem, StartsWithoutACaptionRectangle)
{
    CTestChart chart;
    chart.add(1);
    EXPECT_EQ(chart.item(0)->itemRect(), QRect());
}

TEST(AddItem, ABarGetsADarkerOutline)
{
    CTestChart chart;
    chart.add(1, "", QColor(150, 90, 30));
    EXPECT_EQ(chart.item(0)->outlineColor(), QColor(150, 90, 30).darker(150));
}

TEST(DefaultColors, AreThreeBluesThenThreeOranges)
{
    CTestChart chart;
    filled(chart, {1, 1, 1, 1, 1, 1});
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(chart.item(i)->color(), kPalette[i]) << i;
}

TEST(DefaultColors, TheSeventhItemHasTheFirstColor)
{
    CTestChart chart;
    filled(chart, {1, 1, 1, 1, 1, 1, 1});
    EXPECT_EQ(chart.item(6)->color(), QColor(23, 52, 124));
}

TEST(DefaultColors, AnItemWithItsOwnColorStillCounts)
{
    CTestChart chart;
    chart.add(1);
    chart.add(1, "", QColor(9, 9, 9));
    chart.add(1);
    EXPECT_EQ(chart.item(2)->color(), kPalette[2]);
}

TEST(DefaultColors, AreBuiltForTheFirstItemThatNeedsOneAndKeptByClear)
{
    CTestChart chart;
    chart.add(1, "", QColor(9, 9, 9));
    EXPECT_EQ(chart.palettes, 0);
    filled(chart, {1, 1});
    chart.clear();
    chart.add(1);
    EXPECT_EQ(chart.palettes, 1);
}

TEST(DefaultColors, StartAgainAfterClear)
{
    CTestChart chart;
    filled(chart, {1, 1});
    chart.clear();
    chart.add(1);
    EXPECT_EQ(chart.item(0)->color(), kPalette[0]);
}

TEST(DefaultColors, CanBeBuiltAgain)
{
    CTestChart chart;
    chart.initDefaultColor();
    chart.initDefaultColor();
    chart.add(1);
    EXPECT_EQ(chart.item(0)->color(), kPalette[0]);
}

TEST(SelectItems, TakesEverythingAtThresholdZero)
{
    CTestChart chart;
    filled(chart, {5, 0, -5}).selectItems();
    EXPECT_THAT(chart.selectedValues(), ElementsAre(5, 0, -5));
}

TEST(SelectItems, NegativeItemsTakePartByTheirMagnitude)
{
    CTestChart chart;
    chart.setThreshold(30);
    filled(chart, {-60, 20, 20}).selectItems();
    EXPECT_THAT(chart.selectedValues(), ElementsAre(-60));
}

TEST(SelectItems, TakesAnItemWhoseShareIsTheThreshold)
{
    CTestChart chart;
    chart.setThreshold(25);
    filled(chart, {25, 24, 51}).selectItems();
    EXPECT_THAT(chart.selectedValues(), ElementsAre(25, 51));
}

TEST(SelectItems, StoresANegativeThresholdAsZeroInAnEmptyChartToo)
{
    CTestChart chart;
    chart.setThreshold(-1);
    chart.selectItems();
    EXPECT_EQ(chart.threshold(), 0.0);
}

TEST(SelectItems, StoresANegativeThresholdAsZero)
{
    CTestChart chart;
    chart.setThreshold(-1);
    filled(chart, {0, 7}).selectItems();
    EXPECT_EQ(chart.threshold(), 0.0);
    EXPECT_THAT(chart.selectedValues(), ElementsAre(0, 7));
}

TEST(SelectItems, DrawsAllZeroBarsAtThresholdZeroOnly)
{
    CTestChart chart;
    filled(chart, {0, 0}).selectItems();
    EXPECT_THAT(chart.selectedValues(), ElementsAre(0, 0));
    chart.setThreshold(0.001);
    chart.selectItems();
    EXPECT_THAT(chart.selectedValues(), IsEmpty());
}

TEST(SelectItems, StartsAfreshEachTime)
{
    CTestChart chart;
    filled(chart, {1, 9}).selectItems();
    chart.setThreshold(50);
    chart.selectItems();
    EXPECT_THAT(chart.selectedValues(), ElementsAre(9));
}

TEST(Clear, RemovesItemsAndTheChoice)
{
    CTestChart chart;
    filled(chart, {1, 2}).selectItems();
    chart.clear();
    EXPECT_TRUE(chart.items().empty());
    EXPECT_TRUE(chart.selectedItems().empty());
}

TEST(Clear, DeletesItemsThroughTheirOwnDestructor)
{
    int deaths = 0;
    CCountingChart chart;
    chart.addCounted(deaths);
    chart.addCounted(deaths);
    chart.clear();
    EXPECT_EQ(deaths, 2);
}

TEST(ChartDestruction, DeletesItemsThroughTheirOwnDestructor)
{
    int deaths = 0;
    {
        CCountingChart chart;
        chart.addCounted(deaths);
    }
    EXPECT_EQ(deaths, 1);
}

TEST(PutItemRectangle, GivesOneNullRectangleForEachItemNeverDrawn)
{
    CTestChart chart;
    std::list<QRect> rects;
    filled(chart, {1, 2}).putItemRectangle(rects);
    EXPECT_THAT(rects, ElementsAre(QRect(), QRect()));
}

TEST(PutItemRectangle, AppendsToTheList)
{
    CTestChart chart;
    chart.add(1);
    chart.item(0)->setItemRect(QRect(5, 6, 7, 8));
    std::list<QRect> rects = {QRect(1, 2, 3, 4)};
    chart.putItemRectangle(rects);
    EXPECT_THAT(rects, ElementsAre(QRect(1, 2, 3, 4), QRect(5, 6, 7, 8)));
}

TEST(CompareItems, OrdersByValueStrictly)
{
    const CBarGraphItem small(-2, QString(), Qt::red);
    const CBarGraphItem large(1, QString(), Qt::red);
    EXPECT_TRUE(CTestChart::compareItems(&small, &large));
    EXPECT_FALSE(CTestChart::compareItems(&large, &small));
    EXPECT_FALSE(CTestChart::compareItems(&small, &small));
}

} // namespace
} // namespace tovangl
