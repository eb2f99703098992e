// SPDX-License-Identifier: MIT
// What readers see who lack one of the three kinds of cones.
#include "support/color_blindness.h"

#include "support/color_contrast.h"

#include <algorithm>

namespace tovangl {

namespace {

// Weights of red, green and blue.
using Row = std::array<double, 3>;
using Matrix = std::array<Row, 3>;

constexpr Matrix kFull = {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
constexpr Matrix kProtanopia = {{{0.152286, 1.052583, -0.204868},
                                 {0.114503, 0.786281, 0.099216},
                                 {-0.003882, -0.048116, 1.051998}}};
constexpr Matrix kDeuteranopia = {{{0.367322, 0.860646, -0.227968},
                                   {0.280085, 0.672501, 0.047413},
                                   {-0.011820, 0.042940, 0.968881}}};
constexpr Matrix kTritanopia = {{{1.255528, -0.076749, -0.178779},
                                 {-0.078411, 0.930809, 0.147602},
                                 {0.004733, 0.691367, 0.303900}}};

const Matrix& matrixOf(Sight sight)
{
    switch (sight) {
    case Sight::Protanopia:
        return kProtanopia;
    case Sight::Deuteranopia:
        return kDeuteranopia;
    case Sight::Tritanopia:
        return kTritanopia;
    case Sight::Full:
        break;
    }
    return kFull;
}

double weighted(const Row& weights, const CLight& light)
{
    const double sum = weights[0] * light.red + weights[1] * light.green + weights[2] * light.blue;
    return std::clamp(sum, 0.0, 1.0);
}

} // namespace

CLight lightOf(const QColor& color)
{
    return {linearChannel(color.red()), linearChannel(color.green()), linearChannel(color.blue())};
}

CLight seenBy(Sight sight, const QColor& color)
{
    const Matrix& matrix = matrixOf(sight);
    const CLight light = lightOf(color);
    return {weighted(matrix[0], light), weighted(matrix[1], light), weighted(matrix[2], light)};
}

} // namespace tovangl
