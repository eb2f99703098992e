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

CFaultCounter counter;

bool isOutOfMemory()
{
    if (!counter.failsNext())
        return false;
    errno = ENOMEM;
    return true;
}

} // namespace

CAllocationFaults::CAllocationFaults(FaultPattern pattern, long failing)
{
    counter.restart(pattern, failing);
}

CAllocationFaults::~CAllocationFaults()
{
    pause();
}

void CAllocationFaults::resume()
{
    counter.isCounting = true;
}

void CAllocationFaults::pause()
{
    counter.isCounting = false;
}

void CAllocationFaults::end()
{
    counter.failing = 0;
}

long CAllocationFaults::count()
{
    return counter.counted;
}

bool CAllocationFaults::hasFailed()
{
    return counter.hasFailed;
}

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
