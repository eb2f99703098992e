// SPDX-License-Identifier: MIT
// Times QCustomPlot's bar charts.
#include "peers/qt_peer.h"
#include "support/timed_rounds.h"

#include <QApplication>
#include <qcustomplot.h>

#include <vector>

namespace tovangl {
namespace bench {

namespace {

QSharedPointer<QCPAxisTickerText> captionsOf(const CChartCase& chart)
{
    QSharedPointer<QCPAxisTickerText> ticker(new QCPAxisTickerText);
    int place = 0;
    for (const CCaseItem& item : chart.items)
        ticker->addTick(place++, QString::fromStdString(item.caption));
    return ticker;
}

// One plottable for each colour holds all bars of that colour.
void addBars(QCustomPlot& plot, const CChartCase& chart, QCPAxis* category, QCPAxis* value)
{
    std::vector<QCPBars*> bars;
    for (int i = 0; i < kColors; ++i) {
        bars.push_back(new QCPBars(category, value));
        bars.back()->setWidth(kBarWidth);
        bars.back()->setBrush(fillColor(i));
        bars.back()->setPen(QPen(outlineColor(i), 1.0));
        bars.back()->setAntialiased(false);
        bars.back()->setAntialiasedFill(false);
    }
    int place = 0;
    for (const CCaseItem& item : chart.items) {
        bars[static_cast<std::size_t>(place % kColors)]->addData(place,
                                                                 static_cast<double>(item.value));
        ++place;
    }
    plot.setNotAntialiasedElements(QCP::aeAll);
}

void showAxis(QCPAxis* axis, bool line, bool labels, bool grid)
{
    axis->setVisible(true);
    axis->setBasePen(line ? QPen(Qt::black) : QPen(Qt::NoPen));
    axis->setTickPen(QPen(Qt::NoPen));
    axis->setSubTickPen(QPen(Qt::NoPen));
    axis->setTickLabels(labels);
    axis->setTickLabelFont(peerFont());
    axis->grid()->setVisible(grid);
    axis->grid()->setPen(QPen(gridColor()));
    axis->grid()->setZeroLinePen(QPen(Qt::NoPen));
}

void fillUpright(QCustomPlot& plot, const CChartCase& chart)
{
    addBars(plot, chart, plot.xAxis, plot.yAxis);
    showAxis(plot.xAxis, true, true, false);
    showAxis(plot.yAxis, true, true, true);
    plot.xAxis->setTicker(captionsOf(chart));
    plot.xAxis->setTickLabelRotation(areCaptionsTurned(chart) ? -90 : 0);
    plot.xAxis->setRange(-0.75, static_cast<double>(chart.items.size()) - 0.25);
    QSharedPointer<QCPAxisTickerFixed> steps(new QCPAxisTickerFixed);
    steps->setTickStep(kScaleStep);
    plot.yAxis->setTicker(steps);
    plot.yAxis->setRange(0, kScaleEnd);
}

void addValues(QCustomPlot& plot, const CChartCase& chart)
{
    int place = 0;
    for (const CCaseItem& item : chart.items) {
        auto* text = new QCPItemText(&plot);
        text->setText(QString::number(item.value));
        text->setFont(peerFont());
        text->setPositionAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        text->setPadding(QMargins(kValueGap, 0, 0, 0));
        text->position->setAxes(plot.xAxis, plot.yAxis);
        text->position->setCoords(static_cast<double>(item.value), place++);
    }
}

void fillLying(QCustomPlot& plot, const CChartCase& chart)
{
    addBars(plot, chart, plot.yAxis, plot.xAxis);
    addValues(plot, chart);
    showAxis(plot.yAxis, true, true, false);
    showAxis(plot.xAxis, false, false, false);
    showAxis(plot.xAxis2, true, false, false);
    plot.yAxis->setTicker(captionsOf(chart));
    plot.yAxis->setRange(-0.65, static_cast<double>(chart.items.size()) - 0.35);
    plot.yAxis->setRangeReversed(true);
    plot.xAxis->setRange(0, kLyingScaleEnd);
}

// The plot is kept from round to round, as its authors advise.
CPictureBytes drawRound(QCustomPlot& plot, const CChartCase& chart)
{
    plot.clearPlottables();
    plot.clearItems();
    if (chart.kind == Bars)
        fillUpright(plot, chart);
    else
        fillLying(plot, chart);
    return encode(plot.toPixmap(chart.width, chart.height, chart.factor).toImage());
}

} // namespace

} // namespace bench
} // namespace tovangl

int main(int count, char** arguments)
{
    using namespace tovangl::bench;
    useOffscreenPlatform();
    const QApplication application(count, arguments);
    QCustomPlot plot;
    const auto draw = [&plot](const CChartCase& chart, const std::string&) {
        return drawRound(plot, chart);
    };
    return timeRounds(count, arguments, draw);
}
