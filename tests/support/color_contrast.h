// SPDX-License-Identifier: MIT
/// @file
/// How well two colours can be told apart by their lightness.
#ifndef TOVANGL_SUPPORT_COLOR_CONTRAST_H
#define TOVANGL_SUPPORT_COLOR_CONTRAST_H

#include <QColor>

namespace tovangl {

/// The light of a channel of sRGB: 0 to 255 becomes 0 to 1.
[[nodiscard]] double linearChannel(int channel);

/// 0 for black to 1 for white, as WCAG 2.2 defines "relative luminance".
[[nodiscard]] double relativeLuminance(const QColor& color);

/// 1 for equal colours to 21 for black and white, as WCAG 2.2 defines "contrast ratio".
[[nodiscard]] double contrastRatio(const QColor& a, const QColor& b);

/// What WCAG 2.2 asks of texts (1.4.3, level AA) and of graphical objects (1.4.11).
inline constexpr double kTextContrast = 4.5;
inline constexpr double kShapeContrast = 3.0;

} // namespace tovangl

#endif
