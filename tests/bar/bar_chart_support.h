// SPDX-License-Identifier: MIT
/// @file
/// Bar charts that show what they do, for tests.
#ifndef TOVANGL_BAR_BAR_CHART_SUPPORT_H
#define TOVANGL_BAR_BAR_CHART_SUPPORT_H

#include "bar/CBarGraph.h"
#include "bar/CLabeledBarGraph.h"

#include <QImage>
#include <QPainter>
#include <QString>

#include <iterator>
#include <vector>

namespace tovangl {

inline constexpr QRgb kWhitePixel = 0xffffffff;
inline constexpr QRgb kBlackPixel = 0xff000000;
inline constexpr QRgb kRedPixel = 0xffff0000;
inline constexpr QRgb kBluePixel = 0xff0000ff;

/// A bar chart that opens what is protected. Its locale is English.
template <typename Chart>
class CShownChart : public Chart
{
public:
    explicit CShownChart(bool background = false)
        : Chart(background)
    {
        this->setLocale("en", "us");
    }

    using Chart::m_categoryAxis;
    using Chart::m_numberAxis;
    using Chart::m_outputDevice;

    void add(long long value, const char* text = "bar", const QColor& color = QColor(),
             const QColor& outline = QColor())
    {
        this->addItem(value, QString::fromUtf8(text), color, outline);
    }
    void addMany(int count, const char* text = "bar")
    {
        for (int i = 0; i < count; ++i)
            add(10 + i % 7, text);
    }
    [[nodiscard]] CBarGraphItem* item(int index) const
    {
        return *std::next(this->m_items.begin(), index);
    }
    [[nodiscard]] QRect bar(int index) const { return item(index)->barRect(); }
    [[nodiscard]] std::vector<QRect> bars() const
    {
        std::list<QRect> rects;
        this->putBarRectangle(rects);
        return {rects.begin(), rects.end()};
    }
    /// Sets up what a rendering of that size would, without drawing anything.
    void setSize(int width, int height, int scale = 1)
    {
        this->m_width = width;
        this->m_height = height;
        this->m_scale = scale;
    }
};

using CUprightBars = CShownChart<CBarGraph>;
using CLyingBars = CShownChart<CLabeledBarGraph>;

/// All pixels of a row or column between two places, first and last included.
inline bool isColumn(const QImage& image, int x, int top, int bottom, QRgb color)
{
    for (int y = top; y <= bottom; ++y) {
        if (image.pixel(x, y) != color)
            return false;
    }
    return true;
}

inline bool isRow(const QImage& image, int y, int left, int right, QRgb color)
{
    for (int x = left; x <= right; ++x) {
        if (image.pixel(x, y) != color)
            return false;
    }
    return true;
}

/// Whether everything outside the rectangle is white.
inline bool isWhiteOutside(const QImage& image, const QRect& rect)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (!rect.contains(x, y) && image.pixel(x, y) != kWhitePixel)
                return false;
        }
    }
    return true;
}

} // namespace tovangl

#endif
