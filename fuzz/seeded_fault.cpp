// SPDX-License-Identifier: MIT
// Faults on purpose, so that a target can show that it finds some.
#include "seeded_fault.h"

#include <cstring>

namespace {

bool isSeeded = false;

} // namespace

bool tovangl::isFaultSeeded()
{
    return isSeeded;
}

extern "C" int LLVMFuzzerInitialize(int* count, char*** arguments)
{
    for (int i = 1; i < *count; ++i)
        isSeeded |= std::strcmp((*arguments)[i], "--seed-fault") == 0;
    return 0;
}
