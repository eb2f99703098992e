// SPDX-License-Identifier: MIT
// The command line: one command a chart.
#include "tovangl-chart/command_line.h"

#include "common/CFailure.h"
#include "common/text_checks.h"

#include <iostream>

namespace tovangl::program {

namespace {

constexpr const char* kDescription = "Draws a chart of numbers as a PNG picture.";

constexpr const char* kTeaching =
    R"(Input: one item a line: a whole number, white space, a caption. A colour (#rrggbb)
may follow behind a tab.

  1200 Rent
  430  Food	#d04030

Examples:
  du -b -d1 /usr | tovangl-chart pie -o usr.png
  tovangl-chart bars sales.txt --value-title Euros -o sales.png
  sort -n sizes.txt | tovangl-chart hbars --size 600x900 >sizes.png

Each chart has its own help: tovangl-chart pie --help)";

constexpr std::size_t kOptionColumn = 30; // characters

/// CLI11 may write several lines; the first says what is wrong.
CFailure usageFailure(const CLI::ParseError& error, const char* program)
{
    const std::string message = error.what();
    return CFailure(makePrintable(message.substr(0, message.find('\n'))) + " (see " + program +
                    " --help)");
}

void describe(CLI::App& program, const char* version)
{
    program.name("tovangl-chart");
    program.get_formatter()->column_width(kOptionColumn);
    program.set_version_flag("--version", std::string("tovangl-chart ") + version);
    program.footer(kTeaching);
    program.require_subcommand(1);
}

} // namespace

CLI::App* addChartCommand(CLI::App& program, const char* name, const char* description,
                          const char* examples)
{
    CLI::App* command = program.add_subcommand(name, description);
    command->footer(examples);
    return command;
}

void runCommandLine(int count, const char* const* arguments, const char* version)
{
    CLI::App program(kDescription);
    describe(program, version);
    addPieCommand(program);
    addBarsCommand(program);
    addHbarsCommand(program);
    try {
        program.parse(count, arguments);
    } catch (const CLI::CallForHelp&) {
        std::cout << program.help();
    } catch (const CLI::CallForVersion& request) {
        std::cout << request.what() << '\n';
    } catch (const CLI::ParseError& error) {
        throw usageFailure(error, "tovangl-chart");
    }
}

} // namespace tovangl::program
