// SPDX-License-Identifier: MIT
// Times this library's charts, from items to PNG bytes. After the arguments of every measuring
// program it takes the compression: "fast", or none for the default.
#include "programs/draw_chart.h"
#include "support/timed_rounds.h"

#include <memory>

int main(int count, char** arguments)
{
    using namespace tovangl;
    constexpr int kSettingPlace = bench::kCaseArguments + 2;
    const Compression compression = bench::compressionArgument(count, arguments, kSettingPlace);
    std::unique_ptr<Graph> graph;
    const auto draw = [&graph, compression](const bench::CChartCase& chart, const std::string&) {
        graph = bench::makeChart(chart);
        graph->setCompression(compression);
        return bench::drawChart(*graph, chart);
    };
    return bench::timeRounds(count, arguments, draw);
}
