// SPDX-License-Identifier: MIT
/// @file
/// An axis with its line, labels and title in their places.
#ifndef TOVANGL_LAYOUT_CAXISLAYOUT_H
#define TOVANGL_LAYOUT_CAXISLAYOUT_H

#include "base/COrientedCoord.h"
#include "layout/CAxisShape.h"
#include "layout/CPlacedText.h"
#include "layout/CStraightLine.h"
#include "text/CTextLabel.h"

#include <QRect>

#include <optional>
#include <vector>

namespace tovangl {

/// A category's name or a tick's number, with its place on the axis.
struct CBarTextLabel
{
    CTextLabel text;
    long long value = 0; ///< of a tick
    bool isHidden = false;
    /// Where the tick stands along the axis, in pixels from the first one's place.
    int tickCoord = 0;
    /// The label's place relative to the first one, before the signs of the axis are applied.
    COrientedCoord orientedPos = {};
    /// What the text covers on the picture; null where it is not drawn.
    QRect pixels = {};
    bool isDrawn = false; ///< among the texts of the axis, which are in the order of the labels
};

/// The result of CAxis::fitToRect(). `line` and `texts` are painted; the rest records how they were
/// computed, and where bars and grid lines go.
struct CAxisLayout
{
    [[nodiscard]] bool isRotated() const;
    /// Pixels along the axis from the first tick to the end of the last one's range; negative where
    /// there is no room.
    [[nodiscard]] std::int64_t usableSpan() const;
    /// Half the extent of a label along the axis, with the sign of the axis's direction.
    [[nodiscard]] int halfLabelSigned() const;
    [[nodiscard]] QPoint originOnPicture() const;

    CAxisShape shape;
    QRect rect;            ///< the rectangle that the axis was fitted to
    COrientedCoord origin; ///< where the axis starts, signs applied
    int length = 0;        ///< pixels, as all below
    int shiftAtBegin = 0;  ///< kept free before the first tick
    int shiftAtEnd = 0;    ///< added after the last tick; negative if kept free
    std::vector<CBarTextLabel> labels = {};
    CTextLabel title = {};
    COrientedCoord titlePos = {}; ///< before the signs of the axis are applied
    bool isLineHidden = false;
    bool areLabelsHidden = false;
    bool isTitleHidden = false;
    std::optional<CStraightLine> line = {}; ///< none if it is not drawn
    std::vector<CPlacedText> texts = {};    ///< in the order of drawing
};

} // namespace tovangl

#endif
