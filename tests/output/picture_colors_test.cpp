// SPDX-License-Identifier: MIT
#include "output/picture_colors.h"
#include "output/random_pictures.h"

#include <QImage>
#include <QSet>

#include <gtest/gtest.h>

namespace tovangl {
namespace {

int countColors(const QImage& image)
{
    QSet<QRgb> colors;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            colors.insert(image.pixel(x, y));
    return static_cast<int>(colors.size());
}

TEST(PictureColors, AreAllFound)
{
    for (unsigned seed = 0; seed < 200; ++seed) {
        const int width = 1 + static_cast<int>(seed * 7 % 71);
        const QImage picture = randomPicture(seed, width, 50, 1 + static_cast<int>(seed));
        const CPictureColors colors = readColors(picture);
        EXPECT_TRUE(colors.areFew);
        EXPECT_EQ(colors.index.count(), countColors(picture)) << seed;
    }
}

TEST(PictureColors, AreFewUpTo256)
{
    EXPECT_TRUE(readColors(pictureOfColors(256)).areFew);
    EXPECT_FALSE(readColors(pictureOfColors(257)).areFew);
}

TEST(PictureColors, AreManyWhereverThe257thIs)
{
    QImage picture(256, 40, QImage::Format_ARGB32);
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            picture.setPixel(x, y, qRgb(x, 7, 7));
    EXPECT_TRUE(readColors(picture).areFew);
    for (const QPoint place : {QPoint(0, 0), QPoint(255, 8), QPoint(255, 39), QPoint(100, 21)}) {
        QImage changed = picture;
        changed.setPixel(place, qRgb(1, 2, 3));
        EXPECT_FALSE(readColors(changed).areFew) << place.x();
    }
}

TEST(PictureColors, AreNumberedWithOpaqueOnesLast)
{
    const QImage picture = translucentPicture(3, 60, 50, 40);
    const CColorIndex index = readColors(picture).index;
    EXPECT_EQ(index.count(), countColors(picture));
    int opaque = 0;
    for (int number = 0; number < index.count(); ++number) {
        const bool isLast = qAlpha(index.colorAt(number)) == 255;
        EXPECT_TRUE(isLast || opaque == 0) << number;
        opaque += isLast ? 1 : 0;
    }
    EXPECT_GT(opaque, 0);
    EXPECT_LT(opaque, index.count());
}

TEST(PictureColors, TellWhichRowsRepeatTheRowAbove)
{
    QImage picture(21, 5, QImage::Format_ARGB32);
    picture.fill(qRgb(9, 9, 9));
    picture.setPixel(20, 2, qRgb(1, 2, 3));
    const CPictureColors colors = readColors(picture);
    EXPECT_EQ(colors.isRepeated, (std::vector<bool>{false, true, false, false, true}));
    EXPECT_EQ(colors.repeatedRows, 2);
}

} // namespace
} // namespace tovangl
