// SPDX-License-Identifier: MIT
// How the time of a chart is split: layout, picture (layout and painting), narrowing and saving.
#include "api/image_narrowing.h"
#include "bar/CBarGraph.h"
#include "bar/CLabeledBarGraph.h"
#include "charts/case_list.h"
#include "pie/CPieGraph.h"

#include <QBuffer>
#include <QByteArray>
#include <QImage>
#include <QPainter>

#include <benchmark/benchmark.h>
#include <memory>

namespace tovangl {
namespace {

using bench::CChartCase;

constexpr bool kWithoutBackground = false;

template <typename Chart>
std::unique_ptr<Chart> makeChart(const CChartCase& chart)
{
    auto graph = std::make_unique<Chart>(kWithoutBackground);
    for (const bench::CCaseItem& item : chart.items)
        graph->addItem(item.value, QString::fromStdString(item.caption), QColor());
    return graph;
}

template <typename Chart>
QImage drawPicture(Chart& graph, const CChartCase& chart)
{
    return chart.factor == 1 ? graph.getImage(chart.width, chart.height)
                             : graph.getImageForPrinter(chart.width, chart.height, chart.factor);
}

bool layOut(CBarBase& graph, QPainter& painter)
{
    graph.createAxes(painter);
    return graph.computeLayout(painter);
}

bool layOut(CPieGraph& graph, QPainter& painter)
{
    return graph.computeLayout(painter);
}

// Only at factor 1: the resolution is a chart's own while it renders for print.
template <typename Chart>
void layout(benchmark::State& state, const CChartCase& chart)
{
    const auto graph = makeChart<Chart>(chart);
    QImage picture = drawPicture(*graph, chart);
    QPainter painter(&picture);
    graph->initPainter(painter);
    for (auto _ : state)
        benchmark::DoNotOptimize(layOut(*graph, painter));
}

template <typename Chart>
void picture(benchmark::State& state, const CChartCase& chart)
{
    const auto graph = makeChart<Chart>(chart);
    for (auto _ : state)
        benchmark::DoNotOptimize(drawPicture(*graph, chart).width());
}

template <typename Chart>
void narrowing(benchmark::State& state, const CChartCase& chart)
{
    const QImage original = drawPicture(*makeChart<Chart>(chart), chart);
    for (auto _ : state) {
        state.PauseTiming();
        QImage image = original.copy();
        state.ResumeTiming();
        benchmark::DoNotOptimize(narrowImage(image).format());
    }
}

template <typename Chart>
void saving(benchmark::State& state, const CChartCase& chart)
{
    constexpr int kDefaultQuality = -1;
    QImage picture = drawPicture(*makeChart<Chart>(chart), chart);
    const QImage narrow = narrowImage(picture);
    for (auto _ : state) {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        narrow.save(&buffer, "PNG", kDefaultQuality);
        benchmark::DoNotOptimize(bytes.constData());
    }
}

template <typename Chart>
void registerStages(const bench::CNamedCase& named)
{
    const std::string prefix = named.name + "/";
    const CChartCase& chart = named.chart;
    if (chart.factor == 1)
        benchmark::RegisterBenchmark((prefix + "layout").c_str(), layout<Chart>, chart);
    benchmark::RegisterBenchmark((prefix + "picture").c_str(), picture<Chart>, chart);
    benchmark::RegisterBenchmark((prefix + "narrowing").c_str(), narrowing<Chart>, chart);
    benchmark::RegisterBenchmark((prefix + "saving").c_str(), saving<Chart>, chart);
}

int registerAll()
{
    for (const bench::CNamedCase& named : bench::caseList()) {
        if (named.chart.kind == bench::Bars)
            registerStages<CBarGraph>(named);
        else if (named.chart.kind == bench::LyingBars)
            registerStages<CLabeledBarGraph>(named);
        else
            registerStages<CPieGraph>(named);
    }
    return 0;
}

[[maybe_unused]] const int registered = registerAll();

} // namespace
} // namespace tovangl
