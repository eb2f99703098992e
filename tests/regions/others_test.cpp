// SPDX-License-Identifier: MIT
// What a host sees of the item that gathers what the threshold leaves out.
#include "regions/region_test_charts.h"
#include "support/CAnyChart.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>

namespace tovangl {
namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::SizeIs;

// A region of any kind of chart: where its bar or slice is, as far as it is drawn.
bool isDrawn(const Rectangle& bar)
{
    return bar != kNoRectangle;
}

bool isDrawn(const Slice& slice)
{
    return slice.span != 0;
}

template <typename Region>
std::vector<bool> areDrawn(const std::list<Region>& regions)
{
    std::vector<bool> drawn;
    for (const Region& region : regions)
        drawn.push_back(isDrawn(region));
    return drawn;
}

class Others : public ::testing::TestWithParam<ChartKind>
{
protected:
    Others()
    {
        graph().setLocale("en", "us");
        graph().setThreshold(5);
        graph().setOthers("others");
        m_chart.addItem(5000, "first");
        m_chart.addItem(30, "small");
        m_chart.addItem(3000, "second");
        m_chart.addItem(50, "tiny");
    }

    [[nodiscard]] Graph& graph() const { return m_chart.graph(); }
    // Which items have a bar or a slice, record by record.
    std::vector<bool> drawn()
    {
        return GetParam() == ChartKind::Pie ? areDrawn(m_chart.slices())
                                            : areDrawn(m_chart.itemBarRectangles());
    }
    std::vector<bool> captions() { return areDrawn(m_chart.itemRectangles()); }

    CAnyChart m_chart{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(Charts, Others, ::testing::ValuesIn(kChartKinds));

TEST_P(Others, HaveTheLastRecord)
{
    render(graph());
    EXPECT_EQ(drawn(), std::vector<bool>({true, false, true, false, true}));
    EXPECT_EQ(captions(), std::vector<bool>({true, false, true, false, true}));
}

TEST_P(Others, AreCountedAndSummedUp)
{
    render(graph());
    EXPECT_EQ(graph().othersCount(), 2U);
    EXPECT_EQ(graph().othersValue(), 80);
}

TEST_P(Others, AreNoneWhereTheLastRenderingDrewNone)
{
    EXPECT_EQ(graph().othersCount(), 0U);
    render(graph());
    render(graph(), 20, 20);
    EXPECT_EQ(graph().othersCount(), 0U);
    EXPECT_EQ(graph().othersValue(), 0);
}

TEST_P(Others, HaveARecordOfZerosBeforeAnyRendering)
{
    EXPECT_EQ(drawn(), std::vector<bool>(5, false));
    EXPECT_EQ(captions(), std::vector<bool>(5, false));
}

TEST_P(Others, HaveARecordOfZerosWhereNothingIsLeftOut)
{
    render(graph());
    graph().setThreshold(0);
    render(graph());
    EXPECT_EQ(drawn(), std::vector<bool>({true, true, true, true, false}));
    EXPECT_EQ(captions(), std::vector<bool>({true, true, true, true, false}));
}

TEST_P(Others, HaveARecordOfZerosWhereThereIsNoPicture)
{
    render(graph());
    (void)exported(graph(), 0, 300);
    EXPECT_EQ(drawn(), std::vector<bool>(5, false));
    EXPECT_FALSE(captions().back());
}

TEST_P(Others, HaveARecordOfZerosWhereThereIsNoRoom)
{
    render(graph());
    render(graph(), 20, 20);
    EXPECT_EQ(drawn(), std::vector<bool>(5, false));
    EXPECT_FALSE(captions().back());
}

TEST_P(Others, KeepTheirRecordBehindItemsThatAreAddedLater)
{
    render(graph());
    const std::list<Rectangle> before = m_chart.itemRectangles();
    m_chart.addItem(70, "late");
    EXPECT_EQ(drawn(), std::vector<bool>({true, false, true, false, false, true}));
    EXPECT_EQ(captions(), std::vector<bool>({true, false, true, false, false, true}));
    EXPECT_EQ(m_chart.itemRectangles().back(), before.back());
}

TEST_P(Others, HaveNoRecordOnceTheyAreNotWanted)
{
    render(graph());
    graph().setOthers("");
    EXPECT_EQ(drawn(), std::vector<bool>({true, false, true, false}));
    EXPECT_EQ(captions(), std::vector<bool>({true, false, true, false}));
}

TEST_P(Others, AreForgottenWithTheItems)
{
    render(graph());
    graph().clear();
    EXPECT_EQ(drawn(), std::vector<bool>({false}));
    EXPECT_EQ(captions(), std::vector<bool>({false}));
}

TEST_P(Others, AreDroppedWithoutACaption)
{
    graph().setOthers("");
    const QImage dropped = render(graph());
    CAnyChart fewer(GetParam());
    fewer.graph().setLocale("en", "us");
    fewer.addItem(5000, "first");
    fewer.addItem(3000, "second", {174, 191, 234}, {116, 127, 156});
    EXPECT_EQ(dropped, render(fewer.graph()));
}

TEST_P(Others, AreDrawnAsAnItemOfTheirSum)
{
    const QImage gathered = render(graph());
    CAnyChart same(GetParam());
    same.graph().setLocale("en", "us");
    same.addItem(5000, "first");
    same.addItem(3000, "second", {174, 191, 234}, {116, 127, 156});
    same.addItem(80, "others", {114, 114, 126}, {76, 76, 84});
    EXPECT_EQ(gathered, render(same.graph()));
}

TEST_P(Others, AreDrawnWhateverTheirShare)
{
    graph().setThreshold(30);
    graph().setOthers("x");
    m_chart.addItem(1, "one");
    render(graph());
    EXPECT_TRUE(drawn().back());
}

TEST_P(Others, AreAllThatIsDrawnWhereEverythingIsLeftOut)
{
    graph().setThreshold(std::numeric_limits<double>::quiet_NaN());
    render(graph());
    EXPECT_EQ(drawn(), std::vector<bool>({false, false, false, false, true}));
    EXPECT_THAT(graph().describe(),
                EndsWith("chart, 0 of 4 items drawn, and 4 others with 8,080 together."));
}

TEST_P(Others, AreMentionedInTheDescription)
{
    render(graph());
    EXPECT_THAT(graph().describe(), HasSubstr("2 of 4 items drawn: the greatest is “first”"));
    EXPECT_THAT(graph().describe(), EndsWith("with 3,000, and 2 others with 80 together."));
}

TEST_P(Others, AreMentionedAsOneWhereThereIsOne)
{
    graph().setThreshold(0.5);
    render(graph());
    EXPECT_THAT(graph().describe(), EndsWith(", and 1 other with 30."));
}

TEST_P(Others, AreNotMentionedWhereTheyAreNotDrawn)
{
    EXPECT_THAT(graph().describe(), Not(HasSubstr("other")));
    render(graph(), 20, 20);
    EXPECT_THAT(graph().describe(), Not(HasSubstr("other")));
    graph().setThreshold(0);
    render(graph());
    EXPECT_THAT(graph().describe(), Not(HasSubstr("other")));
}

TEST_P(Others, LeaveTheSettingsAsTheyAre)
{
    const QImage first = render(graph());
    EXPECT_EQ(render(graph()), first);
    EXPECT_EQ(graph().threshold(), 5);
}

TEST(OthersOfBars, AreTheLastBarOfThePicture)
{
    VerticalBarGraph bars(false);
    bars.setThreshold(30);
    bars.setOthers("others");
    for (const long value : {50, 40, 5, 5})
        bars.addItem(value, "item");
    render(bars);
    EXPECT_THAT(*bars.getBarRectangle(), SizeIs(3));
    EXPECT_EQ(bars.getBarRectangle()->back(), bars.getItemBarRectangle()->back());
    bars.setThreshold(0);
    render(bars);
    EXPECT_THAT(*bars.getBarRectangle(), SizeIs(4)) << "where there are none, as many as items";
}

TEST(OthersOfAPie, HaveNoSliceWhereOnlyNegativeValuesAndZerosAreLeftOut)
{
    PieGraph pie(false);
    pie.setThreshold(1);
    pie.setOthers("others");
    pie.addItem(50, "fifty");
    pie.addItem(-40, "negative");
    pie.addItem(0, "zero");
    render(pie);
    EXPECT_EQ(pie.getSlice()->back(), kNoSlice);
    EXPECT_THAT(pie.describe(), EndsWith("1 of 3 items drawn: “fifty” with 50."));
}

TEST(OthersOfAPie, MakeAFullCircleTogetherWithTheSlicesDrawn)
{
    PieGraph pie(false);
    pie.setThreshold(10);
    pie.setOthers("others");
    for (const long value : {50, 3, 40, 7})
        pie.addItem(value, "item");
    render(pie);
    double sum = 0;
    for (const Slice& slice : *pie.getSlice())
        sum += slice.span;
    EXPECT_DOUBLE_EQ(sum, 360);
    EXPECT_DOUBLE_EQ(pie.getSlice()->back().span, 36);
}

TEST(OthersOfNoChart, HaveNoRecord)
{
    Graph graph;
    graph.setOthers("others");
    EXPECT_TRUE(graph.getRectangle()->empty());
}

} // namespace
} // namespace tovangl
