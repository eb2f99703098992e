// SPDX-License-Identifier: MIT
// How every program reads its arguments.
#include "common/program_arguments.h"

#include "common/CFailure.h"
#include "common/text_checks.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <iostream>

namespace tovangl::program {

namespace {

constexpr std::size_t kOptionColumn = 30; // characters

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
        program.parse(count, arguments);
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
