// SPDX-License-Identifier: MIT
// The value axis of a bar chart: its scale.
#include "axes/CNumberAxis.h"

#include "axes/step_ladder.h"
#include "core/CGlobal.h"
#include "labels/CBarTextLabel.h"

#include <algorithm>

namespace tovangl {

CNumberAxis::~CNumberAxis() = default;

void CNumberAxis::placeAcrossLabels()
{
    placeInRows(valueTicks(), isHorizontal(), 0);
}

void CNumberAxis::placeAlongLabels()
{
    // Deliberate: the second row has a positive offset here and a negative one on a category axis.
    const int secondRow = labelDirection() == AlongTwoRows ? getElementHeight(SecondRowOffset) : 0;
    placeInRows(valueTicks(), !isHorizontal(), secondRow);
}

int CNumberAxis::labelShiftAtBegin() const
{
    return 0;
}

int CNumberAxis::labelShiftAtEnd() const
{
    return properties().testFlag(ShiftLastLabel) ? -m_endShift : 0;
}

bool CNumberAxis::isGraphEmpty() const
{
    return m_empty;
}

void CNumberAxis::setNumbers(long long a, long long b, bool empty, int endShift)
{
    clearLabels();
    m_empty = empty;
    m_endShift = std::max(endShift, 0);
    generateNumberLabels(std::min(a, b), std::max(a, b));
}

void CNumberAxis::initStepParameters(bool decimal, std::vector<long long>& ladder,
                                     int& multiplier) const
{
    const CStepLadder entries = stepLadder(decimal, getGlobal()->kilo());
    ladder.insert(ladder.end(), entries.entries.begin(), entries.entries.end());
    multiplier = entries.multiplier;
}

long long CNumberAxis::getStep(bool decimal, long long max) const
{
    CStepLadder ladder;
    initStepParameters(decimal, ladder.entries, ladder.multiplier);
    return findStep(ladder, max);
}

long long CNumberAxis::getDataStep(long long, long long max) const
{
    // Deliberate: the least value plays no part, so data below zero alone get the smallest step.
    return findDataStep(max, getGlobal()->kilo());
}

bool CNumberAxis::isDifferentTriOrder(long long a, long long b) const
{
    return isDifferentOrder(a, b, getGlobal()->kilo());
}

NumberFormat CNumberAxis::getLabelFormat(bool higherOrder, bool withinData) const
{
    return tickFormat(tickRules(), higherOrder, withinData);
}

void CNumberAxis::generateNumberLabels(long long min, long long max)
{
    const CDataRange data{min, max};
    const long long step = boundedStep(getDataStep(min, max), data, tickRules());
    appendTick(zeroTick(data, tickRules()));
    addPositiveLabels(step, min, max);
    addNegativeLabels(step, min, max);
    m_scaleMax = properties().testFlag(ShiftLastLabel) ? max : m_labels.back()->getValue();
    m_scaleMin = m_labels.front()->getValue();
}

void CNumberAxis::addPositiveLabels(long long step, long long min, long long max)
{
    const std::vector<CTick> ticks =
        positiveTicks(step, {min, max}, tickRules(), getGlobal()->kilo());
    for (const CTick& tick : ticks)
        appendTick(tick);
}

void CNumberAxis::addNegativeLabels(long long step, long long min, long long max)
{
    const auto count = static_cast<std::ptrdiff_t>(m_labels.size());
    const std::vector<CTick> ticks = negativeTicks(step, {min, max}, tickRules());
    for (const CTick& tick : ticks)
        appendTick(tick);
    // Appended in descending order, they go to the front in ascending order.
    std::reverse(m_labels.begin() + count, m_labels.end());
    std::rotate(m_labels.begin(), m_labels.begin() + count, m_labels.end());
}

int CNumberAxis::getNumberSize(long long value) const
{
    return valueScale().size(value);
}

int CNumberAxis::getNumberCoord(long long value) const
{
    return valueScale().coord(value);
}

bool CNumberAxis::canDrawBarLabel() const
{
    return usableSpan() > 0;
}

void CNumberAxis::appendTick(const CTick& tick)
{
    auto label = std::make_unique<CBarTextLabel>(tick.value, tick.format, locale());
    label->setBold(properties().testFlag(BoldLabels));
    label->setHidden(tick.isHidden);
    appendLabel(std::move(label));
}

CTickRules CNumberAxis::tickRules() const
{
    return {properties().testFlag(ShowLabels), properties().testFlag(UnitPrefixes),
            properties().testFlag(ShiftLastLabel)};
}

std::vector<int> CNumberAxis::valueTicks() const
{
    const CValueScale scale = valueScale();
    std::vector<int> ticks;
    ticks.reserve(m_labels.size());
    for (const CBarTextLabel* label : m_labels)
        ticks.push_back(scale.coord(label->getValue()));
    return ticks;
}

CValueScale CNumberAxis::valueScale() const
{
    return {m_scaleMin, m_scaleMax, addPixels(axisStart(), labelShiftAtBegin()), usableSpan()};
}

} // namespace tovangl
