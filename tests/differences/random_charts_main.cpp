// SPDX-License-Identifier: MIT
// Draws random charts and tells, in one line a chart, what a host gets of them. It sees nothing but
// the public interface, so that it can be built against the library of another commit.
//
// random_charts [--charts N] [--seed-fault pixel|rectangle|description|setting|crash|exit]
// random_charts --show NUMBER [FOLDER]: one chart in full, its pictures into FOLDER
#include "differences/CHash.h"
#include "differences/batch_run.h"
#include "differences/random_chart.h"
#include "support/harness_options.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>

namespace tovangl {
namespace {

constexpr unsigned kCharts = 3000;
constexpr unsigned kSeededChart = 17; // the one that a seeded fault changes

SeededFault faultOf(const std::string& name)
{
    if (name == "pixel")
        return SeededFault::Pixel;
    if (name == "rectangle")
        return SeededFault::Rectangle;
    if (name == "description")
        return SeededFault::Description;
    return name == "setting" ? SeededFault::Setting : SeededFault::None;
}

std::string hashText(const std::string& text)
{
    CHash hash;
    hash.addText(text);
    constexpr std::size_t kHexDigits = 16;
    char digits[kHexDigits + 1];
    std::snprintf(digits, sizeof digits, "%016llx", static_cast<unsigned long long>(hash.value()));
    return digits;
}

// At once, or when the process leaves.
void seedEnding(const std::string& fault)
{
    if (fault == "crash")
        std::abort();
    constexpr int kSeededExit = 3;
    if (fault == "exit")
        (void)std::atexit([] { std::_Exit(kSeededExit); });
}

std::string drawLine(unsigned number, const CHarnessOptions& options)
{
    const bool isSeeded = number == kSeededChart;
    if (isSeeded)
        seedEnding(options.seededFault);
    const CChartRecord record =
        drawRandomChart(number, "", isSeeded ? faultOf(options.seededFault) : SeededFault::None);
    return hashText(record.pixels) + '\t' + hashText(record.rectangles) + '\t' +
           hashText(record.descriptions) + '\t' + hashText(record.settings);
}

void printReport(const CCaseReport& report)
{
    std::printf("%u\t%s\t%s\t%s\n", report.number, nameRandomChart(report.number),
                report.ending.c_str(), report.record.c_str());
}

int drawAll(const CHarnessOptions& options)
{
    runInBatches(
        0, options.charts, [&](unsigned number) { return drawLine(number, options); }, printReport);
    return EXIT_SUCCESS;
}

int showOne(unsigned number, const std::string& folder)
{
    const CChartRecord record = drawRandomChart(number, folder, SeededFault::None);
    std::printf("%s\n-- pixels\n%s-- rectangles\n%s-- descriptions\n%s-- settings\n%s",
                nameRandomChart(number), record.pixels.c_str(), record.rectangles.c_str(),
                record.descriptions.c_str(), record.settings.c_str());
    return EXIT_SUCCESS;
}

int runRandomCharts(int count, char** arguments)
{
    // The numbers of charts that set no locale would follow the caller's.
    ::setenv("LC_ALL", "C.UTF-8", 1);
    if (count > 2 && std::strcmp(arguments[1], "--show") == 0)
        return showOne(static_cast<unsigned>(std::atoi(arguments[2])),
                       count > 3 ? arguments[3] : "");
    return drawAll(parseHarnessOptions(count, arguments, kCharts));
}

} // namespace
} // namespace tovangl

int main(int count, char** arguments)
{
    try {
        return tovangl::runRandomCharts(count, arguments);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "random_charts: %s\n", failure.what());
        return EXIT_FAILURE;
    }
}
