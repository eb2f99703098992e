// SPDX-License-Identifier: MIT
// Replaces operator new for the whole process, and lets the library's own allocations fail: those
// that its code asks for, with the standard library's code in between or not, and those of
// libdeflate, which nothing else in the process uses. Qt's are left alone.
#include "memory/fault_counter.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <libdeflate.h>
#include <link.h>
#include <new>
#include <unwind.h>

namespace tovangl {

namespace {

std::atomic<long> liveAllocations{0};

// Where the library's code lies.
struct CAddressRange
{
    std::uintptr_t first = 0;
    std::uintptr_t last = 0;

    [[nodiscard]] bool contains(const void* address) const
    {
        const auto value = reinterpret_cast<std::uintptr_t>(address);
        return value >= first && value < last;
    }
};

struct CLibraryCode
{
    const char* name; // a part of the path
    CAddressRange range;
};

int findLibrary(dl_phdr_info* object, std::size_t, void* library)
{
    auto& wanted = *static_cast<CLibraryCode*>(library);
    if (!std::strstr(object->dlpi_name, wanted.name))
        return 0;
    for (int i = 0; i < object->dlpi_phnum; ++i) {
        const auto& segment = object->dlpi_phdr[i];
        if (segment.p_type == PT_LOAD && (segment.p_flags & PF_X) != 0) {
            wanted.range.first = object->dlpi_addr + segment.p_vaddr;
            wanted.range.last = wanted.range.first + segment.p_memsz;
        }
    }
    return 1;
}

CAddressRange codeOf(const char* name)
{
    CLibraryCode library{name, {}};
    ::dl_iterate_phdr(findLibrary, &library);
    return library.range;
}

bool isLibraryCode(const void* address)
{
    static const CAddressRange range = codeOf("/libtovangl.so");
    return range.contains(address);
}

bool isStandardLibraryCode(const void* address)
{
    static const CAddressRange range = codeOf("/libstdc++.so");
    return range.contains(address);
}

struct CCallerSearch
{
    bool hasPassedStandardLibrary = false;
    const void* caller = nullptr;
};

// Looks for the code behind the standard library's: what stands before that is this file.
_Unwind_Reason_Code findCaller(_Unwind_Context* frame, void* search)
{
    const auto* const address = reinterpret_cast<const void*>(_Unwind_GetIP(frame));
    auto& result = *static_cast<CCallerSearch*>(search);
    if (isStandardLibraryCode(address)) {
        result.hasPassedStandardLibrary = true;
    } else if (result.hasPassedStandardLibrary) {
        result.caller = address;
        return _URC_END_OF_STACK;
    }
    return _URC_NO_REASON;
}

// Whether the library asks for memory, or lets the standard library ask.
bool isOwnRequest(const void* caller)
{
    if (!isStandardLibraryCode(caller))
        return isLibraryCode(caller);
    CCallerSearch search;
    _Unwind_Backtrace(findCaller, &search);
    return isLibraryCode(search.caller);
}

// Stands before every block, so that freeing knows what was allocated.
struct alignas(alignof(std::max_align_t)) CBlockHeader
{
    bool isOwn;
};

void* allocate(std::size_t size, bool isOwn)
{
    if (isOwn && faultCounter.failsNext())
        return nullptr;
    void* const block = std::malloc(sizeof(CBlockHeader) + size);
    if (!block)
        return nullptr;
    liveAllocations += isOwn ? 1 : 0;
    return new (block) CBlockHeader{isOwn} + 1;
}

void* allocateOrThrow(std::size_t size, const void* caller)
{
    void* const memory = allocate(size, isOwnRequest(caller));
    if (!memory)
        throw std::bad_alloc();
    return memory;
}

void release(void* memory) noexcept
{
    if (!memory)
        return;
    CBlockHeader* const header = static_cast<CBlockHeader*>(memory) - 1;
    liveAllocations -= header->isOwn ? 1 : 0;
    std::free(header);
}

void* allocateForCompressor(std::size_t size)
{
    return allocate(size, true);
}

// Before main(): libdeflate takes no other memory afterwards.
[[maybe_unused]] const bool isCompressorCounted = [] {
    libdeflate_set_memory_allocator(allocateForCompressor, release);
    return true;
}();

} // namespace

long CAllocationFaults::liveCount()
{
    return liveAllocations;
}

void* CAllocationFaults::allocateAsLibrary()
{
    constexpr std::size_t kAnySize = 40;
    return allocate(kAnySize, true);
}

} // namespace tovangl

void* operator new(std::size_t size)
{
    return tovangl::allocateOrThrow(size, __builtin_return_address(0));
}

void* operator new[](std::size_t size)
{
    return tovangl::allocateOrThrow(size, __builtin_return_address(0));
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    return tovangl::allocate(size, tovangl::isOwnRequest(__builtin_return_address(0)));
}

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept
{
    return tovangl::allocate(size, tovangl::isOwnRequest(__builtin_return_address(0)));
}

void operator delete(void* memory) noexcept
{
    tovangl::release(memory);
}

void operator delete[](void* memory) noexcept
{
    tovangl::release(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    tovangl::release(memory);
}

void operator delete[](void* memory, std::size_t) noexcept
{
    tovangl::release(memory);
}

void operator delete(void* memory, const std::nothrow_t&) noexcept
{
    tovangl::release(memory);
}

void operator delete[](void* memory, const std::nothrow_t&) noexcept
{
    tovangl::release(memory);
}
