// SPDX-License-Identifier: MIT
// How every program reads its arguments.
#include "common/program_arguments.h"

#include "common/CFailure.h"
#include "common/text_checks.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <algorithm>
#include <iostream>

namespace tovangl::program {

namespace {

constexpr std::size_t kOptionColumn = 30; // characters

bool hasOptionWithValue(const CLI::App& program, const std::string& name)
{
    const CLI::Option* option = program.get_option_no_throw(name);
    return option && option->get_items_expected_max() > 0;
}

/// Whether the argument is "--name=" of an option that takes a value.
bool isEmptyValue(const CLI::App& program, const std::string& argument)
{
    if (argument.rfind("--", 0) != 0 || argument.find('=') != argument.size() - 1)
        return false;
    const std::string name = argument.substr(0, argument.size() - 1);
    const auto commands = program.get_subcommands([](const CLI::App* /*command*/) { return true; });
    return hasOptionWithValue(program, name) ||
           std::any_of(commands.begin(), commands.end(), [&name](const CLI::App* command) {
               return hasOptionWithValue(*command, name);
           });
}

/// In reverse order, as CLI11 takes them. It would take what follows "--name=" for the value, such
/// as the next option where a script's variable is empty: here the empty value is an argument.
std::vector<std::string> separateValues(const CLI::App& program, int count,
                                        const char* const* arguments)
{
    std::vector<std::string> separated;
    bool areOptionsOver = false;
    for (int i = 1; i < count; ++i) {
        separated.emplace_back(arguments[i]);
        areOptionsOver |= separated.back() == "--";
        if (!areOptionsOver && isEmptyValue(program, separated.back())) {
            separated.back().pop_back();
            separated.emplace_back();
        }
    }
    std::reverse(separated.begin(), separated.end());
    return separated;
}

/// CLI11 can write several lines; the first says what is wrong.
CFailure usageFailure(const CLI::ParseError& error, const std::string& program)
{
    const std::string message = error.what();
    return CFailure(makePrintable(message.substr(0, message.find('\n'))) + " (see " + program +
                    " --help)");
}

} // namespace

bool parseArguments(CLI::App& program, int count, const char* const* arguments)
{
    try {
        program.parse(separateValues(program, count, arguments));
        return true;
    } catch (const CLI::CallForHelp&) {
        std::cout << program.help();
    } catch (const CLI::CallForVersion& request) {
        std::cout << request.what() << '\n';
    } catch (const CLI::ParseError& error) {
        throw usageFailure(error, program.get_name());
    }
    return false;
}

void describeProgram(CLI::App& program, const char* name, const char* version, const char* teaching)
{
    program.name(name);
    program.get_formatter()->column_width(kOptionColumn);
    program.set_version_flag("--version", std::string(name) + ' ' + version);
    program.footer(teaching);
}

void addFontFileOption(CLI::App& program, std::vector<std::string>& files)
{
    program
        .add_option("--font-file", files,
                    "Use the font in this TTF or OTF file, installed or not; can be repeated")
        ->type_name("FILE")
        ->allow_extra_args(false) // what follows the file is not another one
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
}

} // namespace tovangl::program
