// SPDX-License-Identifier: MIT
// Times this library's charts, from items to the bytes of a file. After the arguments of every
// measuring program it takes a setting: "fast" for that compression, "svg" or "pdf", or none for a
// PNG picture with the default compression.
#include "programs/draw_chart.h"
#include "support/timed_rounds.h"

#include <memory>

int main(int count, char** arguments)
{
    using namespace tovangl;
    constexpr int kSettingPlace = bench::kCaseArguments + 2;
    const Compression compression = bench::compressionArgument(count, arguments, kSettingPlace);
    const bench::PictureForm form = bench::formArgument(count, arguments, kSettingPlace);
    std::unique_ptr<Graph> graph;
    const auto draw = [&graph, compression, form](const bench::CChartCase& chart,
                                                  const std::string&) {
        graph = bench::makeChart(chart);
        graph->setCompression(compression);
        return bench::drawChart(*graph, chart, form);
    };
    return bench::timeRounds(count, arguments, draw);
}
