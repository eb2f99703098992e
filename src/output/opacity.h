// SPDX-License-Identifier: MIT
/// @file
/// Whether colours and pictures cover what is behind them.
#ifndef TOVANGL_OUTPUT_OPACITY_H
#define TOVANGL_OUTPUT_OPACITY_H

#include <QRgb>

class QImage;

namespace tovangl {

[[nodiscard]] inline bool isOpaque(QRgb color)
{
    constexpr int kOpaque = 255;
    return qAlpha(color) == kOpaque;
}

/// Whether all pixels of an ARGB32 picture are opaque.
[[nodiscard]] bool isOpaque(const QImage& picture);

} // namespace tovangl

#endif
