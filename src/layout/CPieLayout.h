// SPDX-License-Identifier: MIT
/// @file
/// A pie with everything in its place.
#ifndef TOVANGL_LAYOUT_CPIELAYOUT_H
#define TOVANGL_LAYOUT_CPIELAYOUT_H

#include "layout/CChartTitle.h"
#include "layout/CVerticalFade.h"
#include "layout/slice_angles.h"

#include <QColor>
#include <QPointF>
#include <QRect>
#include <QRectF>

#include <optional>
#include <vector>

namespace tovangl {

/// A slice as it is painted.
struct CPieSlice
{
    std::size_t item = 0; ///< its position among all items
    CSliceAngles angles;
    QColor color; ///< adapted to the device
};

/// Dash and gap of a label's dotted beam, in widths of the beam.
inline constexpr double kBeamDash = 0.3;
inline constexpr double kBeamGap = 2.5;

/// A slice's label: a dotted beam from the pie to an elbow, a line from there to the text, and the
/// text. All positions but the last are relative to the pie's centre, y growing downward.
struct CPlacedPieLabel
{
    std::size_t item = 0; ///< its position among all items
    bool isHidden = false;
    QPointF beamStart;
    QPointF elbow;
    QPointF lineEnd;
    QPointF labelPos; ///< the text's near edge and its top
    /// The name and after it the size, as far as there is room; none if the label is hidden.
    std::vector<CPlacedText> texts;
    QRect itemRect; ///< what the texts cover on the picture; null if nothing is drawn
};

/// The frame behind a pie, as large as the picture.
struct CPieBackground
{
    static constexpr int kCornerRadius = 11; ///< pixels before scaling

    CVerticalFade fill = {QColor(186, 209, 238), QColor(232, 242, 255)};
    CVerticalFade border = {QColor(149, 167, 190), QColor(186, 194, 204)};
};

/// All that painting a pie needs, and all that can be queried about it afterwards.
struct CPieLayout
{
    /// The origin of the labels' positions.
    [[nodiscard]] QPointF center() const { return area.center(); }
    /// Whether the picture has room for the pie.
    [[nodiscard]] bool fits() const { return hasRoom; }

    bool hasRoom = false;             ///< if not, nothing of the pie must be drawn
    std::optional<CChartTitle> title; ///< none where there is no text or no room
    std::optional<CPieBackground> background;
    QPointF shift; ///< by which everything on the background is moved
    QRectF area;   ///< the square that holds the pie and the beams of its labels
    QRectF pieRect;
    QRectF drawnPieRect; ///< the pie's ellipse on the picture, with the shift
    QRectF labelRect;    ///< the rectangle that the labels share; at (0, 0)
    QColor outlineColor;
    int outlineWidth = 1; ///< pixels
    QColor labelLineColor;
    double beamWidth = 0; ///< pixels
    double textLineWidth = 0;
    bool isWholeDisc = false; ///< the only slice is drawn without a seam
    bool sizesShown = true;   ///< whether labels show sizes that were asked for: all or none
    std::vector<CPieSlice> slices;
    std::vector<CPlacedPieLabel> labels; ///< in the order of drawing
};

} // namespace tovangl

#endif
