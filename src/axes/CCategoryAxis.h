// SPDX-License-Identifier: MIT
/// @file
/// The axis along which the bars of a bar chart stand.
#ifndef TOVANGL_AXES_CCATEGORYAXIS_H
#define TOVANGL_AXES_CCATEGORYAXIS_H

#include "axes/CAxis.h"

namespace tovangl {

class CBarGraphItem;
class CNumberAxis;

/// One place for each bar, labelled with the bar's caption. With the value axis it knows where
/// every bar stands, and writes that onto the items.
class CCategoryAxis : public CAxis
{
public:
    using CAxis::CAxis;
    ~CCategoryAxis() override;

    void initAfterAxisLength() override;
    void placeAcrossLabels() override;
    void placeAlongLabels() override;
    [[nodiscard]] int labelShiftAtBegin() const override;
    [[nodiscard]] int labelShiftAtEnd() const override;

    /// Adds a place at the end of the axis for the item, which stays the chart's.
    void addCategory(CBarGraphItem* item);

    /// @param width  pixels; 0 or less lets the bars share the axis
    void setFixedBarWidth(int width) { m_fixedBarWidth = width; }
    [[nodiscard]] int fixedBarWidth() const { return m_fixedBarWidth; }
    void setDrawBarWidth();
    /// The bar width in effect, in pixels, line included.
    [[nodiscard]] int drawBarWidth() const { return m_drawBarWidth; }
    /// Pixels from either end of the axis to the centre of the nearest bar.
    [[nodiscard]] int getLabelShift() const;
    /// A bar's rectangle relative to the first category and the axis line.
    ///
    /// @param centre    along this axis
    /// @param from, to  ends along the value axis, in any order
    [[nodiscard]] QRect getBar(double centre, int from, int to) const;
    /// Writes the rectangles of bar and value label onto every item of the axis.
    ///
    /// @param valueAxis  nothing happens for an axis of another kind
    /// @param labelRect  the size of a value label
    /// @param labelGap   pixels between a lying bar and its value label
    void setItemBarAndLabel(QPainter& painter, CAxis* valueAxis, const QRect& labelRect,
                            int labelGap);

private:
    struct CBarOrigins;
    struct CValueLabelBox;

    [[nodiscard]] std::int64_t categories() const;
    [[nodiscard]] std::int64_t coveredLength() const;
    [[nodiscard]] double pitch() const;
    [[nodiscard]] std::vector<int> ticksApart(double distance) const;
    [[nodiscard]] CBarOrigins barOrigins() const;
    [[nodiscard]] QRect barRect(const CBarTextLabel& label, const CNumberAxis& valueAxis,
                                int valueCoord, const QPoint& origin) const;
    [[nodiscard]] QRect valueLabelRect(const CBarTextLabel& label, const CNumberAxis& valueAxis,
                                       int valueCoord, const QPoint& origin,
                                       const CValueLabelBox& box) const;

    int m_fixedBarWidth = 0; // pixels; 0 or less: derived from the axis length
    int m_drawBarWidth = 0;  // pixels
};

} // namespace tovangl

#endif
