// SPDX-License-Identifier: MIT
// tovangl-chart hbars
#include "tovangl-chart/bar_options.h"
#include "tovangl-chart/chart_run.h"
#include "tovangl-chart/command_line.h"
#include "tovangl-chart/item_lines.h"
#include <tovangl/HorizontalBarGraph.h>

#include <memory>

namespace tovangl::program {

namespace {

constexpr const char* kName = "hbars";
constexpr const char* kDescription = "Horizontal bars, each with its value";

constexpr const char* kExamples =
    R"(Examples:
  du -b -d1 /var | sort -n | tovangl-chart hbars -o var.png
  tovangl-chart hbars --locale de_AT --threshold 1 votes.txt -o votes.png
  tovangl-chart hbars --category-axis line,labels,bold-labels n.txt -o n.png --map n.json

After the caption a line can have a fill colour and an outline colour, each after a tab.
)";

void applyAxis(HorizontalBarGraph& chart, const AxisOptions& axis)
{
    if (axis.isGiven())
        chart.setVerticalAxis(axis.propertiesOr(kDefaultCategoryAxis), axis.title.value_or(""));
}

void runHbars(const BarOptions& options)
{
    checkOutputs(options.common);
    const ChartItems items = readItems(options.common.input, LineColors::FillAndOutline);
    HorizontalBarGraph chart(options.common.background);
    applyAxis(chart, options.categoryAxis);
    applyBarOptions(chart, items, options);
    const std::string_view picture = renderPicture(chart, options.common);
    const ChartRegions regions = captionAndBarRegions(chart, kName, options.common);
    writeChart(picture, items, regions, options.common);
    tellProblem(chart, options.common);
}

} // namespace

void addHbarsCommand(CLI::App& program)
{
    static const std::string teaching = std::string(kExamples) + kAxisTeaching;
    CLI::App* command = addChartCommand(program, kName, kDescription, teaching.c_str());
    const auto options = std::make_shared<BarOptions>();
    addCommonOptions(*command, options->common);
    addBarOptions(*command, *options);
    command->callback([options] { runHbars(*options); });
}

} // namespace tovangl::program
