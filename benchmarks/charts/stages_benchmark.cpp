// SPDX-License-Identifier: MIT
// How the time of a chart is split: layout, picture (layout and painting), packing and
// compressing.
#include "bar/CBarGraph.h"
#include "bar/CLabeledBarGraph.h"
#include "charts/case_list.h"
#include "output/CDeflater.h"
#include "output/packed_picture.h"
#include "pie/CPieGraph.h"

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
void packing(benchmark::State& state, const CChartCase& chart)
{
    const QImage original = drawPicture(*makeChart<Chart>(chart), chart);
    for (auto _ : state) {
        state.PauseTiming();
        QImage image = original.copy();
        state.ResumeTiming();
        benchmark::DoNotOptimize(packPicture(image).rows.size);
    }
}

template <typename Chart>
void compressing(benchmark::State& state, const CChartCase& chart, Compression compression)
{
    QImage picture = drawPicture(*makeChart<Chart>(chart), chart);
    const CPackedPicture packed = packPicture(picture);
    for (auto _ : state)
        benchmark::DoNotOptimize(CDeflater(packed.rows, compression).deflate(packed.spare));
}

template <typename Chart>
void registerStages(const bench::CNamedCase& named)
{
    const std::string prefix = named.name + "/";
    const CChartCase& chart = named.chart;
    if (chart.factor == 1)
        benchmark::RegisterBenchmark((prefix + "layout").c_str(), layout<Chart>, chart);
    benchmark::RegisterBenchmark((prefix + "picture").c_str(), picture<Chart>, chart);
    benchmark::RegisterBenchmark((prefix + "packing").c_str(), packing<Chart>, chart);
    benchmark::RegisterBenchmark((prefix + "compressing").c_str(), compressing<Chart>, chart,
                                 Compression::Balanced);
    benchmark::RegisterBenchmark((prefix + "compressingFast").c_str(), compressing<Chart>, chart,
                                 Compression::Fast);
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
