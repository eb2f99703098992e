// SPDX-License-Identifier: MIT
// The command line of tovangl-du, and what it does.
#include "tovangl-du/command_line.h"

#include "common/CFailure.h"
#include "common/CProgressLine.h"
#include "common/font_files.h"
#include "common/interruption.h"
#include "common/program_arguments.h"
#include "common/text_checks.h"
#include "tovangl-du/byte_text.h"
#include "tovangl-du/report.h"
#include "tovangl-du/report_pictures.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <ctime>
#include <iostream>

namespace tovangl::program {

namespace {

constexpr const char* kDescription = "Writes pages that show what takes up the space in a folder.";

constexpr const char* kTeaching =
    R"(Every folder's page has a pie of its contents, its largest files, and its bytes by
month of last change. Slices, bars and captions link to the folder's page or to its row
in the table.

Examples:
  tovangl-du                          this folder, into ./tovangl-report
  tovangl-du /usr/share -o report     then open report/index.html
  tovangl-du / -x --depth 3           one file system, three levels of pages

Symbolic links are not followed. What cannot be read is listed and left out.)";

constexpr int kMostLevels = 1000000;
constexpr std::size_t kMostPages = 100000;

struct DiskUsageOptions
{
    WalkOptions walk;
    std::string output = "tovangl-report";
    std::vector<std::string> fontFiles;
    bool isSvg = false;
};

void addOptions(CLI::App& program, DiskUsageOptions& options)
{
    options.walk.root = ".";
    program
        .add_option("FOLDER", options.walk.root, "The folder to scan; without it, the current one")
        ->type_name("");
    program
        .add_option("-o,--output", options.output,
                    "Write the pages into this folder [tovangl-report]; an existing report is "
                    "replaced")
        ->type_name("FOLDER");
    program
        .add_option("--pages", options.walk.limits.pages,
                    "Write pages for the N largest folders at most [300]")
        ->type_name("N")
        ->check(CLI::Range(std::size_t{1}, kMostPages));
    program
        .add_option("--depth", options.walk.limits.depth,
                    "Write pages for folders down to N levels")
        ->type_name("N")
        ->check(CLI::Range(0, kMostLevels));
    program.add_flag("--svg", options.isSvg,
                     "Put the pictures into the pages as SVG, instead of PNG files");
    addFontFileOption(program, options.fontFiles);
    program.add_flag("-x,--one-file-system", options.walk.isOneFileSystem,
                     "Leave out folders on other file systems");
}

std::string walkText(const WalkProgress& progress)
{
    return formatNumberOf(progress.files, "file", "files") + ", " + formatBytes(progress.bytes) +
           ": " + progress.path;
}

WalkResult walk(const WalkOptions& options)
{
    CProgressLine line;
    return walkFolder(options, [&line](const WalkProgress& progress) {
        stopIfInterrupted();
        line.show([&progress] { return walkText(progress); });
    });
}

void tellUnreadable(const WalkResult& result)
{
    for (const UnreadablePlace& place : result.unreadable)
        std::cerr << "tovangl-du: " << makePrintable(place.path) << ": "
                  << makePrintable(place.reason) << '\n';
    const std::uint64_t all = result.folders.find(result.root)->unreadable;
    if (all > result.unreadable.size())
        std::cerr << "tovangl-du: and " << formatCount(all - result.unreadable.size())
                  << " more could not be read\n";
}

void tellLackOfLetters(const std::string& fontFamily)
{
    const std::string problem = lackOfLetters(fontFamily);
    if (!problem.empty())
        std::cerr << "tovangl-du: " << problem << '\n';
}

std::size_t write(const WalkResult& result, const DiskUsageOptions& options, const ReportLook& look,
                  CStagedFolder& folder)
{
    CProgressLine line;
    return writeReport(result, options.walk.root, options.walk.now, look, folder,
                       [&line](std::size_t page) {
                           stopIfInterrupted();
                           line.show([page] { return "page " + formatCount(page); });
                       });
}

void runReport(DiskUsageOptions options)
{
    if (options.output.empty())
        throw CFailure("--output: the folder has no name");
    options.walk.now = std::time(nullptr);
    const std::vector<std::string> added = addFontFiles(options.fontFiles);
    const ReportLook look{added.empty() ? kReportFontFamily : added.front(), options.isSvg};
    noteInterruptions();
    CStagedFolder folder(options.output, isReport);
    const WalkResult result = walk(options.walk);
    const std::size_t pages = write(result, options, look, folder);
    folder.publish();
    tellUnreadable(result);
    tellLackOfLetters(look.fontFamily);
    std::cout << "Wrote " << formatNumberOf(pages, "page", "pages") << "; open "
              << makePrintable(options.output) << '/' << kFirstPage << '\n';
}

} // namespace

void runDiskUsage(int count, const char* const* arguments, const char* version)
{
    CLI::App program(kDescription);
    describeProgram(program, "tovangl-du", version, kTeaching);
    DiskUsageOptions options;
    addOptions(program, options);
    if (parseArguments(program, count, arguments))
        runReport(options);
}

} // namespace tovangl::program
