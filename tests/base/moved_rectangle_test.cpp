// SPDX-License-Identifier: MIT
#include "base/moved_rectangle.h"

#include <gtest/gtest.h>
#include <limits>

namespace tovangl {
namespace {

constexpr int kMost = std::numeric_limits<int>::max();
constexpr int kLeast = std::numeric_limits<int>::min();

QRect edges(int left, int top, int right, int bottom)
{
    return QRect(QPoint(left, top), QPoint(right, bottom));
}

TEST(MovedRectangle, KeepsItsSize)
{
    EXPECT_EQ(movedRectangle(QRect(1, 2, 3, 4), QPoint(10, -20)), QRect(11, -18, 3, 4));
}

TEST(MovedRectangle, StopsAtTheEndOfTheRange)
{
    EXPECT_EQ(movedRectangle(edges(0, 0, 10, 10), QPoint(kMost, kLeast)),
              edges(kMost, kLeast, kMost, kLeast + 10));
}

} // namespace
} // namespace tovangl
