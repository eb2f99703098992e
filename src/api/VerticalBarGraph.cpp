// SPDX-License-Identifier: MIT
// The vertical bar chart.
#include "api/bar_facade.h"
#include "api/conversions.h"
#include "bar/CBarGraph.h"
#include <tovangl/VerticalBarGraph.h>

#include <memory>

namespace tovangl {

VerticalBarGraph::VerticalBarGraph(bool background)
    : m_barRectangles(nullptr)
    , m_itemBarRectangles(nullptr)
{
    auto graph = std::make_unique<CBarGraph>(background);
    auto barRectangles = std::make_unique<std::list<Rectangle>>();
    auto itemBarRectangles = std::make_unique<std::list<Rectangle>>();
    m_itemBarRectangles = itemBarRectangles.release();
    m_barRectangles = barRectangles.release();
    m_graph = graph.release();
}

VerticalBarGraph::~VerticalBarGraph()
{
    delete m_graph;
    delete m_barRectangles;
    delete m_itemBarRectangles;
}

bool VerticalBarGraph::addItem(long value, const std::string& text)
{
    return getGraph()->addItem(value, toQString(text), QColor(), QColor());
}

bool VerticalBarGraph::addItem(long value, const std::string& text, const Color& color,
                               const Color& outline)
{
    return getGraph()->addItem(value, toQString(text), toQColor(color), toQColor(outline));
}

void VerticalBarGraph::setPosition(int x, int y)
{
    getGraph()->setPosition(x, y);
}

void VerticalBarGraph::setBarWidth(int width)
{
    getGraph()->setBarWidth(width);
}

int VerticalBarGraph::barWidth() const
{
    return getGraph()->barWidth();
}

void VerticalBarGraph::setHorizontalAxis(int properties, const std::string& title)
{
    getGraph()->setHorizontalAxis(toAxisProperties(properties), toQString(title));
}

void VerticalBarGraph::setVerticalAxis(int properties, const std::string& title)
{
    getGraph()->setVerticalAxis(toAxisProperties(properties), toQString(title));
}

void VerticalBarGraph::setColor(const Color& color)
{
    getGraph()->setTextColor(toQColor(color));
}

std::list<Rectangle>* VerticalBarGraph::getBarRectangle()
{
    assignBarRectangles(*m_barRectangles, getGraph());
    return m_barRectangles;
}

std::list<Rectangle>* VerticalBarGraph::getItemBarRectangle()
{
    assignItemBarRectangles(*m_itemBarRectangles, getGraph());
    return m_itemBarRectangles;
}

CBarGraph* VerticalBarGraph::getGraph() const
{
    return dynamic_cast<CBarGraph*>(m_graph);
}

} // namespace tovangl
