// SPDX-License-Identifier: MIT
// The pie chart: its settings and what it owns.
#include "pie/CTestPie.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tovangl {
namespace {

// A size at which everything fits.
constexpr int kWidth = 400;
constexpr int kHeight = 300;

class CPrinterPie : public CTestPie
{
public:
    CPrinterPie() { m_outputDevice = PrinterDevice; }
};

TEST(PieGraphChart, StartsClockwiseAtNineOClockWithAMarginOfTen)
{
    const CTestPie pie;
    EXPECT_EQ(pie.margin(), 10);
    EXPECT_EQ(pie.startAngle(), -180);
    EXPECT_EQ(pie.direction(), -1);
}

TEST(PieGraphChart, RemovesOverlapsAndShowsSizesByDefault)
{
    EXPECT_EQ(int(CTestPie().options()), 384);
}

TEST(PieGraphChart, HasNoRectanglesBeforeTheFirstLayout)
{
    const CTestPie pie;
    EXPECT_EQ(pie.area(), QRectF());
    EXPECT_EQ(pie.pieRect(), QRectF());
    EXPECT_EQ(pie.labelRect(), QRectF());
    EXPECT_TRUE(pie.labels().empty());
}

TEST(PieGraphChart, GivesItemsWithoutAColourTheNextOfSix)
{
    CTestPie pie;
    for (int i = 0; i < 7; ++i)
        pie.add(1, "", i == 1 ? QColor(Qt::green) : QColor());
    EXPECT_EQ(pie.item(0)->color(), QColor(23, 52, 124));
    EXPECT_EQ(pie.item(1)->color(), QColor(Qt::green));
    EXPECT_EQ(pie.item(2)->color(), QColor(174, 191, 234));
    EXPECT_EQ(pie.item(6)->color(), QColor(23, 52, 124));
}

TEST(PieGraphChart, OutlinesAreWhiteOnScreenAndDarkGreyInPrint)
{
    EXPECT_EQ(CTestPie().getPieOutlineColor(), QColor(255, 255, 255));
    EXPECT_EQ(CPrinterPie().getPieOutlineColor(), QColor(64, 64, 64));
}

TEST(PieGraphChart, ASetOutlineColourHoldsOnEveryDevice)
{
    CPrinterPie pie;
    pie.setPieOutlineColor(Qt::green);
    EXPECT_EQ(pie.getPieOutlineColor(), QColor(Qt::green));
}

TEST(PieGraphChart, LabelLinesAreBlackAndWithoutAColourLikeTheOutlines)
{
    CTestPie pie;
    EXPECT_EQ(pie.getLabelLineColor(), QColor(Qt::black));
    pie.setLabelLineColor(QColor());
    EXPECT_EQ(pie.getLabelLineColor(), QColor(255, 255, 255));
    pie.setPieOutlineColor(Qt::green);
    EXPECT_EQ(pie.getLabelLineColor(), QColor(Qt::green));
}

TEST(PieGraphChart, MakesItsLabelsAnewAtEachRendering)
{
    CTestPie pie;
    pie.addEqual(3);
    ASSERT_TRUE(pie.fitsInto(kWidth, kHeight));
    ASSERT_TRUE(pie.fitsInto(kWidth, kHeight));
    EXPECT_EQ(pie.labels().size(), 3u);
}

TEST(PieGraphChart, ClearRemovesItemsAndLabelsAndKeepsTheRest)
{
    CTestPie pie;
    pie.addEqual(3);
    pie.setOptions(CPieGraph::BoldLabels);
    pie.setTextColor(Qt::green);
    ASSERT_TRUE(pie.fitsInto(kWidth, kHeight));
    pie.clear();
    EXPECT_TRUE(pie.items().empty());
    EXPECT_TRUE(pie.selectedItems().empty());
    EXPECT_TRUE(pie.labels().empty());
    EXPECT_EQ(int(pie.options()), 8);
    EXPECT_EQ(pie.textColor(), QColor(Qt::green));
}

TEST(PieGraphChart, CanBeFilledAgainAfterClear)
{
    CTestPie pie;
    pie.addEqual(3);
    ASSERT_TRUE(pie.fitsInto(kWidth, kHeight));
    pie.clear();
    pie.addEqual(2);
    ASSERT_TRUE(pie.fitsInto(kWidth, kHeight));
    EXPECT_EQ(pie.labels().size(), 2u);
}

TEST(PieGraphChart, ListsItsLabelsForDiagnosisUnderTwoHeadings)
{
    CTestPie pie;
    pie.add(3, "home");
    pie.add(1, "usr");
    ASSERT_TRUE(pie.fitsInto(kWidth, kHeight));
    testing::internal::CaptureStderr();
    pie.debugLabels();
    EXPECT_THAT(testing::internal::GetCapturedStderr(),
                testing::MatchesRegex("debugLabels\\(\\)\n------------\n"
                                      "home [^\n]*\nusr [^\n]*\n"));
}

} // namespace
} // namespace tovangl
