// SPDX-License-Identifier: MIT
// Replaces malloc for the whole process and lets any allocation fail: the library's, Qt's and those
// of the libraries below.
#include "memory/fault_counter.h"

#include <cerrno>
#include <cstddef>

// The C library's own functions, under their second names.
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* memory, std::size_t size);
}

namespace tovangl {

namespace {

bool isOutOfMemory()
{
    if (!faultCounter.failsNext())
        return false;
    errno = ENOMEM;
    return true;
}

} // namespace

long CAllocationFaults::liveCount()
{
    return 0;
}

void* CAllocationFaults::allocateAsLibrary()
{
    return nullptr;
}

} // namespace tovangl

extern "C" {

void* malloc(std::size_t size)
{
    return tovangl::isOutOfMemory() ? nullptr : __libc_malloc(size);
}

void* calloc(std::size_t count, std::size_t size)
{
    return tovangl::isOutOfMemory() ? nullptr : __libc_calloc(count, size);
}

void* realloc(void* memory, std::size_t size)
{
    return tovangl::isOutOfMemory() ? nullptr : __libc_realloc(memory, size);
}
}
