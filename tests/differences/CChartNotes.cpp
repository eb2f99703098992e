// SPDX-License-Identifier: MIT
// Notes all that a host can learn of a chart.
#include "differences/CChartNotes.h"

#include "differences/CHash.h"
#include "support/png_decoding.h"
#include "support/public_records.h"

#include <cmath>

namespace tovangl {

namespace {

// The pixels alone: bytes between the rows mean nothing.
std::uint64_t hashPixels(const QImage& image)
{
    CHash hash;
    for (int y = 0; y < image.height(); ++y)
        hash.addWords(reinterpret_cast<const std::uint32_t*>(image.constScanLine(y)),
                      static_cast<std::size_t>(image.width()));
    return hash.value();
}

std::uint64_t hashCorners(const std::vector<Point>& corners)
{
    CHash hash;
    for (const Point& corner : corners) {
        hash.addNumber(corner.x);
        hash.addNumber(corner.y);
    }
    return hash.value();
}

void changeOnePixel(QImage& image)
{
    const QPoint middle = image.rect().center();
    image.setPixel(middle, image.pixel(middle) ^ 1U);
}

} // namespace

CChartNotes::CChartNotes(SeededFault fault)
    : m_fault(fault)
{
    constexpr int kDigits = 17; // enough to tell any two numbers apart
    m_rectangles.precision(kDigits);
    m_settings.precision(kDigits);
}

void CChartNotes::addPicture(const std::string& png)
{
    ++m_pictures;
    QImage image = decodePng(png);
    if (m_fault == SeededFault::Pixel && !image.isNull())
        changeOnePixel(image);
    m_pixels << image.width() << 'x' << image.height() << ' ' << std::hex << hashPixels(image)
             << std::dec << '\n';
}

void CChartNotes::addState(CAnyChart& chart)
{
    m_descriptions << chart.graph().describe()
                   << (m_fault == SeededFault::Description ? "!\n" : "\n");
    addRectangles("captions", chart.itemRectangles());
    addRectangles("bars", chart.barRectangles());
    addRectangles("items' bars", chart.itemBarRectangles());
    addSlices(chart.slices());
    addSettings(chart);
}

CChartRecord CChartNotes::record() const
{
    return CChartRecord{m_pixels.str(), m_rectangles.str(), m_descriptions.str(), m_settings.str()};
}

std::ostream& CChartNotes::beginLine(std::ostream& stream) const
{
    return stream << "after " << m_pictures << " pictures, ";
}

void CChartNotes::addRectangles(const char* title, std::list<Rectangle> rectangles)
{
    if (m_fault == SeededFault::Rectangle && !rectangles.empty())
        ++rectangles.back().width;
    beginLine(m_rectangles) << title << ':';
    for (const Rectangle& rectangle : rectangles)
        m_rectangles << ' ' << rectangle;
    m_rectangles << '\n';
}

void CChartNotes::addSlices(const std::list<Slice>& slices)
{
    beginLine(m_rectangles) << "slices:";
    for (const Slice& slice : slices) {
        const std::vector<Point> corners = getPolygon(slice);
        m_rectangles << " (" << slice.x << ' ' << slice.y << ' ' << slice.width << ' '
                     << slice.height << ' ' << slice.start << ' ' << slice.span << ", "
                     << corners.size() << " corners " << std::hex << hashCorners(corners)
                     << std::dec << ')';
    }
    m_rectangles << '\n';
}

void CChartNotes::addSettings(const CAnyChart& chart)
{
    const double threshold = chart.graph().threshold();
    beginLine(m_settings) << "threshold ";
    if (std::isnan(threshold))
        m_settings << "nan"; // with or without a sign
    else
        m_settings << threshold + (m_fault == SeededFault::Setting ? 1 : 0);
    m_settings << ", bar width " << chart.barWidth() << '\n';
}

} // namespace tovangl
