// SPDX-License-Identifier: MIT
// Tells whether the process can open files.
#include "process/free_descriptors.h"

#include "process/qt_threads.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <fcntl.h>
#include <sys/eventfd.h>
#include <unistd.h>

namespace tovangl {

namespace {

// A file of fonts or of their settings, and one that such a file names.
constexpr std::size_t kFiles = 2;
constexpr std::size_t kNeeded = kFiles + qt::kMostThreadsOfAPicture;

} // namespace

bool areDescriptorsFree()
{
    const int first = eventfd(0, EFD_CLOEXEC);
    std::array<int, kNeeded> descriptors = {first};
    std::generate(descriptors.begin() + 1, descriptors.end(),
                  [first] { return fcntl(first, F_DUPFD_CLOEXEC, 0); });
    bool areFree = true;
    for (const int descriptor : descriptors) {
        areFree = areFree && descriptor >= 0;
        if (descriptor >= 0)
            ::close(descriptor);
    }
    return areFree;
}

} // namespace tovangl
