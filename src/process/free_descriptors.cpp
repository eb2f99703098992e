// SPDX-License-Identifier: MIT
// Tells whether the process can open files.
#include "process/free_descriptors.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <fcntl.h>
#include <sys/eventfd.h>
#include <unistd.h>

namespace tovangl {

namespace {

// Files that fontconfig includes in each other, a font file, and what Qt's threads wait on.
constexpr std::size_t kNeeded = 8;

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
