// SPDX-License-Identifier: MIT
#include "pdf/shape_comparison.h"

#include <gtest/gtest.h>

namespace tovangl {
namespace {

constexpr int kNextPixel = 1;

QImage whitePicture()
{
    QImage picture(8, 8, QImage::Format_ARGB32);
    picture.fill(Qt::white);
    return picture;
}

QImage pictureWithColumn(int x)
{
    QImage picture = whitePicture();
    for (int y = 0; y < picture.height(); ++y)
        picture.setPixelColor(x, y, Qt::black);
    return picture;
}

TEST(ShapeComparison, EqualPicturesHaveNoStrayPixel)
{
    EXPECT_EQ(countStrayPixels(pictureWithColumn(3), pictureWithColumn(3), kNextPixel), 0);
}

TEST(ShapeComparison, ALineOnePixelBesideItsPlaceIsNear)
{
    EXPECT_EQ(countStrayPixels(pictureWithColumn(3), pictureWithColumn(4), kNextPixel), 0);
}

TEST(ShapeComparison, ALineTwoPixelsBesideItsPlaceIsStrayInBothPictures)
{
    EXPECT_EQ(countStrayPixels(pictureWithColumn(3), pictureWithColumn(5), kNextPixel), 16);
}

TEST(ShapeComparison, AMissingLineIsStray)
{
    EXPECT_EQ(countStrayPixels(whitePicture(), pictureWithColumn(3), kNextPixel), 8);
}

TEST(ShapeComparison, APaleDotIsStray)
{
    QImage dotted = whitePicture();
    dotted.setPixelColor(2, 2, QColor(255, 255, 200));
    EXPECT_EQ(countStrayPixels(whitePicture(), dotted, kNextPixel), 1);
}

TEST(ShapeComparison, PicturesOfUnequalSizeDifferEverywhere)
{
    EXPECT_EQ(countStrayPixels(whitePicture(), QImage(2, 2, QImage::Format_ARGB32), kNextPixel),
              68);
}

} // namespace
} // namespace tovangl
