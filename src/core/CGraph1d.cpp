// SPDX-License-Identifier: MIT
// The items of a chart, and the frame in which every picture is drawn.
#include "core/CGraph1d.h"

#include "core/CBarGraphItem.h"
#include "core/CPieBaseItem.h"
#include "core/item_selection.h"
#include "core/pixel_arithmetic.h"
#include "core/qt_versions.h"
#include "core/raster_surface.h"

#include <QFont>
#include <QImage>
#include <QPainter>
#include <QPixmap>

#include <algorithm>
#include <array>

namespace tovangl {

namespace {

constexpr int kLargestFontSize = 30000; // pixels

struct CPaletteEntry
{
    int red, green, blue;
};

// Three blues from dark to light, then three oranges.
constexpr std::array<CPaletteEntry, 6> kDefaultPalette = {{
    {23, 52, 124},
    {91, 115, 176},
    {174, 191, 234},
    {254, 102, 13},
    {254, 184, 109},
    {255, 226, 182},
}};

// Keeps one setting for the length of a scope.
template <typename V>
class CSettingGuard
{
public:
    CSettingGuard(V& setting, V during, V after)
        : m_setting(setting)
        , m_after(after)
    {
        m_setting = during;
    }
    ~CSettingGuard() { m_setting = m_after; }
    Q_DISABLE_COPY(CSettingGuard)

private:
    V& m_setting;
    V m_after;
};

} // namespace

template <typename T>
CGraph1d<T>::CGraph1d() = default;

template <typename T>
CGraph1d<T>::~CGraph1d()
{
    qDeleteAll(m_items);
}

template <typename T>
bool CGraph1d<T>::addItem(long long value, const QString& text, const QColor& color)
{
    appendItem(std::make_unique<T>(value, text, colorOrDefault(color)));
    return true;
}

template <typename T>
void CGraph1d<T>::clear()
{
    m_selectedItems.clear();
    qDeleteAll(m_items);
    m_items.clear();
}

template <typename T>
void CGraph1d<T>::putItemRectangle(std::list<QRect>& rects) const
{
    for (const T* item : m_items)
        rects.push_back(item->itemRect());
}

template <typename T>
std::vector<const T*> CGraph1d<T>::drawnItems() const
{
    std::vector<const T*> result(m_items.size(), nullptr);
    auto selected = m_isDrawn ? m_selectedItems.begin() : m_selectedItems.end();
    auto entry = result.begin();
    for (auto item = m_items.begin(); selected != m_selectedItems.end(); ++item, ++entry) {
        if (*item == *selected)
            *entry = *selected++;
    }
    return result;
}

template <typename T>
void CGraph1d<T>::selectItems()
{
    m_selectedItems.clear();
    if (m_threshold < 0.0)
        m_threshold = 0.0;

    CShareOfTotal shares;
    for (const T* item : m_items)
        shares.add(item->value());
    for (T* item : m_items) {
        if (isBarChosen(item->value(), shares, m_threshold))
            m_selectedItems.push_back(item);
    }
}

template <typename T>
void CGraph1d<T>::initDefaultColor()
{
    auto colors = std::make_unique<QColor[]>(kDefaultPalette.size());
    std::transform(
        kDefaultPalette.begin(), kDefaultPalette.end(), colors.get(),
        [](const CPaletteEntry& entry) { return QColor(entry.red, entry.green, entry.blue); });
    m_defaultColors = std::move(colors);
    m_defaultColorCount = static_cast<int>(kDefaultPalette.size());
}

template <typename T>
bool CGraph1d<T>::compareItems(const T* a, const T* b)
{
    return a->value() < b->value();
}

template <typename T>
QColor CGraph1d<T>::colorOrDefault(const QColor& color)
{
    if (color.isValid())
        return color;
    if (!m_defaultColors)
        initDefaultColor();
    // Deliberate: the position among all items decides, so an item with a colour of its own uses up
    // its palette entry.
    return m_defaultColors[m_items.size() % static_cast<std::size_t>(m_defaultColorCount)];
}

template <typename T>
void CGraph1d<T>::appendItem(std::unique_ptr<T> item)
{
    m_items.push_back(item.get());
    item.release();
}

template <typename T>
QPixmap CGraph1d<T>::getPixmap(int width, int height)
{
    return getSurface<QPixmap>(width, height);
}

template <typename T>
QImage CGraph1d<T>::getImage(int width, int height)
{
    return getSurface<QImage>(width, height);
}

template <typename T>
QPixmap CGraph1d<T>::getPixmapForPrinter(int width, int height, int factor)
{
    const CSettingGuard<OutputDevice> device(m_outputDevice, PrinterDevice, m_outputDevice);
    const CSettingGuard<int> scale(m_scale, std::max(factor, 1), std::max(m_scale, 1));
    return getPixmap(width, height);
}

template <typename T>
QImage CGraph1d<T>::getImageForPrinter(int width, int height, int factor)
{
    const CSettingGuard<OutputDevice> device(m_outputDevice, PrinterDevice, m_outputDevice);
    const CSettingGuard<int> scale(m_scale, std::max(factor, 1), std::max(m_scale, 1));
    return getImage(width, height);
}

template <typename T>
void CGraph1d<T>::initPainter(QPainter& painter) const
{
    QFont font;
    font.setFamily(m_fontFamily);
    const int pixelSize = std::min(scalePixels(m_fontSize, m_scale), kLargestFontSize);
    if (pixelSize > 0)
        font.setPixelSize(pixelSize);
    else
        qt::setDefaultSize(font, *painter.device());
    // Deliberate: texts are not antialiased. The render hint alone does not reach raster text; the
    // font's strategy does.
    font.setStyleStrategy(QFont::NoAntialias);
    painter.setFont(font);
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setRenderHint(QPainter::TextAntialiasing, false);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, true);
}

template <typename T>
template <typename Surface>
Surface CGraph1d<T>::getSurface(int width, int height)
{
    forgetDrawing();
    m_width = scalePixels(width, m_scale);
    m_height = scalePixels(height, m_scale);
    Surface device = makeRasterSurface<Surface>(m_width, m_height);
    if (!device.isNull())
        drawGraph(device);
    else if (!isRasterSize(m_width, m_height))
        m_problem = Problem::SizeOutOfRange;
    return device;
}

template <typename T>
template <typename Surface>
void CGraph1d<T>::drawGraph(Surface& device)
{
    selectItems();
    for (T* item : m_selectedItems)
        item->setItemRect(QRect());

    QPainter painter(&device);
    initPainter(painter);
    painter.fillRect(device.rect(), QColor(255, 255, 255));
    drawContents(painter);
    painter.end();
    m_problem = m_isDrawn ? Problem::None : Problem::TooSmallForChart;
}

template class CGraph1d<CBarGraphItem>;
template class CGraph1d<CPieBaseItem>;

} // namespace tovangl
