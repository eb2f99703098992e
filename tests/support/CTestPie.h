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

#include <QImage>

namespace tovangl {

[[nodiscard]] inline CRequest onScreen(int width, int height)
{
    return {width, height};
}

[[nodiscard]] inline CRequest inPrint(int width, int height, int factor)
{
    return {width * factor, height * factor, factor, OutputDevice::Printer};
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
        QImage image(1, 1, QImage::Format_ARGB32);
        CCanvas canvas(image, settings, request);
        const auto drawn = selectSlices(items, settings.threshold).items;
        return computeLayout(*this, drawn, request, canvas.measurer());
    }
    [[nodiscard]] bool fitsInto(int width, int height) const
    {
        return layOut(onScreen(width, height)).fits();
    }
    [[nodiscard]] QImage paint(const CRequest& request) const
    {
        QImage image = makeRasterSurface(request.width, request.height);
        CCanvas(image, settings, request).paint(layOut(request));
        return image;
    }
};

} // namespace tovangl

#endif
