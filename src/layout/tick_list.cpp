// SPDX-License-Identifier: MIT
// The ticks of a value scale: their values, their number format, and which are hidden.
#include "layout/tick_list.h"

#include "base/wide_integer.h"
#include "layout/step_ladder.h"

#include <algorithm>
#include <limits>

namespace tovangl {

namespace {

constexpr long long kGreatest = std::numeric_limits<long long>::max();
constexpr std::uint64_t kGreatestMagnitude = std::uint64_t{1} << 63; // of a negative value

// Steps are at least 1, so a count of steps fits in 64 bits.
std::int64_t countNegative(long long step, long long min)
{
    if (min >= 0)
        return 0;
    // Deliberate: the bound is inclusive, so data that end on a tick get one more beyond it.
    const WideUnsigned bound = WideUnsigned{magnitudeOf(min)} + magnitudeOf(step);
    const WideUnsigned held = std::min<WideUnsigned>(bound, kGreatestMagnitude);
    return static_cast<std::int64_t>(
        std::min<WideUnsigned>(held / magnitudeOf(step), static_cast<WideUnsigned>(kGreatest)));
}

std::int64_t countPositive(long long step, const CDataRange& data, bool endsAtMax)
{
    const bool isAllZero = data.min == 0 && data.max == 0;
    if ((!isAllZero && data.max < 1) || data.max > kGreatest - step)
        return 0;
    // Deliberate: the bound is inclusive, so data that end on a tick get one more beyond it.
    return (endsAtMax ? data.max : data.max + step) / step;
}

NumberFormat plainOr(NumberFormat prefixed, const CTickRules& rules)
{
    return rules.unitPrefixes ? prefixed : PlainNumber;
}

// Chooses the formats of positive ticks; the caller asks in ascending order.
class CFormatChooser
{
public:
    CFormatChooser(long long step, long long max, const CTickRules& rules, const CKilo& kilo)
        : m_step(step)
        , m_max(max)
        , m_rules(rules)
        , m_kilo(kilo)
        , m_isFixed(kilo.size == kKilo1024.size && isDifferentOrder(step, max + step, kilo))
    {}

    NumberFormat next(long long value)
    {
        if (m_isFixed)
            return plainOr(PrefixedFromTen, m_rules);
        if (!m_higherOrder && isDifferentOrder(m_step, value, m_kilo)) {
            m_higherOrder = true;
            m_withinData = value <= m_max;
        }
        return tickFormat(m_rules, m_higherOrder, m_withinData);
    }

private:
    long long m_step;
    long long m_max;
    CTickRules m_rules;
    CKilo m_kilo;
    bool m_isFixed;
    bool m_higherOrder = false;
    bool m_withinData = false;
};

// The smallest factor of 1, 2, 5, 10, 20, 50, ... above this one.
long long nextRoundFactor(long long factor)
{
    long long decade = 1;
    while (factor >= 10 * decade)
        decade *= 10;
    const long long digit = factor / decade;
    return decade * (digit == 1 ? 2 : digit == 2 ? 5 : 10);
}

} // namespace

NumberFormat tickFormat(const CTickRules& rules, bool higherOrder, bool withinData)
{
    return plainOr(higherOrder && withinData ? PrefixedFromTen : PrefixedWhole, rules);
}

CTick zeroTick(const CDataRange& data, const CTickRules& rules)
{
    // Deliberate: zero is labelled only if there are data on both sides of it.
    const bool isBetweenData = data.min < 0 && data.max > 0;
    return {0, plainOr(PrefixedWhole, rules), !(isBetweenData && rules.showLabels)};
}

std::vector<CTick> positiveTicks(long long step, const CDataRange& data, const CTickRules& rules,
                                 const CKilo& kilo)
{
    std::vector<CTick> ticks;
    const std::int64_t count = countPositive(step, data, rules.endsAtMax);
    if (count == 0)
        return ticks;
    ticks.reserve(static_cast<std::size_t>(count));
    CFormatChooser formats(step, data.max, rules, kilo);
    for (std::int64_t i = 1; i <= count; ++i)
        ticks.push_back({i * step, formats.next(i * step), !rules.showLabels});
    return ticks;
}

std::vector<CTick> negativeTicks(long long step, const CDataRange& data, const CTickRules& rules)
{
    std::vector<CTick> ticks;
    const std::int64_t count = countNegative(step, data.min);
    ticks.reserve(static_cast<std::size_t>(count));
    for (std::int64_t i = 1; i <= count; ++i)
        ticks.push_back({-i * step, plainOr(PrefixedWhole, rules), !rules.showLabels});
    return ticks;
}

std::int64_t countTicks(long long step, const CDataRange& data, const CTickRules& rules)
{
    const std::int64_t withZero = addSaturated(countNegative(step, data.min), 1);
    return addSaturated(withZero, countPositive(step, data, rules.endsAtMax));
}

long long boundedStep(long long step, const CDataRange& data, const CTickRules& rules)
{
    if (countTicks(step, data, rules) <= kMostTicks)
        return step;
    // A step that still leaves too many ticks is a small part of the data, so the next product fits
    // in 64 bits.
    long long factor = 1;
    while (countTicks(step * factor, data, rules) > kMostTicksOfEnlargedStep)
        factor = nextRoundFactor(factor);
    return step * factor;
}

std::vector<CTick> generateTicks(const CDataRange& data, const CTickRules& rules, const CKilo& kilo)
{
    // Deliberate: the step ignores the least value, so data that are all negative get the smallest
    // step.
    const long long step = boundedStep(findDataStep(data.max, kilo), data, rules);
    std::vector<CTick> ticks = negativeTicks(step, data, rules);
    std::reverse(ticks.begin(), ticks.end());
    ticks.push_back(zeroTick(data, rules));
    const std::vector<CTick> positive = positiveTicks(step, data, rules, kilo);
    ticks.insert(ticks.end(), positive.begin(), positive.end());
    return ticks;
}

} // namespace tovangl
