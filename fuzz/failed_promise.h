// SPDX-License-Identifier: MIT
/// @file
/// How a fuzz target reports what must not be.
#ifndef TOVANGL_FUZZ_FAILED_PROMISE_H
#define TOVANGL_FUZZ_FAILED_PROMISE_H

#include <cstdio>
#include <cstdlib>

namespace tovangl {

/// Ends the process, which the fuzzer takes for a finding, where a promise is not kept.
inline void require(bool isKept, const char* promise)
{
    if (isKept)
        return;
    std::fprintf(stderr, "broken promise: %s\n", promise);
    std::abort();
}

} // namespace tovangl

#endif
