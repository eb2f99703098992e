// SPDX-License-Identifier: MIT
// Which labels of a crowded axis are kept.
#include "layout/label_thinning.h"

namespace tovangl {

std::int64_t findThinningStep(const CLabelRun& labels, const DistanceTest& isFarEnough)
{
    if (labels.room >= labels.pitch * labels.count)
        return 1;
    for (std::int64_t step = 1; step <= labels.count; ++step) {
        const std::int64_t kept = (labels.count + step - 1) / step;
        if (kept * labels.pitch <= labels.room && isFarEnough(static_cast<int>(step)))
            return step;
    }
    return labels.count + 1;
}

bool isLabelKept(std::int64_t index, std::int64_t count, std::int64_t step)
{
    // Deliberate: counting starts at the end, so that the greatest value or the last category keeps
    // its label.
    return (count - 1 - index) % step == 0;
}

} // namespace tovangl
