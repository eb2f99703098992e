// SPDX-License-Identifier: MIT
#include "pdf/CPdfGlyphImages.h"
#include "support/small_font.h"

#include <QBuffer>
#include <QByteArray>
#include <QFont>
#include <QFontDatabase>
#include <QImage>
#include <QRawFont>
#include <QString>

#include <gtest/gtest.h>

namespace tovangl {
namespace {

constexpr std::uint32_t kGlyph = 1;

std::string redPicture()
{
    QImage picture(32, 44, QImage::Format_ARGB32);
    picture.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "PNG");
    return bytes.toStdString();
}

QRawFont faceOf(const QString& family, int size)
{
    QFont font(family);
    font.setPixelSize(size);
    return QRawFont::fromFont(font);
}

// At 57 pixels, which are the height of its lines, the face shows its picture pixel by pixel.
class GlyphImages : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        CSmallFont font{{windowsName(1, "Pictures")}};
        font.picture = redPicture();
        QFontDatabase::addApplicationFontFromData(QByteArray::fromStdString(smallFont(font)));
    }
    static QRawFont face(int size) { return faceOf("Pictures", size); }
    auto find(const QRawFont& face, const QColor& color = Qt::black)
    {
        return m_images.find(0, glyphFormOf(face), face, kGlyph, color);
    }

    CPdfGlyphImages m_images;
};

TEST_F(GlyphImages, AreNoneOfAFaceWithOutlines)
{
    EXPECT_FALSE(find(faceOf("DejaVu Sans", 20)).has_value());
}

TEST_F(GlyphImages, CoverWhatTheGlyphCovers)
{
    const auto image = find(face(57));
    ASSERT_TRUE(image.has_value());
    EXPECT_EQ(image->box.size(), QSizeF(32, 44));
    EXPECT_EQ(image->box.bottomLeft(), QPointF(0, 0));
}

TEST_F(GlyphImages, AreSharedByTextsOfSeveralColours)
{
    const auto black = find(face(57));
    const auto white = find(face(57), Qt::white);
    ASSERT_TRUE(black && white);
    EXPECT_EQ(black->image, white->image);
}

TEST_F(GlyphImages, HaveAnImageForEachSize)
{
    const auto small = find(face(32));
    const auto large = find(face(64));
    ASSERT_TRUE(small && large);
    EXPECT_NE(small->image, large->image);
}

TEST_F(GlyphImages, HaveNoMorePixelsThanFontsHaveWhereTheFontIsLarge)
{
    constexpr int kSize = 40 * 57;
    const QRawFont large = face(kSize);
    const CGlyphPicture picture = pictureOfGlyph(large, glyphFormOf(large), kGlyph, Qt::black);
    EXPECT_NEAR(picture.box.height(), 40 * 44, 10);
    EXPECT_GT(picture.pixels.height(), 300);
    EXPECT_LT(picture.pixels.height(), 512);
}

// Eight million pixels are enough for two thousand emoji.
TEST_F(GlyphImages, EndWhereAllOfThemTogetherHaveTooManyPixels)
{
    int found = 0;
    int size = 400;
    while (size < 600 && find(face(size)).has_value()) {
        ++found;
        ++size;
    }
    EXPECT_GT(found, 50);
    EXPECT_LT(found, 150);
    EXPECT_TRUE(find(face(400)).has_value());
}

} // namespace
} // namespace tovangl
