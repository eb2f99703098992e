// SPDX-License-Identifier: MIT
/// @file
/// One value of a chart, with its caption.
#ifndef TOVANGL_INPUT_CGRAPH1DITEM_H
#define TOVANGL_INPUT_CGRAPH1DITEM_H

#include <QColor>
#include <QString>

namespace tovangl {

/// A data item as the host gave it. A colour that is not valid is not set.
struct CGraph1dItem
{
    long long value = 0;
    QString text;
    QColor color;
    QColor outlineColor; ///< of a bar; the slices of a pie share one
    QString link = {};   ///< an address that the item leads to; empty: none
};

} // namespace tovangl

#endif
