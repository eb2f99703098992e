// SPDX-License-Identifier: MIT
/// @file
/// A value axis with its scale.
#ifndef TOVANGL_AXES_CSCALEAXIS_H
#define TOVANGL_AXES_CSCALEAXIS_H

#include "axes/CNumberAxis.h"
#include "axes/CTestAxis.h"

#include <string>
#include <vector>

namespace tovangl {

inline const CAxis::Properties kLineAndLabels = CAxis::ShowLine | CAxis::ShowLabels;

/// A value axis from the left, with labels at its top, or from the bottom, with labels at its left.
struct CScaleAxis : CNumberAxis
{
    explicit CScaleAxis(long long least, long long greatest,
                        CAxis::Properties properties = kLineAndLabels, int endShift = 0,
                        CAxis::Orientation orientation = CAxis::LeftToRight)
        : CNumberAxis(orientation, CAxis::Top, properties, &CTestAxis::locale(), QString())
    {
        setNumbers(least, greatest, false, endShift);
    }

    /// Fits the axis so that its length is a number of pixels, and it is thick enough for all.
    void fit(QPainter& painter, int length)
    {
        fitToRect(painter,
                  isHorizontal() ? QRect(0, 0, length + 1, 100) : QRect(0, 0, 100, length + 1));
    }
    [[nodiscard]] std::vector<long long> values() const
    {
        std::vector<long long> result;
        for (const CBarTextLabel* label : labels())
            result.push_back(label->getValue());
        return result;
    }
    [[nodiscard]] std::vector<std::string> texts() const
    {
        std::vector<std::string> result;
        for (const CBarTextLabel* label : labels())
            result.push_back(label->getText().toStdString());
        return result;
    }
    [[nodiscard]] std::vector<bool> hidden() const
    {
        std::vector<bool> result;
        for (const CBarTextLabel* label : labels())
            result.push_back(label->isHidden());
        return result;
    }
    [[nodiscard]] std::vector<int> ticks() const
    {
        std::vector<int> result;
        for (const CBarTextLabel* label : labels())
            result.push_back(label->tickCoord());
        return result;
    }
};

} // namespace tovangl

#endif
