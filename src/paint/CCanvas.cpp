// SPDX-License-Identifier: MIT
// The surface that a chart is painted on.
#include "paint/CCanvas.h"

#include "base/pixel_arithmetic.h"
#include "input/CGraph1dSettings.h"
#include "layout/CRequest.h"
#include "paint/bar_painting.h"
#include "paint/pie_painting.h"
#include "text/qt_text.h"

#include <QFontInfo>

#include <algorithm>

namespace tovangl {

namespace {

constexpr int kLargestFontSize = 30000; // pixels

QFont chartFont(const CGraph1dSettings& settings, int scale, const QPaintDevice& device)
{
    QFont font;
    qt::setFamily(font, settings.fontFamily);
    const int pixelSize = std::min(scalePixels(settings.fontSize, scale), kLargestFontSize);
    if (pixelSize > 0)
        font.setPixelSize(pixelSize);
    else
        qt::setDefaultSize(font, device);
    // Deliberate: texts are not antialiased, which keeps small ones legible. The render hint alone
    // has no effect on raster text; the font's strategy does.
    font.setStyleStrategy(QFont::NoAntialias);
    return font;
}

// Print is laid out in the font that it is painted in, a screen in that of scale 1.
int magnificationOf(const CRequest& request)
{
    return request.device == OutputDevice::Screen ? request.scale : 1;
}

QFont magnified(QFont font, int magnification)
{
    if (magnification > 1) {
        const int pixelSize = scalePixels(QFontInfo(font).pixelSize(), magnification);
        font.setPixelSize(std::min(pixelSize, kLargestFontSize));
    }
    return font;
}

// What the machine would otherwise choose: how letters are fitted to pixels, and the families that
// characters come from which this one lacks.
QFont independentFont(QFont font, const QString& family)
{
    font.setFamily(family);
    font.setHintingPreference(QFont::PreferFullHinting);
    font.setStyleStrategy(QFont::StyleStrategy(font.styleStrategy() | QFont::NoFontMerging));
    return font;
}

QFont chosenFont(const QFont& installed, const QString& addedFamily)
{
    return addedFamily.isEmpty() ? installed : independentFont(installed, addedFamily);
}

QFont measuredFont(const CGraph1dSettings& settings, const CRequest& request,
                   const QPaintDevice& device, const QString& addedFamily)
{
    const int scale = request.device == OutputDevice::Screen ? 1 : request.scale;
    return chosenFont(chartFont(settings, scale, device), addedFamily);
}

// Sets up a painter before anything is measured with it.
QPainter& initPainter(QPainter& painter, const QFont& font, const QColor& picture)
{
    painter.setFont(font);
    painter.setRenderHint(QPainter::TextAntialiasing, false);
    // Replaces what was in memory, even by nothing.
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(painter.window(), picture);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    return painter;
}

} // namespace

CCanvas::CCanvas(QPaintDevice& device, const CGraph1dSettings& settings, const CRequest& request,
                 const QString& addedFamily)
    : m_painter(&device)
    , m_measurer(initPainter(m_painter, measuredFont(settings, request, device, addedFamily),
                             settings.colors.picture),
                 magnificationOf(request))
    , m_painted(magnified(m_painter.font(), magnificationOf(request)))
{}

QString CCanvas::usedFamily() const
{
    return QFontInfo(m_painter.font()).family();
}

void CCanvas::paint(const CBarLayout& layout)
{
    m_painter.setFont(m_painted);
    paintBars(m_painter, layout);
}

void CCanvas::paint(const CPieLayout& layout)
{
    m_painter.setFont(m_painted);
    paintPie(m_painter, layout);
}

} // namespace tovangl
