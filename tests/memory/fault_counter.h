// SPDX-License-Identifier: MIT
/// @file
/// Decides which allocation fails.
#ifndef TOVANGL_MEMORY_FAULT_COUNTER_H
#define TOVANGL_MEMORY_FAULT_COUNTER_H

#include "memory/allocation_faults.h"

#include <atomic>

namespace tovangl {

struct CFaultCounter
{
    std::atomic<bool> isCounting{false};
    std::atomic<bool> isPersistent{false};
    std::atomic<bool> hasFailed{false};
    std::atomic<long> failing{0}; // 0: none
    std::atomic<long> counted{0};

    /// Counts an allocation, and tells whether it is to fail.
    [[nodiscard]] bool failsNext()
    {
        if (!isCounting)
            return false;
        const long number = ++counted;
        const long chosen = failing;
        if (chosen == 0 || number < chosen || (number > chosen && !isPersistent))
            return false;
        hasFailed = true;
        return true;
    }

    void restart(FaultPattern pattern, long chosen)
    {
        isPersistent = pattern == FaultPattern::FromThenOn;
        hasFailed = false;
        failing = chosen;
        counted = 0;
    }
};

/// The one of the process. It is there before any initialiser, because allocations come before
/// main().
extern CFaultCounter faultCounter;

} // namespace tovangl

#endif
