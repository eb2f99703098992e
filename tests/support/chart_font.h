// SPDX-License-Identifier: MIT
/// @file
/// Fonts for tests of texts without a chart.
#ifndef TOVANGL_SUPPORT_CHART_FONT_H
#define TOVANGL_SUPPORT_CHART_FONT_H

#include <QFont>
#include <QString>

namespace tovangl {

/// A font as charts set it up: measured in pixels, and not antialiased.
[[nodiscard]] inline QFont chartFont(const char* family, int pixelSize, bool isBold = false)
{
    QFont font(QString::fromLatin1(family));
    font.setPixelSize(pixelSize);
    font.setBold(isBold);
    font.setStyleStrategy(QFont::NoAntialias);
    return font;
}

} // namespace tovangl

#endif
