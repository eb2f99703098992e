// SPDX-License-Identifier: MIT
// Draws a described chart and tells its layout.
#include "layout/drawn_chart.h"

#include "chart/CBarBase.h"
#include "chart/CPieGraph.h"
#include "layout/CDump.h"
#include "layout/CTextRecorder.h"
#include "layout/layout_dump.h"
#include "paint/CCanvas.h"

#include <algorithm>

namespace tovangl {

namespace {

CItemSelection selectItems(const CPieInput& input)
{
    return selectSlices(input.items, input.settings.threshold);
}

CItemSelection selectItems(const CBarInput& input)
{
    return selectBars(input.items, input.settings.threshold);
}

// The items that the layout tells of: those of the chart, and the one that gathers others.
template <typename Input>
Input withOthers(Input input)
{
    if (const auto others = input.gatherOthers(selectItems(input).leftOut))
        input.items.push_back(*others);
    return input;
}

// Paints the layout once more, onto a device that records texts.
template <typename Chart>
std::string layoutText(const Chart& chart, const QSize& size, std::optional<int> printFactor)
{
    const int scale = printFactor ? std::max(*printFactor, 1) : chart.input().settings.scale;
    const OutputDevice device = printFactor ? OutputDevice::Printer : OutputDevice::Screen;
    CTextRecorder recorder(size);
    CCanvas(recorder, chart.input().settings, {size.width(), size.height(), scale, device})
        .paint(chart.layout());

    CDump dump;
    dump.line("picture").number(size.width()).number(size.height());
    dump.word("scale").number(scale).flag("for print", printFactor.has_value());
    dumpLayout(chart.layout(), withOthers(chart.input()), dump);
    dumpTexts(recorder.texts(), dump);
    return dump.text();
}

template <typename Chart>
CDrawnChart drawAs(const CChartFile& file)
{
    Chart chart(file.background);
    for (const CChartFile::CItem& item : file.items)
        chart.input().addItem(item.value, item.text, item.color, QColor());
    for (const CChartFile::CSetting& setting : file.settings) {
        const std::string problem = chart.setByName(setting.name, setting.value);
        if (!problem.empty())
            throw std::runtime_error(setting.name + ": " + problem);
    }
    const int width = file.size.width();
    const int height = file.size.height();
    const QImage image = file.printFactor
                             ? chart.getImageForPrinter(width, height, *file.printFactor)
                             : chart.getImage(width, height);
    return {image, layoutText(chart, image.size(), file.printFactor)};
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
