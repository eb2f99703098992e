// SPDX-License-Identifier: MIT
// tovangl-chart pie
#include "tovangl-chart/chart_items.h"
#include "tovangl-chart/chart_run.h"
#include "tovangl-chart/command_line.h"

#include <memory>

namespace tovangl::program {

namespace {

constexpr const char* kName = "pie";
constexpr const char* kDescription = "A pie with caption and size beside each slice";

constexpr const char* kExamples =
    R"(Examples:
  du -b -d1 /usr | tovangl-chart pie -o usr.png
  tovangl-chart pie --threshold 2 --without-sizes --background votes.txt -o votes.png
  tovangl-chart pie --size 400x300 --print 4 sizes.txt -o page.png --map page.json
  du -b -d1 /usr | tovangl-chart pie --map usr.html      (one page, with clickable regions)

Slices run clockwise from nine o'clock. Only numbers above 0 are drawn.)";

void runPie(const CommonOptions& options)
{
    PieGraph chart(false);
    const ChartItems items = prepareChart(chart, options, LineColors::Fill);
    addItems(chart, items);
    drawChart(chart, kName, items, options,
              [&chart](ChartRegions& regions) { regions.slices = *chart.getSlice(); });
}

} // namespace

void addPieCommand(CLI::App& program)
{
    const auto options = std::make_shared<CommonOptions>();
    CLI::App& command =
        addChartCommand(program, kName, kDescription, kExamples, [options] { runPie(*options); });
    addOptions(command, Setting::Pie, *options);
}

} // namespace tovangl::program
