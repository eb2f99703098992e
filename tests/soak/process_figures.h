// SPDX-License-Identifier: MIT
/// @file
/// What a process holds on to.
#ifndef TOVANGL_SOAK_PROCESS_FIGURES_H
#define TOVANGL_SOAK_PROCESS_FIGURES_H

namespace tovangl {

struct CProcessFigures
{
    long residentKilobytes = 0;
    long fileDescriptors = 0;
    long threads = 0;
};

/// The figures of this process, from the /proc file system, without memory that is free but kept by
/// the allocator.
[[nodiscard]] CProcessFigures readProcessFigures();

} // namespace tovangl

#endif
