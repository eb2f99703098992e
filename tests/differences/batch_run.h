// SPDX-License-Identifier: MIT
/// @file
/// Runs numbered cases in child processes, so that a case that crashes is told like any other.
#ifndef TOVANGL_DIFFERENCES_BATCH_RUN_H
#define TOVANGL_DIFFERENCES_BATCH_RUN_H

#include <functional>
#include <string>

namespace tovangl {

/// How one case went.
struct CCaseReport
{
    unsigned number = 0;
    std::string ending; ///< "ended", "threw", "exit 3" or "signal 11"
    std::string
        record; ///< what the case gave: one line, without its end; empty where it did not end
};

/// Runs the cases from first to below end, one child process for each hundred of them. A child that
/// ends early is followed by another one, from the next case on. The last case of a child also
/// answers for the way in which the child itself ends.
void runInBatches(unsigned first, unsigned end, const std::function<std::string(unsigned)>& run,
                  const std::function<void(const CCaseReport&)>& report);

} // namespace tovangl

#endif
