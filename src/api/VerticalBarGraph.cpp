// SPDX-License-Identifier: MIT
// The vertical bar chart.
#include "api/bar_facade.h"
#include "api/conversions.h"
#include "chart/CBarBase.h"
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
    getGraph()->input().addItem(value, toQString(text), QColor(), QColor());
    return true;
}

bool VerticalBarGraph::addItem(long value, const std::string& text, const Color& color,
                               const Color& outline)
{
    getGraph()->input().addItem(value, toQString(text), toQColor(color), toQColor(outline));
    return true;
}

void VerticalBarGraph::setPosition(int x, int y)
{
    getGraph()->input().setPosition(x, y);
}

void VerticalBarGraph::setBarWidth(int width)
{
    getGraph()->input().setBarWidth(width);
}

int VerticalBarGraph::barWidth() const
{
    return getGraph()->input().barWidth;
}

void VerticalBarGraph::setHorizontalAxis(int properties, const std::string& title)
{
    getGraph()->input().horizontalAxis = toAxisSettings(properties, title);
}

void VerticalBarGraph::setVerticalAxis(int properties, const std::string& title)
{
    getGraph()->input().verticalAxis = toAxisSettings(properties, title);
}

void VerticalBarGraph::setColor(const Color& color)
{
    setTextColor(color);
}

void VerticalBarGraph::setAxisColor(const Color& color)
{
    getGraph()->input().settings.colors.axis = toQColor(color);
}

void VerticalBarGraph::setAxisTitleColor(const Color& color)
{
    getGraph()->input().settings.colors.axisTitle = toQColor(color);
}

void VerticalBarGraph::setGridColor(const Color& color)
{
    getGraph()->input().settings.colors.grid = toQColor(color);
}

std::list<Rectangle>* VerticalBarGraph::getBarRectangle()
{
    assignRectangles(*m_barRectangles, getGraph()->barRectangles());
    return m_barRectangles;
}

std::list<Rectangle>* VerticalBarGraph::getItemBarRectangle()
{
    assignRectangles(*m_itemBarRectangles, getGraph()->itemBarRectangles());
    return m_itemBarRectangles;
}

CBarGraph* VerticalBarGraph::getGraph() const
{
    return static_cast<CBarGraph*>(m_graph);
}

} // namespace tovangl
