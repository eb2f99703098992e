// SPDX-License-Identifier: MIT
/// @file
/// What a painter does, as the content of a page.
#ifndef TOVANGL_PDF_CPDFENGINE_H
#define TOVANGL_PDF_CPDFENGINE_H

#include "pdf/CPdfContent.h"

#include <QBrush>
#include <QPaintEngine>
#include <QPainterPath>
#include <QPen>
#include <QTransform>

#include <optional>

namespace tovangl {

/// Qt has a writer of PDF files of its own. It cannot tell the language, puts the time into every
/// file, finishes a file while an exception for lack of memory unwinds its painter, which then ends
/// the process, and gives joined letters no text. This one paints what charts consist of: filled
/// and stroked shapes, gradients from one colour to another, and texts. Nothing is left to do at
/// the end of painting.
class CPdfEngine : public QPaintEngine
{
public:
    CPdfEngine();

    /// What was painted. Throws std::bad_alloc if memory ran out meanwhile.
    [[nodiscard]] const CPdfContent& content() const;

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    [[nodiscard]] Type type() const override { return User; }
    void updateState(const QPaintEngineState& changes) override;
    void drawPath(const QPainterPath& path) override;
    void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override;
    void drawTextItem(const QPointF& baseline, const QTextItem& item) override;
    /// Charts show no pictures.
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}

private:
    // An exception must not run through Qt's painter, which would leak what it is working with. So
    // lack of memory is only recorded.
    template <typename Paint>
    void paintIfMemoryLasts(Paint paint);
    void fillAndStroke(const QPainterPath& path);
    void updateClip(const QPainterPath& path, Qt::ClipOperation operation);

    CPdfContent m_content;
    QTransform m_toPage;
    QPen m_pen;
    QBrush m_brush;
    std::optional<QPainterPath> m_clip; // on the page
    bool m_isOutOfMemory = false;
};

} // namespace tovangl

#endif
