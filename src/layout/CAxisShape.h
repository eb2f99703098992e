// SPDX-License-Identifier: MIT
/// @file
/// What determines the thickness of an axis.
#ifndef TOVANGL_LAYOUT_CAXISSHAPE_H
#define TOVANGL_LAYOUT_CAXISSHAPE_H

#include "input/CAxisSettings.h"
#include "layout/CAxisFrame.h"
#include "layout/label_direction.h"

#include <QFlags>
#include <QRect>

namespace tovangl {

/// What an axis shows, how large its texts are, and in which direction they are written. These
/// alone determine how far its parts reach across it; all in pixels of the picture.
struct CAxisShape
{
    /// The elements that take room across the axis, and the sums in use.
    enum Element
    {
        Line = 1,
        Ticks = 2, ///< the gap between line and labels
        Label = 4, ///< one row of labels
        Spare = 8, ///< unused, but part of the sums
        Labels = 16,
        LabelTitleGap = 32,
        Title = 64,

        LineAndTicks = Line | Ticks,
        UpToFirstRow = Line | Ticks | Label,
        SecondRowOffset = Label | Spare,
        UpToTitle = Line | Ticks | Spare | Labels | LabelTitleGap,
        WholeThickness = UpToTitle | Title
    };
    Q_DECLARE_FLAGS(Elements, Element)

    [[nodiscard]] bool has(CAxisSettings::Property property) const
    {
        return properties.testFlag(property);
    }
    [[nodiscard]] int rows() const { return direction == LabelDirection::AlongTwoRows ? 2 : 1; }
    /// Pixels that a label's box covers along the axis, and across it.
    [[nodiscard]] int labelExtentAlong() const;
    [[nodiscard]] int labelExtentAcross() const;
    /// All rows of labels.
    [[nodiscard]] int labelBandHeight() const;
    /// The sum of the elements' extents across the axis.
    [[nodiscard]] int getElementHeight(Elements elements) const;
    /// The signed distance across the axis from its line to the labels' reference edge.
    [[nodiscard]] int getAxisToLabelShift() const;
    [[nodiscard]] int getAxisToTitleShift() const;

    CAxisFrame frame;
    CAxisSettings::Properties properties;
    int lineWidth = 1;
    bool isEmpty = false; ///< there is nothing to label
    LabelDirection direction = LabelDirection::Across;
    QSize labelSize; ///< of the box that every label has
    QRect titleRect; ///< the title's box at the origin
};

Q_DECLARE_OPERATORS_FOR_FLAGS(CAxisShape::Elements)

static_assert(CAxisShape::LineAndTicks == 3);
static_assert(CAxisShape::UpToFirstRow == 7);
static_assert(CAxisShape::SecondRowOffset == 12);
static_assert(CAxisShape::UpToTitle == 59);
static_assert(CAxisShape::WholeThickness == 123);

} // namespace tovangl

#endif
