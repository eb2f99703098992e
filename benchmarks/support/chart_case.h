// SPDX-License-Identifier: MIT
/// @file
/// The chart that a measuring program draws, read from its command line.
#ifndef TOVANGL_BENCHMARKS_SUPPORT_CHART_CASE_H
#define TOVANGL_BENCHMARKS_SUPPORT_CHART_CASE_H

#include <string>
#include <vector>

namespace tovangl {
namespace bench {

enum ChartKind
{
    Bars,      ///< upright bars with a value scale and grid lines
    LyingBars, ///< lying bars with their values beside them
    Pie        ///< slices with captions and sizes in MB around them
};

struct CCaseItem
{
    long value = 0;
    std::string caption; // UTF-8
};

/// What to draw. The scale of every upright bar case runs from 0 to 800 in steps of 200.
struct CChartCase
{
    ChartKind kind = Bars;
    std::vector<CCaseItem> items;
    int width = 0;  // pixels before the factor
    int height = 0; // likewise
    int factor = 1; // 1 on screen; the resolution of a picture for print
};

/// Reads a case from the arguments that every measuring program begins with:
/// KIND (bars, hbars or pie), DATA (a file of lines "value<TAB>caption"), WIDTH, HEIGHT and FACTOR.
/// Ends the process with a message where they make no case.
[[nodiscard]] CChartCase readChartCase(int count, char** arguments);

/// How many arguments readChartCase() reads, the program's name included.
inline constexpr int kCaseArguments = 6;

/// The argument at that place as a whole number; ends the process where there is none.
[[nodiscard]] long numberArgument(int count, char** arguments, int place);

} // namespace bench
} // namespace tovangl

#endif
