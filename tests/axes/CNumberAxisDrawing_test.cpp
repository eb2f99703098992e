// SPDX-License-Identifier: MIT
// The grid lines of a value axis.
#include "axes/CScaleAxis.h"

#include <gmock/gmock.h>
#include <limits>

namespace tovangl {
namespace {

using ::testing::ElementsAre;

using GridLines = CAxisPicture;

const QColor kFirst(100, 0, 0);
const QColor kLast(200, 0, 0);

// The colour of the left-most pixel of every row that holds a line.
struct CGridLine
{
    int row;
    int red;
    bool operator==(const CGridLine& other) const { return row == other.row && red == other.red; }
};

std::vector<CGridLine> gridLines(const QImage& image, int column)
{
    std::vector<CGridLine> lines;
    for (int y = 0; y < image.height(); ++y) {
        if (qGreen(image.pixel(column, y)) == 0)
            lines.push_back({y, qRed(image.pixel(column, y))});
    }
    return lines;
}

TEST_F(GridLines, StandAtTheVisibleTicksAndNeverReachTheLastColour)
{
    CScaleAxis axis(0, 37, kLineAndLabels, 0, CAxis::BottomToTop);
    axis.fitToRect(painter, QRect(10, 0, 50, 201));
    axis.drawLabelLines(painter, 100, kFirst, kLast);
    // From the top: 40, 30, 20 and 10 at quarters of the colours' way; zero is hidden.
    EXPECT_THAT(gridLines(image, 100), ElementsAre(CGridLine{0, 175}, CGridLine{50, 150},
                                                   CGridLine{100, 125}, CGridLine{150, 100}));
}

TEST_F(GridLines, OfMixedDataReachTheLastColour)
{
    CScaleAxis axis(-10, 10, kLineAndLabels, 0, CAxis::BottomToTop);
    axis.fitToRect(painter, QRect(10, 0, 50, 201));
    axis.drawLabelLines(painter, 100, kFirst, kLast);
    const std::vector<CGridLine> lines = gridLines(image, 100);
    EXPECT_EQ(lines.size(), axis.labels().size());
    EXPECT_EQ(lines.front().red, 200);
    EXPECT_EQ(lines.back().red, 100);
}

TEST_F(GridLines, StartOnePixelOffTheAxis)
{
    CScaleAxis axis(0, 37, kLineAndLabels, 0, CAxis::BottomToTop);
    axis.fitToRect(painter, QRect(10, 0, 50, 201));
    axis.drawLabelLines(painter, 100, kFirst, kFirst);
    const QRect lines = extentOf(kFirst.rgb());
    // The axis line stands at 59.
    EXPECT_EQ(lines.left(), 60);
    EXPECT_EQ(lines.right(), 159);
}

TEST_F(GridLines, OfAHorizontalAxisRunDownFromIt)
{
    CScaleAxis axis(0, 37);
    axis.fitToRect(painter, QRect(10, 0, 201, 40));
    axis.drawLabelLines(painter, 100, kFirst, kFirst);
    const QRect lines = extentOf(kFirst.rgb());
    EXPECT_EQ(lines, QRect(QPoint(60, 40), QPoint(210, 139)));
}

TEST_F(GridLines, AreAsWideAsTheAxisLine)
{
    CScaleAxis axis(0, 37, kLineAndLabels, 0, CAxis::BottomToTop);
    axis.setLineWidth(3);
    axis.fitToRect(painter, QRect(10, 0, 50, 201));
    axis.drawLabelLines(painter, 100, kFirst, kLast);
    EXPECT_EQ(gridLines(image, 100).size(), 2U + 3U + 3U + 3U);
}

TEST_F(GridLines, AreNotThereWithoutLengthOrWithOneLabel)
{
    CScaleAxis axis(0, 37, kLineAndLabels, 0, CAxis::BottomToTop);
    axis.fitToRect(painter, QRect(10, 0, 50, 201));
    axis.drawLabelLines(painter, -1, kFirst, kLast);
    CScaleAxis alone(0, std::numeric_limits<long long>::max(), kLineAndLabels, 0,
                     CAxis::BottomToTop);
    alone.fitToRect(painter, QRect(10, 0, 50, 201));
    alone.drawLabelLines(painter, 100, kFirst, kLast);
    EXPECT_EQ(extentOf(kWhite), image.rect());
    EXPECT_TRUE(gridLines(image, 100).empty());
}

} // namespace
} // namespace tovangl
