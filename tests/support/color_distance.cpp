// SPDX-License-Identifier: MIT
// How different two colours look.
#include "support/color_distance.h"

#include <cmath>

namespace tovangl {

namespace {

constexpr double kHalfTurn = 180; // degrees
constexpr double kWholeTurn = 360;
constexpr double kRadian = 3.14159265358979323846 / kHalfTurn;

double cosine(double degrees)
{
    return std::cos(degrees * kRadian);
}

double sine(double degrees)
{
    return std::sin(degrees * kRadian);
}

double squared(double value)
{
    return value * value;
}

// The curve of CIELAB: a line near black, a cube root above it.
double perceived(double share)
{
    constexpr double kEpsilon = 216.0 / 24389;
    constexpr double kKappa = 24389.0 / 27;
    return share > kEpsilon ? std::cbrt(share) : (kKappa * share + 16) / 116;
}

// Rises from 0 for greys to 1 for strong colours.
double strength(double chroma)
{
    const double seventh = std::pow(chroma, 7);
    return std::sqrt(seventh / (seventh + std::pow(25.0, 7)));
}

struct CLch
{
    double lightness = 0;
    double chroma = 0;
    double hue = 0; ///< degrees, 0 to 360; 0 for a grey
};

CLch lchOf(const CLab& color, double stretch)
{
    const double a = color.a * stretch;
    const double hue = a == 0 && color.b == 0 ? 0 : std::atan2(color.b, a) / kRadian;
    return {color.lightness, std::hypot(a, color.b), hue < 0 ? hue + kWholeTurn : hue};
}

bool isGrey(const CLch& first, const CLch& second)
{
    return first.chroma * second.chroma == 0;
}

// From -180 to 180.
double hueDifference(const CLch& first, const CLch& second)
{
    if (isGrey(first, second))
        return 0;
    const double difference = second.hue - first.hue;
    if (std::abs(difference) <= kHalfTurn)
        return difference;
    return difference > 0 ? difference - kWholeTurn : difference + kWholeTurn;
}

double meanHue(const CLch& first, const CLch& second)
{
    const double sum = first.hue + second.hue;
    if (isGrey(first, second))
        return sum;
    if (std::abs(first.hue - second.hue) <= kHalfTurn)
        return sum / 2;
    return (sum < kWholeTurn ? sum + kWholeTurn : sum - kWholeTurn) / 2;
}

double hueWeight(double hue)
{
    return 1 - 0.17 * cosine(hue - 30) + 0.24 * cosine(2 * hue) + 0.32 * cosine(3 * hue + 6) -
           0.20 * cosine(4 * hue - 63);
}

double difference(const CLch& first, const CLch& second)
{
    const double chroma = (first.chroma + second.chroma) / 2;
    const double hue = meanHue(first, second);
    const double fromMiddle = squared((first.lightness + second.lightness) / 2 - 50);
    const double lightness = (second.lightness - first.lightness) /
                             (1 + 0.015 * fromMiddle / std::sqrt(20 + fromMiddle));
    const double ofChroma = (second.chroma - first.chroma) / (1 + 0.045 * chroma);
    const double ofHue = 2 * std::sqrt(first.chroma * second.chroma) *
                         sine(hueDifference(first, second) / 2) /
                         (1 + 0.015 * chroma * hueWeight(hue));
    const double turn = -2 * strength(chroma) * sine(60 * std::exp(-squared((hue - 275) / 25)));
    return std::sqrt(squared(lightness) + squared(ofChroma) + squared(ofHue) +
                     turn * ofChroma * ofHue);
}

} // namespace

CLab labOf(const CLight& light)
{
    // sRGB to XYZ, each relative to the white point.
    const double x = perceived(
        (0.4124564 * light.red + 0.3575761 * light.green + 0.1804375 * light.blue) / 0.95047);
    const double y =
        perceived(0.2126729 * light.red + 0.7151522 * light.green + 0.0721750 * light.blue);
    const double z = perceived(
        (0.0193339 * light.red + 0.1191920 * light.green + 0.9503041 * light.blue) / 1.08883);
    return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

double colorDistance(const CLab& first, const CLab& second)
{
    const double chroma = (std::hypot(first.a, first.b) + std::hypot(second.a, second.b)) / 2;
    const double stretch = 1 + 0.5 * (1 - strength(chroma));
    return difference(lchOf(first, stretch), lchOf(second, stretch));
}

double colorDistance(const QColor& first, const QColor& second, Sight sight)
{
    return colorDistance(labOf(seenBy(sight, first)), labOf(seenBy(sight, second)));
}

} // namespace tovangl
