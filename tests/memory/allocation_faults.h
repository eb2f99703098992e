// SPDX-License-Identifier: MIT
/// @file
/// Makes allocations fail on purpose.
///
/// One of two sources goes with it: library_allocations.cpp replaces operator new and counts what
/// the library's own code asks for; all_allocations.cpp replaces malloc and counts everything, Qt's
/// allocations included.
#ifndef TOVANGL_MEMORY_ALLOCATION_FAULTS_H
#define TOVANGL_MEMORY_ALLOCATION_FAULTS_H

namespace tovangl {

enum class FaultPattern
{
    Once,      ///< one allocation fails and the next one works again
    FromThenOn ///< every later allocation fails too, until the exception has left the call
};

/// Lets allocations fail for as long as it lives. At most one lives at a time.
class CAllocationFaults
{
public:
    /// @param failing  the number of the allocation that fails, counted from 1; 0 lets none fail
    CAllocationFaults(FaultPattern pattern, long failing);
    ~CAllocationFaults();
    CAllocationFaults(const CAllocationFaults&) = delete;
    CAllocationFaults& operator=(const CAllocationFaults&) = delete;

    /// Allocations are counted, and fail, between these two only.
    static void resume();
    static void pause();
    /// No allocation fails any more; counting goes on.
    static void end();

    /// Allocations counted so far.
    [[nodiscard]] static long count();
    /// Whether one has failed.
    [[nodiscard]] static bool hasFailed();
    /// Allocations of the library's own that are not freed; always 0 where they are not told apart.
    [[nodiscard]] static long liveCount();
    /// An allocation that counts as the library's own, to test the counting.
    [[nodiscard]] static void* allocateAsLibrary();
};

/// Counts and fails for the length of one call into the library.
class CFaultyCall
{
public:
    CFaultyCall() { CAllocationFaults::resume(); }
    ~CFaultyCall() { CAllocationFaults::pause(); }
    CFaultyCall(const CFaultyCall&) = delete;
    CFaultyCall& operator=(const CFaultyCall&) = delete;
};

} // namespace tovangl

#endif
