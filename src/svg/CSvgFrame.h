// SPDX-License-Identifier: MIT
/// @file
/// What an SVG picture says besides its layout.
#ifndef TOVANGL_SVG_CSVGFRAME_H
#define TOVANGL_SVG_CSVGFRAME_H

#include <QColor>
#include <QFont>
#include <QString>

namespace tovangl {

struct CSvgFrame
{
    int width = 0; ///< pixels
    int height = 0;
    QFont font;                 ///< that the layout was measured with
    QColor picture = Qt::white; ///< what the picture is filled with
    QString title = {};         ///< the picture's name
    QString description = {};
};

} // namespace tovangl

#endif
