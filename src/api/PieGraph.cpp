// SPDX-License-Identifier: MIT
// The pie chart of the public interface.
#include "api/conversions.h"
#include "chart/CPieGraph.h"
#include "chart/slice_records.h"
#include <tovangl/PieGraph.h>

#include <memory>

namespace tovangl {

static_assert(int{PieGraph::BoldLabels} == int{CPieInput::BoldLabels});
static_assert(int{PieGraph::ShortenFromLeft} == int{CPieInput::ShortenFromLeft});
static_assert(int{PieGraph::RemoveLabelOverlaps} == int{CPieInput::RemoveLabelOverlaps});
static_assert(int{PieGraph::ShowSizes} == int{CPieInput::ShowSizes});
static_assert(int{PieGraph::DefaultProperties} == 384);

PieGraph::PieGraph(bool background)
    : m_slices(nullptr)
{
    auto graph = std::make_unique<CPieGraph>(background);
    auto slices = std::make_unique<std::list<Slice>>();
    m_slices = slices.release();
    m_graph = graph.release();
}

PieGraph::~PieGraph()
{
    delete m_graph;
    m_graph = nullptr;
    delete m_slices;
}

bool PieGraph::addItem(long value, const std::string& text)
{
    getGraph()->input().addItem(value, toQString(text), QColor(), QColor());
    return true;
}

bool PieGraph::addItem(long value, const std::string& text, const Color& color)
{
    getGraph()->input().addItem(value, toQString(text), toQColor(color), QColor());
    return true;
}

void PieGraph::setProperty(int options)
{
    getGraph()->input().options = CPieInput::Options(QFlag(options));
}

void PieGraph::setColors(const Color& outline, const Color& text, const Color& line)
{
    setOutlineColor(outline);
    setTextColor(text);
    setLineColor(line);
}

void PieGraph::setLineColor(const Color& color)
{
    getGraph()->input().settings.colors.labelLine = toQColor(color);
}

void PieGraph::setUnit(const std::string& unit)
{
    getGraph()->input().unit = toQString(unit);
}

std::list<Slice>* PieGraph::getSlice()
{
    assignSlices(*m_slices, *getGraph());
    return m_slices;
}

CPieGraph* PieGraph::getGraph() const
{
    return static_cast<CPieGraph*>(m_graph);
}

} // namespace tovangl
