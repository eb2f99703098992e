// SPDX-License-Identifier: MIT
// The command line: one command per chart.
#include "tovangl-chart/command_line.h"

#include "common/program_arguments.h"
#include <tovangl/Compression.h>

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <cstdlib>
#include <utility>

namespace tovangl::program {

namespace {

constexpr const char* kDescription = "Draws a chart of numbers as a PNG picture.";

constexpr const char* kTeaching =
    R"(Input: one item per line: a whole number, white space, a caption. A colour (#rrggbb)
can follow after a tab. Empty lines and lines that begin with "# " are passed over.

  1200 Rent
  430  Food	#d04030

Examples:
  du -b -d1 /usr | tovangl-chart pie -o usr.png
  tovangl-chart bars sales.txt --value-title Euros -o sales.png
  sort -n sizes.txt | tovangl-chart hbars --size 600x900 >sizes.png
  du -b -d1 /usr | tovangl-chart pie --map usr.html
  psql --csv -c 'SELECT relname, relpages FROM pg_class' | tovangl-chart pie --csv -o t.png
  tovangl-chart bars --csv --caption Month --value 'Net sales' sales.csv -o sales.png

Each chart has its own help: tovangl-chart pie --help
Many charts at once: tovangl-chart batch --help
If charts look wrong or cannot be drawn: tovangl-chart doctor)";

} // namespace

CLI::App& addChartCommand(CLI::App& program, const char* name, const char* description,
                          const char* examples, std::function<void()> run)
{
    CLI::App& command = *program.add_subcommand(name, description);
    command.footer(examples);
    command.callback(std::move(run));
    return command;
}

int runCommandLine(int count, const char* const* arguments, const char* version)
{
    CLI::App program(kDescription);
    const std::string whatRuns =
        version + std::string("\n--fast compresses with ") + fastCompressor();
    describeProgram(program, "tovangl-chart", whatRuns.c_str(), kTeaching);
    program.require_subcommand(1);
    addPieCommand(program);
    addBarsCommand(program);
    addHbarsCommand(program);
    int status = EXIT_SUCCESS;
    addBatchCommand(program, status);
    addDoctorCommand(program, status);
    parseArguments(program, count, arguments);
    return status;
}

} // namespace tovangl::program
