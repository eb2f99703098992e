// SPDX-License-Identifier: MIT
// How well two colours can be told apart by their lightness.
#include "support/color_contrast.h"

#include <algorithm>
#include <cmath>

namespace tovangl {

namespace {

constexpr double kLargestChannel = 255;

// The curve of sRGB (IEC 61966-2-1): a line near black, a power above it.
constexpr double kEndOfLine = 0.04045;
constexpr double kSlopeOfLine = 12.92;
constexpr double kOffset = 0.055;
constexpr double kExponent = 2.4;

// The light that a screen scatters back even where it is black.
constexpr double kFlare = 0.05;

} // namespace

double linearChannel(int channel)
{
    const double share = channel / kLargestChannel;
    return share <= kEndOfLine ? share / kSlopeOfLine
                               : std::pow((share + kOffset) / (1 + kOffset), kExponent);
}

double relativeLuminance(const QColor& color)
{
    return 0.2126 * linearChannel(color.red()) + 0.7152 * linearChannel(color.green()) +
           0.0722 * linearChannel(color.blue());
}

double contrastRatio(const QColor& a, const QColor& b)
{
    const auto [darker, lighter] = std::minmax({relativeLuminance(a), relativeLuminance(b)});
    return (lighter + kFlare) / (darker + kFlare);
}

} // namespace tovangl
