// SPDX-License-Identifier: MIT
// The axis along which the bars of a bar chart stand.
#include "layout/CCategoryAxis.h"

#include "layout/bar_placement.h"

#include <cstdlib>

namespace tovangl {

namespace {

// Deliberate: the second row lies on the opposite side of the first one from a value axis's.
constexpr int kSecondRowSign = -1;

} // namespace

CCategoryAxis::CCategoryAxis(const CAxisFrame& frame, const CAxisSettings& settings,
                             const CAxisLook& look, const std::vector<QString>& captions,
                             int fixedBarWidth, CTextMeasurer& measurer)
    : CAxis(frame, settings, look, kSecondRowSign, measurer)
    , m_fixedBarWidth(fixedBarWidth)
{
    const CTextStyle style{settings.has(CAxisSettings::BoldLabels), false};
    std::vector<CBarTextLabel> labels;
    labels.reserve(captions.size());
    for (const QString& caption : captions)
        labels.push_back({CTextLabel(caption, style, measurer)});
    setLabels(std::move(labels), captions.empty());
}

int CCategoryAxis::drawBarWidth(int length) const
{
    if (m_fixedBarWidth > 0)
        return m_fixedBarWidth;
    return derivedBarWidth(std::abs(std::int64_t{length}) + look().lineWidth, categories());
}

CAxis::CShifts CCategoryAxis::labelShifts(int labelExtentAlong, int length) const
{
    const CBarRow bars{categories(), std::abs(std::int64_t{length}), drawBarWidth(length)};
    const int shift = categoryShift(bars, labelExtentAlong);
    return {shift, -shift};
}

std::vector<int> CCategoryAxis::ticks(const CAxisLayout& axis) const
{
    const double pitch = categoryPitch(axis.usableSpan(), categories());
    std::vector<int> ticks;
    ticks.reserve(labels().size());
    for (std::size_t i = 0; i < labels().size(); ++i)
        ticks.push_back(truncateToInt(static_cast<double>(i) * pitch));
    return ticks;
}

std::int64_t CCategoryAxis::categories() const
{
    return static_cast<std::int64_t>(labels().size());
}

} // namespace tovangl
