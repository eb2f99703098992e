// SPDX-License-Identifier: MIT
/// @file
/// Counts the bytes that the process has taken from the heap. A program that links this has its
/// malloc() and its relatives counted, those of all its libraries included.
#ifndef TOVANGL_BENCHMARKS_SUPPORT_HEAP_METER_H
#define TOVANGL_BENCHMARKS_SUPPORT_HEAP_METER_H

#include <cstddef>

namespace tovangl {
namespace bench {

/// What is in use now.
[[nodiscard]] std::size_t heapBytes();

/// The most that was in use since the last resetHeapPeak().
[[nodiscard]] std::size_t heapPeak();

/// Starts a new peak at what is in use now.
void resetHeapPeak();

} // namespace bench
} // namespace tovangl

#endif
