// SPDX-License-Identifier: MIT
/// @file
/// A white picture with a painter whose origin is the middle.
#ifndef TOVANGL_PIE_CPAINTEDSURFACE_H
#define TOVANGL_PIE_CPAINTEDSURFACE_H

#include "support/chart_font.h"

#include <QColor>
#include <QImage>
#include <QPainter>

namespace tovangl {

/// Positions are relative to the middle of the picture, as those of slice labels are.
class CPaintedSurface
{
public:
    static constexpr int kHalf = 200; // pixels

    CPaintedSurface()
        : m_image(2 * kHalf, 2 * kHalf, QImage::Format_ARGB32)
    {
        m_image.fill(0xffffffff);
        m_painter.begin(&m_image);
        m_painter.translate(kHalf, kHalf);
        m_painter.setFont(chartFont("DejaVu Sans", 11));
    }

    QPainter& painter() { return m_painter; }

    [[nodiscard]] QColor at(int x, int y) const
    {
        return QColor(m_image.pixel(kHalf + x, kHalf + y));
    }
    /// The pixels of a rectangle that are not white.
    [[nodiscard]] int inkIn(const QRect& rect) const
    {
        int ink = 0;
        for (int y = rect.top(); y <= rect.bottom(); ++y) {
            for (int x = rect.left(); x <= rect.right(); ++x)
                ink += at(x, y) == QColor(Qt::white) ? 0 : 1;
        }
        return ink;
    }
    [[nodiscard]] int ink() const { return inkIn(QRect(-kHalf, -kHalf, 2 * kHalf, 2 * kHalf)); }

private:
    QImage m_image;
    QPainter m_painter;
};

} // namespace tovangl

#endif
