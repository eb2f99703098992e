// SPDX-License-Identifier: MIT
/// @file
/// The settings that every chart has.
#ifndef TOVANGL_INPUT_CGRAPH1DSETTINGS_H
#define TOVANGL_INPUT_CGRAPH1DSETTINGS_H

#include <QLocale>
#include <QString>

namespace tovangl {

/// Threshold, font and locale of one chart, as the host set them.
struct CGraph1dSettings
{
    CGraph1dSettings();

    /// @param pixelSize  pixels before scaling, any number
    void setFont(const QString& family, int pixelSize);
    /// Builds the locale from the first two characters of each; an unknown pair gives "C".
    void setLocale(const QString& language, const QString& country);

    /// Items whose share of the total is smaller are left out; per cent, any number.
    double threshold = 0.0;
    QString fontFamily;
    int fontSize; ///< pixels before scaling
    /// Every locale groups digits. Only newer versions of Qt switch grouping off for "C", and a
    /// chart's numbers must not depend on the version.
    QLocale locale;
};

} // namespace tovangl

#endif
