// SPDX-License-Identifier: MIT
/// @file
/// What the two axes of a bar chart have in common.
#ifndef TOVANGL_LAYOUT_CAXIS_H
#define TOVANGL_LAYOUT_CAXIS_H

#include "layout/CAxisLayout.h"

#include <vector>

namespace tovangl {

/// How an axis looks, apart from the settings of this one axis.
struct CAxisLook
{
    int lineWidth = 1; ///< pixels
    QColor lineColor = Qt::black;
    QColor labelColor = Qt::black;
    QColor titleColor = Qt::black;
};

/// An axis line with labels and a title on one side of it, measured but not yet placed.
///
/// It computes its thickness at any length, and fitToRect() lays it out; neither changes it.
/// Geometry is expressed along the axis and across it.
class CAxis
{
public:
    virtual ~CAxis();
    Q_DISABLE_COPY(CAxis)

    /// How thick a horizontal axis of that width is, in pixels; 0 for a vertical one.
    [[nodiscard]] int getHeightForWidth(int width) const;
    /// How thick a vertical axis of that height is, in pixels; 0 for a horizontal one.
    [[nodiscard]] int getWidthForHeight(int height) const;
    /// The axis in its place. Labels and title that do not fit into the rectangle are hidden.
    [[nodiscard]] CAxisLayout fitToRect(const QRect& rect, CTextMeasurer& measurer) const;
    /// The part of the line's width, in pixels, that lies on the side of the labels.
    [[nodiscard]] int lineShare() const;

protected:
    /// Pixels kept free before the first tick, and added after the last.
    struct CShifts
    {
        int begin = 0;
        int end = 0;
    };

    /// @param secondRowSign  the direction across the axis in which the second row of labels lies
    CAxis(const CAxisFrame& frame, const CAxisSettings& settings, const CAxisLook& look,
          int secondRowSign, CTextMeasurer& measurer);

    /// Sets the labels, which are already measured.
    void setLabels(std::vector<CBarTextLabel> labels, bool isEmpty);
    [[nodiscard]] const std::vector<CBarTextLabel>& labels() const { return m_labels; }
    [[nodiscard]] const CAxisLook& look() const { return m_look; }
    /// The shifts of an axis of that length, with labels of that extent along it.
    [[nodiscard]] virtual CShifts labelShifts(int labelExtentAlong, int length) const = 0;
    /// Where the labels' ticks stand, in pixels from the first one's place.
    [[nodiscard]] virtual std::vector<int> ticks(const CAxisLayout& axis) const = 0;

private:
    [[nodiscard]] int getSizeForLength(int length) const;
    [[nodiscard]] LabelDirection initLabelDirection(int length) const;
    [[nodiscard]] std::int64_t usableSpan(LabelDirection direction, int length) const;
    [[nodiscard]] CAxisLayout initCoordinates(const QRect& rect) const;
    void placeLabels(CAxisLayout& axis) const;
    void processLabels(CAxisLayout& axis, CTextMeasurer& measurer) const;
    void processTitle(CAxisLayout& axis, CTextMeasurer& measurer) const;
    void drawLine(CAxisLayout& axis) const;
    void drawLabels(CAxisLayout& axis, CTextMeasurer& measurer) const;
    void drawTitle(CAxisLayout& axis, CTextMeasurer& measurer) const;

    CAxisShape m_shape;
    CAxisLook m_look;
    int m_secondRowSign;
    CTextLabel m_title;
    std::vector<CBarTextLabel> m_labels; // in axis order
};

} // namespace tovangl

#endif
