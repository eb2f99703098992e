// SPDX-License-Identifier: MIT
// Where the pie and its ring of labels stand in the picture.
#include "layout/pie_geometry.h"

#include "base/pixel_arithmetic.h"

#include <algorithm>
#include <cmath>

namespace tovangl {

int CPieFrame::scaledMargin() const
{
    return scalePixels(margin, scale);
}

double radiusForLabel(const CPieFrame& frame, double labelWidth, double directionX)
{
    const int distance = addPixels(frame.scaledMargin(), scalePixels(kLabelDistance, frame.scale));
    const double room =
        (frame.width * 0.5 - distance) - std::min(frame.labelWidthCap(), labelWidth);
    return room / std::fabs(directionX);
}

QRectF squareArea(const CPieFrame& frame, const QRectF& rect)
{
    if (rect.width() > rect.height()) {
        const double side = rect.height();
        return QRectF((frame.width - side) * 0.5, rect.y(), side, side);
    }
    if (rect.height() > rect.width()) {
        const double side = rect.width();
        return QRectF(rect.x(), (frame.height - side) * 0.5, side, side);
    }
    return rect;
}

QRectF pieRectIn(const QRectF& area)
{
    const QSizeF size(kPieShareOfArea * area.width(), kPieShareOfArea * area.height());
    return QRectF(area.center().x() - size.width() * 0.5, area.center().y() - size.height() * 0.5,
                  size.width(), size.height());
}

bool isRoomForPie(const CPieFrame& frame, const QSizeF& labelSize)
{
    const double need = scalePixels(kLabelLineLength, frame.scale) +
                        std::max(labelSize.width(), frame.labelWidthCap()) +
                        scalePixels(kLabelGap, frame.scale) + frame.scaledMargin();
    return frame.width > 2 * need && frame.height > 2.0 * frame.scaledMargin() + labelSize.height();
}

} // namespace tovangl
