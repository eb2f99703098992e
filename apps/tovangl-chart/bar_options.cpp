// SPDX-License-Identifier: MIT
// The options that both bar charts have.
#include "tovangl-chart/bar_options.h"

namespace tovangl::program {

int AxisOptions::propertiesOr(int defaults) const
{
    return properties.value_or(defaults) | (title ? AxisProperty::ShowTitle : 0);
}

void addAxisOptions(CLI::App& command, const std::string& name, AxisOptions& options)
{
    addOption(command, "--" + name + "-title", options.title, parseText,
              "Title of the " + name + " axis")
        ->type_name("TEXT");
    addOption(command, "--" + name + "-axis", options.properties, parseAxisProperties,
              "What the " + name + " axis shows, see below")
        ->type_name("NAME,...");
}

void addBarOptions(CLI::App& command, BarOptions& options)
{
    addAxisOptions(command, "category", options.categoryAxis);
    addOption(command, "--bar-width", options.barWidth, parseWhole,
              "Width of every bar; 0 lets them share the axis [0]")
        ->type_name("PIXELS");
    addOption(command, "--position", options.position, parsePosition,
              "Where the axes cross; -1 leaves it to the layout [-1,-1]")
        ->type_name("X,Y");
    addOption(command, "--text-color", options.textColor, parseColor, "Axes, captions and numbers")
        ->type_name("#RRGGBB");
}

} // namespace tovangl::program
