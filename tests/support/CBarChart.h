// SPDX-License-Identifier: MIT
/// @file
/// Bar charts, laid out and painted without a facade.
#ifndef TOVANGL_SUPPORT_CBARCHART_H
#define TOVANGL_SUPPORT_CBARCHART_H

#include "input/item_selection.h"
#include "layout/bar_layout.h"
#include "paint/CCanvas.h"
#include "support/pixels.h"
#include "support/requests.h"

namespace tovangl {

/// The layout of a chart with a plot rectangle and axes of which nothing is seen.
[[nodiscard]] inline CBarLayout bareBarLayout(const QRect& plotRect)
{
    const CAxisFrame frame(CAxisFrame::LeftToRight, CAxisFrame::Bottom);
    CBarLayout layout;
    layout.plotRect = plotRect;
    layout.categoryAxis =
        CAxisLayout{{frame, {}, 1, true, LabelDirection::Along, QSize(), QRect()}, {}, {}};
    layout.numberAxis = layout.categoryAxis;
    return layout;
}

struct CDrawnBars
{
    CBarLayout layout;
    QImage image;
};

/// A bar chart with English numbers.
class CBarChart
{
public:
    explicit CBarChart(BarKind kind, bool hasBackground = false)
        : input(kind, hasBackground)
    {
        input.settings.setLocale(QString("en"), QString("us"));
    }

    void add(long long value, const char* text = "bar", const QColor& color = QColor(),
             const QColor& outline = QColor())
    {
        input.addItem(value, QString::fromUtf8(text), color, outline);
    }
    void addMany(int count, const char* text = "bar")
    {
        for (int i = 0; i < count; ++i)
            add(10 + i % 7, text);
    }
    void hideAxes()
    {
        input.horizontalAxis.properties = CAxisSettings::Properties();
        input.verticalAxis.properties = CAxisSettings::Properties();
    }

    [[nodiscard]] CBarLayout layout(const CRequest& request) const
    {
        QImage image(1, 1, QImage::Format_ARGB32);
        CCanvas canvas(image, input.settings, request);
        return layOut(request, canvas);
    }
    [[nodiscard]] CDrawnBars drawn(const CRequest& request) const
    {
        QImage image(request.width, request.height, QImage::Format_ARGB32);
        CBarLayout layout;
        {
            CCanvas canvas(image, input.settings, request);
            layout = layOut(request, canvas);
            canvas.paint(layout);
        }
        return {std::move(layout), std::move(image)};
    }

    CBarInput input;

private:
    [[nodiscard]] CBarLayout layOut(const CRequest& request, CCanvas& canvas) const
    {
        const std::vector<std::size_t> drawnItems =
            selectBars(input.items, input.settings.threshold).items;
        return computeLayout(input, drawnItems, request, canvas.measurer());
    }
};

} // namespace tovangl

#endif
