// SPDX-License-Identifier: MIT
#include "layout/CPlacedText.h"

#include <gtest/gtest.h>
#include <limits>

namespace tovangl {
namespace {

constexpr bool kUpright = false;
constexpr bool kTurned = true;
constexpr int kMost = std::numeric_limits<int>::max();
constexpr int kLeast = std::numeric_limits<int>::min();

TEST(CoveredPixels, OfAnUprightTextAreItsRoomOnThePicture)
{
    EXPECT_EQ(coveredPixels(QRect(10, 20, 50, 15), kUpright, QPoint()), QRect(10, 20, 50, 15));
    EXPECT_EQ(coveredPixels(QRect(10, 20, 50, 15), kUpright, QPoint(7, -3)), QRect(17, 17, 50, 15));
    EXPECT_EQ(coveredPixels(QRectF(10, 20, 50, 15), kUpright, QPoint(7, -3)),
              QRect(17, 17, 50, 15));
}

// A room 50 wide and 15 high: the text covers 15 pixels to the right and 50 upward.
TEST(CoveredPixels, OfATurnedTextReachUpFromTheCornerOfItsRoom)
{
    EXPECT_EQ(coveredPixels(QRect(10, 80, 50, 15), kTurned, QPoint()),
              QRect(QPoint(10, 30), QPoint(24, 79)));
    EXPECT_EQ(coveredPixels(QRectF(10, 80, 50, 15), kTurned, QPoint()), QRect(10, 30, 15, 50));
}

TEST(CoveredPixels, OfFractionsAreRoundedHalvesAwayFromZero)
{
    EXPECT_EQ(coveredPixels(QRectF(10.5, 20.4, 49.5, 15.4), kUpright, QPoint()),
              QRect(11, 20, 50, 15));
    EXPECT_EQ(coveredPixels(QRectF(-10.5, -0.5, 20.6, 9.5), kUpright, QPoint()),
              QRect(-11, -1, 21, 10));
}

TEST(CoveredPixels, OfARoomThatIsNoneAreThatRoom)
{
    const QRect invalid(QPoint(10, 20), QPoint(5, 30));
    EXPECT_EQ(coveredPixels(invalid, kUpright, QPoint()), invalid);
}

TEST(CoveredPixels, StayInTheRangeOfInt)
{
    const QRect all(QPoint(kLeast, kLeast), QPoint(kMost, kMost));
    EXPECT_EQ(coveredPixels(all, kUpright, QPoint(5, 5)),
              QRect(QPoint(kLeast + 5, kLeast + 5), QPoint(kMost, kMost)));
    EXPECT_EQ(coveredPixels(all, kTurned, QPoint(5, 5)).top(), kLeast);
    const QRectF beyond(-1e300, -1e300, 2e300, 2e300);
    EXPECT_EQ(coveredPixels(beyond, kUpright, QPoint(5, 5)).left(), kLeast);
}

TEST(ToRoom, CountsBothEdges)
{
    EXPECT_EQ(toRoom(QRect(10, 20, 50, 15)), QRectF(10, 20, 50, 15));
    const QRect all(QPoint(kLeast, kLeast), QPoint(kMost, kMost));
    EXPECT_EQ(toRoom(all).width(), 4294967296.0);
}

} // namespace
} // namespace tovangl
