// SPDX-License-Identifier: MIT
/// @file
/// Draws one chart again and again and prints how long each round took.
#ifndef TOVANGL_BENCHMARKS_SUPPORT_TIMED_ROUNDS_H
#define TOVANGL_BENCHMARKS_SUPPORT_TIMED_ROUNDS_H

#include "support/chart_case.h"

#include <cstddef>
#include <functional>
#include <string>

namespace tovangl {
namespace bench {

/// The bytes of a picture's file, which live until the next round. Empty where the round wrote the
/// file itself.
struct CPictureBytes
{
    const void* data = nullptr;
    std::size_t size = 0;
};

/// Builds the chart from its items, draws it and encodes it; the second argument is the file of the
/// picture, for libraries that can only write to one.
using DrawRound = std::function<CPictureBytes(const CChartCase&, const std::string&)>;

/// The main() of a measuring program. After the case (see readChartCase()) its arguments are ROUNDS
/// and PICTURE, the file that the last picture goes to. It prints "first SECONDS", the time of day
/// when the first chart was done, and then each round's milliseconds, one a line.
int timeRounds(int count, char** arguments, const DrawRound& draw);

} // namespace bench
} // namespace tovangl

#endif
