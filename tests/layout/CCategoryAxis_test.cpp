// SPDX-License-Identifier: MIT
#include "layout/CCategoryAxis.h"
#include "layout/axis_support.h"

#include <gmock/gmock.h>

namespace tovangl {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;

class CCategoryAxisTest : public ::testing::Test
{
protected:
    CCategoryAxis axisOf(const std::vector<QString>& captions, int fixedBarWidth = 0)
    {
        return {frame, {properties, QString()}, look, captions, fixedBarWidth, measurer};
    }
    // So many categories on an axis that is so many pixels long.
    CAxisLayout fitted(std::size_t categories, int length, const char* caption = "i")
    {
        const std::vector<QString> captions(categories, QString::fromUtf8(caption));
        const QRect rect =
            frame.isHorizontal() ? QRect(0, 0, length + 1, 100) : QRect(0, 0, 100, length + 1);
        return axisOf(captions).fitToRect(rect, measurer);
    }

    CAxisFrame frame = kRightAtTheBottom;
    CAxisSettings::Properties properties = kLineAndLabels;
    CAxisLook look;
    CTestMeasurer measurer;
    const std::vector<QString> four{"a", "b", "c", "d"};
};

TEST_F(CCategoryAxisTest, HasALabelForEveryCaptionInItsOrder)
{
    const CAxisLayout axis = axisOf({"c", "a", "b"}).fitToRect(QRect(0, 0, 401, 100), measurer);
    ASSERT_EQ(axis.texts.size(), 3U);
    EXPECT_EQ(axis.texts[0].text, QString("c"));
    EXPECT_EQ(axis.texts[1].text, QString("a"));
    EXPECT_EQ(axis.texts[2].text, QString("b"));
    EXPECT_FALSE(axis.shape.isEmpty);
}

TEST_F(CCategoryAxisTest, LabelsAreMeasuredBoldOnDemand)
{
    EXPECT_FALSE(fitted(1, 400).labels[0].text.style().isBold);
    properties |= CAxisSettings::BoldLabels;
    EXPECT_TRUE(fitted(1, 400).labels[0].text.style().isBold);
}

TEST_F(CCategoryAxisTest, BarsFillSeventyPerCentOfTheAxisAndItsLine)
{
    EXPECT_EQ(axisOf(four).drawBarWidth(400), 70);
    EXPECT_EQ(axisOf(four).drawBarWidth(200), 35);
    look.lineWidth = 6;
    EXPECT_EQ(axisOf(four).drawBarWidth(400), 71);
}

TEST_F(CCategoryAxisTest, FixedWidthWinsWhenPositive)
{
    EXPECT_EQ(axisOf(four, 25).drawBarWidth(400), 25);
    EXPECT_EQ(axisOf(four, -25).drawBarWidth(400), 70);
}

TEST_F(CCategoryAxisTest, WithoutCategoriesBarsHaveNoWidth)
{
    EXPECT_EQ(axisOf({}).drawBarWidth(400), 0);
    const CAxisLayout axis = fitted(0, 400);
    EXPECT_TRUE(axis.shape.isEmpty);
    EXPECT_EQ(axis.shiftAtBegin, 400);
}

TEST_F(CCategoryAxisTest, OuterBarsStandEquallyFarFromBothEnds)
{
    const CAxisLayout axis = fitted(4, 400);
    EXPECT_EQ(axis.shiftAtBegin, 24 + 35);
    EXPECT_EQ(axis.shiftAtEnd, -(24 + 35));
    EXPECT_THAT(ofLabels(axis, &CBarTextLabel::tickCoord), ElementsAre(0, 94, 188, 282));
}

TEST_F(CCategoryAxisTest, EndLabelNeverOverhangsTheAxis)
{
    frame = kDownAtTheLeft;
    const CAxisLayout vertical = fitted(100, 100);
    EXPECT_EQ(vertical.shiftAtBegin, vertical.shape.labelSize.height() / 2);
    frame = kRightAtTheBottom;
    const CAxisLayout turned = fitted(200, 200);
    ASSERT_TRUE(turned.isRotated());
    EXPECT_EQ(turned.shiftAtBegin, turned.shape.labelSize.height() / 2);
}

TEST_F(CCategoryAxisTest, OneCategoryStandsInTheMiddle)
{
    const CAxisLayout axis = fitted(1, 400);
    EXPECT_EQ(axis.shiftAtBegin, 200);
    EXPECT_THAT(ofLabels(axis, &CBarTextLabel::tickCoord), ElementsAre(0));
}

TEST_F(CCategoryAxisTest, LabelsAcrossStandInOneRowAndAreTurnedOnHorizontalAxesOnly)
{
    const CAxisLayout crowded = fitted(200, 200);
    EXPECT_TRUE(crowded.isRotated());
    EXPECT_THAT(rowsOf(crowded), Each(0));
    frame = kDownAtTheLeft;
    EXPECT_FALSE(fitted(2, 400).isRotated());
}

TEST_F(CCategoryAxisTest, SecondRowHasANegativeOffset)
{
    const int width = fitted(1, 400, "wwwwww").shape.labelSize.width();
    const CAxisLayout axis = fitted(6, 4 * width, "wwwwww");
    ASSERT_EQ(axis.shape.direction, LabelDirection::AlongTwoRows);
    const int row = axis.shape.getElementHeight(CAxisShape::SecondRowOffset);
    EXPECT_THAT(rowsOf(axis), ElementsAre(0, -row, 0, -row, 0, -row));
}

} // namespace
} // namespace tovangl
