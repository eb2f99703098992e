// SPDX-License-Identifier: MIT
/// @file
/// The axis along which the bars of a bar chart stand.
#ifndef TOVANGL_LAYOUT_CCATEGORYAXIS_H
#define TOVANGL_LAYOUT_CCATEGORYAXIS_H

#include "layout/CAxis.h"

namespace tovangl {

/// One slot for each bar, labelled with the bar's caption.
class CCategoryAxis : public CAxis
{
public:
    /// @param captions       one for each bar, in axis order
    /// @param fixedBarWidth  pixels; 0 or less lets the bars share the axis
    CCategoryAxis(const CAxisFrame& frame, const CAxisSettings& settings, const CAxisLook& look,
                  const std::vector<QString>& captions, int fixedBarWidth, CTextMeasurer& measurer);

    /// How wide bars are on an axis of that length, in pixels, outline included.
    [[nodiscard]] int drawBarWidth(int length) const;

protected:
    [[nodiscard]] CShifts labelShifts(int labelExtentAlong, int length) const override;
    [[nodiscard]] std::vector<int> ticks(const CAxisLayout& axis) const override;

private:
    [[nodiscard]] std::int64_t categories() const;

    int m_fixedBarWidth;
};

} // namespace tovangl

#endif
