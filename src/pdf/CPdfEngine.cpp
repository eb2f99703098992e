// SPDX-License-Identifier: MIT
// What a painter does, as the content of a page.
#include "pdf/CPdfEngine.h"

#include <QPolygonF>
#include <QRegion>

#include <new>

namespace tovangl {

CPdfEngine::CPdfEngine()
    : QPaintEngine(AllFeatures) // a painter would replace what is missing by pixels
{}

const CPdfContent& CPdfEngine::content() const
{
    if (m_isOutOfMemory)
        throw std::bad_alloc();
    return m_content;
}

void CPdfEngine::updateState(const QPaintEngineState& changes)
{
    const DirtyFlags changed = changes.state();
    if (changed & DirtyTransform)
        m_toPage = changes.transform();
    if (changed & DirtyPen)
        m_pen = changes.pen();
    if (changed & DirtyBrush)
        m_brush = changes.brush();
    if (!(changed & (DirtyClipPath | DirtyClipRegion)))
        return;
    paintIfMemoryLasts([&] {
        QPainterPath path;
        if (changed & DirtyClipPath)
            path = changes.clipPath();
        else
            path.addRegion(changes.clipRegion());
        updateClip(path, changes.clipOperation());
    });
}

void CPdfEngine::drawPath(const QPainterPath& path)
{
    paintIfMemoryLasts([&] { fillAndStroke(path); });
}

void CPdfEngine::drawPolygon(const QPointF* points, int count, PolygonDrawMode mode)
{
    paintIfMemoryLasts([&] {
        QPolygonF polygon;
        for (int i = 0; i < count; ++i)
            polygon << points[i];
        QPainterPath path;
        path.addPolygon(polygon);
        if (mode == PolylineMode) {
            m_content.stroke(m_toPage.map(path), m_pen);
            return;
        }
        path.closeSubpath();
        path.setFillRule(mode == WindingMode ? Qt::WindingFill : Qt::OddEvenFill);
        fillAndStroke(path);
    });
}

void CPdfEngine::drawTextItem(const QPointF& baseline, const QTextItem& item)
{
    paintIfMemoryLasts([&] {
        QTransform toPage = m_toPage;
        toPage.translate(baseline.x(), baseline.y());
        m_content.showText(item.text(), shapeItem(item), m_pen.color(), toPage);
    });
}

template <typename Paint>
void CPdfEngine::paintIfMemoryLasts(Paint paint)
{
    if (m_isOutOfMemory)
        return;
    try {
        paint();
    } catch (const std::bad_alloc&) {
        m_isOutOfMemory = true;
    }
}

// Shapes are moved and turned, but never scaled: the pen is as wide on the page as it is.
void CPdfEngine::fillAndStroke(const QPainterPath& path)
{
    const QPainterPath shape = m_toPage.map(path);
    m_content.fill(shape, m_brush, m_toPage);
    m_content.stroke(shape, m_pen);
}

void CPdfEngine::updateClip(const QPainterPath& path, Qt::ClipOperation operation)
{
    if (operation == Qt::NoClip)
        m_clip.reset();
    else if (operation == Qt::IntersectClip && m_clip)
        m_clip = m_clip->intersected(m_toPage.map(path));
    else
        m_clip = m_toPage.map(path);
    m_content.setClip(m_clip);
}

} // namespace tovangl
