// SPDX-License-Identifier: MIT
// Lets callgrind count the instructions of warm charts only: run it with --collect-atstart=no.
// Arguments: those of a case, and ROUNDS, the number of charts counted.
#include "programs/draw_chart.h"

#include <valgrind/callgrind.h>

int main(int count, char** arguments)
{
    using namespace tovangl;
    constexpr long kWarmRounds = 2;
    const bench::CChartCase chart = bench::readChartCase(count, arguments);
    const long rounds = bench::numberArgument(count, arguments, bench::kCaseArguments);
    for (long round = 0; round < kWarmRounds + rounds; ++round) {
        if (round == kWarmRounds)
            CALLGRIND_TOGGLE_COLLECT;
        bench::drawChart(*bench::makeChart(chart), chart);
    }
    CALLGRIND_TOGGLE_COLLECT;
    return 0;
}
