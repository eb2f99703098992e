// SPDX-License-Identifier: MIT
/// @file
/// Bytes by the month of their last change.
#ifndef TOVANGL_DU_CMONTHTABLE_H
#define TOVANGL_DU_CMONTHTABLE_H

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace tovangl::program {

/// Months are numbered across years: year * 12 + month, with months from 0 to 11, in UTC.
using MonthNumber = std::int64_t;

/// @param seconds  since the start of 1970; any number
[[nodiscard]] MonthNumber monthOf(std::int64_t seconds);

/// 2024-05
[[nodiscard]] std::string monthName(MonthNumber month);

/// The bytes of each month of the last ten years, and of all time before and after them.
class CMonthTable
{
public:
    struct Row
    {
        std::string name;
        long bytes;
    };

    /// @param current  the last month with a row of its own
    explicit CMonthTable(MonthNumber current);

    void add(MonthNumber month, long bytes);

    /// Adds another table, of the same current month.
    void add(const CMonthTable& other);

    /// The months in order, from the first with bytes to the last, with "earlier" before and
    /// "later" after them if there are such bytes.
    [[nodiscard]] std::vector<Row> rows() const;

private:
    static constexpr std::size_t kMonths = 120;
    static constexpr std::size_t kEarlier = 0;
    static constexpr std::size_t kLater = kMonths + 1;

    [[nodiscard]] std::size_t slotOf(MonthNumber month) const;

    MonthNumber m_first; // month of slot 1
    std::array<long, kMonths + 2> m_bytes{};
};

} // namespace tovangl::program

#endif
