// SPDX-License-Identifier: MIT
// The horizontal bar chart.
#include "api/bar_facade.h"
#include "api/conversions.h"
#include "bar/CLabeledBarGraph.h"
#include <tovangl/HorizontalBarGraph.h>

#include <memory>

namespace tovangl {

HorizontalBarGraph::HorizontalBarGraph(bool background)
    : m_barRectangles(nullptr)
    , m_itemBarRectangles(nullptr)
{
    auto graph = std::make_unique<CLabeledBarGraph>(background);
    auto barRectangles = std::make_unique<std::list<Rectangle>>();
    auto itemBarRectangles = std::make_unique<std::list<Rectangle>>();
    m_itemBarRectangles = itemBarRectangles.release();
    m_barRectangles = barRectangles.release();
    m_graph = graph.release();
}

HorizontalBarGraph::~HorizontalBarGraph()
{
    delete m_graph;
    delete m_barRectangles;
    delete m_itemBarRectangles;
}

bool HorizontalBarGraph::addItem(long value, const std::string& text)
{
    return getGraph()->addItem(value, toQString(text), QColor(), QColor());
}

bool HorizontalBarGraph::addItem(long value, const std::string& text, const Color& color,
                                 const Color& outline)
{
    return getGraph()->addItem(value, toQString(text), toQColor(color), toQColor(outline));
}

void HorizontalBarGraph::setPosition(int x, int y)
{
    getGraph()->setPosition(x, y);
}

void HorizontalBarGraph::setBarWidth(int width)
{
    getGraph()->setBarWidth(width);
}

int HorizontalBarGraph::barWidth() const
{
    return getGraph()->barWidth();
}

void HorizontalBarGraph::setVerticalAxis(int properties, const std::string& title)
{
    getGraph()->setVerticalAxis(toAxisProperties(properties), toQString(title));
}

void HorizontalBarGraph::setColor(const Color& color)
{
    getGraph()->setTextColor(toQColor(color));
}

std::list<Rectangle>* HorizontalBarGraph::getBarRectangle()
{
    assignBarRectangles(*m_barRectangles, getGraph());
    return m_barRectangles;
}

std::list<Rectangle>* HorizontalBarGraph::getItemBarRectangle()
{
    assignItemBarRectangles(*m_itemBarRectangles, getGraph());
    return m_itemBarRectangles;
}

CLabeledBarGraph* HorizontalBarGraph::getGraph() const
{
    return dynamic_cast<CLabeledBarGraph*>(m_graph);
}

} // namespace tovangl
