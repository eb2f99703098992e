// SPDX-License-Identifier: MIT
/// @file
/// One value of a chart, with its caption.
#ifndef TOVANGL_INPUT_CGRAPH1DITEM_H
#define TOVANGL_INPUT_CGRAPH1DITEM_H

#include <QColor>
#include <QString>

namespace tovangl {

/// Factor of QColor::darker(): an outline has two thirds of the fill's brightness.
inline constexpr int kOutlineDarkness = 150;

/// A data item as the host gave it. Both colours are valid.
struct CGraph1dItem
{
    long long value = 0;
    QString text;
    QColor color;
    QColor outlineColor; ///< of a bar; the slices of a pie share one
};

} // namespace tovangl

#endif
