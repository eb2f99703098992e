// SPDX-License-Identifier: MIT
// Draws a described chart and tells its layout.
#include "layout/drawn_chart.h"

#include "bar/CBarGraph.h"
#include "bar/CLabeledBarGraph.h"
#include "layout/CDump.h"
#include "layout/CTextRecorder.h"
#include "layout/layout_dump.h"
#include "pie/CPieGraph.h"

#include <QPainter>

namespace tovangl {

namespace {

// Draws as the chart does, and while its settings for this drawing are in force dumps the layout
// and draws once more onto a device that records texts.
template <typename Chart>
class CDumpingChart : public Chart
{
public:
    using Chart::Chart;

    void drawContents(QPainter& painter) override
    {
        Chart::drawContents(painter);
        CTextRecorder recorder(QSize(this->m_width, this->m_height));
        QPainter textPainter(&recorder);
        this->initPainter(textPainter);
        Chart::drawContents(textPainter);
        textPainter.end();

        m_dump.line("picture").number(this->m_width).number(this->m_height);
        m_dump.word("scale").number(this->m_scale);
        m_dump.flag("for print", this->m_outputDevice == CGraph1dBase::PrinterDevice);
        dumpLayout(*this, m_dump);
        dumpTexts(recorder.texts(), m_dump);
    }
    [[nodiscard]] std::string layout() const { return m_dump.text(); }

private:
    CDump m_dump;
};

void applyCommonSettings(CGraph1dBase& chart, const CChartFile& file)
{
    if (file.font)
        chart.setFont(file.font->family, file.font->pixelSize);
    if (file.locale)
        chart.setLocale(file.locale->language, file.locale->country);
    if (file.threshold)
        chart.setThreshold(*file.threshold);
    for (const CChartFile::CItem& item : file.items)
        chart.addItem(item.value, item.text, item.color);
}

void applySettings(CPieGraph& chart, const CChartFile& file)
{
    if (file.options)
        chart.setOptions(CPieGraph::Options(QFlag(*file.options)));
    if (file.colors) {
        chart.setPieOutlineColor(file.colors->at(0));
        chart.setTextColor(file.colors->at(1));
        chart.setLabelLineColor(file.colors->at(2));
    }
}

void applySettings(CBarBase& chart, const CChartFile& file)
{
    if (file.across)
        chart.setHorizontalAxis(CAxis::Properties(QFlag(file.across->properties)),
                                file.across->title);
    if (file.upright)
        chart.setVerticalAxis(CAxis::Properties(QFlag(file.upright->properties)),
                              file.upright->title);
    if (file.position)
        chart.setPosition(file.position->x(), file.position->y());
    if (file.barWidth)
        chart.setBarWidth(*file.barWidth);
    chart.setTextColor(file.textColor);
}

template <typename Chart>
CDrawnChart drawAs(const CChartFile& file)
{
    CDumpingChart<Chart> chart(file.background);
    applySettings(chart, file);
    applyCommonSettings(chart, file);
    const int width = file.size.width();
    const int height = file.size.height();
    const QImage image = file.printFactor
                             ? chart.getImageForPrinter(width, height, *file.printFactor)
                             : chart.getImage(width, height);
    return {image, chart.layout()};
}

} // namespace

CDrawnChart drawChart(const CChartFile& file)
{
    if (file.kind == QLatin1String("pie"))
        return drawAs<CPieGraph>(file);
    return file.kind == QLatin1String("bars") ? drawAs<CBarGraph>(file)
                                              : drawAs<CLabeledBarGraph>(file);
}

} // namespace tovangl
