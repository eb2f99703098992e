// SPDX-License-Identifier: MIT
/// @file
/// Runs a function in a child process with limits, and tells how it ended.
#ifndef TOVANGL_HOSTILE_CHILD_RUN_H
#define TOVANGL_HOSTILE_CHILD_RUN_H

#include <functional>
#include <string>

namespace tovangl {

struct CLimits
{
    unsigned seconds = 10; ///< of processor time; a child that waits gets some more
    std::size_t addressSpace = std::size_t{4} << 30; ///< bytes; 0 for no limit
};

enum class Ending
{
    Normal,
    OutOfMemory, ///< std::bad_alloc was caught
    OtherException,
    TooSlow,
    Crashed,
    Printed ///< it ended normally, but wrote something
};

struct CChildReport
{
    Ending ending = Ending::Crashed;
    std::string output; ///< the beginning of what the child wrote
    double seconds = 0; ///< of processor time
    double peakMegabytes = 0;

    /// What is asked of every input.
    [[nodiscard]] bool isAcceptable() const
    {
        return ending == Ending::Normal || ending == Ending::OutOfMemory;
    }
};

[[nodiscard]] const char* nameOf(Ending ending);

/// The address space of a process under a sanitizer is far larger than any limit.
[[nodiscard]] bool canLimitAddressSpace();

[[nodiscard]] CChildReport runInChild(const std::function<void()>& run, const CLimits& limits);

} // namespace tovangl

#endif
