// SPDX-License-Identifier: MIT
/// @file
/// What readers see who lack one of the three kinds of cones.
#ifndef TOVANGL_SUPPORT_COLOR_BLINDNESS_H
#define TOVANGL_SUPPORT_COLOR_BLINDNESS_H

#include <QColor>

#include <array>

namespace tovangl {

enum class Sight
{
    Full,
    Protanopia,   ///< without the cones for long waves
    Deuteranopia, ///< without those for middle ones
    Tritanopia    ///< without those for short ones
};

inline constexpr std::array<Sight, 4> kSights = {Sight::Full, Sight::Protanopia,
                                                 Sight::Deuteranopia, Sight::Tritanopia};

/// Light in the primaries of sRGB, each from 0 to 1.
struct CLight
{
    double red = 0;
    double green = 0;
    double blue = 0;
};

[[nodiscard]] CLight lightOf(const QColor& color);

/// The light that someone of full sight sees as that reader sees the colour.
///
/// After Machado, Oliveira and Fernandes: "A Physiologically-based Model for Simulation of Color
/// Vision Deficiency", IEEE Transactions on Visualization and Computer Graphics 15 (2009), with
/// its matrices for severity 1.0, applied to linear light and clamped.
[[nodiscard]] CLight seenBy(Sight sight, const QColor& color);

} // namespace tovangl

#endif
