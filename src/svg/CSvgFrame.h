// SPDX-License-Identifier: MIT
/// @file
/// What an SVG picture says besides its layout.
#ifndef TOVANGL_SVG_CSVGFRAME_H
#define TOVANGL_SVG_CSVGFRAME_H

#include <QColor>
#include <QFont>
#include <QString>

#include <cstddef>
#include <vector>

namespace tovangl {

/// What a reader gets of an item besides its shapes.
struct CSvgItem
{
    std::size_t item = 0; ///< its position among all items
    QString title;        ///< shown while the pointer rests on it
    QString link;         ///< an address to go to; empty: none
};

struct CSvgFrame
{
    int width = 0; ///< pixels
    int height = 0;
    QFont font;                 ///< that the layout was measured with
    QString fontFamily = {};    ///< one name or several with commas between them
    QColor picture = Qt::white; ///< what the picture is filled with; transparent: nothing
    QString title = {};         ///< the picture's name
    QString description = {};
    std::vector<CSvgItem> items = {}; ///< those drawn, ascending
    bool isOneOfTwo = false;          ///< whether the same picture exists in another theme
    /// The colours of that one, where this one shows both: in the order of
    /// CSvgOutput::usedColors().
    std::vector<QColor> darkColors = {};
};

} // namespace tovangl

#endif
