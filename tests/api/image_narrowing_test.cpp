// SPDX-License-Identifier: MIT
#include "api/image_narrowing.h"

#include <QBuffer>
#include <QImage>
#include <QSet>

#include <gtest/gtest.h>
#include <random>

namespace tovangl {
namespace {

using Random = std::mt19937;

// A picture of runs, repeated rows and at most so many colours.
QImage randomImage(Random& random, int colors, int alpha)
{
    const auto upTo = [&random](int limit) {
        return static_cast<int>(random() % static_cast<unsigned>(limit));
    };
    QVector<QRgb> palette;
    for (int i = 0; i < colors; ++i)
        palette.append(qRgba(upTo(256), upTo(256), upTo(256), alpha < 0 ? upTo(256) : alpha));
    QImage image(1 + upTo(70), 1 + upTo(50), QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        const bool isRepeated = y > 0 && upTo(3) == 0;
        QRgb color = palette.at(upTo(colors));
        for (int x = 0; x < image.width(); ++x) {
            if (upTo(4) == 0)
                color = palette.at(upTo(colors));
            image.setPixel(x, y, isRepeated ? image.pixel(x, y - 1) : color);
        }
    }
    return image;
}

int countColors(const QImage& image)
{
    QSet<QRgb> colors;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            colors.insert(image.pixel(x, y));
    return static_cast<int>(colors.size());
}

QImage savedAndLoaded(const QImage& image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, "PNG", -1));
    return QImage::fromData(bytes, "PNG").convertToFormat(QImage::Format_ARGB32);
}

QImage imageOfColors(int count)
{
    QImage image(count, 1, QImage::Format_ARGB32);
    for (int x = 0; x < count; ++x)
        image.setPixel(x, 0, qRgb(x % 256, x / 256, 7));
    return image;
}

TEST(ImageNarrowing, DecodedPixelsAreThoseOfTheWidePicture)
{
    Random random(20240229);
    for (int round = 0; round < 600; ++round) {
        constexpr int kOpaque = 255;
        QImage image = randomImage(random, 1 + round % 400, round % 5 == 0 ? -1 : kOpaque);
        const QImage wide = image.copy();
        EXPECT_EQ(savedAndLoaded(narrowImage(image)), savedAndLoaded(wide)) << round;
    }
}

TEST(ImageNarrowing, TheFormatFollowsTheNumberOfColours)
{
    Random random(7);
    for (int round = 0; round < 200; ++round) {
        QImage image = randomImage(random, 1 + round * 3, 255);
        const bool isPalette = countColors(image) <= 256;
        EXPECT_EQ(narrowImage(image).format(),
                  isPalette ? QImage::Format_Indexed8 : QImage::Format_RGB32);
    }
}

TEST(ImageNarrowing, APaletteHolds256ColoursAndNotOneMore)
{
    QImage full = imageOfColors(256);
    QImage over = imageOfColors(257);
    EXPECT_EQ(narrowImage(full).format(), QImage::Format_Indexed8);
    EXPECT_EQ(narrowImage(over).format(), QImage::Format_RGB32);
}

TEST(ImageNarrowing, ManyColoursWithAlphaStayAsTheyAre)
{
    QImage image = imageOfColors(300);
    image.setPixel(299, 0, qRgba(1, 2, 3, 254));
    EXPECT_EQ(narrowImage(image).format(), QImage::Format_ARGB32);
}

TEST(ImageNarrowing, ANullPictureStaysNull)
{
    QImage image;
    EXPECT_TRUE(narrowImage(image).isNull());
}

} // namespace
} // namespace tovangl
