// SPDX-License-Identifier: MIT
// The options that say how to read a CSV file.
#include "tovangl-chart/csv_options.h"

#include "tovangl-chart/option_adding.h"

namespace tovangl::program {

void addCsvOptions(CLI::App& command, ItemSource& source)
{
    CLI::Option* csv = command.add_flag("--csv", source.csv,
                                        "Read comma-separated values whose first line is a header");
    const auto addColumn = [&](const char* name, std::optional<std::string>& column,
                               const char* help) {
        addOption(command, name, column, parseText, help)->type_name("COLUMN")->needs(csv);
    };
    CsvColumns& columns = source.columns;
    addColumn("--caption", columns.caption,
              "Column of the captions, by name or number [the first that is free]");
    addColumn("--value", columns.value, "Column of the numbers [the next that is free]");
    addColumn("--color", columns.color, "Column of the colours (#rrggbb or nothing)");
}

} // namespace tovangl::program
