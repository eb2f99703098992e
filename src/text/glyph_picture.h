// SPDX-License-Identifier: MIT
/// @file
/// Glyphs as pixels, for outputs that have no other use for a painter.
#ifndef TOVANGL_TEXT_GLYPH_PICTURE_H
#define TOVANGL_TEXT_GLYPH_PICTURE_H

#include <QImage>
#include <QRectF>

#include <cstdint>

class QColor;
class QRawFont;

namespace tovangl {

/// What a painter makes of a glyph.
struct CGlyphPicture
{
    QImage pixels; ///< in ARGB32; null if nothing is to be seen
    QRectF box;    ///< that they cover, in pixels of the face, from the baseline's left end
};

/// What the glyphs of a face are.
enum class GlyphForm
{
    Outlines,
    Both, ///< some of them are pictures as well, or have several colours
    Pictures
};

/// Ask before anything else is done with a face. Qt loses the pictures of one that consists of
/// them, in all that it paints from then on, when it is asked for an outline.
[[nodiscard]] GlyphForm glyphFormOf(const QRawFont& face);

/// Paints a glyph in the size of its face, if an outline in that colour does not show it.
///
/// A glyph of a very large face is painted smaller, which the box makes up for. What stands far
/// outside of its place is cut off. Throws std::bad_alloc if memory runs out.
///
/// @param form  of the face
[[nodiscard]] CGlyphPicture pictureOfGlyph(const QRawFont& face, GlyphForm form,
                                           std::uint32_t glyph, const QColor& color);

} // namespace tovangl

#endif
