// SPDX-License-Identifier: MIT
// What a process holds on to.
#include "soak/process_figures.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <malloc.h>
#include <unistd.h>

namespace tovangl {

namespace {

long countEntries(const char* folder)
{
    const std::filesystem::directory_iterator entries(folder);
    return std::distance(begin(entries), end(entries));
}

long readResidentKilobytes()
{
    constexpr long kBytesPerKilobyte = 1024;
    long totalPages = 0;
    long residentPages = 0;
    std::ifstream("/proc/self/statm") >> totalPages >> residentPages;
    return residentPages * (::sysconf(_SC_PAGESIZE) / kBytesPerKilobyte);
}

} // namespace

CProcessFigures readProcessFigures()
{
    // The allocator keeps up to some megabytes of what was freed last; how much is chance.
    ::malloc_trim(0);
    return {readResidentKilobytes(), countEntries("/proc/self/fd"),
            countEntries("/proc/self/task")};
}

} // namespace tovangl
