// SPDX-License-Identifier: MIT
/// @file
/// The settings that every chart has.
#ifndef TOVANGL_INPUT_CGRAPH1DSETTINGS_H
#define TOVANGL_INPUT_CGRAPH1DSETTINGS_H

#include "base/CKilo.h"
#include "input/CChartColors.h"
#include <tovangl/Compression.h>

#include <QLocale>
#include <QString>

#include <optional>

namespace tovangl {

/// As the host set them.
struct CGraph1dSettings
{
    static constexpr int kGreatestScale = 1000;

    CGraph1dSettings();

    /// @param pixelSize  pixels before scaling, any number
    void setFont(const QString& family, int pixelSize);
    /// Builds the locale from the first two characters of each; an unknown pair gives "C".
    void setLocale(const QString& language, const QString& country);

    /// @param size  1024 or 1000; any other number is that of the process
    void setKilo(int size);
    /// @param pixels  is brought into 1 to 1000
    void setScale(int pixels);

    /// Items whose share of the total is smaller are left out; per cent, any number.
    double threshold = 0.0;
    QString fontFamily;
    bool isFamilyChosen = false; ///< by the host, and not the default
    int fontSize;                ///< pixels before scaling
    /// Every locale groups digits. Only newer versions of Qt switch grouping off for "C", and a
    /// chart's numbers must not depend on the version.
    QLocale locale;
    QString title;         ///< above the chart; empty: none
    QString othersCaption; ///< of one item for all that the threshold leaves out; empty: none
    QString othersLink;    ///< an address that this item leads to; empty: none
    CChartColors colors;
    bool hasBackground = false; ///< a gradient behind the chart, and a border around bars
    int scale = 1;              ///< picture pixels for each pixel of the size asked for; at least 1
    bool followsDisplay = false; ///< an SVG picture is dark on displays that are
    /// For unit prefixes, and for the steps of value axes; none: that of the process.
    std::optional<CKilo> kilo;
    Compression compression = Compression::Balanced;
};

} // namespace tovangl

#endif
