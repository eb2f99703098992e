// SPDX-License-Identifier: MIT
/// @file
/// What a threshold leaves out of a chart.
#ifndef TOVANGL_INPUT_CLEFTOUT_H
#define TOVANGL_INPUT_CLEFTOUT_H

#include "base/wide_integer.h"

#include <algorithm>
#include <cstddef>
#include <limits>

namespace tovangl {

/// Adds up values. The sum is exact for any number of them.
class CLeftOut
{
public:
    void add(long long value)
    {
        m_sum += value;
        ++m_count;
    }

    /// How many values there are.
    [[nodiscard]] std::size_t count() const { return m_count; }
    /// The sum, or the nearest number that a value can be.
    [[nodiscard]] long long value() const
    {
        constexpr WideInt kLeast = std::numeric_limits<long long>::min();
        constexpr WideInt kGreatest = std::numeric_limits<long long>::max();
        return static_cast<long long>(std::clamp(m_sum, kLeast, kGreatest));
    }

private:
    WideInt m_sum = 0;
    std::size_t m_count = 0;
};

} // namespace tovangl

#endif
