// SPDX-License-Identifier: MIT
/// @file
/// An SVG picture as pixels, and how far these are from a painted picture.
#ifndef TOVANGL_SVG_RENDERED_SVG_H
#define TOVANGL_SVG_RENDERED_SVG_H

#include <QImage>
#include <QRect>

#include <string>
#include <vector>

namespace tovangl {

class CParsedSvg;

/// The picture at one pixel for each of its own, as rsvg-convert draws it. Null where that fails.
[[nodiscard]] QImage renderedSvg(const std::string& bytes);

/// What the texts of a picture cover, and a little more: letters reach beyond their lines.
[[nodiscard]] std::vector<QRect> textBoxes(const CParsedSvg& svg);

/// How two pictures of one size compare outside of the texts.
struct CPixelComparison
{
    long compared = 0;  ///< pixels
    long different = 0; ///< by more than 16 of 255 in one channel
    long moved = 0;     ///< of these, the ones that no pixel beside them explains

    [[nodiscard]] double share() const; ///< of the pixels that are equal, in per cent
};

[[nodiscard]] CPixelComparison comparePixels(const QImage& painted, const QImage& drawn,
                                             const std::vector<QRect>& texts);

} // namespace tovangl

#endif
