// SPDX-License-Identifier: MIT
// tovangl-chart bars
#include "tovangl-chart/bar_run.h"
#include "tovangl-chart/command_line.h"
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

} // namespace

void addBarsCommand(CLI::App& program)
{
    static const std::string teaching = std::string(kExamples) + kAxisTeaching;
    const auto options = std::make_shared<CommonOptions>();
    CLI::App& command = addChartCommand(program, kName, kDescription, teaching.c_str(), [options] {
        runBarChart<VerticalBarGraph>(kName, *options);
    });
    addOptions(command, Setting::VerticalBars, *options);
}

} // namespace tovangl::program
