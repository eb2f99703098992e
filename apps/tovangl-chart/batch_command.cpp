// SPDX-License-Identifier: MIT
// tovangl-chart batch
#include "common/font_files.h"
#include "common/interruption.h"
#include "common/output_files.h"
#include "common/program_arguments.h"
#include "tovangl-chart/CBatchRun.h"
#include "tovangl-chart/batch_sinks.h"
#include "tovangl-chart/command_line.h"
#include "tovangl-chart/option_adding.h"

#include <cstdlib>
#include <memory>
#include <sched.h>
#include <thread>

namespace tovangl::program {

namespace {

constexpr const char* kName = "batch";
constexpr const char* kStandardInput = "-";
constexpr const char* kDescription = "Many charts, each described by one line of JSON";

constexpr const char* kExamples =
    R"(Each line is one chart:
  {"chart": "bars", "id": "may", "items": [{"value": 1200, "caption": "Rent"}], "title": "May"}

chart is pie, bars or hbars; id names the files; width, height and print are whole numbers. An item
has a value, and may have a caption, a color, an outline and a link. Every setting is a key, as in the
table of settings. A line that is no chart gives a record on standard error, the others are drawn, and
the exit status is 1.

Examples:
  tovangl-chart batch charts.jsonl -o pictures
  zcat charts.jsonl.gz | tovangl-chart batch --tar - | ssh server tar -x -C /srv/pictures
  tovangl-chart batch charts.jsonl -o pictures --maps --resume
  tovangl-chart batch charts.jsonl -o pages --format svg
  tovangl-chart batch --frames    (for a host that writes lines and reads pictures over pipes))";

constexpr int kExitErrors = 1;
constexpr int kMostJobs = 1024;
constexpr std::size_t kLongestLine = std::size_t{16} << 20; // bytes

struct BatchOptions
{
    std::string input = kStandardInput;
    std::optional<std::string> folder;
    std::optional<std::string> tar;
    PictureFormat format = PictureFormat::Png;
    bool isFramed = false;
    bool hasMaps = false;
    bool isResumed = false;
    std::optional<std::string> errors;
    int jobs = 0; // as many as there are processors
    std::size_t longestLine = kLongestLine;
    std::vector<std::string> fontFiles;
};

// Those that the process may use.
int processorCount()
{
    cpu_set_t processors;
    if (::sched_getaffinity(0, sizeof processors, &processors) == 0)
        return CPU_COUNT(&processors);
    return std::max(1, static_cast<int>(std::thread::hardware_concurrency()));
}

int parseJobs(const std::string& text)
{
    const int jobs = parseWhole(text);
    if (jobs < 1 || jobs > kMostJobs)
        throw CFailure(text + " is not a number from 1 to " + std::to_string(kMostJobs));
    return jobs;
}

std::size_t parseBytes(const std::string& text)
{
    const int bytes = parseWhole(text);
    if (bytes < 1)
        throw CFailure(text + " is not a number of bytes");
    return static_cast<std::size_t>(bytes);
}

void addOutputOptions(CLI::App& command, BatchOptions& options)
{
    CLI::Option* folder = addOption(command, "-o,--output", options.folder, parsePath,
                                    "Write a picture for each id into this folder")
                              ->type_name("DIR");
    CLI::Option* tar =
        addFileOption(command, "--tar", options.tar,
                      "Write the pictures into one tar archive; - is standard output")
            ->excludes(folder);
    CLI::Option* frames = command.add_flag(
        "--frames", options.isFramed, "Answer each line at once: a line of JSON and the picture");
    frames->excludes(folder)->excludes(tar);
    addFormatOption(command, options.format, "Format of the pictures: png, svg or pdf [png]");
    command
        .add_flag("--maps", options.hasMaps,
                  "Write beside each picture, as JSON, where each item was drawn")
        ->excludes(frames);
    command.add_flag("--resume", options.isResumed, "Pass over charts whose files are there")
        ->needs(folder);
}

void addRunOptions(CLI::App& command, BatchOptions& options)
{
    addFileOption(command, "--errors", options.errors,
                  "Write the records of lines without a picture here; - is standard output");
    addOption(command, "--jobs", options.jobs, parseJobs,
              "Threads that draw; by default as many as there are processors")
        ->type_name("N");
    addOption(command, "--longest-line", options.longestLine, parseBytes,
              "Refuse longer lines [16777216]")
        ->type_name("BYTES");
    addFontFileOption(command, options.fontFiles);
}

std::unique_ptr<CBatchSink> makeSink(const BatchOptions& options, AnswerRules& rules)
{
    if (options.isFramed)
        return std::make_unique<CFrameSink>();
    if (options.tar)
        return makeTarSink(*options.tar, options.format);
    auto folder = std::make_unique<CFolderSink>(*options.folder, options.format);
    if (options.isResumed)
        rules.isThere = [&sink = *folder, map = rules.map](const std::string& id) {
            return sink.has(id, map);
        };
    return folder;
}

AnswerRules rulesOf(const BatchOptions& options)
{
    AnswerRules rules;
    const std::vector<std::string> families = addFontFiles(options.fontFiles);
    if (!families.empty())
        rules.family = families.front();
    rules.format = options.format;
    if (options.isFramed)
        rules.map = MapForm::Line;
    else if (options.hasMaps)
        rules.map = MapForm::File;
    rules.needsId = !options.isFramed;
    rules.longestLine = options.longestLine;
    return rules;
}

void checkPlaces(const BatchOptions& options)
{
    if (!options.folder && !options.tar && !options.isFramed)
        throw CFailure("say where the pictures go: -o DIR, --tar FILE or --frames");
    if (!options.errors)
        return;
    const std::string pictures = options.isFramed ? kStandardOutput : options.tar.value_or("");
    if (!pictures.empty() && isSamePlace(*options.errors, pictures))
        throw CFailure("the pictures and the records of --errors cannot go to one place");
    if (options.input != kStandardInput && isSamePlace(*options.errors, options.input))
        throw CFailure("the records of --errors would replace the charts that they are about");
}

int runBatch(const BatchOptions& options)
{
    checkPlaces(options);
    AnswerRules rules = rulesOf(options);
    CBoundedLines lines(options.input, options.longestLine);
    const std::unique_ptr<CBatchSink> sink = makeSink(options, rules);
    // A host that reads frames has the reason in the header, and may never read standard error.
    std::optional<CErrorRecords> records;
    if (options.errors || !options.isFramed)
        records.emplace(options.errors);
    noteInterruptions();
    CBatchRun run(lines, rules, *sink, records ? &*records : nullptr,
                  options.jobs > 0 ? options.jobs : processorCount());
    return run.run().errors > 0 ? kExitErrors : EXIT_SUCCESS;
}

} // namespace

void addBatchCommand(CLI::App& program, int& status)
{
    const auto options = std::make_shared<BatchOptions>();
    CLI::App& command = addChartCommand(program, kName, kDescription, kExamples,
                                        [options, &status] { status = runBatch(*options); });
    addInput(command, options->input, "Charts, one per line; without it, standard input");
    addOutputOptions(command, *options);
    addRunOptions(command, *options);
}

} // namespace tovangl::program
