// SPDX-License-Identifier: MIT
/// @file
/// Pictures that are told by numbers: made of runs and repeated rows, as charts are.
#ifndef TOVANGL_OUTPUT_RANDOM_PICTURES_H
#define TOVANGL_OUTPUT_RANDOM_PICTURES_H

#include <QImage>

namespace tovangl {

/// An opaque picture in ARGB32 of at most so many colours. A run is up to 40 pixels long, and about
/// half of the rows repeat the row above.
[[nodiscard]] QImage randomPicture(unsigned seed, int width, int height, int colors);

/// The same, but of each three colours one is translucent and one fully transparent, whatever its
/// red, green and blue.
[[nodiscard]] QImage translucentPicture(unsigned seed, int width, int height, int colors);

/// One row in which every pixel has a colour of its own.
[[nodiscard]] QImage pictureOfColors(int colors);

/// An opaque picture whose pixels are all drawn by lot from all colours.
[[nodiscard]] QImage noise(unsigned seed, int width, int height);

/// The same, with alpha drawn by lot too.
[[nodiscard]] QImage translucentNoise(unsigned seed, int width, int height);

} // namespace tovangl

#endif
