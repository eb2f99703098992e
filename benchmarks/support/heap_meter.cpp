// SPDX-License-Identifier: MIT
// Counts the bytes that the process has taken from the heap.
#include "support/heap_meter.h"

#include <atomic>
#include <cerrno>
#include <malloc.h>

// The C library's own functions, which stand in for it under these names.
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);
void __libc_free(void* block);
}

namespace tovangl {
namespace bench {

namespace {

std::atomic<std::size_t> inUse{0};
std::atomic<std::size_t> mostInUse{0};

void* taken(void* block)
{
    const std::size_t size = malloc_usable_size(block);
    const std::size_t now = inUse.fetch_add(size) + size;
    std::size_t most = mostInUse.load();
    while (now > most && !mostInUse.compare_exchange_weak(most, now)) {
    }
    return block;
}

void givenBack(std::size_t size)
{
    inUse.fetch_sub(size);
}

} // namespace

std::size_t heapBytes()
{
    return inUse.load();
}

std::size_t heapPeak()
{
    return mostInUse.load();
}

void resetHeapPeak()
{
    mostInUse.store(inUse.load());
}

} // namespace bench
} // namespace tovangl

using tovangl::bench::givenBack;
using tovangl::bench::taken;

extern "C" {

void* malloc(std::size_t size)
{
    return taken(__libc_malloc(size));
}

void* calloc(std::size_t count, std::size_t size)
{
    return taken(__libc_calloc(count, size));
}

void* realloc(void* block, std::size_t size)
{
    const std::size_t before = malloc_usable_size(block);
    void* const moved = __libc_realloc(block, size);
    if (!moved && size != 0)
        return nullptr;
    givenBack(before);
    return taken(moved);
}

void* memalign(std::size_t alignment, std::size_t size)
{
    return taken(__libc_memalign(alignment, size));
}

void* aligned_alloc(std::size_t alignment, std::size_t size)
{
    return memalign(alignment, size);
}

int posix_memalign(void** block, std::size_t alignment, std::size_t size)
{
    *block = memalign(alignment, size);
    return *block ? 0 : ENOMEM;
}

void free(void* block)
{
    givenBack(malloc_usable_size(block));
    __libc_free(block);
}
}
