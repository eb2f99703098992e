// SPDX-License-Identifier: MIT
// Lets callgrind count the instructions of warm charts only: run it with --collect-atstart=no.
// Arguments: those of a case, ROUNDS, the number of charts counted, and the compression ("fast", or
// none for the default).
#include "programs/draw_chart.h"

#include <memory>
#include <valgrind/callgrind.h>

int main(int count, char** arguments)
{
    using namespace tovangl;
    constexpr long kWarmRounds = 2;
    const bench::CChartCase chart = bench::readChartCase(count, arguments);
    const long rounds = bench::numberArgument(count, arguments, bench::kCaseArguments);
    const Compression compression =
        bench::compressionArgument(count, arguments, bench::kCaseArguments + 1);
    for (long round = 0; round < kWarmRounds + rounds; ++round) {
        if (round == kWarmRounds)
            CALLGRIND_TOGGLE_COLLECT;
        const std::unique_ptr<Graph> graph = bench::makeChart(chart);
        graph->setCompression(compression);
        bench::drawChart(*graph, chart);
    }
    CALLGRIND_TOGGLE_COLLECT;
    return 0;
}
