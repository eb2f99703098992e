// SPDX-License-Identifier: MIT
/// @file
/// The value axis of a bar chart.
#ifndef TOVANGL_LAYOUT_CNUMBERAXIS_H
#define TOVANGL_LAYOUT_CNUMBERAXIS_H

#include "layout/CAxis.h"
#include "layout/tick_list.h"
#include "layout/value_scale.h"

class QLocale;

namespace tovangl {

/// What a value axis has to show.
struct CNumbers
{
    CDataRange data;
    bool isEmpty = false; ///< there are no values, but the scale still has ticks
    int endShift = 0;     ///< pixels kept free past the end of a scale with ShiftLastLabel
};

/// A scale with round numbers, chosen from the least and the greatest value.
class CNumberAxis : public CAxis
{
public:
    CNumberAxis(const CAxisFrame& frame, const CAxisSettings& settings, const CAxisLook& look,
                const CNumbers& numbers, const QLocale& locale, const CKilo& kilo,
                CTextMeasurer& measurer);

    /// Where values stand on the axis once it is fitted.
    [[nodiscard]] CValueScale valueScale(const CAxisLayout& axis) const;

protected:
    [[nodiscard]] CShifts labelShifts(int labelExtentAlong, int length) const override;
    [[nodiscard]] std::vector<int> ticks(const CAxisLayout& axis) const override;

private:
    long long m_scaleMin = 0;
    long long m_scaleMax = 0;
    int m_shiftAtEnd; // pixels, never positive
};

} // namespace tovangl

#endif
