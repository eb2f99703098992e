// SPDX-License-Identifier: MIT
// The value axis of a bar chart.
#include "layout/CNumberAxis.h"

#include <QLocale>

#include <algorithm>

namespace tovangl {

namespace {

// Deliberate: the second row lies on the opposite side of the first one from a category axis's.
constexpr int kSecondRowSign = 1;

CTickRules tickRules(const CAxisSettings& settings)
{
    return {settings.has(CAxisSettings::ShowLabels), settings.has(CAxisSettings::UnitPrefixes),
            settings.has(CAxisSettings::ShiftLastLabel)};
}

} // namespace

CNumberAxis::CNumberAxis(const CAxisFrame& frame, const CAxisSettings& settings,
                         const CAxisLook& look, const CNumbers& numbers, const QLocale& locale,
                         const CKilo& kilo, CTextMeasurer& measurer)
    : CAxis(frame, settings, look, kSecondRowSign, measurer)
    , m_shiftAtEnd(settings.has(CAxisSettings::ShiftLastLabel) ? -std::max(numbers.endShift, 0) : 0)
{
    const CTextStyle style{settings.has(CAxisSettings::BoldLabels), false};
    std::vector<CBarTextLabel> labels;
    for (const CTick& tick : generateTicks(numbers.data, tickRules(settings), kilo)) {
        const QString text = numberText(tick.value, tick.format, locale, kilo);
        labels.push_back({CTextLabel(text, style, measurer), tick.value, tick.isHidden});
    }
    m_scaleMin = labels.front().value;
    m_scaleMax =
        settings.has(CAxisSettings::ShiftLastLabel) ? numbers.data.max : labels.back().value;
    setLabels(std::move(labels), numbers.isEmpty);
}

CValueScale CNumberAxis::valueScale(const CAxisLayout& axis) const
{
    return {m_scaleMin, m_scaleMax, axis.shiftAtBegin, axis.usableSpan()};
}

CAxis::CShifts CNumberAxis::labelShifts(int, int) const
{
    return {0, m_shiftAtEnd};
}

std::vector<int> CNumberAxis::ticks(const CAxisLayout& axis) const
{
    const CValueScale scale = valueScale(axis);
    std::vector<int> ticks;
    ticks.reserve(labels().size());
    for (const CBarTextLabel& label : labels())
        ticks.push_back(scale.coord(label.value));
    return ticks;
}

} // namespace tovangl
