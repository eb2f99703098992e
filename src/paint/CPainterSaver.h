// SPDX-License-Identifier: MIT
/// @file
/// Restores a painter's state at the end of a scope.
#ifndef TOVANGL_PAINT_CPAINTERSAVER_H
#define TOVANGL_PAINT_CPAINTERSAVER_H

#include <QPainter>

namespace tovangl {

class CPainterSaver
{
public:
    explicit CPainterSaver(QPainter& painter)
        : m_painter(painter)
    {
        m_painter.save();
    }
    ~CPainterSaver() { m_painter.restore(); }
    Q_DISABLE_COPY(CPainterSaver)

private:
    QPainter& m_painter;
};

} // namespace tovangl

#endif
