// SPDX-License-Identifier: MIT
/// @file
/// Which labels of a crowded axis are kept.
#ifndef TOVANGL_LAYOUT_LABEL_THINNING_H
#define TOVANGL_LAYOUT_LABEL_THINNING_H

#include <cstdint>
#include <functional>

namespace tovangl {

/// What thinning needs to know about the labels of an axis.
struct CLabelRun
{
    std::int64_t count = 0;
    std::int64_t pitch = 0; ///< pixels along the axis that one label takes
    std::int64_t room = 0;  ///< pixels for the labels of all rows
};

/// Tells whether labels this many places apart are far enough from each other.
using DistanceTest = std::function<bool(int)>;

/// Finds the smallest step for which every step-th label has room.
///
/// @return 1 where nothing is hidden; count + 1 where only one label can stay
[[nodiscard]] std::int64_t findThinningStep(const CLabelRun& labels,
                                            const DistanceTest& isFarEnough);

/// Whether a label is kept: the last one, and every step-th before it.
[[nodiscard]] bool isLabelKept(std::int64_t index, std::int64_t count, std::int64_t step);

} // namespace tovangl

#endif
