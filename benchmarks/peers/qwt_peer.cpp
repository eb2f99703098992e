// SPDX-License-Identifier: MIT
// Times Qwt's bar charts.
#include "peers/qt_peer.h"
#include "support/timed_rounds.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <qwt_column_symbol.h>
#include <qwt_plot.h>
#include <qwt_plot_barchart.h>
#include <qwt_plot_canvas.h>
#include <qwt_plot_grid.h>
#include <qwt_plot_layout.h>
#include <qwt_plot_marker.h>
#include <qwt_plot_renderer.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_widget.h>
#include <qwt_text.h>

namespace tovangl {
namespace bench {

namespace {

constexpr int kMargin = 8; // pixels around the plot

// Bars in this library's colours.
class CColoredBars : public QwtPlotBarChart
{
public:
    QwtColumnSymbol* specialSymbol(int place, const QPointF&) const override
    {
        auto* symbol = new QwtColumnSymbol(QwtColumnSymbol::Box);
        symbol->setFrameStyle(QwtColumnSymbol::Plain);
        symbol->setLineWidth(1);
        symbol->setPalette(QPalette(outlineColor(place), fillColor(place), Qt::black,
                                    outlineColor(place), outlineColor(place), Qt::black, Qt::white,
                                    Qt::white, fillColor(place)));
        return symbol;
    }
};

// A scale that names the bars.
class CCaptionScale : public QwtScaleDraw
{
public:
    explicit CCaptionScale(const CChartCase& chart)
        : m_items(chart.items)
    {
        enableComponent(Ticks, false);
        if (areCaptionsTurned(chart)) {
            setLabelRotation(-90);
            setLabelAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        }
    }

    QwtText label(double place) const override
    {
        const int index = qRound(place);
        if (index < 0 || index >= static_cast<int>(m_items.size()))
            return QwtText();
        return QString::fromStdString(m_items[static_cast<std::size_t>(index)].caption);
    }

private:
    const std::vector<CCaseItem>& m_items;
};

void setSteps(QwtPlot& plot, int axis, double from, double to, double first, double step, int count)
{
    QwtScaleDiv division(from, to);
    QList<double> ticks;
    for (int i = 0; i < count; ++i)
        ticks << first + i * step;
    division.setTicks(QwtScaleDiv::MajorTick, ticks);
    plot.setAxisScaleDiv(axis, division);
    plot.setAxisFont(axis, peerFont());
}

QwtPlotBarChart* makeBars(const CChartCase& chart)
{
    QVector<double> values;
    for (const CCaseItem& item : chart.items)
        values << static_cast<double>(item.value);
    auto* bars = new CColoredBars;
    bars->setSamples(values);
    bars->setLayoutPolicy(QwtPlotBarChart::ScaleSamplesToAxes);
    bars->setLayoutHint(kBarWidth);
    return bars;
}

void fillUpright(QwtPlot& plot, const CChartCase& chart)
{
    const int count = static_cast<int>(chart.items.size());
    auto* grid = new QwtPlotGrid;
    grid->enableX(false);
    grid->setPen(QPen(gridColor(), 1));
    grid->attach(&plot);
    makeBars(chart)->attach(&plot);
    plot.setAxisScaleDraw(QwtPlot::xBottom, new CCaptionScale(chart));
    setSteps(plot, QwtPlot::xBottom, -0.75, count - 0.25, 0, 1, count);
    plot.axisScaleDraw(QwtPlot::yLeft)->enableComponent(QwtScaleDraw::Ticks, false);
    setSteps(plot, QwtPlot::yLeft, 0, kScaleEnd, 0, kScaleStep, kScaleEnd / kScaleStep + 1);
}

void addValues(QwtPlot& plot, const CChartCase& chart)
{
    int place = 0;
    for (const CCaseItem& item : chart.items) {
        QwtText text(QString::number(item.value));
        text.setFont(peerFont());
        auto* marker = new QwtPlotMarker;
        marker->setLabel(text);
        marker->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
        marker->setSpacing(kValueGap);
        marker->setValue(static_cast<double>(item.value), place++);
        marker->attach(&plot);
    }
}

void fillLying(QwtPlot& plot, const CChartCase& chart)
{
    const int count = static_cast<int>(chart.items.size());
    QwtPlotBarChart* bars = makeBars(chart);
    bars->setOrientation(Qt::Horizontal);
    bars->attach(&plot);
    addValues(plot, chart);
    plot.setAxisScaleDraw(QwtPlot::yLeft, new CCaptionScale(chart));
    setSteps(plot, QwtPlot::yLeft, count - 0.35, -0.65, 0, 1, count);
    plot.enableAxis(QwtPlot::xBottom, false);
    plot.enableAxis(QwtPlot::xTop);
    for (const QwtScaleDraw::ScaleComponent part : {QwtScaleDraw::Ticks, QwtScaleDraw::Labels})
        plot.axisScaleDraw(QwtPlot::xTop)->enableComponent(part, false);
    setSteps(plot, QwtPlot::xBottom, 0, kLyingScaleEnd, 0, kScaleStep, 5);
    setSteps(plot, QwtPlot::xTop, 0, kLyingScaleEnd, 0, kScaleStep, 5);
}

QImage render(QwtPlot& plot, const CChartCase& chart)
{
    QImage image(chart.width * chart.factor, chart.height * chart.factor, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(chart.factor, chart.factor);
    QwtPlotRenderer renderer;
    renderer.setDiscardFlags(QwtPlotRenderer::DiscardBackground |
                             QwtPlotRenderer::DiscardCanvasBackground |
                             QwtPlotRenderer::DiscardCanvasFrame);
    renderer.render(
        &plot, &painter,
        QRectF(0, 0, chart.width, chart.height).adjusted(kMargin, kMargin, -kMargin, -kMargin));
    return image;
}

CPictureBytes drawRound(QwtPlot& plot, const CChartCase& chart)
{
    plot.detachItems();
    if (chart.kind == Bars)
        fillUpright(plot, chart);
    else
        fillLying(plot, chart);
    plot.updateAxes();
    return encode(render(plot, chart));
}

} // namespace

} // namespace bench
} // namespace tovangl

int main(int count, char** arguments)
{
    using namespace tovangl::bench;
    useOffscreenPlatform();
    const QApplication application(count, arguments);
    QwtPlot plot;
    plot.setAutoReplot(false);
    plot.plotLayout()->setCanvasMargin(0);
    plot.plotLayout()->setAlignCanvasToScales(true);
    const auto draw = [&plot](const CChartCase& chart, const std::string&) {
        return drawRound(plot, chart);
    };
    return timeRounds(count, arguments, draw);
}
