// SPDX-License-Identifier: MIT
// Replaces the fastest compressor if the library is built without ISA-L.
#include "output/fast_deflating.h"

namespace tovangl {

bool canDeflateFast()
{
    return false;
}

std::size_t deflateFast(CByteRange, Reach, CByteRoom)
{
    return 0;
}

} // namespace tovangl
