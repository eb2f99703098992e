// SPDX-License-Identifier: MIT
// Times this library's charts, from items to PNG bytes.
#include "programs/draw_chart.h"
#include "support/timed_rounds.h"

#include <memory>

int main(int count, char** arguments)
{
    using namespace tovangl;
    std::unique_ptr<Graph> graph;
    const auto draw = [&graph](const bench::CChartCase& chart, const std::string&) {
        graph = bench::makeChart(chart);
        return bench::drawChart(*graph, chart);
    };
    return bench::timeRounds(count, arguments, draw);
}
