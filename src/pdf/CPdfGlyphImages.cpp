// SPDX-License-Identifier: MIT
// The glyphs of a PDF file that are pictures.
#include "pdf/CPdfGlyphImages.h"

#include "pdf/CPdfObjects.h"
#include "pdf/pdf_text.h"

#include <QImage>
#include <QRawFont>

#include <algorithm>
#include <utility>

namespace tovangl {

namespace {

constexpr std::size_t kMostPixels = 1U << 23; // two thousand emoji of 15 points
constexpr std::size_t kMostGlyphs = 1U << 12; // that are painted to see what they are

void append(std::string& bytes, QRgb color)
{
    for (const int channel : {qRed(color), qGreen(color), qBlue(color)})
        bytes += static_cast<char>(channel);
}

bool isSeen(QRgb pixel)
{
    return qAlpha(pixel) != 0;
}

std::string imageObject(int width, int height, const std::string& entries)
{
    return "/Type/XObject/Subtype/Image/Width " + std::to_string(width) + "/Height " +
           std::to_string(height) + "/BitsPerComponent 8/Interpolate true" + entries;
}

} // namespace

std::optional<CGlyphImage> CPdfGlyphImages::find(std::size_t font, GlyphForm form,
                                                 const QRawFont& face, std::uint32_t glyph,
                                                 const QColor& color)
{
    if (form == GlyphForm::Outlines)
        return std::nullopt;
    const CKey key(font, glyph, face.pixelSize(), color.rgb());
    const auto known = m_glyphs.find(key);
    if (known != m_glyphs.end())
        return known->second;
    std::optional<CGlyphImage> image;
    if (m_pixels < kMostPixels && m_glyphs.size() < kMostGlyphs)
        image = add(pictureOfGlyph(face, form, glyph, color));
    m_glyphs[key] = image;
    return image;
}

std::string CPdfGlyphImages::write(CPdfObjects& objects) const
{
    std::string names;
    for (std::size_t i = 0; i < m_images.size(); ++i) {
        const CImage& image = m_images[i];
        const int mask = objects.addStream(
            imageObject(image.width, image.height, "/ColorSpace/DeviceGray"), image.opacity);
        const int object =
            objects.addStream(imageObject(image.width, image.height,
                                          "/ColorSpace/DeviceRGB/SMask " + pdfReference(mask)),
                              image.colors);
        names += "/I" + std::to_string(i) + ' ' + pdfReference(object);
    }
    return names;
}

// A reader that shows an image smaller mixes the colours of what is seen with those of what is not.
// So each pixel that is not seen has the colour of the nearest one before it in its row, or else
// of the first one.
CPdfGlyphImages::CImage CPdfGlyphImages::toImage(const QImage& picture)
{
    CImage image;
    image.width = picture.width();
    image.height = picture.height();
    QRgb last = qRgb(255, 255, 255);
    for (int y = 0; y < image.height; ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        const auto* end = row + image.width;
        const auto* first = std::find_if(row, end, isSeen);
        if (first != end)
            last = *first;
        for (const auto* pixel = row; pixel != end; ++pixel) {
            if (isSeen(*pixel))
                last = *pixel;
            append(image.colors, last);
            image.opacity += static_cast<char>(qAlpha(*pixel));
        }
    }
    return image;
}

// Glyphs that differ in the colour of their text alone are mostly the same picture.
std::optional<CGlyphImage> CPdfGlyphImages::add(const CGlyphPicture& picture)
{
    if (picture.pixels.isNull())
        return std::nullopt;
    CImage image = toImage(picture.pixels);
    const auto isSame = [&](const CImage& other) {
        return other.width == image.width && other.height == image.height &&
               other.colors == image.colors && other.opacity == image.opacity;
    };
    const auto known = std::find_if(m_images.begin(), m_images.end(), isSame);
    const auto index = static_cast<std::size_t>(known - m_images.begin());
    if (known == m_images.end()) {
        m_pixels += image.opacity.size();
        m_images.push_back(std::move(image));
    }
    return CGlyphImage{index, picture.box};
}

} // namespace tovangl
