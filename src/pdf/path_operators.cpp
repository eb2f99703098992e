// SPDX-License-Identifier: MIT
// Paths and pens in the operators of a PDF page.
#include "pdf/path_operators.h"

#include "pdf/pdf_text.h"

#include <QPainterPath>
#include <QPen>
#include <QVector>

#include <algorithm>

namespace tovangl {

namespace {

int capNumber(Qt::PenCapStyle style)
{
    return style == Qt::FlatCap ? 0 : style == Qt::RoundCap ? 1 : 2;
}

int joinNumber(Qt::PenJoinStyle style)
{
    return style == Qt::RoundJoin ? 1 : style == Qt::BevelJoin ? 2 : 0;
}

// A painter's path is closed where it comes back to its start; a page's has to say so, or its ends
// are not joined.
class CPathWriter
{
public:
    void add(const QPainterPath& path, int index)
    {
        const QPainterPath::Element element = path.elementAt(index);
        if (element.isMoveTo()) {
            close();
            m_start = element;
            m_bytes += pdfPoint(element) + "m\n";
        } else if (element.isLineTo()) {
            m_bytes += pdfPoint(element) + "l\n";
        } else {
            const bool isLast = index > 1 && path.elementAt(index - 2).isCurveTo();
            m_bytes += pdfPoint(element) + (isLast ? "c\n" : "");
        }
        m_last = element;
        m_hasLine = !element.isMoveTo();
    }
    [[nodiscard]] std::string finish()
    {
        close();
        return m_bytes;
    }

private:
    void close()
    {
        if (m_hasLine && m_last == m_start)
            m_bytes += "h\n";
    }

    std::string m_bytes;
    QPointF m_start;
    QPointF m_last;
    bool m_hasLine = false;
};

} // namespace

std::string pathOperators(const QPainterPath& path)
{
    CPathWriter writer;
    for (int i = 0; i < path.elementCount(); ++i)
        writer.add(path, i);
    return writer.finish();
}

std::string penOperators(const QPen& pen)
{
    const double width = std::max(pen.widthF(), 1.0); // a pen without a width is one pixel wide
    std::string text = pdfNumber(width) + " w " + std::to_string(capNumber(pen.capStyle())) +
                       " J " + std::to_string(joinNumber(pen.joinStyle())) + " j [";
    if (pen.style() != Qt::SolidLine) {
        for (const qreal length : pen.dashPattern())
            text += pdfNumber(length * width) + ' ';
    }
    return text + "] 0 d\n";
}

} // namespace tovangl
