// SPDX-License-Identifier: MIT
/// @file
/// The glyphs of a PDF file that are pictures.
#ifndef TOVANGL_PDF_CPDFGLYPHIMAGES_H
#define TOVANGL_PDF_CPDFGLYPHIMAGES_H

#include "text/glyph_picture.h"

#include <QColor>
#include <QRectF>

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

class QImage;
class QRawFont;

namespace tovangl {

class CPdfObjects;

/// Where an image stands that shows a glyph.
struct CGlyphImage
{
    std::size_t image = 0;
    QRectF box; ///< pixels, from the glyph's place
};

/// Collects images of glyphs that outlines do not show, as those of emoji, each of them once. The
/// page has them with the pixels that a picture for print has. How many there can be in all is
/// limited, because captions and fonts come from anywhere: what goes beyond is left out.
class CPdfGlyphImages
{
public:
    /// @param font  tells faces apart that differ in more than their size
    /// @param form  of the face
    /// @return nothing if outlines show the glyph, or nothing does
    [[nodiscard]] std::optional<CGlyphImage> find(std::size_t font, GlyphForm form,
                                                  const QRawFont& face, std::uint32_t glyph,
                                                  const QColor& color);
    /// Writes the images, and returns the names of them as entries of a dictionary.
    std::string write(CPdfObjects& objects) const;

private:
    struct CImage
    {
        int width = 0;
        int height = 0;
        std::string colors;
        std::string opacity;
    };
    using CKey = std::tuple<std::size_t, std::uint32_t, double, QRgb>; // with size and colour

    [[nodiscard]] std::optional<CGlyphImage> add(const CGlyphPicture& picture);
    [[nodiscard]] static CImage toImage(const QImage& picture);
    [[nodiscard]] std::size_t add(CImage image);

    std::vector<CImage> m_images;
    std::map<CKey, std::optional<CGlyphImage>> m_glyphs;
    std::size_t m_pixels = 0; // of all images
};

} // namespace tovangl

#endif
