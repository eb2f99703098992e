// SPDX-License-Identifier: MIT
/// @file
/// A pie that is laid out and painted without the public interface.
#ifndef TOVANGL_SUPPORT_CTESTPIE_H
#define TOVANGL_SUPPORT_CTESTPIE_H

#include "input/CPieInput.h"
#include "input/item_selection.h"
#include "layout/pie_layout.h"
#include "output/raster_surface.h"
#include "paint/CCanvas.h"
#include "support/requests.h"

#include <QImage>

namespace tovangl {

struct CDrawnPie
{
    CPieLayout layout;
    QImage image;
};

[[nodiscard]] inline CPieLayout layOut(const CPieInput& pie, const CRequest& request)
{
    QImage image(1, 1, QImage::Format_ARGB32);
    CCanvas canvas(image, pie.settings, request);
    const auto drawn = selectSlices(pie.items, pie.settings.threshold).items;
    return computeLayout(pie, drawn, request, canvas.measurer());
}

[[nodiscard]] inline CDrawnPie drawn(const CPieInput& pie, const CRequest& request)
{
    CDrawnPie drawn{layOut(pie, request), makeRasterSurface(request.width, request.height)};
    CCanvas(drawn.image, pie.settings, request).paint(drawn.layout);
    return drawn;
}

struct CTestPie : CPieInput
{
    explicit CTestPie(bool withBackground = false)
        : CPieInput(withBackground)
    {
        settings.setFont(QString(QLatin1String("DejaVu Sans")), 11);
    }

    void add(long long value, const char* text = "", const QColor& color = QColor())
    {
        addItem(value, QString::fromUtf8(text), color, QColor());
    }
    void addEqual(int count, const char* text = "")
    {
        for (int i = 0; i < count; ++i)
            add(1, text);
    }

    [[nodiscard]] CPieLayout layOut(const CRequest& request) const
    {
        return tovangl::layOut(*this, request);
    }
    [[nodiscard]] bool fitsInto(int width, int height) const
    {
        return layOut(onScreen(width, height)).fits();
    }
    [[nodiscard]] QImage paint(const CRequest& request) const
    {
        return drawn(*this, request).image;
    }
};

} // namespace tovangl

#endif
