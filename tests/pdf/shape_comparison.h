// SPDX-License-Identifier: MIT
/// @file
/// Tells whether two pictures show the same shapes in nearly the same places.
#ifndef TOVANGL_TESTS_PDF_SHAPE_COMPARISON_H
#define TOVANGL_TESTS_PDF_SHAPE_COMPARISON_H

#include <QImage>

namespace tovangl {

/// How many pixels of each picture have a colour that is not near them in the other: in each
/// channel, a pixel must not be lighter or darker than all pixels of the other picture that are at
/// most so many columns and rows away from it. Pictures of unequal size differ in all pixels.
///
/// An edge that is less than a pixel beside its place stays within its neighbours, whether it is
/// antialiased or not. A shape that is missing, or further off, does not.
///
/// @param distance  pixels
[[nodiscard]] int countStrayPixels(const QImage& a, const QImage& b, int distance);

} // namespace tovangl

#endif
