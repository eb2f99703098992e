// SPDX-License-Identifier: MIT
/// @file
/// Which labels of a crowded axis stay.
#ifndef TOVANGL_AXES_LABEL_THINNING_H
#define TOVANGL_AXES_LABEL_THINNING_H

#include <cstdint>
#include <functional>

namespace tovangl {

/// The labels of an axis, as far as thinning depends on them.
struct CLabelRun
{
    std::int64_t count = 0;
    std::int64_t pitch = 0; ///< pixels along the axis that one label takes
    std::int64_t room = 0;  ///< pixels for the labels of all rows
};

/// Tells whether the first label stands far enough from the one that many places later.
using DistanceTest = std::function<bool(int)>;

/// Finds the smallest step for which every step-th label has room.
///
/// @return 1 where nothing is hidden; count + 1 where only one label can stay
[[nodiscard]] std::int64_t findThinningStep(const CLabelRun& labels,
                                            const DistanceTest& isFarEnough);

/// Whether a label stays: the last one, and every step-th before it.
[[nodiscard]] bool isLabelKept(std::int64_t index, std::int64_t count, std::int64_t step);

} // namespace tovangl

#endif
