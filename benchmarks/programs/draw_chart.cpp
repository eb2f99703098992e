// SPDX-License-Identifier: MIT
// Draws a case with this library, as a host would.
#include "programs/draw_chart.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace tovangl {
namespace bench {

namespace {

template <typename Chart>
std::unique_ptr<Graph> makeChartOf(const std::vector<CCaseItem>& items, bool background)
{
    auto graph = std::make_unique<Chart>(background);
    for (const CCaseItem& item : items)
        graph->addItem(item.value, item.caption);
    return graph;
}

bool isArgument(const char* word, int count, char** arguments, int place)
{
    return place < count && std::strcmp(arguments[place], word) == 0;
}

} // namespace

std::unique_ptr<Graph> makeChart(const CChartCase& chart, bool background)
{
    switch (chart.kind) {
    case Bars:
        return makeChartOf<VerticalBarGraph>(chart.items, background);
    case LyingBars:
        return makeChartOf<HorizontalBarGraph>(chart.items, background);
    case Pie:
        break;
    }
    return makeChartOf<PieGraph>(chart.items, background);
}

Compression compressionArgument(int count, char** arguments, int place)
{
    return isArgument("fast", count, arguments, place) ? Compression::Fast : Compression::Balanced;
}

PictureForm formArgument(int count, char** arguments, int place)
{
    if (isArgument("svg", count, arguments, place))
        return PictureForm::Svg;
    return isArgument("pdf", count, arguments, place) ? PictureForm::Pdf : PictureForm::Png;
}

CPictureBytes drawChart(Graph& graph, const CChartCase& chart, PictureForm form)
{
    unsigned char* data = nullptr;
    int size = 0;
    if (form == PictureForm::Svg)
        graph.createSvg(chart.width, chart.height, &data, &size);
    else if (form == PictureForm::Pdf)
        graph.createPdf(chart.width, chart.height, &data, &size);
    else if (chart.factor == 1)
        graph.createPixmap(chart.width, chart.height, &data, &size);
    else
        graph.createPixmapForPrinter(chart.width, chart.height, chart.factor, &data, &size);
    // No picture would be the fastest of all.
    if (size == 0) {
        std::fputs("the library made no picture\n", stderr);
        std::abort();
    }
    return {data, static_cast<std::size_t>(size)};
}

} // namespace bench
} // namespace tovangl
