// SPDX-License-Identifier: MIT
// What every chart of the public interface can do.
#include "api/CGraph1dBase.h"
#include "api/CRendering.h"
#include "api/conversions.h"
#include "api/problem_text.h"
#include "input/CGraph1dInput.h"
#include "output/png_encoding.h"
#include <tovangl/Graph.h>

#include <QImage>

namespace tovangl {

namespace {

// Whether anything can be painted. If not, the chart records the reason.
bool canRender(CGraph1dBase& graph, const CRendering& rendering)
{
    if (rendering.obstacle() == Problem::None)
        return true;
    graph.setProblem(rendering.obstacle());
    return false;
}

} // namespace

Graph::Graph()
    : m_graph(nullptr)
    , m_pixmapData(nullptr)
    , m_rectangles(new std::list<Rectangle>)
    , m_compression(Compression::Balanced)
{}

Graph::~Graph()
{
    delete[] m_pixmapData;
    delete m_rectangles;
}

void Graph::clear()
{
    if (m_graph)
        m_graph->clear();
}

void Graph::freePixmap()
{
    delete[] m_pixmapData;
    m_pixmapData = nullptr;
}

void Graph::setThreshold(double percent)
{
    if (m_graph)
        m_graph->setThreshold(percent);
}

double Graph::threshold() const
{
    return m_graph ? m_graph->threshold() : 0.0;
}

void Graph::setFont(const std::string& family, int pixelSize)
{
    if (m_graph)
        m_graph->input().settings.setFont(toQString(family), pixelSize);
}

void Graph::setLocale(const std::string& language, const std::string& country)
{
    if (m_graph)
        m_graph->input().settings.setLocale(toQString(language), toQString(country));
}

void Graph::setCompression(Compression compression)
{
    m_compression = compression;
}

std::list<Rectangle>* Graph::getRectangle()
{
    assignRectangles(*m_rectangles, m_graph ? m_graph->itemRectangles() : std::vector<QRect>());
    return m_rectangles;
}

std::string Graph::describe() const
{
    return m_graph ? m_graph->describe() : std::string();
}

Problem Graph::problem() const
{
    return m_graph ? m_graph->problem() : Problem::None;
}

std::string Graph::problemText() const
{
    return problemSentence(problem());
}

void Graph::createPixmap(int width, int height, unsigned char** data, int* size)
{
    if (!m_graph)
        return;
    m_graph->forgetDrawing();
    const CRendering rendering;
    QImage image = canRender(*m_graph, rendering) ? m_graph->getImage(width, height) : QImage();
    paintDevice2Bytes(image, data, size);
}

void Graph::createPixmapForPrinter(int width, int height, int factor, unsigned char** data,
                                   int* size)
{
    if (!m_graph)
        return;
    m_graph->forgetDrawing();
    const CRendering rendering;
    QImage image = canRender(*m_graph, rendering)
                       ? m_graph->getImageForPrinter(width, height, factor)
                       : QImage();
    paintDevice2Bytes(image, data, size);
}

template <typename Surface>
void Graph::paintDevice2Bytes(Surface& surface, unsigned char** data, int* size)
{
    const Problem ofDrawing = m_graph->problem();
    m_graph->setProblem(Problem::NoMemory); // in case memory runs out from here on
    CPngFile file = encodePng(surface, m_compression);
    delete[] m_pixmapData;
    m_pixmapData = file.data.release();
    *data = m_pixmapData;
    *size = static_cast<int>(file.size);
    m_graph->setProblem(ofDrawing);
}

} // namespace tovangl
