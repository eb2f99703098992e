// SPDX-License-Identifier: MIT
#include "layout/axis_support.h"

#include <limits>

namespace tovangl {
namespace {

constexpr int kMost = std::numeric_limits<int>::max();

struct CGeometry
{
    CAxisFrame::Orientation orientation;
    bool isHorizontal;
    int alongSign;
    int acrossSign;
    CAxisFrame::LegendLocation defaultLocation;
};

void PrintTo(const CGeometry& geometry, std::ostream* stream)
{
    *stream << nameOf({geometry.orientation, geometry.defaultLocation});
}

class OrientationTable : public ::testing::TestWithParam<CGeometry>
{};

TEST_P(OrientationTable, SetsDirectionAndSigns)
{
    const CAxisFrame frame(GetParam().orientation, GetParam().defaultLocation);
    EXPECT_EQ(frame.isHorizontal(), GetParam().isHorizontal);
    EXPECT_EQ(frame.alongSign(), GetParam().alongSign);
    EXPECT_EQ(frame.acrossSign(), GetParam().acrossSign);
    EXPECT_EQ(frame.isReversed(), GetParam().alongSign < 0);
}

TEST_P(OrientationTable, CorrectsALocationThatDoesNotSuit)
{
    const CGeometry& geometry = GetParam();
    const auto corrected = [&](CAxisFrame::LegendLocation location) {
        return CAxisFrame(geometry.orientation, location).legendLocation();
    };
    for (const auto location : {CAxisFrame::Top, CAxisFrame::Bottom})
        EXPECT_EQ(corrected(location), geometry.isHorizontal ? location : geometry.defaultLocation);
    for (const auto location : {CAxisFrame::Left, CAxisFrame::Right})
        EXPECT_EQ(corrected(location), geometry.isHorizontal ? geometry.defaultLocation : location);
}

INSTANTIATE_TEST_SUITE_P(
    All, OrientationTable,
    ::testing::Values(CGeometry{CAxisFrame::LeftToRight, true, 1, -1, CAxisFrame::Bottom},
                      CGeometry{CAxisFrame::RightToLeft, true, -1, -1, CAxisFrame::Bottom},
                      CGeometry{CAxisFrame::BottomToTop, false, -1, 1, CAxisFrame::Left},
                      CGeometry{CAxisFrame::TopToBottom, false, 1, 1, CAxisFrame::Left}));

struct CStart
{
    CAxisFrame frame;
    QPoint start; // in the rectangle from (10, 20) to (109, 219)
};

void PrintTo(const CStart& start, std::ostream* stream)
{
    PrintTo(start.frame, stream);
}

class StartTable : public ::testing::TestWithParam<CStart>
{};

TEST_P(StartTable, IsAtTheEdgeAwayFromTheTexts)
{
    const CAxisFrame& frame = GetParam().frame;
    const QRect rect(10, 20, 100, 200);
    EXPECT_EQ(frame.resolveOrientedCoordSigned(frame.originIn(rect)), GetParam().start);
    EXPECT_EQ(frame.distanceAlong(rect), frame.isHorizontal() ? 99 : 199);
}

INSTANTIATE_TEST_SUITE_P(
    All, StartTable,
    ::testing::Values(CStart{kRightAtTheBottom, QPoint(10, 20)},
                      CStart{kRightAtTheTop, QPoint(10, 219)},
                      CStart{{CAxisFrame::RightToLeft, CAxisFrame::Bottom}, QPoint(109, 20)},
                      CStart{{CAxisFrame::RightToLeft, CAxisFrame::Top}, QPoint(109, 219)},
                      CStart{kUpAtTheLeft, QPoint(109, 219)},
                      CStart{kUpAtTheRight, QPoint(10, 219)},
                      CStart{kDownAtTheLeft, QPoint(109, 20)},
                      CStart{{CAxisFrame::TopToBottom, CAxisFrame::Right}, QPoint(10, 20)}));

TEST(CAxisFrame, SignsRunUpwardAcrossAHorizontalAxisAndRightwardAcrossAVerticalOne)
{
    const auto resolved = [](CAxisFrame::Orientation orientation) {
        const CAxisFrame frame(orientation, CAxisFrame::Bottom);
        EXPECT_EQ(frame.resolveOrientedCoordSigned(COrientedCoord(3, 7)),
                  frame.resolveOrientedCoordSigned(3, 7));
        return frame.resolveOrientedCoordSigned(3, 7);
    };
    EXPECT_EQ(resolved(CAxisFrame::LeftToRight), QPoint(3, -7));
    EXPECT_EQ(resolved(CAxisFrame::RightToLeft), QPoint(-3, -7));
    EXPECT_EQ(resolved(CAxisFrame::BottomToTop), QPoint(7, -3));
    EXPECT_EQ(resolved(CAxisFrame::TopToBottom), QPoint(7, 3));
}

TEST(CAxisFrame, SizeIsTheRectanglesAlongAndAcross)
{
    EXPECT_EQ(kRightAtTheTop.orientedSize(QRect(10, 20, 100, 30)), QSize(100, 30));
    EXPECT_EQ(kUpAtTheLeft.orientedSize(QRect(10, 20, 100, 30)), QSize(30, 100));
}

TEST(CAxisFrame, ExtentsStopAtTheEndOfTheRange)
{
    const QRect widest(QPoint(-kMost, -kMost), QPoint(kMost, kMost));
    EXPECT_EQ(kRightAtTheTop.orientedSize(widest), QSize(kMost, kMost));
    EXPECT_EQ(kUpAtTheLeft.distanceAlong(widest), kMost);
}

} // namespace
} // namespace tovangl
