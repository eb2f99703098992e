// SPDX-License-Identifier: MIT
#include "golden/image_comparison.h"

#include <QImage>

#include <gtest/gtest.h>

namespace tovangl {
namespace {

QImage greyImage()
{
    QImage image(8, 6, QImage::Format_ARGB32);
    image.fill(0xff808080);
    return image;
}

QImage greyImageWith(int x, int y, QRgb color)
{
    QImage image = greyImage();
    image.setPixel(x, y, color);
    return image;
}

TEST(CompareImages, FindsNoDifferenceBetweenEqualPictures)
{
    const CImageDifference difference = compareImages(greyImage(), greyImage(), 0);
    EXPECT_TRUE(difference.isNone());
    EXPECT_EQ(difference.greatest, 0);
}

TEST(CompareImages, FindsOnePixel)
{
    const CImageDifference difference =
        compareImages(greyImage(), greyImageWith(3, 2, 0xff808090), 0);
    EXPECT_FALSE(difference.isNone());
    EXPECT_EQ(difference.pixels, 1);
    EXPECT_EQ(difference.greatest, 16);
    EXPECT_EQ(difference.box, QRect(3, 2, 1, 1));
}

TEST(CompareImages, FindsTheLastPixel)
{
    EXPECT_FALSE(compareImages(greyImage(), greyImageWith(7, 5, 0xff000000), 0).isNone());
}

class EveryChannel : public ::testing::TestWithParam<QRgb>
{};

TEST_P(EveryChannel, IsCompared)
{
    const CImageDifference difference =
        compareImages(greyImage(), greyImageWith(0, 0, GetParam()), 0);
    EXPECT_EQ(difference.greatest, 1);
    EXPECT_FALSE(difference.isNone());
}

INSTANTIATE_TEST_SUITE_P(CompareImages, EveryChannel,
                         ::testing::Values(0xff818080, 0xff808180, 0xff80807f, 0xfe808080));

TEST(CompareImages, ToleratesWhatItIsToldTo)
{
    const QImage other = greyImageWith(3, 2, 0xff868080);
    EXPECT_TRUE(compareImages(greyImage(), other, 6).isNone());
    EXPECT_EQ(compareImages(greyImage(), other, 6).greatest, 6);
    EXPECT_FALSE(compareImages(greyImage(), other, 5).isNone());
}

TEST(CompareImages, FindsAnotherSize)
{
    EXPECT_FALSE(compareImages(greyImage(), greyImage().copy(0, 0, 8, 5), 255).isNone());
    EXPECT_FALSE(compareImages(greyImage(), QImage(), 255).isNone());
}

TEST(CompareImages, DoesNotMindTheFormat)
{
    const QImage other = greyImage().convertToFormat(QImage::Format_RGB32);
    EXPECT_TRUE(compareImages(greyImage(), other, 0).isNone());
}

TEST(CompareImages, SaysWhereTheDifferenceIs)
{
    QImage other = greyImageWith(1, 2, 0xff000000);
    other.setPixel(4, 3, 0xff000000);
    EXPECT_EQ(compareImages(greyImage(), other, 0).text(),
              "2 pixels differ, by up to 128, in 4x2 at 1,2");
}

} // namespace
} // namespace tovangl
