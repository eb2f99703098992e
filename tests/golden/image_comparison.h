// SPDX-License-Identifier: MIT
/// @file
/// Tells how far two pictures differ.
#ifndef TOVANGL_GOLDEN_IMAGE_COMPARISON_H
#define TOVANGL_GOLDEN_IMAGE_COMPARISON_H

#include <QRect>

#include <string>

class QImage;

namespace tovangl {

/// The difference of two pictures, in decoded pixels.
struct CImageDifference
{
    bool isSameSize = true;
    int pixels = 0;   ///< how many differ by more than the tolerance
    int greatest = 0; ///< the greatest difference of a channel, 0 to 255, alpha too
    QRect box;        ///< holds every pixel that differs by more than the tolerance

    [[nodiscard]] bool isNone() const { return isSameSize && pixels == 0; }
    [[nodiscard]] std::string text() const;
};

/// Compares pixel by pixel, whatever the formats of the two are.
///
/// @param tolerance  by how much a channel may differ, 0 to 255
[[nodiscard]] CImageDifference compareImages(const QImage& a, const QImage& b, int tolerance);

} // namespace tovangl

#endif
