// SPDX-License-Identifier: MIT
// The pie chart of the public interface.
#include "api/conversions.h"
#include "api/slice_records.h"
#include "pie/CPieGraph.h"
#include <tovangl/PieGraph.h>

#include <memory>

namespace tovangl {

static_assert(int{PieGraph::BoldLabels} == int{CPieGraph::BoldLabels});
static_assert(int{PieGraph::ShortenFromLeft} == int{CPieGraph::ShortenFromLeft});
static_assert(int{PieGraph::RemoveLabelOverlaps} == int{CPieGraph::RemoveLabelOverlaps});
static_assert(int{PieGraph::ShowSizes} == int{CPieGraph::ShowSizes});
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
    return getGraph()->addItem(value, toQString(text), QColor());
}

bool PieGraph::addItem(long value, const std::string& text, const Color& color)
{
    return getGraph()->addItem(value, toQString(text), toQColor(color));
}

void PieGraph::setProperty(int options)
{
    getGraph()->setOptions(CPieGraph::Options(QFlag(options)));
}

void PieGraph::setColors(const Color& outline, const Color& text, const Color& line)
{
    CPieGraph* graph = getGraph();
    graph->setPieOutlineColor(toQColor(outline));
    graph->setTextColor(toQColor(text));
    graph->setLabelLineColor(toQColor(line));
}

std::list<Slice>* PieGraph::getSlice()
{
    assignSlices(*m_slices, getGraph());
    return m_slices;
}

CPieGraph* PieGraph::getGraph() const
{
    return dynamic_cast<CPieGraph*>(m_graph);
}

} // namespace tovangl
