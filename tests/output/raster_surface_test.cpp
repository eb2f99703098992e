// SPDX-License-Identifier: MIT
#include "output/raster_surface.h"

#include <QImage>

#include <gtest/gtest.h>
#include <limits>

namespace tovangl {
namespace {

constexpr int kMost = std::numeric_limits<int>::max();
constexpr int kLeast = std::numeric_limits<int>::min();

TEST(RasterSize, StartsAtOnePixel)
{
    EXPECT_TRUE(isRasterSize(1, 1));
    EXPECT_FALSE(isRasterSize(0, 1));
    EXPECT_FALSE(isRasterSize(1, 0));
    EXPECT_FALSE(isRasterSize(-1, -1));
    EXPECT_FALSE(isRasterSize(kLeast, kLeast));
}

TEST(RasterSize, EndsAtAMillionPixelsASide)
{
    EXPECT_TRUE(isRasterSize(1000000, 1));
    EXPECT_TRUE(isRasterSize(1, 1000000));
    EXPECT_FALSE(isRasterSize(1000001, 1));
    EXPECT_FALSE(isRasterSize(1, 1000001));
    EXPECT_FALSE(isRasterSize(kMost, kMost));
}

TEST(RasterSize, EndsBelowTwoGibibytes)
{
    EXPECT_TRUE(isRasterSize(32767, 16384));
    EXPECT_FALSE(isRasterSize(32768, 16384));
}

TEST(RasterSurface, AnImageHasFourBytesAPixel)
{
    const QImage image = makeRasterSurface(7, 5);
    EXPECT_EQ(image.size(), QSize(7, 5));
    EXPECT_EQ(image.format(), QImage::Format_ARGB32);
}

TEST(RasterSurface, IsNullWhereTheSizeIsNone)
{
    EXPECT_TRUE(makeRasterSurface(0, 5).isNull());
    EXPECT_TRUE(makeRasterSurface(kMost, kMost).isNull());
}

} // namespace
} // namespace tovangl
