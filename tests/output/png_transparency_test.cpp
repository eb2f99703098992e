// SPDX-License-Identifier: MIT
#include "output/encoded_files.h"
#include "output/png_decoders.h"
#include "output/random_pictures.h"

#include <QPainter>

#include <gtest/gtest.h>

namespace tovangl {
namespace {

constexpr char kPalette = 3;
constexpr char kTrueColor = 2;
constexpr char kTrueColorWithAlpha = 6;

char pixelTypeOf(const std::string& file)
{
    constexpr std::size_t kPlace = 9;
    return chunkOf(file, "IHDR").at(kPlace);
}

std::string balanced(const QImage& picture)
{
    return bytesOf(encoded(picture, Compression::Balanced));
}

QImage pictureOf(std::initializer_list<QRgb> pixels)
{
    QImage picture(static_cast<int>(pixels.size()), 1, QImage::Format_ARGB32);
    int x = 0;
    for (const QRgb pixel : pixels)
        picture.setPixel(x++, 0, pixel);
    return picture;
}

// Nothing is behind it.
QImage softDisc(int size)
{
    QImage picture(size, size, QImage::Format_ARGB32);
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(picture.rect(), Qt::transparent);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(QColor(200, 90, 30));
    painter.drawEllipse(QRect(3, 3, size - 7, size - 7));
    return picture;
}

TEST(PngTransparency, KeepsSoftEdges)
{
    for (const Compression compression : {Compression::Balanced, Compression::Fast}) {
        for (const int size : {20, 400}) {
            const QImage disc = softDisc(size);
            EXPECT_EQ(disc.pixel(0, 0), qRgba(0, 0, 0, 0));
            EXPECT_EQ(disc.pixel(size / 2, size / 2), qRgb(200, 90, 30));
            EXPECT_TRUE(decodesTo(encoded(disc, compression), disc)) << size;
        }
    }
}

TEST(PngTransparency, IsKeptWhereThereIsNothingElse)
{
    for (const Compression compression : {Compression::Balanced, Compression::Fast}) {
        const QImage pixel = pictureOf({qRgba(1, 2, 3, 0)});
        EXPECT_TRUE(decodesTo(encoded(pixel, compression), pixel));
    }
}

TEST(PngTransparency, IsNotMentionedInAnOpaquePicture)
{
    const std::string narrow = balanced(randomPicture(7, 100, 60, 40));
    EXPECT_EQ(pixelTypeOf(narrow), kPalette);
    EXPECT_EQ(chunkOf(narrow, "tRNS"), "");
    const std::string wide = balanced(noise(7, 100, 60));
    EXPECT_EQ(pixelTypeOf(wide), kTrueColor);
    EXPECT_EQ(chunkOf(wide, "tRNS"), "");
}

TEST(PngTransparency, OfAPaletteIsThatOfItsFirstColours)
{
    const std::string file =
        balanced(pictureOf({qRgb(9, 9, 9), qRgba(1, 1, 1, 128), qRgb(8, 8, 8), qRgba(0, 0, 0, 0)}));
    EXPECT_EQ(pixelTypeOf(file), kPalette);
    EXPECT_EQ(chunkOf(file, "PLTE"), std::string("\1\1\1\0\0\0\x9\x9\x9\x8\x8\x8", 12));
    EXPECT_EQ(chunkOf(file, "tRNS"), std::string("\x80\0", 2));
}

TEST(PngTransparency, TellsColoursApartThatDifferInNothingElse)
{
    QImage picture(256, 1, QImage::Format_ARGB32);
    for (int x = 0; x < picture.width(); ++x)
        picture.setPixel(x, 0, qRgba(9, 9, 9, 255 - x));
    const CPictureFile file = encoded(picture, Compression::Balanced);
    EXPECT_EQ(chunkOf(bytesOf(file), "tRNS").size(), 255u);
    EXPECT_TRUE(decodesTo(file, picture));
}

TEST(PngTransparency, OfASinglePixelAmongManyColoursIsFoundWhereverItIs)
{
    const QImage picture = noise(6, 67, 41);
    for (const QPoint place : {QPoint(0, 0), QPoint(66, 0), QPoint(30, 20), QPoint(66, 40)}) {
        QImage changed = picture;
        changed.setPixel(place, qRgba(1, 2, 3, 254));
        const CPictureFile file = encoded(changed, Compression::Balanced);
        EXPECT_EQ(pixelTypeOf(bytesOf(file)), kTrueColorWithAlpha) << place.x();
        EXPECT_TRUE(decodesTo(file, changed)) << place.x();
    }
}

} // namespace
} // namespace tovangl
