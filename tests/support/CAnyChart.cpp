// SPDX-License-Identifier: MIT
// A chart of any kind behind one set of operations, for tests that treat all kinds alike.
#include "support/CAnyChart.h"

namespace tovangl {

const char* nameOf(ChartKind kind)
{
    switch (kind) {
    case ChartKind::VerticalBars:
        return "vertical bars";
    case ChartKind::HorizontalBars:
        return "horizontal bars";
    case ChartKind::Pie:
        break;
    }
    return "pie";
}

std::string CExport::bytes() const
{
    return std::string(reinterpret_cast<const char*>(data), static_cast<std::size_t>(size));
}

CAnyChart::CAnyChart(ChartKind kind, bool background)
    : m_kind(kind)
{
    switch (kind) {
    case ChartKind::VerticalBars:
        m_vertical = std::make_unique<VerticalBarGraph>(background);
        m_graph = m_vertical.get();
        break;
    case ChartKind::HorizontalBars:
        m_horizontal = std::make_unique<HorizontalBarGraph>(background);
        m_graph = m_horizontal.get();
        break;
    case ChartKind::Pie:
        m_pie = std::make_unique<PieGraph>(background);
        m_graph = m_pie.get();
        break;
    }
}

bool CAnyChart::addItem(long value, const std::string& text)
{
    bool isAdded = m_pie && m_pie->addItem(value, text);
    withBars([&](auto& bars) { isAdded = bars.addItem(value, text); });
    return isAdded;
}

bool CAnyChart::addItem(long value, const std::string& text, const Color& fill,
                        const Color& outline)
{
    bool isAdded = m_pie && m_pie->addItem(value, text, fill);
    withBars([&](auto& bars) { isAdded = bars.addItem(value, text, fill, outline); });
    return isAdded;
}

void CAnyChart::setColors(const Color& outline, const Color& text, const Color& line)
{
    if (m_pie)
        m_pie->setColors(outline, text, line);
    withBars([&](auto& bars) { bars.setColor(text); });
}

void CAnyChart::setProperties(int properties, const std::string& title)
{
    if (m_pie)
        m_pie->setProperty(properties);
    if (m_vertical)
        m_vertical->setHorizontalAxis(properties, title);
    withBars([&](auto& bars) { bars.setVerticalAxis(properties, title); });
}

void CAnyChart::setValueAxis(int properties, const std::string& title)
{
    if (m_vertical)
        m_vertical->setVerticalAxis(properties, title);
}

void CAnyChart::setPosition(int x, int y)
{
    withBars([&](auto& bars) { bars.setPosition(x, y); });
}

void CAnyChart::setBarWidth(int width)
{
    withBars([&](auto& bars) { bars.setBarWidth(width); });
}

int CAnyChart::barWidth() const
{
    int width = -1;
    withBars([&](auto& bars) { width = bars.barWidth(); });
    return width;
}

CExport CAnyChart::createPixmap(int width, int height)
{
    unsigned char* data = nullptr;
    int size = -1;
    m_graph->createPixmap(width, height, &data, &size);
    return CExport{data, size};
}

CExport CAnyChart::createPixmapForPrinter(int width, int height, int factor)
{
    unsigned char* data = nullptr;
    int size = -1;
    m_graph->createPixmapForPrinter(width, height, factor, &data, &size);
    return CExport{data, size};
}

std::list<Rectangle> CAnyChart::itemRectangles()
{
    return *m_graph->getRectangle();
}

std::list<Rectangle> CAnyChart::barRectangles()
{
    std::list<Rectangle> rectangles;
    withBars([&](auto& bars) { rectangles = *bars.getBarRectangle(); });
    return rectangles;
}

std::list<Rectangle> CAnyChart::itemBarRectangles()
{
    std::list<Rectangle> rectangles;
    withBars([&](auto& bars) { rectangles = *bars.getItemBarRectangle(); });
    return rectangles;
}

std::list<Slice> CAnyChart::slices()
{
    return m_pie ? *m_pie->getSlice() : std::list<Slice>();
}

} // namespace tovangl
