// SPDX-License-Identifier: MIT
// tovangl-chart bars
#include "tovangl-chart/bar_options.h"
#include "tovangl-chart/chart_run.h"
#include "tovangl-chart/command_line.h"
#include "tovangl-chart/item_lines.h"
#include <tovangl/VerticalBarGraph.h>

#include <memory>

namespace tovangl::program {

namespace {

constexpr const char* kName = "bars";
constexpr const char* kDescription = "Vertical bars, with a scale at the left";

constexpr const char* kExamples =
    R"(Examples:
  tovangl-chart bars sales.txt --value-title Euros -o sales.png
  cut -d: -f7 /etc/passwd | sort | uniq -c | tovangl-chart bars -o shells.png
  tovangl-chart bars --value-axis line,labels,bold-labels --bar-width 20 n.txt -o n.png

After the caption a line can have a fill colour and an outline colour, each after a tab.
)";

struct UprightBarOptions
{
    BarOptions bars;
    AxisOptions valueAxis;
};

void applyAxes(VerticalBarGraph& chart, const UprightBarOptions& options)
{
    const AxisOptions& category = options.bars.categoryAxis;
    if (category.isGiven())
        chart.setHorizontalAxis(category.propertiesOr(kDefaultCategoryAxis),
                                category.title.value_or(""));
    const AxisOptions& value = options.valueAxis;
    if (value.isGiven())
        chart.setVerticalAxis(value.propertiesOr(kDefaultValueAxis), value.title.value_or(""));
}

void runBars(const UprightBarOptions& options)
{
    const CommonOptions& common = options.bars.common;
    checkOutputs(common);
    const ChartItems items = readItems(common.input, LineColors::FillAndOutline);
    VerticalBarGraph chart(common.background);
    applyAxes(chart, options);
    applyBarOptions(chart, items, options.bars);
    const std::string_view picture = renderPicture(chart, common);
    const ChartRegions regions = captionAndBarRegions(chart, kName, common);
    writeChart(picture, items, regions, common);
    tellProblem(chart, common);
}

} // namespace

void addBarsCommand(CLI::App& program)
{
    static const std::string teaching = std::string(kExamples) + kAxisTeaching;
    CLI::App* command = addChartCommand(program, kName, kDescription, teaching.c_str());
    const auto options = std::make_shared<UprightBarOptions>();
    addCommonOptions(*command, options->bars.common);
    addBarOptions(*command, options->bars);
    addAxisOptions(*command, "value", options->valueAxis);
    command->callback([options] { runBars(*options); });
}

} // namespace tovangl::program
