// SPDX-License-Identifier: MIT
// tovangl-chart hbars
#include "tovangl-chart/bar_run.h"
#include "tovangl-chart/command_line.h"
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

} // namespace

void addHbarsCommand(CLI::App& program)
{
    static const std::string teaching = std::string(kExamples) + kAxisTeaching;
    const auto options = std::make_shared<CommonOptions>();
    CLI::App& command = addChartCommand(program, kName, kDescription, teaching.c_str(), [options] {
        runBarChart<HorizontalBarGraph>(kName, *options);
    });
    addOptions(command, Setting::HorizontalBars, *options);
}

} // namespace tovangl::program
