// SPDX-License-Identifier: MIT
/// @file
/// Measures texts without a chart.
#ifndef TOVANGL_SUPPORT_CTESTMEASURER_H
#define TOVANGL_SUPPORT_CTESTMEASURER_H

#include "support/chart_font.h"
#include "text/CTextMeasurer.h"

#include <QImage>
#include <QPainter>

namespace tovangl {

/// A picture with a painter that has a chart's font.
class CFontPicture
{
protected:
    explicit CFontPicture(const QFont& font) { painter.setFont(font); }

    QImage image = QImage(1, 1, QImage::Format_ARGB32);
    QPainter painter{&image};
};

/// A measurer on a picture of its own, in the charts' default font unless told another.
class CTestMeasurer : private CFontPicture, public CTextMeasurer
{
public:
    explicit CTestMeasurer(const QFont& font = chartFont("Tahoma", 11))
        : CFontPicture(font)
        , CTextMeasurer(painter)
    {}
};

} // namespace tovangl

#endif
