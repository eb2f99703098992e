// SPDX-License-Identifier: MIT
// A chart whose promises are checked after every call.
#include "CWatchedChart.h"

#include "failed_promise.h"
#include "seeded_fault.h"
#include "support/public_records.h"
#include "support/rendered_chart.h"

#include <QXmlStreamReader>

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace tovangl {

namespace {

constexpr std::int64_t kLargestSide = 1000000;            // pixels
constexpr std::int64_t kLargestPicture = (1LL << 31) - 1; // bytes
constexpr std::int64_t kBytesPerPixel = 4;

bool isPictureMade(std::int64_t width, std::int64_t height)
{
    return width >= 1 && height >= 1 && width <= kLargestSide && height <= kLargestSide &&
           width * height * kBytesPerPixel <= kLargestPicture;
}

// A big-endian number of a PNG header.
std::int64_t headerNumber(const std::string& png, std::size_t offset)
{
    std::int64_t number = 0;
    for (std::size_t i = offset; i < offset + 4; ++i)
        number = number * 256 + static_cast<unsigned char>(png[i]);
    return number;
}

bool isInvisible(const Rectangle& rectangle)
{
    return rectangle.width <= 0 || rectangle.height <= 0;
}

bool isInside(const Rectangle& rectangle, std::int64_t width, std::int64_t height)
{
    return rectangle.x >= 0 && rectangle.y >= 0 &&
           std::int64_t{rectangle.x} + rectangle.width <= width &&
           std::int64_t{rectangle.y} + rectangle.height <= height;
}

// The outline of a slice stays within half a pixel of the arc. The pie itself may be wider than a
// narrow picture.
void checkPolygon(const Slice& slice)
{
    constexpr double kNear = 0.5; // pixels
    for (const Point& corner : getPolygon(slice)) {
        const bool isNear = corner.x >= slice.x - kNear && corner.y >= slice.y - kNear &&
                            corner.x <= slice.x + slice.width + kNear &&
                            corner.y <= slice.y + slice.height + kNear;
        require(isNear, "a slice lies inside the pie");
    }
}

} // namespace

CWatchedChart::CWatchedChart(ChartKind kind, bool background)
    : m_chart(kind, background)
{}

void CWatchedChart::addItem(long value, const std::string& text)
{
    require(m_chart.addItem(value, text), "an item is always added");
    noteItem(value);
}

void CWatchedChart::addItem(long value, const std::string& text, const Color& fill,
                            const Color& outline)
{
    require(m_chart.addItem(value, text, fill, outline), "an item is always added");
    noteItem(value);
}

void CWatchedChart::noteItem(long value)
{
    ++m_itemCount;
    m_hasNegativeValue |= value < 0;
}

void CWatchedChart::clear()
{
    m_chart.graph().clear();
    m_itemCount = 0;
    m_hasNegativeValue = false;
}

void CWatchedChart::freePixmap()
{
    m_chart.graph().freePixmap();
    m_export = CExport();
    m_bytes.clear();
}

void CWatchedChart::setThreshold(double percent)
{
    m_chart.graph().setThreshold(percent);
    m_threshold = percent;
}

void CWatchedChart::setBarWidth(int width)
{
    m_chart.setBarWidth(width);
    m_hasFixedPlaces = true;
    require(m_chart.kind() == ChartKind::Pie || m_chart.barWidth() == std::max(width, 0),
            "a bar width is kept, a negative one as 0");
}

void CWatchedChart::setPosition(int x, int y)
{
    m_chart.setPosition(x, y);
    m_hasFixedPlaces = true;
}

void CWatchedChart::setOthers(const std::string& caption)
{
    m_chart.graph().setOthers(caption);
    m_wantsOthers = !caption.empty();
}

void CWatchedChart::setScale(int scale)
{
    constexpr int kGreatest = 1000;
    m_chart.graph().setScale(scale);
    m_scale = std::clamp(scale, 1, kGreatest);
}

void CWatchedChart::setByName(const std::string& name, const std::string& value)
{
    if (m_chart.graph().setByName(name, value).empty())
        noteSetting(name, value);
}

void CWatchedChart::noteSetting(const std::string& name, const std::string& value)
{
    if (name == "threshold")
        m_threshold = m_chart.graph().threshold();
    else if (name == "others")
        m_wantsOthers = !value.empty();
    else if (name == "scale")
        m_scale = std::stoi(value);
    else if (name == "position" || name == "bar_width")
        m_hasFixedPlaces = true;
}

std::size_t CWatchedChart::recordCount() const
{
    return m_itemCount + (m_wantsOthers ? 1 : 0);
}

CExport CWatchedChart::exportPicture(int width, int height, int factor)
{
    return factor == 0 ? m_chart.createPixmap(width, height)
                       : m_chart.createPixmapForPrinter(width, height, factor);
}

void CWatchedChart::checkPdf(int width, int height)
{
    const std::string first = m_chart.createPdf(width, height).bytes();
    require(m_chart.createPdf(width, height).bytes() == first, "two PDF files are equal");
    const Problem problem = m_chart.graph().problem();
    require(first.empty() == (problem == Problem::SizeOutOfRange),
            "a page of a size that readers take can be made");
}

void CWatchedChart::render(int width, int height, int factor)
{
    checkPdf(width, height);
    m_export = exportPicture(width, height, factor);
    const CRenderedChart first = copyRendering(m_chart, m_export);
    if (factor == 0)
        checkSvg(width, height, first);
    m_export = exportPicture(width, height, factor);
    m_bytes = m_export.bytes();
    require(isSameRendering(first, copyRendering(m_chart, m_export)), "two renderings are equal");
    if (isFaultSeeded() && m_itemCount > 1 && m_export.size > 0)
        m_bytes.back() = static_cast<char>(~m_bytes.back());

    const std::int64_t scale = factor == 0 ? m_scale : std::max(factor, 1);
    checkPicture(width * scale, height * scale);
    checkTitle(width * scale, height * scale);
    checkRegions(width * scale, height * scale);
}

void CWatchedChart::checkPromises()
{
    checkThreshold();
    checkBytes();
    checkLists();
}

void CWatchedChart::checkThreshold() const
{
    const double threshold = m_chart.graph().threshold();
    const bool isKept =
        threshold == m_threshold || (std::isnan(threshold) && std::isnan(m_threshold));
    // The next drawing raises a negative threshold to 0.
    require(isKept || (m_threshold < 0 && threshold == 0), "a threshold is kept");
}

void CWatchedChart::checkBytes() const
{
    require(m_bytes.empty() || m_export.bytes() == m_bytes,
            "the bytes of an export live until the chart's next one");
}

void CWatchedChart::checkLists()
{
    require(m_chart.itemRectangles().size() == recordCount(),
            "every item has a caption rectangle, and so do the others");
    require(m_chart.barRectangles().size() <= m_itemCount + 1,
            "there are no more bars than items and the one of the others");
    const bool isPie = m_chart.kind() == ChartKind::Pie;
    require(m_chart.itemBarRectangles().size() == (isPie ? 0 : recordCount()),
            "every item of a bar chart has a bar rectangle, and so do the others");
    require(m_chart.slices().size() == (isPie ? recordCount() : 0),
            "every item of a pie has a slice record, and so do the others");
    require(!m_chart.graph().describe().empty(), "every chart has a description");
}

void CWatchedChart::checkPicture(std::int64_t width, std::int64_t height) const
{
    constexpr std::size_t kWidthOffset = 16;
    constexpr std::size_t kHeightOffset = 20;
    require(m_export.data != nullptr, "an export always gives a pointer");
    require(isPictureMade(width, height) == !m_bytes.empty(), "a picture that can be made is made");
    const bool isOutOfRange = m_chart.graph().problem() == Problem::SizeOutOfRange;
    require(isOutOfRange == m_bytes.empty(), "a chart says why there is no picture");
    if (m_bytes.empty())
        return;
    require(headerNumber(m_bytes, kWidthOffset) == width, "a picture is as wide as asked for");
    require(headerNumber(m_bytes, kHeightOffset) == height, "a picture is as high as asked for");
}

void CWatchedChart::checkSvg(int width, int height, const CRenderedChart& png)
{
    m_export = m_chart.createSvg(width, height);
    const CRenderedChart svg = copyRendering(m_chart, m_export);
    QXmlStreamReader reader(
        QByteArray::fromRawData(reinterpret_cast<const char*>(m_export.data), m_export.size));
    while (!reader.atEnd())
        reader.readNext();
    require(m_export.size == 0 || !reader.hasError(), "an SVG picture is well-formed");
    require((m_export.size == 0) == png.png.empty(), "a picture is made as SVG if it is as PNG");
    require(svg.items == png.items && svg.bars == png.bars && svg.problem == png.problem,
            "everything is where the PNG has it");
}

void CWatchedChart::checkTitle(std::int64_t width, std::int64_t height) const
{
    const Rectangle title = m_chart.graph().titleRectangle();
    require(isInvisible(title) || isInside(title, width, height),
            "a title lies inside the picture");
}

void CWatchedChart::checkRegions(std::int64_t width, std::int64_t height)
{
    if (m_bytes.empty() || m_hasFixedPlaces || m_hasNegativeValue)
        return;
    for (const Rectangle& bar : m_chart.barRectangles())
        require(isInvisible(bar) || isInside(bar, width, height),
                "a bar that the layout has placed lies inside the picture");
    for (const Slice& slice : m_chart.slices())
        checkPolygon(slice);
}

} // namespace tovangl
