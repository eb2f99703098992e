// SPDX-License-Identifier: MIT
/// @file
/// The surface that a chart is painted on.
#ifndef TOVANGL_PAINT_CCANVAS_H
#define TOVANGL_PAINT_CCANVAS_H

#include "layout/CChartOutput.h"
#include "text/CTextMeasurer.h"

#include <QFont>
#include <QPainter>

class QPaintDevice;

namespace tovangl {

struct CGraph1dSettings;
struct CRequest;

/// A painter on a device, set up for one chart: white, with the chart's font. Its measurer measures
/// the layout that is painted on it.
class CCanvas : public CChartOutput
{
public:
    /// @param device       not null; it must outlive the canvas
    /// @param addedFamily  a family of the host's own to draw with, by Qt's name for it; empty: the
    ///                     installed one that the settings name
    CCanvas(QPaintDevice& device, const CGraph1dSettings& settings, const CRequest& request,
            const QString& addedFamily = QString());

    [[nodiscard]] CTextMeasurer& measurer() { return m_measurer; }
    /// The font that texts are painted in.
    [[nodiscard]] const QFont& font() const { return m_painted; }
    /// Qt's name for the family that texts are painted in; empty if there is no font at all.
    [[nodiscard]] QString usedFamily() const;
    void paint(const CBarLayout& layout) override;
    void paint(const CPieLayout& layout) override;

private:
    QPainter m_painter;
    CTextMeasurer m_measurer;
    QFont m_painted; // as large as the texts on the picture
};

} // namespace tovangl

#endif
