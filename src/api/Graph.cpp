// SPDX-License-Identifier: MIT
// What every chart of the public interface can do.
#include "api/CRendering.h"
#include "api/conversions.h"
#include "api/description.h"
#include "api/image_narrowing.h"
#include "core/CGraph1dBase.h"
#include <tovangl/Graph.h>

#include <QBuffer>
#include <QByteArray>
#include <QImage>

#include <algorithm>
#include <memory>

namespace tovangl {

Graph::Graph()
    : m_graph(nullptr)
    , m_pixmapData(nullptr)
    , m_rectangles(new std::list<Rectangle>)
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
        m_graph->setFont(toQString(family), pixelSize);
}

void Graph::setLocale(const std::string& language, const std::string& country)
{
    if (m_graph)
        m_graph->setLocale(toQString(language), toQString(country));
}

std::list<Rectangle>* Graph::getRectangle()
{
    std::list<QRect> rects;
    if (m_graph)
        m_graph->putItemRectangle(rects);
    assignRectangles(*m_rectangles, rects);
    return m_rectangles;
}

std::string Graph::describe() const
{
    return describeChart(m_graph);
}

void Graph::createPixmap(int width, int height, unsigned char** data, int* size)
{
    if (!m_graph)
        return;
    m_graph->forgetDrawing();
    const CRendering rendering;
    QImage image = rendering.canPaint() ? m_graph->getImage(width, height) : QImage();
    paintDevice2Bytes(image, data, size);
}

void Graph::createPixmapForPrinter(int width, int height, int factor, unsigned char** data,
                                   int* size)
{
    if (!m_graph)
        return;
    m_graph->forgetDrawing();
    const CRendering rendering;
    QImage image =
        rendering.canPaint() ? m_graph->getImageForPrinter(width, height, factor) : QImage();
    paintDevice2Bytes(image, data, size);
}

template <typename Surface>
void Graph::paintDevice2Bytes(Surface& surface, unsigned char** data, int* size)
{
    constexpr int kDefaultQuality = -1;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    // Deliberate: a picture that cannot be saved, the null picture above all, leaves no bytes.
    narrowImage(surface).save(&buffer, "PNG", kDefaultQuality);

    const int length = static_cast<int>(bytes.size());
    auto pixmapData = std::make_unique<unsigned char[]>(static_cast<std::size_t>(length));
    std::copy(bytes.constBegin(), bytes.constEnd(), pixmapData.get());
    delete[] m_pixmapData;
    m_pixmapData = pixmapData.release();
    *data = m_pixmapData;
    *size = length;
}

} // namespace tovangl
