// SPDX-License-Identifier: MIT
/// @file
/// The value axis of a bar chart.
#ifndef TOVANGL_AXES_CNUMBERAXIS_H
#define TOVANGL_AXES_CNUMBERAXIS_H

#include "axes/CAxis.h"
#include "axes/tick_list.h"
#include "axes/value_scale.h"

namespace tovangl {

/// A scale with round numbers, chosen from the least and the greatest value.
class CNumberAxis : public CAxis
{
public:
    using CAxis::CAxis;
    ~CNumberAxis() override;

    void placeAcrossLabels() override;
    void placeAlongLabels() override;
    [[nodiscard]] int labelShiftAtBegin() const override;
    [[nodiscard]] int labelShiftAtEnd() const override;
    /// Whether the chart has no items; the scale has ticks all the same.
    [[nodiscard]] bool isGraphEmpty() const override;

    /// Makes the scale for data between two values, told in any order.
    ///
    /// @param endShift  pixels kept free past the end of the scale with ShiftLastLabel; a negative
    ///                  number counts as 0
    void setNumbers(long long a, long long b, bool empty, int endShift);

    void initStepParameters(bool decimal, std::vector<long long>& ladder, int& multiplier) const;
    [[nodiscard]] long long getStep(bool decimal, long long max) const;
    [[nodiscard]] long long getDataStep(long long min, long long max) const;
    [[nodiscard]] bool isDifferentTriOrder(long long a, long long b) const;
    [[nodiscard]] NumberFormat getLabelFormat(bool higherOrder, bool withinData) const;
    void generateNumberLabels(long long min, long long max);
    void addPositiveLabels(long long step, long long min, long long max);
    void addNegativeLabels(long long step, long long min, long long max);

    /// How many pixels a value is long.
    [[nodiscard]] int getNumberSize(long long value) const;
    /// Where a value stands along the axis, in pixels from the axis start.
    [[nodiscard]] int getNumberCoord(long long value) const;
    /// Whether there is room for bars and their labels at all.
    [[nodiscard]] bool canDrawBarLabel() const;
    /// Draws a grid line at every visible tick, into the plot to the right of the axis or below it.
    ///
    /// @param length       pixels from the axis to the far end of the lines
    /// @param first, last  colours of the first line and of a line for the last tick
    void drawLabelLines(QPainter& painter, int length, const QColor& first,
                        const QColor& last) const;

    [[nodiscard]] long long scaleMin() const { return m_scaleMin; }
    [[nodiscard]] long long scaleMax() const { return m_scaleMax; }
    [[nodiscard]] int endShift() const { return m_endShift; }

private:
    void appendTick(const CTick& tick);
    [[nodiscard]] CTickRules tickRules() const;
    [[nodiscard]] CValueScale valueScale() const;
    /// Where the labels' values stand, in pixels from the axis start.
    [[nodiscard]] std::vector<int> valueTicks() const;

    long long m_scaleMin = 0;
    long long m_scaleMax = 0;
    bool m_empty = false;
    int m_endShift = 0; // pixels, never negative
};

} // namespace tovangl

#endif
