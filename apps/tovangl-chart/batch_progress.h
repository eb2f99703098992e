// SPDX-License-Identifier: MIT
/// @file
/// How far a batch has come.
#ifndef TOVANGL_CHART_BATCH_PROGRESS_H
#define TOVANGL_CHART_BATCH_PROGRESS_H

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace tovangl::program {

struct BatchCounts
{
    std::size_t charts = 0; ///< pictures that were made
    std::size_t passedOver = 0;
    std::size_t errors = 0;
    std::uintmax_t end = 0; ///< bytes of the input that are done
};

/// "1200 charts, 812 a second, 3 errors, 2:05 left".
///
/// @param size  of the input in bytes; the time that is left follows from it
[[nodiscard]] std::string progressText(const BatchCounts& counts,
                                       std::chrono::duration<double> time,
                                       std::optional<std::uintmax_t> size);

} // namespace tovangl::program

#endif
