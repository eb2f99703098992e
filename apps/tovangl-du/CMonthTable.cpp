// SPDX-License-Identifier: MIT
// Bytes by the month of their last change.
#include "tovangl-du/CMonthTable.h"

#include "tovangl-du/byte_text.h"

#include <algorithm>

namespace tovangl::program {

namespace {

constexpr std::int64_t kSecondsPerDay = 86400;
constexpr std::int64_t kMonthsPerYear = 12;
constexpr std::int64_t kTenDigits = 10; // months below this get a leading 0

std::int64_t floorDivide(std::int64_t a, std::int64_t b)
{
    return a / b - (a % b < 0 ? 1 : 0);
}

} // namespace

// Counts days in years that start in March: leap days then come last in their year, and the lengths
// of the months before them follow one rule (153 days in five months).
MonthNumber monthOf(std::int64_t seconds)
{
    constexpr std::int64_t kDaysToMarchOfYear0 = 719468; // before 1970
    constexpr std::int64_t kDaysPerEra = 146097;         // of 400 years
    constexpr std::int64_t kMarch = 2;
    const std::int64_t days = floorDivide(seconds, kSecondsPerDay) + kDaysToMarchOfYear0;
    const std::int64_t era = floorDivide(days, kDaysPerEra);
    const std::int64_t day = days - era * kDaysPerEra;
    const std::int64_t year = (day - day / 1460 + day / 36524 - day / 146096) / 365;
    const std::int64_t dayOfYear = day - (365 * year + year / 4 - year / 100);
    const std::int64_t monthFromMarch = (5 * dayOfYear + 2) / 153;
    return (era * 400 + year) * kMonthsPerYear + monthFromMarch + kMarch;
}

std::string monthName(MonthNumber month)
{
    const std::int64_t year = floorDivide(month, kMonthsPerYear);
    const std::int64_t ofYear = month - year * kMonthsPerYear + 1;
    return std::to_string(year) + (ofYear < kTenDigits ? "-0" : "-") + std::to_string(ofYear);
}

CMonthTable::CMonthTable(MonthNumber current)
    : m_first(current + 1 - static_cast<MonthNumber>(kMonths))
{}

void CMonthTable::add(MonthNumber month, long bytes)
{
    long& sum = m_bytes[slotOf(month)];
    sum = addBytes(sum, bytes);
}

void CMonthTable::add(const CMonthTable& other)
{
    std::transform(m_bytes.begin(), m_bytes.end(), other.m_bytes.begin(), m_bytes.begin(),
                   addBytes);
}

std::vector<CMonthTable::Row> CMonthTable::rows() const
{
    const auto hasBytes = [](long bytes) { return bytes > 0; };
    const auto firstMonth = m_bytes.begin() + 1;
    const auto lastMonth = m_bytes.end() - 1;
    const auto first = std::find_if(firstMonth, lastMonth, hasBytes);
    std::vector<Row> result;
    if (m_bytes[kEarlier] > 0)
        result.push_back({"earlier", m_bytes[kEarlier]});
    if (first != lastMonth) {
        auto end = lastMonth;
        while (!hasBytes(*(end - 1)))
            --end;
        for (auto slot = first; slot != end; ++slot)
            result.push_back({monthName(m_first + (slot - firstMonth)), *slot});
    }
    if (m_bytes[kLater] > 0)
        result.push_back({"later", m_bytes[kLater]});
    return result;
}

std::size_t CMonthTable::slotOf(MonthNumber month) const
{
    if (month < m_first)
        return kEarlier;
    const MonthNumber offset = month - m_first;
    return offset < static_cast<MonthNumber>(kMonths) ? static_cast<std::size_t>(offset) + 1
                                                      : kLater;
}

} // namespace tovangl::program
