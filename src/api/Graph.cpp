// SPDX-License-Identifier: MIT
// What every chart of the public interface can do.
#include "api/conversions.h"
#include "chart/CGraph1dBase.h"
#include "chart/chart_rendering.h"
#include "input/CGraph1dInput.h"
#include "input/themes.h"
#include <tovangl/Graph.h>

#include <utility>

namespace tovangl {

namespace {

void handOver(const CPictureFile& file, unsigned char** data, int* size)
{
    *data = file.data.get();
    *size = static_cast<int>(file.size);
}

} // namespace

Graph::Graph()
    : m_graph(nullptr)
    , m_rectangles(new std::list<Rectangle>)
{}

Graph::~Graph()
{
    delete m_rectangles;
}

void Graph::clear()
{
    if (m_graph)
        m_graph->clear();
}

void Graph::freePixmap()
{
    if (m_graph)
        m_graph->freePixmap();
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
    if (m_graph)
        m_graph->input().settings.compression = compression;
}

std::string Graph::setByName(const std::string& name, const std::string& value)
{
    return m_graph ? m_graph->setByName(name, value) : "there is no chart";
}

void Graph::setTheme(Theme theme)
{
    if (m_graph)
        static_cast<void>(m_graph->setByName("theme", themeName(theme)));
}

void Graph::setTitle(const std::string& text)
{
    if (m_graph)
        m_graph->input().settings.title = toQString(text);
}

Rectangle Graph::titleRectangle() const
{
    return m_graph ? toRectangle(m_graph->titleRectangle()) : Rectangle();
}

void Graph::setOthers(const std::string& caption)
{
    if (m_graph)
        m_graph->input().settings.othersCaption = toQString(caption);
}

std::size_t Graph::othersCount() const
{
    return m_graph ? m_graph->gathered().count() : 0;
}

long Graph::othersValue() const
{
    return m_graph ? static_cast<long>(m_graph->gathered().value()) : 0;
}

bool Graph::setLink(std::size_t item, const std::string& address)
{
    return m_graph && m_graph->input().setLink(item, address);
}

void Graph::setPalette(const std::vector<Color>& colors)
{
    if (!m_graph)
        return;
    std::vector<QColor> palette;
    palette.reserve(colors.size());
    for (const Color& color : colors)
        palette.push_back(toQColor(color));
    m_graph->input().settings.colors.palette = std::move(palette);
}

void Graph::setPictureColor(const Color& color)
{
    if (m_graph)
        m_graph->input().settings.colors.picture = orElse(toQColor(color), Qt::white);
}

void Graph::setPictureTransparent()
{
    if (m_graph)
        m_graph->input().settings.colors.picture = Qt::transparent;
}

void Graph::setTextColor(const Color& color)
{
    if (m_graph)
        m_graph->input().settings.colors.text = toQColor(color);
}

void Graph::setPlotColor(const Color& color)
{
    if (m_graph)
        m_graph->input().settings.colors.plot = toQColor(color);
}

void Graph::setBorderColor(const Color& color)
{
    if (m_graph)
        m_graph->input().settings.colors.border = toQColor(color);
}

void Graph::setOutlineColor(const Color& color)
{
    if (m_graph)
        m_graph->input().settings.colors.outline = toQColor(color);
}

void Graph::setKilo(int size)
{
    if (m_graph)
        m_graph->input().settings.setKilo(size);
}

void Graph::setScale(int scale)
{
    if (m_graph)
        m_graph->input().settings.setScale(scale);
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
    return m_graph ? m_graph->problemText() : std::string();
}

void Graph::createPixmap(int width, int height, unsigned char** data, int* size)
{
    if (m_graph)
        handOver(renderPicture(*m_graph, width, height), data, size);
}

void Graph::createPdf(int width, int height, unsigned char** data, int* size)
{
    if (m_graph)
        handOver(renderPdf(*m_graph, width, height), data, size);
}

void Graph::createPixmapForPrinter(int width, int height, int factor, unsigned char** data,
                                   int* size)
{
    if (m_graph)
        handOver(renderForPrinter(*m_graph, width, height, factor), data, size);
}

void Graph::createSvg(int width, int height, unsigned char** data, int* size)
{
    if (m_graph)
        handOver(renderSvg(*m_graph, width, height), data, size);
}

} // namespace tovangl
