// SPDX-License-Identifier: MIT
// How far a batch has come.
#include "tovangl-chart/batch_progress.h"

namespace tovangl::program {

namespace {

constexpr long kMinute = 60; // seconds
constexpr long kHour = 60 * kMinute;

std::string twoDigits(long number)
{
    return (number < 10 ? "0" : "") + std::to_string(number);
}

// 2:05, or 1:02:05
std::string clockText(long seconds)
{
    const std::string rest = seconds < kHour ? std::to_string(seconds / kMinute)
                                             : std::to_string(seconds / kHour) + ':' +
                                                   twoDigits(seconds % kHour / kMinute);
    return rest + ':' + twoDigits(seconds % kMinute);
}

std::string plural(std::size_t count, const char* noun)
{
    return std::to_string(count) + ' ' + noun + (count == 1 ? "" : "s");
}

std::string timeLeft(const BatchCounts& counts, double seconds, std::uintmax_t size)
{
    const double share = static_cast<double>(counts.end) / static_cast<double>(size);
    return ", " + clockText(static_cast<long>(seconds / share - seconds)) + " left";
}

} // namespace

std::string progressText(const BatchCounts& counts, std::chrono::duration<double> time,
                         std::optional<std::uintmax_t> size)
{
    const double seconds = time.count();
    std::string text = plural(counts.charts, "chart");
    if (seconds > 0)
        text += ", " +
                std::to_string(static_cast<long>(static_cast<double>(counts.charts) / seconds)) +
                " a second";
    if (counts.passedOver > 0)
        text += ", " + std::to_string(counts.passedOver) + " there already";
    text += ", " + plural(counts.errors, "error");
    if (size && counts.end > 0 && counts.end <= *size)
        text += timeLeft(counts, seconds, *size);
    return text;
}

} // namespace tovangl::program
