// SPDX-License-Identifier: MIT
#include "core/raster_surface.h"

#include <QImage>
#include <QPixmap>

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
    const QImage image = makeRasterSurface<QImage>(7, 5);
    EXPECT_EQ(image.size(), QSize(7, 5));
    EXPECT_EQ(image.format(), QImage::Format_ARGB32);
}

TEST(RasterSurface, IsNullWhereTheSizeIsNone)
{
    EXPECT_TRUE(makeRasterSurface<QImage>(0, 5).isNull());
    EXPECT_TRUE(makeRasterSurface<QPixmap>(0, 5).isNull());
    EXPECT_TRUE(makeRasterSurface<QImage>(kMost, kMost).isNull());
}

TEST(RasterSurface, APixmapHasTheSizeAskedFor)
{
    EXPECT_EQ(makeRasterSurface<QPixmap>(7, 5).size(), QSize(7, 5));
}

} // namespace
} // namespace tovangl
