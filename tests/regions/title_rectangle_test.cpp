// SPDX-License-Identifier: MIT
#include "regions/region_test_charts.h"
#include "support/CAnyChart.h"
#include "support/pixels.h"

#include <gtest/gtest.h>

namespace tovangl {
namespace {

QRect toQRect(const Rectangle& rect)
{
    return {rect.x, rect.y, rect.width, rect.height};
}

class TitleRectangle : public ::testing::TestWithParam<ChartKind>
{
protected:
    TitleRectangle() { m_chart.graph().setTitle("Sales"); }

    void addItems()
    {
        m_chart.addItem(500, "first");
        m_chart.addItem(300, "second");
    }
    QImage rendered(int width = 400, int height = 300)
    {
        return render(m_chart.graph(), width, height);
    }
    Rectangle title() { return m_chart.graph().titleRectangle(); }

    CAnyChart m_chart{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(Charts, TitleRectangle, ::testing::ValuesIn(kChartKinds));

TEST_P(TitleRectangle, IsZeroBeforeAnyRendering)
{
    EXPECT_EQ(title(), kNoRectangle);
}

TEST_P(TitleRectangle, HoldsAllInkOfTheTitle)
{
    m_chart.setProperties(0, "");
    m_chart.graph().setTextColor(kRed);
    (void)m_chart.graph().setByName("axis_color", "#000000");
    const QRect red = extentOf(rendered(), qRgb(kRed.red, kRed.green, kRed.blue));
    EXPECT_TRUE(red.isValid());
    EXPECT_TRUE(toQRect(title()).contains(red));
}

TEST_P(TitleRectangle, IsTheRectangleOfTheLastRendering)
{
    addItems();
    (void)rendered();
    const Rectangle first = title();
    EXPECT_NE(first, kNoRectangle);
    (void)rendered(600, 300);
    EXPECT_EQ(title(), (Rectangle{first.x + 100, first.y, first.width, first.height}));
}

TEST_P(TitleRectangle, IsInPixelsOfThePicture)
{
    addItems();
    (void)printed(m_chart.graph(), 400, 300, 2);
    EXPECT_EQ(title().y, 20);
    EXPECT_NEAR(title().x + title().width / 2, 400, 1);
}

TEST_P(TitleRectangle, IsZeroAfterATitleWasTakenAway)
{
    addItems();
    (void)rendered();
    m_chart.graph().setTitle("");
    (void)rendered();
    EXPECT_EQ(title(), kNoRectangle);
}

TEST_P(TitleRectangle, IsZeroWhereThereIsNoPicture)
{
    (void)rendered();
    (void)exported(m_chart.graph(), 0, 300);
    EXPECT_EQ(title(), kNoRectangle);
}

TEST_P(TitleRectangle, IsZeroWhereTheChartHasNoRoomAtAll)
{
    addItems();
    const QImage image = rendered(30, 12);
    EXPECT_EQ(m_chart.graph().problem(), Problem::TooSmallForChart);
    EXPECT_EQ(title(), kNoRectangle);
    EXPECT_TRUE(inkOf(image).isNull());
}

TEST_P(TitleRectangle, IsZeroWhereOnlyTheChartHasRoom)
{
    addItems();
    constexpr int kLow = 38; // pixels
    const QImage image = rendered(400, kLow);
    EXPECT_EQ(m_chart.graph().problem(), Problem::None);
    EXPECT_EQ(title(), kNoRectangle);
    m_chart.graph().setTitle("");
    EXPECT_EQ(rendered(400, kLow), image);
}

TEST_P(TitleRectangle, IsFollowedByNoOtherText)
{
    addItems();
    (void)rendered();
    for (const Rectangle& caption : m_chart.itemRectangles())
        EXPECT_GE(caption.y, title().y + title().height);
}

TEST(TitleOfAPie, StandsInsideABackgroundAsLargeAsThePicture)
{
    PieGraph pie(true);
    pie.addItem(1, "");
    const QImage plain = render(pie);
    pie.setTitle("Sales");
    const QImage titled = render(pie);
    const int margin = pie.titleRectangle().y;
    EXPECT_EQ(titled.copy(0, 0, 400, margin), plain.copy(0, 0, 400, margin));
    EXPECT_EQ(titled.copy(0, 300 - margin, 400, margin), plain.copy(0, 300 - margin, 400, margin));
    EXPECT_NE(titled, plain);
}

TEST(TitleOfNoChart, HasNoRectangle)
{
    Graph graph;
    graph.setTitle("Sales");
    EXPECT_EQ(graph.titleRectangle(), kNoRectangle);
}

} // namespace
} // namespace tovangl
