// SPDX-License-Identifier: MIT
/// @file
/// The look that the peers take over from this library's charts.
#ifndef TOVANGL_BENCHMARKS_PEERS_PALETTE_H
#define TOVANGL_BENCHMARKS_PEERS_PALETTE_H

#include "support/chart_case.h"

namespace tovangl {
namespace bench {

struct CRgb
{
    int red, green, blue;
};

inline constexpr int kColors = 6;
inline constexpr CRgb kFill[kColors] = {{23, 52, 124},  {91, 115, 176},  {174, 191, 234},
                                        {254, 102, 13}, {254, 184, 109}, {255, 226, 182}};
inline constexpr CRgb kOutline[kColors] = {{15, 34, 82}, {60, 76, 117},  {116, 127, 156},
                                           {169, 68, 8}, {169, 122, 72}, {170, 150, 121}};
inline constexpr CRgb kGrid = {179, 190, 204};

inline constexpr const char* kFontFamily = "DejaVu Sans";
inline constexpr int kFontPixels = 11;

inline constexpr int kScaleEnd = 800;
inline constexpr int kScaleStep = 200;
inline constexpr double kBarWidth = 0.7; // of the distance between two bars

inline constexpr int kLyingScaleEnd = 828; // leaves room for the value of the longest bar, 780
inline constexpr int kValueGap = 10;       // pixels between a lying bar and its value

/// Captions stand upright below a hundred bars.
[[nodiscard]] inline bool areCaptionsTurned(const CChartCase& chart)
{
    constexpr std::size_t kMostLevelCaptions = 20;
    return chart.items.size() > kMostLevelCaptions;
}

} // namespace bench
} // namespace tovangl

#endif
