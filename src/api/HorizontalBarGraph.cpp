// SPDX-License-Identifier: MIT
// The horizontal bar chart.
#include "api/bar_facade.h"
#include "api/conversions.h"
#include "chart/CBarBase.h"
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
    getGraph()->input().addItem(value, toQString(text), QColor(), QColor());
    return true;
}

bool HorizontalBarGraph::addItem(long value, const std::string& text, const Color& color,
                                 const Color& outline)
{
    getGraph()->input().addItem(value, toQString(text), toQColor(color), toQColor(outline));
    return true;
}

void HorizontalBarGraph::setPosition(int x, int y)
{
    getGraph()->input().setPosition(x, y);
}

void HorizontalBarGraph::setBarWidth(int width)
{
    getGraph()->input().setBarWidth(width);
}

int HorizontalBarGraph::barWidth() const
{
    return getGraph()->input().barWidth;
}

void HorizontalBarGraph::setVerticalAxis(int properties, const std::string& title)
{
    getGraph()->input().verticalAxis = toAxisSettings(properties, title);
}

void HorizontalBarGraph::setColor(const Color& color)
{
    setTextColor(color);
}

void HorizontalBarGraph::setAxisColor(const Color& color)
{
    getGraph()->input().settings.colors.axis = toQColor(color);
}

void HorizontalBarGraph::setAxisTitleColor(const Color& color)
{
    getGraph()->input().settings.colors.axisTitle = toQColor(color);
}

void HorizontalBarGraph::setValueColor(const Color& color)
{
    getGraph()->input().settings.colors.value = toQColor(color);
}

std::list<Rectangle>* HorizontalBarGraph::getBarRectangle()
{
    assignRectangles(*m_barRectangles, getGraph()->barRectangles());
    return m_barRectangles;
}

std::list<Rectangle>* HorizontalBarGraph::getItemBarRectangle()
{
    assignRectangles(*m_itemBarRectangles, getGraph()->itemBarRectangles());
    return m_itemBarRectangles;
}

CLabeledBarGraph* HorizontalBarGraph::getGraph() const
{
    return static_cast<CLabeledBarGraph*>(m_graph);
}

} // namespace tovangl
