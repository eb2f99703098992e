// SPDX-License-Identifier: MIT
// How the time of a chart is split: layout, picture (layout and painting), packing and
// compressing.
#include "chart/CBarBase.h"
#include "chart/CPieGraph.h"
#include "charts/case_list.h"
#include "output/CDeflater.h"
#include "output/packed_picture.h"
#include "paint/CCanvas.h"

#include <QImage>

#include <benchmark/benchmark.h>
#include <memory>
#include <vector>

namespace tovangl {
namespace {

using bench::CChartCase;

constexpr bool kWithoutBackground = false;

template <typename Chart>
std::unique_ptr<Chart> makeChart(const CChartCase& chart)
{
    auto graph = std::make_unique<Chart>(kWithoutBackground);
    for (const bench::CCaseItem& item : chart.items)
        graph->input().addItem(item.value, QString::fromStdString(item.caption), QColor(),
                               QColor());
    return graph;
}

template <typename Chart>
QImage drawPicture(Chart& graph, const CChartCase& chart)
{
    return chart.factor == 1 ? graph.getImage(chart.width, chart.height)
                             : graph.getImageForPrinter(chart.width, chart.height, chart.factor);
}

template <typename Chart>
void layout(benchmark::State& state, const CChartCase& chart)
{
    const auto graph = makeChart<Chart>(chart);
    QImage picture = drawPicture(*graph, chart);
    CRequest request{picture.width(), picture.height(), chart.factor};
    if (chart.factor != 1)
        request.device = OutputDevice::Printer;
    const std::vector<std::size_t> drawn = graph->drawnItems();
    CCanvas canvas(picture, graph->input().settings, request);
    for (auto _ : state)
        benchmark::DoNotOptimize(
            computeLayout(graph->input(), drawn, request, canvas.measurer()).fits());
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
        benchmark::DoNotOptimize(packPicture(image, Compression::Balanced).rows.size);
    }
}

template <typename Chart>
void compressing(benchmark::State& state, const CChartCase& chart, Compression compression)
{
    QImage picture = drawPicture(*makeChart<Chart>(chart), chart);
    const CPackedPicture packed = packPicture(picture, compression);
    for (auto _ : state)
        benchmark::DoNotOptimize(CDeflater(packed, compression).deflate(packed.spare));
}

template <typename Chart>
void registerStages(const bench::CNamedCase& named)
{
    const std::string prefix = named.name + "/";
    const CChartCase& chart = named.chart;
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
