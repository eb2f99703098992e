// SPDX-License-Identifier: MIT
// Draws one chart again and again and prints how long each round took.
#include "support/timed_rounds.h"

#include <chrono>
#include <cstdio>
#include <fstream>
#include <vector>

namespace tovangl {
namespace bench {

namespace {

double timeOfDay()
{
    const auto sinceEpoch = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration<double>(sinceEpoch).count();
}

void writePicture(const std::string& path, const CPictureBytes& png)
{
    if (png.size == 0)
        return;
    std::ofstream file(path, std::ios::binary);
    file.write(static_cast<const char*>(png.data), static_cast<std::streamsize>(png.size));
}

} // namespace

int timeRounds(int count, char** arguments, const DrawRound& draw)
{
    using Clock = std::chrono::steady_clock;
    const CChartCase chart = readChartCase(count, arguments);
    const long rounds = numberArgument(count, arguments, kCaseArguments);
    const std::string picture = kCaseArguments + 1 < count ? arguments[kCaseArguments + 1] : "";

    double firstDone = 0;
    std::vector<double> times;
    CPictureBytes png;
    for (long round = 0; round < rounds; ++round) {
        const Clock::time_point start = Clock::now();
        png = draw(chart, picture);
        const std::chrono::duration<double, std::milli> time = Clock::now() - start;
        if (round == 0)
            firstDone = timeOfDay();
        times.push_back(time.count());
    }

    writePicture(picture, png);
    std::printf("first %.6f\n", firstDone);
    for (const double time : times)
        std::printf("%.4f\n", time);
    return 0;
}

} // namespace bench
} // namespace tovangl
